"""Logs opened by the user: the open dialog, a dropped file, and the list of recent files."""

import shutil

import pytest

from harness.filedialog import FileDialog

LINE = r"01.03.2024 10:15:30: Delete C:\{}.txt"
MENU = ("File", "Recent Files")


@pytest.fixture
def logs(wine):
    """A folder with a short name on drive C:, so that captions of the menu are known."""
    path = wine.folder / "drive_c" / "recent-logs"
    shutil.rmtree(path, ignore_errors=True)
    for name in ("a", "b", "c", "d", "totalcmd-with-a-long-name-of-its-own"):
        file = path / f"{name}.log"
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(LINE.format(name) + "\r\n")
    yield path
    shutil.rmtree(path, ignore_errors=True)


def captions(app):
    return ["-" if entry.separator else entry.caption
            for entry in app.main.menu(*MENU).entries if entry.separator or entry.caption]


def choose(app, number, name):
    """Chooses a recent file; a message box may come of it."""
    entry = app.main.menu(*MENU).entries[number - 1]
    assert name in entry.name
    app.main.choose(*MENU, entry.name)


def stored(folder):
    return {key: value for key, value in folder.settings.get("Ordalyn", {}).items()
            if key.startswith("RecentFiles")}


def shown(app):
    return app.main.source.column(1)


def test_the_list_keeps_what_was_opened(folder, logs):
    folder.write_settings(Common={"NumberOfRecentFiles": 4},
                          Ordalyn={"RecentFiles1": r"C:\recent-logs\a.log",
                                   "RecentFiles2": r"%E2E_LOGS%\b.log",
                                   "RecentFiles3": r"C:\recent-logs\gone.log",
                                   "RecentFiles4": r"C:\recent-logs\d.log"})
    env = {"E2E_LOGS": r"C:\recent-logs",
           **folder.file_manager(f"LogFile={folder.windows('live.log')}", "LogRotateLimit=-1")}
    folder.write("live.log", [LINE.format("live")])
    folder.write("live_old.log", [LINE.format("old")])
    app = folder.start(env=env)
    app.wait_for_rows(1)
    # The log that was found at the start is not one that the user opened.
    assert captions(app) == [r"&1 C:\recent-logs\a.log", r"&2 C:\recent-logs\b.log",
                             r"&3 C:\recent-logs\gone.log", r"&4 C:\recent-logs\d.log",
                             "-", "Clear List"]
    assert app.main.files.chosen == "live.log"

    choose(app, 2, "b.log")
    assert shown(app) == [r"Delete C:\b.txt"]
    assert app.main.files.index == -1
    assert app.main.files.items == ["All files", "live.log", "live_old.log"]
    assert captions(app)[:4] == [r"&1 C:\recent-logs\b.log", r"&2 C:\recent-logs\a.log",
                                 r"&3 C:\recent-logs\gone.log", r"&4 C:\recent-logs\d.log"]
    assert stored(folder) == {"RecentFiles1": r"C:\recent-logs\b.log",
                              "RecentFiles2": r"C:\recent-logs\a.log",
                              "RecentFiles3": r"C:\recent-logs\gone.log",
                              "RecentFiles4": r"C:\recent-logs\d.log"}

    # A file that has gone is told and dropped, and the last key goes with it.
    choose(app, 3, "gone.log")
    message = app.message()
    assert message.text == ("Cannot find this file C:\\recent-logs\\gone.log\n\n"
                            "Please verify that the correct path and file name are given.")
    assert message.icon == "warning"
    assert message.buttons == ["OK"]
    message.press("OK")
    assert shown(app) == [r"Delete C:\b.txt"]
    assert captions(app) == [r"&1 C:\recent-logs\b.log", r"&2 C:\recent-logs\a.log",
                             r"&3 C:\recent-logs\d.log", "-", "Clear List"]
    assert stored(folder) == {"RecentFiles1": r"C:\recent-logs\b.log",
                              "RecentFiles2": r"C:\recent-logs\a.log",
                              "RecentFiles3": r"C:\recent-logs\d.log"}

    # A dropped file opens like a chosen one; the first of several. In other letters it is the same.
    app.main.drop_files(r"C:\RECENT-LOGS\A.LOG", r"C:\recent-logs\c.log")
    assert shown(app) == [r"Delete C:\a.txt"]
    assert captions(app)[:3] == [r"&1 C:\RECENT-LOGS\A.LOG", r"&2 C:\recent-logs\b.log",
                                 r"&3 C:\recent-logs\d.log"]
    # What cannot be read is not remembered.
    (logs / "bad.log").write_bytes(b"garbage\r\n")
    app.main.ask("dropFiles", paths=[r"C:\recent-logs\bad.log"])
    app.message().press("OK")
    assert len(stored(folder)) == 3
    # A long path is shortened in the menu, not in the file; the list holds no more than its limit.
    app.main.drop_files(r"C:\recent-logs\c.log")
    app.main.drop_files(r"C:\recent-logs\totalcmd-with-a-long-name-of-its-own.log")
    assert captions(app)[0] == r"&1 C:\recent-logs\...\e-of-its-own.log"
    assert [text.split("\\")[-1] for text in captions(app)[1:4]] == ["c.log", "A.LOG", "b.log"]
    assert len(stored(folder)) == 4

    # Inside the program's folder the path is stored in its symbolic form.
    shutil.copy(logs / "d.log", folder.program / "d.log")
    app.main.drop_files(folder.windows("Ordalyn", "d.log"))
    assert stored(folder)["RecentFiles1"] == r"velmordane:\d.log"
    choose(app, 1, "d.log")
    assert shown(app) == [r"Delete C:\d.txt"]
    before = stored(folder)

    # Clearing asks first, and No is the answer that Enter gives.
    app.main.choose(*MENU, "Clear List")
    message = app.message()
    assert (message.text, message.icon) == ("Are you sure?", "question")
    assert message.buttons == ["Yes", "No"]
    assert message.default_button == "No"
    app.keys("Enter")
    assert not app.find_dialog()
    assert stored(folder) == before
    assert len(captions(app)) == 6
    app.main.choose(*MENU, "Clear List")
    app.message().press("Yes")
    assert stored(folder) == {}
    empty_list(app)
    app.close()

    app = folder.start(env=env)
    app.wait_for_rows(1)
    empty_list(app)


def empty_list(app):
    assert captions(app) == ["No Recent Files", "-", "Clear List"]
    entries = app.main.menu(*MENU)
    assert not entries["No Recent Files"].enabled
    assert not entries["Clear List"].enabled


def test_the_open_dialog(show, folder, logs):
    app = show([LINE.format("first")])
    before = app.main.source.rows(), app.main.text

    app.keys("Ctrl+O")
    dialog = FileDialog.of(app)
    assert dialog.title == "Open"
    assert dialog.file_name == ""
    assert dialog.file_types == ["TC Log File(*.log)", "All Files (*.*)"]
    # It starts where the log is that is shown.
    assert "totalcmd.log" in dialog.files
    # The window behind it takes neither keys nor files.
    assert not app.main.enabled
    app.main.drop_files(r"C:\recent-logs\a.log")
    dialog.cancel()
    assert (app.main.source.rows(), app.main.text) == before
    assert stored(folder) == {}

    app.main.choose("File", "Open...")
    FileDialog.of(app).choose(r"C:\recent-logs\b.log")
    app.settle()
    assert shown(app) == [r"Delete C:\b.txt"]
    assert stored(folder) == {"RecentFiles1": r"C:\recent-logs\b.log"}
    app.main.choose("File", "Open...")
    dialog = FileDialog.of(app)
    assert "a.log" in dialog.files and "totalcmd.log" not in dialog.files
    dialog.cancel()
    assert shown(app) == [r"Delete C:\b.txt"]
