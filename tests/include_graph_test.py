#!/usr/bin/env python3
"""The rooms look only along the arrows, no file includes itself, and Qt stays in its backend."""

import re
import sys
from graphlib import CycleError, TopologicalSorter
from pathlib import Path

ROOT = Path(sys.argv[1])  # the top of the tree
LOWER = {"toolkit", "track", "sketch", "window"}
ARROWS = {
    "track": set(), "toolkit": set(), "toolkit/raster": {"toolkit"},
    "toolkit/headless": {"toolkit", "toolkit/raster"}, "toolkit/qt": {"toolkit", "toolkit/raster"},
    "sketch": {"toolkit"}, "window": {"sketch", "toolkit", "track"}, "scenes": LOWER,
    "evolution": LOWER | {"scenes"}, "interaction": LOWER | {"scenes"},
    "app": LOWER | {"scenes", "evolution", "interaction"}, "app/qt": {"app", "toolkit/qt"},
    "app/web": {"app", "toolkit/web"}, "toolkit/web": {"toolkit", "toolkit/raster"}}
MAY_NAME_QT = re.compile(r"(toolkit/qt|app/qt|bench)/|tests/qt_")
QT = re.compile(r"\b(Qt\w*|QT_\w+|Q_[A-Z]+|Q[A-Z][a-z]\w*)\b|\btoolkit/qt/")

faults, graph = [], {}
tops = {room.split("/")[0] for room in ARROWS} | {"tests", "bench"}
for path in sorted(p for t in tops for p in (ROOT / t).rglob("*") if p.suffix in (".h", ".cpp")):
    name, text = path.relative_to(ROOT).as_posix(), path.read_text(encoding="utf-8")
    room = Path(name).parent.as_posix()
    graph[name] = re.findall(r'^\s*#\s*include\s*"(.+)"', text, re.M)
    if not MAY_NAME_QT.match(name):
        faults += [f"{name} names Qt: {word.group()}" for word in QT.finditer(text)]
    if room in ("tests", "bench"):
        continue
    faults += [f"{name} looks into {header}" for header in graph[name]
               if str(Path(header).parent) not in ARROWS.get(room, set()) | {room}]
    if not MAY_NAME_QT.match(name):
        foreign = re.findall(r"^\s*#\s*include\s*<(.*[^a-z_\n].*)>", text, re.M)
        faults += [f"{name} includes <{header}>" for header in foreign]
try:
    TopologicalSorter(graph).prepare()
except CycleError as error:
    faults.append(f"a cycle of includes: {error.args[1]}")
sys.exit("\n".join(faults) or (0 if graph else "no sources"))
