"""The filter dialog: its boxes, its tool bar, its memory, and what it leaves in the panels."""

import pytest

from harness.controls import center
from harness.dialogs import filter_dialog, open_filter
from harness.waiting import wait_until

FIRST_DAY = [
    r"01.03.2024 10:00:00: Program start (anna/DESK7) UTF-8",
    r"01.03.2024 10:15:30: Copy C:\a.txt -> D:\a.txt",
    r"01.03.2024 10:15:31: Move C:\Copy of b.txt -> E:\b.txt",
    r"01.03.2024 10:15:32: Delete C:\c.txt",
    r"01.03.2024 10:15:33: Copy: Failed: C:\d.txt -> D:\d.txt",
    r"01.03.2024 10:15:34: CreateFile C:\ÜBUNG.txt",
]
SECOND_DAY = [
    r"02.03.2024 09:00:00: Copy C:\f.txt -> E:\f.txt",
    r"02.03.2024 09:00:01: NewFolder C:\copies",
    r"02.03.2024 09:00:02: Pack C:\f.txt -> D:\f.zip",
]
LOG = FIRST_DAY + SECOND_DAY
WORDS = ["Program start", "Program shutdown", "-", "Copy", "Move", "Delete", "DeleteFolder", "-",
         "NewFolder", "CreateFile", "Shortcut", "-", "Pack", "Unpack", "Test"]
GERMAN = ["Deutsch (German)", "codepage=1252", '1802="Kopieren"', '1806="Löschen"',
          '1807="OrdnerLöschen"', '1804="Verknüpfen"', '1900="Fehler:"']


def sources(app):
    return [row[1].strip() for row in app.main.source.rows()]


def targets(app):
    return [row[0].strip() for row in app.main.target.rows()]


@pytest.fixture
def app(show):
    """Shows all days, the filter dialog open."""
    shown = show(LOG)
    shown.main.dates.choose("All dates")
    return shown


def test_enter_applies_what_was_typed_in_any_case_and_in_paths_too(app):
    dialog = open_filter(app)
    assert dialog.text == "Filter"
    assert dialog.focus_is_in(dialog.filter)
    dialog.enter("cOPy")
    assert sources(app) == [r"Copy C:\a.txt", r"Move C:\Copy of b.txt", r"Copy: Failed: C:\d.txt",
                            r"Copy C:\f.txt"]
    assert targets(app) == [r"D:\a.txt", r"E:\b.txt", r"D:\d.txt", r"E:\f.txt"]
    assert app.main.status[0] == "4 Operation(s)  "
    assert app.main.status[2] == "Filter: cOPy  "


def test_case_is_ignored_in_every_script(app):
    open_filter(app).enter("übung")
    assert sources(app) == [r"CreateFile C:\ÜBUNG.txt"]


def test_the_apply_button_works_like_enter(app, folder):
    dialog = open_filter(app)
    dialog.filter.type("pack")
    assert app.main.source.row_count == len(LOG)
    dialog.click_apply()
    assert sources(app) == [r"Pack C:\f.txt"]
    assert dialog.filter.items == ["pack"]
    assert folder.settings["Ordalyn"]["Filter1"] == '"pack"'


def test_every_control_works_at_the_first_click(app, folder):
    dialog = open_filter(app)
    app.main.place(0, 0, 700, 300)
    dialog.move(0, 320)
    dialog.filter.type("copy")
    app.main.activate()
    dialog.click_apply()
    assert app.main.status[0] == "4 Operation(s)  "
    for box, by_keys, rows in ((dialog.contains, "Does not contain", 5), (dialog.source, "Target", 5)):
        app.main.activate()
        box.click()
        app.keys("Down", "Enter")
        assert box.chosen == by_keys
        assert app.main.source.row_count == rows
    app.main.activate()
    dialog.drop_down(0).choose("Pack")
    assert dialog.filter.value == "Pack"
    app.main.activate()
    dialog.filter.click()
    assert dialog.focus_is_in(dialog.filter)
    app.main.activate()
    dialog.click_remove()
    assert dialog.filter.value == ""
    assert app.main.source.row_count == len(LOG)
    app.main.activate()
    dialog.cancel.click()
    dialog.wait_for_end()


def test_the_boxes_say_what_they_choose_between(app):
    dialog = open_filter(app)
    assert dialog.contains.items == ["Contains", "Does not contain"]
    assert dialog.source.items == ["Source", "Target"]
    assert (dialog.contains.chosen, dialog.source.chosen) == ("Contains", "Source")
    assert dialog.cancel.text == "Cancel"
    # The tool bar asks for its tips when the pointer comes to it.
    left, top, _, bottom = dialog.tool_bar.buttons[0]["rect"]
    app.point_at(left + 10, (top + bottom) // 2)
    wait_until(lambda: "Apply filter" in {tip["text"] for tip in app.agent.ask("toolTips")},
               "the tip of the tool bar's button")


def test_without_a_language_file_the_words_are_english(app, folder):
    assert open_filter(app).words() == WORDS
    assert folder.settings["Ordalyn"]["LoggingID"] == (
        "1800,1801,-,1802,1803,1806,1807,-,1805,1811,1804,-,1808,1809,1810")


def test_a_word_of_the_menu_means_the_operation_and_not_the_path(app, folder):
    dialog = open_filter(app)
    dialog.choose_word("Copy")
    assert sources(app) == [r"Copy C:\a.txt", r"Copy: Failed: C:\d.txt", r"Copy C:\f.txt"]
    assert targets(app) == [r"D:\a.txt", r"D:\d.txt", r"E:\f.txt"]
    assert dialog.filter.value == "Copy"
    assert app.main.status[2] == "Filter: Copy  "
    # It is not remembered.
    assert dialog.filter.items == []
    assert "Filter1" not in folder.settings["Ordalyn"]


def test_a_word_can_be_chosen_by_keyboard(app):
    dialog = open_filter(app)
    dialog.drop_down(0)
    app.keys(*["Down"] * 4, "Enter")
    assert dialog.filter.value == "Move"
    assert sources(app) == [r"Move C:\Copy of b.txt"]


def test_a_word_does_not_bring_the_operation_that_begins_with_it(show):
    app = show([r"01.03.2024 10:15:30: Delete C:\a.txt",
                r"01.03.2024 10:15:31: DeleteFolder C:\old",
                r"01.03.2024 10:15:32: DeleteFolder: Delete failed: C:\b"])
    dialog = open_filter(app)
    dialog.choose_word("Delete")
    assert sources(app) == [r"Delete C:\a.txt"]
    dialog.choose_word("DeleteFolder")
    assert sources(app) == [r"DeleteFolder C:\old", r"DeleteFolder: Delete failed: C:\b"]
    dialog.enter("delete")
    assert app.main.source.row_count == 3


@pytest.mark.parametrize("keys", [["Enter"], ["Down", "Enter"]])
def test_enter_in_the_open_list_takes_its_item_and_applies_it(app, keys):
    dialog = open_filter(app)
    for text in ("copy", "move"):
        dialog.enter(text)
    assert dialog.filter.items == ["move", "copy"]
    # What is typed marks the item that it begins; opening the list shows it.
    dialog.filter.type("mo")
    app.keys("Alt+Down", *keys)
    expected = "copy" if "Down" in keys else "move"
    assert dialog.filter.value == expected
    assert app.main.status[2] == f"Filter: {expected}  "
    assert app.main.source.row_count == (4 if expected == "copy" else 1)
    assert dialog.visible


def test_enter_in_the_open_list_without_an_item_applies_what_was_typed(app):
    dialog = open_filter(app)
    dialog.enter("copy")
    dialog.filter.type("pack")
    app.keys("Alt+Down", "Enter")
    assert dialog.filter.value == "pack"
    assert sources(app) == [r"Pack C:\f.txt"]


def test_an_outcome_word_is_looked_for_everywhere(folder):
    folder.write_settings(Ordalyn={"LoggingID": "1901,-, 1803,1802"})
    app = folder.show(FIRST_DAY)
    dialog = open_filter(app)
    # An id with a blank is none.
    assert dialog.words() == ["Failed", "-", "Copy"]
    dialog.choose_word("Failed")
    assert sources(app) == [r"Copy: Failed: C:\d.txt"]


def test_the_words_come_from_the_file_managers_language_in_the_order_of_the_ids(folder):
    folder.write("totalcmd/Language/WCMD_DEU.LNG", GERMAN, encoding="cp1252")
    log = folder.write("totalcmd.log", [r"01.03.2024 10:15:30: Löschen C:\a.txt",
                                        r"01.03.2024 10:15:31: Kopieren C:\Löschen -> D:\a"])
    app = folder.start(log, env=folder.file_manager("languageini=WCMD_DEU.LNG"))
    app.wait_for_rows(2)
    dialog = open_filter(app)
    assert dialog.words() == ["-", "Kopieren", "Löschen", "OrdnerLöschen", "-", "Verknüpfen", "-"]
    dialog.choose_word("Löschen")
    assert sources(app) == [r"Löschen C:\a.txt"]


def test_a_word_is_shown_as_it_stands(folder):
    words = ["Deutsch (German)", "codepage=1252", '1802="Copy&Verify"', '1806="&Wipe"']
    folder.write("totalcmd/Language/WCMD_DEU.LNG", words, encoding="cp1252")
    log = folder.write("totalcmd.log", [r"01.03.2024 10:15:30: Copy&Verify C:\a.txt -> D:\a.txt",
                                        r"01.03.2024 10:15:31: &Wipe C:\b.txt"])
    app = folder.start(log, env=folder.file_manager("languageini=WCMD_DEU.LNG"))
    app.wait_for_rows(2)
    dialog = open_filter(app)
    # An "&" alone would mark an access key and not be drawn.
    menu = dialog.drop_down(0)
    assert [entry.caption for entry in menu.entries if not entry.separator] == [
        "Copy&&Verify", "&&Wipe"]
    menu.choose("&Wipe")
    assert dialog.filter.value == "&Wipe"
    assert sources(app) == [r"&Wipe C:\b.txt"]


def test_a_language_file_that_is_named_with_its_path_gives_no_words(folder):
    file = folder.write("totalcmd/Language/WCMD_DEU.LNG", GERMAN, encoding="cp1252")
    log = folder.write("totalcmd.log", LOG)
    app = folder.start(log, env=folder.file_manager(
        "languageini=" + folder.windows(file.relative_to(folder.path))))
    app.wait_for_rows()
    dialog = open_filter(app)
    _, top, right, bottom = dialog.tool_bar.buttons[0]["rect"]
    app.click(right - 5, (top + bottom) // 2)
    entries = [entry["caption"] for menu in app.agent.ask("popUps") for entry in menu["items"]]
    assert entries == []
    app.keys("Escape")


def test_does_not_contain(app):
    dialog = open_filter(app)
    dialog.enter("copy")
    dialog.contains.choose("Does not contain")
    assert sources(app) == ["Program start (anna/DESK7) UTF-8", r"Delete C:\c.txt",
                            r"CreateFile C:\ÜBUNG.txt", r"NewFolder C:\copies", r"Pack C:\f.txt"]
    dialog.contains.choose("Contains")
    assert app.main.source.row_count == 4


def test_the_lists_work_by_keyboard(app):
    dialog = open_filter(app)
    dialog.enter("copy")
    app.keys("Tab", "Down")
    assert dialog.contains.chosen == "Does not contain"
    assert app.main.source.row_count == 5
    app.keys("Tab", "Down")
    assert dialog.source.chosen == "Target"
    assert targets(app) == [r"D:\a.txt", r"E:\b.txt", r"D:\d.txt", r"E:\f.txt", r"D:\f.zip"]


def test_the_tool_bar_works_by_keyboard(app):
    dialog = open_filter(app)
    dialog.filter.type("pack")
    app.keys("Tab", "Tab", "Tab")
    assert dialog.focus_is_in(dialog.tool_bar)
    app.keys("Space")
    assert sources(app) == [r"Pack C:\f.txt"]
    assert dialog.filter.items == ["pack"]
    # On to the button that removes the filter, past the gap between them.
    app.keys("Right", "Enter")
    assert app.main.source.row_count == len(LOG)
    assert dialog.filter.value == ""
    app.keys("Left", "Down")
    assert [entry.name for entry in app.pop_up().entries if not entry.separator][:3] == [
        "Program start", "Program shutdown", "Copy"]
    app.keys("Down", "Down", "Down", "Enter")
    assert dialog.filter.value == "Copy"
    assert sources(app) == [r"Copy C:\a.txt", r"Copy: Failed: C:\d.txt", r"Copy C:\f.txt"]
    assert dialog.focus_is_in(dialog.tool_bar)
    # The menu's Escape is not the dialog's.
    app.keys("Down", "Escape")
    assert app.find_window("Filter")
    app.keys("Tab")
    assert dialog.focus_is_in(dialog.cancel)
    app.keys("Shift+Tab", "Escape")
    dialog.wait_for_end()


def test_rows_without_a_target_go_whichever_way_targets_are_filtered(app):
    dialog = open_filter(app)
    dialog.source.choose("Target")
    assert app.main.source.row_count == len(LOG), "no text, no filter"
    dialog.enter("d:\\")
    assert targets(app) == [r"D:\a.txt", r"D:\d.txt", r"D:\f.zip"]
    dialog.contains.choose("Does not contain")
    assert targets(app) == [r"E:\b.txt", r"E:\f.txt"]
    assert sources(app) == [r"Move C:\Copy of b.txt", r"Copy C:\f.txt"]


def test_the_remove_button_brings_all_rows_back(app):
    dialog = open_filter(app)
    dialog.enter("copy")
    dialog.click_remove()
    assert app.main.source.row_count == app.main.target.row_count == len(LOG)
    assert app.main.status[0] == f"{len(LOG)} Operation(s)  "
    assert app.main.status[2] == "Filter:   "
    assert dialog.filter.value == ""
    assert dialog.filter.items == ["copy"]


def test_another_day_comes_filtered(app):
    open_filter(app).enter("copy")
    app.main.dates.choose("01.03.2024")
    assert sources(app) == [r"Copy C:\a.txt", r"Move C:\Copy of b.txt", r"Copy: Failed: C:\d.txt"]
    app.main.dates.choose("02.03.2024")
    assert sources(app) == [r"Copy C:\f.txt"]
    assert targets(app) == [r"E:\f.txt"]


def test_a_single_panel_is_filtered_too(folder):
    folder.write_settings(Ordalyn={"TwoPanels": 0})
    app = folder.show(FIRST_DAY)
    dialog = open_filter(app)
    dialog.enter("copy")
    assert [row[2] for row in app.main.source.rows()] == [r"D:\a.txt", r"E:\b.txt", r"D:\d.txt"]
    dialog.source.choose("Target")
    dialog.enter("e:")
    assert [row[2] for row in app.main.source.rows()] == [r"E:\b.txt"]


def test_the_panels_stay_in_step_under_a_filter(app):
    open_filter(app).enter("copy")
    app.main.activate()
    app.main.source.click_row(2)
    assert app.main.target.selected == [2]
    app.keys("Ctrl+Alt+C")
    assert app.clipboard == r"D:\d.txt"


def test_the_history_outlives_the_program(app, folder):
    dialog = open_filter(app)
    for text in ("copy", "pack", "COPY", "move"):
        dialog.enter(text)
    # Equal but for the case: it stays where and what it is.
    assert dialog.filter.items == ["move", "pack", "copy"]
    # Written at once, not only at the end.
    app.kill()
    assert [folder.settings["Ordalyn"][f"Filter{n}"] for n in (1, 2, 3)] == [
        '"move"', '"pack"', '"copy"']
    app = folder.show(LOG)
    app.main.dates.choose("All dates")
    dialog = open_filter(app)
    assert dialog.filter.items == ["move", "pack", "copy"]
    assert dialog.filter.value == ""
    # One from the list applies at once and is not remembered again.
    dialog.filter.choose("pack")
    assert sources(app) == [r"Pack C:\f.txt"]
    assert app.main.status[2] == "Filter: pack  "
    assert dialog.filter.items == ["move", "pack", "copy"]


def test_the_list_is_cleared_after_a_question(folder):
    folder.write_settings(Ordalyn={"Filter1": '"copy"', "Filter64": '"move"', "Find1": '"x"'})
    app = folder.show(LOG)
    dialog = open_filter(app)
    assert dialog.filter.items == ["copy", "move"]
    menu = dialog.drop_down(-1)
    assert [entry.name for entry in menu.entries] == ["Clear List"]
    menu.choose("Clear List")
    question = app.message()
    assert (question.text, question.icon) == ("Are you sure?", "question")
    assert question.buttons == ["Yes", "No"]
    question.press("No")
    assert dialog.filter.items == ["copy", "move"]
    assert folder.settings["Ordalyn"]["Filter64"] == '"move"'
    dialog.drop_down(-1).choose("Clear List")
    app.message().press("Yes")
    assert dialog.filter.items == []
    assert not [key for key in folder.settings["Ordalyn"] if key.startswith("Filter")
                and key[6:].isdigit()]
    assert folder.settings["Ordalyn"]["Find1"] == '"x"'


def test_the_dialog_comes_back_where_it_was(app, folder):
    dialog = open_filter(app)
    width, height = dialog.rect.right - dialog.rect.left, dialog.rect.bottom - dialog.rect.top
    assert width >= 8910 // 15
    # By its caption, with the mouse.
    left, top = dialog.rect.left, dialog.rect.top
    app.drag((left + 100, top + 8), (left + 150, top - 152))
    moved = dialog.rect
    assert (moved.left, moved.top) == (left + 50, top - 160)
    dialog.close()
    dialog.wait_for_end()
    assert folder.settings["Ordalyn"]["FiltersPosition"] == ",".join(
        str(15 * number) for number in (moved.left, moved.top, width, height))
    app.close()
    app = folder.show(LOG)
    assert open_filter(app).rect == moved


def test_the_close_box_only_hides(app):
    dialog = open_filter(app)
    dialog.enter("copy")
    dialog.close()
    dialog.wait_for_end()
    assert app.main.source.row_count == 4, "the filter stays in force"
    again = open_filter(app)
    assert again.handle == dialog.handle
    assert again.filter.value == "copy"


@pytest.mark.parametrize("way", ["Escape", "click"])
def test_cancel_hides_and_the_filter_stays(app, way):
    dialog = open_filter(app)
    dialog.enter("copy")
    if way == "click":
        dialog.cancel.click()
    else:
        app.keys("Escape")
    dialog.wait_for_end()
    assert app.main.source.row_count == 4
    assert app.main.status[2] == "Filter: copy  "


def test_a_click_on_the_third_panel_of_the_status_bar_opens_the_dialog(app):
    parts = [part["rect"] for part in app.main.status_bar.ask("statusBar")]
    for part in parts[:2]:
        app.click(*center(part))
        assert not app.find_window("Filter")
    app.click(*center(parts[2]))
    dialog = filter_dialog(app)
    assert dialog.focus_is_in(dialog.filter)
    assert dialog.info["owner"] == app.main.handle
    # The main window stays usable beside it, and a second click gives the focus back.
    assert app.main.enabled
    app.main.source.click_row(1)
    app.click(*center(parts[2]))
    assert dialog.focus_is_in(dialog.filter)


def test_the_menu_opens_the_dialog_by_keyboard(app):
    app.main.activate()
    app.keys("Alt", "S", "R")
    dialog = filter_dialog(app)
    assert dialog.focus_is_in(dialog.filter)
    # Shown already: it gets the focus.
    app.main.activate()
    app.main.source.click_row(0)
    app.main.choose("Search", "Filter...")
    assert app.agent.ask("focus")["active"] == dialog.handle
