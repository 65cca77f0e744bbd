#!/bin/bash
# Makes the Wine prefix that every session starts from, once per Wine (20 seconds), and prints
# its folder.  Run by session.sh.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/common.sh"

bits=64
wine32_installed && bits=32+64           # a prefix made without 32-bit Wine has no 32-bit part
template=$qx_cache/wine-template-$(wine_version)-$bits-$(cksum <"$0" | cut -d' ' -f1)
if [ -f "$template/.ready" ]; then
    touch "$template/.ready"
    echo "$template"
    exit
fi

mkdir -p "$qx_cache"
exec 9>"$qx_cache/wine-template.lock"
flock 9
[ -f "$template/.ready" ] && { echo "$template"; exit; }
echo "Making the Wine prefix template ($bits bit), about 20 seconds." >&2

# Runs Wine without a screen; nothing that stays in the background may keep our lock or pipes.
quiet() { env -u DISPLAY "$@" >"$qx_cache/wine-template.log" 2>&1 </dev/null 9>&-; }

# Templates of other Wines that nobody has used for a month.
find "$qx_cache" -maxdepth 2 -path '*/wine-template-*/.ready' -mtime +30 -printf '%h\0' |
    xargs -0r rm -rf
rm -rf "$template"
export WINEPREFIX=$template WINEDEBUG=-all LC_ALL=C.UTF-8
export WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe=d'
mkdir -p "$template"
quiet wine wineboot --init
quiet wineserver -w
# Wine draws title bars and borders itself: the window manager of our sessions draws none.
quiet wine reg add 'HKCU\Software\Wine\X11 Driver' /v Decorated /d N /f
# A crash must end the program, not open a dialog that waits for a click.
quiet wine reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f
# Wine 8 without a screen stores a menu height that it has not computed: menus then fill the screen.
quiet wine reg add 'HKCU\Control Panel\Desktop\WindowMetrics' /v MenuHeight /d 18 /f
quiet wineserver -k || true
quiet wineserver -w
# Debian's Wine does not find its own fonts (Tahoma for "MS Shell Dlg", Marlett for caption
# buttons); without them dialogs have other sizes than on Windows.
ln -sf /usr/share/wine/fonts/*.ttf /usr/share/wine/fonts/*.fon "$template"/drive_c/windows/Fonts/
touch "$template/.ready"
echo "$template"
