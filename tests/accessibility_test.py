#!/usr/bin/env python3
"""Reads the program's window on the accessibility bus, as a screen reader does, and works it from
there and by the keyboard alone. Argument: the program's path."""

import os
import shutil
import subprocess
import sys
import tempfile
from contextlib import ExitStack

from end_to_end_test import PATIENCE, Screen, expect, running, until

CURVATURE = "The track with its circles of curvature at the first crest"
OPENING = {("menu item", name) for name in
           ("back", "CASES", "TIME DEPENDENT", "STOP", "CONTINUE", "end")} | {
    ("frame", "first explanation"), ("menu bar", ""), ("canvas", "Sketch"), ("text", "Explanation"),
    ("scroll bar", "Amplitude", 1, 20, 35), ("label", "Amplitude value: Πλάτος =2.0"),
    ("scroll bar", "Frequency", 1, 15, 60), ("label", "Frequency value: Συχνότης=1.5"),
    ("scroll bar", "Tangential acceleration", -35, 20, 35),
    ("label", "Tangential acceleration value: Επιτρόχιος επιτάχυνση= 2.00"),
    ("scroll bar", "Initial speed", 0, 3, 15),
    ("label", "Initial speed value: Αρχική ταχύτητα = 3")}
TAB_ORDER = ["Explanation", "Time evolution", "Factors that influence acceleration", "Start",
             "Step", "Time steps per unit of time", "Sketch"]


def all_below(node):
    return [each for child in node if child for each in (child, *all_below(child))]


class Reader:
    """What a screen reader has of the program: its controls, and the events heard so far."""

    def __init__(self):
        self.desktop, self.heard = pyatspi.Registry.getDesktop(0), []
        pyatspi.Registry.registerEventListener(
            lambda event: self.heard.append(f"{event.type} {event.source.name} "
                                            f"{event.source.description} {event.any_data}"),
            "object:text-changed", "object:property-change", "object:state-changed:showing")

    def controls(self):
        while GLib.MainContext.default().iteration(False):
            pass
        return [node for program in self.desktop if program and program.name == "firststep"
                for node in all_below(program)]

    def find(self, name):
        return next(node for node in self.controls() if node.name == name)

    def shows(self, *what, nothing_else=False):
        missing = []

        def differs():
            shown = {described(node) for node in self.controls() if has(node, "SHOWING")
                     and node.getRoleName() not in ("filler", "notification")}
            missing[:] = shown ^ set(what) if nothing_else else set(what) - shown
            return missing

        until(lambda: not differs(), missing)

    def hears(self, kind, words):
        until(lambda: self.controls() and any(kind in event and words in event
                                              for event in self.heard), f"not heard: {words}")

    def press(self, name):
        self.find(name).queryAction().doAction(0)


def described(node):
    kind = (node.getRoleName(), node.name)
    if kind[0] != "scroll bar":
        return kind
    value = node.queryValue()
    return *kind, value.minimumValue, value.currentValue, value.maximumValue


def has(node, state):
    return node.getState().contains(getattr(pyatspi, "STATE_" + state))


def test(screen, path):
    def keys(*names):
        screen.ask("xdotool", "key", *names)

    def focused(name):
        until(lambda: has(reader.find(name), "FOCUSED"), f"{name} has not the focus")

    reader = Reader()
    with running(path, env=screen.environment) as program:
        reader.shows(*OPENING, nothing_else=True)
        sketch = reader.find("Sketch")
        expect(sketch.description.startswith(CURVATURE), sketch.description)
        focused("Sketch")

        screen.photograph()
        before = screen.pixels
        reader.find("Amplitude").queryValue().currentValue = 30
        reader.shows(("scroll bar", "Amplitude", 1, 30, 35),
                     ("label", "Amplitude value: Πλάτος =3.0"))
        reader.hears("accessible-description", "fifteen stations")
        until(lambda: screen.photograph() or screen.pixels != before, "the picture is the same")
        reader.press("TIME DEPENDENT")
        reader.shows(("radio button", "Time evolution"))
        reader.press("Time evolution")
        reader.shows(("push button", "Start"), ("label", "Time step value: Δt = 0.02"))
        expect(has(reader.find("Time evolution"), "CHECKED"), "the option is not checked")
        reader.press("Step")
        reader.hears("accessible-description", "The motion in time")

        reader.press("GUESS A FORCE")
        until(lambda: has(reader.find("GUESS A FORCE"), "CHECKED"), "the case is not checked")
        keys("Return")
        reader.hears("accessible-description", "the circle of curvature at x = 6.0, y = 3.0")
        for kind in ("text-changed:insert", "showing"):
            reader.hears(kind, "Click on the diagram")
        screen.ask("xdotool", "keydown", "shift", "key", "Up", "Up", "keyup", "shift")
        reader.hears("showing", "FORCE: HAS WRONG DIRECTION FOR THE SHAPE OF THE CURVE")
        for name in TAB_ORDER:
            keys("Tab")
            focused(name)
        keys("shift+Tab", "Right")
        reader.shows(("scroll bar", "Time steps per unit of time", 10, 51, 300))
        keys("alt+c", "r")
        until(lambda: reader.find("Sketch").description.startswith(CURVATURE), "the old case")
        expect("=RADIUS OF" in reader.find("Explanation").queryText().getText(0, -1), "old text")
        keys("alt+e")
        expect(program.wait(PATIENCE) == 0, f"the program ended with status {program.returncode}")


if "inside" in sys.argv:
    import pyatspi
    from gi.repository import GLib

    with ExitStack() as cleanup:
        display = Screen(cleanup)
        display.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        cleanup.enter_context(running("openbox", "--sm-disable", env=display.environment))
        until(lambda: b"id #" in display.ask("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"), "no WM")
        test(display, sys.argv[1])
    sys.exit(0)
# Debian's own interpreter has the bindings; another one may stand before it.
PYTHON = next(p for p in ("/usr/bin/python3", sys.executable) if os.path.exists(p))
NEEDED = ("Xvfb", "dbus-run-session", "openbox", "xdotool")
if not all(map(shutil.which, NEEDED)) or subprocess.call([PYTHON, "-c", "import pyatspi"]):
    print("needs", *NEEDED, "and pyatspi")
    sys.exit(77)
# A session of its own, which cannot meet the one of the person who runs this.
with tempfile.TemporaryDirectory() as runtime:
    environment = {k: v for k, v in os.environ.items() if k not in ("DISPLAY", "WAYLAND_DISPLAY")}
    sys.exit(subprocess.call(["dbus-run-session", "--", PYTHON, __file__, sys.argv[1], "inside"],
                             env=environment | {"XDG_RUNTIME_DIR": runtime}))
