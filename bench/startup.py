#!/usr/bin/env python3
"""Start-up against a bare window with the same widgets: startup.py PROGRAM BARE [RUNS].

Both programs start alternately on a virtual display of their own, warm. Measured are the time from
the start of the process to the first painted picture, seen as one white pixel of the sketch on the
black screen, and the process's peak memory shortly after."""

import ctypes
import ctypes.util
import os
import re
import statistics
import subprocess
import sys
import time

WIDTH, HEIGHT = 1366, 768
SIDE = 3 * HEIGHT // 4
PIXEL = 48 + SIDE // 2, 16 + SIDE // 8  # in the sketch, where the opening picture is blank
WHITE = 0xFFFFFF
QUIET = [(os.POSIX_SPAWN_OPEN, 2, os.devnull, os.O_WRONLY, 0)]
WARM_UP = 3  # starts that do not count


class Screen:
    def __init__(self):
        reader, writer = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writer), "-screen", "0", f"{WIDTH}x{HEIGHT}x24", "-noreset"],
            pass_fds=[writer], stderr=subprocess.DEVNULL)
        os.close(writer)
        with os.fdopen(reader) as number:
            self.name = f":{number.readline().strip()}"
        self.x11 = ctypes.CDLL(ctypes.util.find_library("X11"))
        for call in ("XOpenDisplay", "XGetImage"):
            getattr(self.x11, call).restype = ctypes.c_void_p
        self.x11.XDefaultRootWindow.restype = self.x11.XGetPixel.restype = ctypes.c_ulong
        self.display = ctypes.c_void_p(self.x11.XOpenDisplay(self.name.encode()))
        self.root = ctypes.c_ulong(self.x11.XDefaultRootWindow(self.display))

    def painted(self):
        all_planes, z_pixmap = ctypes.c_ulong(-1), 2
        image = ctypes.c_void_p(
            self.x11.XGetImage(self.display, self.root, *PIXEL, 1, 1, all_planes, z_pixmap))
        pixel = self.x11.XGetPixel(image, 0, 0) & WHITE
        self.x11.XDestroyImage(image)
        return pixel == WHITE

    def wait(self, painted):
        end = time.monotonic() + 60
        while self.painted() != painted:
            if time.monotonic() > end:
                sys.exit("The picture did not come." if painted else "The window did not go.")
            time.sleep(0.0005)


def start(screen, program):
    """Milliseconds until the picture is there, and peak memory in MiB."""
    environment = os.environ | {"DISPLAY": screen.name, "QT_QPA_PLATFORM": "xcb"}
    begin = time.perf_counter()
    process = os.posix_spawn(program, [program], environment, file_actions=QUIET)
    screen.wait(True)
    taken = time.perf_counter() - begin
    time.sleep(0.2)
    with open(f"/proc/{process}/status", encoding="ascii") as status:
        peak = int(re.search(r"VmHWM:\s+(\d+)", status.read())[1])
    os.kill(process, 9)
    os.waitpid(process, 0)
    screen.wait(False)
    return taken * 1000, peak / 1024


def main(program, bare, runs="31"):
    screen = Screen()
    try:
        seen = {program: [], bare: []}
        for _ in range(int(runs) + WARM_UP):
            for one, results in seen.items():
                results.append(start(screen, one))
    finally:
        screen.server.terminate()
        screen.server.wait()
    for one, results in seen.items():
        times, peaks = zip(*results[WARM_UP:])
        seen[one] = statistics.median(times), min(times), statistics.median(peaks)
        print("{:14} median {:.1f} ms, least {:.1f} ms, peak memory {:.1f} MiB".format(
            os.path.basename(one), *seen[one]))
    ratios = [ours / theirs for ours, theirs in zip(seen[program], seen[bare])]
    print(f"ratio: median {ratios[0]:.3f}, least {ratios[1]:.3f}; "
          f"memory above: {seen[program][2] - seen[bare][2]:+.1f} MiB")


if __name__ == "__main__":
    main(*sys.argv[1:])
