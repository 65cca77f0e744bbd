# shellcheck shell=bash
# The start page in each language; its buttons rise under the mouse, sink when they are pressed, and
# do what they say when the mouse is let go on them.
# shellcheck disable=SC2154
picture_changed() { settled && ! cmp -s "$scratch/b.ppm" "$scratch/before.ppm"; }

# Does something with the mouse and waits until the window looks different:  see_change WHAT XDOTOOL...
see_change() {
    local what=$1
    shift
    settle
    cp "$scratch/b.ppm" "$scratch/before.ppm"
    xdotool "$@"
    wait_for "$what" picture_changed
}

for language in en de fr; do
    start_program --language "$language"
    start_button 2
    see_change "a raised button" mousemove "$BX" "$BY"
    screenshot "$language-start"
    if [ "$language" = en ]; then
        see_change "a sunken button" mousedown 1
        screenshot en-start-pressed
        say "The mouse leaves the button before it is let go: nothing opens"
        see_change "a flat button" mousemove $((BX + 250)) "$BY" mouseup 1
        window_shown 'Open a line' && fail "a line is to be opened"
        open_sample
    fi
    end_program
done
