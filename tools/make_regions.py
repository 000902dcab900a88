#!/usr/bin/env python3
"""Makes the region file orv.reg: one named plot domain a line.

States and countries are framed by their outlines, from the TopoJSON files of the maps folder
(us-atlas counties-10m.json and world-atlas countries-50m.json); larger areas and seas by the boxes
below. Each is drawn in a projection that suits its latitude and size, with a margin, in a window
that is neither very wide nor very tall.

    make_regions.py /path/to/maps > data/orv.reg
"""

import json
import math
import sys
from pathlib import Path

RADIUS = 63.7122        # of the earth, in 100 km
MARGIN = 0.05           # of the area's width and height, on each side
LONG_SIDE = 61          # grid points along the longer side
ASPECTS = (0.8, 1.6)    # narrowest and widest window
SMALLEST = 0.8          # least width and height, in 100 km

# name, south, north, west, east; an east below west runs over the date line. An entry behind that
# names the projection.
BOXES = """
us_northeast 38.6 47.6 -80.6 -66.8
us_mid_atlantic 36.4 43 -83.8 -73.8
us_southeast 24.4 37 -92 -75.3
us_great_lakes 40.3 49.4 -93 -75.5
us_midwest 36 49.4 -104.2 -80.4
us_northern_plains 40 49.2 -111.2 -96.2
us_southern_plains 25.6 40.2 -107 -93.3
us_south 25 39.6 -107 -81
us_gulf_coast 24.3 33 -98.5 -80
us_northwest 41.8 49.2 -125 -110.8
us_southwest 31 42.2 -124.6 -102.8
us_rockies 36.8 49.2 -117.4 -101.8
us_west 31 49.2 -125 -101.8
us_central 28 47 -106 -84
us_east 24.4 47.6 -92 -66.8
new_england 40.8 47.6 -73.9 -66.8
four_corners 31.2 42.2 -115 -101.8
north_america 8 72 -168 -52
central_america 6.8 18.8 -93 -76.8
caribbean 9.5 27.5 -88 -59
south_america -56 13 -82 -34.5
europe 34.5 71.5 -11.5 42
western_europe 35.5 59.5 -11 16
central_europe 45 55.5 4.5 25
eastern_europe 43.5 61 18 50
northern_europe 53.8 71.5 3.5 32
scandinavia 54.3 71.4 4 31.8
british_isles 49.7 61 -11 2.3
iberia 35.7 44 -9.8 3.6
alps 43.4 48.8 4.8 16.8
balkans 34.6 46.8 13.2 29.8
baltic 53.5 60 19.5 28.5
africa -35.5 38 -18.5 52
north_africa 14 38 -18 37.5
west_africa 3.5 25.5 -18 16
central_africa -13.8 23.8 7.8 32
east_africa -12 18.5 28.5 52
southern_africa -35.5 -7.5 11 41.5
asia 0 75 40 150
middle_east 12 42.5 25.5 63.8
arabia 12 32.5 34.3 60
central_asia 35 56 46 88
south_asia 5 38 60 98
southeast_asia -11 29 92 142
east_asia 18 54 95 147
siberia 48 75 60 180
korea 33 43.2 124 131
australia -44 -9.8 112.5 154.2
oceania -48 20 112 -150
arctic 55 90 -180 180
antarctica -90 -60 -180 180
north_pole 70 90 -180 180
south_pole -90 -70 -180 180
north_atlantic 5 65 -80 5
south_atlantic -58 5 -68 20
atlantic -58 65 -90 20
north_pacific 5 63 118 -110
south_pacific -58 5 145 -68
pacific -58 63 110 -70
eastern_pacific 0 40 -160 -84
western_pacific 0 45 100 180
indian_ocean -50 28 25 118
southern_ocean -90 -38 -180 180
arctic_ocean 66 90 -180 180
gulf_of_mexico 17.8 31 -98.3 -80.2
caribbean_sea 8.8 23 -89 -59.5
gulf_of_alaska 50 62 -165 -130
bering_sea 51 67 160 -156
gulf_of_california 22 32.2 -115.5 -105
hudson_bay 50.5 66 -96 -75
great_lakes 41 49.2 -92.5 -75.5
labrador_sea 50 66 -66 -40
baffin_bay 65 79 -82 -50
gulf_of_st_lawrence 45 52 -68 -56
norwegian_sea 60 74 -12 18
greenland_sea 66 82 -35 20
barents_sea 65.5 81 16 66
north_sea 50.5 61.5 -5 10
baltic_sea 53.4 66 9 31
english_channel 48 51.6 -6.5 3
irish_sea 51 56 -7.5 -2.5
bay_of_biscay 43 49 -10.5 0
mediterranean 29.8 46.3 -7 37
western_mediterranean 34.5 45 -6.5 17
eastern_mediterranean 29.8 42 14 37
adriatic_sea 39 46.2 11.8 20.5
aegean_sea 34.4 41.3 22 29
black_sea 40.4 47.5 27 42.2
caspian_sea 36 47.6 46 55.2
red_sea 12 30.5 32 44.5
persian_gulf 23.3 31 47.2 58
arabian_sea 3 27 50 78
bay_of_bengal 4 24 79 100
andaman_sea 5 18 91.5 100
south_china_sea -1 24 102 122
east_china_sea 23 34.5 117.5 131.5
yellow_sea 31.5 41.5 117 127.5
sea_of_japan 33 53 126.5 143
sea_of_okhotsk 42.5 62.5 135 164
philippine_sea 4 36 120 146
coral_sea -27 -8 143 166
tasman_sea -48 -26 145 175
gulf_of_guinea -6 8 -9 14
gulf_of_aden 8.5 18 42 55
mozambique_channel -28 -10 31 51
hawaiian_waters 15 27 -165 -150
"""

# Windows whose extent doesn't come from an outline.
FIXED = """us area lamb:36.9:-96:28.6:45.2,38.2,-96.2,61,39,0.94,0.94

us_ps area ps:90:-100,38.5,-96.5,61,39,0.88,0.88
globe area ortho:25:-95,25,-95,61,61,2.2,2.2
globe_americas area ortho:0:-80,0,-80,61,61,2.2,2.2
globe_europe area ortho:40:10,40,10,61,61,2.2,2.2
globe_africa area ortho:0:20,0,20,61,61,2.2,2.2
globe_asia area ortho:25:95,25,95,61,61,2.2,2.2
globe_australia area ortho:-20:135,-20,135,61,61,2.2,2.2
globe_pacific area ortho:0:-165,0,-165,61,61,2.2,2.2
globe_atlantic area ortho:20:-35,20,-35,61,61,2.2,2.2
globe_north area ortho:90:-95,90,-95,61,61,2.2,2.2
globe_south area ortho:-90:0,-90,0,61,61,2.2,2.2
full_disk_75w area sat:0:-75,0,-75,61,61,2.22,2.22
full_disk_137w area sat:0:-137,0,-137,61,61,2.22,2.22
full_disk_0 area sat:0:0,0,0,61,61,2.22,2.22
full_disk_140e area sat:0:140.7,0,140.7,61,61,2.22,2.22
world area ll:0:0,0,0,73,37,5,5
world_pacific area ll:0:180,0,180,73,37,5,5
world_mercator area merc:0:0,0,0,73,55,5.56,5.56
world_mollweide area moll:0:0,0,0,73,37,3.6,3.6
tropics area ll:0:0,0,0,121,25,3,3
tropics_pacific area ll:0:180,0,180,121,25,3,3
northern_hemisphere area ps:90:-100,90,-100,61,61,4.05,4.05
southern_hemisphere area ps:-90:0,-90,0,61,61,4.05,4.05
eastern_hemisphere area lambaz:0:75,0,75,61,61,3.08,3.08
western_hemisphere area lambaz:0:-105,0,-105,61,61,3.08,3.08
"""

# Other names of a region.
ALIASES = """
conus us
usa us
lower48 us
uk united_kingdom
great_britain united_kingdom
uae united_arab_emirates
gulf_coast us_gulf_coast
"""

# Countries with places far from their main land are framed by what lies in a box.
CLIPS = {
    "Chile": (-56.2, -17, -76.5, -66),
    "Ecuador": (-5.5, 2, -82, -75),
    "Costa Rica": (7.8, 11.5, -86.2, -82.4),
    "Colombia": (-4.5, 13, -79.6, -66.5),
    "Brazil": (-34, 6, -74.5, -34.5),
    "Venezuela": (0, 12.6, -73.6, -59.5),
    "France": (41.2, 51.3, -5.3, 9.8),
    "Netherlands": (50.6, 53.8, 3.2, 7.4),
    "Norway": (57.8, 71.4, 4, 31.5),
    "Portugal": (36.8, 42.3, -9.8, -6),
    "Spain": (35.8, 44, -9.5, 4.5),
    "Greece": (34.7, 41.9, 19.3, 28.4),
    "Eq. Guinea": (0.8, 3.9, 8.3, 11.5),
    "Yemen": (12.3, 19.1, 42, 53.3),
    "India": (7.9, 35.7, 68, 97.5),
    "Japan": (30, 45.7, 128.5, 146),
    "South Africa": (-35, -22, 16.3, 33),
    "Australia": (-44, -9.8, 112.5, 154.2),
    "New Zealand": (-47.4, -34, 166.2, 178.8),
    "Mauritius": (-20.7, -19.8, 57, 58),
    "Seychelles": (-5, -4, 55, 56),
}

# Names that the maps cut short, or that a state has.
RENAMED = {
    "Antigua and Barb.": "antigua",
    "Bosnia and Herz.": "bosnia",
    "Central African Rep.": "central_african_republic",
    "Congo": "congo",
    "Dem. Rep. Congo": "dr_congo",
    "Dominican Rep.": "dominican_republic",
    "Eq. Guinea": "equatorial_guinea",
    "eSwatini": "eswatini",
    "Faeroe Is.": "faroe_islands",
    "Falkland Is.": "falkland_islands",
    "Fiji": "fiji",
    "Georgia": "georgia_caucasus",
    "Guinea-Bissau": "guinea_bissau",
    "Macedonia": "north_macedonia",
    "N. Cyprus": None,
    "S. Sudan": "south_sudan",
    "Solomon Is.": "solomon_islands",
    "Somaliland": None,
    "St. Kitts and Nevis": "saint_kitts",
    "St. Vin. and Gren.": "saint_vincent",
    "S\u00e3o Tom\u00e9 and Principe": "sao_tome",
    "W. Sahara": "western_sahara",
    "C\u00f4te d'Ivoire": "ivory_coast",
    "Cura\u00e7ao": "curacao",
    "Cabo Verde": "cape_verde",
    "Palestine": None,
    "Kiribati": None,         # spread over both sides of the Pacific
    "Antarctica": None,       # a box
    "Australia": None,
    "Puerto Rico": None,      # a state of the other map
    "United States of America": None,
}

# Territories too small, or too far apart, to be worth a map.
SKIPPED = """
Vatican|Monaco|San Marino|Liechtenstein|Andorra|Nauru|Niue|Pitcairn Is.|Anguilla|Montserrat|Jersey|
Guernsey|Isle of Man|Br. Indian Ocean Ter.|S. Geo. and the Is.|Saint Helena|British Virgin Is.|
Turks and Caicos Is.|St. Pierre and Miquelon|Wallis and Futuna Is.|St-Martin|St-Barth\u00e9lemy|
Fr. S. Antarctic Lands|\u00c5land|Indian Ocean Ter.|Heard I. and McDonald Is.|Norfolk Island|
Ashmore and Cartier Is.|Siachen Glacier|Sint Maarten|Macao|American Samoa|N. Mariana Is.|Guam|
U.S. Virgin Is.|Cook Is.|Marshall Is.|Micronesia|Fr. Polynesia
"""

POSTAL = """
Alabama al|Alaska ak|Arizona az|Arkansas ar|California ca|Colorado co|Connecticut ct|Delaware de|
District of Columbia dc|Florida fl|Georgia ga|Hawaii hi|Idaho id|Illinois il|Indiana in|Iowa ia|
Kansas ks|Kentucky ky|Louisiana la|Maine me|Maryland md|Massachusetts ma|Michigan mi|Minnesota mn|
Mississippi ms|Missouri mo|Montana mt|Nebraska ne|Nevada nv|New Hampshire nh|New Jersey nj|
New Mexico nm|New York ny|North Carolina nc|North Dakota nd|Ohio oh|Oklahoma ok|Oregon or|
Pennsylvania pa|Rhode Island ri|South Carolina sc|South Dakota sd|Tennessee tn|Texas tx|Utah ut|
Vermont vt|Virginia va|Washington wa|West Virginia wv|Wisconsin wi|Wyoming wy|Puerto Rico pr
"""

STATE_CLIPS = {
    "Hawaii": (18.5, 22.5, -161, -154.5),
    "Puerto Rico": (17.8, 18.6, -67.4, -65.1),
}


def wrap(lon):
    return (lon + 180) % 360 - 180


class Polar:
    """Polar stereographic, true at a latitude."""

    def __init__(self, pole, lon, true):
        self.side = 1 if pole > 0 else -1
        self.pole, self.lon, self.true = pole, lon, true
        self.k = RADIUS * (1 + math.sin(math.radians(abs(true))))

    def text(self):
        return f"ps:{self.pole}:{self.lon:g}:{self.true:g}"

    def forward(self, lat, lon):
        lat = max(lat * self.side, -75)
        r = self.k * math.tan(math.radians(90 - lat) / 2)
        a = math.radians(wrap(lon - self.lon))
        return r * math.sin(a), -self.side * r * math.cos(a)

    def inverse(self, x, y):
        r = math.hypot(x, y)
        lat = self.side * (90 - 2 * math.degrees(math.atan(r / self.k)))
        return lat, wrap(math.degrees(math.atan2(x, -self.side * y)) + self.lon)


class Mercator:
    def __init__(self, lon):
        self.lon = lon

    def text(self):
        return f"merc:0:{self.lon:g}"

    def forward(self, lat, lon):
        lat = math.radians(max(-85, min(85, lat)))
        x = RADIUS * math.radians(wrap(lon - self.lon))
        return x, RADIUS * math.log(math.tan(math.pi / 4 + lat / 2))

    def inverse(self, x, y):
        lat = 90 - 2 * math.degrees(math.atan(math.exp(-y / RADIUS)))
        return lat, wrap(math.degrees(x / RADIUS) + self.lon)


class Conic:
    """Lambert conformal conic of the northern hemisphere."""

    def __init__(self, lat, lon, true1, true2):
        self.lat, self.lon, self.true1, self.true2 = lat, lon, true1, true2
        t1, t2 = math.radians(true1), math.radians(true2)
        half1, half2 = self.half(true1), self.half(true2)
        self.n = math.log(math.cos(t1) / math.cos(t2)) / math.log(half1 / half2)
        self.k = RADIUS * math.cos(t1) / (self.n * half1 ** self.n)

    @staticmethod
    def half(lat):
        return math.tan(math.radians(45 - lat / 2))

    def text(self):
        return f"lamb:{self.lat:g}:{self.lon:g}:{self.true1:g}:{self.true2:g}"

    def forward(self, lat, lon):
        r = self.k * self.half(max(-80, lat)) ** self.n
        a = math.radians(wrap(lon - self.lon)) * self.n
        return r * math.sin(a), -r * math.cos(a)

    def inverse(self, x, y):
        r = math.hypot(x, y)
        lat = 90 - 2 * math.degrees(math.atan((r / self.k) ** (1 / self.n)))
        return lat, wrap(math.degrees(math.atan2(x, -y)) / self.n + self.lon)


def choose(south, north, west, east):
    """A projection for an area; east is above west."""
    lat, lon = (south + north) / 2, wrap((west + east) / 2)
    lon = round(lon, 1)
    if east - west > 350:
        pole = 90 if lat > 0 else -90
        return Polar(pole, -100 if pole > 0 else 0, 60 * pole / 90)
    if abs(lat) < 24 or south * north < 0 and lat < 30:
        return Mercator(lon)
    if lat < 0:
        return Polar(-90, lon, round(lat)) if lat < -34 else Mercator(lon)
    if lat > 63 or north > 75 or east - west > 130:
        return Polar(90, lon, round(min(lat, 85)))
    third = (north - south) / 6
    true1, true2 = round(south + third, 1), round(north - third, 1)
    if true2 - true1 < 0.4:
        true2 = true1 + 0.4
    return Conic(round(lat, 1), lon, true1, true2)


def frame(points):
    """The domain text that shows all points, given as (lat, lon) with lon running on."""
    lats, lons = [p[0] for p in points], [p[1] for p in points]
    proj = choose(min(lats), max(lats), min(lons), max(lons))
    xy = [proj.forward(lat, lon) for lat, lon in points]
    left, right = min(p[0] for p in xy), max(p[0] for p in xy)
    low, high = min(p[1] for p in xy), max(p[1] for p in xy)
    width = max((right - left) * (1 + 2 * MARGIN), SMALLEST)
    height = max((high - low) * (1 + 2 * MARGIN), SMALLEST)
    width = max(width, height * ASPECTS[0])
    height = max(height, width / ASPECTS[1])
    lat, lon = proj.inverse((left + right) / 2, (low + high) / 2)

    # Points of equal spacing both ways, so that the aspect is that of the numbers of points.
    spacing = max(width, height) / (LONG_SIDE - 1)
    digits = max(2, 2 - math.floor(math.log10(spacing)))
    spacing = math.ceil(spacing * 10 ** digits) / 10 ** digits
    nx, ny = (math.ceil(side / spacing - 1e-6) + 1 for side in (width, height))
    return f"{proj.text()},{lat:.2f},{lon:.2f},{nx},{ny},{spacing:g},{spacing:g}"


def box_points(south, north, west, east):
    if east < west:
        east += 360
    steps = [i / 40 for i in range(41)]
    lats = [south + (north - south) * s for s in steps]
    lons = [west + (east - west) * s for s in steps]
    return ([(lat, lon) for lat in lats for lon in (west, east)] +
            [(lat, lon) for lon in lons for lat in (south, north)])


class Outlines:
    """The outlines of the named geometries of a TopoJSON object."""

    def __init__(self, path, name):
        topo = json.loads(path.read_text(encoding="utf-8"))
        self.scale, self.translate = topo["transform"]["scale"], topo["transform"]["translate"]
        self.arcs = [self.decode(arc) for arc in topo["arcs"]]
        self.geometries = topo["objects"][name]["geometries"]

    def decode(self, arc):
        points, x, y = [], 0, 0
        for dx, dy in arc:
            x, y = x + dx, y + dy
            points.append((y * self.scale[1] + self.translate[1],
                           x * self.scale[0] + self.translate[0]))
        return points

    def points(self, geometry, clip):
        polygons = geometry["arcs"]
        if geometry["type"] == "Polygon":
            polygons = [polygons]
        found = [p for polygon in polygons for arc in polygon[0]
                 for p in self.arcs[arc if arc >= 0 else ~arc]]
        if clip:
            south, north, west, east = clip
            found = [p for p in found if south <= p[0] <= north and west <= p[1] <= east]
        return run_on(found)


def run_on(points):
    """Longitudes counted on from the widest gap between them, so that none jumps by 360."""
    lons = sorted({round(p[1], 2) for p in points})
    gaps = [(b - a, b) for a, b in zip(lons, lons[1:] + [lons[0] + 360])]
    west = wrap(max(gaps)[1]) - 0.01
    return [(lat, west + (lon - west) % 360) for lat, lon in points]


def plain(name):
    return name.lower().replace(" ", "_").replace("-", "_").replace(".", "").replace("'", "")


def table(text):
    return [entry.strip() for entry in text.replace("\n", "").split("|")]


def main():
    maps = Path(sys.argv[1])
    regions = {}

    def add(name, kind, text):
        if name in regions:
            sys.exit(f"{name} comes twice")
        line = f"{name} {kind} 0 {text}"
        if len(text) > 79 or len(line) > 158:
            sys.exit(f"too long: {line}")
        regions[name] = (kind, text)

    for line in BOXES.split("\n"):
        if line:
            name, *box = line.split()
            add(name, "area", frame(box_points(*map(float, box))))
    for line in FIXED.split("\n"):
        if line:
            add(*line.split(" "))

    postal = dict(entry.rsplit(" ", 1) for entry in table(POSTAL))
    states = Outlines(maps / "us-counties-10m.json", "states")
    for geometry in sorted(states.geometries, key=lambda g: g["properties"]["name"]):
        name = geometry["properties"]["name"]
        if name in postal:
            text = frame(states.points(geometry, STATE_CLIPS.get(name)))
            add(plain(name), "state", text)
            add(postal[name], "state", text)

    skipped = set(table(SKIPPED))
    countries = Outlines(maps / "countries-50m.json", "countries")
    for geometry in sorted(countries.geometries, key=lambda g: g["properties"]["name"]):
        name = geometry["properties"]["name"]
        short = RENAMED.get(name, plain(name))
        if name not in skipped and short:
            add(short, "country", frame(countries.points(geometry, CLIPS.get(name))))
    for line in ALIASES.split("\n"):
        if line:
            name, other = line.split()
            add(name, *regions[other])

    print("# Named plot domains: name, kind, 0, domain. Made by tools/make_regions.py.")
    for kind in ("area", "state", "country"):
        print("#")
        for name, (its_kind, text) in regions.items():
            if its_kind == kind:
                print(f"{name} {kind} 0 {text}")


if __name__ == "__main__":
    main()
