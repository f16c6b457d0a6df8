"""Generates the mutants of a source from its text.

A mutant replaces one range of the text within the code: comments, preprocessor lines, texts and
declarations have none. The source is formatted by clang-format, so a binary operator has spaces
around it, and an angle bracket of a template has not.
"""

import dataclasses
import re

TOKEN = re.compile(r"""
    (?P<skip>\s+|//[^\n]*|/\*.*?\*/|^[ ]*\#(?:[^\n\\]|\\.)*(?:\\\n[^\n]*)*)
  | (?P<text>(?:u8|[uUL])?R"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)"|(?:u8|[uUL])?"(?:[^"\\\n]|\\.)*"
            |(?:u8|[uUL])?'(?:[^'\\\n]|\\.)+')
  | (?P<number>(?:0[xX][0-9a-fA-F']+|\d[\d']*(?:\.\d*)?(?:[eE][+-]?\d+)?|\.\d+)\w*)
  | (?P<word>[A-Za-z_]\w*)
  | (?P<sign><=>|<<=|>>=|<=>|->\*|\.\.\.|::|->|\+\+|--|<<|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|.)
""", re.VERBOSE | re.DOTALL | re.MULTILINE)

BINARY = {"<": ("<=", ">="), "<=": ("<", ">"), ">": (">=", "<="), ">=": (">", "<"), "==": ("!=",),
          "!=": ("==",), "+": ("-",), "-": ("+",), "*": ("/",), "/": ("*",), "%": ("*",),
          "&&": ("||",), "||": ("&&",), "&": ("|",), "|": ("&",), "+=": ("-=",), "-=": ("+=",),
          "*=": ("/=",), "/=": ("*=",), "|=": ("&=",), "&=": ("|=",), "?": ("|| true ?", "&& false ?")}
UNARY = {"++": "--", "--": "++", "!": ""}
WORDS = {"true": "false", "false": "true"}
# A statement that begins with one of these is a declaration, or is made of others.
NOT_REMOVED = {"return", "if", "for", "while", "do", "else", "switch", "case", "default", "try", "catch",
               "const", "constexpr", "static", "auto", "using", "typedef", "struct", "class", "enum",
               "union", "template", "namespace", "friend", "public", "private", "protected",
               "explicit", "virtual", "inline", "extern", "static_assert", "goto", "thread_local"}
OPENING = {"(": ")", "[": "]", "{": "}"}


@dataclasses.dataclass(frozen=True)
class Mutant:
    """The replacement of text[start:end] in a file by another text."""
    file: str
    line: int
    column: int
    # The first line of the range, without its indentation.
    source: str
    start: int
    end: int
    old: str
    new: str

    def change(self):
        """The change on one line."""
        new = self.new.removeprefix(f"{self.old}; ")
        return f"{' '.join(self.old.split())} -> {' '.join(new.split()) or 'nothing'}"

    def without_place(self):
        """The name of the mutant in the list of equivalents, where a line number would go stale."""
        return f"{self.file}: {self.source}: {self.change()}"

    def __str__(self):
        return f"{self.file}:{self.line}:{self.column}: {self.change()}"

    def applied(self, text):
        """The source with the fault, with as many lines as before."""
        lost = text[self.start:self.end].count("\n") - self.new.count("\n")
        return text[:self.start] + self.new + "\n" * lost + text[self.end:]


@dataclasses.dataclass
class Token:
    kind: str
    text: str
    start: int
    end: int
    # The index of the bracket that closes this one, and the innermost bracket that is open here.
    closing: int = -1
    bracket: str = ""
    in_code: bool = False


def tokens_of(text):
    """The tokens without white space, comments and preprocessor lines; brackets are matched."""
    tokens = [Token("text" if match.lastgroup == "mark" else match.lastgroup, match[0], *match.span())
              for match in TOKEN.finditer(text) if match.lastgroup != "skip"]
    opened = []
    for index, token in enumerate(tokens):
        if token.kind == "sign" and token.text in OPENING.values() and opened:
            tokens[opened.pop()].closing = index
        token.bracket = tokens[opened[-1]].text if opened else ""
        if token.kind == "sign" and token.text in OPENING:
            opened.append(index)
    mark_code(tokens)
    return tokens


def mark_code(tokens):
    """Marks what is inside functions and initialisers, and not in a namespace's or a class's own scope."""
    scopes = []
    statement = []
    for token in tokens:
        if token.text == "{" and token.kind == "sign":
            inside = bool(scopes) and scopes[-1]
            words = [each.text for each in statement]
            heads = {"namespace", "class", "struct", "enum", "union"}
            scopes.append(inside or not heads & set(words[:2]) or "(" in words)
            token.in_code = inside
            statement = []
            continue
        if token.text == "}" and token.kind == "sign":
            if scopes:
                scopes.pop()
            statement = []
            continue
        # A constant outside of functions: what follows its equals sign.
        token.in_code = (bool(scopes) and scopes[-1]) or any(each.text == "=" for each in statement)
        statement = [] if token.text == ";" else statement + [token]


def number_after(text):
    """Another number of the same type; None if the token is none of the simple decimal ones."""
    match = re.fullmatch(r"([\d']+)(\.\d*)?([fFuUlLzZ]*)", text)
    if not match:
        return None
    whole, fraction, suffix = match.groups()
    whole = whole.replace("'", "")
    if fraction is None:
        return f"{int(whole) + 1}{suffix}"
    value = float(whole + fraction)
    return f"{value / 2 if 0 < value < 2 else value + 1}{suffix}"


def top_level(tokens, first, last, text):
    """The first index between two at which a token with this text is in no further bracket; None if none."""
    index = first
    while index < last:
        if tokens[index].kind == "sign" and tokens[index].text == text:
            return index
        index = max(index, tokens[index].closing) + 1
    return None


def forced_conditions(text, tokens, index):
    """The changes of the condition of the if or while at this index, as (start, end, new)."""
    opening = tokens[index + 1]
    if opening.text != "(" or opening.closing < 0:
        return
    start, end = opening.end, tokens[opening.closing].start
    if tokens[index].text == "while":
        yield start, end, "false"
        return
    semicolon = top_level(tokens, index + 2, opening.closing, ";")
    if semicolon is not None:
        start = tokens[semicolon + 1].start
    for value in "true", "false":
        # Without an initialiser, the condition becomes one, because it may declare a variable.
        yield start, end, value if semicolon is not None else f"{text[start:end]}; {value}"


def begins_statement(tokens, index):
    """Whether the token follows the end of another statement, a brace or a label of a switch."""
    before = tokens[index - 1] if index else None
    if before is None or before.kind != "sign" or tokens[index].bracket != "{":
        return False
    while before.text == ":" and index > 1:
        index -= 1
        if tokens[index - 1].text in ("case", "default"):
            return True
        if tokens[index - 1].text in (";", "{", "}", "?"):
            return False
        before = Token("sign", ":", 0, 0)
    return before.text in (";", "{", "}")


def end_of_removable(tokens, first):
    """The index of the semicolon of the statement that begins here; None if it cannot be removed."""
    token = tokens[first]
    # After a brace, another sign continues an expression.
    if token.text in NOT_REMOVED or token.text in (";", "{", "}") or (
            tokens[first - 1].text == "}" and token.kind != "word" and token.text not in ("++", "--")):
        return None
    last = top_level(tokens, first, len(tokens), ";")
    closing = top_level(tokens, first, len(tokens), "}")
    if last is None or (closing is not None and closing < last):
        return None
    if token.text in ("break", "continue", "delete", "throw") or token.kind == "sign":
        return last
    # Two words in a row, or a word after an angle bracket or a star, declare a variable.
    index = first
    while index < last:
        token, following = tokens[index], tokens[index + 1]
        if token.text in ("(", "=", "{") and token.kind == "sign":
            break
        if following.kind == "word" and (token.kind == "word" or token.text in (">", "*", "&", "&&")):
            return None
        index = max(index, token.closing) + 1
    return last


def changes(text, tokens):
    """All changes of a source, as (start, end, new)."""
    for index, token in enumerate(tokens):
        if not token.in_code:
            continue
        spaced = text[token.start - 1].isspace() and text[token.end].isspace()
        if token.kind == "number" and (new := number_after(token.text)):
            yield token.start, token.end, new
        elif token.kind == "word" and token.text in WORDS:
            yield token.start, token.end, WORDS[token.text]
        elif token.kind == "word" and token.text in ("if", "while"):
            yield from forced_conditions(text, tokens, index)
        elif token.kind == "sign" and token.text in UNARY:
            yield token.start, token.end, UNARY[token.text]
        elif token.kind == "sign" and spaced:
            for new in BINARY.get(token.text, ()):
                yield token.start, token.end, new
        if begins_statement(tokens, index):
            last = end_of_removable(tokens, index)
            if last is not None:
                yield token.start, tokens[last].start, ""


def mutants_of(file, text):
    """The mutants of a source, in the order of its text."""
    found = []
    for start, end, new in changes(text, tokens_of(text)):
        first = text.rfind("\n", 0, start) + 1
        found.append(Mutant(file, text.count("\n", 0, start) + 1, start - first + 1,
                            text[first:text.find("\n", start)].strip(), start, end, text[start:end], new))
    return found
