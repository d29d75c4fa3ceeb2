#!/usr/bin/env python3
"""Reads the program's window on the accessibility bus, as a screen reader does, and works it from
there and by the keyboard alone. Argument: the program's path."""

import os
import re
import shutil
import sys
import tempfile
from contextlib import ExitStack
from subprocess import call

from end_to_end_test import PATIENCE, ask, open_screen, ready_window, start, until_ended, until_none

OPENING = """
    application firststep
    frame first explanation
    menu bar
    menu item back
    menu item CASES
    menu item STOP
    menu item TIME DEPENDENT
    menu item CONTINUE
    menu item end
    canvas Sketch FOCUSED
    text Explanation
    scroll bar Amplitude 0.1 2 3.5
    label Amplitude value: Πλάτος =2.0
    scroll bar Frequency 0.1 1.5 6
    label Frequency value: Συχνότης=1.5
    scroll bar Tangential acceleration -3.5 2 3.5
    label Tangential acceleration value: Επιτρόχιος επιτάχυνση= 2.00
    scroll bar Initial speed 0 3 15
    label Initial speed value: Αρχική ταχύτητα = 3"""
TAB_ORDER = ("Explanation", "Time evolution", "Factors that influence acceleration", "Start",
             "Step", "Time steps per unit of time 10 50 300", "Sketch")

if "inside" not in sys.argv:
    python = "/usr/bin/python3"  # Debian's own has the bindings; another may stand before it
    needed = (python, "Xvfb", "dbus-run-session", "openbox", "xdotool")
    if not all(map(shutil.which, needed)) or call([python, "-c", "import pyatspi"]):
        sys.exit(77)
    # A session of its own, which cannot meet the one of the person who runs this.
    with tempfile.TemporaryDirectory() as os.environ["XDG_RUNTIME_DIR"]:
        sys.exit(call(["dbus-run-session", "--", python, __file__, sys.argv[1], "inside"]))
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
    words = [event.type, event.source.description, event.any_data, event.source.name]
    return " ".join(map(str, words)).replace("\n", " ")


def nodes():
    """What each node of the window tells, and the node; the bus has no other program."""
    while GLib.MainContext.default().iteration(False):
        pass
    return {answer(told, node): node for node in below(pyatspi.Registry.getDesktop(0))}


def unlike_opening():
    expected = {line.strip() + " SHOWING" for line in OPENING.strip().splitlines()}
    seen = {line for line in nodes()
            if line.endswith(" SHOWING") and not re.match("filler|notification", line)}
    return seen != expected and f"lacks {expected - seen}, has {seen - expected}"


def expect(*patterns):
    def unlike():
        world = "\n".join([*nodes(), *heard])
        untold = [pattern for pattern in patterns if not re.search(pattern, world)]
        return untold and f"expected {untold} in:\n{world}"
    until_none(unlike)


def find(node):
    """The node whose line begins so."""
    found = []

    def unfound():
        world = nodes()
        found[:] = [world[line] for line in world if line.startswith(node)]
        return not found and f"no {node} in {list(world)}"
    until_none(unfound)
    return found[0]


def press(node, *patterns):
    button = find(node).queryAction()
    heard.clear()
    button.doAction(0)
    expect(*patterns)


def keys(names, *patterns):
    heard.clear()
    ask("xdotool", *names.split())
    expect(*patterns)


def test(program):
    until_none(unlike_opening)
    ready_window()
    find("scroll bar Amplitude").queryValue().currentValue = 3.3
    expect("Amplitude 0.1 3.3 3.5", "Πλάτος =3.3", "description .*fifteen stations")
    press("menu item TIME DEPENDENT", "Time evolution SHOWING")
    press("radio button Time evolution",
          "Start SHOWING", "Δt = 0.02 SHOWING", "Time evolution (.*)CHECKED")
    press("push button Step", "description .*The motion in time")
    press("menu item GUESS A FORCE", "GUESS A FORCE CHECKED", "Sketch FOCUSED")
    keys("key Return", "description .*circle of curvature at x = 6.0, y = 3.3",
         "text-changed:insert .*Click on the diagram", ":showing .*Click on the diagram")
    keys("keydown shift key Up Up keyup shift", ":showing .*FORCE: HAS WRONG DIRECTION FOR")
    for name in TAB_ORDER:
        keys("key Tab", name + " FOCUSED")
    keys("key shift+Tab Right", "Time steps per unit of time 10 51 300 FOCUSED")
    # Not Alt and the letter: Qt takes that letter at once, but shows the bus all other keys before
    # they go on. The letter may overtake its Alt, which then closes the menu.
    keys("key F10", "menu item back FOCUSED")
    keys("key c", "popup menu CASES SHOWING")
    keys("key r", "description .*circles of curvature at the first crest")
    keys("key F10", "menu item back FOCUSED")
    keys("key e", "menu item end FOCUSED")
    ask("xdotool", "keydown", "Return")
    until_ended(program, "the menu bar")


pyatspi.Registry.registerEventListener(
    lambda event: heard.append(answer(announced, event)),
    "object:text-changed", "object:property-change", "object:state-changed:showing")
os.environ["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
Atspi.set_timeout(PATIENCE * 1000, PATIENCE * 1000)
pyatspi.Registry.getDesktop(0).set_cache_mask(Atspi.Cache.NONE)
with ExitStack() as stack:
    open_screen(stack)
    test(start(stack, sys.argv[1]))
