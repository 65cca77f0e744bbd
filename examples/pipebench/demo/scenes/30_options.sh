# shellcheck shell=bash
# The options, a sheet of two pages: language, units and folders change, wrong entries are refused,
# all comes back.
# shellcheck disable=SC2154
declare -A options=([en]='Program options' [de]='Programmoptionen' [fr]='Options du programme')

open_options() {
    say "    F4 key: dialog '${options[$1]}'"
    xdotool key F4
    wait_for_dialog "${options[$1]}"
}

# Turns to the first page or to the second, which has the control:  turn_page LANGUAGE PAGE CONTROL
turn_page() {
    xdotool mousemove $(($(control SysTabControl32 left) + 12)) $(($(control SysTabControl32 top) + 10)) click 1
    [ "$2" = 1 ] || xdotool key Right
    wait_for "page $2" page_has "${options[$1]}" "$3"
}
page_has() { look_at '#32770' "$1" && [ -n "$(control "$2" x)" ]; }

use_english() {
    open_options de
    screenshot de-options
    turn_page de 2 360
    screenshot de-folders
    turn_page de 1 311
    say "    English from the list of languages, Enter key"
    click_control 311
    xdotool key Home key Return key Return
    wait_for "the end of the dialog" window_gone "${options[de]}"
    open_options en
    screenshot en-options
    turn_page en 2 360
    screenshot en-folders
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
    say "    '3' decimal places, next page, folder for projects 'Projets', Enter key"
    xdotool type '3'
    turn_page fr 2 360
    click_control 360
    xdotool key ctrl+a type 'Projets'
    xdotool key Return
    refuse Projets "${options[fr]}"
    say "    'C:\Tuyaux\Projets', Enter key"
    xdotool type 'C:\Tuyaux\Projets'
    xdotool key Return
    wait_for "the end of the dialog" window_gone "${options[fr]}"
    [ -d "$WINEPREFIX/drive_c/Tuyaux/Projets" ] || fail "the folder was not made"
}

options_came_back() {
    open_options fr
    expect 311 'Français'
    expect 321 'Américaines (US)'
    expect 315 3
    say "    it shows $(text_of 311), $(text_of 321), $(text_of 315)"
    screenshot fr-options
    turn_page fr 2 360
    expect 360 'C:\Tuyaux\Projets'
    screenshot fr-folders
    close_dialog "${options[fr]}"
    screenshot fr-us-window
}

fresh_settings
start_program --language de
open_sample
use_english
end_program

start_program --language fr
open_sample
choose_language 3
change_options
end_program

start_program
open_sample
options_came_back
end_program

find "$WINEPREFIX/drive_c/users" -name PipeBench.ini -exec cp {} "$out" \;
say "The INI file that it wrote:"
tr -d '\r' <"$out/PipeBench.ini" | sed 's/^/    /'
