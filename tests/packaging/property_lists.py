"""A strict reader of property lists and .strings files: it rejects what macOS would accept silently or guess."""

import plistlib
import re
import uuid
import xml.etree.ElementTree

_HEAD = re.compile(
    r'<\?xml version="1\.0" encoding="UTF-8"\?>\n'
    r'<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1\.0//EN" '
    r'"http://www\.apple\.com/DTDs/PropertyList-1\.0\.dtd">\n')
_LEAVES = {"string", "integer", "real", "true", "false", "date", "data"}
_STRINGS_TOKEN = re.compile(
    r'\s+|/\*.*?\*/|"(?P<key>(?:[^"\\\n]|\\["\\n])*)"\s*=\s*"(?P<value>(?:[^"\\\n]|\\["\\n])*)"\s*;', re.DOTALL)


class StrictError(Exception):
    """The problem with the file."""


def _check(element):
    if element.tag in _LEAVES:
        if len(element):
            raise StrictError(f"<{element.tag}> holds another element")
        if element.tag in ("true", "false") and element.text:
            raise StrictError(f"<{element.tag}> holds text")
        return
    if element.tag not in ("dict", "array"):
        raise StrictError(f"<{element.tag}> is not an element of a property list")
    stray = [element.text] + [child.tail for child in element]
    if any(text and text.strip() for text in stray):
        raise StrictError(f"<{element.tag}> holds text")
    children = list(element)
    if element.tag == "dict":
        keys = [child.text for child in children[::2]]
        if any(child.tag != "key" for child in children[::2]) or len(children) % 2:
            raise StrictError("a <dict> is not made of keys and values")
        if len(set(keys)) != len(keys) or not all(keys):
            raise StrictError("a key is empty or duplicate")
        children = children[1::2]
    for child in children:
        _check(child)


def read(data):
    """The value of a property list, from the bytes of its file."""
    try:
        text = data.decode("utf-8")
        if not _HEAD.match(text):
            raise StrictError("does not begin with the declaration and the type of a property list")
        if re.search(r"\$\{|@\w+@", text):
            raise StrictError("holds a variable that was not substituted")
        root = xml.etree.ElementTree.fromstring(text.encode("utf-8"))
        if root.tag != "plist" or root.attrib != {"version": "1.0"} or len(root) != 1:
            raise StrictError("is not one <plist> with one value")
        _check(root[0])
        return plistlib.loads(data, fmt=plistlib.FMT_XML)
    except (UnicodeDecodeError, xml.etree.ElementTree.ParseError, ValueError) as error:
        raise StrictError(str(error)) from error


def read_strings(data):
    """The pairs of a .strings file, from its bytes."""
    try:
        text = data.decode("utf-8")
    except UnicodeDecodeError as error:
        raise StrictError(str(error)) from error
    position, pairs = 0, {}
    while position < len(text):
        match = _STRINGS_TOKEN.match(text, position)
        if not match:
            raise StrictError(f"cannot be read from here: {text[position:position + 30]!r}")
        if match["key"] is not None:
            if match["key"] in pairs:
                raise StrictError(f"{match['key']} is a duplicate")
            pairs[match["key"]] = match["value"]
        position = match.end()
    return pairs


def is_uuid(text):
    """Whether the text is a UUID in the form that profiles require: upper case, with hyphens."""
    try:
        return str(uuid.UUID(text)).upper() == text
    except ValueError:
        return False
