"""What the tests of the real window share: a display of their own, the program on it, and what is
seen there. Its import ends a test with 77 where a tool is missing."""

import os
import re
import sys
import time
from math import dist
from pathlib import Path
from shutil import which
from subprocess import DEVNULL, PIPE, Popen, run

TITLE, WIDTH, HEIGHT = "first explanation", 1366, 768
PATIENCE = 60  # seconds, enough for a slow machine with the sanitizers
WHITE = (255, 255, 255)
MARGIN, UNIT = 49, 573 / 20  # the left edge of the sketch's inside, and its unit, in pixels
NEAR = range(-3, 4)  # how far from its place an ink is looked for, in pixels
LIKE = 140  # how far a colour may be from the ink, whose lines are paler at their edges

if not all(map(which, ("Xvfb", "openbox", "xdotool", "xprop", "xwininfo", "xrandr", "import"))):
    sys.exit(77)


def until_none(faults):
    """Waits until there are none. What is waited for must come to stay."""
    end = time.monotonic() + PATIENCE
    while found := faults():
        if time.monotonic() > end:
            sys.exit(f"FAILED: {found}")
        time.sleep(0.02)


def ask(*command):
    return run(command, timeout=PATIENCE, check=False, stdout=PIPE, stderr=DEVNULL).stdout


def start(stack, *command, **options):
    process = stack.enter_context(Popen(command, stdin=DEVNULL, **options))
    stack.callback(process.kill)
    return process


def open_screen(stack, managed=True):
    # Keys do not repeat: on a busy machine one may be held for long.
    screen = start(stack, "Xvfb", "-displayfd", "1", "-screen", "0", f"{WIDTH}x{HEIGHT}x24",
                   "-noreset", "-r", stdout=PIPE, stderr=DEVNULL)
    number = screen.stdout.readline().decode().strip() or sys.exit("FAILED: no virtual display")
    leaks = Path(__file__).with_name("leaks.supp")
    os.environ |= {"DISPLAY": ":" + number, "QT_QPA_PLATFORM": "xcb",
                   "LSAN_OPTIONS": f"suppressions={leaks}:print_suppressions=0"}
    # At the first of xdotool's keys the display turns to its keyboard, and a window manager must
    # take its keys anew, which is too late for that one.
    ask("xdotool", "key", "shift")
    if managed:
        # A window that comes before openbox has started to the end may never be shown.
        ready = "xprop -root -format READY 8s -set READY yes"
        start(stack, "openbox", "--sm-disable", "--startup", ready, stdout=DEVNULL, stderr=DEVNULL)
        until_none(lambda: b"yes" not in ask("xprop", "-root", "READY") and "no window manager")


def frame():
    """How wide the window manager's frame is: left, right, top and bottom."""
    told = ask("xprop", "-name", TITLE, "_NET_FRAME_EXTENTS").decode()
    return [int(width) for width in re.findall(r"\d+", told)] or [0, 0, 0, 0]


def uncovered(left=0, top=0, width=WIDTH, height=HEIGHT):
    """Why the window with its frame does not cover this part of the screen, if so."""
    inside = re.findall(r": +(-?\d+)\n", ask("xwininfo", "-name", TITLE).decode())
    if not inside:
        return "no window"
    x, y, _, _, across, down = map(int, inside[:6])
    before, behind, above, below = frame()
    box = (x - before, y - above, across + before + behind, down + above + below)
    return box != (left, top, width, height) and f"{box} instead of {(left, top, width, height)}"


def ready_window(managed=True):
    """Waits until the window covers the screen and the keys go to it. Its number."""
    def number():
        return ask("xdotool", "search", "--onlyvisible", "--name", f"^{TITLE}$").strip()

    def unready():
        if not managed:
            ask("xdotool", "windowfocus", number())
        focused = ask("xdotool", "getactivewindow" if managed else "getwindowfocus").strip()
        return uncovered() or focused != number() and f"the keys go to the window {focused}"
    until_none(unready)
    return number()


def until_ended(program, deed):
    until_none(lambda: program.poll() is None and f"the program has not ended by {deed}")
    if program.returncode != 0:
        sys.exit(f"FAILED: ended by {deed} with status {program.returncode}, not 0")


class Photograph:
    """The screen, by the points of the sketch, whose inside begins with the first white."""

    def __init__(self):
        rgb = ask("import", "-silent", "-window", "root", "-depth", "8", "rgb:-")
        self.pixels = list(zip(rgb[::3], rgb[1::3], rgb[2::3]))
        left, _, top, _ = frame()
        self.left = left + MARGIN
        column = self.pixels[self.left + 20::WIDTH]
        self.top = column.index(WHITE, top) if WHITE in column[top:] else top

    def spot(self, x, y):
        return self.left + round(x * UNIT), self.top + round((10 - y) * UNIT)

    def shows(self, ink, x, y):
        across, down = self.spot(x, y)
        near = (self.pixels[(down + j) * WIDTH + across + i] for i in NEAR for j in NEAR)
        return any(dist(pixel, ink) < LIKE for pixel in near)


def look(ink, *places, bare=()):
    """Waits until the ink is seen at all the places, and none of it at the bare ones."""
    def faults():
        seen = Photograph()
        wrong = [at for at in (*places, *bare) if seen.shows(ink, *at) != (at in places)]
        return wrong and f"the ink {ink} is missing, or is where it should not be: {wrong}"
    until_none(faults)
