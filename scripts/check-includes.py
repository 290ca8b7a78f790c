#!/usr/bin/env python3
# check-includes.py: an include under src/ goes down the floors, never up, and never in a circle.
# A file pair x.h, x.cpp counts as one; so does a folder of a floor as part of that floor.
import re
import sys
from pathlib import Path

CORE = ["graphics", "filters", "document", "formats", "editing"]
MAY_USE = {floor: set(CORE[:i]) for i, floor in enumerate(CORE)}
MAY_USE["cli"] = set(CORE)
MAY_USE["widgets"] = set()
MAY_USE["app"] = {*CORE, "widgets"}
WITH_QT = {"widgets", "app"}

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')

src = Path(__file__).resolve().parent.parent / "src"
faults = []
includes = {}  # unit -> the units of its floor that it includes


def unit(path):
    return path.relative_to(src).with_suffix("")


def check(path, line, kind, name):
    """Notes what is wrong with one include, and the edge that it is between two units."""
    floor = path.relative_to(src).parts[0]
    here = f"{path.relative_to(src.parent)}:{line}"
    if kind == "<":
        if floor not in WITH_QT and re.match(r"Q[A-Z]|Qt|private/q", name):
            faults.append(f"{here}: {floor} knows nothing of Qt, but includes <{name}>")
        return
    target = next((p for p in (src / name, path.parent / name) if p.is_file()), None)
    if target is None:
        if not name.startswith("moc_") and not name.endswith(".moc"):
            faults.append(f"{here}: there is no {name} under src/")
        return
    target_floor, *folders = target.resolve().relative_to(src).parts[:-1]
    if target_floor == floor:
        if unit(target) != unit(path):
            includes.setdefault(unit(path), set()).add(unit(target))
    elif target_floor not in MAY_USE[floor]:
        faults.append(f"{here}: {floor} may not use {target_floor} ({name})")
    elif "detail" in folders:
        faults.append(f"{here}: {name} is a detail of {target_floor}")


def reach(start):
    """All units that a unit includes, directly or by others."""
    seen, ahead = set(), [start]
    while ahead:
        new = includes.get(ahead.pop(), set()) - seen
        seen |= new
        ahead += new
    return seen


for file in sorted(p for p in src.rglob("*") if p.suffix in (".h", ".cpp")):
    if file.relative_to(src).parts[0] not in MAY_USE:
        faults.append(f"{file.relative_to(src.parent)}: belongs to no floor")
        continue
    for number, text in enumerate(file.read_text().splitlines(), 1):
        if found := INCLUDE.match(text):
            check(file, number, *found.groups())

reached = {unit: reach(unit) for unit in includes}
circles = {
    frozenset(other for other in reached[unit] if unit in reached.get(other, ()))
    for unit in reached
    if unit in reached[unit]
}
for circle in sorted(map(sorted, circles)):
    faults.append("These files include one another in a circle:")
    for unit in circle:
        others = ", ".join(str(other) for other in sorted(includes[unit]) if other in circle)
        faults.append(f"    {unit} -> {others}")

print("\n".join(faults) if faults else "All includes go down the floors, none in a circle.")
sys.exit(1 if faults else 0)
