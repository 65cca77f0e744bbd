# shellcheck shell=bash
# The check of a line: its warnings in one list, which is saved to a file.
# shellcheck disable=SC2154
declare -A warnings=([en]='Warnings' [de]='Warnungen' [fr]='Avertissements')

fresh_settings
for language in en de fr; do
    start_program --language "$language"
    open_sample
    say "    F7 key: '${warnings[$language]}'"
    xdotool key F7
    wait_for_dialog "${warnings[$language]}"
    screenshot "$language-check"
    close_dialog "${warnings[$language]}"
    end_program
done
