#!/bin/bash
# Runs a command with an X server, a window manager and a fresh Wine prefix of its own:
#   tools/wine/session.sh ctest --preset windows-x86
#   tools/wine/session.sh wine program.exe
# The exit status is the command's.  Several sessions can run side by side.
# KEEP_SESSION=1 keeps the prefix for a look at it afterwards.  OWN_SCREEN=1 shows the windows on
# the screen that DISPLAY names instead of an invisible one.  DPI=144 gives the screen that many dots
# per inch (usually 96), for programs that know of them.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/common.sh"

if ! wine32_installed && wine32_tree_usable; then
    in_wine32_tree "$0" "$@"
    exit
fi

# The session's folder stands beside the template (hard links need one file system).  It is locked
# as long as its session lives: an unlocked one was left by a session that was killed.  One
# session at a time looks, so that none removes a folder that is about to be locked.
new_folder() {
    local old
    mkdir -p "$qx_cache/sessions"
    exec 9<"$qx_cache/sessions"
    flock 9
    for old in "$qx_cache"/sessions/*/; do
        [ -d "$old" ] || continue
        flock -n "$old" sh -c 'WINEPREFIX=$0/prefix wineserver -k; rm -rf "$0"' "$old" || true
    done
    session=$(mktemp -d "$qx_cache/sessions/XXXXXX")
    exec 8<"$session"
    flock 8
    exec 9<&-
}

# Hard links for the 1.2 GB of system files (0.1 s instead of 5 s), real copies of everything
# that Wine changes in place (registry, ini files).
new_prefix() {
    local template
    template=$("$here/template.sh")
    export WINEPREFIX=$session/prefix
    cp -al "$template" "$WINEPREFIX"
    (cd "$template" &&
        find . -type f -not -regex '.*/\(system32\|syswow64\|winsxs\)/.*' -print0 |
        xargs -0 cp -a --remove-destination --parents -t "$WINEPREFIX")
    # Documents and the like lead into the home directory: what programs write stays in the prefix.
    find "$WINEPREFIX/drive_c/users" -type l -exec sh -c 'rm "$1" && mkdir "$1"' sh {} \;
    [ -z "${DPI:-}" ] || sed -i "/^\[Control Panel..Desktop\] /a \\
\"LogPixels\"=dword:$(printf %08x "$DPI")" "$WINEPREFIX/user.reg"
}

start_screen() {
    local wm
    [ -n "${OWN_SCREEN:-}" ] && [ -n "${DISPLAY:-}" ] && return
    wm=$qx_cache/nullwm-$(cksum <"$here/nullwm.c" | cut -d' ' -f1)
    [ -x "$wm" ] || { gcc -O2 "$here/nullwm.c" -o "$wm.$$" -lX11 && mv "$wm.$$" "$wm"; }
    setpriv --pdeathsig TERM Xvfb -displayfd 1 -screen 0 1280x1024x24 -nolisten tcp \
        >"$session/display" 2>"$session/xvfb.log" </dev/null 8<&- &
    xvfb=$!
    for _ in $(seq 200); do [ -s "$session/display" ] && break; sleep 0.05; done
    [ -s "$session/display" ] || { cat "$session/xvfb.log" >&2; exit 1; }
    DISPLAY=:$(cat "$session/display")
    export DISPLAY
    unset XAUTHORITY WAYLAND_DISPLAY
    "$wm" >/dev/null 2>&1 </dev/null 8<&- &
    nullwm=$!
}

start_wine() {
    # Tests print on the printer of tools/print/session.sh, never on somebody's.
    [ -n "${QX_PRINTED:-}${OWN_SCREEN:-}" ] || export CUPS_SERVER=localhost:1
    export QX_WINE_SESSION=1 WINEDEBUG=${WINEDEBUG:--all} LC_ALL=C.UTF-8
    export WINEDLLOVERRIDES=${WINEDLLOVERRIDES:-'mscoree,mshtml=;winemenubuilder.exe=d'}
    # A server that stays: saves 1 to 3 seconds at the start of each program.
    wineserver -p 8<&-
    # Start Wine's background processes (services, desktop) now, away from the command's output: a
    # process that inherits a pipe of ctest keeps ctest waiting until the test times out.
    # rundll32 opens a window, so the desktop is there when it returns.
    wine rundll32.exe user32.dll,MessageBeep >/dev/null 2>&1 </dev/null 8<&- || true
}

cleanup() {
    if [ -n "${WINEPREFIX:-}" ]; then
        wineserver -k 2>/dev/null || true              # this prefix's processes only
        wineserver -w 2>/dev/null || true
    fi
    [ -z "${nullwm:-}${xvfb:-}" ] || kill ${nullwm:-} ${xvfb:-} 2>/dev/null || true
    wait 2>/dev/null || true
    if [ -n "${KEEP_SESSION:-}" ]; then echo "kept $session"; else rm -rf "$session"; fi
}

unset WINEPREFIX WINEARCH WINELOADER WINESERVER
new_folder
trap cleanup EXIT
trap 'exit 130' INT
trap 'exit 143' TERM HUP
new_prefix
start_screen
start_wine
status=0
"$@" 8<&- || status=$?
exit "$status"
