#!/usr/bin/env bash
# Measures whole runs with hyperfine, wall and CPU, and their peak memory; then the kernels.
# usage: bench/run.sh BUILD_FOLDER
set -euo pipefail
build=$1
tools=$build/src
source=../shared/data
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

hour=examples/2025012722_sfc.cvt
page="$tools/obschart -me none -de p,$work/x.ps,color"
county="lamb:40.0:-105.3,40.0,-105.3,61,49,0.03,0.03"

names=() commands=()
# run NAME COMMAND: a run to measure.
run() {
    names+=("$1")
    commands+=("$2")
}

run "an empty run" "$tools/obschart -h"
for cache in "$source"/metars-*.csv; do
    [ -f "$cache" ] || continue
    run "import of $(basename "$cache")" \
        "rm -rf $work/new && $tools/obsconv -me none -o $work/new $cache"
done
run "US, station models" "$page -pd us -va station $hour"
run "world, every station" "$page -pd world -pr 7 -va station $hour"
run "a page without map and data" "$page -pd world -dr none $hour"
run "world, map of 1:50 m" "$page -pd world -mf orv.map $hour"
run "world, the usual map" "$page -pd world $hour"
run "world, land filled" "$page -pd world -mf fill.mpl $hour"
run "Colorado with counties" "$page -pd colorado $hour"
run "one county" "$page -pd $county $hour"
run "US, analysis and stations" \
    "$page -pd us -pr 7 -va analysis -oa 3,9,2,.3 -pa grid=3 $hour"

arguments=()
for i in "${!names[@]}"; do
    arguments+=(--command-name "${names[$i]}" "${commands[$i]}")
done
hyperfine --style basic --warmup 3 --min-runs 20 "${arguments[@]}"

echo "Peak memory, MB:"
for i in "${!names[@]}"; do
    command time -f %M -o "$work/peak" bash -c "${commands[$i]}" >/dev/null
    awk -v name="${names[$i]}" '{ printf "  %-36s %.1f\n", name, $1 / 1024 }' "$work/peak"
done

for kernel in "$build"/bench/bench_*; do
    [ -x "$kernel" ] && [ -f "$kernel" ] || continue
    "$kernel" --benchmark_min_time=0.2 | grep -v '^Creating: '
done
