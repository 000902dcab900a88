#!/usr/bin/env bash
# Imports a small cache file, then draws the charts of a real hour and renders them to PNG.
# usage: tools/demo.sh FOLDER_OF_THE_TOOLS OUTPUT_FOLDER
set -euo pipefail
tools=$1
out=$2
mkdir -p "$out"
hour=examples/2025012722_sfc.cvt

# render FILE: the picture of a page, upright, every color sharp at its edge.
render() {
    gs -q -dBATCH -dNOPAUSE -sDEVICE=png16m -r220 -dDownScaleFactor=2 -sPAPERSIZE=letter \
        -dAutoRotatePages=/None -sOutputFile="${1%.ps}.png" \
        -c "<</Orientation 3>> setpagedevice" -f "$1"
}

# chart NAME TITLE OPTION...: a page and its picture.
chart() {
    local name=$1 title=$2
    shift 2
    "$tools/obschart" -me none "$@" -de "p,$out/$name.ps,color" "$hour" >/dev/null
    render "$out/$name.ps"
    printf '  %-24s %s %s\n' "$title" "$out/$name.ps" "$out/$name.png"
}

echo "Importing examples/metars-small.csv:"
"$tools/obsconv" -o "$out/data" examples/metars-small.csv

echo "Charts of $hour:"
chart us "stations, US" -pd us -va station
chart europe "stations, Europe" -pd europe -va station
chart analysis "analysis, US" -pd us -va analysis -pr 7 -oa 3,9,2,.3 -pa grid=3

if [ -n "${DISPLAY:-}" ]; then
    echo "In a window, Return closes it:"
    echo "  $tools/obschart -pd us -va station $hour"
fi
