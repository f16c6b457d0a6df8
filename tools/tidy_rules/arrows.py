"""Which part may include which."""

import re

# For each part of Orvane/, the other parts that it may include. Every part may include base and the
# header FOR_EVERYONE. Windows and panels use the platform, so they may include platform/.
ALLOWED = {
    "base": set(),
    "ui": set(),
    "platform": {"ui"},
    "geometry": {"platform"},
    "guard": {"geometry", "platform"},
    "permission": {"ui", "platform"},
    "model": {"guard", "geometry", "permission", "platform"},
    "windows": {"ui", "model", "platform"},
    "panels": {"ui", "model", "windows", "platform"},
    "app": {"base", "ui", "platform", "geometry", "guard", "permission", "model", "windows",
            "panels"},
}
FOR_EVERYONE = {"Orvane/model/OrvaneLanguage.hpp"}

# For each top folder, the others that it may include.
TOPS = {
    "Orvane": set(),
    "desk": {"Orvane"},
    "macos": {"Orvane"},
    "tests": {"Orvane", "desk", "macos", "bench"},
    "bench": {"Orvane", "desk"},
    "fuzz": {"Orvane", "desk"},
}

_INCLUDE = re.compile(r'^\s*#\s*(?:include|import)\s*(?P<kind>["<])(?P<path>[^">]+)[">]')


def check(project):
    """Parts include only the parts that lie below them, and always by the path from the root."""
    for file in project.below(*TOPS):
        for number, line in file.code_lines(keep_literals=True):
            match = _INCLUDE.match(line)
            if not match:
                continue
            path = match["path"]
            target = path.split("/")
            if match["kind"] == "<":
                if target[0] in TOPS and len(target) > 1:
                    yield file, number, f"{path} is ours and belongs in double quotes"
                continue
            if not (project.exists(path) or project.exists(path + ".in")):
                yield file, number, f"{path} is no path from the root of the project"
                continue
            finding = _forbidden(file.path.parts, target, path)
            if finding:
                yield file, number, finding


def _forbidden(source, target, path):
    if target[0] != source[0]:
        if target[0] not in TOPS[source[0]]:
            return f"{source[0]} may not include {path}"
        return None
    if source[0] != "Orvane" or path in FOR_EVERYONE:
        return None
    here, there = source[1], target[1]
    if here not in ALLOWED:
        return f"Orvane/{here} is no known part; say in the arrows what it may include"
    if there not in ALLOWED[here] | {here} | ({"base"} if here != "base" else set()):
        return f"{here} may not include {path}"
    return None
