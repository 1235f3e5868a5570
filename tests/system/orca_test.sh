#!/usr/bin/env bash
# The built program as it sounds: Orca reads the window under the keys, and each thing that it says
# is looked at. It must say what stands here, in this order, and nothing between.
# usage: orca_test.sh PROGRAM
set -euo pipefail
[ -n "${ON_A_BUS_OF_ITS_OWN:-}" ] || ON_A_BUS_OF_ITS_OWN=1 exec dbus-run-session -- "$0" "$@"
program=$(realpath "$1")
tests=$(dirname "$(realpath "$0")")
. "$tests/on_x.sh"

mkfifo "$work/spoken"
exec 7<>"$work/spoken"
mkdir -p "$work/.local/share/orca"
cp "$tests/orca_listener.py" "$work/.local/share/orca/orca-customizations.py"
/usr/libexec/at-spi-bus-launcher --launch-immediately 2>"$work/bus.log" &
started+=($!)
HOME=$work SPOKEN=$work/spoken orca --replace >"$work/orca.log" 2>&1 &
started+=($!)
disown

spoken() { read -r -t 60 -u 7 heard || fail "silent in place of: $1"; }
until_spoken() { while spoken "$1" && [ "$heard" != "$1" ]; do :; done; }
says() {
  for words in "$@"; do
    spoken "$words"
    [ "$heard" = "$words" ] || fail "it says '$heard' in place of '$words'"
  done
}
# Presses a key, and hears what comes of it: press KEY UTTERANCE...
press() { xdotool key "$1" && says "${@:2}"; }

root='Specify the pitch class which must serve as the root of the scale.'
other='Include all scales which contain the specified pitch classes, even those with a root note other than that specified above.'
in_list='The lists will contain only  scales where the root note is included in the pitch scales selected below.'
note='Select which pitch classes must appear in the scale.'
exact='This list will contain only those scales which are an exact match for the pitch classes specified and contain no other pitch classes.'
containing='This list will show scales which contain all of the pitch classes specified and which satisfy the specified root note requirements.'

mkdir -p "$work/bin/Resources"
cp "$program" "$work/bin/program"
program=$work/bin/program
cat >"$work/bin/Resources/Orrel Scales.csv" <<'END'
Bank,Name,,,,,,,,,,,,
,,1,2,3,4,5,6,7,8,9,10,11,12
Common,Major,TRUE,FALSE,TRUE,FALSE,TRUE,TRUE,FALSE,TRUE,FALSE,TRUE,FALSE,TRUE
Common,Minor,TRUE,FALSE,TRUE,TRUE,FALSE,TRUE,FALSE,TRUE,TRUE,FALSE,TRUE,FALSE
Chords,Triad,TRUE,FALSE,FALSE,FALSE,TRUE,FALSE,FALSE,TRUE,FALSE,FALSE,FALSE,FALSE
END

until_spoken 'Screen reader on.'
start
until_spoken 'Root Note combo box.'
says 'C.' "$root"
press Down 'C# / Db. Exact Match 0, Containing All Notes 3'
press Down 'D. Exact Match 0, Containing All Notes 3'
press F4 'List with 12 items.'
press Up 'C# / Db.'
press Return 'Root Note combo box.' 'C# / Db.' "$root" 'C# / Db. Exact Match 0, Containing All Notes 3'
press c 'C. Exact Match 0, Containing All Notes 3'
press Tab 'Include Other Roots check box not checked.' "$other"
press space 'checked' 'Exact Match 0, Containing All Notes 36'
press space 'not checked' 'Exact Match 0, Containing All Notes 3'
press Tab 'Roots in List Only check box not checked.' "$in_list"
press space 'checked' 'Exact Match 0, Containing All Notes 3'
press Tab 'C check box not checked.' "$note"
press space 'checked' 'Exact Match 0, Containing All Notes 3'
for name in 'C# / Db' D 'D# / Eb' E; do press Tab "$name check box not checked." "$note"; done
press space 'checked' 'Exact Match 0, Containing All Notes 2'
for name in F 'F# / Gb' G; do press Tab "$name check box not checked." "$note"; done
press space 'checked' 'Exact Match 1, Containing All Notes 1'
for name in 'G# / Ab' A 'A# / Bb' B; do press Tab "$name check box not checked." "$note"; done
press Tab 'Exact Match.' 'table with 1 row 3 columns.' "$exact"
press Down 'Chords.' 'Triad.' 'C.'
press Escape 'Exact Match.' 'table with 1 row 3 columns.' "$exact"
press Down 'Chords.' 'Triad.' 'C.'
press Tab 'Containing All Notes.' 'table with 1 row 3 columns.' "$containing"
press Down 'Common.' 'Major.' 'C.'
press shift+Tab 'Exact Match.'
echo "Heard the root, each row, and what each tick found."
