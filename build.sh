#!/usr/bin/env bash
# Builds the ready program folders dist/x64 and dist/x86 (or only those that are named), and checks
# that what is in them runs on a Windows that has nothing installed.
#
#   ./build.sh [x64] [x86] [release] [site]
#
# release builds both, and packs them into dist/ordalyn-VERSION-x64.zip, -x86.zip and -setup.exe with
# their SHA256SUMS. The same commit gives the same bytes on any day, in any folder, for any user.
# site makes dist/site of the pages of the help, for a web server.
set -euo pipefail
cd "$(dirname "$0")"
case " $* " in *" release "*) tools/setup.sh build release ;; *) tools/setup.sh build ;; esac
# shellcheck source=tools/environment.sh
. tools/environment.sh

fail() {
    echo "build.sh: $*" >&2
    exit 1
}

# The moment that everything in a package is from: that of the commit.
commit_seconds() { git log -1 --format=%ct 2>/dev/null || echo 1767225600; }

# The help compiler writes the time of day, and what happens to be in its memory, into the help file.
# It asks the kernel itself, so that the time is put into the answers of these calls, and its memory
# is laid out the same each time. Where a program must not be watched, the help file is as good, but
# not the same twice.
compile_help() {
    local seconds time_of_day
    seconds=$(commit_seconds)
    time_of_day=$(/usr/bin/python3 -c 'import struct, sys; print(struct.pack("<qq", int(sys.argv[1]), 0).hex())' "$seconds")
    if command -v strace >/dev/null && setarch -R strace -qq -o /dev/null true 2>/dev/null; then
        env -i PATH="$PATH" setarch -R strace -f -qq -o /dev/null -e trace=time,gettimeofday \
            -e inject=time:retval="$seconds" -e inject=gettimeofday:poke_exit=@arg1="$time_of_day" \
            chmcmd "$1"
    else
        chmcmd "$1"
    fi
}

# Compiles the help, once in a run: help/LANGUAGE/NAME.hhp becomes NAME.chm.
help_is_built=
build_help() {
    local target=$1 project
    if [ -z "$help_is_built" ]; then
        rm -rf build/help
        /usr/bin/python3 -B tools/make_help.py sources build/help
        for project in build/help/*/*.hhp; do
            (cd "$(dirname "$project")" && compile_help "$(basename "$project")" >/dev/null 2>&1) ||
                fail "the help file of $project does not compile"
        done
        help_is_built=yes
    fi
    rm -f "$target"/*.chm
    cp build/help/*/*.chm "$target/"
}

build_folder() {
    local bits=$1 architecture=$2 tools=$3
    local preset=mingw-$bits target=dist/$bits program file
    configure "$preset"
    cmake --build --preset "$preset" --target Ordalyn
    program=$(find "build/$preset" -name Ordalyn.exe -print -quit)
    [ -n "$program" ] || fail "the build has made no Ordalyn.exe"
    # Settings that a user of the folder has made stay.
    mkdir -p "$target"
    # It would write the time of day into the program.
    SOURCE_DATE_EPOCH=$(commit_seconds) "$tools-strip" -o "$target/Ordalyn.exe" "$program"
    /usr/bin/python3 -B tools/check_program.py "$target/Ordalyn.exe" "$architecture" ||
        fail "$target/Ordalyn.exe is not fit to be given to anybody"
    rm -rf "$target/Languages"
    if compgen -G 'languages/*.lng' >/dev/null; then
        mkdir "$target/Languages"
        cp languages/*.lng "$target/Languages/"
    fi
    # With the line ends that every Windows editor shows.
    sed 's/$/\r/' packaging/Readme.txt >"$target/Readme.txt"
    for file in LICENSE LICENSE.txt; do
        if [ -e "$file" ]; then cp "$file" "$target/"; fi
    done
    build_help "$target"
    echo "$target: Ordalyn.exe for \"$architecture\", $(stat -c %s "$target/Ordalyn.exe") bytes"
}

[ $# -gt 0 ] || set -- x64 x86
for bits in "$@"; do
    case $bits in
        x64) build_folder x64 amd64 x86_64-w64-mingw32 ;;
        x86) build_folder x86 x86 i686-w64-mingw32 ;;
        release)
            build_folder x64 amd64 x86_64-w64-mingw32
            build_folder x86 x86 i686-w64-mingw32
            /usr/bin/python3 -B tools/make_release.py dist "$(commit_seconds)"
            ;;
        site) /usr/bin/python3 -B tools/make_help.py site dist/site ;;
        *) fail "no such folder: $bits" ;;
    esac
done
