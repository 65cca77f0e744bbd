# shellcheck shell=bash
# Pipe Bench as the demo's scenes see it. Sourced by demo.sh.
# shellcheck disable=SC2034,SC2154
languages=(en de fr)
menus=5                                 # in the menu bar
menu_view=3 menu_language=4

# ---- The program ---------------------------------------------------------------------------------

# Boxes open in the middle of the screen: the window goes there, so that pictures show both.
drag_to_the_middle() {
    local right=$(((1280 - WIDTH) / 2 - X)) down=$(((1024 - HEIGHT) / 2 - Y))
    local place=$((X + right)),$((Y + down))
    drag $((X + 300)) $((Y + 12)) $((X + 300 + right)) $((Y + 12 + down))
    wait_for "the window in the middle" stands_at "$place"
}
stands_at() { locate; [ "$X,$Y" = "$1" ]; }

# Starts the program with arguments of its own, and drags its window to the middle by its title.
start_program() {
    say "Starting pipebench.exe $*"
    wine "$bin/pipebench.exe" "$@" 2>/dev/null &
    program=$!
    wait_for "the main window" main_window_shown
    locate
    settle
    drag_to_the_middle
}
main_window_shown() {
    window=$(xdotool search --onlyvisible --name 'Pipe Bench$' | head -1) && [ -n "$window" ]
}

end_program() {
    say "Alt+F4"
    xdotool key alt+F4
    # Changes are not kept.
    wait_for "the end of the program" program_gone_or_asking
    program_gone || xdotool key n
    wait_for "the end of the program" program_gone
    wait "$program" || fail "pipebench.exe ended with status $?"
}
program_gone_or_asking() { program_gone || look_at '#32770' 'Pipe Bench'; }
program_gone() { ! kill -0 "$program" 2>/dev/null; }

# Forgets what the program has kept from one start to the next.
fresh_settings() {
    find "$WINEPREFIX/drive_c/users" \( -name PipeBench.ini -o -name PipeBenchToolbars.xml \) -delete
}

# ---- Its main window -----------------------------------------------------------------------------

look_at_window() { look_at PIPEBENCH_MAIN ''; }
# Whether the table of results has so many rows; whether this row of it, from 1 on, is selected.
rows() { look_at_window && [[ "$(text_of SysListView32)" == "$1 "* ]]; }
selected() { look_at_window && [[ "$(text_of SysListView32)" == *" $1" ]]; }

choose_language() {
    say "Language menu: row $1 of ${#languages[@]}"
    open_menu "$menu_language"
    click_row "$1" "${#languages[@]}"
    wait_for "the window without its menu" popup_count 0
}

# ---- Its start page ------------------------------------------------------------------------------

# The middle of button ROW of the panel is in BX, BY afterwards:  start_button ROW
panel_shown() { look_at_window && [ -n "$(control BtnLayout x)" ]; }
start_button() {
    wait_for "the start page" panel_shown
    BX=$(control BtnLayout x) BY=$(($(control BtnLayout top) + 56 * $1 - 32))
}
# A line to work with.
open_sample() {
    start_button 3
    xdotool mousemove "$BX" "$BY" click 1
    wait_for "the list with 5 pipes" rows 5
}
