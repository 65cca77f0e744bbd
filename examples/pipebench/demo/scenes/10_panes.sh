# shellcheck shell=bash
# The panes of the main window: their splitters, the selection that they share, the tree hidden.
# shellcheck disable=SC2154
least_width=56 wide=240                 # of the tree between its edges, in pixels
tree_ends_at() { look_at_window && [ "$(control SysTreeView32 right)" = "$1" ]; }
results_begin_at() { look_at_window && [ "$(control SysListView32 top)" = "$1" ]; }
tree_gone() { look_at_window && [ -z "$(control SysTreeView32 x)" ]; }

# The bars are 6 pixels wide, and 2 of a sunken edge lie between them and the panes. The pane begins
# or ends where the mouse is.
drag_splitters() {
    local left right top middle
    look_at_window
    left=$(control SysTreeView32 left) right=$(control SysTreeView32 right) middle=$(control SysTreeView32 y)
    say "Dragging the bar beside the tree 60 pixels to the right, and the one above the results 40 up"
    drag $((right + 5)) "$middle" $((right + 65)) "$middle"
    wait_for "the wider tree" tree_ends_at $((right + 63))
    top=$(control SysListView32 top)
    drag "$(control SysListView32 x)" $((top - 5)) "$(control SysListView32 x)" $((top - 45))
    wait_for "the higher results" results_begin_at $((top - 43))
    say "The tree keeps its least width when its bar is dragged out of the window"
    drag $((right + 66)) "$middle" $((left + 1)) "$middle"
    wait_for "the tree in its least width" tree_ends_at $((left + least_width))
    drag $((left + least_width + 5)) "$middle" $((left + wide)) "$middle"
    wait_for "the wide tree" tree_ends_at $((left + wide - 2))
}

select_pipes() {
    say "Click on the second pipe of the tree, then on the fourth of the drawing"
    look_at_window
    xdotool mousemove $(($(control SysTreeView32 left) + 55)) $(($(control SysTreeView32 top) + 56)) click 1
    wait_for "the pipe of stainless steel" selected 1
    xdotool key Down key Down
    wait_for "the copper pipe" selected 3
    screenshot panes
    xdotool mousemove $(($(control PIPEBENCH_SKETCH right) - 300)) "$(control PIPEBENCH_SKETCH y)" click 1
    wait_for "the fourth pipe" selected 4
}

toggle_tree() {
    open_menu "$menu_view"
    xdotool key t
}

fresh_settings
start_program
open_sample
drag_splitters
select_pipes
say "View menu: the tree goes, and comes back"
toggle_tree
wait_for "the window without its tree" tree_gone
results=$(control SysListView32 top)
screenshot panes-without-tree
end_program

say "The panes are as they were left:"
start_program
open_sample
tree_gone || fail "the tree is there"
toggle_tree
wait_for "the wide tree" tree_ends_at $(($(control SysListView32 left) + wide - 2))
results_begin_at "$results" || fail "the results have another height"
end_program
