"""The checks of lint find the faults that they are for, and the documents' diagrams hold what they should."""
import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))

import check_documents
import check_layers
import check_texts
import check_translations
import documents
import flow
import tidy


class LayersTest(unittest.TestCase):
    def test_includes_point_down(self):
        cases = [
            ("companion/app/A.cpp", "KZPreference/core/B.h", 0),
            ("KZPreference/core/A.cpp", "KZPreference/contract/B.h", 0),
            ("KZPreference/panes/general/A.cpp", "KZPreference/layout/B.h", 0),
            ("adal/A.cpp", "adal/B.h", 0),
            ("bench/A.cpp", "companion/runtime/B.h", 0),
            ("KZPreference/authentication/A.cpp", "KZPreference/panes/general/B.h", 1),
            ("KZPreference/layout/A.cpp", "KZPreference/core/B.h", 1),
            ("host/A.cpp", "platform/B.h", 1),
            ("platform/A.cpp", "companion/app/B.h", 1),
            ("sandbox/A.cpp", "host/B.h", 1),
            ("host/A.cpp", "sandbox/B.h", 1),
            ("host/A.cpp", "B.h", 1),
        ]
        for path, target, count in cases:
            with self.subTest(path=path, target=target):
                self.assertEqual(len(list(check_layers.layer_findings({path: [target]}))), count)

    def test_two_units_may_not_include_each_other_through_others(self):
        includes = {"host/A.h": [], "host/A.cpp": ["host/A.h", "host/B.h"], "host/B.cpp": ["host/B.h", "host/C.h"],
                    "host/B.h": [], "host/C.h": ["host/A.h"]}
        found = list(check_layers.circle_findings(includes))
        self.assertEqual(len(found), 1)
        for unit in ("host/A", "host/B", "host/C"):
            self.assertIn(unit, found[0])
        del includes["host/C.h"]
        self.assertEqual(list(check_layers.circle_findings(includes)), [])


class TranslationsTest(unittest.TestCase):
    CODE = r'text(localizedString("Email:")); add(m_pane, "Gen\"eral\"", icon); f(text("%1 of %2")); log("not shown");'

    def test_what_is_not_complete_is_found(self):
        general, email, count = ('Gen"eral"', "Allgemein", ""), ("Email:", "E-Mail:", ""), ("%1 of %2", "%2: %1", "")
        cases = [
            (None, "de", [general, email, count]),
            (None, "ja", [general, ("Email:", "メール：", ""), ("%1 of %2", "%2/%1", "")]),
            ("missing", "de", [general, count]),
            ("empty", "de", [general, ("Email:", "", ""), count]),
            ("colon at the end", "de", [general, ("Email:", "E-Mail", ""), count]),
            ("the language's", "fr", [general, ("Email:", "E-mail :", ""), ("%1 of %2", "%1\u00a0: %2", "")]),
            ("unfinished", "de", [general, ("Email:", "E-Mail:", ' type="unfinished"'), count]),
            ("twice", "de", [general, general, email, count]),
            ("no longer used", "de", [general, email, count, ("Gone", "Weg", "")]),
            ("placeholders", "de", [general, email, ("%1 of %2", "%1 von %1", "")]),
            ("mnemonic", "de", [('Gen"eral"', "&amp;Allgemein", ""), email, count]),
        ]
        keys = check_translations.keys_in(self.CODE, check_translations.TABLES[0][2])
        for reason, language, messages in cases:
            content = "".join(f"<message><source>{source}</source><translation{mark}>{text}</translation></message>"
                              for source, text, mark in messages)
            with self.subTest(reason=reason):
                found = list(check_translations.language_findings(f"x_{language}.ts", f"<TS>{content}</TS>", keys,
                                                                  keys | {"not shown"}))
                self.assertEqual(len(found), 1 if reason else 0, found)
                self.assertIn(reason or "", "".join(found))


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
        for path, text, count in cases:
            with self.subTest(path=path, text=text[:40]):
                self.assertEqual(len(list(check_texts.file_findings(path, text))), count)


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
        for text, count in cases:
            with self.subTest(text=text):
                found = list(check_documents.document_findings(
                    "docs/a.md", text, {"docs/guide.md", "host/A.h"}.__contains__, {"KZThing", "doThing"}, {"test"}))
                self.assertEqual(len(found), count, found)

    def test_a_generated_text_ends_with_an_empty_line(self):
        text = "Before\n<!-- generated: in -->\n| old |\n| older |\n\nAfter\n<!-- generated: new -->\n"
        self.assertEqual(documents.GENERATED.sub(lambda match: f"{match[1]}{match[2]}\n", text),
                         "Before\n<!-- generated: in -->\nin\n\nAfter\n<!-- generated: new -->\nnew\n")

    def test_a_bar_does_not_end_a_cell(self):
        self.assertEqual(documents.table(["a"], [["b|c"]]), "| a |\n| --- |\n| b\\|c |\n")


class FlowTest(unittest.TestCase):
    def drawn(self, *said):
        player = flow.Player(None, {"commands to the plug-in": [[2, "Show"]], "notifications": [[7, "Done"]]})
        player.play("#> Note over Host: begins")
        for one in said:
            player.draw(one)
        return player.lines[1:]

    def test_no_secret_is_drawn(self):
        self.assertEqual(self.drawn({"post": "Answer", "userInfo": {"inner": {"Password": "pw"}, "b": True}}),
                         ["Host->>Plugin: posts Answer<br/>b: true<br/>inner:<br/>– Password: …"])

    def test_a_write_shows_what_it_changed(self):
        self.assertEqual(
            self.drawn({"stored": "k", "before": {"a": 1, "c": {"d": 2}}, "value": {"a": 1, "c": {"d": 3}, "e": ""}},
                       {"stored": "k", "before": None, "value": "x"}),
            ['Plugin->>Settings: writes k<br/>– d: 3<br/>e: ""', 'Plugin->>Settings: writes k<br/>k: "x"'])

    def test_what_the_session_refuses_ends_the_flow(self):
        with self.assertRaises(SystemExit):
            self.drawn({"refused": "m_box is hidden"})


class TidyTest(unittest.TestCase):
    def test_what_includes_a_changed_file_is_affected(self):
        includes = {"a.cpp": ["a.h"], "a.h": ["b.h"], "b.h": [], "b.cpp": ["b.h"], "c.cpp": ["c.h"], "c.h": []}
        self.assertEqual(tidy.affected({"b.h"}, includes), {"b.h", "b.cpp", "a.h", "a.cpp"})
        self.assertEqual(tidy.affected({"c.cpp", "gone.md"}, includes), {"c.cpp", "gone.md"})


if __name__ == "__main__":
    unittest.main()
