# shellcheck shell=bash
# How the demo sees and drives windows: waiting, windows and their controls, mouse, menus, pictures.
# Sourced by demo.sh, which sets bin (programs), out (pictures) and scratch.
#
# A window's place and size are in X, Y, WIDTH, HEIGHT after locate; the window is the program's
# main one, in $window.
# shellcheck disable=SC2154
limit=60                                # seconds to wait for anything

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

# The lines of probe for the window CLASS, TITLE (empty: any) are in $controls afterwards.
look_at() { controls=$(probe "$1" "$2") && [ -n "$controls" ]; }
wait_for_dialog() { wait_for "the dialog '$1'" window_shown "$1"; wait_for "the dialog '$1'" look_at '#32770' "$1"; }
wait_for_box() { wait_for "the box '$1'" look_at '#32770' "$1"; }
box_gone() { ! look_at '#32770' "$1"; }

# What is known of the control with this identifier or class:  control 303 x
control() {
    local field
    case $2 in
        x) field=3 ;; y) field=4 ;;
        left) field=5 ;; top) field=6 ;; right) field=7 ;; bottom) field=8 ;;
        text) field=9 ;;
    esac
    awk -F'\t' -v key="$1" -v field="$field" '$1 == key || $2 == key { print $field; exit }' <<<"$controls"
}
text_of() { control "$1" text; }
click_control() { xdotool mousemove "$(control "$1" x)" "$(control "$1" y)" click 1; }
# Fails unless a control holds a text:  expect 330 12.5
expect() { [ "$(text_of "$1")" = "$2" ] || fail "control $1 shows '$(text_of "$1")', not '$2'"; }

# Answers the error box with this text, and finds its dialog again:  refuse TEXT TITLE
refuse() {
    wait_for_box 'Pipe Bench'
    say "    error box: $(grep -F "$1" <<<"$controls" | cut -f9)"
    xdotool key Return
    wait_for "the end of the box" box_gone 'Pipe Bench'
    look_at '#32770' "$2" || fail "the dialog '$2' has gone with the box"
}
close_dialog() {
    xdotool key Escape
    wait_for "the end of the dialog '$1'" window_gone "$1"
}

# Presses the left button at a place, goes to another in steps and lets go:  drag X Y X Y
drag() {
    local step steps=4
    xdotool mousemove "$1" "$2" mousedown 1
    for ((step = 1; step <= steps; step++)); do
        xdotool mousemove $(($1 + ($3 - $1) * step / steps)) $(($2 + ($4 - $2) * step / steps))
    done
    xdotool mouseup 1
}

# ---- Menus: popups are windows without a title ---------------------------------------------------

popups() {
    xdotool search --onlyvisible --class pipebench 2>/dev/null | sort >"$scratch/now" || true
    comm -13 "$scratch/windows" "$scratch/now"
}
popup_count() { [ "$(popups | wc -l)" -eq "$1" ]; }
popup_place() { popups | head -1 | xargs -r xdotool getwindowgeometry 2>/dev/null || true; }
popup_elsewhere() { [ "$(popups | wc -l)" -eq 1 ] && [ "$(popup_place)" != "$1" ]; }

# Opens one of the MENUS menus by number: a click on the first, then the arrow key to the left (past
# the system menu), as the one to the right would open submenus:  open_menu NUMBER
open_menu() {
    local menu place
    xdotool search --onlyvisible --class pipebench | sort >"$scratch/windows"
    xdotool mousemove $((X + 20)) $((Y + 34)) click 1
    wait_for "the first menu" popup_count 1
    [ "$1" -gt 1 ] || return 0
    for ((menu = menus + 1; menu >= $1; menu--)); do
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

# ---- Pictures of the main window and of what lies over it ----------------------------------------

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
