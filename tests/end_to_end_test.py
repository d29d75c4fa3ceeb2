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
# The inks and where they are seen, in sketch units. The circles belong to the crest at (6, 2) and
# the trough at (18, -2).
RADIUS = 72 / math.pi**2
OPENING = {
    (1, 0, 66): [(x, 2 * math.sin(math.pi * x / 12)) for x in (0.6, 1, 1.5, 2, 10, 11, 12, 13, 14)],
    (250, 0, 150): [(x + side * RADIUS * math.sin(a), side * (2 - RADIUS + RADIUS * math.cos(a)))
                    for x, side in ((6, 1), (18, -1)) for a in (0.6, 0.7, 0.8, 1.1, 1.3, 1.4)],
    (255, 0, 0): [(7.3, 2), (10, 2), (12.8, 2), (12.77, 2.145), (12.77, 1.855), (19.5, -2)],
    (5, 150, 255): [(6, 1.6), (6, 0), (6, -1.2), (18, -1.6), (18, 3), (18, 6.7),
                    (6.75, 2.145), (6.75, 1.855), (18.75, -1.855), (18.75, -2.145)]}


def until_none(faults):
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
    reader, writer = os.pipe()
    start(stack, "Xvfb", "-displayfd", str(writer), "-screen", "0", f"{WIDTH}x{HEIGHT}x24",
          "-noreset", pass_fds=[writer], stderr=DEVNULL)
    leaks = os.path.join(os.path.dirname(os.path.abspath(__file__)), "leaks.supp")
    os.environ |= {"DISPLAY": ":" + os.read(reader, 9).decode().strip(), "QT_QPA_PLATFORM": "xcb",
                   "LSAN_OPTIONS": f"suppressions={leaks}:print_suppressions=0"}
    if managed:
        start(stack, "openbox", "--sm-disable", stderr=DEVNULL)
        until_none(lambda: b"id #" not in ask("xprop", "-root", "_NET_SUPPORTING_WM_CHECK")
                   and "no window manager")


def photograph():
    rgb = ask("import", "-silent", "-window", "root", "-depth", "8", "rgb:-")
    return list(zip(rgb[::3], rgb[1::3], rgb[2::3]))


def missing():
    """What the opened program lacks: the whole screen for its window and frame, the square white
    sketch, or an ink on it, in places at least a third as strong as it is."""
    frame = ask("xprop", "-name", TITLE, "_NET_FRAME_EXTENTS").decode()
    left, right, top, bottom = re.findall(r"\d+", frame) or "0000"
    corners = re.findall(r"Corners: .*", ask("xwininfo", "-name", TITLE).decode())
    if corners != [f"Corners:  +{left}+{top}  -{right}+{top}  -{right}-{bottom}  +{left}-{bottom}"]:
        return f"{corners} with {frame}"
    pixels, x0 = photograph(), 49 + int(left)
    rows = [y for y in range(700) if pixels[y * WIDTH + x0 + 20] == (255, 255, 255)] or [0]
    unit = (rows[-1] - rows[0]) / 20
    if abs(unit - 0.75 * HEIGHT / 20) > 0.2:
        return f"a sketch with units of {unit} pixels"

    def seen(ink, x, y):
        place = (rows[0] + round((10 - y) * unit)) * WIDTH + x0 + round(x * unit)
        for pixel in (pixels[place + i + j] for i in (-WIDTH, 0, WIDTH) for j in (-1, 0, 1)):
            cover = (255 - min(pixel)) / (255 - min(ink))
            inked = [255 - cover * (255 - part) for part in ink]
            if cover > 0.33 and math.dist(pixel, inked) < 16:
                return True
        return False

    return [(ink, at) for ink, places in OPENING.items() for at in places if not seen(ink, *at)]


def test(path):
    for managed in (False, True):
        with ExitStack() as stack:
            open_screen(stack, managed)
            program = start(stack, path)
            until_none(missing)
            # The last menu is the rightmost dark spot of the menu bar.
            menu = max(i % WIDTH for i, p in enumerate(photograph()[:15 * WIDTH]) if sum(p) < 384)
            act = ("key", "alt+F4") if managed else ("mousemove", f"{menu - 4}", "8", "click", "1")
            until_none(lambda: ask("xdotool", *act) or program.poll() is None and act)
            if program.returncode != 0:
                sys.exit(f"FAILED: it ended with status {program.returncode}")


if __name__ == "__main__":
    sys.exit(test(sys.argv[1]) if shutil.which("Xvfb") else 77)
