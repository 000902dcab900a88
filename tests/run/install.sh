#!/bin/sh
# Installs into a scratch folder; the tools then work from any other one, with nothing set, on the
# database that came with them.
# usage: install.sh OBSCHART CMAKE BUILD_FOLDER
. "$(dirname "$0")/harness.sh"
cmake=$2 build=$3
examples=$(cd "$(dirname "$0")/../../examples" && pwd) || exit 1

if ! "$cmake" --install "$build" --prefix "$folder/place" >log 2>&1; then
    cat log
    exit 1
fi
mkdir elsewhere && cd elsewhere || exit 1

# run TOOL ARGUMENTS...: an installed tool, in an empty environment.
run() {
    program=$1
    shift
    env -i "../place/bin/$program" "$@"
}
setting() {
    run obschart -me=none,+debug5 list </dev/null 2>/dev/null | sed -n "s/^$1\( (\|:\)/$1\1/p"
}
expect "its own database" "file_path: $(cd .. && pwd -P)/place/share/orv" "$(setting file_path)"
expect "its settings" "std.mpl" "$(setting map_file | sed 's/.*: //')"

run obsconv "$examples/metars-small.csv" >report 2>said
expect "status of obsconv" 0 $?
expect "words of obsconv" "" "$(cat said)"
expect "stations known" "15 stations, 0 not in the city file" "$(grep -o '15 stations.*' report)"

# The hour is found by name, and drawn over the map.
run obschart -va station -de p,page.ps,color 2025030318_sfc.cvt >printed 2>said
expect "status of obschart" 0 $?
expect "words of obschart" "" "$(cat said)"
run obschart -dr=-map -va station -de p,bare.ps,color 2025030318_sfc.cvt >printed 2>said
expect "stations and a map are drawn" yes \
    "$([ "$(wc -l <page.ps)" -gt $((2 * $(wc -l <bare.ps))) ] && [ "$(wc -l <bare.ps)" -gt 1000 ] &&
        echo yes)"

# The library is there for users' programs.
expect "headers and library" "2" "$(find ../place -name Plot.h -o -name liborv.a | wc -l)"
expect "size of the database below 14 MB" yes \
    "$([ "$(du -sk ../place/share/orv | cut -f1)" -lt 14336 ] && echo yes)"
finish
