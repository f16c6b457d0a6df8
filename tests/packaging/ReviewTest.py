"""Tests that the review of the Mac half covers the current sources: it names every file of macos/, every system
function that the application calls, and every Objective-C class and protocol that it uses. Also tests that
the check can fail."""

import re
import sys
import unittest

sys.dont_write_bytecode = True

import source_rules  # noqa: E402

_CALL = re.compile(r"(?<![\w.>])((?:AX|CA|CF|CG|CT|NS|dispatch_)\w+)\s*\(")
# The application's own smart pointer, and types and macros that look like calls.
_NO_CALLS = re.compile(r"CFRef|CFSTR|NSEC_PER_SEC|NSAccessibility\w*Role|NS_\w+|CG_\w+")
# A class as the target of a pointer, a property access or a message, or as a superclass.
_NAME = r"((?!NSRect\b)(?:NS|CA|SM)[A-Z]\w+)"
_CLASS = re.compile(rf"(?<![\w.>]){_NAME}(?=\s*(?:<[^<>()]*>\s*)?\*|\.[a-z])|(?<!@)\[\s*{_NAME}\s"
                    rf"|@interface\s+\w+\s*:\s*{_NAME}(?:\s*<{_NAME}>)?|\bid<{_NAME}>")


def names_in(line):
    """The functions, classes and protocols that a line uses."""
    return [call for call in _CALL.findall(line) if not _NO_CALLS.fullmatch(call)] + [
        name for names in _CLASS.findall(line) for name in names if name]


def used_names(files):
    """For each name that the review must contain, the first line that uses it."""
    used = {}
    for file in files:
        if file.top == "macos" and file.path.suffix == ".mm":
            used.setdefault(file.path.name, str(file))
        if str(file) == "Orvane/platform/Quartz.hpp":
            continue
        for number, line in file.code_lines():
            for name in names_in(line):
                used.setdefault(name, f"{file}:{number}")
    return used


def findings(used, review):
    """The names that the review lacks."""
    named = set(re.findall(r"\w+(?:\.mm\b)?", review))
    return [f"{place}: {name} is not in the review" for name, place in used.items() if name not in named]


class TheReview(unittest.TestCase):
    """docs/macos-review.md against the sources."""

    def test_it_names_every_file_call_and_class(self):
        review = (source_rules.ROOT / "docs" / "macos-review.md").read_text(encoding="utf-8")
        self.assertEqual(findings(used_names(source_rules.sources()), review), [])

    def test_a_missing_name_is_found(self):
        used = used_names(source_rules.sources())
        review = (source_rules.ROOT / "docs" / "macos-review.md").read_text(encoding="utf-8")
        for name in ("CGEventTapCreate", "CTLineDraw", "dispatch_after", "Handover.mm", "NSPointInRect",
                     "NSRunningApplication", "NSMenuDelegate", "NSVisualEffectView", "NSDictionary",
                     "NSDraggingSource", "CADisplayLink"):
            self.assertNotEqual(findings(used, review.replace(name, "")), [], name)


if __name__ == "__main__":
    unittest.main()
