# Read by the scripts of whole runs: sets up an empty folder without settings from outside, and gives
# them `expect`.

tool=$1
failures=0
for variable in $(env | sed -n 's/^\(orv[A-Za-z_]*\)=.*/\1/p'); do
    unset "$variable"
done
orvdefault=.
export orvdefault
folder=$(mktemp -d) || exit 1
trap 'rm -rf "$folder"' EXIT
cd "$folder" || exit 1

# expect WHAT WANTED GOT: the two texts are the same.
expect() {
    if [ "$2" != "$3" ]; then
        printf '%s\n  wanted: %s\n  got:    %s\n' "$1" "$2" "$3"
        failures=$((failures + 1))
    fi
}

finish() {
    [ "$failures" -eq 0 ] || echo "$failures failures"
    exit "$failures"
}
