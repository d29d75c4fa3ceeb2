#!/usr/bin/env python3
"""The rooms look only along the arrows, no file includes itself, and Qt stays in its backend."""

import re
import sys
from pathlib import Path

ROOT = Path(sys.argv[1])  # the top of the tree
LOWER = {"toolkit", "track", "sketch", "window"}
ARROWS = {
    "track": set(),
    "toolkit": set(),
    "toolkit/headless": {"toolkit"},
    "toolkit/qt": {"toolkit"},
    "sketch": {"toolkit"},
    "window": {"sketch", "toolkit", "track"},
    "scenes": LOWER,
    "evolution": LOWER | {"scenes"},
    "interaction": LOWER | {"scenes"},
    "app": LOWER | {"scenes", "evolution", "interaction"},
    "app/qt": {"app", "toolkit/qt"},
}
MAY_NAME_QT = re.compile(r"(toolkit/qt|app/qt|bench)/|tests/qt_")
QT = re.compile(r"\b(Qt\w*|QT_\w+|Q_[A-Z]+|Q[A-Z][a-z]\w*)\b|\btoolkit/qt/")
STANDARD = re.compile(r"[a-z_]+")

faults, graph = [], {}
for folder in sorted({room.split("/")[0] for room in ARROWS} | {"tests", "bench"}):
    for path in sorted(p for p in (ROOT / folder).rglob("*") if p.suffix in (".h", ".cpp")):
        name, text = path.relative_to(ROOT).as_posix(), path.read_text(encoding="utf-8")
        room = Path(name).parent.as_posix()
        own = re.findall(r'^\s*#\s*include\s*"(.+)"', text, re.M)
        graph[name] = [header for header in own if not header.endswith(".moc")]
        if not MAY_NAME_QT.match(name):
            faults += [f"{name} names Qt: {word.group()}" for word in QT.finditer(text)]
        if folder in ("tests", "bench"):
            continue
        if room not in ARROWS:
            faults.append(f"{name} stands in a room without arrows")
            continue
        reach = ARROWS[room] | {room}
        faults += [f"{name} looks into {header}" for header in graph[name]
                   if Path(header).parent.as_posix() not in reach]
        if not MAY_NAME_QT.match(name):
            foreign = re.findall(r"^\s*#\s*include\s*<(.+)>", text, re.M)
            faults += [f"{name} includes <{h}>" for h in foreign if not STANDARD.fullmatch(h)]

if not graph:
    faults.append(f"no sources under {ROOT}")

# What is left after taking away, again and again, the files that include none of the rest, and then
# those that none of the rest includes.
while free := [name for name in graph if not any(header in graph for header in graph[name])]:
    for name in free:
        del graph[name]
while free := set(graph).difference(*graph.values()):
    for name in free:
        del graph[name]
if graph:
    faults.append("a cycle of includes: " + ", ".join(graph))

print("\n".join(faults))
sys.exit(1 if faults else 0)
