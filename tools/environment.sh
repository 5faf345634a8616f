# shellcheck shell=bash
# Sourced by the scripts in the root: what all of them need to call CMake and Wine.

# A compiler cache, when there is one, also serves other checkouts of the project.
if command -v ccache >/dev/null; then
    export CMAKE_CXX_COMPILER_LAUNCHER=ccache CCACHE_NOHASHDIR=1 CCACHE_BASEDIR=$PWD
    # Without this it does not serve sources that use precompiled headers.
    export CCACHE_SLOPPINESS=pch_defines,time_macros
fi

# configure PRESET: only once for each build folder; CMake repeats it by itself when needed. With
# ORDALYN_TOGETHER several files are compiled together in every preset, which takes half the time when all
# of them have to be, and is no way to work on one of them.
configure() {
    local preset=$1
    [ -e "build/$preset/build.ninja" ] ||
        cmake --preset "$preset" ${ORDALYN_TOGETHER:+-DCMAKE_UNITY_BUILD=ON} >"build-$preset.log" 2>&1 || {
        cat "build-$preset.log" >&2
        rm -f "build-$preset.log"
        return 1
    }
    rm -f "build-$preset.log"
}
