"""A Russian system: code page 1251, the file manager's words and log in it or in UTF-8, and an
interface language file in it."""

import pytest

from harness.controls import plain
from harness.dialogs import FindDialog, FilterDialog
from harness.waiting import wait_until

RUSSIAN = "ru_RU.UTF-8"
WORDS = ["Russian (Русский)", "codepage=1251", '1800="Запуск программы"', '1802="Копирование"',
         '1803="Перемещение"', '1806="Удаление"', '1807="Удаление каталога"',
         '1901="Неудачное завершение"']
LOG = [
    r"01.03.2024 10:00:00: Запуск программы (аня/ДОМ)",
    r"01.03.2024 10:15:30: Копирование C:\Отчёт.txt -> D:\Архив\Отчёт.txt",
    r"01.03.2024 10:15:31: Перемещение C:\Копирование.txt -> E:\б.txt",
    r"01.03.2024 10:15:32: Удаление C:\Мусор.txt",
    r"01.03.2024 10:15:33: Копировать C:\ЁЛКА.txt -> D:\ёлка.txt",
]
INTERFACE = {
    250: "&Поиск", 251: "&Найти...", 252: "Найти &далее", 253: "Поиск текста", 259: "Не найдено",
    1009: "Отмена", 3009: "Вы уверены?", 4000: "Время", 4001: "Источник", 4002: "Получатель",
    4010: "Операций: %i", 4030: "&Фильтр...", 4031: "Фильтр", 4032: "Фильтр: ",
    4033: "Содержит", 4034: "Не содержит", 4035: "Применить фильтр", 109: "Очистить список",
}
ENCODINGS = ["cp1251", "utf-8-sig"]


@pytest.fixture(params=ENCODINGS, ids=["code-page", "utf-8"])
def app(folder, request):
    """Log, words and interface language in the one or the other encoding."""
    encoding = request.param
    folder.write("totalcmd/Language/WCMD_RUS.LNG", WORDS, encoding=encoding)
    log = folder.write("totalcmd.log", LOG, encoding=encoding)
    file = folder.write("Ordalyn/Languages/Русский.lng", ["[UserLanguage]"] + [
        f"{number}={text}" for number, text in INTERFACE.items()], encoding=encoding)
    path = folder.windows(file.relative_to(folder.path))
    folder.write("Ordalyn/Ordalyn.ini", ["[Ordalyn]", "UseDefaultLanguage=0", "[Common]",
                                         f"LanguageFile={path}"], encoding="cp1251")
    app = folder.start(log, env=folder.file_manager("languageini=WCMD_RUS.LNG"), locale=RUSSIAN)
    app.wait_for_rows(len(LOG))
    assert app.agent.ask("screen")["codePage"] == 1251
    return app


def sources(app):
    return [row[1].strip() for row in app.main.source.rows()]


def open_filter(app):
    app.main.choose("Поиск", "Фильтр...")
    return FilterDialog(app, app.window("Фильтр").handle)


def test_a_word_of_the_menu_filters(app):
    dialog = open_filter(app)
    assert dialog.contains.items == ["Содержит", "Не содержит"]
    assert [word for word in dialog.words() if word != "-"] == [
        "Запуск программы", "Копирование", "Перемещение", "Удаление", "Удаление каталога"]
    dialog.choose_word("Копирование")
    assert sources(app) == [r"Копирование C:\Отчёт.txt"]
    assert app.main.status[0] == "Операций: 1  "
    # The text's trailing blank is lost in the file, as in every INI file.
    assert app.main.status[2] == "Фильтр:Копирование  "


def test_typed_text_ignores_case(app, folder):
    dialog = open_filter(app)
    dialog.enter("копировать")
    assert sources(app) == [r"Копировать C:\ЁЛКА.txt"]
    dialog.enter("ёлка")
    assert sources(app) == [r"Копировать C:\ЁЛКА.txt"]
    dialog.contains.choose("Не содержит")
    assert app.main.source.row_count == len(LOG) - 1
    # What is remembered is in the system's code page.
    assert 'Filter1="ёлка"'.encode("cp1251") in folder.settings_file.read_bytes()
    app.kill()
    app = folder.start(folder.path / "totalcmd.log", env=folder.file_manager(), locale=RUSSIAN)
    app.wait_for_rows()
    assert open_filter(app).filter.items == ["ёлка", "копировать"]


def test_the_search_ignores_case(app):
    assert [plain(column) for column in app.main.source.headers[:2]] == ["Время", "Источник"]
    app.keys("Ctrl+F")
    dialog = FindDialog(app, app.window("Поиск текста").handle)
    dialog.search("копировать")
    assert app.main.source.selected == app.main.target.selected == [4]
    app.keys("Enter")
    box = app.message()
    assert box.text == 'Не найдено "копировать"'
    box.press(box.buttons[0])


def test_the_keys_work_on_a_cyrillic_layout(app):
    """What the access keys and shortcuts mean is told by the key, not by the letter on it."""
    app.main.activate()
    app.keys("Ctrl+F")
    dialog = FindDialog(app, app.window("Поиск текста").handle)
    app.type("удаление")
    assert dialog.what.value == "удаление"
    app.keys("Enter", "Escape")
    wait_until(lambda: not app.find_window("Поиск текста"), "the dialog to go")
    assert app.main.source.selected == [3]
    app.main.activate()
    app.main.source.focus()
    app.keys("Ctrl+C")
    assert app.clipboard.strip() == r"Удаление C:\Мусор.txt"
