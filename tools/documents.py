#!/usr/bin/env python3
"""documents.py [--check] PROGRAMS: generates the parts of the documents below a mark `<!-- generated: NAME -->`, from the
code and from runs of the programs in that folder. With --check it only prints the differences."""
import difflib
import pathlib
import re
import sys

from check_layers import layers_diagram
from flow import command_tables, flow_diagram, running_sandbox
from project_files import ROOT, finish, project_files, read

# Up to the next empty line.
GENERATED = re.compile(r"(<!-- generated: (.+) -->\n)(?:.+\n)*")


def table(head, rows):
    lines = [head, ["---"] * len(head), *rows]
    return "".join("| " + " | ".join(str(cell).replace("|", "\\|") for cell in line) + " |\n" for line in lines)


def code(text):
    return f"`{text}`" if text else ""


def diagram(text):
    return f"```mermaid\n{text}\n```\n"


def generated_texts(programs):
    commands = command_tables(programs)
    texts = {name: table(["No.", "Name", "Meaning", "Content"], [[number, code(name), *rest] for number, name, *rest in rows])
             for name, rows in commands.items()}
    with running_sandbox(programs) as sandbox:
        texts["accounts"] = table(["account", "user name", "password", "what happens"], [
            [code(row["email"]), code(row["username"]), code(row["password"]), row["meaning"]]
            for row in sandbox["accounts"]])
        texts["sites"] = table(["site", "what happens"], [
            [code(row["site"]), row["meaning"]] for row in sandbox["sites"]])
        for script in project_files("docs/flows/*.jsonl"):
            texts[pathlib.Path(script).stem] = diagram(flow_diagram(programs, read(script), commands, sandbox["authority"]))
    return texts | {"layers": diagram(layers_diagram())}


def main():
    *options, programs = sys.argv[1:]
    texts = generated_texts(pathlib.Path(programs))
    findings, unused = [], set(texts)
    for path in project_files("*.md"):
        old = read(path)
        unused -= {name for _, name in GENERATED.findall(old)}
        new = GENERATED.sub(lambda match: match[1] + texts[match[2]], old)
        if options != ["--check"]:
            (ROOT / path).write_text(new, encoding="utf-8")
        elif new != old:
            findings += [f"{path} is not what the code gives; make documents mends it:",
                         *difflib.unified_diff(old.splitlines(), new.splitlines(), "document", "code", lineterm="", n=0)]
    finish(findings + [f"no document has the mark of {name}" for name in sorted(unused)])


if __name__ == "__main__":
    main()
