#!/usr/bin/env python3
"""Checks that what the documents name exists: files, links, make's targets, and every name in `code` marks."""
import posixpath
import re

from project_files import ROOT, finish, project_files, read

FENCE = re.compile(r"^```.*?^```$", re.MULTILINE | re.DOTALL)
LINK = re.compile(r"\]\(([^)#\s]+)(?:#[^)]*)?\)|src(?:set)?=\"([^\"]+)\"")
CODE = re.compile(r"`([^`\n]+)`")
MAKE = re.compile(r"\bmake ([a-z0-9-]+)")
NAME = re.compile(r"^~?[A-Za-z_]\w*(?:::\w+)*(?:\(\))?$")
FOLDER = re.compile(r"^(?:adal|bench|cmake|companion|docs|host|KZPreference|platform|sandbox|tests|tools|\.ci)/")
# Names from outside the project.
FOREIGN = {"QPluginLoader", "QPluginLoader::instance()", "DISPLAY", "WAYLAND_DISPLAY", "CCACHE_DISABLE", "JOBS"}


def is_name(word):
    """Looks like a name of the code: long, with a capital, an underscore or a pair of colons inside."""
    return bool(NAME.match(word)) and len(word) > 5 and bool(re.search(r"[a-z][A-Z]|_|::|^[A-Z]{2}", word))


def document_findings(path, text, exists, names, targets):
    """`exists` answers for a path of the project, `names` is every word of the code."""
    folder = posixpath.dirname(path)
    prose = FENCE.sub("", text)
    for link in (first or second for first, second in LINK.findall(prose)):
        if "://" not in link and not exists(posixpath.normpath(posixpath.join(folder, link))):
            yield f"{path}: the link {link} has no target"
    for code in CODE.findall(prose):
        if FOLDER.match(code) and not re.search(r"[ *…<]", code) and not exists(code):
            yield f"{path}: there is no {code}"
        elif is_name(code) and code not in FOREIGN:
            yield from (f"{path}: nothing is called {part} ({code})"
                        for part in re.findall(r"\w+", code) if part not in names)
    for target in MAKE.findall("\n".join(CODE.findall(prose) + FENCE.findall(text))):
        if target not in targets:
            yield f"{path}: make knows no {target}"


def main():
    names = set()
    for source in project_files("*.h", "*.cpp", "*.txt", "*.cmake", "*.sh", "*.py", "Makefile"):
        names.update(re.findall(r"\w+", read(source)))
    targets = set(re.findall(r"^([a-z0-9-]+):", read("Makefile"), re.MULTILINE))
    findings = []
    for path in project_files("*.md"):
        findings.extend(document_findings(path, read(path), lambda place: (ROOT / place).exists(), names, targets))
    guide = read("docs/host-guide.md")
    for header in ("host/KZFoundation/KZConstants.h", "host/KZCommonUI/KZTelemetryConstants.h"):
        for constant in re.findall(r"const QString (\w+);", read(header)):
            if f"`{constant}`" not in guide:
                findings.append(f"docs/host-guide.md: says nothing about {constant} of {header}")
    finish(findings)


if __name__ == "__main__":
    main()
