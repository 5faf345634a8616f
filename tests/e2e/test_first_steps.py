"""No log to be shown: the messages as ever, and then what to do about it, in the place of the panels."""

import re

import pytest

from harness.controls import plain
from harness.filedialog import FileDialog
from harness.waiting import wait_until
from harness.wine import windows_path

NO_INI = "Cannot find Total Commander settings file [Wincmd.ini]"
NO_LOG = "Cannot find Total Commander log file."
LINE = r"01.03.2024 10:15:30: Delete C:\a.txt"
AT_LAST = 15


@pytest.fixture
def windows_ini(wine):
    """wincmd.ini in the Windows folder; not there before and after a test."""
    file = wine.windows_folder / "wincmd.ini"
    file.unlink(missing_ok=True)
    yield file
    file.unlink(missing_ok=True)


def buttons(app):
    """The captions of those in the place of the panels, where otherwise the bar without one is."""
    return [plain(button.text) for button in
            sorted(app.main.controls("Button"), key=lambda button: button.rect.left) if button.text]


def focused(app):
    return next((plain(b.text) for b in app.main.controls("Button") if b.focused), None)


def says(app, headline, *others):
    """That the place of the panels has these texts and nothing else, whatever advice there is."""
    wait_until(lambda: headline in app.main.texts, f"{headline!r}", AT_LAST)
    texts = app.main.texts
    assert set(others) <= set(texts), texts
    assert app.main.controls("SysListView32") == []
    inside = app.main.one("OrdalynPicture").rect
    for control in app.main.controls("Static") + app.main.controls("Button"):
        rect = control.rect
        assert inside.left <= rect.left and rect.right <= inside.right, control.text
        assert inside.top <= rect.top and rect.bottom <= inside.bottom, control.text
    return texts


def press_ok(app, text):
    message = app.message(30)
    assert message.text.startswith(text)
    message.press("OK")


def test_no_file_manager_is_found_then_its_settings_are_chosen(folder, windows_ini):
    app = folder.start()
    message = app.message(30)
    assert (message.text, message.icon, message.buttons) == (NO_INI, "warning", ["OK"])
    # Nothing but the messages yet.
    assert app.main.texts == [] and app.main.source.row_count == 0
    message.press("OK")
    FileDialog.of(app).cancel()
    message = app.message(30)
    assert (message.text, message.icon, message.buttons) == (NO_LOG, "error", ["OK"])
    message.press("OK")
    says(app, "Total Commander was not found")
    assert buttons(app) == ["Choose wincmd.ini...", "Open Log File..."]
    assert focused(app) == "Choose wincmd.ini..."

    # A portable one, which no registry knows: its log is named by its own folder.
    folder.write("portable/TOTALCMD.EXE", b"")
    ini = folder.write("portable/wincmd.ini", ["[Configuration]", "UseLongNames=1"], "cp1252")
    app.keys("Enter")
    dialog = FileDialog.of(app)
    assert dialog.file_name.lower() == "wincmd.ini"
    dialog.choose(windows_path(ini))
    # Logging is off: nothing is reported, it is said what to do.
    texts = says(app, "Total Commander writes no log")
    assert any("Configuration > Options > Log file" in text for text in texts)
    assert buttons(app) == ["Look Again"]
    assert focused(app) == "Look Again"
    assert not app.find_dialog()
    log = folder.write("portable/tc.log", [LINE])
    folder.write("portable/wincmd.ini",
                 ["[Configuration]", r"LogFile=%COMMANDER_PATH%\tc.log", "LogOptions=7199"], "cp1252")
    app.keys("Alt+L")
    app.wait_for_rows(1)
    assert app.main.texts == [] and buttons(app) == []
    assert app.main.source.focused
    assert app.main.log_title == windows_path(log)
    app.close()
    common = folder.settings["Common"]
    assert common["TCInstallDir"] == folder.windows("portable")
    # The next start finds all of it.
    folder.start().wait_for_rows(1)


def test_a_log_that_does_not_begin_before_the_next_operation_shows_itself(folder):
    log = folder.path / "log of the day.log"
    app = folder.start(env=folder.file_manager(f"LogFile={windows_path(log)}", "LogOptions=7199"))
    press_ok(app, NO_LOG)
    says(app, "The log is not there yet", windows_path(log))
    path = next(c for c in app.main.controls("Static") if c.text == windows_path(log))
    assert path.tool_tip == windows_path(log)
    assert buttons(app) == ["Look Again", "Follow the Log"]
    # As Refresh does.
    app.keys_without_waiting("Enter")
    press_ok(app, NO_LOG)
    app.keys("Tab")
    assert focused(app) == "Follow the Log"
    # No panel is behind them.
    app.keys("Tab")
    assert app.main.dates.focused
    app.keys("Shift+Tab", "Space")
    assert app.main.menu("View", "Follow the Log").checked
    assert buttons(app) == ["Look Again"]
    assert focused(app) == "Look Again"
    # The mark of its encoding, and later a line.
    log.write_bytes(b"\xef\xbb\xbf")
    app.main.choose("View", "Two Panels")
    app.main.choose("View", "Status Bar")
    app.main.place(100, 100, 560, 420)
    says(app, "The log is not there yet")
    with open(log, "ab") as file:
        file.write(LINE.encode() + b"\r\n")
    app.wait_for_rows(1)
    assert app.main.texts == []
    assert app.main.log_title == windows_path(log)
    # The title bar is too narrow for the whole path.
    assert re.fullmatch(r"Ordalyn \S+ RC 1 - Z:.*…\\log of the day\.log", app.main.text)
    wait_until(lambda: app.main.source.focused, "the focus", AT_LAST)
    app.main.choose("View", "Two Panels")
    assert app.main.target.row_count == 1
    app.close()
    # That it was empty at the start is said, too.
    log.write_bytes(b"")
    app = folder.start(env=folder.file_manager(f"LogFile={windows_path(log)}", "LogOptions=7199"))
    press_ok(app, "There is an error in file")
    texts = says(app, "The log is empty", windows_path(log))
    assert any("will be shown here as soon as" in text for text in texts)


def test_a_log_elsewhere_and_one_that_cannot_be_read_in_colours_and_another_language(folder):
    folder.write_settings(Ordalyn={"UseDefaultLanguage": 0, "ForegroundColor": 0xE0E0E0,
                                   "BackgroundColor": 0x202020},
                          Common={"LanguageFile": folder.windows("Ordalyn", "Languages",
                                                                 "German.lng")})
    gone = "X:\\R&D\\logs\\totalcmd.log"
    app = folder.start(env=folder.file_manager(f"LogFile={gone}", "LogOptions=7199"))
    app.message(30).press("OK")
    says(app, "Der Ordner des Protokolls ist nicht da", gone)
    assert buttons(app) == ["Erneut suchen", "Protokoll öffnen..."]
    bad = folder.write("bad.log", ["garbage"])
    folder.file_manager(f"LogFile={windows_path(bad)}", "LogOptions=7199")
    app.keys_without_waiting("F5")
    app.message(30).press("OK")
    says(app, "Das Protokoll ließ sich nicht lesen", windows_path(bad))
    # Another log, by the button.
    other = folder.write("other.log", [LINE])
    app.keys_without_waiting("Alt+P")
    FileDialog.of(app).choose(windows_path(other))
    app.wait_for_rows(1)
    assert app.main.texts == [] and buttons(app) == []


def test_a_file_that_the_program_is_started_with(folder):
    app = folder.start(folder.windows("missing.log"), env=folder.file_manager("LogOptions=7198"))
    press_ok(app, NO_LOG)
    says(app, "This file does not exist", folder.windows("missing.log"))
    assert buttons(app) == ["Look Again", "Open Log File..."]
    assert app.main.text.endswith(" RC 1 - ")
