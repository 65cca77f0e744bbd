#!/bin/bash
# Drives Pipe Bench, a Windows program under Wine, as a person would: with mouse and keyboard.
#   demo.sh BUILD_DIR OUT_DIR [SCENE...]
# runs inside tools/wine/session.sh.  BUILD_DIR is a Windows build with the Linux build beside it;
# screenshots go to OUT_DIR.  A scene is a file of demo/scenes, which starts the program and ends
# it; without names (languages, options ...) all are played, in order.  Ends with status 1 when
# something expected does not appear.
set -euo pipefail
here=$(cd "$(dirname "$0")/demo" && pwd)
bin=$1/bin
out=$2
export linux=$1/../linux/bin/pipebench
shift 2
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir -p "$out"
source "$here/screen.sh"
source "$here/program.sh"

wanted() {
    local name=${1##*/[0-9][0-9]_} scene=$1
    shift
    [ $# -eq 0 ] || [[ " $* " == *" ${name%.sh} "* ]] && echo "$scene"
}

for file in "$here"/scenes/*.sh; do
    [ -n "$(wanted "$file" "$@")" ] || continue
    name=${file##*/[0-9][0-9]_}
    say "==== ${name%.sh}"
    (source "$file")
done
say "Done: the pictures are in $out"
