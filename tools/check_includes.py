#!/usr/bin/env python3
"""Checks every #include of src/ against the table of rooms, src/rooms.txt, and names each one that
the table does not allow. Ends with 1 when there is any.

    check_includes.py [SOURCE_FOLDER]
"""

import pathlib
import re
import sys

SOURCES = pathlib.Path(__file__).resolve().parents[1] / "src"
INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"]+)"')


def read_table(path):
    """room -> the rooms that it may include, in the table's order."""
    table = {}
    for line in path.read_text(encoding="utf-8").splitlines():
        if line.strip() and not line.startswith("#"):
            room, _, used = line.partition(":")
            table[room.strip()] = used.split()
    return table


def wrong_includes(sources):
    """A sentence for each include that is not allowed, and for each file that is in no room."""
    table = read_table(sources / "rooms.txt")
    found = []
    rooms_seen = []
    for room, used in table.items():
        found += [f"rooms.txt: {room} is to use {other}, which does not stand above it in the table"
                  for other in used if other not in rooms_seen]
        rooms_seen.append(room)
    for file in sorted(sources.rglob("*")):
        if file.suffix not in (".h", ".cpp", ".inc"):
            continue
        room = file.parent.relative_to(sources).as_posix()
        where = file.relative_to(sources.parent).as_posix()
        if room not in table:
            found.append(f"{where}: {room} is not in the table of rooms")
            continue
        for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), 1):
            match = INCLUDE.match(line)
            if not match:
                continue
            other = pathlib.PurePosixPath(match.group(1)).parent.as_posix()
            if not (sources / match.group(1)).is_file():
                found.append(f"{where}:{number}: there is no header {match.group(1)} in src/")
            elif other != room and other not in table[room]:
                found.append(f"{where}:{number}: {room} may not include {match.group(1)}")
    return found


def main():
    sources = pathlib.Path(sys.argv[1]).resolve() if len(sys.argv) > 1 else SOURCES
    found = wrong_includes(sources)
    print("\n".join(found), end="\n" if found else "")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
