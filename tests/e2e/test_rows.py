"""Several rows at once: selecting them, taking them along, and those of operations that failed."""

import collections
import subprocess

import pytest

from harness.controls import plain
from harness.filedialog import FileDialog
from harness.waiting import wait_until
from harness.wine import windows_path

LOG = [
    r"01.03.2024 10:15:30: Copy: C:\Пётр и 報告.txt -> D:\ελληνικά\Пётр.txt",
    r"01.03.2024 10:15:31: Delete: C:\b, c.txt",
    r"01.03.2024 10:15:32: Copy(Error: Disk full): C:\c.txt -> D:\c.txt",
    r"02.03.2024 10:15:33: Move: C:\d.txt -> D:\d.txt",
    r"02.03.2024 10:15:34: Move: Skipped: C:\e.txt -> D:\e.txt",
]
TABLE = [
    ["01.03.2024", "10:15:30", "Copy", r"C:\Пётр и 報告.txt", r"D:\ελληνικά\Пётр.txt"],
    ["01.03.2024", "10:15:31", "Delete", r"C:\b, c.txt", ""],
    ["01.03.2024", "10:15:32", "Copy (Error: Disk full)", r"C:\c.txt", r"D:\c.txt"],
    ["02.03.2024", "10:15:33", "Move", r"C:\d.txt", r"D:\d.txt"],
    ["02.03.2024", "10:15:34", "Move (Skipped)", r"C:\e.txt", r"D:\e.txt"],
]
NAMES = ["Date", "Time", "Operation", "Source", "Target"]


def between_tabs(*rows):
    return "".join("\t".join(row) + "\r\n" for row in rows)


@pytest.fixture
def app(show):
    app = show(LOG)
    app.main.dates.choose("All dates")
    app.main.source.focus()
    return app


def selected(app):
    """The rows that are selected, in both panels the same ones."""
    rows = app.main.source.selected
    assert app.main.target.selected == rows
    return rows


def click_with(app, key, panel, row):
    """The pointer goes there first: the display forgets a key that is held when it moves."""
    bounds = panel.row_rect(row)
    app.point_at(bounds.left + 12, (bounds.top + bounds.bottom) // 2)
    app.key_down(key)
    app.mouse(("down", "left"), ("up", "left"))
    app.settle()
    app.key_up(key)


def test_selecting_several_and_copying_them(app):
    app.main.source.click_row(1)
    click_with(app, "Shift", app.main.source, 3)
    wait_until(lambda: selected(app) == [1, 2, 3], "three rows")
    click_with(app, "Ctrl", app.main.target, 2)
    wait_until(lambda: selected(app) == [1, 3], "two rows")
    app.keys("Ctrl+Shift+R")
    assert app.clipboard == between_tabs(TABLE[1], TABLE[3])
    app.main.source.click_row(3)
    app.keys("Shift+Down")
    assert selected(app) == [3, 4]
    app.keys("Ctrl+A")
    assert selected(app) == [0, 1, 2, 3, 4]
    # On one of them the menu is for all of them; the other commands copy the one that was clicked.
    bounds = app.main.source.row_rect(0)
    app.click(bounds.left + 12, (bounds.top + bounds.bottom) // 2, "right")
    app.pop_up().choose("Copy Rows")
    assert app.clipboard == between_tabs(*TABLE)
    app.keys("Ctrl+C")
    assert app.clipboard.startswith(r"Copy: C:\Пётр")
    app.keys("Down")
    assert selected(app) == [1]


def save_as(app, path):
    app.keys_without_waiting("Ctrl+S")
    dialog = FileDialog.of(app)
    assert dialog.title == "Save shown rows as"
    dialog._enter(windows_path(path))
    dialog._button("Save").ask("press")
    return dialog


def overwrite(app, dialog):
    """Answers the question of the dialog, which then ends."""
    def question():
        return [each for window in app.windows() if window["handle"] != dialog.handle
                for each in app.window_of(window["handle"]).controls("Button")
                if plain(each.text) == "Yes"]
    wait_until(question, "the question")[0].ask("press")
    wait_until(lambda: not app.has_window(dialog.handle), "the end of the dialog")


def test_saving_what_is_shown(app, folder):
    path = folder.path / "Übersicht.txt"
    save_as(app, path)
    wait_until(path.exists, "the file")
    app.settle()
    assert path.read_bytes() == ("\ufeff" + between_tabs(NAMES, *TABLE)).encode()

    # The dialog asks before it overwrites, and the day counts.
    app.main.dates.choose("02.03.2024")
    overwrite(app, save_as(app, path))
    wait_until(lambda: path.read_bytes() == ("\ufeff" + between_tabs(NAMES, *TABLE[3:])).encode(),
               "the rows of one day")

    path = folder.path / "rows.csv"
    app.main.dates.choose("01.03.2024")
    save_as(app, path)
    wait_until(path.exists, "the other file")
    app.settle()
    assert path.read_bytes().decode("utf-8-sig").split("\r\n")[2] == \
        r'01.03.2024,10:15:31,Delete,"C:\b, c.txt",'
    assert sorted(each.suffix for each in folder.path.iterdir() if each.name.startswith("rows")) == \
        [".csv"]


def test_no_log_is_overwritten(app, folder):
    log = folder.path / "totalcmd.log"
    before = log.read_bytes()
    overwrite(app, save_as(app, log))
    message = app.message()
    assert message.text.startswith("This file is one of the file manager's logs and stays as it is.")
    message.press("OK")
    assert log.read_bytes() == before


def colours(display, panel, row, tmp_path):
    """How often each colour is seen in the row."""
    bounds = panel.row_rect(row)
    picture = tmp_path / "row.png"
    display.screenshot(picture, (bounds.left, bounds.top, 300, bounds.bottom - bounds.top))
    text = subprocess.run(["convert", str(picture), "txt:-"], check=True, capture_output=True,
                          text=True).stdout
    return collections.Counter(line.split()[2][:7] for line in text.splitlines()[1:])


RED = "#A00000"


def test_failed_operations_are_red_and_can_be_alone(app, display, tmp_path):
    main = app.main
    main.source.click_row(0)

    def red(panel, row):
        return colours(display, panel, row, tmp_path)[RED] > 10

    wait_until(lambda: red(main.source, 2), "a red row")
    assert [red(main.source, row) for row in range(5)] == [False, False, True, False, True]
    assert [red(main.target, row) for row in range(5)] == [False, False, True, False, True]
    # A selected row has the colours of the selection, also as one of several.
    main.source.click_row(2)
    click_with(app, "Shift", main.source, 4)
    wait_until(lambda: not red(main.source, 4), "no red in the selection")
    assert not red(main.source, 2)
    back = [colours(display, main.source, row, tmp_path).most_common(1)[0][0] for row in (1, 3, 4)]
    assert back[0] != back[1] == back[2]

    app.keys("Ctrl+E")
    wait_until(lambda: main.status[0] == "2 failed operation(s)  ", "the count")
    assert [row[1].strip() for row in main.source.rows()] == \
        [r"Copy(Error: Disk full): C:\c.txt", r"Move: Skipped: C:\e.txt"]
    assert selected(app) == [0, 1]
    assert main.menu("View", "Failed Operations Only").checked
    main.dates.choose("02.03.2024")
    assert main.status[0] == "1 failed operation(s)  "
    main.choose("View", "Failed Operations Only")
    assert main.status[0] == "2 Operation(s)  "
    assert main.source.row_count == 2
