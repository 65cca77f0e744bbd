# shellcheck shell=bash
# The help: the manual, and the page of a dialog that its Help button opens, each from the file of the
# user's language. A viewer of the demo's own takes the place of the system's help control.
# shellcheck disable=SC2154
declare -A file=([en]=English [de]=Deutsch [fr]=Français)
declare -A options=([en]='Program options' [de]='Programmoptionen' [fr]='Options du programme')
declare -A warnings=([en]='Warnings' [de]='Warnungen' [fr]='Avertissements')

help_shown() { look_at PIPEBENCH_HELP "$1"; }
help_gone() { ! look_at PIPEBENCH_HELP "$1"; }
# Closes the help with its title, by its own key:  close_help TITLE
close_help() {
    xdotool key alt+F4
    wait_for "the window without the help" help_gone "$1"
}

for bits in 32 64; do
    wine reg add 'HKCR\CLSID\{ADB880A6-D8FF-11CF-9377-00AA003B7A11}\InprocServer32' /ve /f \
        /d "$(winepath -w "$bin/pipebench_viewer.ocx")" "/reg:$bits" >/dev/null 2>&1 || true
done
fresh_settings
for language in en de fr; do
    manual="PIPEBENCH_${file[$language]}.CHM"
    start_program --language "$language"
    say "    F1 key: $manual"
    xdotool key F1
    wait_for "the manual" help_shown "$manual"
    screenshot "$language-help"
    close_help "$manual"

    say "    F4 key, click on Help: the page beside the options"
    xdotool key F4
    wait_for_dialog "${options[$language]}"
    click_control 9
    wait_for "the page" help_shown "$manual - page"
    screenshot "$language-options-help"
    close_help "$manual - page"
    close_dialog "${options[$language]}"

    say "    F7 key, click on Help: the page beside the warnings"
    open_sample
    xdotool key F7
    wait_for_dialog "${warnings[$language]}"
    click_control 6
    wait_for "the page" help_shown "$manual - page"
    screenshot "$language-check-help"
    close_help "$manual - page"
    close_dialog "${warnings[$language]}"
    end_program
done
