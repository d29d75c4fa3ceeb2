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

from end_to_end_test import PATIENCE, ask, open_screen, start, until_none

OPENING = """frame first explanation; menu bar; menu item back; menu item CASES; menu item STOP;
menu item TIME DEPENDENT; menu item CONTINUE; menu item end; canvas Sketch FOCUSED;
text Explanation; scroll bar Amplitude 1 20 35; label Amplitude value: Πλάτος =2.0;
scroll bar Frequency 1 15 60; label Frequency value: Συχνότης=1.5;
scroll bar Tangential acceleration -35 20 35; scroll bar Initial speed 0 3 15;
label Tangential acceleration value: Επιτρόχιος επιτάχυνση= 2.00;
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
from gi.repository import GLib


def below(node):
    return [each for child in node if child for each in (child, *below(child))]


def controls():
    while GLib.MainContext.default().iteration(False):
        pass
    return [node for program in pyatspi.Registry.getDesktop(0)
            if program and program.name == "firststep" for node in below(program)]


def told(node):
    words = [node.getRoleName(), node.name]
    if words[0] == "scroll bar":
        bar = node.queryValue()
        words += [f"{n:g}" for n in (bar.minimumValue, bar.currentValue, bar.maximumValue)]
    words += [state for state in ("FOCUSED", "CHECKED", "SHOWING")
              if node.getState().contains(getattr(pyatspi, "STATE_" + state))]
    return " ".join(filter(None, words))


def unlike_opening():
    lines = {line for line in map(told, controls()) if not re.match("filler|notification", line)}
    return {line for line in lines if line.endswith(" SHOWING")} ^ {
        line + " SHOWING" for line in re.split(";\\s", OPENING)}


def expect(*patterns):
    def untold():
        world = "\n".join([*map(told, controls()), *heard])
        return [pattern for pattern in patterns if not re.search(pattern, world)]
    until_none(untold)


def find(name):
    return next(node for node in controls() if node.name == name)


def press(name, *patterns):
    find(name).queryAction().doAction(0)
    expect(*patterns)


def keys(names, *patterns):
    ask("xdotool", *names.split())
    expect(*patterns)


def test(program):
    until_none(unlike_opening)
    find("Amplitude").queryValue().currentValue = 30
    expect("Amplitude 1 30 35", "Πλάτος =3.0", "description .*fifteen stations")
    press("TIME DEPENDENT", "Time evolution SHOWING")
    press("Time evolution", "Start SHOWING", "Δt = 0.02 SHOWING", "Time evolution (.*)CHECKED")
    press("Step", "description .*The motion in time")
    press("GUESS A FORCE", "GUESS A FORCE CHECKED")
    keys("key Return", "description .*circle of curvature at x = 6.0, y = 3.0",
         "text-changed:insert .*Click on the diagram", ":showing .*Click on the diagram")
    keys("keydown shift key Up Up keyup shift", ":showing .*FORCE: HAS WRONG DIRECTION FOR")
    for name in TAB_ORDER:
        keys("key Tab", name + " FOCUSED")
    keys("key shift+Tab Right", "Time steps per unit of time 10 51 300")
    keys("key alt+c r", "description .*The track with its circles of curvature at the first crest")
    keys("key alt+e")
    sys.exit(program.wait(PATIENCE))


heard = []
pyatspi.Registry.registerEventListener(
    lambda event: heard.append(f"{event.type} {event.source.description} {event.any_data} "
                               f"{event.source.name}".replace("\n", " ")),
    "object:text-changed", "object:property-change", "object:state-changed:showing")
os.environ["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
with ExitStack() as stack:
    open_screen(stack)
    test(start(stack, sys.argv[1]))
