#!/usr/bin/env bash
# Builds the ready program folders dist/x64 and dist/x86 (or only those that are named), and checks
# that what is in them runs on a Windows that has nothing installed.
#
#   ./build.sh [x64] [x86]
set -euo pipefail
cd "$(dirname "$0")"
tools/setup.sh build
# shellcheck source=tools/environment.sh
. tools/environment.sh

fail() {
    echo "build.sh: $*" >&2
    exit 1
}

# Compiles the help sources, when the tree has them: help/NAME.hhp becomes NAME.chm.
build_help() {
    local target=$1 project name
    for project in help/*.hhp help/*/*.hhp; do
        [ -e "$project" ] || continue
        name=$(sed -n 's/^Compiled file=\(.*\)\r\?$/\1/Ip' "$project" | tr -d '\r')
        (cd "$(dirname "$project")" && chmcmd "$(basename "$project")" >/dev/null) ||
            fail "the help file of $project does not compile"
        mv "$(dirname "$project")/$name" "$target/"
    done
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
    "$tools-strip" -o "$target/Ordalyn.exe" "$program"
    /usr/bin/python3 -B tools/check_program.py "$target/Ordalyn.exe" "$architecture" ||
        fail "$target/Ordalyn.exe is not fit to be given to anybody"
    rm -rf "$target/Languages"
    if compgen -G 'languages/*.lng' >/dev/null; then
        mkdir "$target/Languages"
        cp languages/*.lng "$target/Languages/"
    fi
    for file in packaging/README.txt LICENSE LICENSE.txt; do
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
        *) fail "no such folder: $bits" ;;
    esac
done
