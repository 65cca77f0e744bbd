# shellcheck shell=bash
# Where the scripts of this project keep what they make once per person, and who that is.  Sourced.

HOME=${HOME:-~}
qx_cache=${XDG_CACHE_HOME:-$HOME/.cache}/qxutility

is_root() { [ "$(id -u)" = 0 ]; }

# sudo is there and can ask, or need not.
has_sudo() { command -v sudo >/dev/null && { sudo -n true 2>/dev/null || [ -t 0 ]; }; }
