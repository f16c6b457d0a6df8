"""Tests that every rule of tools/tidy can fail: each rejects its bad samples and accepts the good ones.

A sample is a small project in a temporary folder. Marks that must not appear in the sources are
assembled from halves.
"""

import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

HERE = pathlib.Path(__file__).resolve().parent
TIDY = HERE.parent.parent / "tools" / "tidy"

TOP = "// What this file is for.\n"
HEADER = TOP + "#pragma once\n\n"


sys.dont_write_bytecode = True
sys.path.insert(0, str(TIDY.parent))

from tidy_rules import rules  # noqa: E402
from tidy_rules.project import Project  # noqa: E402


def write(folder, files):
    """Writes the files, given as a dictionary from paths to texts."""
    for path, text in files.items():
        target = pathlib.Path(folder, path)
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_text(text, encoding="utf-8")


def tidy(*arguments):
    """Runs the command."""
    return subprocess.run([sys.executable, str(TIDY), *map(str, arguments)], capture_output=True,
                          text=True, check=False)


class RuleTest(unittest.TestCase):
    """The base of the tests of the rules."""

    rule = None

    def findings(self, files):
        """The findings of the rule in a project of these files, as (file, line) pairs."""
        with tempfile.TemporaryDirectory() as folder:
            write(folder, files)
            found = rules[self.rule](Project(folder))
            return [(str(file), int(line)) for file, line, _ in found]

    def assert_caught(self, files, *expected):
        """Asserts that the rule finds exactly the expected (file, line) pairs."""
        self.assertEqual(self.findings(files), list(expected))

    def assert_passed(self, files):
        self.assertEqual(self.findings(files), [])


class ArrowsTest(RuleTest):
    rule = "arrows"
    parts = ["base", "ui", "platform", "geometry", "guard", "permission", "model", "windows",
             "panels", "app"]
    # Stated independently of the tool.
    may_include = {
        ("ui", "base"), ("platform", "base"), ("platform", "ui"), ("geometry", "base"),
        ("geometry", "platform"), ("guard", "base"), ("guard", "geometry"), ("guard", "platform"),
        ("permission", "base"), ("permission", "ui"), ("permission", "platform"),
        ("model", "base"), ("model", "guard"), ("model", "geometry"), ("model", "permission"),
        ("model", "platform"), ("windows", "base"), ("windows", "ui"), ("windows", "model"),
        ("windows", "platform"), ("panels", "base"), ("panels", "ui"), ("panels", "model"),
        ("panels", "windows"), ("panels", "platform"),
    } | {("app", part) for part in parts} | {(part, part) for part in parts}

    def including(self, path, *included):
        files = {target: HEADER for target in included}
        files[path] = HEADER + "".join(f'#include "{target}"\n' for target in included)
        return files

    def assert_pairs(self, folders, suffix, allowed):
        """Asserts that among includes from each folder to each, only the allowed pairs pass."""
        files = {f"{there}{suffix}/There.hpp": HEADER for there in folders}
        expected = []
        for here in folders:
            for there in folders:
                path = f"{here}{suffix}/{there.replace('/', '')}.cpp"
                files[path] = TOP + f'#include "{there}{suffix}/There.hpp"\n'
                if (here, there) not in allowed:
                    expected.append((path, 2))
        self.assertEqual(sorted(self.findings(files)), sorted(expected))

    def test_every_pair_of_parts_of_the_application(self):
        self.assert_pairs([f"Orvane/{part}" for part in self.parts], "",
                          {(f"Orvane/{a}", f"Orvane/{b}") for a, b in self.may_include})

    def test_every_pair_of_folders_of_the_view_kit(self):
        folders = ["layout", "draw", "views", "host"]
        allowed = {("draw", "layout"), ("views", "layout"), ("views", "draw"), ("views", "host"),
                   ("host", "layout"), ("host", "draw"), ("host", "views")}
        allowed |= {(folder, folder) for folder in folders}
        self.assert_pairs([f"Orvane/ui/{folder}" for folder in folders], "",
                          {(f"Orvane/ui/{a}", f"Orvane/ui/{b}") for a, b in allowed})

    def test_every_pair_of_parts_of_the_desk(self):
        parts = ["canvas", "symbols", "machine", "quartz", "windows", "appkit", "settings", "hand",
                 "application", "script", "explore"]
        allowed = {("quartz", "machine"), ("windows", "canvas"), ("windows", "machine"),
                   ("appkit", "canvas"), ("appkit", "machine"), ("appkit", "quartz"),
                   ("appkit", "windows"), ("settings", "hand"), ("settings", "machine"),
                   ("settings", "windows"),
                   ("hand", "machine"), ("hand", "windows"), ("application", "machine"),
                   ("application", "settings"), ("application", "windows"),
                   ("script", "application"), ("script", "hand"), ("script", "machine"),
                   ("script", "quartz"), ("script", "windows"), ("explore", "application"),
                   ("explore", "canvas"), ("explore", "hand"), ("explore", "machine"), ("explore", "script"),
                   ("explore", "windows")} | {(part, part) for part in parts}
        self.assert_pairs([f"desk/{part}" for part in parts], "",
                          {(f"desk/{a}", f"desk/{b}") for a, b in allowed})

    def test_every_pair_of_parts_of_the_showroom(self):
        parts = ["desktop", "gallery", "hardware", "settings", "tour", "window"]
        allowed = {("gallery", "desktop"), ("hardware", "desktop"), ("tour", "desktop"),
                   ("tour", "settings"), ("window", "desktop"), ("window", "hardware"),
                   ("window", "settings")} | {(part, part) for part in parts}
        self.assert_pairs([f"showroom/{part}" for part in parts], "",
                          {(f"showroom/{a}", f"showroom/{b}") for a, b in allowed})

    def test_the_main_file_may_include_every_part(self):
        self.assert_passed(self.including("showroom/Main.cpp", "showroom/tour/RunTour.hpp",
                                          "desk/script/ScriptProgram.hpp"))

    def test_every_pair_of_first_folders(self):
        folders = ["Orvane/ui", "desk/machine", "showroom/desktop", "macos/appkit", "tests/ui",
                   "bench/ui", "fuzz/ui"]
        allowed = {("desk", "Orvane"), ("showroom", "Orvane"), ("showroom", "desk"),
                   ("macos", "Orvane"), ("tests", "Orvane"), ("tests", "desk"),
                   ("tests", "showroom"), ("tests", "macos"), ("tests", "bench"),
                   ("bench", "Orvane"), ("bench", "desk"), ("bench", "showroom"),
                   ("fuzz", "Orvane"), ("fuzz", "desk")}
        top = {folder.split("/")[0]: folder for folder in folders}
        self.assert_pairs(folders, "", {(folder, folder) for folder in folders} |
                          {(top[here], top[there]) for here, there in allowed})

    def test_every_part_may_include_the_language(self):
        self.assert_passed(self.including("Orvane/geometry/Names.hpp",
                                          "Orvane/model/OrvaneLanguage.hpp"))

    def test_an_unknown_part_is_caught(self):
        self.assert_caught(self.including("Orvane/magic/Here.hpp", "Orvane/base/There.hpp"),
                           ("Orvane/magic/Here.hpp", 4))

    def test_other_spellings_of_an_include_are_caught(self):
        for line in ('#include "../ui/There.hpp"', "#include <Orvane/ui/There.hpp>",
                     '#import "There.hpp"', '#  include  "Orvane/ui/./There.hpp" // why'):
            with self.subTest(line=line):
                self.assert_caught({"Orvane/ui/There.hpp": HEADER,
                                    "Orvane/base/Here.hpp": HEADER + line + "\n"},
                                   ("Orvane/base/Here.hpp", 4))

    def test_a_generated_header_is_known_by_its_template(self):
        self.assert_passed({"Orvane/model/Product.hpp.in": HEADER,
                            "Orvane/model/Model.cpp": '#include "Orvane/model/Product.hpp"\n'})

    def test_an_include_in_a_comment_is_ignored(self):
        self.assert_passed({"Orvane/base/Here.hpp":
                            TOP + '// #include "desk/A.hpp"\n/*\n#include "desk/A.hpp"\n*/\n'})


class PlatformConditionsTest(RuleTest):
    rule = "platform-conditions"

    def test_conditions_in_the_application(self):
        for line in ("#ifdef __APPLE__", "#ifndef NDEBUG", "# if defined(__linux__)",
                     "#elif __has_include(<a>)"):
            with self.subTest(line=line):
                self.assert_caught({"Orvane/guard/Guard.cpp": TOP + line + "\n"},
                                   ("Orvane/guard/Guard.cpp", 2))
                self.assert_passed({"macos/Guard.mm": TOP + line + "\n"})
                self.assert_passed({"Orvane/guard/Guard.cpp": TOP + "// " + line + "\n"})

    def test_the_platform_header_has_one_condition(self):
        header = "Orvane/platform/Quartz.hpp"
        one = "#ifdef __APPLE__\n#else\n#endif\n"
        self.assert_passed({header: TOP + one})
        self.assert_caught({header: TOP + one + one}, (header, 5))
        self.assert_caught({header: TOP + "#ifdef __linux__\n#endif\n"}, (header, 2))


class WallClockTest(RuleTest):
    rule = "wall-clock"

    def test_real_clocks(self):
        for line in ("auto now = std::chrono::steady_clock::now();",
                     "using std::chrono::system_clock;", "auto seconds = time(nullptr);",
                     "auto seconds = std::time(0);", "gettimeofday(&now, nullptr);",
                     "clock_gettime(CLOCK_MONOTONIC, &now);", "auto ticks = SDL_GetTicks64();",
                     "auto used = std::clock();", "std::this_thread::sleep_for(second);",
                     "auto count = SDL_GetPerformanceCounter();"):
            for folder in ("Orvane/guard", "desk/machine", "showroom/window"):
                with self.subTest(line=line, folder=folder):
                    path = folder + "/Part.cpp"
                    self.assert_caught({path: TOP + line + "\n"}, (path, 2))
                    self.assert_passed({path: TOP + "// " + line + "\n"})
                    self.assert_passed({path: TOP + f'say("{line}");\n'})

    def test_the_frame_pump_and_the_benchmarks_are_exempt(self):
        line = TOP + "auto now = std::chrono::steady_clock::now();\n"
        self.assert_passed({"showroom/window/FramePump.cpp": line, "bench/Filter.cpp": line})

    def test_words_that_only_look_like_clocks(self):
        self.assert_passed({"desk/machine/Clock.cpp": TOP + "double Clock::time() const;\n"
                            "machine.clock().time(now);\nauto at = runtime(0);\n"
                            "auto t = machine.time(0);\nClock& clock();\n"})


class ChanceTest(RuleTest):
    rule = "chance"

    def test_sources_of_randomness(self):
        for line in ("std::random_device device;", "int lot = rand();", "srand(1);",
                     "auto lot = std::rand();", "arc4random_uniform(6);"):
            with self.subTest(line=line):
                self.assert_caught({"desk/machine/Dock.cpp": TOP + line + "\n"},
                                   ("desk/machine/Dock.cpp", 2))
                self.assert_passed({"tests/DockTest.cpp": TOP + line + "\n"})

    def test_words_that_only_look_like_random_functions(self):
        self.assert_passed({"desk/Generator.cpp": TOP + "auto next = generator.rand();\n"
                            "auto brand = operand(1);\n"})


class OrderTest(RuleTest):
    rule = "order"

    def test_containers_without_an_order(self):
        for kind in ("unordered_map", "unordered_set", "unordered_multimap"):
            for folder in ("desk/machine", "Orvane/model"):
                with self.subTest(kind=kind, folder=folder):
                    path = folder + "/Store.hpp"
                    self.assert_caught({path: TOP + f"std::{kind}<int> values;\n"}, (path, 2))

    def test_containers_with_an_order(self):
        self.assert_passed({"desk/machine/Store.hpp": TOP + "std::map<int, int> values;\n",
                            "tests/StoreTest.cpp": TOP + "std::unordered_set<int> seen;\n"})


class NamesTest(RuleTest):
    rule = "names"

    def test_a_header_declares_what_it_is_named_after(self):
        for text in ("class Dock {};", "struct Dock;\nstruct Dock {};", "enum class Dock { a };",
                     "namespace orvane::Dock {\nstruct Other {};\n}", "using Dock = int;",
                     "template <typename T>\nclass Dock {};", "struct __Dock {};",
                     "class DockPart {};", "class [[nodiscard]] Dock {};"):
            with self.subTest(text=text):
                self.assert_passed({"desk/Dock.hpp": HEADER + text + "\n"})
        for text in ("class Duck {};", "class Dock;\nstruct Duck {};", "// class Dock\nenum A {};",
                     "namespace orvane::duck {\nclass Other {};\n}",
                     "class Duck {};\nDuck make();", "struct Duck {\n  int make();\n};"):
            with self.subTest(text=text):
                self.assert_caught({"desk/Dock.hpp": HEADER + text + "\n"}, ("desk/Dock.hpp", 1))

    def test_a_file_name_joins_a_qualified_name(self):
        self.assert_passed({"macos/appkit/ImageImplementation.hpp":
                            HEADER + "struct Image::Implementation {};\n"})
        self.assert_caught({"macos/appkit/ImageImplementation.hpp":
                            HEADER + "struct Implementation {};\n"},
                           ("macos/appkit/ImageImplementation.hpp", 1))

    def test_a_header_of_functions_is_named_after_their_subject(self):
        self.assert_passed({"desk/Text.hpp": HEADER + "std::string trim(std::string text);\n"})
        self.assert_passed({"desk/Text.hpp": HEADER + "struct Line {};\nLine first(int text);\n"})

    def test_a_header_is_guarded(self):
        self.assert_caught({"desk/Dock.hpp": TOP + "class Dock {};\n"}, ("desk/Dock.hpp", 1))

    def test_a_source_belongs_to_a_header_beside_it(self):
        header = HEADER + "class Guard {};\n"
        self.assert_passed({"desk/Guard.hpp": header, "desk/Guard.cpp": TOP,
                            "desk/GuardFilter.cpp": TOP})
        self.assert_caught({"desk/Guard.hpp": header, "desk/Filter.cpp": TOP},
                           ("desk/Filter.cpp", 1))
        self.assert_caught({"desk/a/Guard.hpp": header, "desk/b/Guard.cpp": TOP},
                           ("desk/b/Guard.cpp", 1))

    def test_platform_headers_are_implemented_elsewhere(self):
        header = HEADER + "class Screen {};\n"
        self.assert_passed({"Orvane/platform/appkit/Screen.hpp": header,
                            "desk/appkit/Screen.cpp": TOP, "macos/hosting/Screen.mm": TOP})
        self.assert_caught({"Orvane/platform/appkit/Screen.hpp": header,
                            "desk/appkit/Panel.cpp": TOP}, ("desk/appkit/Panel.cpp", 1))

    def test_a_program_needs_no_header(self):
        self.assert_passed({"desk/Sheet.cpp": TOP + "int main() {}\n", "macos/main.mm": TOP})

    def test_tests_are_in_files_named_tests(self):
        test = TOP + "TEST_F(Dock, Comes) {}\n"
        self.assert_passed({"tests/DockTest.cpp": test, "tests/Helper.cpp": TOP})
        self.assert_caught({"tests/Dock.cpp": test}, ("tests/Dock.cpp", 1))
        self.assert_caught({"tests/DockTest.cpp": TOP}, ("tests/DockTest.cpp", 1))
        for line in ("TEST(DockTest, hides) {}", "RC_GTEST_PROP(DockTest, hides, ()) {}"):
            self.assert_caught({"tests/DockTest.cpp": test + line + "\n"},
                               ("tests/DockTest.cpp", test.count("\n") + 1))


class ListingTest(RuleTest):
    rule = "listing"

    def test_a_source_that_is_not_built(self):
        source = "tests/ui/LayoutTest.cpp"
        for text in ("orvane_test(ui LayoutTest.cpp)", "orvane_test(ui\n  LayoutTest.cpp\n)"):
            self.assert_passed({source: TOP, "tests/ui/CMakeLists.txt": text})
        for text in ("orvane_test(ui OldLayoutTest.cpp)", "# LayoutTest.cpp", "LayoutTest.cpp.in"):
            self.assert_caught({source: TOP, "tests/ui/CMakeLists.txt": text}, (source, 1))
        self.assert_caught({source: TOP}, (source, 1))

    def test_a_list_elsewhere_names_the_path(self):
        source = "tests/support/Oracle.cpp"
        for path in ("../support/Oracle.cpp", "${CMAKE_SOURCE_DIR}/tests/support/Oracle.cpp",
                     "${CMAKE_CURRENT_SOURCE_DIR}/../support/Oracle.cpp"):
            with self.subTest(path=path):
                self.assert_passed({source: TOP, "tests/ui/CMakeLists.txt": f'test(a "{path}")'})
        self.assert_caught({source: TOP, "tests/ui/CMakeLists.txt": "test(a support/Oracle.cpp)"},
                           (source, 1))

    def test_a_list_in_the_folder_above_names_the_folder(self):
        source = "Orvane/guard/Guard.cpp"
        self.assert_passed({source: TOP, "Orvane/CMakeLists.txt": "lib(a guard/Guard.cpp)"})
        self.assert_caught({source: TOP, "Orvane/CMakeLists.txt": "lib(a Guard.cpp)"}, (source, 1))


class OpeningCommentTest(RuleTest):
    rule = "opening-comment"

    def test_files_that_begin_with_a_comment(self):
        self.assert_passed({
            "desk/Dock.hpp": TOP, "desk/CMakeLists.txt": "# The desk.\n", "tool": "no script\n",
            "run": "#!/bin/sh\n# Runs.\n", "check": '#!/usr/bin/env python3\n"""Checks."""\n',
            "a.py": '"""Counts."""\n', "a.md": "Title\n",
            "Info.plist.in": '<?xml version="1.0"?>\n<!DOCTYPE plist>\n<!-- Why. -->\n'})

    def test_files_that_do_not(self):
        for path, text in {"desk/Dock.hpp": "#pragma once\n", "desk/Dock.cpp": "",
                           "desk/CMakeLists.txt": "add(a)\n", "run": "#!/bin/sh\nset -e\n",
                           "check": "#!/usr/bin/env python3\nimport sys\n", "a.py": "import os\n",
                           "Info.plist.in": '<?xml version="1.0"?>\n<plist>\n',
                           ".clang-tidy": "Checks: a\n"}.items():
            with self.subTest(path=path):
                self.assert_caught({path: text}, (path, 1))


class FormattingTest(RuleTest):
    rule = "formatting"
    style = {".clang-format": "# Ours.\nBasedOnStyle: Google\nColumnLimit: 100\n"}

    def test_formatting(self):
        good = TOP + "int twice(int value) { return 2 * value; }\n"
        bad = TOP + "\nint  twice(int value){ return 2*value; }\n"
        for path in ("desk/Twice.cpp", "Orvane/Twice.hpp", "tests/TwiceTest.cpp"):
            with self.subTest(path=path):
                self.assert_passed({path: good, **self.style})
                self.assert_caught({path: bad, **self.style}, (path, 3))


class SizeTest(RuleTest):
    rule = "size"

    def test_size(self):
        self.assert_passed({"desk/Long.cpp": "\n" * 450, "docs/Long.md": "\n" * 900})
        self.assert_caught({"desk/Long.cpp": "\n" * 451}, ("desk/Long.cpp", 451))


class UnfinishedTest(RuleTest):
    rule = "unfinished"

    def test_marks_of_unfinished_work(self):
        for mark in ("TO" + "DO: think", "FIX" + "ME", "XX" + "X", "HA" + "CK",
                     "TEST(Dock, DISABLED" + "_Comes)", "GTEST" + "_SKIP();",
                     "not yet implemen" + "ted"):
            for path in ("desk/Dock.cpp", "run", "docs/desk.md"):
                with self.subTest(mark=mark, path=path):
                    self.assert_caught({path: f"# One line.\n# {mark}\n"}, (path, 2))

    def test_only_contract_tests_may_skip(self):
        skip = "// Why.\nGTEST" + "_SKIP();\n"
        self.assert_passed({"tests/contract/Arrange.hpp": skip})
        self.assert_caught({"tests/contract/TimerTest.cpp": skip},
                           ("tests/contract/TimerTest.cpp", 2))

    def test_ordinary_words(self):
        self.assert_passed({"desk/Dock.cpp": "// A todo list; a hacksaw; isDisabled_; XXXL\n"})


class UnusedTest(RuleTest):
    rule = "unused"
    declaration = HEADER + "class Dock {\n public:\n  [[nodiscard]] std::vector<int> tiles() const;\n};\n"
    definition = "std::vector<int> Dock::tiles() const {\n  return {};\n}\n"

    def of(self, user, definition=definition, declaration=declaration):
        return {"desk/Dock.hpp": declaration, "desk/Dock.cpp": TOP + definition,
                "showroom/Show.cpp": TOP + user}

    def test_a_function_that_is_called_or_passed_on(self):
        for user in ("  return dock.tiles();", "  dock->tiles();", "  if (a && tiles()) {", "  !tiles();",
                     "  a > tiles();", "  bind(&Dock::tiles);", "  Dock::tiles();"):
            with self.subTest(user=user):
                self.assert_passed(self.of(user + "\n"))

    def test_a_function_that_is_only_defined(self):
        for user in ("", "// dock.tiles()\n", "say(\"tiles\");\n", "Tiles& tiles();\n",
                     "  Tiles tiles() const override {\n"):
            with self.subTest(user=user):
                self.assert_caught(self.of(user), ("desk/Dock.hpp", 6))

    def test_a_use_in_a_test_does_not_count(self):
        files = self.of("") | {"tests/DockTest.cpp": TOP + "  dock.tiles();\n"}
        self.assert_caught(files, ("desk/Dock.hpp", 6))

    def test_a_function_without_a_definition(self):
        self.assert_caught(self.of("  dock.tiles();\n", definition=""), ("desk/Dock.hpp", 6))
        for declaration in ("virtual int tiles() = 0;", "int tiles() { return 1; }",
                            "int tiles() {\n    if (a) {\n      b();\n    }\n  }"):
            with self.subTest(declaration=declaration):
                header = HEADER + "struct Dock {\n  " + declaration + "\n};\n"
                self.assert_passed(self.of("  dock.tiles();\n", "", header))

    def test_members_and_calls_are_not_functions(self):
        self.assert_passed({"desk/Dock.hpp": HEADER + "struct Dock {\n  std::function<void(int)> moved;\n"
                            "  int size = of(1);\n  using Tile = int(*)(int);\n};\n"
                            "inline void Dock::of() {\n  Tile tile(1);\n}\n"})

    def test_constants(self):
        header = HEADER + "inline constexpr double height = 20;\n"
        self.assert_caught({"desk/Dock.hpp": header}, ("desk/Dock.hpp", 4))
        self.assert_passed({"desk/Dock.hpp": header, "desk/Dock.cpp": TOP + "  return height;\n"})


class AddressesTest(RuleTest):
    rule = "addresses"

    def test_paths_of_one_machine(self):
        for path in ("/ho" + "me/somebody/orvane", "/Us" + "ers/somebody", "/ro" + "ot/orvane"):
            for text in (f"include({path})", f'"{path}/a"', f"in {path}"):
                with self.subTest(text=text):
                    self.assert_caught({"CMakeLists.txt": text + "\n"}, ("CMakeLists.txt", 1))
        self.assert_passed({"a.md": "~/ho" + "me/a, build/ho" + "me/a and $folder/ro" + "ot/a\n"})

    def test_addresses_of_servers(self):
        scheme = "https:" + "//"
        self.assert_caught({"a.md": f"See {scheme}packages.somewhere.net/list\n"}, ("a.md", 1))
        self.assert_passed({"a.md": f"See {scheme}orvane.example/privacy, {scheme}semver.org/\n"})
        cloned = f"forge={scheme}forge.somewhere.net\n"
        self.assert_caught({"tools/other": cloned}, ("tools/other", 1))
        self.assert_passed({"tools/gnustep": cloned})


class CommandTest(unittest.TestCase):
    """The output and the exit status of the command."""

    def test_one_line_for_each_finding(self):
        with tempfile.TemporaryDirectory() as folder:
            write(folder, {"desk/Dock.hpp": "class Dock {};\n"})
            result = tidy("--root", folder, "--rule", "names", "--rule", "opening-comment")
        self.assertEqual(result.returncode, 1)
        self.assertEqual(result.stdout.splitlines(), [
            "desk/Dock.hpp:1: names: no #pragma once",
            "desk/Dock.hpp:1: opening-comment: does not begin with a comment that says what it is "
            "for"])

    def test_all_rules_run_by_default(self):
        with tempfile.TemporaryDirectory() as folder:
            write(folder, {"Orvane/guard/Guard.hpp": "#ifdef A\nclass Gu { unordered_map a; };"})
            result = tidy("--root", folder)
        found = {line.split(": ")[1] for line in result.stdout.splitlines()}
        self.assertLessEqual({"platform-conditions", "names", "order", "opening-comment"}, found)

    def test_no_findings_is_success(self):
        with tempfile.TemporaryDirectory() as folder:
            write(folder, {"desk/Dock.hpp": HEADER + "class Dock {};\n"})
            result = tidy("--root", folder)
        self.assertEqual((result.returncode, result.stdout), (0, ""))

    def test_an_empty_folder_is_an_error(self):
        with tempfile.TemporaryDirectory() as folder:
            self.assertEqual(tidy("--root", folder).returncode, 2)

    def test_every_rule_is_registered_and_tested(self):
        listed = {line.split()[0] for line in tidy("--list").stdout.splitlines()}
        text = (HERE / "CMakeLists.txt").read_text(encoding="utf-8")
        registered = set(re.search(r"foreach\(rule ([^)]*)\)", text)[1].split())
        tested = {test.rule for test in RuleTest.__subclasses__()}
        self.assertTrue(listed)
        self.assertEqual(registered, listed)
        self.assertEqual(tested, listed)


if __name__ == "__main__":
    unittest.main()
