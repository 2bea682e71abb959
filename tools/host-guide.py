#!/usr/bin/env python3
"""host-guide.py [--check] TABLES [GUIDE]: puts the tables that the program TABLES prints into the host guide, each
below its mark; with --check only tells where the guide differs."""
import argparse
import difflib
import pathlib
import re
import subprocess

GUIDE = pathlib.Path(__file__).resolve().parent.parent / "docs" / "host-guide.md"
TABLE = re.compile(r"^(<!-- table: (.+) -->\n)((?:\|.*\n)*)", re.MULTILINE)


def filled_in(guide, printed):
    """The guide with every table replaced; a mark without a table, or the other way round, is an error."""
    tables = {match[2]: match[3] for match in TABLE.finditer(printed)}
    marks = [match[2] for match in TABLE.finditer(guide)]
    if sorted(marks) != sorted(tables):
        raise SystemExit(f"the guide marks the tables {marks}, the code has {sorted(tables)}")
    return TABLE.sub(lambda match: match[1] + tables[match[2]], guide)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--check", action="store_true")
    parser.add_argument("tables")
    parser.add_argument("guide", nargs="?", type=pathlib.Path, default=GUIDE)
    arguments = parser.parse_args()
    printed = subprocess.run([arguments.tables], check=True, capture_output=True, text=True).stdout
    guide = arguments.guide.read_text(encoding="utf-8")
    wanted = filled_in(guide, printed)
    if not arguments.check:
        arguments.guide.write_text(wanted, encoding="utf-8")
        return
    difference = list(difflib.unified_diff(guide.splitlines(), wanted.splitlines(), "guide", "code", "", "", 0, ""))
    if difference:
        print("docs/host-guide.md differs from the code's tables; make host-guide mends it:", *difference, sep="\n")
        raise SystemExit(1)


if __name__ == "__main__":
    main()
