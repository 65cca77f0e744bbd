# shellcheck shell=bash
# What ./test, ./bench and ./demo do to compile.  Sourced.

heading() { printf '\n==== %s\n' "$*"; }

# A compiler cache is used where there is one.
if command -v ccache >/dev/null; then
    export CMAKE_C_COMPILER_LAUNCHER=${CMAKE_C_COMPILER_LAUNCHER:-ccache}
    export CMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER:-ccache}
fi

# Configures and builds a preset:  compile PRESET [-D...] [--target TARGETS...]
# Quiet where all goes well, the end of the log where not.
compile() {
    local preset=$1 log=build/$1/build.log defines=()
    shift
    while [[ ${1:-} == -D* ]]; do defines+=("$1"); shift; done
    mkdir -p "build/$preset"
    if cmake --preset "$preset" "${defines[@]}" >"$log" 2>&1 &&
        cmake --build --preset "$preset" --parallel "$(nproc)" "$@" >>"$log" 2>&1; then
        return
    fi
    tail -n 60 "$log"
    echo "The build of $preset failed; the whole log is $log"
    return 1
}
