#!/usr/bin/env python3
"""Starts the real program on a virtual display, without and with a window manager, finds the
opening picture on the screen, and ends it by its menu and by its frame. Argument: its path."""

import math
import os
import re
import shutil
import sys
import time
from contextlib import ExitStack
from subprocess import DEVNULL, PIPE, Popen, run

TITLE, WIDTH, HEIGHT = "first explanation", 1366, 768
PATIENCE = 60  # seconds, enough for a slow machine with the sanitizers
WHITE = (255, 255, 255)
MARGIN, FRAME, FOCUS_RING = 48, 1, 2  # the sketch's left edge, and what is painted around it
# The inks and where they are seen, in sketch units, away from all others.
OPENING = {
    (1, 0, 66): [(1, 0.518), (2, 1), (10, 1), (12, 0), (14, -1)],
    (250, 0, 150): [(0.84, -0.14), (11.16, -0.14), (13.3, -5.3), (10.7, 5.3), (12.84, 0.14)],
    (255, 0, 0): [(7.3, 2), (12.8, 2), (12.77, 2.145), (12.77, 1.855), (19.5, -2)],
    (5, 150, 255): [(6, 1.6), (6, -1.2), (18, -1.6), (18, 6.7), (6.75, 2.145), (18.75, -1.855)]}

# What the toolkit would obey, and what pastes when nothing has been copied.
NOT_FOR_US = "-geometry 300x200 -qwindowtitle other -platform offscreen -reverse".split()
NOTHING_TO_PASTE = "key Tab key ctrl+v key shift+Insert mousemove 750 300 click 2".split()


def until_none(faults):
    """Waits until there are none. What is waited for must come to stay."""
    end = time.monotonic() + PATIENCE
    while found := faults():
        if time.monotonic() > end:
            sys.exit(f"FAILED: {found}")
        time.sleep(0.1)


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
    os.environ |= {"DISPLAY": ":" + number, "QT_QPA_PLATFORM": "xcb",
                   "LSAN_OPTIONS": f"suppressions={sys.path[0]}/leaks.supp:print_suppressions=0"}
    # At the first of xdotool's keys the display turns to its keyboard, and a window manager must take
    # its keys anew, which is too late for that one.
    ask("xdotool", "key", "shift")
    if managed:
        # A window that comes before openbox has started to the end may never be shown.
        ready = "xprop -root -format READY 8s -set READY yes"
        start(stack, "openbox", "--sm-disable", "--startup", ready, stdout=DEVNULL, stderr=DEVNULL)
        until_none(lambda: b"yes" not in ask("xprop", "-root", "READY") and "no window manager")


def frame_of(window):
    return re.findall(r"\d+", ask("xprop", "-id", window, "_NET_FRAME_EXTENTS").decode()) or "0000"


def ready_window(managed=True):
    """Waits until the program's window fills the screen, and the keys go to it. Its number."""
    shown = []

    def unready():
        shown[:] = ask("xdotool", "search", "--onlyvisible", "--name", f"^{TITLE}$").split()
        if not shown:
            return "no window"
        left, right, top, bottom = frame_of(shown[0])
        corners = f"  +{left}+{top}  -{right}+{top}  -{right}-{bottom}  +{left}-{bottom}\n"
        place = ask("xwininfo", "-id", shown[0]).decode()
        if corners not in place:
            return f"not in its corners,{corners}but {place}"
        if not managed:
            ask("xdotool", "windowfocus", shown[0])
        focused = ask("xdotool", "getactivewindow" if managed else "getwindowfocus").split()
        return focused != shown and f"the keys go to {focused}, not to {shown}"
    until_none(unready)
    return shown[0]


def until_ended(program, deed):
    until_none(lambda: program.poll() is None and f"the program has not ended by {deed}")
    if program.returncode != 0:
        sys.exit(f"FAILED: ended by {deed} with status {program.returncode}, not 0")


def photograph():
    rgb = ask("import", "-silent", "-window", "root", "-depth", "8", "rgb:-")
    return list(zip(rgb[::3], rgb[1::3], rgb[2::3]))


def missing(window):
    """What the screen lacks: a square white sketch, ink in its places."""
    pixels = photograph()
    x0 = int(frame_of(window)[0]) + MARGIN + FRAME
    side = round(0.75 * HEIGHT) - 2 * FRAME
    rows = [y for y in range(700) if pixels[y * WIDTH + x0 + 20] == WHITE] or [0]
    high = rows[-1] - rows[0] + 1
    if high not in (side, side - 2 * (FOCUS_RING - FRAME)):
        return f"a sketch {high} pixels high instead of {side}"
    y0, unit = rows[0] - (side - high) // 2, (side - 1) / 20

    def seen(ink, x, y):
        at = (y0 + round((10 - y) * unit)) * WIDTH + x0 + round(x * unit)
        for pixel in (pixels[at + i + j] for i in (-WIDTH, 0, WIDTH) for j in (-1, 0, 1)):
            cover = (255 - min(pixel)) / (255 - min(ink))
            inked = [255 - cover * (255 - part) for part in ink]
            if cover > 0.33 and math.dist(pixel, inked) < 16:
                return True
        return False

    return [(ink, at) for ink, places in OPENING.items() for at in places if not seen(ink, *at)]


def test(path):
    os.environ |= {"DISPLAY": ":987", "QT_QPA_PLATFORM": "xcb"}
    ended = run([path], timeout=PATIENCE, check=False, stderr=PIPE, text=True)
    if ended.returncode != 1 or not re.fullmatch(r".*display.*\.\n", ended.stderr):
        sys.exit(f"FAILED: without a display {ended}")
    # No bus either: who listens on it may hold the keys back.
    os.environ["DBUS_SESSION_BUS_ADDRESS"] = "disabled:"
    # The window is as large for the eye at both ratios.
    for managed, ratio, end in ((False, 2, "alt+e"), (True, 1, "alt+F4")):
        with ExitStack() as stack:
            os.environ["QT_SCALE_FACTOR"] = str(ratio)
            open_screen(stack, managed)
            program = start(stack, path, *NOT_FOR_US)
            window = ready_window(managed)
            until_none(lambda: missing(window))
            if b"128 x 128" not in ask("xprop", "-id", window, "_NET_WM_ICON"):
                sys.exit("FAILED: the window has no icon")
            ask("xdotool", *NOTHING_TO_PASTE)
            ask("xdotool", "key", end)
            until_ended(program, end)


if __name__ == "__main__":
    sys.exit(test(sys.argv[1]) if shutil.which("Xvfb") else 77)
