#!/usr/bin/env python3
"""Analyses one real hour of temperatures without the library, for AnalysesARealHour.

usage: analyse.py METAR_CACHE DIRECTORY

Writes hour.txt (latitude, longitude and temperature in Celsius of each station, those of the
contiguous United States) and analysis.txt (the values of the grid, row by row from the north, after
one pass and after two). The cache is that of the Aviation Weather Center, public domain.

Steps that are taken in single precision are rounded to it by f32; the rest is double.
"""
import csv
import math
import struct
import sys

MISSING = -9999.0
NX, NY, STEP, WEST, NORTH = 59, 27, 1.0, -125.0, 51.0  # a grid of whole degrees
FILTER, RADIUS, CONVERGENCE, MIN_STATIONS = 1.5, 3.0, 0.3, 3


def f32(x):
    return struct.unpack("f", struct.pack("f", x))[0]


def read_hour(path):
    with open(path, newline="") as file:
        lines = file.readlines()
    start = next(i for i, line in enumerate(lines) if line.startswith("raw_text,"))
    stations = []
    for row in csv.DictReader(lines[start:]):
        if not row["latitude"] or not row["longitude"]:
            continue
        lat, lon = (float("%g" % float(row[name])) for name in ("latitude", "longitude"))
        if 23 < lat < 52 and -127 < lon < -65:
            temp = float(row["temp_c"]) if row["temp_c"] else MISSING
            stations.append((lat, lon, temp))
    return stations


def weights(column, row, places, filter_width):
    limit = f32(f32(f32(f32(RADIUS) * f32(RADIUS)) * STEP) * STEP)
    for number, (gx, gy) in enumerate(places):
        a = f32(f32(gx - column) * STEP)
        b = f32(f32(gy - row) * STEP)
        square = f32(f32(a * a) + f32(b * b))
        if square <= limit:
            yield number, math.exp(-square / filter_width)


def mean(column, row, places, values, filter_width):
    total = weight = 0.0
    count = 0
    for number, w in weights(column, row, places, filter_width):
        if values[number] != MISSING:
            total += values[number] * w
            weight += w
            count += 1
    return total / weight if weight != 0 and count >= MIN_STATIONS else None


def interpolate(grid, gx, gy):
    if not (0 <= gx <= NX - 1 and 0 <= gy <= NY - 1):
        return MISSING
    i, j = int(gx), int(gy)
    total = 0.0
    for row, part_y in ((j, 1 - (gy - j)), (j + 1, gy - j)):
        for column, part_x in ((i, 1 - (gx - i)), (i + 1, gx - i)):
            if row == NY or column == NX:
                continue  # only on the last row or column, where the part is 0
            if grid[row][column] == MISSING:
                return MISSING
            total += part_x * part_y * grid[row][column]
    return f32(total)


def analyse(stations):
    places = [(f32(f32(f32(lon) - WEST) / STEP), f32(f32(NORTH - f32(lat)) / STEP))
              for lat, lon, _ in stations]
    temps = [f32(temp) for _, _, temp in stations]
    width = f32(FILTER)
    grid = []
    for row in range(NY):
        means = [mean(column, row, places, temps, width) for column in range(NX)]
        grid.append([MISSING if m is None else f32(m) for m in means])
    yield [line[:] for line in grid]

    residuals = []
    for (gx, gy), temp in zip(places, temps):
        analysed = interpolate(grid, gx, gy)
        known = analysed != MISSING and temp != MISSING
        residuals.append(f32(temp - analysed) if known else MISSING)
    width = f32(width * f32(CONVERGENCE))
    for row in range(NY):
        for column in range(NX):
            m = mean(column, row, places, residuals, width)
            grid[row][column] = MISSING if m is None else f32(grid[row][column] + m)
    yield grid


def main():
    cache, directory = sys.argv[1:]
    stations = read_hour(cache)
    with open(f"{directory}/hour.txt", "w") as file:
        for station in stations:
            file.write("%g %g %g\n" % station)
    first, second = analyse(stations)
    with open(f"{directory}/analysis.txt", "w") as file:
        for row_first, row_second in zip(first, second):
            for a, b in zip(row_first, row_second):
                file.write("%.9g %.9g\n" % (a, b))


main()
