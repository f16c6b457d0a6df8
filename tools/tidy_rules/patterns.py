"""Patterns that must not occur in the code, or in any file, each with the reason."""

import re

# The window's frame pump is the one place where simulated time meets real time.
FRAME_PUMP = "desk/window/FramePump."

_WALL_CLOCK = re.compile(
    r"\b(?:system|steady|high_resolution|utc|tai|gps|file)_clock\b"
    r"|\b(?:gettimeofday|clock_gettime|timespec_get|mach_absolute_time|localtime(?:_r)?|gmtime(?:_r)?"
    r"|ftime|rdtsc|__rdtsc|nanosleep|usleep|sleep_for|sleep_until|SDL_GetTicks(?:64)?"
    r"|SDL_GetPerformanceCounter|SDL_AddTimer|SDL_Delay|g_get_monotonic_time|g_get_real_time)\b"
    r"|(?<![\w.>:])(?:std::|::)?(?:time|sleep)\s*\(\s*(?:nullptr|NULL|&\s*\w+|\d+)\s*\)"
    r"|(?<!\w)(?:std)?::clock\s*\(")
_CHANCE = re.compile(r"\brandom_device\b|(?<![\w.>])(?:std::|::)?s?rand(?:om)?\s*\(|\bdrand48\b"
                     r"|\barc4random\w*|\bgetentropy\b|\bgetrandom\b")
_UNORDERED = re.compile(r"\bunordered_(?:multi)?(?:set|map)\b")
# Written so that the pattern does not match itself.
_UNFINISHED = re.compile(r"\b(?:TO[D]O|FIX[M]E|XX[X]|HA[C]K)\b|\bDISABL[E]D_|\bGTEST_SK[I]P\b"
                         r"|\bnot (?:yet )?implement[e]d\b")
# The only place where a test may be skipped: a test cannot revoke a real Mac's permissions or
# detach its displays.
_MAY_SKIP = "tests/contract/Arrange.hpp"
_MACHINE_PATH = re.compile(r"(?<![\w.~/$}])/(?:home|Users|root|work|mnt|media)/[\w.-]+")
_ADDRESS = re.compile(r"\b(?:https?|ftp|git)://(?P<host>[\w-]+(?:\.[\w-]+)+)")
# Placeholder hosts, documents that the project links to, and identifiers of formats.
_KNOWN_HOSTS = re.compile(r"(?:.*\.)?example(?:\.com|\.org)?$|www\.w3\.org$|www\.apple\.com$"
                          r"|keepachangelog\.com$|semver\.org$|json-schema\.org$")
# The script that clones repositories names their origin.
_MAY_CLONE = "tools/gnustep"


def _in_code(project, tops, pattern, why):
    for file in project.below(*tops):
        if str(file).startswith(FRAME_PUMP):
            continue
        for number, line in file.code_lines():
            match = pattern.search(line)
            if match:
                yield file, number, f"{match.group().strip()}: {why}"


def wall_clock(project):
    """Nothing in Orvane/ or desk/ reads a real clock or waits on one, except the window's frame pump."""
    return _in_code(project, ("Orvane", "desk"), _WALL_CLOCK, "time comes from the machine's clock")


def chance(project):
    """Nothing in Orvane/ or desk/ uses random numbers: the same script gives the same output."""
    return _in_code(project, ("Orvane", "desk"), _CHANCE, "the same input must give the same output")


def order(project):
    """No container in Orvane/ or desk/ has an order that depends on hashes."""
    return _in_code(project, ("Orvane", "desk"), _UNORDERED, "take a container with an order")


def _in_text(project, pattern, why, is_allowed=lambda match: False):
    for file in project.files:
        for number, line in enumerate(file.lines, start=1):
            for match in pattern.finditer(line):
                if not is_allowed(match):
                    yield file, number, f"{match.group()}: {why}"


def unfinished(project):
    """No mark of unfinished work and no disabled test, in any file."""
    for file, number, text in _in_text(project, _UNFINISHED, "finish it or take it out"):
        if not (str(file) == _MAY_SKIP and text.startswith("GTEST_")):
            yield file, number, text


def addresses(project):
    """No path of a specific machine and no address of a server, in any file."""
    yield from _in_text(project, _MACHINE_PATH, "a path of one machine")
    for file, number, text in _in_text(project, _ADDRESS, "an address of a server",
                                       lambda match: _KNOWN_HOSTS.match(match["host"])):
        if str(file) != _MAY_CLONE:
            yield file, number, text
