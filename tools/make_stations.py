#!/usr/bin/env python3
"""Writes the city file from a table of stations.

usage: make_stations.py stations.csv > sao.cty

The table has the columns icao,name,state,country,lat,lon,elev_m,wmo,prior; empty cells are not known.
"""

import csv
import sys

NO_TEXT = "--"
NO_ELEVATION = "9999"
NO_WMO = "99999"
MAX_PRIORITY = 9


def check(row):
    """Stops at a row that the reader would cut or misread."""
    fields_fit = len(row["name"]) <= 20 and len(row["icao"]) <= 9 and len(row["wmo"]) <= 5
    areas_fit = len(row["state"]) <= 2 and len(row["country"]) <= 2
    on_earth = abs(float(row["lat"])) <= 90 and abs(float(row["lon"])) <= 180
    ranked = 0 <= int(row["prior"]) <= MAX_PRIORITY
    if not (row["icao"] and row["name"].isascii() and fields_fit and areas_fit and on_earth and ranked):
        sys.exit(f"bad row: {row}")


def line(row):
    check(row)
    name = "_".join(row["name"].split()) or row["icao"]
    return "%-20s %2s %2s %s %s %7.3f %8.3f %4s %s" % (
        name,
        row["state"] or NO_TEXT,
        row["country"] or NO_TEXT,
        row["icao"],
        row["prior"],
        float(row["lat"]),
        float(row["lon"]),
        row["elev_m"] or NO_ELEVATION,
        row["wmo"] or NO_WMO,
    )


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    with open(sys.argv[1], newline="", encoding="ascii") as table:
        for row in csv.DictReader(table):
            print(line(row))


main()
