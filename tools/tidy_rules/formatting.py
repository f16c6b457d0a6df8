"""The code is formatted with clang-format 14."""

import re
import shutil
import subprocess

# Enough files per call that the program's start-up time is negligible.
BATCH = 64


def check(project):
    """Every C++ file is formatted with clang-format 14."""
    program = _program()
    if not program:
        yield "tools/tidy", 1, "clang-format 14 is not installed"
        return
    names = [str(file) for file in project.cpp]
    for start in range(0, len(names), BATCH):
        result = subprocess.run([program, "--dry-run", *names[start:start + BATCH]],
                                cwd=project.root, stderr=subprocess.PIPE, text=True, check=False)
        seen = set()
        for match in re.finditer(r"^(.+?):(\d+):\d+: (?:warning|error): (.*)$", result.stderr,
                                 re.MULTILINE):
            if match[1] not in seen:
                seen.add(match[1])
                yield match[1], match[2], "not formatted; run clang-format -i on it"
        if result.returncode != 0 and not seen:
            yield "tools/tidy", 1, f"clang-format failed: {result.stderr.strip()}"


def _program():
    for name in ("clang-format-14", "clang-format"):
        path = shutil.which(name)
        if path:
            version = subprocess.run([path, "--version"], capture_output=True, text=True,
                                     check=False).stdout
            if re.search(r"version 14\.", version):
                return path
    return None
