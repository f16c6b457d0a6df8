"""A long file holds two things."""

MOST_LINES = 450


def check(project):
    """No C++ file has more than 450 lines."""
    for file in project.cpp:
        count = file.text.count("\n")
        if count > MOST_LINES:
            yield file, MOST_LINES + 1, f"has {count} lines; it holds more than one thing"
