"""Language files in a code page, which the script of the font names."""

import re

import pytest

from harness.dialogs import FilterDialog
from harness.wine import PROJECT

LOG = ["01.03.2024 10:15:30: Copy C:\\a.txt -> D:\\a.txt"]


@pytest.mark.parametrize("language, code_page, script", [
    ("Russian", "cp1251", 204), ("Greek", "cp1253", 161), ("Japanese", "cp932", 128),
    # UTF-8 without a mark is known by itself.
    ("Russian", "utf-8", 1), ("Japanese", "utf-8", 204)])
def test_the_script_of_the_font_says_how_a_language_file_is_read(folder, language, code_page,
                                                                 script):
    """The file's bytes mean other letters in the system's own code page."""
    whole = (PROJECT / "languages" / f"{language}.lng").read_bytes().decode("utf-8-sig")
    # Letters of other languages are in the comments only.
    lines = [line for line in whole.splitlines() if not line.startswith(";")]
    texts = dict(line.split("=", 1) for line in lines if re.match(r"\d+=", line))
    folder.write("Ordalyn/Languages/Own.lng", lines, encoding=code_page)
    folder.write_settings(
        Ordalyn={"UseDefaultLanguage": 0, "FontScript": script},
        Common={"LanguageFile": folder.windows("Ordalyn", "Languages", "Own.lng")})
    app = folder.show(LOG)
    assert app.main.source.headers[:2] == [texts["4000"], texts["4001"]]
    assert [menu.caption for menu in app.main.menus] == [
        texts[number] for number in ("101", "250", "141", "161")]
    assert app.main.status[0] == texts["4010"].replace("%i", "1") + "  "


@pytest.mark.parametrize("encoding", ["cp1251", "utf-8"])
def test_the_words_of_the_file_manager_are_in_the_code_page_that_their_file_names(folder, encoding):
    folder.write("totalcmd/Language/WCMD_RUS.LNG",
                 ["Russian (Русский)", "codepage=1251", '1802="Копирование"', '1803="Перемещение"'],
                 encoding=encoding)
    folder.write("totalcmd/wincmd.ini", ["[Configuration]", "LanguageIni=WCMD_RUS.LNG"])
    folder.write_settings(Ordalyn={"LoggingID": "1802,1803"})
    log = folder.write("own.log", LOG)
    app = folder.start(f'"{folder.windows(log.name)}"',
                       env={"Commander_Path": folder.windows("totalcmd"),
                            "Commander_INI": folder.windows("totalcmd", "wincmd.ini")})
    app.wait_for_rows()
    app.keys("Ctrl+L")
    dialog = FilterDialog(app, app.window("Filter").handle)
    assert dialog.words() == ["Копирование", "Перемещение"]
