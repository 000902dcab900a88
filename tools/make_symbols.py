#!/usr/bin/env python3
"""Makes data/wx.smb from the drawn shapes of the weather symbols.

    make_symbols.py DRAFT.smb OUT.smb

The shapes stay; two things are done so that they can be told apart at 12 pixels, where a pixel is
a twelfth of the square: every filled shape is outlined too, since a dot filled alone shrinks to a
speck there, and the gaps of broken lines are widened to three pixels.
"""

import pathlib
import sys

GAP = 0.28  # of a broken line, in the unit square
MOST_ENTRIES = 4998
MOST_NAMES = 199


def read(path):
    """Gives [(name, [(kind, points)])], kind L or F."""
    symbols, points, name = [], [], None
    for word in path.read_text(encoding="ascii").split():
        if name is None:
            name, strokes, points = word, [], []
        elif word == "$":
            symbols.append((name, strokes))
            name = None
        elif word in ("L", "F"):
            strokes.append((word, points))
            points = []
        else:
            points.append(tuple(float(v) for v in word.split(",")))
    return symbols


def outline_fills(strokes):
    for kind, points in strokes:
        yield kind, points
        if kind == "F":
            yield "L", points + points[:1]


def widen_gaps(strokes):
    """Moves the inner ends of two level strokes at one height apart."""
    strokes = list(strokes)
    level = [i for i, (kind, p) in enumerate(strokes) if kind == "L" and len(p) == 2 and p[0][1] == p[1][1]]
    for i in level:
        for j in level:
            a, b = strokes[i][1], strokes[j][1]
            if a[0][1] == b[0][1] and max(a)[0] < min(b)[0]:
                middle = (max(a)[0] + min(b)[0]) / 2
                strokes[i] = ("L", [min(a), (middle - GAP / 2, a[0][1])])
                strokes[j] = ("L", [(middle + GAP / 2, b[0][1]), max(b)])
    return strokes


def write(path, symbols):
    assert len(symbols) <= MOST_NAMES
    entries = 0
    lines = []
    for name, strokes in symbols:
        words = []
        for kind, points in strokes:
            words += [f"{x:.2f},{y:.2f}" for x, y in points] + [kind]
        words.append("$")
        entries += len(words)
        lines.append(name)
        line = " "
        for word in words:
            if len(line) + len(word) > 78:
                lines.append(line)
                line = " "
            line += " " + word
        lines.append(line)
    assert entries <= MOST_ENTRIES, entries
    path.write_text("\n".join(lines) + "\n", encoding="ascii")
    print(f"{path.name}: {len(symbols)} names, {entries} entries")


def main():
    source, target = (pathlib.Path(a) for a in sys.argv[1:3])
    symbols = read(source)
    write(target, [(name, widen_gaps(outline_fills(strokes))) for name, strokes in symbols])


main()
