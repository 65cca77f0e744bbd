#!/bin/bash
# Drives Pipe Bench, a Windows program under Wine, as a person would: with mouse and keyboard.
#   demo.sh BUILD_DIR OUT_DIR
# runs inside tools/wine/session.sh.  BUILD_DIR is a Windows build with the Linux build beside it;
# screenshots go to OUT_DIR.  Ends with status 1 when something expected does not appear.
set -euo pipefail
bin=$1/bin
out=$2
linux=$1/../linux/bin/pipebench
limit=20                                # seconds to wait for anything
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir -p "$out"

say() { printf '%s\n' "$*"; }
fail() {
    say "FAILED: $*" >&2
    import -window root "$out/failed.png" || true
    exit 1
}

# Waits until a command succeeds:  wait_for DESCRIPTION COMMAND...
wait_for() {
    local what=$1 end=$((SECONDS + limit))
    shift
    until "$@"; do
        [ $SECONDS -lt $end ] || fail "$what did not appear within $limit seconds"
        sleep 0.05
    done
}

# ---- Windows: the X server knows them by title, probe by their controls --------------------------

window_shown() { xdotool search --onlyvisible --name "^$1\$" >/dev/null 2>&1; }
window_gone() { ! window_shown "$1"; }
probe() { wine "$bin/pipebench_probe.exe" "$@" 2>/dev/null | tr -d '\r'; }

# The lines of probe for the window CLASS, TITLE are in $controls afterwards.
look_at() { controls=$(probe "$1" "$2") && [ -n "$controls" ]; }
wait_for_dialog() { wait_for "the dialog '$1'" window_shown "$1"; wait_for "the dialog '$1'" look_at '#32770' "$1"; }
# The error box has the title of the main window, so its class tells them apart.
wait_for_box() { wait_for "the box '$1'" look_at '#32770' "$1"; }
box_gone() { ! look_at '#32770' "$1"; }

# Field 1 to 5 of the control with this identifier or class: control 303 3
control() { awk -F'\t' -v key="$1" -v field="$2" '$1 == key || $2 == key { print $field; exit }' <<<"$controls"; }
click_control() { xdotool mousemove "$(control "$1" 3)" "$(control "$1" 4)" click 1; }

# ---- Menus: popups are windows without a title ---------------------------------------------------

popups() { xdotool search --onlyvisible --class pipebench 2>/dev/null | sort >"$scratch/now" || true
    comm -13 "$scratch/windows" "$scratch/now"; }
popup_count() { [ "$(popups | wc -l)" -eq "$1" ]; }
popup_place() { popups | head -1 | xargs -r xdotool getwindowgeometry 2>/dev/null || true; }
popup_elsewhere() { [ "$(popups | wc -l)" -eq 1 ] && [ "$(popup_place)" != "$1" ]; }

# Opens one of the five menus by number: a click on the first, then the arrow key to the left (past
# the system menu), as the one to the right would open submenus.
open_menu() {
    local menu place
    xdotool search --onlyvisible --class pipebench | sort >"$scratch/windows"
    xdotool mousemove $((X + 20)) $((Y + 34)) click 1
    wait_for "the first menu" popup_count 1
    for ((menu = 6; menu >= $1; menu--)); do
        place=$(popup_place)
        xdotool key Left
        wait_for "menu $menu" popup_elsewhere "$place"
    done
}
close_menu() { xdotool key Escape key Escape key Escape; wait_for "the window without its menu" popup_count 0; }

# Clicks row ROW of ROWS in the open menu, which has no separators.
click_row() {
    local x y width height
    settle
    read -r x y width height < <(xdotool getwindowgeometry --shell "$(popups | head -1)" |
        awk -F= '{ v[$1] = $2 } END { print v["X"], v["Y"], v["WIDTH"], v["HEIGHT"] }')
    xdotool mousemove $((x + width / 3)) $((y + (2 * $1 - 1) * height / (2 * $2))) click 1
}

# ---- Pictures ------------------------------------------------------------------------------------

capture() { import -window root -crop "${WIDTH}x$HEIGHT+$X+$Y" +repage "$1"; }
# Waits until the window has been painted and two pictures in a row are the same.
settle() { wait_for "a finished picture" settled; }
settled() {
    capture "$scratch/a.ppm"
    [ "$(identify -format %k "$scratch/a.ppm")" -gt 50 ] || return
    sleep 0.15
    capture "$scratch/b.ppm"
    cmp -s "$scratch/a.ppm" "$scratch/b.ppm"
}
screenshot() {
    settle
    capture "$out/$1.png"
    say "    picture: ${out##*/}/$1.png"
}

locate() { eval "$(xdotool getwindowgeometry --shell "$window")"; }  # WIDTH, HEIGHT, X, Y
moved() { locate; [ "$X,$Y" != "$1" ]; }

# ---- What is shown in each language --------------------------------------------------------------

declare -A dialog=([en]='Pipe data' [de]='Rohrdaten' [fr]='Données du tuyau')
declare -A good=([en]=12.5 [de]=12,5 [fr]=12,5)
declare -A label=([en]='Inside &diameter:' [de]='Innen&durchmesser:'
    [fr]='&Diamètre intérieur :')
declare -A flow=([en]='Pipe flow at a glance' [de]='Rohrströmung auf einen Blick'
    [fr]="L'écoulement en un coup d'œil")
# What is typed on that page: into the field for the viscosity or for the flow.
declare -A field=([en]=336 [de]=330 [fr]=330)
declare -A decimal=([en]=. [de]=, [fr]=,)
declare -A typed=([en]=1.5 [de]=1,5 [fr]=45,5)
declare -A options=([en]='Program options' [de]='Programmoptionen' [fr]='Options du programme')
languages=(en de fr)

rows() { look_at PIPEBENCH_MAIN 'Pipe Bench' && [ "$(control SysListView32 5)" = "$1" ]; }

choose_language() {
    say "Language menu: row $1 of ${#languages[@]}"
    open_menu 4
    click_row "$1" "${#languages[@]}"
    wait_for "the window without its menu" popup_count 0
}

show_menus() {
    say "    View menu and its submenu for decimals"
    open_menu 3
    xdotool key Down key Right
    wait_for "the submenu" popup_count 2
    screenshot "$1-menu"
    close_menu
}

enter_pipe() {
    local language=$1 expected=$2
    say "    Insert key: dialog '${dialog[$language]}'"
    xdotool key Insert
    wait_for_dialog "${dialog[$language]}"
    grep -qF "${label[$language]}" <<<"${controls//$'\u00a0'/ }" || fail "no label '${label[$language]}'"
    screenshot "$language-dialog"

    say "    length 'twelve', click on OK"
    click_control 303
    xdotool key ctrl+a type 'twelve'
    click_control 1
    wait_for_box 'Pipe Bench'
    grep -F twelve <<<"$controls" | cut -f5 >"$scratch/$language-box"
    say "    error box: $(cat "$scratch/$language-box")"
    screenshot "$language-error"
    xdotool key Return
    wait_for "the end of the box" box_gone 'Pipe Bench'

    say "    length '${good[$language]}', Enter key"
    look_at '#32770' "${dialog[$language]}" || fail "the dialog has gone with the box"
    xdotool type "${good[$language]}"
    xdotool key Return
    wait_for "the end of the dialog" window_gone "${dialog[$language]}"
    wait_for "the list with $expected pipes" rows "$expected"
    say "    the list has $expected pipes"
}

results_shown() { look_at '#32770' "$1" && [ -n "$(control 350 5)" ]; }
results_gone() { look_at '#32770' "$1" && [ -z "$(control 350 5)" ]; }

# Answers the error box with this text, and finds its dialog again:  refuse TEXT TITLE
refuse() {
    wait_for_box 'Pipe Bench'
    say "    error box: $(grep -F "$1" <<<"$controls" | cut -f5)"
    xdotool key Return
    wait_for "the end of the box" box_gone 'Pipe Bench'
    look_at '#32770' "$2" || fail "the dialog '$2' has gone with the box"
}
expect() { [ "$(control "$1" 5)" = "$2" ] || fail "field $1 shows '$(control "$1" 5)', not '$2'"; }
close_dialog() {
    xdotool key Escape
    wait_for "the end of the dialog '$1'" window_gone "$1"
}

open_flow_page() {
    say "    F3 key: page '${flow[$1]}'"
    xdotool key F3
    wait_for_dialog "${flow[$1]}"
    wait_for "the first results" results_shown "${flow[$1]}"
}

# Shows the flow of a fluid through the pipe that is selected, after a wrong entry.
pipe_flow() {
    local language=$1 title=${flow[$1]}
    open_flow_page "$language"
    say "    'water' into a field for numbers, Enter key"
    click_control "${field[$language]}"
    xdotool key ctrl+a type 'water'
    wait_for "empty results" results_gone "$title"
    xdotool key Return
    refuse water "$title"

    say "    '${typed[$language]}', Enter key"
    xdotool type "${typed[$language]}"
    xdotool key Return
    wait_for "the results" results_shown "$title"
    say "    velocity $(control 350 5), pressure drop $(control 353 5). $(control 325 5)"
    grep -qF "${decimal[$language]}" <<<"$(control 350 5)" || fail "the results have another decimal character"
    screenshot "$language-flow"
    close_dialog "$title"
}

# The page shows what was typed there in an earlier session:  flow_page_shows LANGUAGE FLOW VISCOSITY
flow_page_shows() {
    open_flow_page "$1"
    expect 330 "$2"
    expect 336 "$3"
    say "    it shows the flow $2 and the viscosity $3"
    close_dialog "${flow[$1]}"
}

open_options() {
    say "    F4 key: dialog '${options[$1]}'"
    xdotool key F4
    wait_for_dialog "${options[$1]}"
}

use_english() {
    open_options de
    screenshot de-options
    say "    English from the list of languages, Enter key"
    click_control 311
    xdotool key Home key Return key Return
    wait_for "the end of the dialog" window_gone "${options[de]}"
    open_options en
    screenshot en-options
    close_dialog "${options[en]}"
}

# US units, decimals after a wrong entry, a folder that is made.
change_options() {
    open_options fr
    say "    US units, '1,5' decimal places, click on OK"
    click_control 321
    xdotool key Down key Return
    click_control 315
    xdotool key ctrl+a type '1,5'
    click_control 1
    refuse 1,5 "${options[fr]}"
    say "    '3' decimal places, folder for projects 'C:\Tuyaux\Projets', Enter key"
    xdotool type '3'
    click_control 360
    xdotool key ctrl+a type 'C:\Tuyaux\Projets'
    xdotool key Return
    wait_for "the end of the dialog" window_gone "${options[fr]}"
    [ -d "$WINEPREFIX/drive_c/Tuyaux/Projets" ] || fail "the folder was not made"
}

options_came_back() {
    open_options fr
    expect 311 'Français'
    expect 321 'Américaines (US)'
    expect 315 3
    expect 360 'C:\Tuyaux\Projets'
    say "    it shows $(control 311 5), $(control 321 5), $(control 315 5), $(control 360 5)"
    screenshot fr-options
    close_dialog "${options[fr]}"
    screenshot fr-us-window
    open_flow_page fr
    screenshot fr-us-flow
    close_dialog "${flow[fr]}"
}

# ---- Sessions ------------------------------------------------------------------------------------

# Boxes open in the middle of the screen: the window goes there, so that pictures show both.
drag_to_the_middle() {
    say "Dragging the window by its title"
    local before=$X,$Y
    xdotool mousemove $((X + 300)) $((Y + 12)) mousedown 1 mousemove $((X + 400)) $((Y + 112)) \
        mousemove $((X + 520)) $((Y + 252)) mouseup 1
    wait_for "the window at its new place" moved "$before"
}

start_program() {
    say "Starting pipebench.exe"
    wine "$bin/pipebench.exe" 2>/dev/null &
    program=$!
    wait_for "the main window" window_shown 'Pipe Bench'
    window=$(xdotool search --onlyvisible --name '^Pipe Bench$' | head -1)
    wait_for "the list with 5 pipes" rows 5
    count=5
    locate
    settle
}

end_program() {
    say "Alt+F4"
    xdotool key alt+F4
    wait_for "the end of the program" window_gone 'Pipe Bench'
    wait "$program" || fail "pipebench.exe ended with status $?"
}

# Row ROW of the list of languages.
show_language() {
    local language=${languages[$1 - 1]}
    [ "$1" = 1 ] || choose_language "$1"
    say "In the language '$language':"
    show_menus "$language"
    enter_pipe "$language" $((++count))
    pipe_flow "$language"
    screenshot "$language-window"
}

start_program
drag_to_the_middle
show_language 1
show_language 2
end_program

say "What was typed comes back, in the form of each language:"
start_program
flow_page_shows de 1,5 1,5
use_english
flow_page_shows en 1.5 1.5
drag_to_the_middle
show_language 3
change_options
end_program

start_program
drag_to_the_middle
options_came_back
end_program

find "$WINEPREFIX/drive_c/users" -name PipeBench.ini -exec cp {} "$out" \;
say "The INI file that it wrote:"
tr -d '\r' <"$out/PipeBench.ini" | sed 's/^/    /'

# ---- The same without windows --------------------------------------------------------------------

say "Console mode, as a Windows program and natively on Linux:"
for language in "${languages[@]}"; do
    wine "$bin/pipebench.exe" --console --language "$language" 2>/dev/null | tr -d '\r' >"$out/$language-windows.txt"
    "$linux" --language "$language" >"$out/$language-linux.txt"
    diff "$out/$language-windows.txt" "$out/$language-linux.txt" ||
        fail "the two print different texts ('$language')"
    grep -qF "$(cat "$scratch/$language-box")" "$out/$language-linux.txt" ||
        fail "the error box and the console mode say different things ('$language')"
    say "    $language: $(wc -l <"$out/$language-linux.txt") lines, the same in both"
done
cat "$out/de-linux.txt"
say "Done: the pictures are in $out"
