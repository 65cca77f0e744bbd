#!/usr/bin/env python3
"""Makes the bitmap of the toolbar buttons from pictures.txt:

    make_pictures.py pictures.txt toolbar.bmp

Each picture of 16 by 16 pixels stands in the middle of 18 by 18. Toolbar controls take light grey
for transparent in a bitmap with a palette.
"""
import re
import struct
import sys
from pathlib import Path

SIZE, CELL = 16, 18
PALETTE = {
    ".": 0xC0C0C0,  # transparent
    "K": 0x33404F,  # outlines
    "W": 0xFFFFFF,
    "S": 0x8494A5, "s": 0xD5DCE4,
    "B": 0x3B7DC6, "b": 0xA8CCF0,
    "G": 0x2F9E50, "g": 0xA9DEB6,
    "R": 0xCE3F3F,
    "O": 0xE07F26,
    "Y": 0xF1BE48, "y": 0xFBE8AC,
}


def pictures(text):
    blocks = [b.splitlines() for b in re.split(r"\n\s*\n", text) if not b.startswith("#")]
    for name, *rows in blocks:
        if len(rows) != SIZE or any(len(row) != SIZE or set(row) - set(PALETTE) for row in rows):
            sys.exit(f'picture "{name}" is not {SIZE} by {SIZE} known letters')
        yield [f".{row}." for row in ["." * SIZE, *rows, "." * SIZE]]


def bitmap(cells):
    width = CELL * len(cells)
    line = -(-width // 4) * 4
    index = {letter: number for number, letter in enumerate(PALETTE)}
    lines = [bytes(index[letter] for cell in cells for letter in cell[y]).ljust(line, b"\0")
             for y in reversed(range(CELL))]
    palette = b"".join(struct.pack("<I", color) for color in PALETTE.values())
    start = 14 + 40 + len(palette)
    pixels = b"".join(lines)
    return (struct.pack("<2sIHHI", b"BM", start + len(pixels), 0, 0, start)
            + struct.pack("<IiiHHIIiiII", 40, width, CELL, 1, 8, 0, len(pixels), 0, 0,
                          len(PALETTE), 0)
            + palette + pixels)


def main():
    source, target = map(Path, sys.argv[1:])
    target.write_bytes(bitmap(list(pictures(source.read_text(encoding="utf-8").strip()))))


main()
