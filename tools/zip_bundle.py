#!/usr/bin/env python3
"""Packs an application bundle for a Mac, with permissions and symbolic links. The same bundle gives the
same bytes.

Usage: tools/zip_bundle.py BUNDLE ARCHIVE; tools/zip_bundle.py --version BUNDLE prints the bundle's version.
"""

import os
import pathlib
import plistlib
import stat
import sys
import zipfile

# The earliest time that a zip file can represent.
_TIME = (1980, 1, 1, 0, 0, 0)


def _mode(path):
    """The mode stored for a file: its type, and whether it is executable."""
    mode = os.lstat(path).st_mode
    if stat.S_ISLNK(mode):
        return stat.S_IFLNK | 0o755
    if stat.S_ISDIR(mode):
        return stat.S_IFDIR | 0o755
    return stat.S_IFREG | (0o755 if mode & stat.S_IXUSR else 0o644)


def _entries(bundle):
    """The bundle and all of its contents; links are not followed."""
    yield bundle
    for folder, folders, names in os.walk(bundle):
        folders.sort()
        for name in sorted(folders + names):
            yield pathlib.Path(folder, name)


def pack(bundle, archive):
    """Writes the archive, with the bundle as its only top-level entry."""
    with zipfile.ZipFile(archive, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as packed:
        for path in sorted(_entries(bundle)):
            mode = _mode(path)
            name = path.relative_to(bundle.parent).as_posix()
            info = zipfile.ZipInfo(name + "/" if stat.S_ISDIR(mode) else name, _TIME)
            info.create_system = 3
            info.external_attr = mode << 16 | (0x10 if stat.S_ISDIR(mode) else 0)
            info.compress_type = zipfile.ZIP_DEFLATED if stat.S_ISREG(mode) else zipfile.ZIP_STORED
            if stat.S_ISLNK(mode):
                data = os.readlink(path).encode()
            else:
                data = b"" if stat.S_ISDIR(mode) else path.read_bytes()
            packed.writestr(info, data)


def version(bundle):
    """The bundle's version."""
    return plistlib.loads((bundle / "Contents" / "Info.plist").read_bytes())["CFBundleShortVersionString"]


def main():
    if len(sys.argv) != 3:
        print(__doc__, file=sys.stderr)
        return 2
    if sys.argv[1] == "--version":
        print(version(pathlib.Path(sys.argv[2])))
    else:
        pack(pathlib.Path(sys.argv[1]).resolve(), sys.argv[2])
    return 0


if __name__ == "__main__":
    sys.exit(main())
