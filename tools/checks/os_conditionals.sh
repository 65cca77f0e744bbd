#!/bin/bash
# Operating-system conditionals stand only where the platforms are kept apart. Prints the others.
set -u
cd "$(dirname "$0")/../.." || exit 2

conditional='^[[:space:]]*#[[:space:]]*(if|ifdef|ifndef|elif|elifdef).*\b'
conditional+='(_WIN(32|64)|WIN32|_MSC_VER|__MINGW(32|64)__|__CYGWIN__|__(linux|unix|APPLE)__|_POSIX_\w+)\b'
allowed='^(src/platform/|src/dll/|src/([a-z]+/)?win32/|include/qxutility/(types|export)\.h:)'

found=$(grep -rnE "$conditional" include src | grep -vE "$allowed")
[ -z "$found" ] && exit 0
echo "Operating-system conditionals belong into src/platform, a win32 folder or src/dll:"
echo "$found"
exit 1
