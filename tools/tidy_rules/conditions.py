"""The application is portable: no conditional compilation except at the seam."""

import re

SEAM = "Orvane/platform/Quartz.hpp"
_CONDITION = re.compile(r"^\s*#\s*(if|ifdef|ifndef|elif|elifdef|elifndef)\b")
_ALLOWED_AT_SEAM = re.compile(r"^\s*#\s*ifdef\s+__APPLE__\s*$")


def check(project):
    """No #if of any kind in Orvane/ except the one that selects the platform's C headers."""
    for file in project.below("Orvane"):
        at_seam = 0
        for number, line in file.code_lines():
            if not _CONDITION.match(line):
                continue
            if str(file) == SEAM and _ALLOWED_AT_SEAM.match(line):
                at_seam += 1
                if at_seam == 1:
                    continue
            yield file, number, f"conditional compilation: {line.strip()}"
