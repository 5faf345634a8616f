#!/usr/bin/env python3
"""The figures of all benchmarks in one table, and the page with them.

    tests/bench/figures.py table FIGURES
    tests/bench/figures.py page [FOLDER]

`table` prints what the benchmarks have added to the file that ORDALYN_FIGURES named, and ends with 1
when a figure has missed its target.

`page` measures logs of 1,000 to 10,000,000 lines in FOLDER (build/growth), which needs 3 GB there, then
what a person could use instead on the log of a million lines, in the same run; it writes
docs/growth.svg and the tables in docs/performance.md. The benchmarks must have been built
(./test.sh bench does), the other tools be installed (tools/setup.sh compare).
"""

import dataclasses
import math
import os
import pathlib
import shutil
import subprocess
import sys
import time

PROJECT = pathlib.Path(__file__).resolve().parents[2]
PROGRAMS = PROJECT / "build/native-release/tests/bench"
PAGE = PROJECT / "docs/performance.md"
PICTURE = PROJECT / "docs/growth.svg"
SIZES = [1_000, 10_000, 100_000, 1_000_000, 10_000_000]
COMPARED = 1_000_000  # lines of the log that other tools get, too
RUNS = 5  # of another tool; the shortest counts
WORD = "delete"  # what is looked for, whatever its letter case


@dataclasses.dataclass
class Figure:
    program: str
    lines: int
    what: str
    value: float
    unit: str = "ms"
    floor: float = 0
    most_times: float = 0
    most: float = 0

    @property
    def times(self):
        return self.value / self.floor if self.floor else 0

    @property
    def targets(self):
        found = [f"{self.most_times:g} x"] if self.most_times else []
        return " and ".join(found + ([f"{number(self.most)} {self.unit}"] if self.most else []))

    @property
    def met(self):
        return ((not self.most_times or self.times <= self.most_times) and
                (not self.most or self.value <= self.most))

    def cells(self):
        return [self.what, f"{number(self.value)} {self.unit}",
                f"{number(self.floor)} {self.unit}" if self.floor else "",
                f"{self.times:.2f} x" if self.floor else "", self.targets,
                ("met" if self.met else "MISSED") if self.targets else ""]


HEADINGS = ["", "measured", "floor", "times", "target", ""]


def number(value):
    if value >= 1000:
        return f"{value:,.0f}"
    return f"{value:.3g}" if value < 100 else f"{value:.0f}"


def add(figure):
    """Adds a row to the file that the environment names, if it does; for benchmarks in Python."""
    path = os.environ.get("ORDALYN_FIGURES")
    if path:
        with open(path, "a", encoding="utf-8") as file:
            file.write("\t".join(str(value) for value in dataclasses.astuple(figure)) + "\n")


def read(path):
    figures = []
    for line in pathlib.Path(path).read_text(encoding="utf-8").splitlines():
        program, lines, what, value, unit, *limits = line.split("\t")
        figures.append(Figure(program, int(lines), what, float(value), unit, *map(float, limits)))
    return figures


def print_table(figures):
    rows = [HEADINGS] + [figure.cells() for figure in figures]
    widths = [max(len(row[i]) for row in rows) for i in range(len(HEADINGS))]
    before = None
    for row, figure in zip(rows, [None, *figures]):
        if figure and (figure.program, figure.lines) != before:
            before = figure.program, figure.lines
            print(f"\n{figure.program}" + (f", {figure.lines:,} lines" if figure.lines else ""))
        cells = [cell.ljust(width) if i in (0, 5) else cell.rjust(width)
                 for i, (cell, width) in enumerate(zip(row, widths))]
        print("  ".join(cells).rstrip())
    missed = sum(not figure.met for figure in figures)
    print(f"\n{len(figures)} figures, {missed} targets missed")
    return missed


def markdown(headings, rows):
    return "\n".join("| " + " | ".join(row) + " |"
                     for row in [headings, ["---"] * len(headings), *rows])


def measure(folder):
    """The figures of the benchmarks, each log of its size."""
    folder.mkdir(parents=True, exist_ok=True)
    collected = folder / "figures.txt"
    collected.unlink(missing_ok=True)
    for lines in SIZES:
        log = folder / f"{lines}.log"
        if not log.exists():
            subprocess.run([PROGRAMS / "make_log", log, str(lines)], check=True)
        for program in ("bench_log", "bench_find", "bench_rows"):
            print(f"{program}, {lines:,} lines", flush=True)
            # It ends with 1 when a target was missed: the table says so.
            subprocess.run([PROGRAMS / program, log], stdout=subprocess.DEVNULL,
                           env={**os.environ, "ORDALYN_FIGURES": str(collected)})
    # It writes logs of its own.
    subprocess.run([PROGRAMS / "bench_scripts"], cwd=folder, stdout=subprocess.DEVNULL,
                   env={**os.environ, "ORDALYN_FIGURES": str(collected)})
    return read(collected)


# What each of the other tools is asked for; "{}" stands for the log. Each prints to a file that is
# thrown away, as a terminal would take longer than the tool.
OTHERS = [
    ("GNU grep: the lines with a word", f"LC_ALL=C.UTF-8 grep -i -F {WORD} {{}}"),
    ("GNU grep, letter case regarded", "LC_ALL=C.UTF-8 grep -F Delete {}"),
    ("ripgrep: the lines with a word", f"rg -i -F {WORD} {{}}"),
    ("ripgrep, letter case regarded", "rg -F Delete {}"),
    ("lnav: open, print all lines", "lnav -n {}"),
    ("lnav: open, print the lines with a word", f"lnav -n -c ':filter-in (?i){WORD}' {{}}"),
]


def compare(log, figures):
    """Rows of a table: what other tools take for the same log, beside the program's own figures."""
    def own(what):
        return next(figure.value for figure in figures
                    if figure.lines == COMPARED and figure.what == what)
    reading = own("the same into memory that is new to the process")
    word = own("filter: another operation word")
    rows = [["Ordalyn: read the log, once", f"{number(reading)} ms", "`bench_log`"],
            ["Ordalyn: the lines with a word, letter case disregarded, each time",
             f"{number(word)} ms", "`bench_find`"]]
    for what, command in OTHERS:
        tool = command.replace("LC_ALL=C.UTF-8 ", "").split()[0]
        if not shutil.which(tool):
            sys.exit(f"{tool} is missing; tools/setup.sh compare installs it")
        seconds = []
        for _ in range(RUNS):
            begin = time.monotonic()
            # grep ends with 1 when it finds nothing.
            subprocess.run(command.format(log), shell=True, check=True, stdin=subprocess.DEVNULL,
                           stdout=open(log.with_suffix(".out"), "wb"), stderr=subprocess.DEVNULL)
            seconds.append(time.monotonic() - begin)
        log.with_suffix(".out").unlink()
        rows.append([what, f"{number(min(seconds) * 1000)} ms", f"`{command.format('LOG')}`"])
    return rows


# The lines of the picture: what they are called, their figure, and their colour.
SERIES = [("reading", "the same into memory that is new to the process", "#1f5fbf"),
          ("saving rows", "saving rows, tabs", "#8a5a00"),
          ("filter", "filter: another operation word", "#1b7f3b"),
          ("search", "search to the end", "#a3246e"),
          ("filling panels", "filling both panels with all dates", "#555555")]
WIDTH, HEIGHT = 760, 470
LEFT, RIGHT, TOP, BOTTOM = 70, 130, 20, 50


def picture(figures):
    """An SVG: milliseconds against lines, both on log axes; dashed: the floors."""
    points = {name: sorted((figure.lines, figure.value, figure.floor) for figure in figures
                           if figure.what == what) for name, what, _ in SERIES}
    values = [value for row in points.values() for point in row for value in point[1:] if value > 0]
    low, high = math.floor(math.log10(min(values))), math.ceil(math.log10(max(values)))
    first, last = math.log10(SIZES[0]), math.log10(SIZES[-1])

    def x(lines):
        return LEFT + (math.log10(lines) - first) / (last - first) * (WIDTH - LEFT - RIGHT)

    def y(value):
        return HEIGHT - BOTTOM - (math.log10(value) - low) / (high - low) * (HEIGHT - TOP - BOTTOM)

    out = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {HEIGHT}" '
           'font-family="sans-serif" font-size="12">',
           "<title>Time against the lines of a log; dashed: the floor of each</title>",
           f'<rect width="{WIDTH}" height="{HEIGHT}" fill="white"/>']

    def text(left, top, content, anchor="start", color="#333333"):
        out.append(f'<text x="{left:.1f}" y="{top:.1f}" text-anchor="{anchor}" '
                   f'fill="{color}">{content}</text>')

    def line(places, color, dashed=False):
        dash = ' stroke-dasharray="5 4"' if dashed else ""
        path = " ".join(f"{left:.1f},{top:.1f}" for left, top in places)
        out.append(f'<polyline points="{path}" fill="none" stroke="{color}" '
                   f'stroke-width="{1.2 if dashed else 2}"{dash}/>')

    for size in SIZES:
        line([(x(size), y(10 ** low)), (x(size), y(10 ** high))], "#dddddd", True)
        text(x(size), HEIGHT - BOTTOM + 18, f"{size:,}", "middle")
    for power in range(low, high + 1):
        line([(LEFT, y(10 ** power)), (WIDTH - RIGHT, y(10 ** power))], "#dddddd", True)
        unit = f"{10 ** power:g} ms" if power < 3 else f"{10 ** (power - 3):g} s"
        text(LEFT - 8, y(10 ** power) + 4, unit, "end")
    text((LEFT + WIDTH - RIGHT) / 2, HEIGHT - 10, "lines of the log (dashed: the floor of each)", "middle")
    names = []
    for name, _, color in SERIES:
        if not points[name]:
            continue
        line([(x(lines), y(value)) for lines, value, _ in points[name]], color)
        floors = [(x(lines), y(floor)) for lines, _, floor in points[name] if floor]
        if floors:
            line(floors, color, True)
        names.append((y(points[name][-1][1]), name, color))
    lowest = -math.inf
    for place, name, color in sorted(names):
        lowest = max(place, lowest + 15)  # so that none stands on another
        text(WIDTH - RIGHT + 8, lowest + 4, name, color=color)
    return "\n".join([*out, "</svg>\n"])


def replace(text, name, content):
    """The text with other content between the marks of that name."""
    begin, end = f"<!-- {name}: made by tests/bench/figures.py -->\n", f"<!-- end of {name} -->"
    before, _, rest = text.partition(begin)
    _, mark, behind = rest.partition(end)
    if not mark:
        raise ValueError(f"docs/performance.md has no place for {name}")
    return before + begin + content + "\n" + end + behind


def growth_rows(figures):
    rows = []
    for name, what, _ in SERIES:
        cells = {figure.lines: figure for figure in figures if figure.what == what}
        rows.append([name] + [f"{number(cells[size].value)} ms" +
                              (f" = {cells[size].times:.1f} x" if cells[size].floor else "")
                              for size in SIZES])
    return rows


def page(folder):
    figures = measure(folder)
    others = compare(folder / f"{COMPARED}.log", figures)
    text = PAGE.read_text(encoding="utf-8")
    text = replace(text, "figures", markdown(
        ["command", *HEADINGS],
        [[f"`{figure.program}`", *figure.cells()] for figure in figures if figure.lines == COMPARED]))
    text = replace(text, "growth", markdown(
        ["", *(f"{size:,}" for size in SIZES)], growth_rows(figures)))
    text = replace(text, "comparison", markdown(["on the same log, in the same run", "", ""], others))
    PAGE.write_text(text, encoding="utf-8")
    PICTURE.write_text(picture(figures), encoding="utf-8")
    return print_table(figures)


def main():
    match sys.argv[1:]:
        case ["table", path]:
            missed = print_table(read(path))
        case ["page", *folder] if len(folder) <= 1:
            missed = page(pathlib.Path(*folder).resolve() if folder else PROJECT / "build/growth")
        case _:
            sys.exit(__doc__)
    sys.exit(1 if missed else 0)


if __name__ == "__main__":
    main()
