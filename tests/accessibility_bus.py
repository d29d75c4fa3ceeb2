"""What the program tells on the accessibility bus, as a screen reader hears it. Its import starts
the test again, once, inside a session bus of its own."""

import os
import re
import sys
from shutil import which
from subprocess import call
from tempfile import TemporaryDirectory

from real_window import PATIENCE, ask, until_none

PYTHON = "/usr/bin/python3"  # Debian's own has the bindings; another may stand before it

if "inside" not in sys.argv:
    if not (which("dbus-run-session") and which(PYTHON)) or call([PYTHON, "-c", "import pyatspi"]):
        sys.exit(77)
    # A session of its own, which cannot meet the one of the person who runs this.
    with TemporaryDirectory() as os.environ["XDG_RUNTIME_DIR"]:
        sys.exit(call(["dbus-run-session", "--", PYTHON, *sys.argv, "inside"]))
import pyatspi
from gi.repository import Atspi, GLib

heard = []  # since the last deed


def answer(question, asked):
    """What a node or an event says; nothing if what it is about has gone away meanwhile."""
    try:
        return question(asked)
    except (GLib.Error, NotImplementedError):
        return ""


def below(node):
    return [each for child in answer(list, node) if child for each in (child, *below(child))]


def told(node):
    words = [node.getRoleName(), node.name]
    if words[0] == "scroll bar":
        bar = node.queryValue()
        words += [f"{n:g}" for n in (bar.minimumValue, bar.currentValue, bar.maximumValue)]
    words += [state for state in ("FOCUSED", "CHECKED", "SHOWING")
              if node.getState().contains(getattr(pyatspi, "STATE_" + state))]
    return " ".join(filter(None, words))


def announced(event):
    words = [event.type, event.source.name, event.source.description, event.any_data]
    return " ".join(map(str, words)).replace("\n", " ")


def nodes():
    """What each node of the window tells, and the node; the bus has no other program."""
    while GLib.MainContext.default().iteration(False):
        pass
    return {answer(told, node): node for node in below(pyatspi.Registry.getDesktop(0))}


def expect(*patterns):
    """Waits until each is told by a node or has been heard."""
    def unlike():
        world = "\n".join(dict.fromkeys([*nodes(), *heard]))
        untold = [pattern for pattern in patterns if not re.search(pattern, world)]
        return untold and f"expected {untold} in:\n{world}"
    until_none(unlike)


def find(pattern):
    """Waits for the node that tells this of itself."""
    expect(pattern)
    return next(node for line, node in nodes().items() if re.search(pattern, line))


def deed(words, *patterns):
    """By mouse and keys, in the words of xdotool; then waits until the patterns are told."""
    heard.clear()
    ask("xdotool", *words.split())
    expect(*patterns)


def point(name, along=0.5):
    """The mouse, at the middle of a control, or at another part of its length."""
    at = find(name + ".* SHOWING").queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    across, down = (along, 0.5) if at.width > at.height else (0.5, along)
    deed(f"mousemove {at.x + round(across * at.width)} {at.y + round(down * at.height)}")


def click(name, *patterns):
    point(name)
    deed("click 1", *patterns)


pyatspi.Registry.registerEventListener(
    lambda event: heard.append(answer(announced, event)),
    "object:text-changed", "object:property-change", "object:state-changed:showing")
os.environ["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
Atspi.set_timeout(PATIENCE * 1000, PATIENCE * 1000)
pyatspi.Registry.getDesktop(0).set_cache_mask(Atspi.Cache.NONE)
