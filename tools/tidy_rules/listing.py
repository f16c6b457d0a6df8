"""Every source is built: a test that nobody compiles cannot fail."""

import re

FOLDERS = ("Orvane", "desk", "macos", "tests", "bench", "fuzz")


def check(project):
    """Every .cpp and .mm is named in a CMake file of its folder or of one above it."""
    lists = {}
    for file in project.files:
        if file.path.name == "CMakeLists.txt" or file.path.suffix == ".cmake":
            text = re.sub(r"#.*", "", file.text)
            lists.setdefault(file.path.parent, []).append(text)
    for file in project.below(*FOLDERS):
        if file.path.suffix == ".hpp":
            continue
        for folder in file.path.parents:
            name = re.escape(file.path.relative_to(folder).as_posix())
            pattern = re.compile(rf"(?<![\w./]){name}(?![\w.])")
            if any(pattern.search(text) for text in lists.get(folder, [])):
                break
        else:
            yield file, 1, "is in no CMakeLists.txt, so nobody builds it"
