"""The checks of lint find what they are there to find, and the pictures show what they are there to show."""
import importlib.util
import pathlib
import sys
import unittest
import xml.etree.ElementTree

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


class PicturesTest(unittest.TestCase):
    def test_floors_are_drawn_as_they_are_checked(self):
        picture = tool("draw-floors")
        self.assertEqual(picture.PICTURE.read_text(encoding="utf-8"), picture.svg(), "make pictures mends it")

    def test_no_secret_and_nothing_that_differs_from_run_to_run_is_drawn(self):
        lines = tool("sequence_text").content_lines
        content = {"kKZResult": "kKZSuccess", "b": True, "gone": 1,
                   "inner": '{"code": "s3", "at": "http://127.0.0.1:4711/x"}', "Password": "pw", "state": ""}
        self.assertEqual(list(lines(content, {"gone"})), [
            (0, "Password", "…"), (0, "b", "true"), (0, "inner", "JSON text"), (1, "at", "“http://127.0.0.1:…/x”"),
            (1, "code", "…"), (0, "kKZResult", "kKZSuccess"), (0, "state", "“”")])

    def test_a_write_shows_what_it_changed(self):
        changed = tool("sequence_text").changed
        self.assertEqual(changed({"a": 1, "b": {"c": 1, "d": 2}}, {"a": 1, "b": {"c": 1, "d": 3}, "e": 4}),
                         {"b": {"d": 3}, "e": 4})
        self.assertEqual(changed(None, {"a": 1}), {"a": 1})

    def test_a_control_is_found_below_its_parents_or_not_at_all(self):
        view = {"children": [{"name": row, "children": [{"name": "m_box", "text": row}]} for row in ("one", "two")]}
        text = tool("sequence_text")
        self.assertEqual(text.control_text(text.find_control(view, "two/m_box")), "“two”")
        for name in ("m_box", "m_lost"):
            with self.subTest(name=name), self.assertRaises(SystemExit):
                text.find_control(view, name)

    def test_a_drawing_holds_every_event_and_is_well_formed(self):
        event = tool("sequence_play").Event
        long = "k" * 80
        events = [event("", "", "A <heading>"), event("User", "Plug-in", "clicks “<&>”", kind="user"),
                  event("Plug-in", "Host", "9 Command", [(0, "key", long)], "command"), event("Host", "Host", "thinks")]
        picture = tool("sequence_draw").Picture("A & B", events)
        root = xml.etree.ElementTree.fromstring(picture.svg())
        drawn = ["".join(text.itertext()) for text in root.iter("{http://www.w3.org/2000/svg}text")]
        self.assertEqual(drawn, ["User", "Host", "Plug-in", "A <heading>", "clicks “<&>”", "9 Command", "key:", long,
                                 "thinks"])
        self.assertGreater(picture.places["Plug-in"] - picture.places["Host"], 80 * 5.5)


if __name__ == "__main__":
    unittest.main()
