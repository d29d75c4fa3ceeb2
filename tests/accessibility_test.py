#!/usr/bin/env python3
"""Reads the program's window on the accessibility bus, as a screen reader does, and works it from
there and by the keyboard alone. Argument: the program's path."""

import os
import shutil
import subprocess
import sys
import tempfile
from contextlib import ExitStack

from end_to_end_test import Screen, expect, running, until

SCENE = "The track with its circles of curvature at the first crest"
MENU = {("menu item", name) for name in
        ("back", "CASES", "TIME DEPENDENT", "STOP", "CONTINUE", "end")}
OPENING = MENU | {
    ("frame", "first explanation"), ("menu bar", ""), ("canvas", "Sketch"), ("text", "Explanation"),
    ("scroll bar", "Amplitude", 1, 20, 35), ("label", "Amplitude value: Πλάτος =2.0"),
    ("scroll bar", "Frequency", 1, 15, 60), ("label", "Frequency value: Συχνότης=1.5"),
    ("scroll bar", "Tangential acceleration", -35, 20, 35),
    ("label", "Tangential acceleration value: Επιτρόχιος επιτάχυνση= 2.00"),
    ("scroll bar", "Initial speed", 0, 3, 15),
    ("label", "Initial speed value: Αρχική ταχύτητα = 3")}
TAB_ORDER = ["Explanation", "Time evolution", "Factors that influence acceleration", "Start", "Step",
             "Time steps per unit of time", "Sketch"]


def inside(path):
    import pyatspi
    from gi.repository import GLib

    heard = []

    def all_below(node):
        for child in node:
            if child is not None:
                yield child
                yield from all_below(child)

    def controls():
        """What the program has on the bus; the events so far have arrived."""
        while GLib.MainContext.default().iteration(False):
            pass
        return list(all_below(next((a for a in desktop if a and a.name == "firststep"), [])))

    def has(node, state):
        return node.getState().contains(state)

    def described(node):
        kind = (node.getRoleName(), node.name)
        if kind[0] != "scroll bar":
            return kind
        value = node.queryValue()
        return *kind, value.minimumValue, value.currentValue, value.maximumValue

    def showing():
        return {described(node) for node in controls() if has(node, pyatspi.STATE_SHOWING)
                and node.getRoleName() not in ("filler", "notification")}

    def find(name):
        return next(node for node in controls() if node.name == name)

    def press(name):
        find(name).queryAction().doAction(0)

    def hears(kind, words):
        until(lambda: controls() and any(kind in event and words in event for event in heard),
              f"{words} not heard")

    def shows(*what):
        until(lambda: set(what) <= showing(), f"{what} not shown")

    def focused(name):
        until(lambda: has(find(name), pyatspi.STATE_FOCUSED), f"{name} has not the focus")

    def keys(*names):
        screen.ask("xdotool", "key", *names)

    with ExitStack() as cleanup:
        screen = Screen(cleanup)
        screen.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        cleanup.enter_context(running("openbox", "--sm-disable", env=screen.environment))
        until(lambda: b"id #" in screen.ask("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"), "no WM")
        desktop = pyatspi.Registry.getDesktop(0)
        pyatspi.Registry.registerEventListener(
            lambda event: heard.append(f"{event.type} {event.source.name} "
                                       f"{event.source.description} {event.any_data}"),
            "object:text-changed", "object:property-change", "object:state-changed:showing")
        program = cleanup.enter_context(running(path, env=screen.environment))
        until(lambda: showing() == OPENING, "the opening controls differ")
        until(lambda: find("Sketch").description.startswith(SCENE), "the sketch is not described")
        focused("Sketch")

        find("Amplitude").queryValue().currentValue = 30
        shows(("scroll bar", "Amplitude", 1, 30, 35), ("label", "Amplitude value: Πλάτος =3.0"))
        hears("accessible-description", "fifteen stations")
        press("TIME DEPENDENT")
        shows(("radio button", "Time evolution"))
        press("Time evolution")
        shows(("push button", "Start"), ("label", "Time step value: Δt = 0.02"))
        expect(has(find("Time evolution"), pyatspi.STATE_CHECKED), "the option is not checked")
        press("Step")
        hears("accessible-description", "The motion in time")

        press("GUESS A FORCE")
        expect(has(find("GUESS A FORCE"), pyatspi.STATE_CHECKED), "the case is not checked")
        find("Sketch").queryComponent().grabFocus()
        focused("Sketch")
        keys("Return")
        hears("accessible-description", "the circle of curvature at x = 6.0, y = 3.0")
        hears("text-changed:insert", "Click on the diagram")
        hears("showing", "Click on the diagram")
        screen.ask("xdotool", "keydown", "shift", "key", "Up", "Up", "keyup", "shift")
        hears("showing", "FORCE: HAS WRONG DIRECTION FOR THE SHAPE OF THE CURVE")
        for name in TAB_ORDER:
            keys("Tab")
            focused(name)
        keys("shift+Tab", "Right")
        shows(("scroll bar", "Time steps per unit of time", 10, 51, 300))
        keys("alt+c", "r")
        until(lambda: find("Sketch").description.startswith(SCENE), "the case has not changed")
        expect("=RADIUS OF" in find("Explanation").queryText().getText(0, -1), "another text")
        keys("alt+e")
        expect(program.wait(60) == 0, f"the program ended with status {program.returncode}")


if "inside" in sys.argv:
    inside(sys.argv[1])
    sys.exit(0)
# Debian's own interpreter has the bindings; another one may come before it.
PYTHON = next((p for p in ("/usr/bin/python3", sys.executable) if os.path.exists(p)))
NEEDED = ("Xvfb", "dbus-run-session", "openbox", "xdotool")
if not all(map(shutil.which, NEEDED)) or subprocess.call([PYTHON, "-c", "import pyatspi"]):
    print("needs", *NEEDED, "and pyatspi")
    sys.exit(77)
# A session of its own, which cannot meet the one of the person who runs this.
with tempfile.TemporaryDirectory() as runtime:
    environment = {k: v for k, v in os.environ.items() if k not in ("DISPLAY", "WAYLAND_DISPLAY")}
    sys.exit(subprocess.call(["dbus-run-session", "--", PYTHON, __file__, sys.argv[1], "inside"],
                             env=environment | {"XDG_RUNTIME_DIR": runtime}))
