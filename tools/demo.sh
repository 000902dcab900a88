#!/usr/bin/env bash
# Imports a small cache file, then draws the charts of a real hour and renders them to PNG.
# usage: tools/demo.sh FOLDER_OF_THE_TOOLS OUTPUT_FOLDER
set -euo pipefail
tools=$1
out=$2
mkdir -p "$out"
export orvfpath=data

echo "Importing examples/metars-small.csv:"
"$tools/obsconv" -o "$out/data" examples/metars-small.csv

hour=$(ls examples/*.sfc | tail -n 1)

# chart NAME DOMAIN [OPTION...]: a page and its picture.
chart() {
    local name=$1 domain=$2
    shift 2
    "$tools/obschart" -me warn -va station -pd "$domain" -de "p,$out/$name.ps,color" "$@" "$hour"
    gs -q -dBATCH -dNOPAUSE -sDEVICE=png16m -r110 -dTextAlphaBits=4 -dGraphicsAlphaBits=4 \
        -sOutputFile="$out/$name.png" "$out/$name.ps"
    echo "$out/$name.ps $out/$name.png"
}

echo "Charts of $hour:"
chart us us
chart europe europe
