"""Functions and constants of headers that nothing defines or uses."""

import collections
import re

HEADERS = ("Orvane", "desk", "showroom")
# A use in a test does not count: what only tests use is not needed.
USERS = ("Orvane", "desk", "showroom", "macos", "bench", "fuzz")

# What only tests use, and why it is there.
EXCEPTIONS = {
    "Orvane/platform/appkit/HostingView.hpp: fittingSize": "the contract tests observe updates by it",
    "Orvane/platform/appkit/Window.hpp: isKeyWindow": "the contract tests observe the focus by it",
    "Orvane/ui/host/ViewHost.hpp: dumpTree": "debuggers call it, and failing tests print it",
    "desk/canvas/PngFile.hpp: readPng": "tests compare pictures with kept ones",
    "desk/hand/FindControl.hpp: findControl": "the hand of the view kit's tests",
    "desk/hand/FindControl.hpp: findControls": "tests of every control of a window",
    "desk/machine/ObjectRegistry.hpp: referenceCount": "tests observe who owns an object by it",
    "desk/machine/PlatformCalls.hpp: startRecording": "tests check the order of calls",
    "desk/machine/PlatformCalls.hpp: stopRecording": "tests check the order of calls",
    "desk/machine/RunLoop.hpp: pendingTaskCount": "tests observe what waits by it",
    "desk/machine/RunLoop.hpp: wakeUpCount": "tests limit the wake-ups",
    "showroom/gallery/GallerySheet.hpp: gallerySheetNamed": "tests choose sheets by name",
    "showroom/gallery/Specimen.hpp: appear": "tests show a specimen in every appearance",
    "showroom/hardware/HardwarePanelHost.hpp: scrolled": "tests observe the scroll position by it",
    "showroom/window/WindowPicture.hpp: drawnCount": "tests limit the drawing",
}

_TEMPLATE_ARGUMENTS = re.compile(r"<[^<>;{}]*>")
_ATTRIBUTE = re.compile(r"\[\[[^\]]*\]\]|alignas\([^)]*\)")
_TYPE = re.compile(r"\b(?:class|struct|union)\s+(?:\w+::)*(\w+)[^=()]*$")
_FUNCTION = re.compile(r"^(?P<type>[^=()]*[\w&*>]\s[\s&*]*|[^=()]*[&*]\s*)(?P<name>[a-z]\w*)\s*\(")
_CONSTANT = re.compile(r"\bconstexpr\b[^=;{}()]*\b([a-z]\w*)\s*[={]")
_NO_FUNCTION = re.compile(r"\b(?:friend|using|typedef|return|static_assert|operator)\b")
_DEFINED_ELSEWHERE = re.compile(r"=\s*(?:0|default|delete)\s*$")
_QUALIFIED = re.compile(r"\b(\w+)(?:<[^<>;{}]*>)?::(\w+)\s*\(")
_WORD = re.compile(r"\b[a-z]\w*\b")
# Words before a name that is called, not declared.
_BEFORE_A_CALL = re.compile(r"(?:\b(?:return|else|throw|new|case|do|co_return)|->|[^\w&*>\]\s]|\s[&*>]+)\s*$")


def check(project):
    """Every function and constant of a header is defined, and used outside of the tests."""
    uses = collections.Counter()
    qualified = set()
    for file in project.below(*USERS):
        qualified.update(match.groups() for match in _QUALIFIED.finditer(file.code()))
        for _, line in file.code_lines():
            uses.update(_used_names(line))
    for file in project.below(*HEADERS):
        if file.path.suffix != ".hpp":
            continue
        for line, type_name, name, has_body in _functions(file.code()):
            if not uses[name] and f"{file}: {name}" not in EXCEPTIONS:
                yield file, line, f"only tests use {name}, if anything"
            elif type_name and not has_body and (type_name, name) not in qualified:
                yield file, line, f"{type_name}::{name} is declared and not defined"
        for line, text in file.code_lines():
            # The declaration counts as one use.
            for match in _CONSTANT.finditer(text):
                if uses[match[1]] == 1:
                    yield file, line, f"only tests use {match[1]}, if anything"


def _used_names(line):
    """The names in a line of code, without those of the functions that it declares or defines."""
    for match in _WORD.finditer(line):
        before, after = line[:match.start()], line[match.end():]
        if after.startswith("("):
            is_definition = before.endswith("::") and not re.match(r"\s|.*[=(]", before)
            if is_definition or (before.strip() and not _BEFORE_A_CALL.search(before)):
                continue
        yield match.group()


def _functions(code):
    """The functions of a header outside of other functions: line, type (or ""), name, whether inline."""
    scopes = []
    start = 0
    for match in re.finditer(r"[{};]|\b(?:public|private|protected):|^#.*$", code, re.MULTILINE):
        statement = _ATTRIBUTE.sub("", code[start:match.start()])
        while _TEMPLATE_ARGUMENTS.search(statement):
            statement = _TEMPLATE_ARGUMENTS.sub("", statement)
        mark = match.group()
        function = None
        if mark in "{;" and None not in scopes and not _NO_FUNCTION.search(statement):
            function = _FUNCTION.match(statement.lstrip())
            is_elsewhere = _DEFINED_ELSEWHERE.search(statement)
            if function and not re.match(r"\s*(?:template\s*)?(?:class|struct)\s+\w+\s*$", statement):
                line = code.count("\n", 0, match.start()) + 1
                yield (line, scopes[-1] if scopes else "", function["name"],
                       mark == "{" or bool(is_elsewhere))
        if mark == "{":
            kind = _TYPE.search(statement)
            is_namespace = re.search(r"\bnamespace\b|\bextern\b", statement)
            scopes.append("" if is_namespace else kind[1] if kind and not function and
                          "enum" not in statement else None)
        elif mark == "}" and scopes:
            scopes.pop()
        start = match.end()
