#!/usr/bin/env python3
"""Includes point down only: a file may include files of its own floor and of the floors below it, and no two units
include each other, however long the way round. docs/architecture.md draws the floors."""
import re
import sys

from project_files import finish, project_files, read

# Top to bottom; folders that stand side by side do not see each other.
FLOORS = [
    ["tests"],
    ["bench", "companion"],
    ["KZPreference/core"],
    ["KZPreference/windows"],
    ["KZPreference/panes"],
    ["KZPreference/authentication"],
    ["KZPreference/layout"],
    ["KZPreference/contract"],
    ["adal", "host", "platform"],
]
# What stands outside the house, and what it includes itself.
OUTSIDE = {"sandbox": set(), "tools": {"host"}}
# Sideways or outwards, and meant so.
EXCEPTIONS = {("bench", "companion"), ("bench", "sandbox"), ("tests", "sandbox")}

INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"', re.MULTILINE)


def folder_of(path):
    folders = [folder for floor in FLOORS for folder in floor] + list(OUTSIDE)
    return next((folder for folder in folders if path.startswith(folder + "/")), None)


def height(folder):
    return next(index for index, floor in enumerate(FLOORS) if folder in floor)


def allowed(source, target):
    if source == target or (source, target) in EXCEPTIONS:
        return True
    if source in OUTSIDE:
        return target in OUTSIDE[source]
    return target not in OUTSIDE and height(source) < height(target)


def unit_of(path):
    return path.rsplit(".", 1)[0]


def floor_findings(includes):
    for path, targets in includes.items():
        for target in targets:
            source_folder, target_folder = folder_of(path), folder_of(target)
            if target_folder is None:
                yield f'{path}: includes "{target}": write includes from the project\'s folder'
            elif not allowed(source_folder, target_folder):
                yield f"{path}: {source_folder} may not include {target_folder} ({target})"


def circle_findings(includes):
    """Follows the units depth first; a unit that is met again while it is still open closes a circle."""
    edges = {}
    for path, targets in includes.items():
        edges.setdefault(unit_of(path), set()).update(unit_of(target) for target in targets)
    done, found = set(), []

    def follow(unit, way):
        if unit in way:
            found.append("circle: " + " -> ".join(way[way.index(unit):] + [unit]))
            return
        if unit in done:
            return
        for target in sorted(edges.get(unit, set()) - {unit}):
            follow(target, way + [unit])
        done.add(unit)

    for unit in sorted(edges):
        follow(unit, [])
    return found


def findings(includes):
    return [*floor_findings(includes), *circle_findings(includes)]


def main():
    sys.setrecursionlimit(10000)
    sources = [path for path in project_files("*.h", "*.cpp") if folder_of(path)]
    finish(findings({path: INCLUDE.findall(read(path)) for path in sources}))


if __name__ == "__main__":
    main()
