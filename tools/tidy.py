#!/usr/bin/env python3
"""tidy.py FOLDER JOBS: clang-tidy over the sources in that configured build folder which differ from the base or include
a header that does. The base is $CI_BASE, or the commit at which HEAD left origin/main; where neither is known, or
nothing differs, all sources are read.

The sources of a target are read as one file, because most of the time goes into Qt's headers."""
import concurrent.futures
import json
import os
import pathlib
import re
import subprocess
import sys

from project_files import ROOT, finish, git_paths, project_includes

# clang cannot use the other compiler's precompiled header, and assertions must be compiled.
LEFT_OUT = re.compile(r" -Winvalid-pch| -include \S*cmake_pch\.hxx| -DNDEBUG| -DQT_NO_DEBUG(?= )")


def changed_files():
    base = os.environ.get("CI_BASE") or subprocess.run(
        ["git", "-c", f"safe.directory={ROOT}", "merge-base", "HEAD", "origin/main"],
        cwd=ROOT, capture_output=True, text=True, check=False).stdout.strip()
    if not base:
        return set()
    return {*git_paths("diff", "--name-only", "-z", base), *git_paths("ls-files", "-z", "--others", "--exclude-standard")}


def affected(changed, includes):
    """The changed files and all that include one of them, directly or through others."""
    reached = set(changed)
    while more := {path for path, targets in includes.items() if path not in reached and reached.intersection(targets)}:
        reached |= more
    return reached


def sources_of(entry, folder):
    """Our sources in that entry of the compile commands, which may compile several at once."""
    file = pathlib.Path(entry["file"])
    sources = re.findall(r'#include "(.+)"', file.read_text()) if "Unity" in file.parts else [entry["file"]]
    return [source for source in sources if not source.startswith(f"{folder}/")]


def write_units(folder, is_wanted):
    """Writes a file for each target that includes its wanted sources, and how to compile it; the longest comes first."""
    place = folder / "tidy"
    place.mkdir(exist_ok=True)
    targets = {}
    for entry in json.loads((folder / "compile_commands.json").read_text()):
        wanted = [source for source in sources_of(entry, folder) if is_wanted(source)]
        if wanted:
            target = re.search(r" -o (\S+)\.dir/", entry["command"])[1].replace("/", "_")
            targets.setdefault(place / f"{target}.cpp", (entry, []))[1].extend(wanted)
    units = sorted(targets, key=lambda unit: -len(targets[unit][1]))
    for unit in units:
        unit.write_text("".join(f'#include "{source}"\n' for source in targets[unit][1]))
    (place / "compile_commands.json").write_text(json.dumps([
        {"directory": entry["directory"], "file": str(unit),
         "command": LEFT_OUT.sub("", entry["command"]).replace(entry["file"], str(unit))}
        for unit, (entry, _) in targets.items()]))
    return units


def tidy(unit):
    run = subprocess.run(["clang-tidy", "-p", unit.parent, "--quiet", f"--config-file={ROOT}/.clang-tidy", unit],
                         capture_output=True, text=True, check=False)
    findings = [line for line in run.stdout.splitlines() if re.search(r"(error|warning):", line)]
    return findings or ([run.stderr] if run.returncode else [])


def main():
    folder, jobs = pathlib.Path(sys.argv[1]).resolve(), int(sys.argv[2])
    changed = changed_files()
    reads_all = not changed or ".clang-tidy" in changed
    reached = {str(ROOT / path) for path in affected(changed, project_includes())}
    units = write_units(folder, lambda source: reads_all or source in reached)
    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        findings = {line for lines in pool.map(tidy, units) for line in lines}
    finish(sorted(line.removeprefix(f"{ROOT}/") for line in findings))


if __name__ == "__main__":
    main()
