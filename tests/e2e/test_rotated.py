"""The rotated logs: which ones are offered, and one or all of them shown."""

import os
import re

import pytest

from harness.controls import plain
from harness.waiting import wait_until


def rows_of(word, count, date="01.03.2024"):
    return [rf"{date} 10:00:{i:02d}: Delete C:\{word}{i}.txt" for i in range(count)]


def operations(app):
    return [text.split("\\")[1] for text in app.main.source.column(1)]


def start(folder, *keys, live="logs/x.log"):
    """Starts the program on the log that wincmd.ini names, with these rotation keys."""
    env = folder.file_manager(f"LogFile={folder.windows(*live.split('/'))}", *keys)
    app = folder.start(env=env)
    app.wait_for_rows()
    return app


def refresh_enabled(app):
    return app.main.menu("View", "Refresh").enabled


def test_siblings_found_by_pattern(folder):
    folder.write("logs/x.log", rows_of("live", 3))
    folder.write("logs/x_old.log", rows_of("old", 2))
    folder.write("logs/xa.log", rows_of("a", 4))
    folder.write("logs/y.log", rows_of("other", 1))
    folder.write("logs/x.txt", rows_of("text", 1))
    logs = folder.windows("logs") + "\\"
    app = start(folder, "LogRotateLimit=-1")
    files = app.main.files
    assert files.visible
    assert files.items == ["All files", "x.log", "x_old.log", "xa.log"]
    assert files.chosen == "x.log"
    assert refresh_enabled(app)

    files.choose("x_old.log")
    assert operations(app) == ["old0.txt", "old1.txt"]
    assert app.main.log_title == logs + "x_old.log"
    assert not refresh_enabled(app)

    # The item that is chosen already: nothing is read.
    folder.write("logs/x_old.log", rows_of("new", 5))
    files.choose("x_old.log")
    assert operations(app) == ["old0.txt", "old1.txt"]

    files.choose("x.log")
    assert operations(app) == ["live0.txt", "live1.txt", "live2.txt"]
    assert refresh_enabled(app)

    # A file from elsewhere takes the choice away and leaves the list.
    folder.write("else/where.log", rows_of("else", 2))
    app.main.drop_files(folder.windows("else", "where.log"))
    assert operations(app) == ["else0.txt", "else1.txt"]
    assert files.index == -1
    assert files.items == ["All files", "x.log", "x_old.log", "xa.log"]
    # The title's folder is the live log's, as everywhere.
    assert app.main.log_title == logs + "where.log"

    # Refresh looks for the files anew; none of them is what is shown, so none is chosen.
    assert refresh_enabled(app)
    (folder.path / "logs" / "xa.log").unlink()
    app.main.choose("View", "Refresh")
    assert files.items == ["All files", "x.log", "x_old.log"]
    assert files.index == -1
    assert operations(app) == ["else0.txt", "else1.txt"]
    files.choose("x.log")
    assert operations(app) == ["live0.txt", "live1.txt", "live2.txt"]
    # The live log, opened by its path, is the list's.
    files.choose("x_old.log")
    app.main.drop_files(logs + "x.log")
    assert files.chosen == "x.log"
    assert refresh_enabled(app)

    # A file that cannot be read is not the chosen one.
    folder.write("logs/x_old.log", ["garbage"])
    files.ask("chooseFromCombo", index=2)
    app.message().press("OK")
    assert files.chosen == "x.log"
    assert operations(app) == ["live0.txt", "live1.txt", "live2.txt"]
    assert refresh_enabled(app)


@pytest.mark.usefixtures("pointer_inside")
def test_numbered_siblings_and_all_files(folder):
    folder.write("logs/x.log", rows_of("live", 2, "03.03.2024"))
    folder.write("logs/x.1.log", rows_of("one", 2, "02.03.2024") + rows_of("own", 1, "04.03.2024"))
    folder.write("logs/x.3.log", rows_of("three", 2, "02.03.2024"))
    folder.write("logs/x.4.log", rows_of("four", 1))
    app = start(folder, "LogRotateLimit=1000", "LogKeepCount=3")
    files = app.main.files
    assert files.visible
    assert files.items == ["All files", "x.log", "x.1.log", "x.3.log"]
    assert files.chosen == "x.log"

    files.choose("All files")
    # The siblings in the list's order, the live log last; a date that comes back is a day again.
    assert app.main.dates.items == ["All dates", "02.03.2024", "04.03.2024", "02.03.2024",
                                    "03.03.2024"]
    assert app.main.dates.chosen == "All dates"
    assert operations(app) == ["one0.txt", "one1.txt", "own0.txt", "three0.txt", "three1.txt",
                               "live0.txt", "live1.txt"]
    assert not refresh_enabled(app)
    assert app.main.enabled
    assert not app.find_window("  Reading")
    assert app.pointer == "arrow"
    # "All files" stands in the title only until the first row is clicked, which happens at once.
    logs = folder.windows("logs") + "\\"
    assert app.main.log_title == logs + "x.1.log"
    app.main.source.click_row(4)
    assert app.main.log_title == logs + "x.3.log"
    app.main.source.click_row(6)
    assert app.main.log_title == logs + "x.log"
    # The key does what the grayed entry does: nothing.
    folder.write("logs/x.log", rows_of("live", 5, "03.03.2024"))
    app.keys("F5")
    assert app.main.source.row_count == 7
    assert not app.find_dialog()

    # One that has gone meanwhile is told, and the others are read.
    (folder.path / "logs" / "x.1.log").unlink()
    files.choose("x.3.log")
    assert operations(app) == ["three0.txt", "three1.txt"]
    files.ask("chooseFromCombo", index=0)
    message = app.message()
    assert message.text == f"There is an error in file\n{logs}x.1.log\nLine: 0"
    message.press("OK")
    app.wait_for_rows(7)
    assert operations(app)[:2] == ["three0.txt", "three1.txt"]


def test_without_rotation_the_list_is_hidden(folder):
    folder.write("logs/x.log", rows_of("live", 3))
    folder.write("logs/x.1.log", rows_of("one", 2))
    app = start(folder, "LogRotateLimit=0", "LogKeepCount=3")
    assert not app.main.files.visible
    assert refresh_enabled(app)


def test_a_live_log_alone_shows_no_list(folder):
    folder.write("logs/x.log", rows_of("live", 3))
    app = start(folder, "LogRotateLimit=200", "LogKeepCount=30")
    assert not app.main.files.visible
    assert app.main.files.items == ["x.log"]
    # Siblings that appear later are offered after a refresh.
    folder.write("logs/x.2.log", rows_of("two", 2))
    app.keys("F5")
    assert app.main.files.visible
    assert app.main.files.items == ["All files", "x.log", "x.2.log"]


@pytest.mark.usefixtures("pointer_inside")
def test_reading_all_files_can_be_cancelled_between_files(folder):
    count = 150
    folder.write("logs/x.log", rows_of("live", 3))
    first = folder.write("logs/x.1.log", rows_of("many", 50) * 100)
    for number in range(2, count + 1):
        os.link(first, first.with_name(f"x.{number}.log"))
    app = start(folder, "LogRotateLimit=1000", f"LogKeepCount={count}")
    files = app.main.files
    files.choose("x.2.log")
    files.ask("chooseFromCombo", index=0)
    # The program answers between two files only, so few questions are asked here.
    progress = app.window("  Reading... Please wait.", 30)
    buttons = progress.controls("Button")
    assert len(buttons) == 1
    buttons[0].ask("press")
    message = question(app)
    # Nothing of the main window can be used meanwhile.
    assert not app.main.enabled
    assert plain(buttons[0].text) == "Cancel"
    assert any(re.fullmatch(r"x\.\d+\.log", text) for text in progress.texts), progress.texts
    # No: the reading goes on with the next file.
    message.button("No").ask("press")
    buttons[0].ask("press")
    wait_until(lambda: app.message(30).handle != message.handle, "the question to come again")
    # Yes: the live log alone.
    question(app).press("Yes")
    app.wait_for_rows(3)
    assert operations(app) == ["live0.txt", "live1.txt", "live2.txt"]
    assert app.main.dates.items == ["01.03.2024"]
    assert not app.find_window("  Reading")
    assert files.chosen == "x.log"
    assert app.main.source.focused
    # Answering while nothing else of the program can be used leaves the program in front.
    assert app.agent.ask("focus")["foreground"] == app.main.handle
    assert app.main.enabled
    assert app.pointer == "arrow"
    # The live log is shown, and yet it cannot be refreshed; that is meant to stay.
    assert not refresh_enabled(app)


def question(app):
    message = app.message(30)
    assert message.text == "Are you sure?"
    assert message.icon == "question"
    assert message.buttons == ["Yes", "No"]
    assert message.default_button == "No"
    return message
