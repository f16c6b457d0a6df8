"""A long file has more than one responsibility."""

MAXIMUM_LINES = 450


def check(project):
    """No C++ file has more than 450 lines."""
    for file in project.cpp:
        count = file.text.count("\n")
        if count > MAXIMUM_LINES:
            yield file, MAXIMUM_LINES + 1, f"has {count} lines; it holds more than one thing"
