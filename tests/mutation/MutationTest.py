"""Tests of tools/mutate: which mutants a source has, and the verdicts on them in a small project."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent.parent / "tools"))

from mutation.mutants import mutants_of  # noqa: E402
from mutation.workshop import Workshop  # noqa: E402


def changes(text):
    """The changes of a source, without their places."""
    return [mutant.change() for mutant in mutants_of("a.cpp", text)]


class MutantsTest(unittest.TestCase):
    """The mutants of small sources."""

    def assert_changes(self, body, *expected):
        """Asserts the mutants of a function with this body."""
        self.assertEqual(changes(f"void f() {{\n  {body}\n}}\n"), list(expected))

    def test_operators_and_numbers(self):
        self.assert_changes("return a < 2 && b;", "< -> <=", "< -> >=", "2 -> 3", "&& -> ||")
        self.assert_changes("return x - 0.5;", "- -> +", "0.5 -> 0.25")
        self.assert_changes("return ok ? a : b;", "? -> || true ?", "? -> && false ?")
        self.assert_changes("return !done;", "! -> nothing")

    def test_conditions(self):
        self.assert_changes("if (p) {\n  }", "p -> true", "p -> false")
        self.assert_changes("if (auto p = g(); p) {\n  }", "p -> true", "p -> false")
        self.assert_changes("while (p) {\n  }", "p -> false")

    def test_a_forced_condition_keeps_its_declaration(self):
        text = "void f() {\n  if (auto p = g()) {\n  }\n}\n"
        self.assertIn("if (auto p = g(); false) {", mutants_of("a.cpp", text)[1].applied(text))

    def test_statements(self):
        self.assert_changes("g(a);", "g(a) -> nothing")
        self.assert_changes("a.b = c;", "a.b = c -> nothing")
        self.assert_changes("run([] { g(); });", "run([] { g(); }) -> nothing", "g() -> nothing")
        self.assert_changes("switch (a) {\n case b: g();\n break;\n }", "g() -> nothing", "break -> nothing")

    def test_the_name_among_the_equivalents_holds_the_line(self):
        self.assertEqual(mutants_of("a.cpp", "void f() {\n  g(a,\n    b);\n}\n")[0].without_place(),
                         "a.cpp: g(a,: g(a, b) -> nothing")

    def test_a_removed_statement_keeps_the_lines(self):
        text = "void f() {\n  g(a,\n    b);\n}\n"
        self.assertEqual(mutants_of("a.cpp", text)[0].applied(text), "void f() {\n  \n;\n}\n")

    def test_declarations_have_none(self):
        self.assert_changes("std::vector<int> v(a);\n  const T& t = v;\n  auto* p = q;\n  T* r = p;")
        self.assertEqual(changes('#include "x/3.hpp"\n// 1 < 2\nnamespace a {\nint f(int a, T&& b);\n'
                                 'enum class E { a };\nstruct S {\n  void g(int* p) const;\n};\n}\n'), [])

    def test_texts_have_none(self):
        self.assert_changes('return "a < 1";')
        self.assert_changes('return R"(a" < 1)";')
        self.assert_changes("return '<';")

    def test_a_constant_of_a_namespace_has_its_value_changed(self):
        self.assertEqual(changes("namespace {\nconstexpr int gap = 12;\n}\n"), ["12 -> 13"])
        self.assertEqual(changes("constexpr P p{1, true};\n"), ["1 -> 2", "true -> false"])


class VerdictTest(unittest.TestCase):
    """A project of one source, one test program and an explorer."""

    def test_verdicts(self):
        with tempfile.TemporaryDirectory() as folder:
            root, work = pathlib.Path(folder, "root"), pathlib.Path(folder, "work")
            files = {
                "CMakePresets.json": '{"version": 6,'
                                     ' "configurePresets": [{"name": "desk", "generator": "Ninja"}]}',
                "CMakeLists.txt": "cmake_minimum_required(VERSION 3.25)\nproject(P LANGUAGES CXX)\n"
                                  "set(CMAKE_EXPORT_COMPILE_COMMANDS ON)\nset(CMAKE_BUILD_TYPE Debug)\n"
                                  "add_library(a STATIC Orvane/guard/a.cpp)\nlink_libraries(a)\n"
                                  "add_executable(orvane-desk desk.cpp)\n"
                                  "set(CMAKE_RUNTIME_OUTPUT_DIRECTORY tests/guard)\n"
                                  "add_executable(t tests/guard/t.cpp)\n",
                "Orvane/guard/a.cpp": "int f(int a) {\n  int s = 0;\n  while (a != 0) {\n    s += a--;\n  }\n"
                                      "  if (s > 9) {\n    s = 9;\n  }\n  return s;\n}\n",
                "desk.cpp": "int f(int);\nint main(int, char** words) {\n"
                            "  return *words[1] == 's' || f(5) == 9 ? 0 : 1;\n}\n",
                "tests/guard/t.cpp": "int f(int);\nint main() { return f(3) == 6 ? 0 : 1; }\n",
            }
            for name, text in files.items():
                (root / name).parent.mkdir(parents=True, exist_ok=True)
                (root / name).write_text(text, encoding="utf-8")
            subprocess.run(["git", "init", "-q", root], check=True)

            mutants = mutants_of("Orvane/guard/a.cpp", files["Orvane/guard/a.cpp"])
            workshop = Workshop(root, work)
            workshop.prepare("guard")
            verdicts = {mutant: workshop.try_mutant("guard", mutant) for mutant in mutants}
            self.assertLessEqual({("+= -> -=", "killed"), ("s += a-- -> nothing", "killed"),
                                  ("s > 9 -> false", "explored"), ("9 -> 10", "survived"),
                                  ("> -> >=", "same")},
                                 {(mutant.change(), verdict) for mutant, verdict in verdicts.items()})

            again = Workshop(root, work)
            self.assertEqual({mutant: again.known[str(mutant)] for mutant in mutants}, verdicts)
            (root / "tests/guard/t.cpp").write_text(files["tests/guard/t.cpp"] + "\n", encoding="utf-8")
            self.assertEqual(Workshop(root, work).known, {})


if __name__ == "__main__":
    unittest.main()
