#!/usr/bin/env python3
"""Starts the real program on a virtual display, without and with a window manager, finds the
opening picture there, changes the screen, and ends it by menu and frame. Argument: its path."""

import os
import re
import sys
from contextlib import ExitStack
from subprocess import PIPE, run

from real_window import (PATIENCE, ask, look, open_screen, ready_window, start, uncovered,
                         until_ended, until_none)

# The inks and where they are seen, in sketch units, away from all others.
OPENING = {
    (1, 0, 66): [(1, 0.518), (2, 1), (10, 1), (12, 0), (14, -1)],
    (250, 0, 150): [(0.84, -0.14), (11.16, -0.14), (13.3, -5.3), (10.7, 5.3), (12.84, 0.14)],
    (255, 0, 0): [(7.3, 2), (12.8, 2), (12.77, 2.145), (12.77, 1.855), (19.5, -2)],
    (5, 150, 255): [(6, 1.6), (6, -1.2), (18, -1.6), (18, 6.7), (6.75, 2.145), (18.75, -1.855)]}
# What the toolkit would obey, and what pastes when nothing has been copied.
NOT_FOR_US = "-geometry 300x200 -qwindowtitle other -platform offscreen -reverse".split()
NOTHING_TO_PASTE = "key Tab key ctrl+v key shift+Insert mousemove 750 300 click 2".split()


def without_display(path):
    os.environ |= {"DISPLAY": ":987", "QT_QPA_PLATFORM": "xcb"}
    ended = run([path], timeout=PATIENCE, check=False, stderr=PIPE, text=True)
    if ended.returncode != 1 or not re.fullmatch(r".*display.*\.\n", ended.stderr):
        sys.exit(f"FAILED: without a display {ended}")


def change_screen():
    """One of two monitors, the whole again, smaller, larger: the window covers what is there."""
    ask("xrandr", "--setmonitor", "*right", "682/100x768/100+684+0", "screen")
    ask("xrandr", "--setmonitor", "left", "684/100x768/100+0+0", "none")
    until_none(lambda: uncovered(684, 0, 682, 768))
    ask("xrandr", "--delmonitor", "right")
    ask("xrandr", "--delmonitor", "left")
    until_none(uncovered)
    ask("xrandr", "--newmode", "small", *"1 1024 0 0 1024 600 0 0 600".split())
    ask("xrandr", "--addmode", "screen", "small")
    ask("xrandr", "--output", "screen", "--mode", "small")
    until_none(lambda: uncovered(0, 0, 1024, 600))
    ask("xrandr", "--output", "screen", "--mode", "1366x768")


def test(path, managed, ratio, end):
    os.environ["QT_SCALE_FACTOR"] = str(ratio)
    with ExitStack() as stack:
        open_screen(stack, managed)
        program = start(stack, path, *NOT_FOR_US)
        for change in (lambda: None, change_screen):
            change()
            ready_window(managed)
            for ink, places in OPENING.items():
                look(ink, *places)
        ask("xdotool", *NOTHING_TO_PASTE)
        ask("xdotool", "key", end)
        until_ended(program, end)


without_display(sys.argv[1])
# No bus either: who listens on it may hold the keys back.
os.environ["DBUS_SESSION_BUS_ADDRESS"] = "disabled:"
# The window is as large for the eye at both ratios.
test(sys.argv[1], managed=False, ratio=2, end="alt+e")
test(sys.argv[1], managed=True, ratio=1, end="alt+F4")
