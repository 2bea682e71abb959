#!/usr/bin/env python3
"""Checks that no file has too many lines, unfinished work, or paths of one machine."""
import re

from project_files import finish, project_files, read

LONGEST = 350
TEXT_FILES = ("*.h", "*.cpp", "*.py", "*.sh", "*.txt", "*.cmake", "*.md", "*.ts", "*.svg", "*.css", "*.jsonl",
              "Makefile", ".ci/run", ".clang-tidy")
# Written with a class of one letter so that this file passes its own check.
WORDS = {
    r"\b(TOD[O]|FIXM[E]|XX[X])\b": "unfinished work belongs into an issue",
    r"(?<![\w.])/(wor[k]|home/\w+|roo[t])/": "a path of one machine",
    r"(?<![\w.])/tm[p]/(?!\.X11)": "a path of one machine; ask for a temporary folder",
    r"\bPart[s]? \d\.\d\b": "the number of a page that readers do not have",
    r"^(<{7}|>{7}) ": "a merge that was not finished",
}
PATTERNS = [(re.compile(word), reason) for word, reason in WORDS.items()]


def line_findings(path, number, line):
    if line != line.rstrip():
        yield f"{path}:{number}: spaces at the end of the line"
    if "\t" in line and path != "Makefile":
        yield f"{path}:{number}: a tab"
    for pattern, reason in PATTERNS:
        match = pattern.search(line)
        if match:
            yield f"{path}:{number}: \"{match.group()}\": {reason}"


def file_findings(path, text):
    lines = text.split("\n")
    if text and lines.pop() != "":
        yield f"{path}: no new line at the end"
    if path.endswith((".h", ".cpp")) and len(lines) > LONGEST:
        yield f"{path}: {len(lines)} lines; {LONGEST} at most"
    if path.endswith(".h") and "#pragma once" not in lines:
        yield f"{path}: no #pragma once"
    for number, line in enumerate(lines, 1):
        yield from line_findings(path, number, line)


def main():
    finish([finding for path in project_files(*TEXT_FILES) for finding in file_findings(path, read(path))])


if __name__ == "__main__":
    main()
