# shellcheck shell=bash
# The Debian packages that the scripts of this project install, in groups.  Sourced by
# install.sh; the names of the groups are its arguments.

declare -A packages

# Every build: compiler, CMake, and Python for the tables and the test report.
packages[build]="g++ libc6-dev cmake ninja-build pkg-config python3 ca-certificates"

# The native library and its tests.
packages[linux]="libicu-dev libgtest-dev libgmock-dev googletest libexpat1-dev
    libboost-filesystem-dev"

# The Windows builds.  GoogleTest is compiled from its source package, Boost.Filesystem from sources
# that boost_source.sh fetches; the "posix" compilers are the ones with std::thread.
packages[windows]="g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix
    binutils-mingw-w64-x86-64 binutils-mingw-w64-i686 googletest
    libboost-dev xz-utils"

# A screen for Windows programs: X server, fonts, the tools that look at it and drive it, and
# what compiles the little window manager.
packages[screen]="xvfb x11-utils xdotool imagemagick fonts-liberation gcc libc6-dev libx11-dev"

# 64-bit Wine.  The X libraries are only "recommended" by it, but windows need them.
packages[wine64]="wine wine64 fonts-wine libxcomposite1 libxcursor1 libxfixes3 libxi6 libxinerama1
    libxrandr2 libxrender1 libxxf86vm1 libcups2"

# 32-bit Wine: see wine32.sh for the ways to get it.
packages[wine32]="wine32:i386 libxcomposite1:i386 libxcursor1:i386 libxfixes3:i386 libxi6:i386
    libxinerama1:i386 libxrandr2:i386 libxrender1:i386 libxxf86vm1:i386 libcups2:i386"

# A printing service of the tests' own (tools/print/session.sh), and what reads its PDFs.
packages[printing]="cups-daemon ghostscript poppler-utils"

# The peers that the benchmarks measure against.
packages[bench]="libicu-dev libboost-filesystem-dev icu-devtools gettext libsimpleini-dev libpugixml-dev librapidxml-dev
    libdeflate-dev liblz4-dev zlib1g-dev libzstd-dev"

# The fuzz targets: a compiler with libFuzzer and sanitizers.
packages[fuzz]="libicu-dev libboost-filesystem-dev clang libclang-rt-dev"

# Checks of the sources.
packages[checks]="clang-format clang-tidy"
