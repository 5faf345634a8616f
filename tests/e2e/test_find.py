"""The find dialog: what is found, in which order, and what the panels show then."""

import pytest

from harness.dialogs import center, open_filter, open_find
from harness.waiting import wait_until

pytestmark = pytest.mark.all_processors

LOG = [
    r"01.03.2024 10:15:30: Copy C:\a.txt -> D:\a.txt",
    r"01.03.2024 10:15:31: Move C:\Copy of b.txt -> E:\b.txt",
    r"01.03.2024 10:15:32: CopyFile C:\c.txt",
    r"02.03.2024 09:00:00: Copy: Failed: C:\d.txt -> D:\d.txt",
    r"02.03.2024 09:00:01: Copy C:\e.txt -> D:\e.txt",
    r"03.03.2024 08:00:00: Delete C:\a.txt",
    r"03.03.2024 08:00:01: Copy C:\g.txt -> D:\copy.txt",
]


def found(app):
    """The day and the row that are selected, the same row in both panels."""
    source, target = app.main.source, app.main.target
    assert source.selected == target.selected
    for panel in (source, target):
        assert set(panel.selected) <= set(panel.visible_rows)
    return app.main.dates.chosen, *source.selected


def cannot_find(app, text):
    """Answers the message that there is no (more) such text."""
    box = app.message()
    assert box.text == f'Cannot find "{text}"'
    assert box.icon == "information"
    assert box.buttons == ["OK"]
    box.press("OK")


def test_the_search_goes_over_the_days_to_the_end_and_begins_again(show):
    app = show(LOG)
    dialog = open_find(app)
    assert dialog.focus_is_in(dialog.what)
    assert not dialog.button("Find Next").enabled
    dialog.search("cOPY")
    assert found(app) == ("01.03.2024", 0)
    expected = [("01.03.2024", 1), ("01.03.2024", 2), ("02.03.2024", 0), ("02.03.2024", 1),
                ("03.03.2024", 1)]
    for place in expected:
        app.keys("Enter")
        assert found(app) == place
    app.keys("Enter")
    cannot_find(app, "cOPY")
    assert found(app) == expected[-1]
    app.keys("Enter")
    assert found(app) == ("01.03.2024", 0)


def test_fast_clicks_each_find_the_next(show):
    app = show(LOG)
    dialog = open_find(app)
    dialog.search("cOPY")
    app.click(*center(dialog.button("Find Next").rect), double=True)
    assert found(app) == ("01.03.2024", 2)


def click_slowly(app, x, y):
    """A click as slow as a hand's: the program has done all that the press leads to before the
    button comes up."""
    app.point_at(x, y)
    app.mouse(("down", "left"))
    app.settle()
    app.mouse(("up", "left"))
    app.settle()


@pytest.mark.parametrize("click", ["slow", "fast"])
def test_every_control_works_at_the_first_click(show, click):
    app = show(LOG)
    dialog = open_find(app)
    dialog.what.type("copy")
    app.main.place(0, 0, 700, 300)
    dialog.move(0, 320)

    def from_the_main_window(caption):
        app.main.activate()
        assert not dialog.focus_is_in(dialog.what)
        place = center(dialog.button(caption).rect)
        click_slowly(app, *place) if click == "slow" else app.click(*place)
        return dialog.button(caption)

    # The focus stays where the click puts it.
    assert from_the_main_window("Find Next").focused
    assert found(app) == ("01.03.2024", 0)
    assert from_the_main_window("Match whole word only").checked
    assert from_the_main_window("Selected date only").checked
    assert from_the_main_window("Target").checked
    assert from_the_main_window("Target").focused
    # Without a click on a control the text is ready to be typed over.
    app.main.activate()
    dialog.activate()
    assert dialog.focus_is_in(dialog.what)
    app.main.activate()
    left, top, right, _ = dialog.rect
    app.click((left + right) // 2, top + 10)
    assert dialog.focus_is_in(dialog.what)
    app.main.activate()
    place = center(dialog.button("Cancel").rect)
    click_slowly(app, *place) if click == "slow" else app.click(*place)
    dialog.wait_for_end()


def test_f3_goes_on_in_the_main_window(show):
    app = show(LOG)
    assert not app.main.menu("Search", "Find Next").enabled
    assert app.main.menu("Search", "Find...").shortcut == "Ctrl+F"
    assert app.main.menu("Search", "Find Next").shortcut == "F3"
    dialog = open_find(app)
    dialog.search("move")
    app.keys("Escape")
    dialog.wait_for_end()
    assert app.main.menu("Search", "Find Next").enabled
    app.main.activate()
    app.keys("F3")
    cannot_find(app, "move")
    app.keys("F3")
    assert found(app) == ("01.03.2024", 1)
    # Opened again it is the same dialog, its text selected, and starts from the first entry.
    again = open_find(app)
    assert again.handle == dialog.handle
    app.type("copy")
    assert again.what.value == "copy"
    again.button("Find Next").click()
    assert found(app) == ("01.03.2024", 0)


def test_another_text_begins_at_the_first_entry(show):
    app = show(LOG)
    dialog = open_find(app)
    dialog.search("d.txt")
    assert found(app) == ("02.03.2024", 0)
    dialog.search("a.txt")
    assert found(app) == ("01.03.2024", 0)
    app.keys("Enter")
    assert found(app) == ("03.03.2024", 0)
    # So does another column, and the whole-word option.
    dialog.button("Target").click()
    app.keys("Enter")
    assert found(app) == ("01.03.2024", 0)
    dialog.button("Match whole word only").click()
    app.keys("Enter")
    # A backslash divides no words.
    cannot_find(app, "a.txt")


def test_a_whole_word_stands_between_blanks(show):
    app = show(LOG)
    app.main.dates.choose("All dates")
    dialog = open_find(app)
    dialog.what.type("copy")
    app.keys("Alt+O")
    assert dialog.button("Match whole word only").checked
    # Neither "CopyFile" nor "Copy:", nor the word behind a backslash.
    for row in (0, 4, 6):
        app.keys("Enter")
        assert found(app) == ("All dates", row)
    app.keys("Enter")
    cannot_find(app, "copy")


def test_the_target_is_searched_by_its_access_key(show):
    app = show(LOG)
    dialog = open_find(app)
    dialog.what.type("copy")
    app.keys("Alt+T", "Enter")
    assert dialog.button("Target").checked
    assert found(app) == ("03.03.2024", 1)
    app.keys("Enter")
    cannot_find(app, "copy")


def test_the_selected_date_only(show):
    app = show(LOG)
    app.main.dates.choose("02.03.2024")
    dialog = open_find(app)
    dialog.what.type("copy")
    box = dialog.button("Selected date only")
    assert box.enabled
    box.click()
    app.keys("Enter")
    assert found(app) == ("02.03.2024", 0)
    app.keys("Enter")
    assert found(app) == ("02.03.2024", 1)
    app.keys("Enter")
    cannot_find(app, "copy")
    # After a search in vain the day's first entry is the start.
    app.keys("Enter")
    assert found(app) == ("02.03.2024", 0)
    # After a hit, another day's search starts where the last one stopped: behind this whole day.
    app.main.dates.choose("01.03.2024")
    dialog.button("Find Next").click()
    cannot_find(app, "copy")
    dialog.button("Find Next").click()
    assert found(app) == ("01.03.2024", 0)


def test_hits_outside_the_selected_date_are_passed_over(show):
    app = show(LOG)
    app.main.dates.choose("01.03.2024")
    dialog = open_find(app)
    dialog.search("c:\\")
    assert found(app) == ("01.03.2024", 0)
    app.main.dates.choose("03.03.2024")
    dialog.button("Selected date only").click()
    for row in (0, 1):
        dialog.button("Find Next").click()
        assert found(app) == ("03.03.2024", row)
    dialog.button("Find Next").click()
    cannot_find(app, "c:\\")
    # All dates take the restriction away while the dialog is open, and a day lets it be chosen.
    app.main.dates.choose("All dates")
    box = dialog.button("Selected date only")
    assert (box.checked, box.enabled) == (False, False)
    dialog.button("Find Next").click()
    assert found(app) == ("All dates", 0)
    app.main.dates.choose("02.03.2024")
    assert (box.checked, box.enabled) == (False, True)
    # An item of the list begins the search again, though its text is the same.
    dialog.what.choose("c:\\")
    dialog.button("Find Next").click()
    assert found(app) == ("01.03.2024", 0)


def test_there_is_no_selected_date_while_all_are_shown(show):
    app = show(LOG)
    dialog = open_find(app)
    dialog.button("Selected date only").click()
    assert dialog.button("Selected date only").checked
    dialog.close()
    dialog.wait_for_end()
    app.main.dates.choose("All dates")
    dialog = open_find(app)
    assert not dialog.button("Selected date only").checked
    assert not dialog.button("Selected date only").enabled
    dialog.close()
    dialog.wait_for_end()
    app.main.dates.choose("02.03.2024")
    assert open_find(app).button("Selected date only").enabled


def test_what_the_filter_removed_is_passed_over(show):
    app = show(LOG)
    open_filter(app).enter("d.txt")
    dialog = open_find(app)
    dialog.search("copy")
    assert found(app) == ("02.03.2024", 0)
    assert app.main.source.row_count == 1
    app.keys("Enter")
    cannot_find(app, "copy")


def test_a_row_far_away_is_brought_into_view_in_both_panels(show):
    app = show([rf"01.03.2024 10:15:30: Copy C:\{i}.txt -> D:\{i}.txt" for i in range(5000)])
    open_find(app).search(r"\4321.")
    assert found(app) == ("01.03.2024", 4321)
    assert app.main.source.row_count == 5000


@pytest.mark.parametrize("answer", ["Yes", "No"])
def test_the_list_is_cleared_after_a_question(folder, answer):
    folder.write_settings(Ordalyn={"Find3": '"gamma"', "Filter1": '"f"'})
    app = folder.show(LOG)
    dialog = open_find(app)
    assert dialog.what.items == ["gamma"]
    assert dialog.button("Clear List").enabled
    dialog.what.type("copy")
    dialog.button("Clear List").click()
    question = app.message()
    assert (question.text, question.icon) == ("Are you sure?", "question")
    question.press(answer)
    cleared = answer == "Yes"
    assert dialog.what.items == ([] if cleared else ["gamma"])
    assert dialog.what.value == ("" if cleared else "copy")
    assert ("Find3" in folder.settings["Ordalyn"]) != cleared
    assert dialog.button("Clear List").enabled != cleared
    assert dialog.button("Find Next").enabled != cleared
    assert folder.settings["Ordalyn"]["Filter1"] == '"f"'


def test_history_and_options_outlive_the_program(folder):
    app = folder.show(LOG)
    dialog = open_find(app)
    assert not dialog.button("Clear List").enabled
    for text in ("copy", "move", "COPY"):
        dialog.search(text)
    assert dialog.what.items == ["move", "copy"]
    # The texts are written at once.
    assert [folder.settings["Ordalyn"][key] for key in ("Find1", "Find2")] == ['"move"', '"copy"']
    dialog.button("Target").click()
    dialog.button("Match whole word only").click()
    dialog.close()
    dialog.wait_for_end()
    app.close()
    app = folder.show(LOG)
    dialog = open_find(app)
    assert dialog.what.items == ["move", "copy"]
    assert dialog.what.value == ""
    assert not dialog.button("Find Next").enabled
    assert dialog.button("Target").checked
    assert dialog.button("Match whole word only").checked
    # One from the list is as good as typed.
    dialog.what.choose("move")
    assert dialog.button("Find Next").enabled


def test_the_thirty_third_text_drops_the_oldest(folder):
    folder.write_settings(Ordalyn={f"Find{n}": f'"text{n}"' for n in range(1, 33)})
    app = folder.show(LOG)
    dialog = open_find(app)
    dialog.search("copy")
    settings = wait_until(lambda: folder.settings["Ordalyn"].get("Find1") == '"copy"'
                          and folder.settings["Ordalyn"], "the new text")
    assert settings["Find2"] == '"text1"'
    assert settings["Find32"] == '"text31"'
    assert "Find33" not in settings
    assert len(dialog.what.items) == 32


def test_the_dialog_lies_in_the_middle_of_the_screen_and_beside_the_main_window(show):
    app = show(LOG)
    dialog = open_find(app)
    rect = dialog.rect
    display = app.wine.display
    assert abs((rect.left + rect.right) - display.WIDTH) <= 2
    # The height of the screen less what the desktop's bar may take.
    assert abs((rect.top + rect.bottom) - display.HEIGHT) <= 60
    assert app.main.enabled
    assert dialog.info["owner"] == app.main.handle
    # Tab goes round all controls that can be used.
    seen = []
    for _ in range(12):
        focus = app.agent.ask("focus")["focus"]
        if seen and focus == seen[0]:
            break
        seen.append(focus)
        app.keys("Tab")
    assert len(seen) == 5  # text, column, two boxes, Cancel: nothing to find or clear yet
