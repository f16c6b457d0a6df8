#!/usr/bin/env python3
"""Compares the text positions that the walk found with the stored list of the simulated Mac.

Usage: compare_layout.py KEPT WALKED
In both languages and appearances every text must be present, in the same order, with its box within
two points.
"""

import sys

MAXIMUM_POINTS = 2


def read(path):
    """Pairs of text and box, by window name."""
    windows = {}
    with open(path, encoding="utf-8") as file:
        for line in file:
            name, text, *box = line.rstrip("\n").split("\t")
            windows.setdefault(name, []).append((text, [float(value) for value in box]))
    return windows


def differences(kept, walked):
    """Descriptions of the differences."""
    if not walked:
        yield "the walk has found no window"
    for name, found in walked.items():
        language, _, window = name.split("-")
        expected = kept.get(f"{language}-{window}", [])
        if [text for text, _ in found] != [text for text, _ in expected]:
            yield f"{name}: {[text for text, _ in found]} instead of {[text for text, _ in expected]}"
            continue
        for (text, box), (_, kept_box) in zip(found, expected):
            if max(abs(a - b) for a, b in zip(box, kept_box)) > MAXIMUM_POINTS:
                yield f"{name}: {text} at {box} instead of {kept_box}"
    missing = {f"{name[:2]}-{appearance}{name[2:]}" for name in kept
               for appearance in ("light", "dark")} - set(walked)
    for name in sorted(missing):
        yield f"{name} is missing"


def main():
    found = list(differences(read(sys.argv[1]), read(sys.argv[2])))
    for line in found:
        print(line)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
