#!/usr/bin/env bash
# Runs every test of the project, or the kinds that are named, and ends with the count. Benchmarks run
# only when they are named: a limit that a busy machine misses is no failed test.
#
#   ./test.sh [lint] [unit] [wine] [clang] [contract] [e2e] [x86] [release] [fuzz] [bench]
#
#   lint      layout, static analysis, and rules of this code base
#   unit      unit tests and the in-memory side of the contract suite, with sanitizers
#   wine      unit tests and the Windows side of the contract suite, as Windows programs
#   clang     builds the program with the second compiler, then as wine what has to do with Windows
#   contract  both sides of the contract suite only
#   e2e       the real program in a real window
#   x86       wine and e2e with the 32-bit program, in a small Debian of its own (tools/x86_wine.sh);
#             the tests of windows in memory are left out
#   release   whether the packages are the same bytes when they are built elsewhere
#   fuzz      every fuzz target for a bounded time
#   bench     benchmarks, and all figures in one table at the end; a missed limit is a failure
#
# ORDALYN_E2E="-k words" and the like is handed to pytest; ORDALYN_FUZZ_SECONDS (6) is the time of
# one fuzz target, ORDALYN_FUZZ_SEED (1) where it begins.
set -euo pipefail
cd "$(dirname "$0")"
tools/setup.sh build run test release
# shellcheck source=tools/environment.sh
. tools/environment.sh

passed=0
failed=0
failing=()
readonly COUNTS=build/test-counts
mkdir -p build

# Every runner adds a line "PASSED FAILED" to this file and ends with 0 when it could run at all.
count_file() {
    local one_passed one_failed
    while read -r one_passed one_failed; do
        passed=$((passed + one_passed))
        failed=$((failed + one_failed))
    done <"$COUNTS"
}

# alone PRESET COMMAND: nobody else uses the build folder meanwhile.
alone() {
    local preset=$1
    shift
    (
        flock 9
        "$@"
    ) 9>"build/$preset.lock"
}

# What drives the real program in its window.
build_agent() {
    alone "$1" cmake --build --preset "$1" --target ordalyn_e2e_agent ordalyn_e2e_launch \
        ordalyn_e2e_hold ordalyn_e2e_planted ordalyn_e2e_file_manager
}

# What pytest is started with, when it is not by itself.
UNDER=()

run_pytest() {
    local report=build/$1.xml
    shift
    rm -f "$report"
    # pytest ends with 1 when a test fails; the counts tell that, too.
    "${UNDER[@]}" /usr/bin/python3 -B -m pytest -p no:cacheprovider -q --junitxml="$report" "$@" || true
    /usr/bin/python3 tools/pytest_counts.py "$report" >>$COUNTS
}

# The test programs that a build does without, as a pattern: what knows nothing of Windows has been
# compiled and tried twice when the second compiler's turn comes, and the windows of the portable
# rooms are the same ones on either processor.
left_out() {
    case $1 in
        mingw-x64-clang)
            echo 'unit_(base|history|hostconfig|lists|log|platform|search|settings|toolkit|windows_[a-z]+)'
            ;;
        mingw-x86) echo 'unit_windows_[a-z]+' ;;
        *) echo none ;;
    esac
}

build_tests() {
    local wanted=()
    alone "$1" configure "$1"
    if [ "$(left_out "$1")" != none ]; then
        mapfile -t wanted < <(targets "$1" '\(unit\|contract\)_' | grep -Evx "$(left_out "$1")")
        wanted=(--target Ordalyn "${wanted[@]}")
    fi
    alone "$1" cmake --build --preset "$1" "${wanted[@]}"
}

build_folder_x64() { alone mingw-x64 ./build.sh x64; }
build_release() { alone mingw-x64 alone mingw-x86 ./build.sh release; }

build_fuzzers() {
    local names=()
    alone native-fuzz configure native-fuzz
    mapfile -t names < <(targets native-fuzz fuzz_)
    alone native-fuzz cmake --build --preset native-fuzz --target "${names[@]}"
}

# Builds what the kinds need, one after the other, with the time that nobody else wants: the tests of
# windows mostly wait. What goes wrong is said when the kind itself builds it.
build_ahead() {
    local kind
    for kind in "$@"; do
        case $kind in
            unit | contract) build_tests native-debug ;;
            wine | e2e) build_tests mingw-x64 ;;
            clang) build_tests mingw-x64-clang ;;
            x86) build_tests mingw-x86 ;;
            release) /usr/bin/python3 -B tests/release/build_elsewhere.py build/elsewhere ;;
            fuzz) build_fuzzers ;;
        esac || echo "what $kind needs cannot be built ahead"
    done
}

# A folder that is not there is an error.
programs_in() {
    find "$@" -type f -perm -u+x \( -name 'unit_*' -o -name 'contract*' \) \
        ! -name '*.o' ! -name '*.obj' ! -name '*.cmake' | sort
}

native_tests() {
    build_tests native-debug
    programs_in "${@/#/build/native-debug/tests/}" |
        /usr/bin/python3 tools/run_googletest.py native $COUNTS
}

# windows_tests PRESET FOLDER ...
windows_tests() {
    local preset=$1
    shift
    build_tests "$preset"
    programs_in "${@/#/build/$preset/tests/}" | grep '\.exe$' | grep -Ev "/$(left_out "$preset")\.exe$" |
        /usr/bin/python3 tools/run_googletest.py wine $COUNTS
}

kind_lint() {
    alone native-debug configure native-debug
    alone mingw-x64 configure mingw-x64
    run_pytest lint -n 2 tests/lint
    /usr/bin/python3 tools/tidy.py $COUNTS
}

kind_unit() { native_tests unit contract; }
kind_wine() { windows_tests mingw-x64 unit contract; }
kind_clang() { windows_tests mingw-x64-clang unit contract; }

kind_contract() {
    native_tests contract
    windows_tests mingw-x64 contract
}

kind_e2e() {
    build_folder_x64
    build_agent mingw-x64
    # The program and its tests mostly wait for one another. Each worker has a display and a Wine
    # prefix of its own, and keeps to one processor, which is quicker. A part of the tests runs on all
    # processors, where the program, the display and Wine overtake one another.
    # shellcheck disable=SC2086
    run_pytest e2e -n 2 -m "not all_processors" tests/e2e ${ORDALYN_E2E:-}
    # shellcheck disable=SC2086
    ORDALYN_ALL_PROCESSORS=1 run_pytest e2e-all-processors -m all_processors tests/e2e ${ORDALYN_E2E:-}
}

kind_x86() {
    build_tests mingw-x86
    programs_in build/mingw-x86/tests/{unit,contract} | grep '\.exe$' |
        grep -Ev "/$(left_out mingw-x86)\.exe$" |
        tools/x86_wine.sh /usr/bin/python3 tools/run_googletest.py wine $COUNTS
    # The setup program is tested here, too: it is a 32-bit one.
    build_release
    build_agent mingw-x86
    UNDER=(tools/x86_wine.sh)
    # shellcheck disable=SC2086
    run_pytest x86 -n 2 tests/e2e ${ORDALYN_E2E:-}
}

kind_release() {
    build_release
    run_pytest release tests/release
}

# targets PRESET PREFIX: the names of a build folder's targets that start so.
targets() {
    ninja -C "build/$1" -t targets all | sed -n "s/^\($2[A-Za-z0-9_]*\): phony.*/\1/p" | sort -u
}

kind_fuzz() {
    build_fuzzers
    find build/native-fuzz/tests/fuzz -type f -perm -u+x -name 'fuzz_*' | sort |
        /usr/bin/python3 tools/run_fuzzers.py "${ORDALYN_FUZZ_SECONDS:-6}" $COUNTS
}

kind_bench() {
    local names=() program
    export ORDALYN_FIGURES=$PWD/build/figures.txt
    rm -f "$ORDALYN_FIGURES"
    configure native-release
    mapfile -t names < <(targets native-release bench_)
    cmake --build --preset native-release --target "${names[@]}"
    while read -r program; do
        if "$program"; then echo "1 0" >>$COUNTS; else echo "0 1" >>$COUNTS; fi
    done < <(find build/native-release/tests/bench -type f -perm -u+x -name 'bench_*' | sort)
    bench_real_program
    # What was missed has been counted.
    /usr/bin/python3 -B tests/bench/figures.py table "$ORDALYN_FIGURES" || true
}

# The program itself under Wine, on a log of a million lines.
bench_real_program() {
    build_folder_x64
    build_agent mingw-x64
    cmake --build --preset mingw-x64 --target bare_window bench_start
    cmake --build --preset native-release --target make_log
    build/native-release/tests/bench/make_log build/million.log
    if /usr/bin/python3 -B tests/bench/real_program.py build/million.log; then
        echo "1 0" >>$COUNTS
    else
        echo "0 1" >>$COUNTS
    fi
}

if [ $# -eq 0 ]; then
    set -- lint unit wine clang e2e x86 release fuzz
    # It says what is missing. Whoever names this kind gets a failure instead.
    tools/x86_wine.sh --check || set -- lint unit wine clang e2e release fuzz
fi
for kind in "$@"; do
    case $kind in
        lint | unit | wine | clang | contract | e2e | x86 | release | fuzz | bench) ;;
        *)
            echo "test.sh: no such kind of test: $kind" >&2
            exit 2
            ;;
    esac
done
# What the 32-bit programs run in takes minutes to be made, once. Whatever goes wrong with it is said
# when it is needed.
case " $* " in *" x86 "*) tools/x86_wine.sh true >/dev/null 2>&1 & ;; esac
# The second build of the release begins with nothing.
case " $* " in *" release "*) rm -rf build/elsewhere ;; esac
# In a process group of its own, so that it ends with this script wherever it is then.
set -m
(
    chrt -i -p 0 "$BASHPID"
    build_ahead "${@:2}"
) >build/test-ahead.log 2>&1 &
ahead=$!
set +m
trap 'kill -- -"$ahead" 2>/dev/null || true' EXIT

for kind in "$@"; do
    echo "=== $kind"
    start=$SECONDS
    before_passed=$passed
    before_failed=$failed
    : >$COUNTS
    # A kind that cannot even be built counts as a failure; the other kinds still run. (Not "||":
    # inside of such a list the shell would go on after a failed command.)
    set +e
    (
        set -e
        "kind_$kind"
    ) 2>&1 | tee "build/test-$kind.log"
    status=${PIPESTATUS[0]}
    set -e
    [ "$status" -eq 0 ] || echo "0 1" >>$COUNTS
    count_file
    [ "$failed" -eq "$before_failed" ] || failing+=("$kind")
    echo "--- $kind: $((passed - before_passed)) passed, $((failed - before_failed)) failed," \
        "$((SECONDS - start)) s"
done
# Whoever looks at the end of a long output sees what to look for.
for kind in "${failing[@]}"; do
    echo "=== what failed in $kind (all of it: build/test-$kind.log)"
    grep -E "FAILED|^ERROR|[Ee]rror:|Timeout|Expired|^E  " "build/test-$kind.log" | head -n 40 || true
done
echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ]
