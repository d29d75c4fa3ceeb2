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
# The inks and where they are seen, in sketch units, away from all others.
OPENING = {
    (1, 0, 66): [(1, 0.518), (2, 1), (10, 1), (12, 0), (14, -1)],
    (250, 0, 150): [(0.84, -0.14), (11.16, -0.14), (13.3, -5.3), (10.7, 5.3), (12.84, 0.14)],
    (255, 0, 0): [(7.3, 2), (12.8, 2), (12.77, 2.145), (12.77, 1.855), (19.5, -2)],
    (5, 150, 255): [(6, 1.6), (6, -1.2), (18, -1.6), (18, 6.7), (6.75, 2.145), (18.75, -1.855)]}


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
    os.environ |= {"DISPLAY": ":" + os.read(reader, 9).decode().strip(), "QT_QPA_PLATFORM": "xcb",
                   "LSAN_OPTIONS": f"suppressions={sys.path[0]}/leaks.supp:print_suppressions=0"}
    if managed:
        start(stack, "openbox", "--sm-disable", stderr=DEVNULL)
        until_none(lambda: b"id #" not in ask("xprop", "-root", "_NET_SUPPORTING_WM_CHECK")
                   and "no window manager")


def photograph():
    rgb = ask("import", "-silent", "-window", "root", "-depth", "8", "rgb:-")
    return list(zip(rgb[::3], rgb[1::3], rgb[2::3]))


def missing(ratio, margin):
    """What the screen lacks: a window that fills it, a square white sketch, ink in its places. On
    one that is low for the ratio, the margin is smaller."""
    frame = ask("xprop", "-name", TITLE, "_NET_FRAME_EXTENTS").decode()
    left, right, top, bottom = re.findall(r"\d+", frame) or "0000"
    place = ask("xwininfo", "-name", TITLE).decode()
    if f"  +{left}+{top}  -{right}+{top}  -{right}-{bottom}  +{left}-{bottom}\n" not in place:
        return place + frame or "no window"
    pixels = photograph()
    x0 = int(left) + ratio * (margin + 1)
    rows = [y for y in range(700) if pixels[y * WIDTH + x0 + 20] == WHITE] or [0]
    unit = (rows[-1] - rows[0]) / 20
    if abs(unit - (0.75 * HEIGHT - 2 * ratio) / 20) > 0.1:
        return f"a sketch with units of {unit} pixels"

    def seen(ink, x, y):
        at = (rows[0] + round((10 - y) * unit)) * WIDTH + x0 + round(x * unit)
        for pixel in (pixels[at + i + j] for i in (-WIDTH, 0, WIDTH) for j in (-1, 0, 1)):
            cover = (255 - min(pixel)) / (255 - min(ink))
            inked = [255 - cover * (255 - part) for part in ink]
            if cover > 0.33 and math.dist(pixel, inked) < 16:
                return True
        return False

    return [(ink, at) for ink, places in OPENING.items() for at in places if not seen(ink, *at)]


def test(path):
    end = ("search", "--name", TITLE, "windowfocus", "key", "alt+e")
    for managed, ratio, margin, act in ((False, 2, 24, end), (True, 1, 48, ("key", "alt+F4"))):
        with ExitStack() as stack:
            os.environ["QT_SCALE_FACTOR"] = str(ratio)
            open_screen(stack, managed)
            program = start(stack, path)
            until_none(lambda: missing(ratio, margin))
            until_none(lambda: ask("xdotool", *act) or program.poll() is None and act)
            if program.returncode != 0:
                sys.exit(f"FAILED: {act} ended it with status {program.returncode}")


if __name__ == "__main__":
    sys.exit(test(sys.argv[1]) if shutil.which("Xvfb") else 77)
