"""For a test that works the real window by mouse and keys and reads it on the accessibility bus and
off the screen. Its import starts the test again, once, inside a session bus of its own."""

import os
import re
import shutil
import sys
import tempfile
from math import dist
from subprocess import call

from end_to_end_test import WIDTH, ask, photograph, until_none

if "inside" not in sys.argv:
    python = "/usr/bin/python3"  # Debian's own has the bindings; another may stand before it
    needed = (python, "Xvfb", "dbus-run-session", "openbox", "xdotool")
    if not all(map(shutil.which, needed)) or call([python, "-c", "import pyatspi"]):
        sys.exit(77)
    # A session of its own, which cannot meet the one of the person who runs this.
    with tempfile.TemporaryDirectory() as os.environ["XDG_RUNTIME_DIR"]:
        sys.exit(call(["dbus-run-session", "--", python, *sys.argv, "inside"]))
import pyatspi
from gi.repository import GLib

heard = []  # what has been announced since the last deed
pyatspi.Registry.registerEventListener(lambda event: heard.append(event.source.name or ""),
                                       "object:state-changed:showing")
os.environ["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"


def below(node):
    return [each for child in node if child for each in (child, *below(child))]


def shown():
    while GLib.MainContext.default().iteration(False):
        pass
    try:
        return [node for program in pyatspi.Registry.getDesktop(0)
                if program and program.name == "firststep" for node in below(program)
                if node.getState().contains(pyatspi.STATE_SHOWING)]
    except GLib.Error:
        return []  # a program that has just ended; the next look finds the living one


def expect(pattern):
    """Waits until a label, the sketch's description or an announcement says it."""
    def unsaid():
        said = heard + [f"{node.name}. {node.description}" for node in shown()]
        return not any(re.search(pattern, each) for each in said) and (pattern, said)
    until_none(unsaid)


def extents(name):
    """Of the control whose name begins so; the label beside it may have a longer one."""
    found = []

    def missing():
        found[:] = [node for node in shown() if (node.name or "").startswith(name)]
        return not found and f"{name} is not shown"
    until_none(missing)
    node = min(found, key=lambda node: len(node.name))
    return node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)


def deed(*words):
    heard.clear()
    ask("xdotool", *map(str, words))


def click(name, across=0.5, down=0.5, times=1):
    at = extents(name)
    deed("mousemove", at.x + round(across * at.width), at.y + round(down * at.height),
         "click", "--repeat", times, "--delay", 40, 1)


def turn(bar, clicks, shows):
    """Clicks a scroll bar's last arrow, or for less its first, and waits for what it shows then."""
    at, end = extents(bar), 0.92 if clicks > 0 else 0.08
    upright = at.height > at.width
    click(bar, 0.5 if upright else end, end if upright else 0.5, abs(clicks))
    expect(shows)


def sketch():
    """Where the inside of its frame begins, how many pixels are in it across, and to a unit."""
    at = extents("Sketch")
    return at.x + 1, at.y + 1, at.width - 2, (at.width - 2) / 20


def press(*places):
    """Presses the mouse at the first place and lets go at the last; a pull is under SHIFT."""
    left, top, _, unit = sketch()
    spots = [(left + round(x * unit), top + round((10 - y) * unit)) for x, y in places]
    down, up = (("keydown", "shift"), ("keyup", "shift")) if len(spots) > 1 else ((), ())
    deed("mousemove", *spots[0], *down, "mousedown", 1, "mousemove", *spots[-1], "mouseup", 1, *up)


def look(ink, *places, bare=()):
    """Waits until the ink is seen at all the places, and none of it at the bare ones."""
    def faults():
        left, top, size, unit = sketch()
        screen = photograph()
        inked = [(column / unit, 10 - row / unit) for row in range(size) for column in range(size)
                 if dist(screen[(top + row) * WIDTH + left + column], ink) < 140]
        return [at for at in (*places, *bare)
                if any(dist(at, point) < 0.12 for point in inked) != (at in places)]
    until_none(faults)
