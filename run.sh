#!/usr/bin/env bash
# Builds the program and shows a log in it under Wine.
#
#   ./run.sh [LOG]      without LOG: the sample installation in samples/
#
# With a display the window opens there, and the script waits for its end. Without one the window
# opens on a display of its own; a picture of it is written to build/ordalyn.png.
set -euo pipefail
# Wine's programs need one page at a fixed address, on which the kernel puts their heap once in some
# thousand starts when it puts it anywhere. Where that cannot be forbidden it is left to chance.
if [ -z "${ORDALYN_IN_PLACE:-}" ] && setarch -R true 2>/dev/null; then
    ORDALYN_IN_PLACE=yes exec setarch -R "$BASH" "$0" "$@"
fi
readonly CALLED_FROM=$PWD
cd "$(dirname "$0")"
tools/setup.sh build run
./build.sh x64
# shellcheck source=tools/environment.sh
. tools/environment.sh

log=${1:-}
if [ -n "$log" ]; then
    case $log in /*) ;; *) log=$CALLED_FROM/$log ;; esac
    if [ ! -e "$log" ]; then
        echo "run.sh: there is no file $log" >&2
        exit 1
    fi
fi

if [ -n "${DISPLAY:-}" ]; then
    export WINEPREFIX=$PWD/build/wine WINEDEBUG=${WINEDEBUG:--all}
    export WINEDLLOVERRIDES="mscoree,mshtml="
    mkdir -p build
    if [ ! -e "$WINEPREFIX/ready" ]; then
        rm -rf "$WINEPREFIX"
        # Without windows; what still runs then must not serve the program, which needs them.
        env -u DISPLAY wine wineboot -i 2>/dev/null
        wineserver -k || true
        wineserver -w
        # Debian's Wine does not look for its own fonts where they are.
        cp -n /usr/share/wine/fonts/*.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
        touch "$WINEPREFIX/ready"
    fi
    # A program that is started in the moment in which Wine's server ends waits forever: this one
    # lives a little longer than the last program.
    wineserver -p60
    arguments=()
    file_manager=$PWD/samples/totalcmd
    if [ -n "$log" ]; then
        arguments=("$(winepath -w "$log" 2>/dev/null)")
        # A file manager that keeps no log of its own, so that this one stays the only one.
        file_manager=$PWD/build/run
        mkdir -p "$file_manager"
        printf '[Configuration]\r\nfirstmnu=512\r\n' >"$file_manager/wincmd.ini"
    fi
    Commander_Path=$(winepath -w "$file_manager" 2>/dev/null)
    Commander_INI=$(winepath -w "$file_manager/wincmd.ini" 2>/dev/null)
    export Commander_Path Commander_INI
    echo "Ordalyn shows ${log:-the sample installation in samples/}."
    exec wine dist/x64/Ordalyn.exe "${arguments[@]}" 2>/dev/null
fi

configure mingw-x64
cmake --build --preset mingw-x64 --target ordalyn_e2e_agent ordalyn_e2e_launch
exec python3 tools/show.py ${log:+"$log"}
