#!/bin/sh
# Runs of obsconv: input of every kind, its options, its exit status, and what it leaves behind.
. "$(dirname "$0")/harness.sh"
examples=$(cd "$(dirname "$0")/../../examples" && pwd) || exit 1
small=$examples/metars-small.csv
hour=2025030318_sfc.cvt

# files DIR: the files in a folder, in one line.
files() {
    (cd "$1" 2>/dev/null && find . -type f | sort | tr '\n' ' ')
}

expect "help" "obsconv: This program turns METAR caches (- for standard input) into hour files" \
    "$("$tool" -h | head -1)"

# A plain file, a packed one, and both from standard input give the same hour.
"$tool" -o plain "$small" >report
expect "status" 0 $?
expect "report" "plain/$hour: 15 reports, 15 stations, 0 not in the city file
1 reports rejected: 1 without a value" "$(cat report)"
gzip -c "$small" >small.gz
"$tool" -o packed small.gz >/dev/null
"$tool" -o piped - <small.gz >/dev/null
tr -d '\r' <"$small" | sed 's/$/\r/' | "$tool" -o dos - >/dev/null
for folder in packed piped dos; do
    expect "hour file, $folder" "" "$(cmp "plain/$hour" "$folder/$hour" 2>&1)"
done
expect "head" "ORVSFC
18Z  3 MAR 25" "$(head -2 "plain/$hour")"
expect "a report" \
    "KMSP 289 270 0716 971  74 0.50 8X !SN_BLSN_FZFG @1753 P8-34 p 7 r15 x30.9 n28.0 S6.0 G 25 \$" \
    "$(grep KMSP "plain/$hour")"

# Again changes nothing; nothing is left beside the hours.
cp "plain/$hour" before
"$tool" -o plain "$small" "$small" >/dev/null
expect "the same hour again" "" "$(cmp before "plain/$hour" 2>&1)"
expect "files" "./$hour " "$(files plain)"

# Settings come from everywhere.
orvcpath=from_env "$tool" "$small" >/dev/null
expect "folder of the environment" "./$hour " "$(files from_env)"
echo "*.con_path from_file" >orv.cfg
"$tool" "$small" >/dev/null
expect "folder of a resource file" "./$hour " "$(files from_file)"
rm orv.cfg
expect "silent" "" "$("$tool" -me none -o quiet "$small" 2>&1)"
expect "no city file" "15 not in the city file" \
    "$("$tool" -cf none -o far "$small" | grep -o '15 not in the city file')"
expect "positions then" 15 "$(grep -c ' L[0-9-]*,[0-9-]*.* e[0-9]' "far/$hour")"

# failure WHAT STATUS MESSAGE ARGUMENTS...
failure() {
    what=$1 status=$2 message=$3
    shift 3
    "$tool" -o nothing "$@" >printed 2>said
    expect "status: $what" "$status" $?
    expect "message: $what" "$message" "$(cat said)"
    expect "output: $what" "" "$(cat printed)"
    expect "files: $what" "" "$(files nothing)"
}
printf '' >empty
head -c 1500 "$small" >cut
head -n 10 "$small" >fewer
head -c 400 small.gz >cut.gz
head -c 3000 "$tool" >binary
failure "no input" 11 "obsconv: no input file; -h tells the options"
failure "absent" 6 "obsconv: absent: can't be opened" absent
failure "empty" 9 "obsconv: empty: line 0: the file is empty" "$small" empty
failure "cut" 9 "obsconv: cut: line 10: the file ends within this row" "$small" cut
failure "fewer rows" 9 "obsconv: fewer: line 10: the file ends after 4 of its 16 reports" fewer
failure "packed and cut" 9 "obsconv: cut.gz: line 6: the packed data is damaged or cut" cut.gz
printf 'a,b\n1,2\n' >foreign
printf 'station_id,observation_time,raw_text\n,,\n' >nothing
failure "foreign" 9 "obsconv: foreign: line 2: no row of column names (raw_text, station_id, observation_time)" \
    "$small" foreign
failure "no report" 10 "obsconv: nothing: line 2: no report that can be used up to here" nothing
failure "type" 11 "obsconv: the file type must be orv" -t cdf "$small"
failure "city file" 7 "obsconv: the city file /absent.cty can't be read; -cf none does without" \
    -cf /absent.cty "$small"
"$tool" -o nothing binary 2>said
expect "status: binary" 9 $?
expect "files: binary" "" "$(files nothing)"

# A place that can't be written to.
mkdir -p "taken/$hour"
"$tool" -o taken "$small" 2>/dev/null
expect "status: a folder in the place" 8 $?
expect "files: a folder in the place" "" "$(files taken)"
finish
