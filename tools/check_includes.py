#!/usr/bin/env python3
"""Checks the floors of the house below a source folder: an include points to a lower floor or stays in its own room,
and no header includes itself by any way round."""
import pathlib
import re
import sys

# Rooms and their floors. Rooms of one floor know nothing of each other.
FLOORS = {
    "platform": 0,
    "core": 1,
    "inputedit": 2,
    "results": 2,
    "charts": 2,
    "plots": 3,
    "inputfiles": 4,
    "modelrun": 5,
    "vpaimport": 5,
    "program": 6,
    "console": 8,
    "desktop/forms": 8,
    "desktop/grids": 9,
    "desktop": 10,
}
# What draws stands on two rooms alone, and front ends alone stand on it.
ONLY = {"charts": {"platform", "core"}}
QT_ROOMS = {"charts", "desktop/forms", "desktop/grids", "desktop"}

root = pathlib.Path(sys.argv[1])
faults = []


def room(name):
    """The room of a file, by its folder."""
    return str(pathlib.PurePosixPath(name).parent)


includes = {}
for path in sorted(root.rglob("*")):
    if path.suffix not in (".h", ".cpp"):
        continue
    name = path.relative_to(root).as_posix()
    if room(name) not in FLOORS:
        faults.append(f"{name} stands in a room without a floor")
        continue
    text = path.read_text(encoding="utf-8", errors="replace")
    found = re.findall(r'^#include "([^"]+)"', text, re.M)
    faults += [f"{name} includes {other}, which is not there" for other in found if not (root / other).exists()]
    includes[name] = [other for other in found if (root / other).exists()]
    if room(name) not in QT_ROOMS and re.search(r"^#include <(Q[A-Z]|qcustomplot)", text, re.M):
        faults.append(f"{name} includes a header of the windowing library")

for name, found in includes.items():
    own = room(name)
    for other in found:
        to = room(other)
        if to == own:
            continue
        if to not in FLOORS or FLOORS[to] >= FLOORS[own]:
            faults.append(f"{name} includes {other}: {own} does not stand on {to}")
        elif own in ONLY and to not in ONLY[own]:
            faults.append(f"{name} includes {other}: {own} stands on {' and '.join(sorted(ONLY[own]))} alone")
        elif to in ONLY and own not in QT_ROOMS:
            faults.append(f"{name} includes {other}: {to} is for the windows")

done = set()


def walk(name, way):
    if name in way:
        faults.append("headers include each other: " + " -> ".join(way[way.index(name):] + [name]))
    elif name not in done:
        for other in includes.get(name, []):
            walk(other, way + [name])
        done.add(name)


for header in sorted(n for n in includes if n.endswith(".h")):
    walk(header, [])
for fault in faults:
    print(fault)
sys.exit(1 if faults else 0)
