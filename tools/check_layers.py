#!/usr/bin/env python3
"""Includes point down only: a file may include files of its own folder and of the layers below it, and no two units
include each other, directly or through others."""
import graphlib

from project_files import finish, project_includes

# Top to bottom; folders of one layer do not include each other.
LAYERS = [
    ["tests", "tools"],
    ["bench", "companion"],
    ["KZPreference/core"],
    ["KZPreference/windows"],
    ["KZPreference/panes"],
    ["KZPreference/authentication"],
    ["KZPreference/layout"],
    ["KZPreference/contract"],
    ["adal", "host", "platform"],
]
# Includes nothing of the layers, and only the exceptions include it.
SEPARATE = "sandbox"
EXCEPTIONS = {("bench", "companion"), ("bench", "sandbox"), ("tests", "sandbox")}

DEPTH = {folder: depth for depth, layer in enumerate(LAYERS) for folder in layer}


def folder_of(path):
    return next((folder for folder in (*DEPTH, SEPARATE) if path.startswith(folder + "/")), None)


def is_allowed(source, target):
    if source == target or (source, target) in EXCEPTIONS:
        return True
    return SEPARATE not in (source, target) and DEPTH[source] < DEPTH[target]


def layer_findings(includes):
    for path, targets in includes.items():
        for target in targets:
            source_folder, target_folder = folder_of(path), folder_of(target)
            if target_folder is None:
                yield f'{path}: includes "{target}": write includes from the project\'s folder'
            elif not is_allowed(source_folder, target_folder):
                yield f"{path}: {source_folder} may not include {target_folder} ({target})"


def circle_findings(includes):
    """A unit is a header with its source."""
    units = {}
    for path, targets in includes.items():
        unit = path.rsplit(".", 1)[0]
        units.setdefault(unit, set()).update({target.rsplit(".", 1)[0] for target in targets} - {unit})
    try:
        graphlib.TopologicalSorter(units).prepare()
    except graphlib.CycleError as error:
        yield "circle: " + " <- ".join(error.args[1])


def layers_diagram():
    """The layers in Mermaid's language; an arrow points to the layer below."""
    rows = [" & ".join(folder.split("/")[-1] for folder in layer) for layer in LAYERS]
    plugin = [row for layer, row in zip(LAYERS, rows) if layer[0].startswith("KZPreference/")]
    return "\n".join(["flowchart TB", "  " + " --> ".join(rows), "  subgraph KZPreference",
                      *(f"    {row}" for row in plugin), "  end"])


if __name__ == "__main__":
    includes = {path: targets for path, targets in project_includes().items() if folder_of(path)}
    finish([*layer_findings(includes), *circle_findings(includes)])
