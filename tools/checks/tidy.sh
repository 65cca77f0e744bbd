#!/bin/bash
# The checks of .clang-tidy on the sources of a build:  tools/checks/tidy.sh BUILD_FOLDER
# All sources; of a cross-build for Windows those that no other build compiles.
# Status 77: not checked, as clang-tidy is not there.
set -u
build=$1
cd "$(dirname "$0")/../.." || exit 2

command -v run-clang-tidy >/dev/null && command -v clang-tidy >/dev/null ||
    { echo "SKIPPED: clang-tidy is not installed"; exit 77; }

# Clang is told of the target, and of the folders that the cross-compiler has headers in; those of
# the compiler's own built-in functions it has itself.
windows_options() {
    local compiler=$1 folder
    options+=("-extra-arg=--target=$("$compiler" -dumpmachine)" -extra-arg=-nostdinc++
        -extra-arg=-nostdlibinc)
    while read -r folder; do
        options+=("-extra-arg=-isystem$folder")
    done < <("$compiler" -E -x c++ -v /dev/null 2>&1 | sed -n '/^#include </,/^End/s/^ //p' |
        grep -vE '/gcc/[^/]*/[^/]*/include(-fixed)?$')
}

# Warnings of the compiler are the compiler's business (-w). The analyser follows fewer paths than it
# could: that takes a sixth of the time.
options=(-extra-arg=-w -extra-arg=-Xclang -extra-arg=-analyzer-config
    -extra-arg=-Xclang -extra-arg=mode=shallow)
sources='(src|tests|examples|benchmarks)/'
compiler=$(grep -om1 '[^ "]*-w64-mingw32-g++[a-z-]*' "$build/compile_commands.json")
if [ -n "$compiler" ]; then
    windows_options "$compiler"
    sources='(src|examples)/(.*/)?win32/.*\.cpp$'
fi

run-clang-tidy -quiet -p "$build" -j "$(nproc)" "${options[@]}" "^$PWD/$sources" \
    >"$build/clang-tidy.log" 2>"$build/clang-tidy.errors"
status=$?
grep -E '(warning|error):' "$build/clang-tidy.log" | sort -u
exit $status
