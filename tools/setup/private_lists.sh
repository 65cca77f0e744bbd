# shellcheck shell=bash
# apt with package lists of its own: what it is asked leaves no trace in the machine's lists, and
# needs no root.  Sourced after apt.sh; sets the shell's EXIT trap.

private=$(mktemp -d)                   # apt's private lists and archives
trap 'rm -rf "$private"' EXIT
chmod 755 "$private"

# apt's options for package lists of our own, made from the machine's sources:
#   private_lists ARCHITECTURES [more options]
private_lists() {
    local architectures=$1
    shift
    rm -rf "$private/lists"
    mkdir -p "$private/lists/partial" "$private/archives/partial"
    lists=("${apt_options[@]}" -o APT::Architectures="$architectures" -o APT::Sandbox::User=
        -o Dir::State::lists="$private/lists" -o Dir::Cache::pkgcache= -o Dir::Cache::srcpkgcache=
        -o Acquire::Languages=none -o Acquire::GzipIndexes=true "$@")
}

# Fetches the private lists, as far as they can be had.
fetch_lists() { apt-get "${lists[@]}" -o Debug::NoLocking=1 update >>"$log" 2>&1 || true; }
