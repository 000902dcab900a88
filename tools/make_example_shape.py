#!/usr/bin/env python3
"""Writes the shapefile of the examples: the outlines of two made-up forecast zones.

usage: make_example_shape.py > examples/zones.shp
"""
import struct
import sys

# Longitude, latitude; each ring is closed.
ZONES = [
    [(-98.5, 41.0), (-91.5, 41.5), (-90.5, 37.5), (-94.5, 36.0), (-98.5, 37.0), (-98.5, 41.0)],
    [(-84.0, 35.0), (-79.0, 35.5), (-80.5, 31.5), (-84.5, 31.0), (-84.0, 35.0)],
]
POLYGON = 5


def box(points):
    lon, lat = zip(*points)
    return struct.pack("<4d", min(lon), min(lat), max(lon), max(lat))


records = b""
for number, ring in enumerate(ZONES, 1):
    content = struct.pack("<i", POLYGON) + box(ring) + struct.pack("<3i", 1, len(ring), 0)
    content += b"".join(struct.pack("<2d", *point) for point in ring)
    records += struct.pack(">2i", number, len(content) // 2) + content

header_size = 100
header = struct.pack(">7i", 9994, 0, 0, 0, 0, 0, (header_size + len(records)) // 2)
header += struct.pack("<2i", 1000, POLYGON) + box(sum(ZONES, [])) + bytes(32)
sys.stdout.buffer.write(header + records)
