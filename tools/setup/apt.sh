# shellcheck shell=bash
# Shell functions around apt and dpkg.  Sourced by install.sh and wine32.sh.

. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
mkdir -p "$qx_cache"
log=$qx_cache/setup.log                # what apt says
export DEBIAN_FRONTEND=noninteractive
apt_options=(-y -q --no-install-recommends -o DPkg::Lock::Timeout=600 -o Dpkg::Use-Pty=0)

say() { printf '%s\n' "$*" >&2; }

can_be_root() { is_root || has_sudo; }
as_root() {
    if is_root; then "$@"; else sudo env DEBIAN_FRONTEND=noninteractive "$@"; fi
}

# Prints the packages among the arguments that are not installed.  "name" means this machine's
# architecture (or "all"), "name:arch" that one.
missing_packages() {
    local native installed name
    native=$(dpkg --print-architecture)
    installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}:${Architecture}\n' |
        sed -n "s/^installed //p" | sed "s/:all\$/:$native/")
    for name in "$@"; do
        [[ $name == *:* ]] || name=$name:$native
        grep -qxF "$name" <<<"$installed" || printf '%s\n' "${name%":$native"}"
    done | sort -u
}

# Waits for other set-ups of this person to end.
one_at_a_time() { exec 9>"$qx_cache/setup.lock" && flock 9; }

# apt-get update.  An index that cannot be fetched (a foreign architecture's, say) is no reason
# to stop: apt-get install tells better what is missing because of it.
update_package_lists() { as_root apt-get "${apt_options[@]}" update >>"$log" 2>&1 || true; }

# apt-get with its words in the log; they are shown when it fails.
logged_apt() {
    local lines
    lines=$(wc -l <"$log")
    as_root apt-get "$@" >>"$log" 2>&1 && return
    tail -n "+$((lines + 1))" "$log" | tail -n 30 >&2
    say "apt-get failed; the whole log is $log"
    return 1
}

# Installs what is missing among the arguments.  Quick when nothing is.
install_packages() {
    local missing
    mapfile -t missing < <(missing_packages "$@")
    [ ${#missing[@]} = 0 ] && return
    if ! can_be_root; then
        say "Packages are missing, and installing them needs root. Please run as root:"
        say "    apt-get update && apt-get install --no-install-recommends ${missing[*]}"
        return 1
    fi
    say "Installing packages: ${missing[*]}"
    one_at_a_time
    : >"$log"
    update_package_lists
    logged_apt "${apt_options[@]}" install "${missing[@]}"
}
