"""Tests that the icon fills the shape of macOS icons: 824 of 1024 units, with corners of 185.4. macOS 26 puts
other icons on a grey tile. Also tests that the check can fail."""

import math
import pathlib
import struct
import sys
import unittest
import zlib

ROOT = pathlib.Path(__file__).resolve().parents[2]
ICON = ROOT / "Orvane" / "resources" / "rendered" / "AppIcon.icns"
UNITS, MARGIN, RADIUS = 1024, 100, 185.4
# The pixels of each image type that is rendered from the drawing on this grid. The smallest two
# have separate drawings, aligned to pixels.
KINDS = {"ic12": 64, "ic07": 128, "ic08": 256}
# The system's corner deviates from a quarter circle by less than 3 units.
TOLERANCE_UNITS, TOLERANCE_PIXELS = 3, 1


def pictures(data):
    """The PNGs of an .icns file by image type."""
    found, position = {}, 8
    while position < len(data):
        kind, size = struct.unpack_from(">4sI", data, position)
        found[kind.decode()] = data[position + 8:position + size]
        position += size
    return found


def alpha_rows(png):
    """The alpha values, row by row, of a PNG with four channels of 8 bits."""
    position, packed, side, channels = 8, b"", 0, 4
    while position < len(png):
        length, kind = struct.unpack_from(">I4s", png, position)
        body = png[position + 8:position + 8 + length]
        if kind == b"IHDR":
            side, _, depth, color, _, _, interlaced = struct.unpack(">IIBBBBB", body)
            if (depth, color, interlaced) != (8, 6, 0):
                raise ValueError("not a plain picture with opacity")
        elif kind == b"IDAT":
            packed += body
        position += length + 12
    raw, stride = zlib.decompress(packed), side * channels
    rows, above = [], bytes(stride)
    for start in range(0, len(raw), stride + 1):
        kind, line = raw[start], bytearray(raw[start + 1:start + 1 + stride])
        for index in range(stride):
            left = line[index - channels] if index >= channels else 0
            corner = above[index - channels] if index >= channels else 0
            guess = left + above[index] - corner
            line[index] = line[index] + (0, left, above[index], (left + above[index]) // 2,
                                         min((left, above[index], corner), key=lambda near: abs(guess - near)))[kind] & 255
        rows.append(line[3::channels])
        above = line
    return rows


def units_outside(x, y):
    """The distance of a point from the shape; negative inside."""
    half = UNITS / 2 - MARGIN
    beyond_x, beyond_y = (abs(value - UNITS / 2) - (half - RADIUS) for value in (x, y))
    return math.hypot(max(beyond_x, 0), max(beyond_y, 0)) + min(max(beyond_x, beyond_y), 0) - RADIUS


def findings(rows):
    """Transparent pixels inside and opaque pixels outside of the shape; a shadow counts as neither."""
    scale = UNITS / len(rows)
    tolerance = TOLERANCE_UNITS + TOLERANCE_PIXELS * scale
    found = []
    for y, row in enumerate(rows):
        for x, alpha in enumerate(row):
            outside = units_outside((x + 0.5) * scale, (y + 0.5) * scale)
            if outside < -tolerance and alpha < 255 or outside > tolerance and alpha > 128:
                found.append((x, y, alpha))
    return found


class TheIcon(unittest.TestCase):
    """The committed .icns file."""

    def test_it_fills_the_shape_of_the_systems_icons(self):
        found = pictures(ICON.read_bytes())
        for kind, pixels in KINDS.items():
            rows = alpha_rows(found[kind])
            self.assertEqual(len(rows), pixels)
            self.assertEqual(findings(rows), [], kind)

    def test_another_shape_is_found(self):
        def drawn(is_inside):
            scale = UNITS / 128
            return [[255 * is_inside((x + 0.5) * scale, (y + 0.5) * scale) for x in range(128)] for y in range(128)]

        self.assertEqual(findings(drawn(lambda x, y: units_outside(x, y) < 0)), [])
        for shape in (lambda x, y: math.hypot(x - 512, y - 512) < 412, lambda x, y: True,
                      lambda x, y: units_outside(x, y) < 20, lambda x, y: units_outside(x, y) < -20,
                      lambda x, y: units_outside(x, y - 20) < 0, lambda x, y: max(abs(x - 512), abs(y - 512)) < 412):
            self.assertNotEqual(findings(drawn(shape)), [])


if __name__ == "__main__":
    sys.dont_write_bytecode = True
    unittest.main()
