# shellcheck shell=bash
# Which Wine there is, and how to enter an unpacked one.  Sourced.

. "$(dirname "${BASH_SOURCE[0]}")/../setup/cache.sh"

wine_version() { dpkg-query -W -f '${Version}' wine64 2>/dev/null || wine64 --version; }

# 32-bit Wine is part of the system that this process sees.
wine32_installed() { [ -x /usr/lib/wine/wine ]; }

# The folder with an unpacked 32-bit Wine that fits the 64-bit one (see tools/setup/wine32.sh).
wine32_tree() { printf '%s/wine32-%s' "$qx_cache" "$(wine_version)"; }

# Runs a command that sees the unpacked tree's files in /usr, beside the machine's own: in a
# private mount namespace, which ends with the command.  Root makes the namespace itself; anybody
# else makes one in which they count as root, or has sudo make it and drops back to themselves.
in_wine32_tree() {
    local mount='mount -t overlay overlay -o lowerdir="/usr:$0/usr" /usr && exec "$@"' tree
    # No entry in /etc/ld.so.conf.d tells the loader of the folder.
    local -x LD_LIBRARY_PATH=/usr/lib/i386-linux-gnu${LD_LIBRARY_PATH:+:$LD_LIBRARY_PATH}
    tree=$(wine32_tree)
    if [ "$(id -u)" = 0 ]; then
        unshare --mount -- sh -c "$mount" "$tree" "$@"
    elif unshare --user --map-root-user --mount -- sh -c "$mount" "$tree" true 2>/dev/null; then
        unshare --user --map-root-user --mount -- sh -c "$mount" "$tree" "$@"
    else
        local environment
        mapfile -d '' environment < <(env -0)
        sudo unshare --mount -- sh -c "$mount" "$tree" setpriv --reuid "$(id -u)" \
            --regid "$(id -g)" --init-groups env -i "${environment[@]}" "$@"
    fi
}

# Whether the tree is there, and this machine lets us use it and runs 32-bit programs.
wine32_tree_usable() {
    [ -x "$(wine32_tree)/usr/lib/wine/wine" ] || return 1
    [ "$(id -u)" = 0 ] || unshare --user --map-root-user --mount true 2>/dev/null ||
        { command -v sudo >/dev/null && { [ -t 0 ] || sudo -n true 2>/dev/null; }; } || return 1
    in_wine32_tree /usr/lib/wine/wine --version >/dev/null 2>&1 </dev/null
}
