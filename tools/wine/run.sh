#!/bin/bash
# Runs one Windows program under Wine:  tools/wine/run.sh program.exe [arguments]
# This is CMake's emulator for the Windows builds.  Inside session.sh it uses that session;
# outside it makes one for this program alone (2 seconds more).
[ -n "${QX_WINE_SESSION:-}" ] || exec "$(dirname "$0")/session.sh" "$0" "$@"
exec wine "$@"
