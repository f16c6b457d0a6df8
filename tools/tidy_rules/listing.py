"""Every source is built: a test that is not compiled cannot fail."""

import posixpath
import re

FOLDERS = ("Orvane", "desk", "macos", "tests", "bench", "fuzz")
_SOURCE = re.compile(r"[\w./${}-]+\.(?:cpp|mm)(?![\w.])")


def check(project):
    """Every .cpp and .mm is named in a CMake file, by its path from there or from the root."""
    listed = set()
    for file in project.files:
        if file.path.name != "CMakeLists.txt" and file.path.suffix != ".cmake":
            continue
        here = str(file.path.parent)
        for match in _SOURCE.finditer(re.sub(r"#.*", "", file.text)):
            path = match.group().replace("${CMAKE_CURRENT_SOURCE_DIR}", "/" + here)
            path = path.replace("${CMAKE_SOURCE_DIR}", "/")
            listed.add(posixpath.normpath(posixpath.join("/", here, path)).lstrip("/"))
    for file in project.below(*FOLDERS):
        if file.path.suffix != ".hpp" and str(file) not in listed:
            yield file, 1, "is in no CMakeLists.txt, so nobody builds it"
