"""A file is named after what it holds."""

import re

# Headers that are not named after a type, and why.
EXCEPTIONS = {
    "Orvane/platform/Quartz.hpp": "the platform's own words, which are not ours to rename",
    "desk/machine/Event.hpp": "declares the platform's __CGEvent",
    "desk/canvas/CairoPointers.hpp": "owners of a library's objects, one name for each kind",
}
# The headers that any folder of a platform may implement.
PLATFORM_HEADERS = "Orvane/platform/appkit"
# Folders that implement functions declared by the platform or its compiler, one group per file.
FOREIGN_FOLDERS = {"desk/quartz", "macos/quartz", "macos/runtime"}
ENTRY_POINTS = {"main", "Main"}

_TYPE = re.compile(
    r"^[ \t]*(?:template\s*<[^;{]*>\s*)?(?P<kind>class|struct|union|enum(?:\s+(?:class|struct))?)\s+"
    r"(?:\[\[[^\]]*\]\]\s*)?(?P<name>\w+(?:::\w+)*)\b(?!\s*;)|^using\s+(?P<alias>\w+)\s*=", re.MULTILINE)
_NAMESPACE = re.compile(r"^\s*namespace\s+(?P<path>[\w:]+)\s*\{", re.MULTILINE)
# A function outside of a type begins in the first column.
_FUNCTION = re.compile(r"^(?!(?:class|struct|union|enum|using|namespace|typedef|template|extern)\b)"
                       r"[\w\[][^;{}()=]*\b\w+\(", re.MULTILINE)
_TEST = re.compile(r"^\s*(?:TYPED_)?TEST(?:_[FP])?\(|^\s*RC_GTEST_(?:FIXTURE_)?PROP\(", re.MULTILINE)

_LOWER_TEST = re.compile(r"(?:\bTEST(?:_[FP])?|_PROP)\(\s*\w+,\s*[a-z]")


def check(project):
    """X.hpp declares X and is guarded; X.cpp belongs to a header; tests live in XTest.cpp, UpperCamel."""
    for file in project.cpp:
        if str(file) in EXCEPTIONS:
            continue
        if file.path.suffix == ".hpp":
            yield from _check_header(file)
        elif file.top == "tests":
            yield from _check_test(file)
        elif file.top in ("Orvane", "desk", "showroom", "macos"):
            yield from _check_source(project, file)


def _check_header(file):
    if not re.search(r"^#pragma once$", file.text, re.MULTILINE):
        yield file, 1, "no #pragma once"
    code = file.code()
    types = list(_TYPE.finditer(code))
    # Image::Implementation is in ImageImplementation.hpp.
    declared = {(match["name"] or match["alias"]).replace("::", "") for match in types}
    spaces = {match["path"].split("::")[-1] for match in _NAMESPACE.finditer(code)}
    # A family is named after what its members share: HStack and VStack in Stack.hpp.
    stems = {file.path.stem, file.path.stem.removesuffix("s")}
    if not declared or any(name.startswith(stem) or name.endswith(stem)
                           for name in declared | spaces for stem in stems):
        return
    # A header of functions, with the plain values that they take and return, is named after its
    # subject; it must not declare a class.
    if _FUNCTION.search(code) and not any(match["kind"] == "class" for match in types):
        return
    yield file, 1, f"declares {', '.join(sorted(declared))} but no {file.path.stem}"


def _check_test(file):
    has_tests = bool(_TEST.search(file.code()))
    if has_tests and not file.path.stem.endswith("Test"):
        yield file, 1, f"holds tests, so its name is {file.path.stem}Test.cpp"
    if file.path.stem.endswith("Test") and not has_tests:
        yield file, 1, "is named a test and holds none"
    for match in _LOWER_TEST.finditer(file.code()):
        line = file.code().count("\n", 0, match.start()) + 1
        yield file, line, "a test's name begins with a capital letter"


def _check_source(project, file):
    folder = str(file.path.parent)
    stem = file.path.stem
    if stem in ENTRY_POINTS or folder in FOREIGN_FOLDERS:
        return
    if re.search(r"^int main\(", file.code(), re.MULTILINE):
        return
    folders = {folder} if file.top == "Orvane" else {folder, PLATFORM_HEADERS}
    owners = [other.path.stem for other in project.cpp
              if other.path.suffix == ".hpp" and str(other.path.parent) in folders]
    if not any(stem.startswith(owner) or stem.endswith(owner) for owner in owners):
        yield file, 1, f"belongs to no header: no {stem}.hpp and no shorter name is beside it"
