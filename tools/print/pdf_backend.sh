#!/bin/bash
# The printer of tools/print/session.sh, a CUPS backend: makes each document a PDF named after it.
# Arguments: job number, user, title, copies, options and, at times, a file instead of stdin.
# The PDF appears under its name when it is complete. Copies are pages of it.
[ $# -gt 0 ] || exit 0
umask 022
name=$(tr -c '[:alnum:] ._\n-' '_' <<<"$3")
pdf=${DEVICE_URI#pdf:}/${name:0:100}.pdf
gs -q -dSAFER -dBATCH -dNOPAUSE -sDEVICE=pdfwrite -dDoNumCopies -o "$pdf.part" \
    -c "<</NumCopies $(($4))>> setpagedevice" -f "${6:--}" >&2 &&
    mv "$pdf.part" "$pdf"
