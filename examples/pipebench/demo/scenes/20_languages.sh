# shellcheck shell=bash
# A pipe is entered, wrongly at first, and its flow computed, in each language. What was typed comes
# back at the next start.
# shellcheck disable=SC2154
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

show_menus() {
    say "    View menu and its submenu for decimals"
    open_menu "$menu_view"
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
    grep -F twelve <<<"$controls" | cut -f9 >"$scratch/$language-box"
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

results_shown() { look_at '#32770' "$1" && [ -n "$(text_of 350)" ]; }
results_gone() { look_at '#32770' "$1" && [ -z "$(text_of 350)" ]; }

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
    say "    velocity $(text_of 350), pressure drop $(text_of 353). $(text_of 325)"
    grep -qF "${decimal[$language]}" <<<"$(text_of 350)" || fail "the results have another decimal character"
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

fresh_settings
start_program
open_sample
count=5
show_language 1
show_language 2
end_program

say "What was typed comes back, in the form of each language:"
start_program
open_sample
flow_page_shows de 1,5 1,5
count=5
show_language 3
flow_page_shows fr 45,5 1,5
end_program
