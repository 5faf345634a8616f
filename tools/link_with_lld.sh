#!/usr/bin/env bash
# Between GCC's driver and its linker (g++ -wrapper): lets LLVM's linker link a Windows program. GNU's
# walks through an object's sections for each of its symbols; a test program, with its many templates,
# takes it twenty seconds where LLVM's takes a tenth of one.
#
#   g++ -wrapper tools/link_with_lld.sh ...
set -euo pipefail
case $1 in
    */collect2) shift ;;
    *) exec "$@" ;;
esac

arguments=()
while [ $# -gt 0 ]; do
    case $1 in
        # What GNU's linker needs for link time optimisation, which no test program uses.
        -plugin) shift ;;
        -plugin-opt=*) ;;
        -w) ;;  # "no warnings", which LLVM's does not know
        *) arguments+=("$1") ;;
    esac
    shift
done
exec ld.lld-14 "${arguments[@]}"
