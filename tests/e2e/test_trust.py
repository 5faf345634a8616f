"""What lies beside the program, and what texts hold, gets no hold of it."""

import re
import shutil

from harness.dialogs import open_filter
from harness.filedialog import FileDialog
from harness.folder import tools_folder

LOG = [r"01.03.2024 10:15:30: Copy C:\a.txt -> D:\a.txt"]
# Libraries of the system that not every Windows protects by their names: the program asks for the
# first two itself, for the others the system does on its behalf.
PLANTED = ("uxtheme", "dwmapi", "version", "propsys", "cryptbase", "oleacc", "textinputframework")


def test_no_library_is_taken_from_the_program_s_folder(show, folder):
    for name in PLANTED:
        shutil.copy(tools_folder() / "ordalyn_e2e_planted.dll", folder.program / f"{name}.dll")
    app = show(LOG)
    assert app.main.source.rows() == [("10:15:30", r"Copy C:\a.txt ")]
    app.keys("Ctrl+O")
    FileDialog.of(app).cancel()
    assert [file.name for file in folder.program.glob("*.loaded")] == []


def test_texts_of_a_language_are_no_formats_keys_or_lines(folder):
    hostile = {141: "&View\tAlt+F4", 4020: "-", 150: "%n%s%s%p&Options\tCtrl+Q\tF5",
               4010: "\t\t%i %n%s%s R&D", 4030: "%s%n&&\t-", 106: "-"}
    file = folder.write("Ordalyn/Languages/Hostile.lng", ["[UserLanguage]"] + [
        f"{number}={text}" for number, text in hostile.items()])
    folder.write_settings(Ordalyn={"UseDefaultLanguage": 0},
                          Common={"LanguageFile": folder.windows(file.relative_to(folder.path))})
    app = folder.show(LOG)
    view = app.main.menu("View Alt+F4").entries
    assert {entry.caption: entry.shortcut for entry in view if not entry.separator
            and ("%" in entry.caption or entry.caption == "-")} == {
        "-": "F5", "%n%s%s%p&Options Ctrl+Q F5": ""}
    assert [entry.separator for entry in view].count(True) == 3
    # A tab at its start would put the text into the middle or to the right edge.
    assert re.fullmatch(r" *1 %n%s%s R&D *", app.main.status[0])
    assert "\t" not in app.main.status[0]


def test_names_of_logs_are_shown_as_they_stand(folder):
    name = "R&D &x %n%s.log"
    folder.write_settings(Ordalyn={"RecentFiles1": f"C:\\{name}"})
    app = folder.show(LOG, name)
    assert name in app.main.text
    entry = app.main.menu("File", "Recent Files").entries[0]
    assert entry.caption == "&1 C:\\R&&D &&x %n%s.log" and entry.shortcut == ""


def test_a_remembered_name_with_a_tab_brings_no_keys(folder):
    folder.write_settings(Ordalyn={"RecentFiles1": "C:\\a\tCtrl+Q.log"})
    app = folder.show(LOG)
    entries = app.main.menu("File", "Recent Files").entries
    assert [entry.shortcut for entry in entries if "Ctrl+Q" in entry.caption] == [""]


def test_words_of_the_file_manager_are_texts(folder):
    words = ["Deutsch (German)", "codepage=1252", '1802="Copy\tCtrl+Q %n%s"', '1806="-"']
    folder.write("totalcmd/Language/WCMD_DEU.LNG", words, encoding="cp1252")
    log = folder.write("totalcmd.log", LOG)
    app = folder.start(log, env=folder.file_manager("languageini=WCMD_DEU.LNG"))
    app.wait_for_rows(1)
    dialog = open_filter(app)
    entries = [entry for entry in dialog.drop_down(0).entries if not entry.separator]
    assert [(entry.caption, entry.shortcut) for entry in entries] == [
        ("Copy Ctrl+Q %n%s", ""), ("-", "")]
    app.keys("Escape")
