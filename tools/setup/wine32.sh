#!/bin/bash
# Sees to it that 32-bit Windows programs can run:
#   tools/setup/wine32.sh        make it so where needed; status 1 and the reason if it cannot be
#
# 64-bit Wine (group wine64 of packages.sh) must be there already.  The ways, in this order:
#   1. 32-bit Wine is there.
#   2. The multi-arch package, where apt can install it without removing or downgrading anything.
#      apt is asked with package lists of its own first, so that a "no" leaves no trace.
#   3. On a throw-away machine (CI=true): the multi-arch package, with the libraries that it
#      shares between both architectures pinned to the release's own version, which may
#      take some of them back from a security update.
#   4. On a person's machine: 32-bit Wine and its libraries are unpacked into a folder of the
#      person's cache, without root.  Sessions of tools/wine lay it under /usr in a mount
#      namespace of their own; the rest of the machine never sees it.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/packages.sh"
. "$here/apt.sh"
. "$here/private_lists.sh"
. "$here/../wine/common.sh"

# shellcheck disable=SC2206  # one word per package
wine32_packages=(${packages[wine32]})

knows_i386() { dpkg --print-foreign-architectures | grep -qx i386; }
add_i386() { knows_i386 || as_root dpkg --add-architecture i386; }

try_multiarch() {
    local plan had_i386=yes
    can_be_root || { say "Not root: the package wine32:i386 cannot be installed."; return 1; }
    private_lists amd64,i386
    fetch_lists
    plan=$(apt-get "${lists[@]}" -s --no-remove install "${wine32_packages[@]}" 2>>"$log") ||
        { say "apt cannot install wine32:i386 beside this machine's packages."; return 1; }
    if grep -qiE '^Remv|downgraded' <<<"$plan"; then return 1; fi
    knows_i386 || had_i386=no
    add_i386
    update_package_lists
    logged_apt "${apt_options[@]}" --no-remove install "${wine32_packages[@]}" && return
    if [ $had_i386 = no ]; then as_root dpkg --remove-architecture i386 && update_package_lists; fi
    return 1
}

install_pinned() {
    local release
    can_be_root || return 1
    release=$(. /etc/os-release && printf '%s' "${VERSION_CODENAME:-}")
    [ -n "$release" ] || { say "/etc/os-release names no release to pin to."; return 1; }
    private_lists amd64,i386
    printf 'Package: *\nPin: release n=%s\nPin-Priority: 1001\n' "$release" >"$private/preferences"
    chmod 644 "$private/preferences"
    add_i386
    fetch_lists
    logged_apt "${lists[@]}" -o Dir::Etc::preferences="$private/preferences" \
        --no-remove --allow-downgrades install "${wine32_packages[@]}"
}

# Unpacks the i386 packages as they are: what a Wine process needs of them are files in /usr/lib.
unpack_tree() {
    local tree=$1 version deb
    local unneeded=(--exclude=./{bin,sbin,etc,var} --exclude=./usr/{bin,sbin,share,include})
    version=$(dpkg-query -W -f '${Version}' wine64) || return 1
    : >"$private/status"
    private_lists i386 -o APT::Architecture=i386 -o Dir::State::status="$private/status" \
        -o Dir::Cache::archives="$private/archives" -o Debug::NoLocking=1
    fetch_lists
    apt-get "${lists[@]}" --download-only install "wine32=$version" \
        "${wine32_packages[@]%:i386}" >>"$log" 2>&1 || return 1
    rm -rf "$tree.new"
    mkdir -p "$tree.new/usr/lib" && ln -s usr/lib "$tree.new/lib"
    for deb in "$private"/archives/*.deb; do
        dpkg-deb --fsys-tarfile "$deb" |
            tar -x -C "$tree.new" --keep-directory-symlink "${unneeded[@]}" >>"$log" 2>&1 ||
            return 1
    done
    # What an installation makes itself, from the mingw zlib: the same files in the 64-bit one.
    (cd /usr/lib/x86_64-linux-gnu && cp --parents wine/{i386,x86_64}-windows/zlib*.dll \
        "$tree.new/usr/lib/i386-linux-gnu") || return 1
    rm -rf "$tree" && mv "$tree.new" "$tree"
}

# A throw-away machine takes its packages from apt alone.
have_wine32() { wine32_installed || { [ "${CI:-}" != true ] && wine32_tree_usable; }; }

main() {
    have_wine32 && return
    say "Looking for a way to run 32-bit Windows programs."
    one_at_a_time
    have_wine32 && return
    : >"$log"
    try_multiarch && return
    if [ "${CI:-}" = true ]; then
        say "CI=true: installing wine32:i386 with the libraries pinned to the release."
        install_pinned && return
    elif ! namespace_maker >/dev/null; then
        say "An unpacked 32-bit Wine cannot be used either: no mount namespaces for you here."
    else
        say "Unpacking 32-bit Wine into $(wine32_tree) (for the tests alone)."
        unpack_tree "$(wine32_tree)" && wine32_tree_usable && return
    fi
    say "No 32-bit Wine to be had (apt's words are in $log)."
    return 1
}
main
