#!/usr/bin/env python3
"""Runs the test programs whose paths come in on standard input, shows what fails, and adds the
counts to a file.

    run_googletest.py native|wine COUNTS < programs
"""

import concurrent.futures
import os
import pathlib
import re
import subprocess
import sys
import time

PROJECT = pathlib.Path(__file__).resolve().parents[1]
SECONDS_FOR_ONE_PROGRAM = 300
DESKTOPS = 2

PASSED = re.compile(r"^\[       OK \] (\S+)", re.M)
FAILED = re.compile(r"^\[  FAILED  \] (\S+?),? .*\(\d+ ms\)\r?$", re.M)
STARTED = re.compile(r"^\[ RUN      \] (\S+)", re.M)


class Result:
    def __init__(self, program, output, code, seconds):
        self.program = pathlib.Path(program).name
        self.output = output
        self.seconds = seconds
        self.passed = len(PASSED.findall(output))
        self.failed = len(FAILED.findall(output))
        # A program that ends by itself in the middle (a sanitizer's finding, a crash, a hang) has
        # failed in the test that it was in, or before its first.
        if code != 0 and self.failed == 0:
            self.failed = 1

    @classmethod
    def together(cls, parts):
        """The result of a program whose tests were run in parts."""
        whole = cls(parts[0].program, "\n".join(part.output for part in parts), 0,
                    max(part.seconds for part in parts))
        whole.failed = sum(part.failed for part in parts)
        return whole.checked()

    def checked(self):
        # A program that claims success without having run anything has failed.
        if self.passed == 0 and self.failed == 0:
            self.failed = 1
        return self

    def show(self):
        print(f"{self.program}: {self.passed} passed, {self.failed} failed, {self.seconds:.1f} s",
              flush=True)
        if self.failed:
            quiet = re.compile(r"^\[(       OK | RUN      |----------)\]")
            print("\n".join(line for line in self.output.splitlines() if not quiet.match(line)))
            started = STARTED.findall(self.output)
            if started:
                print(f"(the last test that was started: {started[-1]})", flush=True)


def run(program, command, **options):
    start = time.monotonic()
    try:
        done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              stdin=subprocess.DEVNULL, timeout=SECONDS_FOR_ONE_PROGRAM,
                              check=False, **options)
        return Result(program, done.stdout.decode("utf-8", "replace"), done.returncode,
                      time.monotonic() - start)
    except subprocess.TimeoutExpired as late:
        output = (late.stdout or b"").decode("utf-8", "replace")
        return Result(program, output + "\n(ended after a time-out)", -1,
                      time.monotonic() - start)


def native_environment():
    """What a test leaves allocated is a failure, whatever whoever starts the tests has set."""
    options = [os.environ.get("ASAN_OPTIONS"), "detect_leaks=1"]
    return {**os.environ, "ASAN_OPTIONS": ":".join(filter(None, options))}


def run_native(programs):
    environment = native_environment()
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for result in pool.map(lambda p: run(p, [p, "--gtest_color=no"], env=environment),
                               programs):
            yield result.checked()


def run_under_wine(programs):
    """Each of two desktops runs every second test of a program: the tests mostly wait. On one
    desktop they share the keyboard focus, the clipboard, the registry."""
    sys.path.insert(0, str(PROJECT / "tools"))
    with concurrent.futures.ThreadPoolExecutor(DESKTOPS) as pool:
        shares = [pool.submit(run_share, programs, number) for number in range(DESKTOPS)]
        for parts in zip(*(share.result() for share in shares)):
            yield Result.together(parts)


def run_share(programs, number):
    from harness.display import Display
    from harness.processor import stay_on_processor
    from harness.wine import Wine
    stay_on_processor(number)
    display = Display()
    try:
        wine = Wine(display)
        try:
            wine.show_desktop()
            share = {"GTEST_TOTAL_SHARDS": str(DESKTOPS), "GTEST_SHARD_INDEX": str(number)}
            return [run(program, ["wine", program, "--gtest_color=no"],
                        env={**wine.environment(), **share}) for program in programs]
        finally:
            wine.close()
    finally:
        display.close()


def main():
    kind, counts = sys.argv[1:]
    programs = [line.strip() for line in sys.stdin if line.strip()]
    passed = failed = 0
    for result in (run_under_wine if kind == "wine" else run_native)(programs):
        result.show()
        passed += result.passed
        failed += result.failed
    if not programs:
        print("there are no test programs")
        failed += 1
    with open(counts, "a", encoding="ascii") as file:
        print(passed, failed, file=file)


if __name__ == "__main__":
    main()
