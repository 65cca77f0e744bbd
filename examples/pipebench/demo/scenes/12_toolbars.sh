# shellcheck shell=bash
# The toolbars: a bar is dragged to another row, one floats and is docked again, one is customised,
# hidden and shown, all are locked; at the next start they are as the user left them.
# shellcheck disable=SC2154
bar_edit=402 bar_view=403 bar_tools=404 bars='401 402 403 405'  # IDs; the last ones in the strip
row_height=26 button_width=25

# ---- What stands where ---------------------------------------------------------------------------

bar_top() { look_at_window && [ "$(control "$1" top)" = "$2" ]; }
bar_left() { look_at_window && [ "$(control "$1" left)" = "$2" ]; }
bar_width() { look_at_window && [ $(($(control "$1" right) - $(control "$1" left))) = "$2" ]; }
bar_shown() { look_at_window && [ -n "$(control "$1" x)" ]; }
bar_hidden() { look_at_window && [ -z "$(control "$1" x)" ]; }
look_at_float() { look_at DOCKABLEWND Toolbar; }
float_gone() { ! look_at_float; }
float_away_from() { look_at_float && [ "$(control DOCKABLEWND left)" != "$1" ]; }
places() {
    local bar
    look_at_window
    for bar in $bars; do echo "$bar: $(control "$bar" left) $(control "$bar" top) $(control "$bar" right)"; done
    look_at_float && echo "Tools: $(control DOCKABLEWND left) $(control DOCKABLEWND top)"
}

# ---- What the user does --------------------------------------------------------------------------

# Drags a bar by its grip so that its toolbar begins near a place:  drag_bar BAR X Y
drag_bar() {
    look_at_window
    drag $(($(control "$1" left) - 4)) $(($(control "$1" top) + 12)) $(($2 - 7)) "$3"
}

# Tips are windows like menus.
leave_toolbars() {
    xdotool mousemove $((X + 500)) $((Y + 300))
    settle
}

# Opens the strip's menu at a place:  strip_menu X Y
strip_menu() {
    leave_toolbars
    xdotool search --onlyvisible --class pipebench | sort >"$scratch/windows"
    xdotool mousemove "$1" "$2" click 3
    wait_for "the menu of the toolbars" popup_count 1
}
# The same on a bar's grip, and beside the bars.
menu_of_bar() { look_at_window && strip_menu $(($(control "$1" left) - 4)) $(($(control "$1" top) + 12)); }
menu_of_strip() { strip_menu $((X + WIDTH - 160)) $((Y + 57)); }
# Chooses an entry with the keys that lead there.
choose() { xdotool key "$@" Return; wait_for "the window without its menu" popup_count 0; }

toggle_floating() {
    open_menu "$menu_view"
    xdotool key f
}

# ---- The scenes ----------------------------------------------------------------------------------

show_tip() {
    say "The mouse rests on a button: its tip"
    look_at_window
    xdotool search --onlyvisible --class pipebench | sort >"$scratch/windows"
    xdotool mousemove $(($(control "$bar_edit" left) + 36)) $(($(control "$bar_edit" top) + 12))
    wait_for "the tip" popup_count 1
    screenshot toolbars
    leave_toolbars
}

drag_to_another_row() {
    local top
    look_at_window
    top=$(control "$bar_edit" top)
    say "Dragging the bar Edit by its grip, into a second row"
    drag_bar "$bar_edit" $((X + 60)) $((top + 12 + row_height))
    wait_for "the bar in the second row" bar_top "$bar_edit" $((top + row_height))
    screenshot toolbars-second-row
}

float_and_dock() {
    local left x y
    say "View menu: the tools float, and are dragged over the drawing"
    toggle_floating
    wait_for "the floating tools" look_at_float
    left=$(control DOCKABLEWND left) x=$(control 404 left) y=$(($(control DOCKABLEWND top) + 12))
    drag "$x" "$y" $((x + 80)) $((y + 150))
    wait_for "the tools at another place" float_away_from "$left"
    screenshot toolbars-floating
    say "Dragging them over the strip: only their outline moves. There they are docked again"
    look_at_float
    x=$(control 404 left) y=$(($(control DOCKABLEWND top) + 12))
    xdotool mousemove "$x" "$y" mousedown 1 mousemove $((X + 600)) $((Y + 130)) mousemove $((X + 640)) $((Y + 80))
    screenshot toolbars-outline
    xdotool mousemove $((X + 640)) $((Y + 70)) mouseup 1
    wait_for "the tools in the strip" float_gone
    wait_for "the tools in the strip" bar_shown "$bar_tools"
    screenshot toolbars-docked
}

customise() {
    local width
    look_at_window
    width=$(($(control "$bar_edit" right) - $(control "$bar_edit" left)))
    say "Menu on the bar Edit: Customize. One more button, and another name"
    menu_of_bar "$bar_edit"
    xdotool key Down key Down key Down key Down key Return
    wait_for_box 'Customize Toolbar'
    click_control 201
    xdotool key End
    click_control 1
    click_control 1000
    xdotool key ctrl+a type 'Pipes'
    screenshot toolbars-customise
    click_control 2
    wait_for "the end of the dialog" box_gone 'Customize Toolbar'
    wait_for "the wider bar" bar_width "$bar_edit" $((width + button_width))
    screenshot toolbars-customised
}

hide_and_show() {
    say "Menu of the strip: the bar View is hidden, and shown again"
    menu_of_strip
    xdotool key Up key Up key Up        # Tools, Units, View
    screenshot toolbars-menu
    choose
    wait_for "the strip without the bar View" bar_hidden "$bar_view"
    screenshot toolbars-hidden
    menu_of_strip
    choose Up Up Up
    wait_for "the bar View" bar_shown "$bar_view"
}

lock() {
    local left
    say "Menu of the strip: the bars are locked; no grip moves one"
    menu_of_strip
    choose Down Down Down
    look_at_window
    left=$(control "$bar_edit" left)
    drag_bar "$bar_edit" $((left + 200)) $(($(control "$bar_edit" top) + 12))
    settle
    bar_left "$bar_edit" "$left" || fail "a locked bar was dragged"
    menu_of_strip
    screenshot toolbars-locked
    choose Down Down Down
}

fresh_settings
start_program
open_sample
show_tip
drag_to_another_row
float_and_dock
customise
hide_and_show
lock
toggle_floating
wait_for "the floating tools" look_at_float
before=$(places)
end_program

say "The toolbars are as they were left:"
start_program
open_sample
wait_for "the floating tools" look_at_float
after=$(places)
[ "$before" = "$after" ] || fail "the toolbars stand elsewhere: $after, not $before"
screenshot toolbars-came-back
say "The close button of the floating window docks it"
xdotool mousemove $(($(control DOCKABLEWND right) - 12)) $(($(control DOCKABLEWND top) + 12)) click 1
wait_for "the tools in the strip" float_gone
end_program
