# shellcheck shell=bash
# Which Wine there is, and how to enter an unpacked one.  Sourced.

. "$(dirname "${BASH_SOURCE[0]}")/../setup/common.sh"

wine_version() { dpkg-query -W -f '${Version}' wine64 2>/dev/null || wine64 --version; }

# 32-bit Wine is part of the system that this process sees.
wine32_installed() { [ -x /usr/lib/wine/wine ]; }

# The folder with an unpacked 32-bit Wine that fits the 64-bit one (see tools/setup/wine32.sh).
wine32_tree() { printf '%s/wine32-%s' "$qx_cache" "$(wine_version)"; }

# How this person can have a mount namespace: as root; as themselves, where the system allows a
# namespace in which they count as root; with sudo.  Status 1 when there is no way.
namespace_maker() {
    if is_root; then
        unshare --mount true 2>/dev/null && echo root
    elif unshare --user --map-root-user --mount true 2>/dev/null; then
        echo person
    else
        has_sudo && echo sudo
    fi
}

# Runs a command that sees the unpacked tree's files in /usr, beside the machine's own: in a
# mount namespace of its own, which ends with the command.
in_wine32_tree() {
    local mount='mount -t overlay overlay -o lowerdir="/usr:$0/usr" /usr && exec "$@"' tree
    # No entry in /etc/ld.so.conf.d tells the loader of the folder.
    local -x LD_LIBRARY_PATH=/usr/lib/i386-linux-gnu${LD_LIBRARY_PATH:+:$LD_LIBRARY_PATH}
    tree=$(wine32_tree)
    case $(namespace_maker) in
        root) unshare --mount -- sh -c "$mount" "$tree" "$@" ;;
        person) unshare --user --map-root-user --mount -- sh -c "$mount" "$tree" "$@" ;;
        sudo)
            local environment
            mapfile -d '' environment < <(env -0)
            sudo unshare --mount -- sh -c "$mount" "$tree" setpriv --reuid "$(id -u)" \
                --regid "$(id -g)" --init-groups env -i "${environment[@]}" "$@"
            ;;
        *) return 1 ;;
    esac
}

# Whether the tree is there, and this machine lets us use it and runs 32-bit programs.
wine32_tree_usable() {
    [ -x "$(wine32_tree)/usr/lib/wine/wine" ] &&
        in_wine32_tree /usr/lib/wine/wine --version >/dev/null 2>&1
}
