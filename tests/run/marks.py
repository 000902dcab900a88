#!/usr/bin/env python3
"""Compares the marks on a page with the stations of the hour, projected independently.

usage: marks.py OBSCHART

Each station that the list or its own report places on the plot, or within three grid lengths of it, is
marked once by a plus, in the order of the file.
"""
import math
import os
import re
import subprocess
import sys
import tempfile

SOURCE = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..")
HOUR = os.path.join(SOURCE, "examples", "2025012722_sfc.cvt")
TRUE_LAT, PLON, CLAT, CLON = 60, -100, 38, -96
NX, NY, SPACING = 45, 30, 1.2
EARTH_RADIUS = 63.7122  # 100 km
PAGE_WIDTH, PAGE_HEIGHT = 756, 576  # points


def project(lat, lon):
    """Polar stereographic, true at 60 north, 100 west downward; in 100 km from the pole."""
    lat = max(lat, -75)
    scale = EARTH_RADIUS * (1 + math.sin(math.radians(TRUE_LAT)))
    r = scale * math.tan(math.radians(90 - lat) / 2)
    angle = math.radians(lon - PLON)
    return r * math.sin(angle), -r * math.cos(angle)


def read_cities():
    cities = {}
    with open(os.path.join(SOURCE, "data", "sao.cty")) as lines:
        for line in lines:
            fields = line.split()
            if len(fields) >= 9:
                cities.setdefault(fields[3], (float(fields[5]), float(fields[6])))
    return cities


def expected_marks():
    """Page coordinates, in order."""
    cities = read_cities()
    cx, cy = project(CLAT, CLON)
    half_width, half_height = (NX - 1) * SPACING / 2, (NY - 1) * SPACING / 2
    points_per_unit = PAGE_WIDTH / (2 * half_width)
    reach = 3 * SPACING
    marks = []
    with open(HOUR) as lines:
        for line in list(lines)[2:]:
            place = re.search(r" L(-?\d+),(-?\d+)", line)
            if place:
                lat, lon = int(place[1]) / 10, int(place[2]) / 10
            elif line.split()[0] in cities:
                lat, lon = cities[line.split()[0]]
            else:
                continue
            x, y = project(lat, lon)
            x, y = x - cx, y - cy
            if abs(x) <= half_width + reach and abs(y) <= half_height + reach:
                marks.append((PAGE_WIDTH / 2 + x * points_per_unit,
                              PAGE_HEIGHT / 2 + y * points_per_unit))
    return marks


def drawn_marks(tool):
    with tempfile.TemporaryDirectory() as folder:
        page = os.path.join(folder, "x.ps")
        subprocess.run([tool, "-pd", "ps:90:-100,38,-96,45,30,1.2,1.2", "-pr", "7", "-dr", "data",
                        "-va", "temp[C,mk=plus]", "-de", "p," + page + ",color", HOUR],
                       stdout=subprocess.DEVNULL, check=True)
        text = open(page).read()
    strokes = re.findall(r"np\n(\S+) (\S+) mv\n(\S+) (\S+) ln\nstroke", text)
    if len(strokes) != text.count("stroke") or len(strokes) % 2:
        sys.exit(f"not all of the {text.count('stroke')} strokes are arms of a plus")
    marks = []
    for across, upright in zip(strokes[::2], strokes[1::2]):
        x1, y1, x2, y2 = map(float, across)
        u1, v1, u2, v2 = map(float, upright)
        middle = ((x1 + x2) / 2, (v1 + v2) / 2)
        if y1 != y2 or u1 != u2 or abs(u1 - middle[0]) > 0.02 or abs(y1 - middle[1]) > 0.02:
            sys.exit(f"no plus: {across} {upright}")
        marks.append(middle)
    return marks


expected, drawn = expected_marks(), drawn_marks(sys.argv[1])
if len(expected) < 1000:
    sys.exit(f"only {len(expected)} stations are expected: the inputs are wrong")
if len(drawn) != len(expected):
    sys.exit(f"{len(drawn)} marks are drawn, {len(expected)} expected")
for n, (a, b) in enumerate(zip(expected, drawn)):
    if math.dist(a, b) > 0.03:
        sys.exit(f"mark {n} is at {b}, expected at {a}")
print(f"{len(drawn)} marks, each in its place")
