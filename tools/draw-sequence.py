#!/usr/bin/env python3
"""draw-sequence.py [--check] FOLDER [SCRIPT...]: plays the scripts of the documents' sequence pictures with the programs
in that folder, and draws what happened beside them; with --check only tells which picture is not what a run gives."""
import argparse
import difflib
import pathlib

from project_files import ROOT, finish
from sequence_draw import Picture
from sequence_play import Play


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--check", action="store_true")
    parser.add_argument("folder", type=pathlib.Path)
    parser.add_argument("scripts", nargs="*", type=pathlib.Path)
    arguments = parser.parse_args()
    findings = []
    for script in arguments.scripts or sorted((ROOT / "docs/pictures").glob("*.jsonl")):
        play = Play(arguments.folder)
        play.play(script.read_text(encoding="utf-8"))
        svg, place = Picture(play.title, play.events).svg(), script.with_suffix(".svg")
        if not arguments.check:
            place.write_text(svg, encoding="utf-8")
            continue
        old = place.read_text(encoding="utf-8") if place.exists() else ""
        difference = list(difflib.unified_diff(old.splitlines(), svg.splitlines(), "picture", "run", "", "", 0, ""))
        if difference:
            findings += [f"{place.name} is not what a run gives; make pictures mends it:", *difference]
    finish(findings)


if __name__ == "__main__":
    main()
