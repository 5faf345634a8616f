#!/usr/bin/env bash
# Runs a command with a Wine that runs 32-bit programs, too, under the names `wine` and `wineserver`.
#
#   tools/x86_wine.sh --check              says in one line what is missing, and ends with 1
#   tools/x86_wine.sh COMMAND [ARGUMENT ...]    with ORDALYN_BITS=x86, by which the tests know
#
# A Debian's 32-bit packages may not match what else is installed on a machine. So this Wine lives
# in a small Debian of its own, which is made once (a minute or more) and kept in
# ORDALYN_X86_ROOT, by default ~/.cache/ordalyn/x86-root; delete it to have it made anew. It sees
# this project and /tmp where they are, in a mount namespace that goes away with the command.
# Needs root.
set -euo pipefail
project=$(cd "$(dirname "$0")/.." && pwd)
root=${ORDALYN_X86_ROOT:-${XDG_CACHE_HOME:-${HOME:-/root}/.cache}/ordalyn/x86-root}

missing() {
    if [ "$(id -u)" -ne 0 ]; then
        echo "root"
    elif ! unshare -m true 2>/dev/null; then
        echo "the right to mount"
    elif ! command -v debootstrap >/dev/null && ! [ -e "$root/ready" ]; then
        echo "debootstrap"
    fi
}

# Where this machine gets its packages from.
mirror() {
    sed -n 's/^URIs: *\([^ ]*\).*/\1/p; s/^deb \(\[[^]]*\] \)\?\([^ ]*\) .*/\2/p' \
        /etc/apt/sources.list.d/*.sources /etc/apt/sources.list.d/*.list /etc/apt/sources.list \
        2>/dev/null | grep -v security | head -n 1
}

make_root() {
    local from
    from=$(mirror)
    from=${from:-http://deb.debian.org/debian}
    echo "Making a Debian for 32-bit programs in $root" >&2
    rm -rf "$root"
    mkdir -p "$root"
    debootstrap --variant=minbase --include=ca-certificates bookworm "$root" "$from"
    # One release of every package for both architectures: their files must be the same.
    printf 'deb %s bookworm main\ndeb %s bookworm-updates main\n' "$from" "$from" \
        >"$root/etc/apt/sources.list"
    mount -t proc proc "$root/proc"
    in_root dpkg --add-architecture i386
    in_root apt-get update -q
    in_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends \
        wine wine32:i386 wine64 fonts-wine fonts-liberation locales
    local name
    for name in ru_RU de_DE; do
        in_root localedef -i "$name" -f UTF-8 "$name.UTF-8"
    done
    in_root apt-get clean
    umount "$root/proc"
    touch "$root/ready"
}

in_root() { chroot "$root" "$@"; }

bind() {
    mkdir -p "$root$1"
    mount --rbind "$1" "$root$1"
}

lacks=$(missing)
if [ -n "$lacks" ]; then
    echo "32-bit programs cannot be run here: $lacks is missing" >&2
    exit 1
fi
if [ "${1:-}" = --check ]; then exit 0; fi
if [ "${ORDALYN_X86_NAMESPACE:-}" != 1 ]; then
    ORDALYN_X86_NAMESPACE=1 exec unshare -m --propagation private "$0" "$@"
fi
unset ORDALYN_X86_NAMESPACE

# Two runs at the same time make it once.
mkdir -p "$(dirname "$root")"
exec 9>"$root.lock"
flock 9
if ! [ -e "$root/ready" ]; then
    log=$(mktemp)
    if ! (make_root) >"$log" 2>&1; then
        tail -n 20 "$log" >&2
        echo "32-bit programs cannot be run here: their Debian cannot be made" >&2
        exit 1
    fi
    rm -f "$log"
fi
exec 9>&-

mount -t proc proc "$root/proc"
bind /dev
bind /tmp
# What a test mounts in the project is seen there, too.
mount --rbind "$project" "$project"
mount --make-shared "$project"
bind "$project"
tools=$(mktemp -d)
for name in wine wineserver; do
    cat >"$tools/$name" <<END
#!/bin/sh
exec chroot "$root" /usr/bin/env -C "\$PWD" /usr/bin/$name "\$@"
END
    chmod +x "$tools/$name"
done
status=0
ORDALYN_BITS=x86 PATH=$tools:$PATH "$@" || status=$?
rm -rf "$tools"
exit "$status"
