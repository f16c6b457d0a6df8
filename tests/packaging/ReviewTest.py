"""The review of the Mac half is of the present sources: it names every file of macos/ and every function
of the system that the application calls. And the proof that the check can fail."""

import re
import sys
import unittest

sys.dont_write_bytecode = True

import source_rules  # noqa: E402

_CALL = re.compile(r"(?<![\w.>])((?:AX|CA|CF|CG|CT|NS|dispatch_)\w+)\s*\(")
# Our own owner of Core Foundation's objects, and types and macros that look like calls.
_NO_CALLS = re.compile(r"CFRef|CFSTR|NSEC_PER_SEC|NSAccessibility\w*Role|NS_\w+|CG_\w+")


def findings(files, review):
    """What the review leaves out."""
    left_out = []
    for file in files:
        if file.top == "macos" and file.path.suffix == ".mm" and file.path.name not in review:
            left_out.append(f"{file} is not in the review")
        if str(file) == "Orvane/platform/Quartz.hpp":
            continue
        for number, line in file.code_lines():
            for call in _CALL.findall(line):
                if not _NO_CALLS.fullmatch(call) and not re.search(rf"\b{call}\b", review):
                    left_out.append(f"{file}:{number}: {call} is not in the review")
    return left_out


class TheReview(unittest.TestCase):
    """docs/macos-review.md against the sources."""

    def test_it_names_every_file_and_every_call(self):
        review = (source_rules.ROOT / "docs" / "macos-review.md").read_text(encoding="utf-8")
        self.assertEqual(findings(source_rules.sources(), review), [])

    def test_what_is_left_out_is_found(self):
        files = source_rules.sources()
        review = (source_rules.ROOT / "docs" / "macos-review.md").read_text(encoding="utf-8")
        for name in ("CGEventTapCreate", "CTLineDraw", "dispatch_after", "Handover.mm", "NSPointInRect"):
            self.assertNotEqual(findings(files, review.replace(name, "")), [], name)


if __name__ == "__main__":
    unittest.main()
