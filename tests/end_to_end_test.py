#!/usr/bin/env python3
"""Starts the real program on a virtual display: finds the opening picture on the screen, ends the
program by its menu, and closes it through a window manager. Argument: the program's path."""

import math
import os
import re
import shutil
import subprocess
import sys
import time
from contextlib import ExitStack, contextmanager

TITLE = "first explanation"
WIDTH, HEIGHT = 1366, 768
PATIENCE = 60  # seconds, enough for a slow machine with the sanitizers
WHITE = (255, 255, 255)


def line(x0, y0, x1, y1):
    return [(x0 + (x1 - x0) * i / 40, y0 + (y1 - y0) * i / 40) for i in range(41)]


def circle(x, y, radius):
    points = [(x + radius * math.sin(i / 50), y + radius * math.cos(i / 50)) for i in range(314)]
    return [(x, y) for x, y in points if 0.3 < x < 19.7 and abs(y) < 9.7]


# What is to be seen, its colour, where in user coordinates, and which share of it at least. Crest
# and trough, at (6, 2) and (18, -2), have circles of radius 72 / pi^2; the velocity arrow ends at
# x = 13.02, the centripetal ones at y = -1.38 and 6.89.
RADIUS = 72 / math.pi**2
OPENING = [
    ("track where no circle covers it", (1, 0, 66), 0.95,
     [(x / 10, 2 * math.sin(math.pi * x / 120)) for x in (*range(2, 40), *range(85, 155))]),
    ("circle at the crest", (250, 0, 150), 0.8, circle(6, 2 - RADIUS, RADIUS)),
    ("circle at the trough", (250, 0, 150), 0.8, circle(18, RADIUS - 2, RADIUS)),
    ("velocities", (255, 0, 0), 0.95, line(7.2, 2, 12.9, 2) + line(19.2, -2, 19.7, -2)),
    ("head of the velocity", (255, 0, 0), 1, [(12.77, 2.145), (12.77, 1.855)]),
    ("centripetal accelerations", (5, 150, 255), 0.95,
     line(6, 1.7, 6, -1.3) + line(18, -1.7, 18, 6.8)),
    ("heads of the tangential accelerations", (5, 150, 250), 1,
     [(6.75, 2.145), (6.75, 1.855), (18.75, -1.855), (18.75, -2.145)]),
]


def expect(truth, message):
    if not truth:
        sys.exit(f"FAILED: {message}")


def until(attempt, what):
    """Tries until attempt() gives a true value, as long as patience lasts."""
    end = time.monotonic() + PATIENCE
    while not attempt():
        expect(time.monotonic() < end, f"{what}, after {PATIENCE} seconds")
        time.sleep(0.1)


@contextmanager
def running(*command, **options):
    with subprocess.Popen(command, stdin=subprocess.DEVNULL, **options) as process:
        try:
            yield process
        finally:
            process.kill()


def shows(pixel, colour):
    """Whether the pixel is the colour over white, covering a third of it or more."""
    inks = [(255 - p, 255 - c) for p, c in zip(pixel, colour)]
    cover = sum(p * c for p, c in inks) / sum(c * c for _, c in inks)
    return cover > 0.33 and all(abs(p - cover * c) < 16 for p, c in inks)


class Screen:
    def __init__(self, stack):
        reader, writer = os.pipe()
        size = f"{WIDTH}x{HEIGHT}x24"
        stack.enter_context(running("Xvfb", "-displayfd", str(writer), "-screen", "0", size,
                                    "-noreset", pass_fds=[writer], stderr=subprocess.DEVNULL))
        os.close(writer)
        with os.fdopen(reader) as number:
            display = number.readline().strip()
        expect(display, "Xvfb did not start")
        self.environment = {name: value for name, value in os.environ.items()
                            if not name.startswith("QT_") and name != "WAYLAND_DISPLAY"}
        leaks = os.path.join(os.path.dirname(os.path.abspath(__file__)), "leaks.supp")
        self.environment |= {"DISPLAY": f":{display}", "QT_QPA_PLATFORM": "xcb",
                             "LSAN_OPTIONS": f"suppressions={leaks}:print_suppressions=0"}

    def ask(self, *command):
        return subprocess.run(command, env=self.environment, timeout=PATIENCE, check=False,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout

    def outer_place(self):
        """x, y, width and height of the window with its frame; empty as long as there is none."""
        text = self.ask("xwininfo", "-name", TITLE).decode()
        if "IsViewable" not in text:
            return ()
        frame = self.ask("xprop", "-name", TITLE, "_NET_FRAME_EXTENTS").decode()
        left, right, top, bottom = map(int, re.findall(r"\d+", frame) or (0, 0, 0, 0))
        x, y, width, height = (int(re.search(rf"{key}: +(-?\d+)", text)[1]) for key in
                               ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))
        return x - left, y - top, width + left + right, height + top + bottom

    def photograph(self):
        ppm = self.ask("import", "-silent", "-window", "root", "-depth", "8", "ppm:-")
        expect(len(ppm) >= 3 * WIDTH * HEIGHT, "no picture of the screen")
        self.pixels = ppm[-3 * WIDTH * HEIGHT:]

    def at(self, x, y):
        start = 3 * (y * WIDTH + x)
        return tuple(self.pixels[start:start + 3])

    def missing(self):
        """What of the opening picture is not to be seen; the white square of the sketch is found
        by its colour, in a column and a row that hold little else."""
        white = [y for y in range(16, HEIGHT) if self.at(68, y) == WHITE] or [0]
        top, side = white[0], white[-1] - white[0] + 1
        left = next((x for x in range(40, 68) if self.at(x, top + 100) == WHITE), 0)
        if abs(side - 0.75 * HEIGHT) > 4 or abs(left - 48) > 2:
            return [f"sketch, {side} pixels tall, {left} from the left"]

        def seen(colour, x, y):
            column, row = left + int(x / 20 * side), top + int((10 - y) / 20 * side)
            return any(shows(self.at(column + i, row + j), colour)
                       for i in (-1, 0, 1) for j in (-1, 0, 1))

        return [name for name, colour, share, points in OPENING
                if sum(seen(colour, x, y) for x, y in points) < share * len(points)]


def test_picture_and_menu(screen, path):
    with running(path, env=screen.environment) as program:
        until(screen.outer_place, "no window")
        expect(screen.outer_place() == (0, 0, WIDTH, HEIGHT), f"window at {screen.outer_place()}")

        missing = ["not seen:"]

        def opened():
            expect(program.poll() is None, f"the program ended with status {program.returncode}")
            screen.photograph()
            missing[1:] = screen.missing()
            return len(missing) == 1

        until(opened, missing)

        # The last menu is the rightmost dark spot of the menu bar.
        x, y = max((x, y) for x in range(4, WIDTH - 4) for y in range(4, 15)
                   if sum(screen.at(x, y)) < 384)
        screen.ask("xdotool", "mousemove", str(x - 4), str(y), "click", "1")
        expect(program.wait(PATIENCE) == 0, f'"end" gave status {program.returncode}')


def test_window_manager(screen, path):
    def managed():
        return b"window id" in screen.ask("xprop", "-root", "_NET_SUPPORTING_WM_CHECK")

    def fills_the_screen():
        place[1:] = screen.outer_place()
        return place[1:] == [0, 0, WIDTH, HEIGHT]

    place = ["place of window and frame:"]
    with running("openbox", "--sm-disable", env=screen.environment, stdout=subprocess.DEVNULL,
                 stderr=subprocess.DEVNULL):
        until(managed, "no window manager")
        with running(path, env=screen.environment) as program:
            until(fills_the_screen, place)
            until(lambda: screen.ask("xdotool", "getactivewindow"), "no active window")
            screen.ask("xdotool", "key", "alt+F4")
            expect(program.wait(PATIENCE) == 0, f"closing gave status {program.returncode}")


if __name__ == "__main__":
    if not shutil.which("Xvfb"):
        print("Xvfb is not here")
        sys.exit(77)
    with ExitStack() as cleanup:
        display = Screen(cleanup)
        test_picture_and_menu(display, sys.argv[1])
        test_window_manager(display, sys.argv[1])
