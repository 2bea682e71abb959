#!/usr/bin/env python3
"""Checks that every text for users has a translation in each language, and that no translation is unused."""
import re
import xml.etree.ElementTree as ElementTree

from project_files import ROOT, finish, project_files, read

LITERAL = r'((?:"(?:[^"\\]|\\.)*"\s*)+)'  # in one piece or several
ANY_LITERAL = re.compile(LITERAL)
CHARACTER = re.compile(r"'(?:[^'\\]|\\.)'")


def first_argument_of(*functions):
    return re.compile(r"\b(?:" + "|".join(functions) + r")\(\s*" + LITERAL)


# The last member of an account or a site of the sandbox, which the companion shows.
SANDBOX_MEANING = re.compile(r'\{Case::\w+,\s*"[^"]*",\s*(?:"[^"]*",\s*"[^"]*",\s*)?' + LITERAL)

# Per table: its files, the code that uses it, and where texts are looked up there or passed to a helper that does, such as
# titles of panes and texts of the sign-in dialog.
TABLES = [
    ("KZPreference/resources/translations/*.ts", ["KZPreference/*.h", "KZPreference/*.cpp", "adal/*.cpp"],
     [first_argument_of("(?:\\w*L|l)ocalizedString", "dialogText", "labelFor", "text"),
      re.compile(r"\badd\(m_\w+,\s*" + LITERAL)]),
    ("host/resources/translations/*.ts", ["host/*.h", "host/*.cpp"], [first_argument_of("warningText")]),
    ("companion/resources/translations/*.ts", ["companion/*.h", "companion/*.cpp", "sandbox/Cases.cpp"],
     [first_argument_of("companionText", "textKey"), SANDBOX_MEANING]),
]
COLONS = (":", "\uff1a")
PLACEHOLDER = re.compile(r"%\d")
MNEMONIC = re.compile(r"&\w")
# A colon that is not written as in that language: before it, or itself.
WRONG_COLON = {"fr": re.compile("[^\u00a0]:(?!//)"), "ja": re.compile(r":(?!//)"), "zh_CN": re.compile(r":(?!//)")}


def unescaped(literal):
    return re.sub(r"\\(.)", r"\1", re.sub(r'(?<!\\)"\s*"|^"|"\s*$', "", literal))


def keys_in(text, patterns):
    return {unescaped(key) for pattern in patterns for key in pattern.findall(text)}


def language_findings(name, content, keys, literals):
    translations = {}
    for message in ElementTree.fromstring(content).iter("message"):
        source, translation = message.findtext("source"), message.find("translation")
        if source in translations:
            yield f"{name}: \"{source}\" stands there twice"
        translations[source] = (translation.text or "").strip()
        if translation.get("type"):
            yield f"{name}: \"{source}\" is marked {translation.get('type')}"
    for key in sorted(keys - translations.keys()):
        yield f"{name}: \"{key}\" is missing"
    wrong_colon = WRONG_COLON.get(name.rsplit("/", 1)[-1].removesuffix(".ts").split("_", 1)[-1])
    for source, translation in translations.items():
        if source not in literals:
            yield f"{name}: \"{source}\" is no longer used"
        if not translation:
            yield f"{name}: \"{source}\" has an empty translation"
        elif source.endswith(COLONS) != translation.endswith(COLONS):
            yield f"{name}: \"{source}\" and \"{translation}\" differ in the colon at the end"
        if sorted(PLACEHOLDER.findall(source)) != sorted(PLACEHOLDER.findall(translation)):
            yield f"{name}: \"{source}\" and \"{translation}\" differ in their placeholders"
        if bool(MNEMONIC.search(source)) != bool(MNEMONIC.search(translation)):
            yield f"{name}: only one of \"{source}\" and \"{translation}\" has a mnemonic"
        if wrong_colon and wrong_colon.search(translation):
            yield f"{name}: the colon in \"{translation}\" is not the language's"


def main():
    found = []
    for tables, code_files, patterns in TABLES:
        code = [CHARACTER.sub("", read(path)) for path in project_files(*code_files)]
        keys = set().union(*(keys_in(text, patterns) for text in code))
        literals = {unescaped(literal) for text in code for literal in ANY_LITERAL.findall(text)}
        for path in project_files(tables):
            found.extend(language_findings(path, (ROOT / path).read_bytes(), keys, literals))
    finish(found)


if __name__ == "__main__":
    main()
