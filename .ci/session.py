#!/usr/bin/env python3
"""Plays a session of all cases on the real window, and ends it in the middle of a run: once by the
menu, once through the window manager. session.py PROGRAM [strace]

Every action must change the picture, and the program must end with status 0; built with the
sanitizers it reports what it leaks, too. Under strace it must open no file for writing, make no
socket but those that the libraries under it need, and leave nothing behind."""

import hashlib
import os
import re
import sys
import tempfile
from contextlib import ExitStack

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), os.pardir, "tests"))
from real_window import ask, open_screen, ready_window, start, until_ended, until_none

TOP, UNDER = 36, 611  # of the sketch's inside, and the rows of controls under it

# Sockets of the libraries under the program: the display, the C library's cache of user names, the
# session's and the system's message buses.
OTHERS_SOCKETS = r"/tmp/\.X11-unix/X|/nscd/socket|/bus$|/dbus"
# The terminal's null device and fontconfig's own cache of the fonts it has found.
OTHERS_WRITES = r"^/dev/null$|/fontconfig(/|$)"
CHANGES = ("creat|(mk|rm)dir(at)?|rename(at|at2)?|(un|sym)?link(at)?|truncate|mknod(at)?|"
           "f?chmod(at)?|f?chown(at)?")


def place(x, y):
    """Where the sketch's point (x, y) is in the window, for xdotool."""
    return [str(round(49 + x / 20 * 573)), str(round(TOP + (10 - y) / 20 * 573))]


def click(x, y):
    return ["mousemove", "--window", "WINDOW", str(x), str(y), "click", "1"]


def drag(start, end):
    return ["mousemove", "--window", "WINDOW", *place(*start), "keydown", "shift", "mousedown", "1",
            "mousemove", "--window", "WINDOW", *place(*end), "mouseup", "1", "keyup", "shift"]


# With one notch more each the amplitude is 2.1 and the frequency 16 degrees: a crest at 5.625.
CREST = 90 / 16, 2.1
SESSION = [
    ("choose the time", ["key", "alt+t"]),
    ("the factors", click(60, UNDER + 82)),
    ("more frequency", click(393, UNDER + 12)),
    ("more tangential acceleration", click(393, UNDER + 37)),
    ("more amplitude", click(535, UNDER + 90)),
    ("more initial speed", click(641, UNDER + 90)),
    ("the cases", ["key", "alt+c"]),
    ("the radius of curvature", ["key", "r"]),
    ("a point on the track", click(*place(*CREST))),
    ("the cases again", ["key", "alt+c"]),
    ("guess a force", ["key", "g"]),
    ("a point to guess at", click(*place(*CREST))),
    ("a force", drag(CREST, (8, -1))),
    ("choose the time again", ["key", "alt+t"]),
    ("the evolution", click(60, UNDER + 49)),
    ("smaller steps", click(267, UNDER + 12)),
    ("the smallest, for a long run", ["key", "End"]),
    ("a step", click(150, UNDER + 12)),
    ("start", click(84, UNDER + 12)),
    ("stop", ["key", "alt+s"]),
    ("continue", ["key", "alt+o"]),
    ("stop again", ["key", "alt+s"]),
    ("back", ["key", "alt+b"]),
    ("the evolution again", click(60, UNDER + 49)),
    ("start again", click(84, UNDER + 12)),
]
RUNNING = ("stop", "stop again")  # the picture goes on changing before these
ENDS = {'"end"': "alt+e", "the window manager": "alt+F4"}


def picture():
    return hashlib.md5(ask("import", "-silent", "-window", "root", "ppm:-")).digest()


def settled(what):
    """The picture when it has stopped to change."""
    seen = [picture()]

    def changing():
        seen.append(picture())
        return seen[-1] != seen[-2] and f"the picture goes on changing before: {what}"
    until_none(changing)
    return seen[-1]


def play(stack, command, how, home):
    # Without a bus, libdbus would start one that outlives us all.
    own = {"DBUS_SESSION_BUS_ADDRESS": "disabled:", "HOME": home, "XDG_RUNTIME_DIR": home}
    kept = ("PATH", "DISPLAY", "QT_QPA_PLATFORM", "LSAN_OPTIONS")
    program = start(stack, *command, env=own | {name: os.environ[name] for name in kept})
    window = ready_window()
    for what, action in SESSION:
        before = picture() if what in RUNNING else settled(what)
        ask("xdotool", *(window if word == "WINDOW" else word for word in action))
        until_none(lambda what=what, before=before: picture() == before and f"no change by: {what}")
    ask("xdotool", "key", ENDS[how])
    until_ended(program, how)


def examine(log):
    """What the system calls say: faults, and what the libraries do on their own account."""
    faults, others = set(), set()
    for line in log:
        call = re.match(r"(\d+) +(\w+)\((.*)\) = (-?\d+)(.*)", line)
        if not call or (int(call[4]) < 0 and "EINPROGRESS" not in call[5]):
            continue
        name, arguments = call[2], call[3]
        path = re.search(r'@?"([^"]*)"', arguments)
        where = path[1] if path else ""
        if re.fullmatch(CHANGES, name) or re.search(r"O_(WRONLY|RDWR|CREAT|TRUNC)", arguments):
            (others if re.search(OTHERS_WRITES, where) else faults).add(f"{name} {where}")
        elif name == "socket" and "AF_UNIX" not in arguments:
            faults.add(f"socket {arguments}")
        elif name in ("connect", "bind"):
            (others if re.search(OTHERS_SOCKETS, where) else faults).add(f"{name} {arguments}")
        elif name in ("shmget", "memfd_create"):
            others.add(f"{name} {arguments}")
    return sorted(faults), sorted(others)


def left_behind(log, home):
    pids = {line.split()[0] for line in log}
    with open("/proc/sysvipc/shm", encoding="ascii") as segments:
        left = [f"shared memory {fields[1]}" for fields in map(str.split, segments)
                if fields[4] in pids]
    left += [f"process {pid}" for pid in pids if os.path.exists(f"/proc/{pid}")]
    left += [f"file {name}" for name in os.listdir(home) if name != ".cache"]
    return left and f"left behind: {left}"


def main(program, tracer=None):
    with ExitStack() as stack:
        scratch = stack.enter_context(tempfile.TemporaryDirectory())
        open_screen(stack)
        for how in ENDS:
            home, trace = tempfile.mkdtemp(dir=scratch), os.path.join(scratch, "trace")
            calls = "trace=%file,%network,shmget,memfd_create,fchmod,fchown"
            wrapper = ["strace", "-f", "--seccomp-bpf", "-e", calls, "-o", trace] if tracer else []
            play(stack, [*wrapper, program], how, home)
            if tracer:
                with open(trace, encoding="utf-8", errors="replace") as log:
                    lines = list(log)
                faults, others = examine(lines)
                # The display lets go of shared memory when it sees that its user has ended.
                until_none(lambda lines=lines, home=home: left_behind(lines, home))
                print("The libraries' own:", *others, sep="\n  ")
                if faults or not others:
                    sys.exit("\n  ".join(["FAILED: the program's own:", *faults]))
            print(f"{len(SESSION)} actions, ended by {how} in the middle of a run: good")


if __name__ == "__main__":
    main(*sys.argv[1:])
