#!/usr/bin/env python3
"""Checks the direction of includes below a source folder: no header includes itself by any way round, nothing but the
front ends includes a front end's header, platform/ includes platform/ alone."""
import pathlib
import re
import sys

root = pathlib.Path(sys.argv[1])
includes = {}
for path in root.rglob("*"):
    if path.suffix in (".h", ".cpp"):
        text = path.read_text(encoding="utf-8", errors="replace")
        found = re.findall(r'^#include "([^"]+)"', text, re.M)
        includes[path.relative_to(root).as_posix()] = [f for f in found if (root / f).exists()]

faults = []
for name, found in includes.items():
    folder = name.split("/")[0]
    for other in found:
        target = other.split("/")[0]
        if folder == "platform" and target != "platform":
            faults.append(f"{name} includes {other}: the ground floor stands on nothing")
        if target in ("console", "desktop") and folder not in ("console", "desktop"):
            faults.append(f"{name} includes {other}: the logic knows no front end")

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
