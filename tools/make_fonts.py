#!/usr/bin/env python3
"""Makes the vector fonts of data/ from Hershey stroke fonts in .jhf form.

    make_fonts.py FOLDER_OF_JHF_FILES DATA_FOLDER

A .jhf file has a line for each of the characters 32 to 127: 5 columns number, 3 columns count of
pairs, then pairs of characters, each less 'R': first the bounds, then x and y with y downward, " R"
lifting the pen. A long glyph may go on in further lines.

The font file: "255 c" opens the glyph of c, pairs x y follow, 128 is added to the x of the first
point of a stroke, "254" ends the file. One unit of the source is five of the font; the baseline is
at 35, capitals reach 140.
"""

import pathlib
import shutil
import sys

UNIT = 5
TOP = 80  # font y of the source's middle line
MOST_X = 125  # what the start mark of a stroke leaves room for
SLANT = 0.2  # of the italics
CONDENSED = 0.92  # the slanted bold letters are made narrower, to keep to MOST_X
TALL = "()[]{}|"  # reach beyond their line in the source, and would touch those of the next one
LOWEST, HIGHEST = 20, 145  # of the tall ones


def read_glyphs(path):
    """Gives {character: list of strokes, each a list of (x, y)} in units of the source."""
    glyphs = {}
    lines = path.read_text(encoding="latin-1").splitlines()
    code = 32
    at = 0
    while at < len(lines) and code < 127:
        count = int(lines[at][5:8])
        body = lines[at][8:]
        at += 1
        while len(body) < 2 * count:
            body += lines[at]
            at += 1
        strokes = [[]]
        for i in range(2, 2 * count, 2):
            if body[i : i + 2] == " R":
                strokes.append([])
            else:
                strokes[-1].append((ord(body[i]) - 82, ord(body[i + 1]) - 82))
        glyphs[chr(code)] = [s for s in strokes if len(s) > 1]
        code += 1
    return {c: strokes for c, strokes in glyphs.items() if strokes}


def convert(strokes, slant=0.0, stretch=1.0):
    """To font units, the leftmost point of the upright glyph at 0, and none left of it."""
    left = min(x for s in strokes for x, _ in s)
    points = [[(UNIT * stretch * (x - left), TOP - UNIT * y) for x, y in s] for s in strokes]
    points = [[(x + slant * (y - 35), y) for x, y in s] for s in points]
    overhang = max(0.0, -min(x for s in points for x, _ in s))
    return [[(round(x + overhang), y) for x, y in s] for s in points]


def shorten(strokes):
    """Squeezes a glyph of font units between LOWEST and HIGHEST."""
    low = min(y for s in strokes for _, y in s)
    high = max(y for s in strokes for _, y in s)
    scale = (HIGHEST - LOWEST) / (high - low)
    return [[(x, round(LOWEST + scale * (y - low))) for x, y in s] for s in strokes]


def write_font(path, glyphs):
    lines = []
    total = 0
    for c in sorted(glyphs):
        numbers = []
        for stroke in glyphs[c]:
            for i, (x, y) in enumerate(stroke):
                assert 0 <= x <= MOST_X, (path, c, x)
                numbers.append(f"{x + (128 if i == 0 else 0)} {y}")
                total += 1
        total += 1
        line = f"255 {c}"
        for number in numbers:
            if len(line) + len(number) > 96:
                lines.append(line)
                line = " "
            line += " " + number
        lines.append(line)
    assert total < 7499, path
    path.write_text("\n".join(lines) + "\n254\n", encoding="ascii")
    print(f"{path.name}: {len(glyphs)} glyphs, {total} points")


def main():
    source, data = (pathlib.Path(a) for a in sys.argv[1:3])
    roman = read_glyphs(source / "rowmans.jhf")
    bold = read_glyphs(source / "rowmand.jhf")
    # Their own "^" is an arrow.
    roman["^"] = bold["^"] = read_glyphs(source / "futural.jhf")["^"]
    fonts = {
        "modern.fnt": (roman, 0.0, 1.0),
        "italic.fnt": (roman, SLANT, 1.0),
        "bold.fnt": (bold, 0.0, 1.0),
        "boldital.fnt": (bold, SLANT, CONDENSED),
    }
    for name, (glyphs, slant, stretch) in fonts.items():
        glyphs = {c: convert(s, slant, stretch) for c, s in glyphs.items()}
        for c in TALL:
            glyphs[c] = shorten(glyphs[c])
        write_font(data / name, glyphs)
    shutil.copy(source / "LICENSE.hershey.txt", data / "LICENSE.hershey.txt")


main()
