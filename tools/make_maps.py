#!/usr/bin/env python3
"""Makes the map files of the database directory from public TopoJSON and GeoJSON sources.

usage: make_maps.py SOURCE_FOLDER DATA_FOLDER

Each map is a binary map file (big-endian: a 2-byte count of points, maximum and minimum latitude,
maximum and minimum longitude, a number, then latitude and longitude of each point, all 4-byte) with
a companion ".mdb" that names its segments.

Lines are joined where the sources split them and then cut into pieces with small boxes, so that a
chart reads past what it doesn't show. Land and lakes for filling are cut into cells of a few degrees,
so that no polygon is large enough to lie on both sides of a projection's edge; neighbouring cells
overlap a little, so that no seam shows between them.
"""
import json
import math
import os
import struct
import sys
from collections import defaultdict

PIECE = 120        # points of a line piece at most
PIECE_EXTENT = 8.0  # degrees that the box of a line piece spans at most
OVERLAP = 0.02     # degrees by which filled cells overlap
STEP = 1.0         # degrees between points along the edge of a filled cell
NEAR_POLE = 89.999  # degrees; maps that can't show a pole show this


class Topology:
    def __init__(self, path):
        with open(path) as f:
            self.doc = json.load(f)
        (sx, sy), (tx, ty) = (self.doc["transform"][k] for k in ("scale", "translate"))
        self.arcs = []
        for arc in self.doc["arcs"]:
            x = y = 0
            points = []
            for dx, dy in arc:
                x += dx
                y += dy
                points.append((x * sx + tx, y * sy + ty))
            self.arcs.append(points)

    def geometries(self, name):
        obj = self.doc["objects"][name]
        for geometry in obj.get("geometries", [obj]):
            if geometry.get("type"):
                yield geometry

    def rings(self, geometry):
        """The polygons of a geometry, each a list of rings of arc numbers (~n runs backwards)."""
        kind = geometry["type"]
        if kind == "Polygon":
            return [geometry["arcs"]]
        if kind == "MultiPolygon":
            return geometry["arcs"]
        return []

    def line(self, numbers):
        points = []
        for n in numbers:
            arc = self.arcs[n] if n >= 0 else self.arcs[~n][::-1]
            points += arc[1:] if points else arc
        return points

    def uses(self, name):
        """How many different members of an object use each arc."""
        users = defaultdict(set)
        for i, geometry in enumerate(self.geometries(name)):
            for polygon in self.rings(geometry):
                for ring in polygon:
                    for n in ring:
                        users[n if n >= 0 else ~n].add(i)
        return {n: len(who) for n, who in users.items()}

    def polygons(self, name):
        for geometry in self.geometries(name):
            for polygon in self.rings(geometry):
                yield [self.line(ring) for ring in polygon]

    def lines(self, name):
        for geometry in self.geometries(name):
            if geometry["type"] == "LineString":
                yield self.line(geometry["arcs"])
            elif geometry["type"] == "MultiLineString":
                for arcs in geometry["arcs"]:
                    yield self.line(arcs)


def drop_cuts(lines, south):
    """Takes out the stretches along which the source cut its polygons: the date line and the south."""
    def is_cut(a, b):
        return (abs(a[0]) > 179.99 and abs(b[0]) > 179.99) or (a[1] <= south and b[1] <= south)

    for line in lines:
        run = [line[0]]
        for a, b in zip(line, line[1:]):
            if is_cut(a, b):
                if len(run) > 1:
                    yield run
                run = [b]
            else:
                run.append(b)
        if len(run) > 1:
            yield run


def join(lines):
    """Joins lines end to end wherever exactly two ends meet."""
    def key(point):
        return (round(point[0], 5), round(point[1], 5))

    lines = [line for line in lines if len(line) > 1]
    ends = defaultdict(list)
    for i, line in enumerate(lines):
        ends[key(line[0])].append(i)
        ends[key(line[-1])].append(i)
    used = [False] * len(lines)

    def extend(chain):
        while True:
            node = key(chain[-1])
            if len(ends[node]) != 2:
                return
            rest = [i for i in ends[node] if not used[i]]
            if not rest:
                return
            used[rest[0]] = True
            nxt = lines[rest[0]]
            chain += nxt[1:] if key(nxt[0]) == node else nxt[::-1][1:]

    result = []
    for i, line in enumerate(lines):
        if used[i]:
            continue
        used[i] = True
        chain = list(line)
        extend(chain)
        chain.reverse()
        extend(chain)
        result.append(chain)
    return result


def simplify(line, tolerance):
    """Douglas and Peucker 1973, in degrees with longitudes shrunk by the latitude."""
    if tolerance <= 0 or len(line) < 3:
        return line
    keep = [False] * len(line)
    keep[0] = keep[-1] = True
    stack = [(0, len(line) - 1)]
    while stack:
        first, last = stack.pop()
        (x1, y1), (x2, y2) = line[first], line[last]
        c = math.cos(math.radians(y1))
        dx, dy = (x2 - x1) * c, y2 - y1
        length = math.hypot(dx, dy)
        worst, where = tolerance, -1
        for i in range(first + 1, last):
            px, py = (line[i][0] - x1) * c, line[i][1] - y1
            if length > 0:
                t = max(0.0, min(1.0, (px * dx + py * dy) / (length * length)))
                distance = math.hypot(px - t * dx, py - t * dy)
            else:
                distance = math.hypot(px, py)
            if distance > worst:
                worst, where = distance, i
        if where > 0:
            keep[where] = True
            stack += [(first, where), (where, last)]
    return [p for p, k in zip(line, keep) if k]


def simplify_ring(ring, tolerance):
    ring = unwrap(ring)
    half = len(ring) // 2
    return simplify(ring[:half + 1], tolerance) + simplify(ring[half:], tolerance)[1:]


def pieces(line):
    """Cuts a line into pieces of bounded count and extent that share their end points."""
    run = [line[0]]
    box = [line[0][0], line[0][0], line[0][1], line[0][1]]
    for point in line[1:]:
        box = [min(box[0], point[0]), max(box[1], point[0]),
               min(box[2], point[1]), max(box[3], point[1])]
        run.append(point)
        if len(run) >= PIECE or max(box[1] - box[0], box[3] - box[2]) > PIECE_EXTENT:
            yield run
            run = [point]
            box = [point[0], point[0], point[1], point[1]]
    if len(run) > 1:
        yield run


def bridge(polygon):
    """One ring of a polygon with holes: each hole is entered and left along the same line."""
    outer = list(polygon[0])
    for hole in sorted(polygon[1:], key=lambda ring: -max(p[0] for p in ring)):
        start = max(range(len(hole)), key=lambda i: hole[i][0])
        x, y = hole[start]
        nearest = min(range(len(outer)),
                      key=lambda i: (outer[i][0] - x) ** 2 + (outer[i][1] - y) ** 2)
        loop = hole[start:] + hole[:start + 1]
        outer = outer[:nearest + 1] + loop + outer[nearest:]
    return outer


def clip(rings, axis, limit, above):
    """The part of a polygon on one side of a meridian (axis 0) or parallel (axis 1), as rings that
    don't touch. Where the polygon crosses the limit, every second stretch of it lies inside."""
    side = 1 if above else -1
    values = {p[axis] for ring in rings for p in ring}
    while limit in values:
        limit += side * 1e-7

    def inside(point):
        return (point[axis] - limit) * side > 0

    whole, chains = [], []
    for ring in rings:
        flags = [inside(p) for p in ring]
        if all(flags):
            whole.append(ring)
        if all(flags) or not any(flags):
            continue
        start = next(i for i in range(len(ring)) if flags[i] and not flags[i - 1])
        chain = None
        for k in range(start, start + len(ring) + 1):
            a, b = ring[(k - 1) % len(ring)], ring[k % len(ring)]
            if inside(a) != inside(b):
                t = (limit - a[axis]) / (b[axis] - a[axis])
                other = a[1 - axis] + t * (b[1 - axis] - a[1 - axis])
                crossing = (limit, other) if axis == 0 else (other, limit)
                if inside(b) and k < start + len(ring):
                    chain = [crossing]
                elif chain:
                    chains.append(chain + [crossing])
                    chain = None
            if chain and inside(b):
                chain.append(b)
    # The ends along the limit, each a chain and whether it is its last point.
    ends = sorted((chain[i][1 - axis], n, i == -1) for n, chain in enumerate(chains) for i in (0, -1))
    partner = {}
    for a, b in zip(ends[::2], ends[1::2]):
        partner[a[1:]] = b[1:]
        partner[b[1:]] = a[1:]
    used = set()
    for n in range(len(chains)):
        if n in used:
            continue
        ring, current, forward = [], n, True
        while current not in used:
            used.add(current)
            ring += chains[current] if forward else chains[current][::-1]
            current, at_last = partner[current, forward]
            forward = not at_last
        whole.append(ring)
    return whole


def area(ring):
    return 0.5 * sum(a[0] * b[1] - b[0] * a[1] for a, b in zip(ring, ring[1:] + ring[:1]))


def holds(ring, point):
    x, y = point
    odd = False
    for a, b in zip(ring, ring[1:] + ring[:1]):
        if (a[1] > y) != (b[1] > y) and x < a[0] + (b[0] - a[0]) * (y - a[1]) / (b[1] - a[1]):
            odd = not odd
    return odd


def polygons_of(rings):
    """Rings that don't cross, as polygons: each an outer ring and its holes."""
    rings = sorted((r for r in rings if len(r) > 2 and abs(area(r)) > 1e-6),
                   key=lambda r: -abs(area(r)))
    polygons = []
    for i, ring in enumerate(rings):
        around = [other for other in rings[:i] if holds(other, ring[0])]
        if len(around) % 2 == 0:
            polygons.append([ring])
        else:
            next(p for p in polygons if p[0] is around[-1]).append(ring)
    return polygons


def cells(rings, size, box=(-180.0, 180.0, -90.0, 90.0)):
    """Cuts a polygon by halves until its parts lie in cells of the size, given in degrees."""
    if not rings:
        return
    xs = [p[0] for ring in rings for p in ring]
    ys = [p[1] for ring in rings for p in ring]
    if max(xs) - min(xs) <= size + OVERLAP and max(ys) - min(ys) <= size + OVERLAP:
        for polygon in polygons_of(rings):
            yield bridge(polygon)
        return
    west, east, south, north = box
    axis = 0 if east - west >= north - south else 1
    middle = (west + east) / 2 if axis == 0 else (south + north) / 2
    if axis == 0:
        boxes = (west, middle, south, north), (middle, east, south, north)
    else:
        boxes = (west, east, south, middle), (west, east, middle, north)
    yield from cells(clip(rings, axis, middle + OVERLAP, False), size, boxes[0])
    yield from cells(clip(rings, axis, middle, True), size, boxes[1])


def unwrap(line):
    """The line with longitudes that go on beyond 180 degrees where it crosses the date line."""
    result = [line[0]]
    turn = 0
    for a, b in zip(line, line[1:]):
        if abs(b[0] - a[0]) > 180:
            turn += 360 if b[0] < a[0] else -360
        result.append((b[0] + turn, b[1]))
    return result


def on_plane(ring):
    """A closed ring of the earth as one of the plane. One around a pole goes on along it."""
    ring = unwrap(ring)
    way = ring[-1][0] - ring[0][0]
    if abs(way) > 180:
        pole = -90.0 if sum(p[1] for p in ring) < 0 else 90.0
        n = 36
        ring += [(ring[-1][0] + (ring[0][0] - ring[-1][0]) * i / n, pole) for i in range(n + 1)]
    return without_repeats(ring)


def world_copies(rings):
    """The parts of a polygon of the plane that lie in the world, brought there by whole turns."""
    for turn in (-360, 0, 360):
        moved = [[(x + turn, y) for x, y in ring] for ring in rings]
        xs = [x for ring in moved for x, _ in ring]
        if max(xs) < -180 or min(xs) > 180:
            continue
        if min(xs) < -180:
            moved = clip(moved, 0, -180.0, True)
        if max(xs) > 180:
            moved = clip(moved, 0, 180.0 + OVERLAP, False)
        if moved:
            yield moved


def close(ring):
    """A closed ring with points along its long edges, off the pole by a hair."""
    result = []
    for a, b in zip(ring, ring[1:] + ring[:1]):
        result.append(a)
        n = int(max(abs(b[0] - a[0]), abs(b[1] - a[1])) / STEP)
        for i in range(1, n):
            result.append((a[0] + (b[0] - a[0]) * i / n, a[1] + (b[1] - a[1]) * i / n))
    result.append(result[0])
    return [(x, max(-NEAR_POLE, min(NEAR_POLE, y))) for x, y in result]


def without_repeats(ring):
    result = [p for i, p in enumerate(ring) if i == 0 or p != ring[i - 1]]
    return result[:-1] if len(result) > 1 and result[0] == result[-1] else result


class MapFile:
    def __init__(self, folder, name):
        self.path = os.path.join(folder, name)
        self.segments = []

    def add(self, points, name="-"):
        self.segments.append((points, name.replace(" ", "_")))

    def add_lines(self, lines, name="-", tolerance=0.0):
        for line in join(list(lines)):
            for piece in pieces(simplify(unwrap(line), tolerance)):
                self.add(piece, name)

    def add_fill(self, polygons, size, tolerance=0.0):
        for polygon in polygons:
            rings = [on_plane(simplify_ring(ring, tolerance)) for ring in polygon]
            rings = [ring for ring in rings if len(ring) > 2]
            if not rings:
                continue
            west = min(x for x, _ in rings[0])
            for i, hole in enumerate(rings[1:], 1):  # into the same turn as the outer ring
                if min(x for x, _ in hole) < west:
                    rings[i] = [(x + 360, y) for x, y in hole]
            for part in world_copies(rings):
                for cell in cells(part, size):
                    self.add(close(cell))

    def write(self):
        with open(self.path, "wb") as f:
            for i, (points, _) in enumerate(self.segments):
                lats = [p[1] for p in points]
                lons = [p[0] for p in points]
                count = len(points)
                while count >= 65535:
                    f.write(struct.pack(">H", 65535))
                    count -= 65535
                f.write(struct.pack(">Hffffi", count, max(lats), min(lats), max(lons), min(lons),
                                    i + 1))
                for lon, lat in points:
                    f.write(struct.pack(">ff", lat, lon))
        with open(self.path[:-4] + ".mdb", "w") as f:
            f.write("number points name\n")
            for i, (points, name) in enumerate(self.segments):
                f.write(f"{i + 1} {len(points)} {name}\n")
        print(f"{self.path}: {len(self.segments)} segments, "
              f"{sum(len(s[0]) for s in self.segments)} points, {os.path.getsize(self.path)} bytes")


def shore_and_borders(topology):
    """The coast lines and the international borders: an arc that is also land's is coast."""
    land = set(topology.uses("land"))
    countries = set(topology.uses("countries"))
    south = min(p[1] for arc in topology.arcs for p in arc) + 0.01
    coast = list(drop_cuts((topology.arcs[n] for n in sorted(land)), south))
    border = list(drop_cuts((topology.arcs[n] for n in sorted(countries - land)), south))
    return coast, border


def geojson_lines(path, wanted=lambda properties: True):
    with open(path) as f:
        doc = json.load(f)
    for feature in doc["features"]:
        if not wanted(feature["properties"]):
            continue
        geometry = feature["geometry"]
        lines = (geometry["coordinates"] if geometry["type"] == "MultiLineString"
                 else [geometry["coordinates"]])
        for line in lines:
            yield feature["properties"], [(p[0], p[1]) for p in line]


def main(source, data):
    def new(name):
        return MapFile(data, name)

    scales = {"low": ("countries-110m.json", 0.0, 10.0, 0.0),
              "mid": ("countries-50m.json", 0.0, 5.0, 0.01),
              "high": ("countries-10m.json", 0.003, 2.5, 0.006)}
    for scale, (name, tolerance, size, fill_tolerance) in scales.items():
        topology = Topology(os.path.join(source, name))
        coast, border = shore_and_borders(topology)
        for kind, lines in (("coast", coast), ("border", border)):
            out = new(f"{kind}_{scale}.map")
            out.add_lines(lines, kind, tolerance)
            out.write()
        if scale == "mid":
            out = new("orv.map")
            out.add_lines(coast, "coast")
            out.add_lines(border, "border")
            out.write()
        out = new(f"land_{scale}.map")
        out.add_fill(topology.polygons("land"), size, fill_tolerance)
        out.write()

    us = Topology(os.path.join(source, "us-counties-10m.json"))
    states = {n for n, count in us.uses("states").items()}
    out = new("state_us.map")
    out.add_lines((us.arcs[n] for n, count in sorted(us.uses("states").items()) if count > 1),
                  "state")
    out.write()
    out = new("shore_us.map")
    out.add_lines((us.arcs[n] for n, count in sorted(us.uses("states").items()) if count == 1),
                  "shore")
    out.write()
    out = new("county_us.map")
    out.add_lines((us.arcs[n] for n, count in sorted(us.uses("counties").items())
                   if count > 1 and n not in states), "county")
    out.write()

    out = new("province.map")
    path = os.path.join(source, "ne_10m_admin1_lines_selected.geojson")
    by_country = defaultdict(list)
    for properties, line in geojson_lines(path, lambda p: p["adm0_a3"] != "USA"):
        by_country[properties["adm0_a3"]].append(line)
    for country, lines in sorted(by_country.items()):
        out.add_lines(lines, country, 0.002)
    out.write()

    world = Topology(os.path.join(source, "sane-world_50m.json"))
    out = new("lake.map")
    out.add_lines((ring for polygon in world.polygons("lakes") for ring in polygon), "lake")
    out.write()
    out = new("lake_fill.map")
    out.add_fill(world.polygons("lakes"), 5.0)
    out.write()
    out = new("river_mid.map")
    out.add_lines(world.lines("rivers"), "river")
    out.write()
    out = new("river_high.map")
    path = os.path.join(source, "ne_10m_rivers_rank0-5.geojson")
    by_name = defaultdict(list)
    for properties, line in geojson_lines(path):
        by_name[properties.get("name") or "-"].append(line)
    for name, lines in sorted(by_name.items()):
        ascii_name = name.encode("ascii", "replace").decode()
        out.add_lines(lines, ascii_name, 0.002)
    out.write()


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    main(sys.argv[1], sys.argv[2])
