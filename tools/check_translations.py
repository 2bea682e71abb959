#!/usr/bin/env python3
"""Checks that every text for users has a translation in each language, and that no translation is unused."""
import re
import xml.etree.ElementTree as ElementTree

from project_files import ROOT, finish, project_files, read

LITERAL = r'"((?:[^"\\]|\\.)*)"'
# Texts that are looked up, or passed to a helper that does: titles of panes, texts of the sign-in dialog and of the page
# that ends a sign-in.
LOOKED_UP = [re.compile(r"[lL]ocalizedString\(\s*" + LITERAL), re.compile(r"\badd\(m_\w+,\s*" + LITERAL),
             re.compile(r"\b(?:dialogText|labelFor|text)\(\s*" + LITERAL),
             re.compile(r"\bcallbackPage\(" + LITERAL.replace("(", "(?:", 1) + r",\s*" + LITERAL)]
ANY_LITERAL = re.compile(LITERAL)
COLONS = (":", "\uff1a")


def unescaped(literal):
    return re.sub(r"\\(.)", r"\1", literal)


def keys_in(text):
    return {unescaped(key) for pattern in LOOKED_UP for key in pattern.findall(text)}


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
    for source, translation in translations.items():
        if source not in literals:
            yield f"{name}: \"{source}\" is no longer used"
        if not translation:
            yield f"{name}: \"{source}\" has an empty translation"
        elif source.endswith(COLONS) != translation.endswith(COLONS):
            yield f"{name}: \"{source}\" and \"{translation}\" differ in the colon at the end"


def main():
    code = [read(path) for path in project_files("KZPreference/*.h", "KZPreference/*.cpp", "adal/*.cpp")]
    keys = set().union(*map(keys_in, code))
    literals = {unescaped(literal) for text in code for literal in ANY_LITERAL.findall(text)}
    found = []
    for path in project_files("KZPreference/resources/translations/*.ts"):
        found.extend(language_findings(path, (ROOT / path).read_bytes(), keys, literals))
    finish(found)


if __name__ == "__main__":
    main()
