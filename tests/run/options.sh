#!/bin/sh
# Options, settings and messages of a run. The file name "list" ends a run before it draws.
. "$(dirname "$0")/harness.sh"

# setting NAME ARGUMENTS...: the line that a listing of all settings has on that name.
setting() {
    name=$1
    shift
    "$tool" "$@" -me=none,+debug5 list </dev/null 2>/dev/null | sed -n "s/^$name\( (\|:\)/$name\1/p"
}

# Help
help=$("$tool" -h)
expect "status of help" 0 $?
expect "first lines of help" "obschart: This program plots surface data
obschart syntax (version:6.76-LINUX-X11)
   obschart [options...]
Keyed options...
 -df file...  Resource/defaults file name
 -na name     Program name
 -h           Print help
 -me level    Message level
 -fp path     File path" "$(echo "$help" | head -9)"
expect "last lines of help" " -iv          Inverse colors
 -lo logo     Logo overlay
Positional options...
 filenames... Filenames" "$(echo "$help" | tail -4)"
expect "lines of help" 65 "$(echo "$help" | wc -l)"
expect "help at no level" "" "$("$tool" -h -me none)"
expect "help under another program name" "chart: This program plots surface data" \
    "$(ln -s "$tool" chart && ./chart -h | head -1)"

# Banner
expect "banner" "      SURFACE PLOTTING PROGRAM (Ver 6.76-LINUX-X11)
(empty)" "$("$tool" list </dev/null 2>/dev/null | head -2 | sed 's/^$/(empty)/')"
expect "no banner below its level" 0 "$("$tool" -me warn list </dev/null 2>/dev/null | grep -c PLOTTING)"

# Each source overrides the one before.
expect "not set" "" "$(setting title)"
echo '*.title "Noon map"' >orv.cfg
expect "from a file" "title (file): Noon map" "$(setting title)"
expect "from the environment" "title (env): night" "$(orvtitle=night setting title)"
expect "from its longer name" "title (env): own" "$(orvtitle=night orv_obschart_title=own setting title)"
expect "from the command line" "title (cmd): dawn" "$(orvtitle=night setting title -ti dawn)"
expect "from no file" "" "$(setting title -df=)"
expect "by the beginning of a name" "plot_type (cmd): cf" "$(setting plot_type -plot_t=cf)"
expect "a setting that no option has" "inter (cmd): 5" "$(setting inter -inter 5)"

# The database is found without any setting, and gives way to any.
expect "own database" 1 "$(setting file_path | grep -c '^file_path: /.')"
expect "database from the environment" "file_path (env): /base" "$(orvfpath=/base setting file_path)"

# Scripts learn from the status that nothing was drawn, or that it could not be written.
message=$("$tool" -me none -de p,/proc/no/such.ps no_such_file </dev/null 2>&1 >/dev/null)
expect "status without an output" 4 $?
expect "message without an output" "obschart: unable to open the output: p,/proc/no/such.ps" \
    "$(echo "$message" | tail -1)"
message=$("$tool" -me none -de p,/dev/full no_such_file </dev/null 2>&1 >/dev/null)
expect "status of a page that was cut" 8 $?
expect "message of a page that was cut" "Postscript: unable to write to file" "$(echo "$message" | tail -1)"

finish
