# shellcheck shell=bash
# The report on the line: printed with Ctrl+P on the printer of tools/print/session.sh, which makes a
# PDF of it, and read back.
# shellcheck disable=SC2154
printed() { [ -e "$QX_PRINTED/New line.pdf" ]; }
expect_words() { grep -qF "$2" <<<"$1" || fail "the report does not say '$2'"; }

read_report() {
    local text pages
    cp "$QX_PRINTED/New line.pdf" "$out/report.pdf"
    pages=$(pdfinfo "$out/report.pdf" | awk '$1 == "Pages:" { print $2 }')
    [ "$pages" = 3 ] || fail "the report has $pages pages"
    # Hyphens of the printer's font are read as soft ones.
    text=$(pdftotext -layout "$out/report.pdf" - | tr -s ' ' | sed 's/\xc2\xad/-/g')
    expect_words "$text" 'Report on a pipe line'
    expect_words "$text" 'P-103 Copper 18.00 65 59.73'
    expect_words "$text" 'Page 3 / 3'
    pdftoppm -r 100 -png -singlefile "$out/report.pdf" "$out/report"
    say "    printed: ${out##*/}/report.pdf, $pages pages; the first one: ${out##*/}/report.png"
}

if [ -z "${QX_PRINTED:-}" ]; then
    say "SKIPPED: no printing service could be started"
    [ "${CI:-}" != true ] || exit 1
else
    fresh_settings
    start_program
    open_sample
    say "Ctrl+P"
    xdotool key ctrl+p
    wait_for "the printed report" printed
    read_report
    end_program
fi
