#!/usr/bin/env bash
# Measures whole runs with hyperfine, wall and CPU, and their peak memory; then the kernels.
# usage: bench/run.sh BUILD_FOLDER
set -euo pipefail
build=$1
tools=$build/src
source=../shared/data
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export orvfpath=data

cache=$(ls "$source"/metars-2025*.csv)
"$tools/obsconv" -me none -o "$work/hours" "$cache"
hour=$(find "$work/hours" -type f -size +100k | head -n 1)
chart="$tools/obschart -me none -va station -de p,$work/x.ps,color"

names=("an empty run" "import of $(basename "$cache")" "the US chart" "the world chart, every station")
commands=(
    "$tools/obschart -h"
    "rm -rf $work/new && $tools/obsconv -me none -o $work/new $cache"
    "$chart -pd us $hour"
    "$chart -pd world -pr 7 $hour"
)
arguments=()
for i in "${!names[@]}"; do
    arguments+=(--command-name "${names[$i]}" "${commands[$i]}")
done
hyperfine --warmup 3 --min-runs 20 "${arguments[@]}"

echo "Peak memory:"
for i in "${!names[@]}"; do
    printf '%-40s %s\n' "${names[$i]}" "$(bash -c "${commands[$i]}" >/dev/null 2>&1 &&
        python3 bench/peak.py bash -c "exec ${commands[$i]##*&& }")"
done

for kernel in "$build"/bench/bench_*; do
    [ -x "$kernel" ] && [ -f "$kernel" ] && "$kernel" --benchmark_min_time=0.2
done
