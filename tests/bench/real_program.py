#!/usr/bin/env python3
"""Measures the real program under Wine on a log of a million lines: from its start to rows on the
screen, against the same program on a log of one line in the same run, a filter over all dates and a
search that finds nothing; a refresh that brings a line, against that of the log of one line; and a
start with a log of one line against that of a bare window with one list view, by turns
(start/bench_start.cpp). With a second log, of ten million lines, also how much more that takes, and
its memory.

    tests/bench/real_program.py MILLION_LINE_LOG [TEN_MILLION_LINE_LOG]

Starts are the best of three runs. Ends with 1 when a limit is missed.
"""

import os
import pathlib
import shutil
import statistics
import subprocess
import sys
import time

PROJECT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(PROJECT / "tools"))

from harness.dialogs import open_find  # noqa: E402
from harness.display import Display  # noqa: E402
from harness.folder import Folder  # noqa: E402
from harness.processor import stay_on_processor  # noqa: E402
from harness.waiting import wait_until  # noqa: E402
from harness.wine import WORK, Wine, windows_path  # noqa: E402

from figures import Figure, add  # noqa: E402

RUNS = 3
START_LIMIT = 0.5  # seconds more than for a log of one line
FILTER_LIMIT = 0.3  # seconds
REFRESHES = 9
REFRESH_LIMIT = 0.05  # seconds more than for a log of one line
TEN_TIMES = 11  # times a million lines
MEMORY_LIMIT = 1.3  # times the file


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


def use(folder, log):
    """The seconds of a filter over all dates and of a search that goes through all fields of all
    entries in vain, the rows before and after the filter, and the program's memory in bytes."""
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
    filtered = time.monotonic() - begin
    rows = app.main.source.row_count
    dialog = open_find(app)
    app.type("Zanzibar")
    begin = time.monotonic()
    app.keys("Enter")
    message = app.message(60)
    searched = time.monotonic() - begin
    message.press("OK")
    dialog.button("Cancel").press()
    memory = resident_memory(folder)
    app.close()
    return filtered, searched, every, rows, memory


def refresh(folder, log):
    """The median of the seconds after which a line that has been added to the log is a row. The log
    is left as it was."""
    size = log.stat().st_size
    _, app = start(folder, log)
    seconds = []
    try:
        app.settle()
        for number in range(1, REFRESHES + 1):
            with log.open("ab") as file:
                file.write(b"31.12.2099 10:15:30: Copy C:\\a.txt -> D:\\a.txt\r\n")
            begin = time.monotonic()
            app.keys("F5")
            wait_until(lambda rows=number: app.main.source.row_count == rows, "the line that was added")
            seconds.append(time.monotonic() - begin)
        app.close()
    finally:
        os.truncate(log, size)
    return statistics.median(seconds)


def refreshes(folder, log, floor):
    """Prints what a refresh of a large log takes; answers whether that is within its limit."""
    seconds = refresh(folder, log)
    more = seconds - floor
    what = f"a line added to {log.stat().st_size / 1e6:.0f} MB, refreshed"
    print(f"{what}: {seconds * 1000:.0f} ms ({more * 1000:+.0f} ms, "
          f"limit +{REFRESH_LIMIT * 1000:.0f} ms)")
    add(Figure("real_program", 0, f"{what}, more than to a log of one line", more * 1000,
               most=REFRESH_LIMIT * 1000))
    return more <= REFRESH_LIMIT


def bare_window(folder, log):
    """Prints what a start costs in units of a bare window's; answers whether that is within its limit."""
    programs = PROJECT / "build/mingw-x64/tests/bench"
    env = {**folder.wine.environment(), **folder.file_manager()}
    if "ORDALYN_FIGURES" in os.environ:
        env["ORDALYN_FIGURES"] = windows_path(os.environ["ORDALYN_FIGURES"])
    command = [programs / "bare_window.exe", folder.program / "Ordalyn.exe", log]
    return subprocess.run(["wine", programs / "bench_start.exe", *map(windows_path, command)],
                          env=env, stderr=subprocess.DEVNULL).returncode == 0


def resident_memory(folder):
    """Of the program that runs from the folder."""
    for process in pathlib.Path("/proc").glob("[0-9]*"):
        try:
            variables = (process / "environ").read_bytes().split(b"\0")
            command = (process / "cmdline").read_bytes()
            status = (process / "status").read_text()
        except OSError:
            continue
        if b"WINEPREFIX=" + os.fsencode(folder.wine.folder) in variables and \
                b"Ordalyn.exe" in command.split(b"\0")[0]:
            lines = dict(line.split(":", 1) for line in status.splitlines())
            return int(lines["VmRSS"].split()[0]) * 1024
    raise RuntimeError("the program does not run")


def ten_times(folder, log, million, floor):
    """Prints what the larger log takes; answers whether that is within its limits."""
    lines = {"start to rows": (best_start(folder, log) - floor, million["start to rows"] - floor)}
    filtered, searched, every, _, memory = use(folder, log)
    lines["filter"] = filtered, million["filter"]
    lines["search"] = searched, million["search"]
    good = True
    for name, (large, small) in lines.items():
        print(f"{every} lines, {name}: {large:.2f} s, {large / small:.1f} x (limit {TEN_TIMES} x)")
        good = good and large <= TEN_TIMES * small
    size = memory - million["memory of one line"]
    print(f"{every} lines, memory: {size / log.stat().st_size:.2f} x the file "
          f"(limit {MEMORY_LIMIT} x)")
    return good and size <= MEMORY_LIMIT * log.stat().st_size


def main():
    million, *larger = [pathlib.Path(argument).resolve() for argument in sys.argv[1:]]
    for log in (million, *larger):
        if not log.is_file():
            sys.exit(f"there is no log {log}; make_log writes one")
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
                filtered, searched, every, rows, _ = use(folder, million)
                _, app = start(folder, one)
                memory = resident_memory(folder)
                app.close()
                good = bare_window(folder, one)
                refreshed = refresh(folder, one)
                good &= all([refreshes(folder, log, refreshed) for log in (million, *larger)])
                good &= all([ten_times(folder, log, {"start to rows": whole, "filter": filtered,
                                                     "search": searched,
                                                     "memory of one line": memory}, floor)
                             for log in larger])
            finally:
                folder.end_all()
        finally:
            wine.close()
    finally:
        display.close()
    add(Figure("real_program", every, "start to rows, more than with a log of one line",
               (whole - floor) * 1000, most=START_LIMIT * 1000))
    add(Figure("real_program", every, "filter over all dates, in the window", filtered * 1000,
               most=FILTER_LIMIT * 1000))
    add(Figure("real_program", every, "search in vain, in the window", searched * 1000))
    print(f"start to rows, one line:        {floor:6.2f} s")
    print(f"start to rows, a million lines: {whole:6.2f} s "
          f"({whole - floor:+.2f} s, limit +{START_LIMIT} s)")
    print(f"filter over all dates, {every} rows to {rows}: {filtered:.2f} s "
          f"(limit {FILTER_LIMIT} s)")
    print(f"search in vain: {searched:.2f} s")
    sys.exit(0 if good and whole - floor <= START_LIMIT and filtered <= FILTER_LIMIT else 1)


if __name__ == "__main__":
    main()
