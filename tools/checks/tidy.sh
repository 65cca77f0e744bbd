#!/bin/bash
# The checks of .clang-tidy on all sources of a build:  tools/checks/tidy.sh BUILD_FOLDER
# Status 77: not checked, as clang-tidy is not there.
set -u
build=$1
cd "$(dirname "$0")/../.." || exit 2

command -v run-clang-tidy >/dev/null && command -v clang-tidy >/dev/null ||
    { echo "SKIPPED: clang-tidy is not installed"; exit 77; }

# Warnings of the compiler are the compiler's business (-w). The analyser follows fewer paths than it
# could: that takes a sixth of the time.
run-clang-tidy -quiet -p "$build" -j "$(nproc)" -extra-arg=-w \
    -extra-arg=-Xclang -extra-arg=-analyzer-config -extra-arg=-Xclang -extra-arg=mode=shallow \
    "^$PWD/(src|tests|examples|benchmarks)/" >"$build/clang-tidy.log" 2>"$build/clang-tidy.errors"
status=$?
grep -E '(warning|error):' "$build/clang-tidy.log" | sort -u
exit $status
