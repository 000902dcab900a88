#!/bin/sh
# Runs the recipes of the README as a reader would, with the tools on the path, beside the examples and a
# folder of two hours. Each must say nothing on standard error, end well, and leave the files that the
# comment above it promises.
# usage: recipes.sh OBSCHART
. "$(dirname "$0")/harness.sh"
unset orvdefault
source=$(cd "$(dirname "$0")/../.." && pwd) || exit 1
PATH=$(dirname "$tool"):$PATH
ln -s "$source/examples" examples
mkdir hours recipes
cp examples/2025012722_sfc.cvt hours
sed '2s/22Z/21Z/' examples/2025012722_sfc.cvt >hours/2025012721_sfc.cvt

# A comment "recipe: FILES" and the fenced block behind it become recipes/N.files and recipes/N.sh.
awk '
    /^<!-- recipe/ {
        n++
        files = $0
        sub(/^<!-- recipe:? */, "", files)
        sub(/ *-->$/, "", files)
        print files > sprintf("recipes/%02d.files", n)
    }
    /^```$/ { inside = 0 }
    inside { print > sprintf("recipes/%02d.sh", n) }
    /^```sh$/ { inside = 1; blocks++ }
    END { if (blocks != n) print "blocks without a promise" > "recipes/unmarked" }
' "$source/README.md"
expect "each block is marked as a recipe" no "$([ -e recipes/unmarked ] && echo yes || echo no)"
count=$(find recipes -name '*.sh' | wc -l)
expect "recipes are found" yes "$([ "$count" -ge 20 ] && echo yes || echo "no: $count")"

# drawn FILE: a page that has ended, with more on it than the map and the labels of an hour without
# reports; any other file only has to hold something.
empty=0
drawn() {
    [ -s "$1" ] || return 1
    case $1 in
    *.ps) [ "$(tail -n 1 "$1")" = "%%EOF" ] && [ "$(wc -l <"$1")" -gt "$empty" ] ;;
    esac
}
obschart -me none -dr=data -va wx -pd south_pole -de p,empty.ps,color \
    examples/2025012722_sfc.cvt >/dev/null 2>&1
empty=$(wc -l <empty.ps)

for recipe in recipes/*.sh; do
    promised=$(cat "${recipe%.sh}.files")
    if [ "$promised" = "on a display" ]; then
        [ -n "$DISPLAY" ] || continue
        timeout 3 sh -e "$recipe" >printed 2>said
        status=$?
        [ $status -eq 124 ] && status=0
        promised=
    else
        sh -e "$recipe" >printed 2>said
        status=$?
    fi
    what=$(head -n 1 "$recipe")
    expect "status: $what" 0 $status
    expect "errors: $what" "" "$(cat said)"
    expect "file not found: $what" "" "$(grep -i 'unable' printed)"
    for file in $promised; do
        expect "promised by: $what" "$file drawn" "$file $(drawn "$file" && echo drawn)"
    done
done
finish
