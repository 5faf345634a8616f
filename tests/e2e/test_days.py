"""The days of a log, and the two panels that move together."""

import pytest

DAYS = ["01.03.2024", "02.03.2024", "01.03.2024"]


def many(count, date="01.03.2024"):
    return [rf"{date} {i // 3600:02d}:{i // 60 % 60:02d}:{i % 60:02d}: Copy C:\{i}.txt -> D:\{i}.txt"
            for i in range(count)]


def three_days():
    return many(3, DAYS[0]) + many(5, DAYS[1]) + many(4, DAYS[2])


def test_a_date_that_comes_back_is_listed_again(show):
    app = show(three_days())
    assert app.main.dates.items == ["All dates", *DAYS]
    assert app.main.dates.index == 3


def test_a_single_day_stands_alone(show):
    app = show(many(4))
    assert app.main.dates.items == ["01.03.2024"]
    assert app.main.dates.index == 0


def test_choosing_a_day_shows_its_rows(show):
    app = show(three_days())
    app.main.dates.choose("02.03.2024")
    assert app.main.source.row_count == 5
    assert app.main.target.row_count == 5
    assert app.main.status[0] == "5 Operation(s)  "
    app.main.dates.choose(1)
    assert app.main.source.row_count == 3


def test_all_dates_shows_every_row_and_the_date_of_the_selected_one(show):
    app = show(three_days())
    app.main.dates.choose("All dates")
    assert app.main.source.row_count == 12
    assert app.main.status[0] == "12 Operation(s)  "
    app.main.source.click_row(4)
    on_second_day = app.main.status[1]
    app.main.source.click_row(0)
    assert app.main.status[1] != on_second_day


def test_the_combo_box_works_by_keyboard(show):
    app = show(three_days())
    app.main.dates.focus()
    app.keys("Up")
    assert app.main.dates.chosen == "02.03.2024"
    assert app.main.source.row_count == 5
    app.keys("Home")
    assert app.main.source.row_count == 12


def test_short_dates_in_the_combo_go_with_long_dates_in_the_status_bar(folder):
    app = folder.show(many(2, "3/1/2024"))
    assert app.main.dates.chosen == "3/1/2024"
    assert app.main.status[1] == "Friday, March 1, 2024  "


def test_long_dates_in_the_combo_go_with_short_dates_in_the_status_bar(folder):
    folder.write_settings(Ordalyn={"LongDate": 1})
    app = folder.show(many(2, "3/1/2024"))
    assert app.main.dates.chosen == "Friday, March 1, 2024"
    assert app.main.status[1] == "3/1/2024  "


def test_the_long_date_is_the_one_of_the_system(folder):
    app = folder.show(many(2), locale="de_DE.UTF-8")
    assert app.main.status[1].strip() == "Freitag, 1. März 2024"


def test_a_clock_time_is_no_date(folder):
    folder.write_settings(Ordalyn={"LongDate": 1})
    app = folder.show([r"10:15 10:15:30: Copy C:\a.txt -> D:\a.txt"])
    assert app.main.dates.items == ["10:15"]


def test_comment_lines_belong_to_the_day_in_which_they_stand(show):
    app = show(["; first", ";second", *many(2)])
    rows = app.main.source.rows()
    assert rows[:2] == [("", " first"), ("", "second")]
    assert app.main.source.row_count == 4


@pytest.mark.parametrize("panel, other", [("source", "target"), ("target", "source")])
def test_a_click_selects_the_same_row_in_the_other_panel(show, panel, other):
    app = show(many(100))
    getattr(app.main, panel).click_row(60)
    assert getattr(app.main, panel).selected == [60]
    assert getattr(app.main, other).selected == [60]
    assert 60 in getattr(app.main, other).visible_rows


@pytest.mark.parametrize("panel, other", [("source", "target"), ("target", "source")])
def test_the_keyboard_moves_the_selection_in_both_panels(show, panel, other):
    app = show(many(100))
    mine, theirs = getattr(app.main, panel), getattr(app.main, other)
    mine.click_row(0)
    for key in ("Down", "Down", "PageDown", "End", "PageUp", "Up", "Home"):
        before = mine.selected
        app.keys(key)
        assert mine.selected != before, key
        assert theirs.selected == mine.selected, key
        assert theirs.selected[0] in theirs.visible_rows, key
    assert mine.selected == [0]


def test_the_title_follows_the_selected_row(show):
    app = show(three_days(), name="the.log")
    app.main.source.click_row(1)
    assert app.main.log_title == "the.log"


def test_the_context_menu_copies_the_target(show):
    app = show(many(3))
    app.main.source.click_row(1, "right")
    menu = app.pop_up()
    assert [(e.name, e.shortcut) for e in menu.entries][:2] == [
        ("Copy Source", "Ctrl+C"), ("Copy Target", "Ctrl+Alt+C")]
    menu.choose("Copy Target")
    assert app.clipboard == r"D:\1.txt"


def test_the_context_menu_copies_no_target_where_there_is_none(show):
    app = show([r"01.03.2024 10:00:00: Delete C:\a.txt"])
    app.main.source.click_row(0, "right")
    assert not app.pop_up()["Copy Target"].enabled
    app.keys("Escape")
    assert not app.has_pop_up


def test_a_line_whose_time_cannot_be_told_is_shown_whole(folder):
    app = folder.show([r"01.03.2024 10:00:00: Delete C:\a.txt", "01.03.2024 nothing-else",
                       r"01.03.2024  10:00:01: Copy C:\b.txt -> D:\b.txt",
                       r"01.03.2024 10:00:02: Delete C:\c.txt"])
    app.wait_for_rows(4)
    assert app.main.source.visible and app.main.target.visible
    assert app.main.source.rows() == [("10:00:00", r"Delete C:\a.txt"), ("", "nothing-else"),
                                      ("", r" 10:00:01: Copy C:\b.txt "),
                                      ("10:00:02", r"Delete C:\c.txt")]
    assert app.main.target.column(0)[2] == r"D:\b.txt"
    assert app.main.status[0] == "4 Operation(s)  "
    assert app.pointer == "arrow"
    app.close()
