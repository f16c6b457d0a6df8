"""Every file begins with a comment on its purpose."""

STARTS = {
    ".hpp": ("//",), ".cpp": ("//",), ".mm": ("//",),
    ".cmake": ("#",), ".py": ('"""',), ".sh": ("#",), ".yml": ("#",), ".desk": ("#",),
    ".in": ("//", "<!--", "#"),
}
NAMES = {"CMakeLists.txt": ("#",), ".clang-format": ("#",), ".clang-tidy": ("#",)}
SCRIPT_STARTS = ("# ", '"""')


def check(project):
    """Every source, script and build file begins with a comment."""
    for file in project.files:
        lines = [line for line in file.lines if line.strip()]
        if lines and lines[0].startswith("#!"):
            starts, lines = SCRIPT_STARTS, lines[1:]
        else:
            starts = NAMES.get(file.path.name) or STARTS.get(file.path.suffix)
        # A property list must begin with its declaration and type.
        while lines and lines[0].startswith(("<?xml", "<!DOCTYPE")):
            lines = lines[1:]
        if starts and not (lines and lines[0].startswith(starts)):
            yield file, 1, "does not begin with a comment that says what it is for"
