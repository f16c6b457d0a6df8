"""Which part may include which."""

import re

# For each part of Orvane/, the other parts that it may include. Every part may include base and the
# header FOR_EVERYONE. Windows and panels use the platform, so they may include platform/.
APPLICATION = {
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
# The same for the folders of the view kit,
KIT = {
    "layout": set(),
    "draw": {"layout"},
    "views": {"draw", "host", "layout"},
    "host": {"draw", "layout", "views"},
}
# for the simulated Mac, and for what shows it.
DESK = {
    "canvas": set(),
    "symbols": set(),
    "machine": set(),
    "quartz": {"machine"},
    "windows": {"canvas", "machine"},
    "appkit": {"canvas", "machine", "quartz", "windows"},
    "hand": {"machine", "windows"},
    "settings": {"hand", "machine", "windows"},
    "application": {"machine", "settings", "windows"},
    "script": {"application", "hand", "machine", "quartz", "windows"},
    "explore": {"application", "canvas", "hand", "machine", "script", "windows"},
}
SHOWROOM = {
    "desktop": set(),
    "gallery": {"desktop"},
    "hardware": {"desktop"},
    "settings": set(),
    "tour": {"desktop", "settings"},
    "window": {"desktop", "hardware", "settings"},
}
# Puts the parts together.
MAIN_FILE = ("showroom", "Main.cpp")
ALLOWED = {("Orvane",): APPLICATION, ("Orvane", "ui"): KIT, ("desk",): DESK,
           ("showroom",): SHOWROOM}
FOR_EVERYONE = {"Orvane/model/OrvaneLanguage.hpp"}

# For each top folder, the others that it may include.
TOPS = {
    "Orvane": set(),
    "desk": {"Orvane"},
    "showroom": {"Orvane", "desk"},
    "macos": {"Orvane"},
    "tests": {"Orvane", "desk", "showroom", "macos", "bench"},
    "bench": {"Orvane", "desk", "showroom"},
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
    if path in FOR_EVERYONE or source == MAIN_FILE:
        return None
    for above, parts in ALLOWED.items():
        depth = len(above)
        if not source[:depth] == tuple(target[:depth]) == above or len(source) < depth + 2:
            continue
        here, there = source[depth], target[depth]
        if here not in parts:
            return f"{'/'.join(source[:-1])} is no known part; say in the arrows what it may include"
        everyones = {"base"} if above == ("Orvane",) and here != "base" else set()
        if there not in parts[here] | {here} | everyones:
            return f"{'/'.join((*above, here))} may not include {path}"
    return None
