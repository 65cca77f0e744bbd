# shellcheck shell=bash
# Where the scripts of this project keep what they make once per person.  Sourced.

HOME=${HOME:-~}
qx_cache=${XDG_CACHE_HOME:-$HOME/.cache}/qxutility
