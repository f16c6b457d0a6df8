"""The project's files: their text, and their code without comments."""

import os
import pathlib
import re

# Folders that are not part of the project.
FOREIGN_FOLDERS = {".git", "build", ".cache", "__pycache__"}
CPP_ENDINGS = {".hpp", ".cpp", ".mm"}

_LITERAL_OR_COMMENT = re.compile(
    r'//(?:[^\n\\]|\\.)*'
    r'|/\*.*?\*/'
    r'|\b(?:u8|u|U|L)?R"(?P<mark>[^()\s\\]{0,16})\(.*?\)(?P=mark)"'
    r'|"(?:[^"\\\n]|\\.)*"'
    r"|(?<![0-9a-zA-Z_])'(?:[^'\\\n]|\\.)*'",
    re.DOTALL)


def _blank(text):
    """The text with everything but line breaks replaced by spaces."""
    return re.sub(r"[^\n]", " ", text)


class SourceFile:
    """One file, by its path from the root of the project."""

    def __init__(self, root, path):
        self.path = pathlib.PurePosixPath(path)
        self.absolute = pathlib.Path(root, path)
        self._text = None
        self._code = {}

    def __str__(self):
        return str(self.path)

    @property
    def is_cpp(self):
        return self.path.suffix in CPP_ENDINGS

    @property
    def top(self):
        """The first folder, such as "desk"; empty for a file in the root."""
        return self.path.parts[0] if len(self.path.parts) > 1 else ""

    @property
    def text(self):
        """Empty for a file that is not text."""
        if self._text is None:
            try:
                self._text = self.absolute.read_text(encoding="utf-8")
            except UnicodeDecodeError:
                self._text = ""
        return self._text

    @property
    def lines(self):
        return self.text.split("\n")

    def code(self, keep_literals=False):
        """C++ with comments, and by default literals, replaced by spaces."""
        if keep_literals not in self._code:
            def replacement(match):
                is_comment = match.group().startswith(("//", "/*"))
                return match.group() if keep_literals and not is_comment else _blank(match.group())
            self._code[keep_literals] = _LITERAL_OR_COMMENT.sub(replacement, self.text)
        return self._code[keep_literals]

    def code_lines(self, keep_literals=False):
        """Pairs of line number and code."""
        return enumerate(self.code(keep_literals).split("\n"), start=1)


class Project:
    """All files below a folder, in the order of their paths."""

    def __init__(self, root):
        self.root = pathlib.Path(root).resolve()
        paths = []
        for folder, folders, names in os.walk(self.root):
            folders[:] = sorted(set(folders) - FOREIGN_FOLDERS)
            paths += [pathlib.Path(folder, name).relative_to(self.root) for name in names]
        self.files = [SourceFile(self.root, path.as_posix()) for path in sorted(paths)]

    @property
    def cpp(self):
        return [file for file in self.files if file.is_cpp]

    def below(self, *tops):
        """The C++ files of the given first folders."""
        return [file for file in self.cpp if file.top in tops]

    def exists(self, path):
        return pathlib.Path(self.root, path).is_file()
