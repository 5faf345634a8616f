#!/usr/bin/env bash
# Installs what is missing of the packages that a task needs. It first says what it is about to do,
# and that it uses sudo when it is not run as root.
#
#   tools/setup.sh build|release|run|test|compare ...
#
# "compare" installs what tests/bench/figures.py measures beside the program; nothing else needs it.
#
# Works as root or with sudo on Debian 12; with nothing missing it is done in a moment. The i386
# architecture is never added: 32-bit programs run in a Debian of their own (x86_wine.sh).
set -euo pipefail

packages_for() {
    case $1 in
        build)
            # GoogleTest is here because its sources belong to the configuration of every build.
            # What has been compiled once is not compiled again, in whatever folder (environment.sh).
            echo cmake ninja-build g++ binutils ccache \
                g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix googletest python3
            # The compiler of the help file.
            echo fp-utils
            ;;
        release)
            # strace keeps the time of day out of the help file.
            echo nsis strace
            ;;
        run)
            echo wine wine64 xvfb xdotool imagemagick fonts-wine fonts-liberation python3
            ;;
        test)
            # libchm-bin opens the help files.
            echo python3-pytest python3-pytest-xdist libchm-bin \
                locales shellcheck clang-14 clang-tidy-14 clang-format-14 libclang-rt-14-dev lld-14 debootstrap
            ;;
        compare)
            echo grep lnav ripgrep
            ;;
        *)
            echo "setup.sh: no such task: $1" >&2
            exit 2
            ;;
    esac
}

# How root's work is announced: " with sudo", which may ask for a password, or nothing.
with_sudo=
[ "$(id -u)" -eq 0 ] || with_sudo=" with sudo"

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

install_packages() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q ' installed$' ||
            missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    if ! command -v apt-get >/dev/null || { [ -n "$with_sudo" ] && ! command -v sudo >/dev/null; }; then
        echo "Please install: ${missing[*]}" >&2
        exit 1
    fi
    echo "Installing$with_sudo (apt-get): ${missing[*]}"
    local log
    log=$(mktemp)
    if ! { as_root apt-get update -q &&
        as_root env DEBIAN_FRONTEND=noninteractive \
            apt-get install -y -q --no-install-recommends "${missing[@]}"; } >"$log" 2>&1; then
        tail -n 20 "$log" >&2
        exit 1
    fi
    rm -f "$log"
}

# Tests start the program as users in these places do.
make_locales() {
    local missing=() name
    for name in ru_RU de_DE; do
        locale -a | grep -qi "^$name\.utf-\?8$" || missing+=("$name")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    echo "Making locales$with_sudo (localedef): ${missing[*]}"
    for name in "${missing[@]}"; do
        as_root localedef -i "$name" -f UTF-8 "$name.UTF-8"
    done
}

wanted=()
for task in "$@"; do
    read -r -a packages <<<"$(packages_for "$task" | tr '\n' ' ')"
    wanted+=("${packages[@]}")
done
install_packages "${wanted[@]}"
case " $* " in *" test "*) make_locales ;; esac
