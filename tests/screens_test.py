#!/usr/bin/env python3
"""Changes the real program's screen under it: smaller, larger, one of two monitors, the whole again.
The window covers what is there. Argument: its path."""

import re
import shutil
import sys
from contextlib import ExitStack

from end_to_end_test import HEIGHT, TITLE, WIDTH, ask, frame_of, open_screen, start, until_none

HALF = WIDTH // 2
MONITOR = "{}/100x{}/100+{}+0"  # its size, each with so many millimetres, and its left edge


def uncovered(left, top, width, height):
    """Why the window with its frame is not there, if so."""
    place = ask("xwininfo", "-name", TITLE).decode()
    inside = [int(number) for number in re.findall(r": +(-?\d+)\n", place)]
    if not inside:
        return "no window"
    x, y, _, _, across, down = inside[:6]
    before, behind, above, below = map(int, frame_of(re.search("0x[0-9a-f]+", place)[0]))
    box = x - before, y - above, across + before + behind, down + above + below
    return box != (left, top, width, height) and f"{box} instead of {(left, top, width, height)}"


def test(program, managed):
    with ExitStack() as stack:
        open_screen(stack, managed)
        ask("xrandr", "--newmode", "small", *"1 1024 0 0 1024 600 0 0 600".split())
        ask("xrandr", "--addmode", "screen", "small")
        ask("xrandr", "--setmonitor", "*right", MONITOR.format(HALF, HEIGHT, HALF), "screen")
        ask("xrandr", "--setmonitor", "left", MONITOR.format(HALF, HEIGHT, 0), "none")
        start(stack, program)
        until_none(lambda: uncovered(HALF, 0, HALF, HEIGHT))
        ask("xrandr", "--delmonitor", "right")
        ask("xrandr", "--delmonitor", "left")
        until_none(lambda: uncovered(0, 0, WIDTH, HEIGHT))
        ask("xrandr", "--output", "screen", "--mode", "small")
        until_none(lambda: uncovered(0, 0, 1024, 600))
        ask("xrandr", "--output", "screen", "--mode", f"{WIDTH}x{HEIGHT}")
        until_none(lambda: uncovered(0, 0, WIDTH, HEIGHT))


if __name__ == "__main__":
    if not all(map(shutil.which, ("Xvfb", "openbox", "xdotool", "xrandr"))):
        sys.exit(77)
    for with_manager in (False, True):
        test(sys.argv[1], with_manager)
