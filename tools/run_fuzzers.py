#!/usr/bin/env python3
"""Runs the fuzz targets whose paths come in on standard input, each for some seconds over the seeds
in tests/fuzz/corpus/NAME, and adds the counts to a file. An input that breaks a target is kept in
build/fuzz; it belongs into a unit test.

    run_fuzzers.py SECONDS COUNTS < programs
"""

import concurrent.futures
import os
import pathlib
import subprocess
import sys

PROJECT = pathlib.Path(__file__).resolve().parents[1]
KEPT = PROJECT / "build" / "fuzz"


def fuzz(program, seconds):
    name = pathlib.Path(program).name.removeprefix("fuzz_")
    found = KEPT / name
    found.mkdir(parents=True, exist_ok=True)
    corpus = [str(found)]
    seeds = PROJECT / "tests" / "fuzz" / "corpus" / name
    if seeds.is_dir():
        corpus.append(str(seeds))
    # The same inputs each time: a run blames a change only for what it breaks. Looking for more is
    # done with other seeds and more time.
    seed = os.environ.get("ORDALYN_FUZZ_SEED", "1")
    return name, subprocess.run(
        [program, *corpus, f"-seed={seed}", f"-max_total_time={seconds}",
         f"-artifact_prefix={KEPT}/{name}-", "-timeout=10", "-rss_limit_mb=2048",
         "-print_final_stats=1"],
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT, stdin=subprocess.DEVNULL, check=False)


def main():
    seconds, counts = int(sys.argv[1]), sys.argv[2]
    programs = [line.strip() for line in sys.stdin if line.strip()]
    passed = failed = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for name, done in pool.map(lambda p: fuzz(p, seconds), programs):
            output = done.stdout.decode("utf-8", "replace").splitlines()
            if done.returncode == 0:
                passed += 1
                runs = [line for line in output if "number_of_executed_units" in line]
                print(f"fuzz {name}: {runs[0].split()[-1] if runs else '?'} inputs", flush=True)
            else:
                failed += 1
                print(f"fuzz {name} FAILED", *output[-40:], sep="\n", flush=True)
    if not programs:
        print("there are no fuzz targets")
        failed += 1
    with open(counts, "a", encoding="ascii") as file:
        print(passed, failed, file=file)


if __name__ == "__main__":
    main()
