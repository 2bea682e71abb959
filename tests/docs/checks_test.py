"""The checks of lint find what they are there to find."""
import importlib.util
import pathlib
import sys
import unittest

TOOLS = pathlib.Path(__file__).resolve().parents[2] / "tools"
sys.path.insert(0, str(TOOLS))


def tool(name):
    spec = importlib.util.spec_from_file_location(name.replace("-", "_"), TOOLS / f"{name}.py")
    module = importlib.util.module_from_spec(spec)
    spec.loader.exec_module(module)
    return module


class FloorsTest(unittest.TestCase):
    def test_includes_point_down(self):
        cases = [
            ("companion/app/A.cpp", "KZPreference/core/B.h", 0),
            ("KZPreference/core/A.cpp", "KZPreference/contract/B.h", 0),
            ("KZPreference/panes/general/A.cpp", "KZPreference/calendar/B.h", 0),
            ("adal/A.cpp", "adal/B.h", 0),
            ("bench/A.cpp", "companion/runtime/B.h", 0),
            ("KZPreference/calendar/A.cpp", "KZPreference/panes/general/B.h", 1),
            ("KZPreference/layout/A.cpp", "KZPreference/core/B.h", 1),
            ("host/A.cpp", "platform/B.h", 1),
            ("platform/A.cpp", "companion/app/B.h", 1),
            ("sandbox/A.cpp", "host/B.h", 1),
            ("host/A.cpp", "sandbox/B.h", 1),
            ("host/A.cpp", "B.h", 1),
        ]
        floors = tool("check-floors")
        for path, target, count in cases:
            with self.subTest(path=path, target=target):
                self.assertEqual(len(floors.findings({path: [target]})), count)

    def test_two_units_may_not_include_each_other_the_long_way_round(self):
        includes = {"host/A.h": [], "host/A.cpp": ["host/A.h", "host/B.h"], "host/B.cpp": ["host/B.h", "host/C.h"],
                    "host/B.h": [], "host/C.h": ["host/A.h"]}
        floors = tool("check-floors")
        self.assertEqual(floors.findings(includes), ["circle: host/A -> host/B -> host/C -> host/A"])
        del includes["host/C.h"]
        self.assertEqual(floors.findings(includes), [])


class TranslationsTest(unittest.TestCase):
    CODE = r'addText(localizedString("Email:")); add(m_pane, "Gen\"eral\"", icon); log("not shown");'

    def findings(self, *messages):
        translations = tool("check-translations")
        keys = translations.keys_in(self.CODE)
        content = "".join(f"<message><source>{source}</source><translation{mark}>{text}</translation></message>"
                          for source, text, mark in messages)
        return list(translations.language_findings("xx.ts", f"<TS>{content}</TS>", keys, keys | {"not shown"}))

    def test_what_is_complete_passes(self):
        self.assertEqual(self.findings(("Email:", "E-Mail:", ""), ('Gen"eral"', "Allgemein", "")), [])
        self.assertEqual(self.findings(("Email:", "メール：", ""), ('Gen"eral"', "一般", "")), [])

    def test_what_is_not_complete_is_found(self):
        general = ('Gen"eral"', "Allgemein", "")
        cases = {
            "missing": [general],
            "empty": [general, ("Email:", "", "")],
            "colon": [general, ("Email:", "E-Mail", "")],
            "unfinished": [general, ("Email:", "E-Mail:", ' type="unfinished"')],
            "twice": [general, general, ("Email:", "E-Mail:", "")],
            "no longer used": [general, ("Email:", "E-Mail:", ""), ("Gone", "Weg", "")],
        }
        for reason, messages in cases.items():
            with self.subTest(reason=reason):
                found = self.findings(*messages)
                self.assertEqual(len(found), 1, found)
                self.assertIn(reason, found[0])


class TextsTest(unittest.TestCase):
    def test_each_fault_is_found_once(self):
        head = "#pragma once\n"
        cases = [
            ("a.h", head + "int x;\n", 0),
            ("a.h", head + "// TO" + "DO: later\n", 1),
            ("a.h", head + "int x; \n", 1),
            ("a.h", head + "\tint x;\n", 1),
            ("a.h", head + "int x;", 1),
            ("a.h", "int x;\n", 1),
            ("a.cpp", "int x;\n" * 351, 1),
            ("a.md", "See /home" + "/someone/notes.\n", 1),
            ("a.cpp", "// as Part" + " 3.1 says\n", 1),
            ("a.md", "It goes into docs/home/index.md.\n", 0),
        ]
        texts = tool("check-texts")
        for path, text, count in cases:
            with self.subTest(path=path, text=text[:40]):
                self.assertEqual(len(list(texts.file_findings(path, text))), count)


class DocumentsTest(unittest.TestCase):
    def test_what_is_named_exists(self):
        cases = [
            ("Run `make test`; see [the guide](guide.md#top) and `host/A.h`.", 0),
            ("`KZThing` has `doThing()`; ask `KZThing::doThing()`.", 0),
            ("```\nNotOfOurs x;\n```\n", 0),
            ("[lost](lost.md)", 1),
            ("`host/Lost.h`", 1),
            ("`KZLost`", 1),
            ("`KZThing::lostThing()`", 1),
            ("`make lost`", 1),
            ("```\nmake lost\n```\n", 1),
        ]
        documents = tool("check-documents")
        for text, count in cases:
            with self.subTest(text=text):
                found = list(documents.document_findings("docs/a.md", text, {"docs/guide.md", "host/A.h"}.__contains__,
                                                         {"KZThing", "doThing"}, {"test"}))
                self.assertEqual(len(found), count, found)


class HostGuideTest(unittest.TestCase):
    PRINTED = "<!-- table: in -->\n| No. |\n|---|\n| 2 |\n"

    def test_tables_replace_what_stands_below_their_mark(self):
        guide = "# Guide\n<!-- table: in -->\n| old |\n\nAfter.\n"
        self.assertEqual(tool("host-guide").filled_in(guide, self.PRINTED), f"# Guide\n{self.PRINTED}\nAfter.\n")

    def test_a_mark_without_a_table_is_an_error(self):
        with self.assertRaises(SystemExit):
            tool("host-guide").filled_in("# Guide\n", self.PRINTED)


if __name__ == "__main__":
    unittest.main()
