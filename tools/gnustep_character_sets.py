#!/usr/bin/env python3
"""Writes NSCharacterSetData.h, the largest file of GNUstep's base library, from Python's Unicode tables, for
a clone that lacks it. Usage: gnustep_character_sets.py FILE"""

import string
import sys
import unicodedata

BYTES = 0x110000 // 8
NEWLINES = "\n\v\f\r\x85\u2028\u2029"
UNRESERVED = string.ascii_letters + string.digits + "-._~"
IN_URL = UNRESERVED + "!$&'()*+,;="

# By the set's name: whether it contains a character of a category.
SETS = {
    "alphanumericCharSet": lambda char, kind: kind[0] in "LMN",
    "titlecaseLetterCharSet": lambda char, kind: kind == "Lt",
    "controlCharSet": lambda char, kind: kind in ("Cc", "Cf"),
    "decimalDigitCharSet": lambda char, kind: kind == "Nd",
    "decomposableCharSet": lambda char, kind: unicodedata.normalize("NFD", char) != char,
    "illegalCharSet": lambda char, kind: kind == "Cn",
    "letterCharSet": lambda char, kind: kind[0] in "LM",
    "lowercaseLetterCharSet": lambda char, kind: kind == "Ll",
    "newlineCharSet": lambda char, kind: char in NEWLINES,
    "nonBaseCharSet": lambda char, kind: kind[0] == "M",
    "punctuationCharSet": lambda char, kind: kind[0] == "P",
    "symbolAndOperatorCharSet": lambda char, kind: kind[0] == "S",
    "uppercaseLetterCharSet": lambda char, kind: kind in ("Lu", "Lt"),
    "whitespaceAndNlCharSet": lambda char, kind: kind == "Zs" or char in "\t" + NEWLINES,
    "whitespaceCharSet": lambda char, kind: kind == "Zs" or char == "\t",
    "URLFragmentAllowedCharSet": lambda char, kind: char in IN_URL + ":@/?",
    "URLPasswordAllowedCharSet": lambda char, kind: char in IN_URL,
    "URLPathAllowedCharSet": lambda char, kind: char in IN_URL + ":@/",
    "URLQueryAllowedCharSet": lambda char, kind: char in IN_URL + ":@/?",
    "URLUserAllowedCharSet": lambda char, kind: char in IN_URL,
    "URLHostAllowedCharSet": lambda char, kind: char in IN_URL + ":[]",
}


def bitmap(is_in):
    """One bit per character, without trailing zero bytes."""
    bits = bytearray(BYTES)
    for code in range(0x110000):
        if is_in(chr(code), unicodedata.category(chr(code))):
            bits[code >> 3] |= 1 << (code & 7)
    return bytes(bits).rstrip(b"\0")


def main():
    with open(sys.argv[1], "w", encoding="ascii") as file:
        for name, is_in in SETS.items():
            values = ",".join(map(str, bitmap(is_in)))
            file.write(f"static const unsigned char {name}[] = {{{values}}};\n")


if __name__ == "__main__":
    main()
