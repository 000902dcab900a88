#!/usr/bin/env python3
"""Makes data/variable.lup: python3 make_variable_lup.py grib_parameters.csv > variable.lup

Quantities of WMO GRIB edition 1, table 2, keep their parameter number there as index, those of NCEP
its number from 128 on. All others, those of edition 2 and the ones below, are numbered from 300 on.
"""
import csv
import sys

MOST_INDEX = 999  # statistics add thousands
MOST_ABBR = 9
MOST_NAME = 39

# Names of station elements, drawings and results of functions, and better labels for some of the
# quantities of the table.
NAMES = """
id Station identifier
city Station name
time Observation time
ttd Temperature and dewpoint
dewp Dewpoint
dewd Dewpoint depression
wdir Wind direction
wbrbc Wind
wbrb Wind
wind Wind
uwndg U component of wind along the grid
vwndg V component of wind along the grid
wgst Wind gust
alt Altimeter setting
pralt Pressure (sea level, or altimeter)
elev Elevation
txtwx Weather
wx Weather
sawx Weather
clds Cloud layers
cldcl Ceiling
cldclc Ceiling code
cldcv Cloud cover
ptend Pressure tendency
prec Precipitation
prec1 Precipitation in 1 hour
prec3 Precipitation in 3 hours
prec6 Precipitation in 6 hours
prec12 Precipitation in 12 hours
prec24 Precipitation in 24 hours
extt Extreme temperature
maxt6 Maximum temperature in 6 hours
maxt24 Maximum temperature in 24 hours
mint6 Minimum temperature in 6 hours
mint24 Minimum temperature in 24 hours
nlcld Low cloud amount
lcld Low cloud type
mcld Middle cloud type
hcld High cloud type
solar Sunshine duration
sst Sea surface temperature
wavper Wave period
wavhgt Wave height
svpres Saturation vapor pressure
wchilt2 Wind chill temperature
wchill2 Wind chill temperature
wchilt Wind chill temperature
wchill Wind chill temperature
wchilf Wind chill heat loss
humit Humiture
mrat Mixing ratio
smrat Saturation mixing ratio
wetblb Wet bulb temperature
thetaw Wet bulb potential temperature
thetae Equivalent potential temperature
fr Flight category
vect Wind
barb Wind
strm Streamlines
add Sum
sub Difference
mul Product
div Ratio
mod Remainder
pow Power
sqrt Square root
abs Absolute value
inv Negative
log Natural logarithm
log10 Common logarithm
exp Exponential
avg Average
max Maximum
min Minimum
dx Derivative in x
dy Derivative in y
lapl Laplacian
conv Convergence
adv Advection
def1 Stretching deformation
def2 Shearing deformation
sum Sum
valid First of several
spd Wind speed
dir Wind direction
mag Magnitude
vdiff Vector difference
station Station model
temps Temperature and dewpoint
winds Wind and gusts
press Pressure and tendency
weather Weather and sky
flight Flight category
rain Precipitation
extremes Extreme temperatures
comfort Felt temperature
marine Sea and waves
wavhgt Wave height
o3tot Total ozone
presstd Sea level pressure (standard)
presmaps Sea level pressure (MAPS)
preseta Sea level pressure (eta)
mntsf Montgomery stream function
icaoht Standard atmosphere height
nswrs Net short wave radiation at surface
nlwrs Net long wave radiation at surface
condp Condensation pressure of parcel
cicep Categorical ice pellets
cfrzr Categorical freezing rain
crain Categorical rain
csnow Categorical snow
pfzrp Probability of freezing rain
wavdir2 Secondary wave direction
cape Convective available pot. energy
wwhgt Height of wind waves
swhgt Height of swell waves
""".split("\n")

# Further index numbers of the same quantity: 2 is the pressure reduced to sea level, which the
# level tells apart.
ALTERNATIVES = {"pres": [2]}


def read(path):
    """Returns index numbers and labels by name, in the order of the table."""
    index, label = {}, {}
    with open(path, newline="") as table:
        for row in csv.DictReader(table):
            name = row["name"]
            number = int(row["number"])
            plain = row["edition"] == "1" and row["table_or_discipline"] == "2"
            ours = plain and (row["centre"] == "0" or number >= 128)
            if name not in label:
                label[name] = row["long_name"]
            if ours and name not in index:
                index[name] = number
    for line in filter(None, NAMES):
        name, text = line.split(" ", 1)
        label[name] = text
    return index, label


def main():
    index, label = read(sys.argv[1])
    free = 300
    for name in label:
        if name not in index:
            index[name] = free
            free += 1
    numbers = [n for name in label for n in [index[name], *ALTERNATIVES.get(name, [])]]
    assert len(numbers) == len(set(numbers)) and max(numbers) <= MOST_INDEX
    print("# Quantities: index number (and others of the same meaning), short name, label.")
    print("# Made by tools/make_variable_lup.py. A blank line would end the file.")
    for name in sorted(label, key=index.get):
        assert len(name) <= MOST_ABBR and len(label[name]) <= MOST_NAME, (name, label[name])
        own = ",".join(str(n) for n in [index[name], *ALTERNATIVES.get(name, [])])
        print(f"{own:<7} {name:<9} {label[name]}")


main()
