#!/usr/bin/env python3
"""Changes one operator, constant, condition or call of the portable source at a time, builds and runs the
native tests, and says whether they notice. What they do not notice is either no difference to anybody, or
lacks a test, or is not needed. docs/testing.md tells of those that make no difference.

It works in a copy, build/mutation/tree, with a build of its own, and uses one core. The first run builds
all tests (some minutes); a change takes some seconds. A run that was ended goes on where it was.

    tools/mutate.py                             300 changes, the same ones each time
    tools/mutate.py --seed 2 --count 50         other ones
    tools/mutate.py --only src/log/LogLine.cpp:12      every change of one line
    tools/mutate.py --only src/log/LogLine.cpp         every change of one file
    tools/mutate.py --survivors build/mutation/results-1.jsonl     once more what was not noticed
    tools/mutate.py --list                      says which changes, and tries none
"""

import argparse
import collections
import dataclasses
import json
import os
import pathlib
import re
import resource
import shutil
import signal
import subprocess
import sys
import time
from collections.abc import Iterator

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))
import mutations  # noqa: E402
from check_includes import read_table  # noqa: E402

PROJECT = pathlib.Path(__file__).resolve().parents[1]
WORKSHOP = PROJECT / "build" / "mutation"
TREE, BUILD, UNCHANGED = (WORKSHOP / name for name in ("tree", "build", "unchanged"))

# Room by room a shared library: a change compiles one file and links one library.
CONFIGURE = ["cmake", "-S", str(TREE), "-B", str(BUILD), "-G", "Ninja", "-DCMAKE_BUILD_TYPE=None",
             "-DBUILD_SHARED_LIBS=ON", "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON",
             f"-DPython3_EXECUTABLE={sys.executable}",
             "-DCMAKE_CXX_FLAGS=-O0 -w -D_GLIBCXX_ASSERTIONS"]
MOST_MEMORY = 2 << 30
MOST_OUTPUT = 64 << 20
LEAST_SECONDS = 10
NICE = 5

NOTICED, SURVIVED, UNBUILDABLE = "noticed", "not noticed", "does not build"
FAILED = re.compile(r"^\[  FAILED  \] (\S+?),? .*\(\d+ ms\)$", re.M)
STARTED = re.compile(r"^\[ RUN      \] (\S+)$", re.M)


@dataclasses.dataclass
class Outcome:
    """How a test program ended: the test that failed ("" when all passed) and what happened to it."""
    test: str
    how: str
    seconds: float


def outcome_of(code: int, output: str, seconds: float, late: bool) -> Outcome:
    """From how a program of GoogleTest ended and what it printed."""
    started = STARTED.findall(output)
    last = started[-1] if started else "(before the first test)"
    if late or code == -signal.SIGXCPU:
        return Outcome(last, "took too long", seconds)
    if code == 0 and started:
        return Outcome("", "passed", seconds)
    failed = FAILED.findall(output)
    return Outcome(failed[0], "failed", seconds) if failed else Outcome(last, "crashed", seconds)


def order_of_programs(room: str, libraries_of: dict[str, set[str]]) -> list[str]:
    """The programs that use a room: its own unit tests first, then those of rooms close above it."""
    name = room.replace("/", "_")
    using = [program for program, used in libraries_of.items() if name in used]
    return sorted(using, key=lambda one: (one != f"unit_{name}", one != f"contract_{name}",
                                          len(libraries_of[one]), one))


def environment() -> dict[str, str]:
    """Without a compiler cache: nothing here is compiled twice."""
    return {name: value for name, value in os.environ.items() if name != "CMAKE_CXX_COMPILER_LAUNCHER"}


class Workshop:
    """The copy of the tree and its build."""

    def __init__(self) -> None:
        self.libraries_of: dict[str, set[str]] = {}
        self.paths: dict[str, pathlib.Path] = {}
        self.seconds_of: dict[str, float] = {}
        self.built: dict[str, tuple[int, int]] = {}

    def prepare(self) -> None:
        copy_tree()
        if not (BUILD / "build.ninja").exists():
            subprocess.run(CONFIGURE, check=True, env=environment())
        if not self.build("ordalyn_tests", quiet=False):
            sys.exit("The tests do not build as they are.")
        for path in BUILD.glob("tests/**/*"):
            if re.fullmatch(r"(unit|contract)_\w+", path.name) and path.is_file():
                self.paths[path.name] = path
                inputs = subprocess.run(["ninja", "-C", str(BUILD), "-t", "inputs", path.name], check=True,
                                        stdout=subprocess.PIPE, encoding="utf-8").stdout
                self.libraries_of[path.name] = set(re.findall(r"libordalyn_(\w+)\.so", inputs))
        for program in sorted(self.paths):
            outcome = self.run(program, 600)
            if outcome.test:
                sys.exit(f"{program} does not pass as it is: {outcome.test} {outcome.how}")
            self.seconds_of[program] = outcome.seconds
        self.keep_build()
        print(f"All {len(self.paths)} test programs pass as they are "
              f"({sum(self.seconds_of.values()):.0f} s).", flush=True)

    def build(self, target: str, quiet: bool = True) -> bool:
        return subprocess.run(["ninja", "-C", str(BUILD), "-j1", target], check=False, env=environment(),
                              stdout=subprocess.DEVNULL if quiet else None,
                              stderr=subprocess.STDOUT if quiet else None).returncode == 0

    def run(self, program: str, most_seconds: float) -> Outcome:
        """Stops at the first failure. A program that takes too long has as much processor time as
        that, and some times more by the clock, because others are at work on the machine."""
        def limits() -> None:
            for what, most in ((resource.RLIMIT_AS, MOST_MEMORY), (resource.RLIMIT_FSIZE, MOST_OUTPUT),
                               (resource.RLIMIT_CPU, int(most_seconds) + 1), (resource.RLIMIT_CORE, 0)):
                resource.setrlimit(what, (most, most + 1 if what == resource.RLIMIT_CPU else most))

        begin = os.times()
        with open(WORKSHOP / "output", "w+b") as output:
            with subprocess.Popen([str(self.paths[program]), "--gtest_color=no", "--gtest_fail_fast"], cwd=BUILD,
                                  stdin=subprocess.DEVNULL, stdout=output, stderr=subprocess.STDOUT,
                                  start_new_session=True, preexec_fn=limits) as process:
                late = False
                try:
                    process.wait(most_seconds * 4)
                except subprocess.TimeoutExpired:
                    late = True
                    os.killpg(process.pid, signal.SIGKILL)
                code = process.wait()
            output.seek(0)
            text = output.read().decode("utf-8", "replace")
        end = os.times()
        used = end.children_user + end.children_system - begin.children_user - begin.children_system
        return outcome_of(code, text, used, late)

    def keep_build(self) -> None:
        """A second copy of what was built, so that taking a change back compiles nothing."""
        shutil.rmtree(UNCHANGED, ignore_errors=True)
        shutil.copytree(BUILD, UNCHANGED, symlinks=True)
        self.built = stamps(BUILD)

    def restore_build(self) -> None:
        for name, stamp in stamps(BUILD).items():
            if name not in self.built:
                (BUILD / name).unlink()
            elif self.built[name] != stamp:
                shutil.copy2(UNCHANGED / name, BUILD / name)
        for name in self.built.keys() - stamps(BUILD).keys():
            shutil.copy2(UNCHANGED / name, BUILD / name)

    def try_out(self, change: mutations.Change) -> dict[str, object]:
        """What is to be known about a change, as the file of results has it."""
        begin = time.monotonic()
        file = TREE / change.file
        source, stamp = file.read_text(encoding="utf-8"), file.stat()
        file.write_text(change.applied_to(source), encoding="utf-8")
        try:
            said = self.judge(room_of(change.file))
        finally:
            # With its time, too: for the build it then was never changed.
            file.write_text(source, encoding="utf-8")
            os.utime(file, ns=(stamp.st_atime_ns, stamp.st_mtime_ns))
            self.restore_build()
        return {**dataclasses.asdict(change), **said, "seconds": round(time.monotonic() - begin, 1)}

    def judge(self, room: str) -> dict[str, object]:
        for program in order_of_programs(room, self.libraries_of):
            if not self.build(program):
                return {"result": UNBUILDABLE}
            outcome = self.run(program, max(LEAST_SECONDS, 10 * self.seconds_of[program]))
            if outcome.test:
                return {"result": NOTICED, "by": program, "test": outcome.test, "how": outcome.how}
        return {"result": SURVIVED}


def stamps(folder: pathlib.Path) -> dict[str, tuple[int, int]]:
    """When each file below a folder was written, and its size."""
    return {path.relative_to(folder).as_posix(): (path.lstat().st_mtime_ns, path.lstat().st_size)
            for path in folder.rglob("*") if not path.is_dir()}


def copy_tree() -> None:
    """Only what differs is written, so that no more than that is built."""
    names = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"], cwd=PROJECT,
                           stdout=subprocess.PIPE, check=True, encoding="utf-8").stdout.split("\0")
    wanted = {name for name in names if name and (PROJECT / name).is_file()}
    for path in [one for one in TREE.rglob("*") if one.is_file()]:
        if path.relative_to(TREE).as_posix() not in wanted and "__pycache__" not in path.parts:
            path.unlink()
    for name in wanted:
        path = TREE / name
        content = (PROJECT / name).read_bytes()
        if not path.is_file() or path.read_bytes() != content:
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_bytes(content)
            shutil.copymode(PROJECT / name, path)


def room_of(file: str) -> str:
    return pathlib.PurePosixPath(file).parent.relative_to("src").as_posix()


def sources_of_rooms(root: pathlib.Path) -> dict[str, dict[str, str]]:
    """room -> file -> its text, for the rooms that need no Windows."""
    return {room: {file.relative_to(root).as_posix(): file.read_text(encoding="utf-8")
                   for file in sorted((root / "src" / room).iterdir()) if file.suffix in (".h", ".cpp")}
            for room in read_table(root / "src" / "rooms.txt") if not room.startswith("win32/")}


def all_changes(sources: dict[str, str]) -> list[mutations.Change]:
    return [change for file, source in sources.items() for change in mutations.changes_in(file, source)]


def same_change(record: dict[str, object], candidates: list[mutations.Change]) -> mutations.Change | None:
    """What a file of results tells of, in the source as it is now."""
    fitting = [one for one in candidates if all(getattr(one, name) == record[name]
                                                for name in ("file", "was", "now", "text"))]
    place = (int(str(record["line"])), int(str(record["column"])))
    return min(fitting, default=None,
               key=lambda one: (abs(one.line - place[0]), abs(one.column - place[1])))


def key_of(record: dict[str, object]) -> tuple[object, ...]:
    return tuple(record[name] for name in ("file", "line", "column", "was", "now", "text"))


class Results:
    """The file that results are written to as they come."""

    def __init__(self, path: pathlib.Path, go_on: bool) -> None:
        self.path = path
        if not go_on:
            path.unlink(missing_ok=True)
        self.known = {key_of(record): record for record in read_results(path)} if path.exists() else {}

    def of(self, change: mutations.Change) -> dict[str, object] | None:
        return self.known.get(key_of(dataclasses.asdict(change)))

    def add(self, record: dict[str, object]) -> None:
        self.known[key_of(record)] = record
        with open(self.path, "a", encoding="utf-8") as out:
            print(json.dumps(record), file=out)


def read_results(path: pathlib.Path) -> list[dict[str, object]]:
    return [json.loads(line) for line in path.read_text(encoding="utf-8").splitlines() if line.endswith("}")]


def drawn(rooms: dict[str, dict[str, str]], count: int, seed: int, done: Results) -> Iterator[mutations.Change]:
    """The changes to try: from each room as many as is its share of the code. One that turns out not to
    build is replaced by the next that was drawn for its room."""
    missing = mutations.shares({room: sum(mutations.lines_of_code(source) for file, source in sources.items()
                                          if file not in mutations.TABLE_FILES)
                                for room, sources in rooms.items()}, count)
    waiting = {room: collections.deque(mutations.in_drawn_order(all_changes(sources), f"{seed} {room}"))
               for room, sources in rooms.items()}
    while any(missing[room] and waiting[room] for room in rooms):
        batch = [waiting[room].popleft() for room in rooms for _ in range(min(missing[room], len(waiting[room])))]
        # Headers last, and of these the lowest rooms' last: the most files are compiled anew for them.
        place = {room: at for at, room in enumerate(rooms)}
        yield from sorted(batch, key=lambda change: (1, -place[room_of(change.file)])
                          if change.file.endswith(".h") else (0, place[room_of(change.file)]))
        missing = dict.fromkeys(rooms, 0)
        for change in batch:
            missing[room_of(change.file)] += (done.of(change) or {}).get("result") == UNBUILDABLE


def chosen(options: argparse.Namespace, root: pathlib.Path, survivors: list[dict[str, object]],
           results: Results) -> Iterator[mutations.Change]:
    rooms = sources_of_rooms(root)
    if options.only:
        file, _, line = options.only.partition(":")
        changes = all_changes({file: (root / file).read_text(encoding="utf-8")})
        yield from [change for change in changes if not line or change.line == int(line)]
    elif survivors:
        candidates = [change for sources in rooms.values() for change in all_changes(sources)]
        for record in survivors:
            change = same_change(record, candidates)
            if change:
                yield change
            else:
                print(f"gone:         {record['file']}:{record['line']}: {record['text']}", flush=True)
    elif not options.survivors:
        yield from drawn(rooms, options.count, options.seed, results)


def told(record: dict[str, object]) -> str:
    change = mutations.Change(**{field.name: record[field.name]  # type: ignore[arg-type]
                                 for field in dataclasses.fields(mutations.Change)})
    by = f"   [{record['by']}: {record['test']} {record['how']}]" if "by" in record else ""
    return f"{record['result']}: ".ljust(14) + change.told() + by


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--count", type=int, default=300, help="how many changes that build (300)")
    parser.add_argument("--seed", type=int, default=1, help="which ones (1)")
    parser.add_argument("--only", metavar="FILE[:LINE]", help="every change of a file or a line")
    parser.add_argument("--survivors", metavar="FILE", type=pathlib.Path,
                        help="the changes that were not noticed, from a file of results")
    parser.add_argument("--list", action="store_true", help="print the changes, try none")
    parser.add_argument("--fresh", action="store_true", help="begin anew instead of going on with a run")
    parser.add_argument("--results", metavar="FILE", type=pathlib.Path,
                        help="where results go (build/mutation/results-SEED.jsonl, or again.jsonl)")
    options = parser.parse_args()

    os.nice(NICE)
    # What is ended puts the copy in order first.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("ended"))
    WORKSHOP.mkdir(parents=True, exist_ok=True)
    again = options.only or options.survivors
    path = options.results or WORKSHOP / ("again.jsonl" if again else f"results-{options.seed}.jsonl")
    # Read before the results, which may go to the same file.
    survivors = [record for record in read_results(options.survivors) if record["result"] == SURVIVED] if (
        options.survivors) else []
    if options.list:
        for change in chosen(options, PROJECT, survivors, Results(path, True)):
            print(change.told())
        return
    results = Results(path, go_on=not (again or options.fresh))
    workshop = Workshop()
    workshop.prepare()
    records = []
    # From the copy: the tree itself may be worked on meanwhile.
    for change in chosen(options, TREE, survivors, results):
        record = results.of(change)
        if record is None:
            record = workshop.try_out(change)
            results.add(record)
        print(told(record), flush=True)
        records.append(record)
    built = [record for record in records if record["result"] != UNBUILDABLE]
    left = [record for record in built if record["result"] == SURVIVED]
    print(f"\n{len(built) - len(left)} of {len(built)} changes were noticed.", *map(told, left), sep="\n")


if __name__ == "__main__":
    main()
