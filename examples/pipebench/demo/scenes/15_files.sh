# shellcheck shell=bash
# The list of the user's lines and that of pump curves, with what is in each file; a line is
# changed and saved; one that would be lost is offered to be saved.
# shellcheck disable=SC2154
declare -A open=([en]='Open a line' [de]='Leitung öffnen' [fr]='Ouvrir une conduite')
declare -A curves=([en]='Choose a pump curve' [de]='Pumpenkennlinie wählen'
    [fr]='Choisir une courbe de pompe')
declare -A flow=([en]='Pipe flow at a glance' [de]='Rohrströmung auf einen Blick'
    [fr]="L'écoulement en un coup d'œil")
title_is() { look_at_window && [ "$(head -1 <<<"$controls" | cut -f9)" = "$1" ]; }
named() { look_at '#32770' "$1" && [ "$(text_of 1001)" = "$2" ]; }

# Clicks entry ENTRY of the list in the dialog TITLE and waits for its name:  choose_file TITLE ENTRY NAME
choose_file() {
    xdotool mousemove "$(control 1128 x)" $(($(control 1128 top) + 36 * $2 - 16)) click 1
    wait_for "the name $3" named "$1" "$3"
    say "    $3"
}

open_line() {
    local title=${open[$1]}
    say "    Ctrl+O: '$title'"
    xdotool key ctrl+o
    wait_for_dialog "$title"
    choose_file "$title" 2 FIRE_MAIN.PBL
    screenshot "$1-open"
    say "    a file that is not there, Enter key"
    xdotool mousemove "$(control 1001 x)" "$(control 1001 y)" click 1 key ctrl+a type 'nowhere'
    wait_for "OK for the name" named "$title" nowhere
    xdotool key Return
    wait_for "the error box" box_over "$title"
    screenshot "$1-open-error"
    xdotool key Return
    wait_for "the end of the box" box_no_more "$title"
    choose_file "$title" 2 FIRE_MAIN.PBL
    click_control 1
    wait_for "the line with 4 pipes" rows 4
    wait_for "its name in the title" title_is 'FIRE_MAIN - Pipe Bench'
}
# A message box has the title of its dialog.
box_over() { [ "$(xdotool search --onlyvisible --name "^$1\$" | wc -l)" -eq 2 ]; }
box_no_more() { [ "$(xdotool search --onlyvisible --name "^$1\$" | wc -l)" -eq 1 ] && look_at '#32770' "$1"; }

choose_curve() {
    say "    F3 key, click on Browse: '${curves[$1]}'"
    xdotool key F3
    wait_for_dialog "${flow[$1]}"
    click_control 323
    wait_for_dialog "${curves[$1]}"
    choose_file "${curves[$1]}" 1 BOOSTER_PUMP.DAT
    screenshot "$1-curves"
    click_control 1
    wait_for "the end of the dialog" window_gone "${curves[$1]}"
    wait_for "the file on the page" curve_is "${flow[$1]}" '*BOOSTER_PUMP.DAT'
    xdotool key Return
    screenshot "$1-other-curve"
    close_dialog "${flow[$1]}"
}
# shellcheck disable=SC2053
curve_is() { look_at '#32770' "$1" && [[ "$(text_of 322)" == $2 ]]; }

save_changes() {
    local file
    file=$(find "$WINEPREFIX/drive_c/users" -name FIRE_MAIN.PBL)
    say "Ctrl+D makes a fifth pipe, Ctrl+S saves it"
    xdotool key ctrl+d
    wait_for "the line with 5 pipes" rows 5
    xdotool key ctrl+s
    wait_for "the saved line" grep -q 'P-101' "$file"
    say "$(tr -d '\r' <"$file")"
}

# Ctrl+N would lose a change: the box is answered with Escape, then with No.
offer_to_save() {
    say "    Delete key, Ctrl+N: the change is offered to be saved"
    xdotool key Delete
    wait_for "the line with 4 pipes" rows 4
    xdotool key ctrl+n
    wait_for_box 'Pipe Bench'
    screenshot "$1-save"
    xdotool key Escape
    wait_for "the end of the box" box_gone 'Pipe Bench'
    rows 4 || fail "the line is lost"
}

fresh_settings
for language in en de fr; do
    start_program --language "$language"
    open_line "$language"
    choose_curve "$language"
    if [ "$language" = en ]; then
        save_changes
        xdotool key Delete
        wait_for "the line with 4 pipes" rows 4
        xdotool key ctrl+s
    fi
    xdotool key ctrl+d
    wait_for "the line with 5 pipes" rows 5
    offer_to_save "$language"
    end_program
done
