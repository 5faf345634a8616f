#!/usr/bin/env python3
"""Measures the real program under Wine on a log of a million lines: from its start to rows on the
screen, against the same program on a log of one line in the same run, and a filter over all dates.

    tests/bench/real_program.py MILLION_LINE_LOG

Starts are the best of three runs. Ends with 1 when a limit is missed.
"""

import pathlib
import shutil
import sys
import time

PROJECT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(PROJECT / "tools"))

from harness.display import Display  # noqa: E402
from harness.folder import Folder  # noqa: E402
from harness.processor import stay_on_processor  # noqa: E402
from harness.waiting import wait_until  # noqa: E402
from harness.wine import WORK, Wine  # noqa: E402

RUNS = 3
START_LIMIT = 0.5  # seconds more than for a log of one line
FILTER_LIMIT = 0.3  # seconds


def start(folder, log):
    begin = time.monotonic()
    app = folder.start(log, env=folder.file_manager())
    app.wait_for_rows(timeout=120)
    return time.monotonic() - begin, app


def best_start(folder, log):
    seconds = []
    for _ in range(RUNS):
        taken, app = start(folder, log)
        seconds.append(taken)
        app.close()
    return min(seconds)


def filter_over_all_dates(folder, log):
    _, app = start(folder, log)
    app.main.dates.choose(0)
    app.settle()
    every = app.main.source.row_count
    app.keys("Ctrl+L")
    app.window("Filter")
    app.settle()
    app.type("Delete")
    begin = time.monotonic()
    app.keys("Enter")
    wait_until(lambda: 0 < app.main.source.row_count < every, "fewer rows", 60)
    app.settle()
    seconds = time.monotonic() - begin
    rows = app.main.source.row_count
    app.close()
    return seconds, every, rows


def main():
    million = pathlib.Path(sys.argv[1]).resolve()
    if not million.is_file():
        sys.exit(f"there is no log {million}; make_log writes one")
    stay_on_processor(0)
    display = Display()
    try:
        wine = Wine(display)
        try:
            path = WORK / f"bench-{wine.folder.name}"
            shutil.rmtree(path, ignore_errors=True)
            path.mkdir(parents=True)
            folder = Folder(wine, path)
            try:
                one = folder.write("one.log", ["01.03.2024 10:15:30: Copy C:\\a.txt -> D:\\a.txt"])
                best_start(folder, one)  # warms up prefix and caches
                floor = best_start(folder, one)
                whole = best_start(folder, million)
                filtered, every, rows = filter_over_all_dates(folder, million)
            finally:
                folder.end_all()
        finally:
            wine.close()
    finally:
        display.close()
    print(f"start to rows, one line:        {floor:6.2f} s")
    print(f"start to rows, a million lines: {whole:6.2f} s "
          f"({whole - floor:+.2f} s, limit +{START_LIMIT} s)")
    print(f"filter over all dates, {every} rows to {rows}: {filtered:.2f} s "
          f"(limit {FILTER_LIMIT} s)")
    sys.exit(0 if whole - floor <= START_LIMIT and filtered <= FILTER_LIMIT else 1)


if __name__ == "__main__":
    main()
