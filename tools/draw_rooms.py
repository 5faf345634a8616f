#!/usr/bin/env python3
"""Draws the rooms of src/ from their table, src/rooms.txt, into docs/architecture.md, between the two
comments that mark the place. What a room is for comes from the comment at the top of its CMakeLists.txt.

    draw_rooms.py           writes the picture
    draw_rooms.py --check   ends with 1 when the picture there is another one
"""

import pathlib
import sys

from check_includes import read_table

PROJECT = pathlib.Path(__file__).resolve().parents[1]
DOCUMENT = PROJECT / "docs" / "architecture.md"
BEGIN = "<!-- rooms: made by tools/draw_rooms.py from src/rooms.txt -->"
END = "<!-- end of rooms -->"


def read_parts(path):
    """The parts of the table: [(title, rooms)]. A comment behind an empty line and right above a row
    begins a part; its title ends at the first colon or full stop. Other comments are notes."""
    parts = [("", [])]
    comment = ""
    before = ""
    for line in path.read_text(encoding="utf-8").splitlines():
        behind_gap, before = not before.strip(), line
        if line.startswith("#"):
            if behind_gap:
                comment = line.lstrip("# ")
            continue
        if line.strip():
            if comment:
                parts.append((comment.split(":")[0].split(".")[0], []))
            parts[-1][1].append(line.partition(":")[0].strip())
        comment = ""
    return [part for part in parts if part[1]]


def direct(table):
    """The table without the arrows that follow from others: a room that may use another by way of a
    third has no arrow of its own to it."""
    reached = {}
    found = {}
    # Bottom first, so that what is below a room is known when the room is looked at.
    for room, used in table.items():
        below = {far for near in used for far in reached[near]}
        found[room] = [near for near in used if near not in below]
        reached[room] = below | set(used)
    return found


def purpose(folder):
    """The comment at the top of a room's CMakeLists.txt as one line."""
    words = []
    for line in (folder / "CMakeLists.txt").read_text(encoding="utf-8").splitlines():
        if not line.startswith("#"):
            break
        words += line[1:].split()
    return " ".join(words)


def picture(sources):
    table = read_table(sources / "rooms.txt")
    parts = read_parts(sources / "rooms.txt")
    arrows = direct(table)
    lines = ["An arrow leads to what a room rests on. Arrows that follow from others are left out here;",
             "`src/rooms.txt` has all of them.", "", "```mermaid", "flowchart TD"]

    def node(room):
        return room.replace("/", "_")
    for number, (title, rooms) in enumerate(parts):
        lines.append(f'  subgraph part{number}["{title}"]')
        lines += [f'    {node(room)}["{room}"]' for room in rooms]
        lines.append("  end")
    lines += [f"  {node(room)} --> {node(other)}" for room in table for other in arrows[room]]
    lines += ["```", ""]
    for title, rooms in parts:
        lines += [f"| {title} | what is in it | rests on |", "|---|---|---|"]
        for room in rooms:
            below = ", ".join(f"`{other}`" for other in arrows[room]) or "nothing"
            lines.append(f"| `{room}` | {purpose(sources / room)} | {below} |")
        lines.append("")
    return "\n".join(lines[:-1])


def with_picture(document, drawn):
    before, begin, rest = document.partition(BEGIN)
    _, end, after = rest.partition(END)
    if not begin or not end:
        raise SystemExit(f"the document has no place for the rooms: {BEGIN} ... {END}")
    return f"{before}{BEGIN}\n{drawn}\n{END}{after}"


def main():
    old = DOCUMENT.read_text(encoding="utf-8")
    new = with_picture(old, picture(PROJECT / "src"))
    if sys.argv[1:] == ["--check"]:
        return 1 if new != old else 0
    DOCUMENT.write_text(new, encoding="utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main())
