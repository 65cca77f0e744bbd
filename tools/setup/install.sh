#!/bin/bash
# Installs what is missing of some groups of packages (see packages.sh):
#   tools/setup/install.sh build linux
# Takes a fraction of a second when nothing is missing.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/packages.sh"
. "$here/apt.sh"

command -v apt-get >/dev/null ||
    { say "This set-up installs packages with apt (Debian 12); this machine has none."; exit 1; }
wanted=()
for group in "$@"; do
    [ -n "${packages[$group]:-}" ] || { say "install.sh: no group \"$group\""; exit 2; }
    # shellcheck disable=SC2206  # one word per package
    wanted+=(${packages[$group]})
done
install_packages "${wanted[@]}"
