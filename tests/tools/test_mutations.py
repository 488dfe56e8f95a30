#!/usr/bin/env python3
"""The change maker of tools/mutate: what it changes in a source text, and what it leaves alone."""
import pathlib
import sys
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))
import mutations  # noqa: E402


def results(text, kind):
    """The texts that changes of a kind make of `text`."""
    return [text[:c.begin] + c.text + text[c.end:] for c in mutations.changes(text) if c.kind == kind]


class Changes(unittest.TestCase):
    def test_relations_turn_or_move_by_one(self):
        self.assertEqual(results("a = b < c && d == e;", "relation"), ["a = b <= c && d == e;", "a = b < c && d != e;"])
        self.assertEqual(results("std::vector<int> x; template <class T>", "relation"), [])

    def test_counts_go_up_and_down_but_not_below_zero(self):
        self.assertEqual(results("f(0, 2)", "count"), ["f(1, 2)", "f(0, 1)", "f(0, 3)"])
        self.assertEqual(results("x1 + 2.5", "count"), [])

    def test_signs_of_sums_and_of_numbers(self):
        self.assertEqual(results("x = a + b;", "sign"), ["x = a - b;"])
        self.assertEqual(results("return -1;", "sign"), ["return 1;"])
        self.assertEqual(results("i -= 2; p->q; --i;", "sign"), ["i += 2; p->q; --i;"])

    def test_conditions_are_negated_and_joined_otherwise(self):
        self.assertEqual(results("if (f(a)) g();", "condition"), ["if (!(f(a))) g();"])
        self.assertEqual(results("return !a && b;", "condition"), ["return a && b;", "return !a || b;"])

    def test_statements_go_declarations_and_bodies_stay(self):
        text = "void F() {\n    int a = 1;\n    a = 2;\n    Call(\n        a);\n    return;\n}\n"
        self.assertEqual(results(text, "deleted statement"),
                         [text.replace("a = 2;", ";"), text.replace("Call(\n        a);", ";")])
        text = "class C {\n    C(int a) : m_a(a) { F(); }\n    int m_a;\n};\n"
        self.assertEqual(results(text, "deleted statement"), [])
        self.assertEqual(results("    if (a) return 1;\n", "deleted statement"), ["    if (a) ;\n"])

    def test_comments_literals_and_includes_stay(self):
        for text in ("// a < b + 1\n", "/* a == 2 */", 'f("a < b + 1 == 2");', "#if A == 1\n", "c = '<';",
                     'R"(a == 1)"'):
            with self.subTest(text):
                self.assertEqual([c for c in mutations.changes(text) if c.kind != "deleted statement"], [])


class Places(unittest.TestCase):
    TEXT = "".join(f"    x{i} = a{i} + {i};\n" for i in range(50))

    def test_the_same_seed_draws_the_same_places_one_a_line(self):
        places = mutations.draw_places({"src/a/A.cpp": self.TEXT}, 30, 5)
        self.assertEqual(places, mutations.draw_places({"src/a/A.cpp": self.TEXT}, 30, 5))
        self.assertNotEqual(places, mutations.draw_places({"src/a/A.cpp": self.TEXT}, 30, 6))
        self.assertEqual(len({p["line"] for p in places}), 30)
        for place in places:
            self.assertEqual(place["from"], self.TEXT.splitlines()[place["line"] - 1])
            self.assertNotEqual(place["from"], place["to"])

    def test_a_place_is_found_again_after_lines_have_moved(self):
        place = {"line": 3, "from": "    i = 1;"}
        self.assertEqual(mutations.locate("a\nb\nc\n    i = 1;\n", place), 6)
        self.assertEqual(mutations.locate("    i = 1;\nb\nc\n    i = 1;\n", place), 15)
        self.assertEqual(mutations.locate("    i = 12;\n", place), -1)


class Tests(unittest.TestCase):
    LAYERS = "# no 9 line\n0 low\n1 mid+mid/part low  # remark\n1 side low\n2 top mid\n"
    TESTS = ("lumerin_test(low lumerin-low)\nlumerin_test(top lumerin-top lumerin-samples)\n    lumerin_test(no lumerin-low)\n"
             "lumerin_test(side lumerin-side)\nlumerin_test(mid lumerin-mid)\nlumerin_test(mid_part lumerin-mid)\n"
             "lumerin_test(samples lumerin-samples)\n")

    def test_a_change_is_tried_by_all_that_link_it_nearest_first(self):
        for source, folders in {"src/low/A.cpp": ["low", "mid", "mid_part", "side", "top"],
                                "src/mid/A.cpp": ["mid", "mid_part", "top"],
                                "src/mid/part/headless/A.cpp": ["mid_part", "mid", "top"],
                                "src/side/A.h": ["side"], "src/top/A.h": ["top"], "src/nowhere/A.h": []}.items():
            self.assertEqual(mutations.test_folders(self.LAYERS, self.TESTS, source), folders, source)

    def test_every_folder_of_the_tree_has_tests_of_its_own_name(self):
        root = pathlib.Path(__file__).resolve().parents[2]
        texts = [(root / name).read_text() for name in ("cmake/layers.txt", "tests/CMakeLists.txt")]
        for folder in mutations.layers(texts[0])[0]:
            if folder != "host":  # played by the module's scripts
                self.assertEqual(mutations.test_folders(*texts, f"src/{folder}/A.cpp")[:1], [folder.replace("/", "_")])


if __name__ == "__main__":
    unittest.main()
