"""A reader of Mach-O programs: processors, imports, libraries, selectors and signature."""

import dataclasses
import hashlib
import struct

_FAT_MAGIC = 0xCAFEBABE
_MAGIC_64 = 0xFEEDFACF
CPU_NUMBERS = {"x86_64": 0x01000007, "arm64": 0x0100000C}
_CPU_NAMES = {number: name for name, number in CPU_NUMBERS.items()}
_SEGMENT_64, _SYMTAB, _CODE_SIGNATURE, _BUILD_VERSION = 0x19, 0x2, 0x1D, 0x32
# Plain, weak, re-exported, lazy and upward libraries.
_LOAD_DYLIBS = {0xC, 0x80000018, 0x8000001F, 0x20, 0x80000023}
_DYNAMIC_LOOKUP = 254


class MachOError(Exception):
    """The file is not a valid program."""


@dataclasses.dataclass
class Slice:
    """The program for one processor."""
    cpu: str
    size: int
    libraries: list
    # Pairs of a name, without its leading underscore, and its library, which is None for a name
    # that the loader looks up dynamically.
    imports: list
    selectors: list
    minimum_system: str
    # Whether there is a signature, and whether its hashes match every page of the program.
    has_signature: bool
    signature_holds: bool


def _string(data, offset):
    return data[offset:data.index(b"\0", offset)].decode("utf-8")


def _version(number):
    return f"{number >> 16}.{number >> 8 & 0xFF}"


def _imports(data, symtab, libraries):
    offset, count, strings, _ = symtab
    found = []
    for index in range(count):
        name, kind, _, description, _ = struct.unpack_from("<IBBHQ", data, offset + 16 * index)
        # Only undefined external symbols, without debug entries.
        if kind & 0xE0 or kind & 0x0E or not kind & 0x01:
            continue
        ordinal = description >> 8
        library = libraries[ordinal - 1] if 1 <= ordinal <= len(libraries) else None
        if library is None and ordinal != _DYNAMIC_LOOKUP:
            raise MachOError(f"an import of the library number {ordinal}")
        found.append((_string(data, strings + name).removeprefix("_"), library))
    return found


def _section_strings(data, command, wanted):
    count = struct.unpack_from("<I", data, command + 64)[0]
    for index in range(count):
        section = command + 72 + 80 * index
        name = data[section:section + 16].rstrip(b"\0").decode()
        if name == wanted:
            size, offset = struct.unpack_from("<QI", data, section + 40)
            return [text.decode() for text in data[offset:offset + size].split(b"\0") if text]
    return []


def _signature_holds(data, offset):
    """Compares the hashes of the signature's code directory with the pages."""
    magic, _, count = struct.unpack_from(">III", data, offset)
    if magic != 0xFADE0CC0:
        raise MachOError("the signature cannot be read")
    for index in range(count):
        _, place = struct.unpack_from(">II", data, offset + 12 + 8 * index)
        directory = offset + place
        if struct.unpack_from(">I", data, directory)[0] != 0xFADE0C02:
            continue
        hashes, _, _, slots, limit, hash_size, kind, _, page = struct.unpack_from(">5I4B", data, directory + 16)
        if kind != 2:
            raise MachOError("the signature is not made of SHA-256 hashes")
        page_size = 1 << page
        return limit == offset and slots == -(-limit // page_size) and all(
            hashlib.sha256(data[slot * page_size:min((slot + 1) * page_size, limit)]).digest()
            == data[directory + hashes + slot * hash_size:directory + hashes + (slot + 1) * hash_size]
            for slot in range(slots))
    return False


def _read_slice(data):
    magic, cpu, _, _, command_count, _, _, _ = struct.unpack_from("<8I", data)
    if magic != _MAGIC_64 or cpu not in _CPU_NAMES:
        raise MachOError("not a 64-bit program of a Mac's processor")
    libraries, selectors, symtab, minimum, signature = [], [], None, "", None
    position = 32
    for _ in range(command_count):
        kind, size = struct.unpack_from("<II", data, position)
        if kind in _LOAD_DYLIBS:
            libraries.append(_string(data, position + struct.unpack_from("<I", data, position + 8)[0]))
        elif kind == _SYMTAB:
            symtab = struct.unpack_from("<IIII", data, position + 8)
        elif kind == _BUILD_VERSION:
            minimum = _version(struct.unpack_from("<I", data, position + 12)[0])
        elif kind == _SEGMENT_64:
            selectors += _section_strings(data, position, "__objc_methname")
        elif kind == _CODE_SIGNATURE:
            signature = struct.unpack_from("<I", data, position + 8)[0]
        position += size
    if symtab is None:
        raise MachOError("there is no table of symbols")
    return Slice(_CPU_NAMES[cpu], len(data), libraries, _imports(data, symtab, libraries), selectors, minimum,
                 signature is not None, signature is not None and _signature_holds(data, signature))


def read(data):
    """The slices of a program, one for each processor."""
    try:
        if struct.unpack_from(">I", data)[0] != _FAT_MAGIC:
            return [_read_slice(data)]
        slices = []
        for index in range(struct.unpack_from(">I", data, 4)[0]):
            _, _, offset, size, _ = struct.unpack_from(">5I", data, 8 + 20 * index)
            if offset + size > len(data):
                raise MachOError("the file ends too early")
            slices.append(_read_slice(data[offset:offset + size]))
        return slices
    except (struct.error, ValueError) as error:
        raise MachOError(f"the file cannot be read: {error}") from error
