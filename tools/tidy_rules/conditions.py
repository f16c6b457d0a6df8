"""The application is portable: no conditional compilation except in the platform header."""

import re

PLATFORM_HEADER = "Orvane/platform/Quartz.hpp"
_CONDITION = re.compile(r"^\s*#\s*(if|ifdef|ifndef|elif|elifdef|elifndef)\b")
_ALLOWED_PLATFORM_CONDITION = re.compile(r"^\s*#\s*ifdef\s+__APPLE__\s*$")


def check(project):
    """No #if of any kind in Orvane/ except the one that selects the platform's C headers."""
    for file in project.below("Orvane"):
        exempt = 0
        for number, line in file.code_lines():
            if not _CONDITION.match(line):
                continue
            if str(file) == PLATFORM_HEADER and _ALLOWED_PLATFORM_CONDITION.match(line):
                exempt += 1
                if exempt == 1:
                    continue
            yield file, number, f"conditional compilation: {line.strip()}"
