#!/bin/bash
# Runs one Windows program under Wine:  tools/wine/run.sh program.exe [arguments]
# This is CMake's emulator for the Windows builds.  Inside session.sh it uses that session;
# outside it makes one for this program alone (2 seconds more).
[ -n "${QX_WINE_SESSION:-}" ] || exec "$(dirname "$0")/session.sh" "$0" "$@"

# Without 32-bit Wine, a 32-bit program ends at once, silently and with status 0.
machine() { od -An -tx2 -j$(($(od -An -tu4 -j60 -N4 "$1") + 4)) -N2 "$1"; }
if [ ! -x /usr/lib/wine/wine ] && [ -f "$1" ] && [ "$(machine "$1")" = " 014c" ]; then
    echo "$1 is a 32-bit program, and there is no 32-bit Wine (tools/setup/wine32.sh)." >&2
    exit 1
fi
exec wine "$@"
