"""The options dialog: both pages, the system's colour and font dialogs, and the languages."""

import re

import pytest

from harness.controls import plain
from harness.dialogs import FilterDialog, center, open_filter, open_options
from harness.waiting import wait_until

LOG = [r"01.03.2024 10:15:30: Copy C:\a.txt -> D:\a.txt",
       r"02.03.2024 10:15:31: Delete C:\b.txt"]
GRID_LINES = 0x1  # of a list view's extended style
RIGHT_TO_LEFT = 0x2000  # of a window's extended style: WS_EX_RTLREADING
BORDER, CLIENT_EDGE = 0x800000, 0x200
GERMAN = {
    250: "&Suchen", 251: "&Suchen...", 4030: "Filte&r...", 141: "&Ansicht", 150: "&Optionen...",
    253: "Suchen", 1001: "Optionen", 1008: "OK", 1009: "Abbrechen", 4000: "Zeit", 4001: "Quelle",
    4002: "Ziel", 4005: "Alle Tage", 4010: "%i Vorgänge", 4031: "Filter", 4022: "Quelle kopieren",
    4023: "Ziel kopieren", 4033: "Enthält",
}


def list_state(panel):
    return panel.ask("list")


def language_file(folder, name="Deutsch.lng", texts=None, *more):
    file = folder.write(f"Ordalyn/Languages/{name}", ["[UserLanguage]", *more] + [
        f"{number}={text}" for number, text in (texts or GERMAN).items()])
    return folder.windows(file.relative_to(folder.path))


def settings(folder):
    return folder.settings.get("Ordalyn", {})


def panels(app):
    return app.main.source, app.main.target


def test_the_pages_change_by_mouse_and_by_ctrl_tab(show):
    app = show(LOG)
    dialog = open_options(app)
    assert not app.main.enabled
    assert dialog.pages.tabs == ["Layout", "Language"]
    assert dialog.pages.index == 0
    assert not dialog.button("Apply").enabled
    grid, other = dialog.button("Show grid lines"), dialog.button("Other")

    def on_screen(control):
        return 0 <= control.rect.left < app.wine.display.WIDTH
    assert on_screen(grid) and not on_screen(other)
    app.keys("Ctrl+Tab")
    assert dialog.pages.index == 1
    assert on_screen(other) and not on_screen(grid)
    app.keys("Ctrl+Shift+Tab")
    assert dialog.pages.index == 1
    app.keys("Ctrl+Tab")
    assert dialog.pages.index == 0
    dialog.pages.choose(1)
    assert on_screen(other)
    app.keys("Escape")
    dialog.wait_for_end()
    # The page is remembered while the program runs.
    assert open_options(app).pages.index == 1


def walk(app, dialog, key="Tab"):
    """Presses Tab until the pages have the focus again; answers what had it meanwhile."""
    names = {dialog.pages.handle: "pages", dialog.language_file.handle: "file"}
    names |= {label.handle: f"colour {n}" for n, label in enumerate(dialog.colours)}
    names |= {button.handle: plain(button.text) for button in dialog.controls("Button", None)}
    walked = []
    while not walked or walked[-1] != "pages":
        assert len(walked) < 20, walked
        app.keys(key)
        walked.append(names.get(app.agent.ask("focus")["focus"]))
    return walked


def test_tab_walks_the_page_that_shows(show):
    app = show(LOG)
    dialog = open_options(app)
    assert dialog.focus_is_in(dialog.pages)
    layout = ["Show grid lines", "Fixed borders", "Flat user interface", "Long date format",
              "colour 0", "colour 1", "Change...", "OK", "Cancel", "pages"]
    assert walk(app, dialog) == layout
    assert walk(app, dialog, "Shift+Tab") == [*reversed(layout[:-1]), "pages"]
    # The focus does not stay on a page that goes.
    app.keys("Tab", "Ctrl+Tab")
    assert dialog.pages.index == 1
    assert dialog.focus_is_in(dialog.pages)
    assert walk(app, dialog) == ["Use default language", "OK", "Cancel", "pages"]
    app.keys("Alt+O")
    assert dialog.button("Other").checked
    app.keys("Shift+Tab")
    assert walk(app, dialog) == ["Other", "file", "...", "OK", "Cancel", "Apply", "pages"]
    # No key reaches the page that is not shown.
    app.keys("Alt+G")
    assert not dialog.button("Show grid lines").checked
    app.keys("Tab", "Tab")
    assert dialog.focus_is_in(dialog.language_file)
    app.keys("Ctrl+Tab")
    assert dialog.pages.index == 0
    assert dialog.focus_is_in(dialog.pages)


def test_a_colour_is_chosen_by_keyboard(show):
    app = show(LOG)
    dialog = open_options(app)
    app.keys(*["Tab"] * 5)
    assert dialog.focus_is_in(dialog.colours[0])
    app.keys("Space")
    chooser = app.dialog()
    app.keys("Escape")
    dialog.wait_for_child(chooser)
    assert dialog.focus_is_in(dialog.colours[0])
    # Enter is the default button's.
    app.keys("Enter")
    dialog.wait_for_end()


def test_two_fast_clicks_turn_a_box_over_twice(show):
    app = show(LOG)
    dialog = open_options(app)
    box = dialog.button("Show grid lines")
    app.click(*center(box.rect), double=True)
    assert not box.checked
    assert dialog.button("Apply").enabled


def test_apply_shows_and_writes_and_cancel_does_not(show, folder):
    app = show(LOG)
    dialog = open_options(app)
    boxes = ("Show grid lines", "Fixed borders", "Flat user interface", "Long date format")
    assert [dialog.button(box).checked for box in boxes] == [False, True, False, False]
    dialog.button("Show grid lines").click()
    assert dialog.button("Apply").enabled
    assert not list_state(app.main.source)["extendedStyle"] & GRID_LINES
    app.keys("Alt+A")
    assert not dialog.button("Apply").enabled
    for panel in panels(app):
        assert list_state(panel)["extendedStyle"] & GRID_LINES
    assert settings(folder)["GridLines"] == "1"
    # What is changed after it goes with Cancel.
    app.keys("Alt+G")
    assert dialog.button("Apply").enabled
    dialog.button("Cancel").click()
    dialog.wait_for_end()
    assert app.main.enabled
    assert list_state(app.main.source)["extendedStyle"] & GRID_LINES
    assert settings(folder)["GridLines"] == "1"
    assert open_options(app).button("Show grid lines").checked


def test_ok_applies_and_closes_and_all_comes_back(show, folder):
    app = show(LOG)
    dialog = open_options(app)
    for box in ("Show grid lines", "Fixed borders", "Flat user interface", "Long date format"):
        dialog.button(box).click()
    app.keys("Enter")
    dialog.wait_for_end()
    assert [settings(folder)[key] for key in ("GridLines", "FixedBorders", "FlatUserInterface",
                                              "LongDate")] == ["1", "0", "1", "1"]

    def check():
        for panel in panels(app):
            assert list_state(panel)["extendedStyle"] & GRID_LINES
            assert not panel.info["style"] & BORDER
            assert not panel.info["exStyle"] & CLIENT_EDGE
        # No bevel around the texts of the status bar (SBT_NOBORDERS).
        assert all(part["style"] & 0x100 for part in app.main.status_bar.ask("statusBar")[:3])
    check()
    app.close()
    app = folder.show(LOG)
    check()


def test_ok_without_a_change_writes_every_setting(show, folder):
    app = show(LOG)
    assert "FontName" not in settings(folder)
    open_options(app)
    app.keys("Enter")
    wait_until(lambda: "FontName" in settings(folder), "the settings")
    assert {"GridLines", "FixedBorders", "FlatUserInterface", "LongDate", "ForegroundColor",
            "BackgroundColor", "FontName", "FontScript", "FontSize", "FontStyle",
            "UseDefaultLanguage"} <= set(settings(folder))


def test_long_dates_are_shown_at_once(folder):
    app = folder.show([line.replace("01.03", "3/1").replace("02.03", "3/2").replace(".2024", "/2024")
                       for line in LOG])
    assert app.main.dates.chosen == "3/2/2024"
    dialog = open_options(app)
    app.keys("Alt+L", "Alt+A")
    assert app.main.dates.items == ["All dates", "Friday, March 1, 2024",
                                    "Saturday, March 2, 2024"]
    assert app.main.dates.index == 2
    dialog.button("Cancel").click()


def test_the_colours_are_those_of_the_colour_dialog(show, folder):
    app = show(LOG)
    dialog = open_options(app)
    for label, number in zip(dialog.colours, ("10", "250")):
        label.click()
        chooser = app.dialog()
        chooser.button("Define Custom Colors >>").press()
        # Red, green and blue are the last three fields.
        fields = sorted(chooser.controls("Edit"), key=lambda c: (c.rect.left, c.rect.top))[-3:]
        for field in fields:
            field.set(number)
        chooser.button("OK").press()
        dialog.wait_for_child(chooser)
    assert list_state(app.main.source)["backColor"] != 250 * 0x10101, "not before Apply"
    assert dialog.button("Apply").enabled
    dialog.button("OK").click()
    dialog.wait_for_end()
    for panel in panels(app):
        assert list_state(panel)["textColor"] == 10 * 0x10101
        assert list_state(panel)["backColor"] == 250 * 0x10101
    assert settings(folder)["ForegroundColor"] == str(10 * 0x10101)
    assert settings(folder)["BackgroundColor"] == str(250 * 0x10101)


def test_a_cancelled_colour_dialog_changes_nothing(show):
    app = show(LOG)
    dialog = open_options(app)
    dialog.colours[0].click()
    chooser = app.dialog()
    chooser.button("Cancel").press()
    dialog.wait_for_child(chooser)
    assert not dialog.button("Apply").enabled


def choose_bold(app, dialog):
    dialog.button("Change...").click()
    chooser = app.dialog()
    styles = [combo for combo in chooser.controls("ComboBox") if "Bold" in combo.items]
    styles[0].choose("Bold")
    chooser.button("OK").press()
    dialog.wait_for_child(chooser)


def test_a_bold_font_survives_cancel_until_the_next_apply(show, folder):
    app = show(LOG)
    dialog = open_options(app)
    choose_bold(app, dialog)
    assert dialog.button("Apply").enabled
    app.keys("Escape")
    dialog.wait_for_end()
    assert app.main.source.font["weight"] == 400
    assert settings(folder).get("FontStyle", "0") == "0"
    open_options(app)
    app.keys("Enter")
    wait_until(lambda: settings(folder).get("FontStyle") == "1", "the font in the settings")
    app.settle()
    for control in (*panels(app), app.main.dates, app.main.files, app.main.status_bar):
        assert control.font["weight"] == 700
    # The filter dialog's boxes get it as well, and no other control.
    boxes = open_filter(app)
    assert {box.font["weight"] for box in (boxes.filter, boxes.contains, boxes.source)} == {700}
    assert boxes.cancel.font["weight"] == 400


def choose_size(app, dialog, points):
    dialog.button("Change...").click()
    chooser = app.dialog()
    # A font whose lines are not much higher than its letters.
    for item in ("Tahoma", points):
        next(c for c in chooser.controls("ComboBox") if item in c.items).choose(item)
    chooser.button("OK").press()
    dialog.wait_for_child(chooser)


def test_a_larger_font_covers_nothing(show, folder):
    app = show(LOG)
    main = app.main
    low = main.dates.rect.bottom - main.dates.rect.top
    dialog = open_options(app)
    choose_size(app, dialog, "16")
    app.keys("Alt+A")

    def check(*lists):
        boxes, bar = main.dates.rect, main.status_bar.rect
        assert boxes.bottom - boxes.top > low
        assert lists[0].rect.top >= boxes.bottom
        assert lists[-1].rect.bottom <= bar.top
    check(*panels(app))
    app.keys("Escape")
    dialog.wait_for_end()
    # With a single panel, too.
    main.choose("View", "Two Panels")
    dialog = open_options(app)
    choose_size(app, dialog, "24")
    dialog.button("OK").click()
    dialog.wait_for_end()
    check(main.source)
    assert settings(folder)["FontSize"] == "24"


def test_a_language_is_shown_without_a_restart(show, folder):
    path = language_file(folder)
    app = show(LOG)
    app.main.dates.choose("All dates")
    dialog = open_options(app)
    dialog.pages.choose(1)
    box = dialog.language_file
    assert not box.enabled
    dialog.button("Other").click()
    assert box.enabled
    box.set(path)
    app.keys("Enter")
    dialog.wait_for_end()
    assert app.main.source.headers[:2] == ["Zeit", "Quelle"]
    assert app.main.target.headers == ["Ziel"]
    assert app.main.status[0] == "2 Vorgänge  "
    # What the file does not have stays English.
    assert [menu.caption for menu in app.main.menus] == ["&File", "&Suchen", "&Ansicht", "&Help"]
    assert app.main.dates.items == ["Alle Tage", "01.03.2024", "02.03.2024"]
    assert folder.settings["Common"]["LanguageFile"].endswith("Deutsch.lng")
    assert settings(folder)["UseDefaultLanguage"] == "0"
    app.main.source.click_row(0, "right")
    assert [(e.name, e.shortcut) for e in app.pop_up().entries][:2] == [
        ("Quelle kopieren", "Ctrl+C"), ("Ziel kopieren", "Ctrl+Alt+C")]
    app.keys("Escape", "Ctrl+F")
    assert app.window("Suchen")
    app.keys("Escape")
    app.main.activate()
    app.main.choose("Suchen", "Filter...")
    boxes = FilterDialog(app, app.window("Filter").handle)
    assert boxes.contains.items == ["Enthält", "Does not contain"]
    assert boxes.source.items == ["Quelle", "Ziel"]
    assert boxes.cancel.text == "Abbrechen"
    app.keys("Escape")
    # And back again.
    app.main.activate()
    app.main.choose("Ansicht", "Optionen...")
    dialog = app.window("Optionen")
    dialog.button("Use default language").click()
    assert not [edit for edit in dialog.controls("Edit") if edit.enabled]
    app.keys("Enter")
    wait_until(lambda: app.main.source.headers[:2] == ["Time", "Source"], "English")
    assert app.main.menus[1].caption == "&Search"
    assert app.main.dates.items[0] == "All dates"


def test_the_file_can_be_browsed_for(show, folder):
    language_file(folder)
    app = show(LOG)
    dialog = open_options(app)
    dialog.pages.choose(1)
    dialog.button("Other").click()
    dialog.button("...").click()
    chooser = app.dialog()
    name = [c for c in chooser.controls("Edit")][-1]
    name.set("Deutsch.lng")
    chooser.button("Open").press()
    dialog.wait_for_child(chooser)
    assert dialog.language_file.text.endswith(r"\Languages\Deutsch.lng")
    app.keys("Alt+A")
    assert folder.settings["Common"]["LanguageFile"].endswith("Deutsch.lng")


def test_an_empty_path_keeps_the_stored_one(folder):
    path = language_file(folder)
    folder.write_settings(Ordalyn={"UseDefaultLanguage": 0}, Common={"LanguageFile": path})
    app = folder.show(LOG)
    app.main.choose("Ansicht", "Optionen...")
    dialog = app.window("Optionen")
    app.keys("Ctrl+Tab")
    box = [edit for edit in dialog.controls("Edit")][0]
    assert box.text.endswith("Deutsch.lng")
    box.set("")
    app.keys("Enter")
    wait_until(lambda: app.main.enabled, "the dialog to go")
    assert folder.settings["Common"]["LanguageFile"].endswith("Deutsch.lng")
    assert app.main.source.headers[0] == "Zeit"


def test_a_missing_language_file_is_told_once(folder):
    folder.write_settings(Ordalyn={"UseDefaultLanguage": 0},
                          Common={"LanguageFile": folder.windows("Ordalyn", "gone.lng")})
    log = folder.write("totalcmd.log", LOG)
    app = folder.start(log, env=folder.file_manager())
    box = app.message(30)
    assert box.text == "Cannot find language file!"
    assert box.icon == "error"
    assert settings(folder)["UseDefaultLanguage"] == "0"
    box.press("OK")
    app.wait_for_rows()
    assert settings(folder)["UseDefaultLanguage"] == "1"
    assert app.main.source.headers[0] == "Time"
    # Not again by a form that is loaded later, nor by the next start.
    open_filter(app)
    assert not app.find_dialog()
    app.close()
    app = folder.show(LOG)
    assert not app.find_dialog()


def test_a_missing_file_that_is_chosen_is_told_once(show, folder):
    app = show(LOG)
    dialog = open_options(app)
    app.keys("Ctrl+Tab")
    dialog.button("Other").click()
    dialog.language_file.set(folder.windows("Ordalyn", "gone.lng"))
    dialog.button("Apply").click()
    box = app.message()
    assert box.text == "Cannot find language file!"
    box.press("OK")
    app.settle()
    # The dialog shows what holds now.
    assert dialog.button("Use default language").checked
    assert not dialog.button("Other").checked
    assert not dialog.button("Apply").enabled
    dialog.button("OK").click()
    dialog.wait_for_end()
    assert not app.find_dialog()
    assert settings(folder)["UseDefaultLanguage"] == "1"


def test_a_language_from_right_to_left_turns_what_has_a_caption(folder):
    hebrew = {253: "חיפוש", 254: "חפש את:", 255: "חפש ב:", 252: "חפש הבא", 1009: "ביטול",
              258: "מילה שלמה", 4003: "מקור", 4004: "יעד", 4016: "תאריך", 109: "נקה"}
    path = language_file(folder, "Hebrew.lng", hebrew, "RightToLeftLanguage=1")
    folder.write_settings(Ordalyn={"UseDefaultLanguage": 0}, Common={"LanguageFile": path})
    app = folder.show(LOG)
    app.keys("Ctrl+F")
    dialog = app.window("חיפוש")
    buttons = dialog.controls("Button")
    assert {plain(button.text) for button in buttons} == {
        text for number, text in hebrew.items() if number not in (253, 254)}
    for control in (dialog, *buttons, *dialog.controls("Static")):
        assert control.info["exStyle"] & RIGHT_TO_LEFT, control.text
    assert not dialog.one("ComboBox").info["exStyle"] & RIGHT_TO_LEFT


@pytest.mark.parametrize("language", ["German", "Russian", "Hebrew", "Japanese"])
def test_a_language_that_ships_needs_nothing_of_the_system(folder, language):
    """Its texts are right on a system whose code page does not hold them."""
    from harness.wine import PROJECT  # pylint: disable=import-outside-toplevel
    file = PROJECT / "languages" / f"{language}.lng"
    texts = dict(re.findall(r"^(\d+)=(.*?)\r?$", file.read_bytes().decode("utf-8-sig"), re.M))
    folder.write(f"Ordalyn/Languages/{language}.lng", file.read_bytes())
    folder.write_settings(
        Ordalyn={"UseDefaultLanguage": 0},
        Common={"LanguageFile": folder.windows("Ordalyn", "Languages", f"{language}.lng")})
    app = folder.show(LOG)
    assert app.main.source.headers[:2] == [texts["4000"], texts["4001"]]
    assert [menu.caption for menu in app.main.menus] == [
        texts[number] for number in ("101", "250", "141", "161")]
    assert app.main.status[0] == texts["4010"].replace("%i", "1") + "  "
