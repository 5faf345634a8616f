"""The keys that every Windows user tries; they do what the menu entry does, and no more."""

import pytest

from harness.filedialog import FileDialog
from harness.waiting import wait_until

pytestmark = pytest.mark.all_processors

LOG = [rf"01.03.2024 10:00:{i:02d}: Copy C:\{i}.txt -> D:\{i}.txt" for i in range(20)]
SHORTCUTS = {("File", "Open..."): "Ctrl+O", ("File", "Exit"): "Alt+F4",
             ("Search", "Find..."): "Ctrl+F", ("Search", "Find Next"): "F3",
             ("Search", "Filter..."): "Ctrl+L", ("View", "Refresh"): "F5",
             ("Help", "Help Topics"): "F1"}
EVERY_KEY = ("F5", "F1", "Ctrl+O", "Ctrl+F", "F3", "Ctrl+L", "Ctrl+C", "Ctrl+Alt+C")


def titles(app):
    return [window["text"] for window in app.windows()]


def test_the_menu_shows_the_keys(show):
    app = show(LOG)
    assert {path: app.main.menu(*path).shortcut for path in SHORTCUTS} == SHORTCUTS


def test_keys_do_what_the_menu_does(show, folder):
    for file in folder.program.glob("Readme*.chm"):
        file.unlink()
    app = show(LOG)
    app.main.source.click_row(0)

    # Grayed entries take no keys.
    assert not app.main.menu("Search", "Find Next").enabled
    app.keys("F3")
    assert len(app.windows()) == 1

    app.keys("F1")
    message = app.message()
    assert message.text == "File not found."
    message.press("OK")

    app.keys("Ctrl+O")
    FileDialog.of(app).cancel()

    with open(folder.path / "totalcmd.log", "ab") as log:
        log.write(b"01.03.2024 10:01:00: Delete C:\\new.txt\r\n")
    app.keys("F5")
    assert app.main.source.row_count == 21
    assert app.main.source.selected == [20]

    # Both dialogs are opened by key; neither keeps the window from being used.
    app.keys("Ctrl+F")
    find = app.window("Find")
    find.one("ComboBox").type("5.txt")
    app.keys("Enter")
    wait_until(lambda: app.main.source.selected == [5], "the first row that is found")
    app.keys("Escape")
    assert not app.find_window("Find")
    assert app.main.menu("Search", "Find Next").enabled
    app.main.source.focus()
    app.keys("F3")
    assert app.main.source.selected == [15]

    app.keys("Ctrl+L")
    filters = app.window("Filter")
    assert app.main.enabled
    app.keys("Escape")
    wait_until(lambda: not app.has_window(filters.handle), "the filter dialog to go")

    # The letters alone do nothing.
    app.main.source.focus()
    app.keys("o", "f", "l")
    assert titles(app) == [app.main.text]


@pytest.mark.parametrize("modal", ["about", "message", "file dialog", "options"])
def test_no_key_fires_while_a_dialog_is_modal(show, folder, modal):
    for file in folder.program.glob("Readme*.chm"):
        file.unlink()
    app = show(LOG)
    app.main.source.click_row(3)
    app.clipboard = "before"
    with open(folder.path / "totalcmd.log", "ab") as log:
        log.write(b"01.03.2024 10:01:00: Delete C:\\new.txt\r\n")
    if modal == "about":
        app.main.choose("Help", "About...")
        handle = app.window("About").handle
    elif modal == "options":
        app.main.choose("View", "Options...")
        handle = app.window("Options").handle
    elif modal == "message":
        app.main.choose("Help", "Help Topics")
        handle = app.message().handle
    else:
        app.main.choose("File", "Open...")
        handle = FileDialog.of(app).handle
    assert not app.main.enabled
    before = sorted(w["handle"] for w in app.windows())
    keys = EVERY_KEY
    if modal in ("message", "file dialog"):
        # The system's dialogs have a use for Ctrl+C, and the file dialog for F5.
        keys = [key for key in keys
                if not key.endswith("+C") and (key != "F5" or modal == "message")]
    else:
        # They have pages of the help of their own.
        keys = [key for key in keys if key != "F1"]
    app.keys(*keys)
    assert sorted(w["handle"] for w in app.windows()) == before
    assert app.has_window(handle)
    assert app.main.source.row_count == 20
    assert app.clipboard == "before"
    assert not app.has_pop_up
    # Neither does the end of the program: Alt+F4 ends the dialog.
    app.keys("Alt+F4")
    wait_until(lambda: not app.has_window(handle), "the dialog to go")
    app.settle()
    assert app.exit_code is None
    assert app.main.enabled
    assert app.main.source.row_count == 20
    app.keys("F5")
    assert app.main.source.row_count == 21
    app.keys("Alt+F4")
    app.wait_for_end()
    assert app.exit_code == 0


def test_a_dropped_log_opens(show, folder):
    app = show(LOG)
    other = folder.write("Журнал.log", LOG[:2])
    app.main.drop_files(folder.windows(other.name))
    assert app.main.source.row_count == 2
    assert app.main.log_title == "Журнал.log"
    # A bad one is told, and the window goes on.
    app.main.ask("dropFiles", paths=[folder.windows(folder.write("bad.log", ["bad"]).name)])
    message = app.message()
    assert message.text == f"There is an error in file\n{folder.windows('bad.log')}\nLine: 1"
    message.press("OK")
    app.main.drop_files(folder.windows("totalcmd.log"))
    assert app.main.source.row_count == 20
