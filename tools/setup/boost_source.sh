#!/bin/bash
# Prints the folder with the sources of Boost.Filesystem, of the version whose headers are installed:
#   tools/setup/boost_source.sh
# Debian has no Boost for Windows, so that the Windows builds compile these.  The first time they are
# fetched from Debian's source package (60 MB, through package lists of our own that name the
# machine's archives as sources, too); this person's later builds find them in the cache.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/apt.sh"
. "$here/private_lists.sh"

version=$(dpkg-query -W -f '${Version}' libboost1.74-dev 2>/dev/null) ||
    { say "The headers of Boost 1.74 are missing (tools/setup/install.sh windows)."; exit 1; }
folder=$qx_cache/boost-$version
wanted=libs/filesystem/src

# The machine's entries for packages, as entries for their sources.
source_entries() {
    local file
    mkdir "$private/sources"
    for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.{list,sources}; do
        [ ! -f "$file" ] || sed -E 's/^deb /deb-src /; s/^Types:.*/Types: deb-src/' "$file" \
            >"$private/sources/$(basename "$file")"
    done
}

fetch() {
    source_entries
    private_lists "$(dpkg --print-architecture)" -o Dir::Etc::sourcelist=/dev/null \
        -o Dir::Etc::sourceparts="$private/sources"
    fetch_lists
    (cd "$private/archives" &&
        apt-get "${lists[@]}" source --download-only "boost1.74=$version") >>"$log" 2>&1 || return 1
    rm -rf "$folder.new"
    mkdir -p "$folder.new"
    tar xf "$private/archives"/boost1.74_*.orig.tar.xz -C "$folder.new" --strip-components=1 \
        --wildcards "*/$wanted/*" && mv "$folder.new" "$folder"
}

if [ ! -d "$folder" ]; then
    one_at_a_time
    if [ ! -d "$folder" ]; then
        say "Fetching the sources of Boost.Filesystem."
        : >"$log"
        fetch || { say "apt cannot fetch them (its words are in $log)."; exit 1; }
    fi
fi
echo "$folder/$wanted"
