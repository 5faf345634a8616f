"""What survives a restart: placement, columns, splitter, panels, status bar."""

import pytest

LOG = [rf"01.03.2024 10:00:{i:02d}: Copy C:\{i}.txt -> D:\{i}.txt" for i in range(50)]
# Twips for one pixel at 96 DPI.
TPP = 15
# The bar is three pixels thick. When a drag begins, it jumps back by all but one of them.
JUMP = 2


def restart(folder, app):
    app.close()
    return folder.show(LOG)


def saved(folder):
    return folder.settings["Ordalyn"]


def columns_fit(panel, times):
    """Whether they take what the borders and the scroll bar leave, as much as a path can have."""
    widths = [column.width for column in panel.columns]
    inside = panel.rect.right - panel.rect.left - 25 * times
    return sum(widths) == pytest.approx(inside, abs=2) and all(
        45 * times < time < 80 * times for time in widths[:-1])


def test_a_first_start_uses_the_defaults(show):
    app = show(LOG)
    bounds = app.main.rect
    assert (bounds.left, bounds.top) == (0, 0)
    assert (bounds.right, bounds.bottom) == (12030 // TPP, 8520 // TPP)
    assert app.main.two_panels
    assert app.main.source.rect.bottom <= app.main.target.rect.top
    assert columns_fit(app.main.source, 1)
    assert columns_fit(app.main.target, 1)
    assert app.main.status_bar.visible


def test_a_first_start_at_144_dpi_is_larger_by_half(show, dpi144):
    app = show(LOG)
    bounds = app.main.rect
    assert (bounds.right, bounds.bottom) == (1203, 852)
    assert columns_fit(app.main.source, 1.5)


def test_the_placement_survives(folder):
    app = folder.show(LOG)
    app.main.place(120, 90, 900, 600)
    app = restart(folder, app)
    assert saved(folder)["MainPosition"] == "1800,1350,13500,9000"
    assert app.main.rect == (120, 90, 1020, 690)


def test_a_maximised_window_starts_maximised_and_keeps_its_normal_placement(folder):
    app = folder.show(LOG)
    app.main.place(120, 90, 900, 600)
    app = restart(folder, app)
    app.main.maximise()
    app = restart(folder, app)
    assert saved(folder)["MainWindowState"] == "2"
    assert saved(folder)["MainPosition"] == "1800,1350,13500,9000"
    assert app.main.maximised
    app.main.restore()
    assert app.main.rect == (120, 90, 1020, 690)


@pytest.mark.parametrize("stored", ["99999,99999,1,1", "", "-30000,100,12030,8520",
                                    "300,-9000,12030,8520", "a,b,c,d"])
def test_a_window_that_nobody_could_take_starts_at_its_default_place(folder, stored):
    folder.write_settings(Ordalyn={"MainPosition": stored, "FiltersPosition": "99999,99999,1,1"})
    app = folder.show(LOG)
    assert app.main.rect == (0, 0, 12030 // TPP, 8520 // TPP)
    app.keys("Ctrl+L")
    bounds = app.window("Filter").rect
    assert (bounds.left, bounds.top) == (3495 // TPP, 7740 // TPP)


def test_a_window_is_at_least_as_large_as_the_system_lets_it_be(folder):
    folder.write_settings(Ordalyn={"MainPosition": "1500,1500,1,1"})
    app = folder.show(LOG)
    bounds = app.main.rect
    assert (bounds.left, bounds.top) == (100, 100)
    assert bounds.right - bounds.left >= 80
    assert bounds.bottom - bounds.top >= 20


def test_a_minimised_window_starts_normal(folder):
    app = folder.show(LOG)
    app.main.minimise()
    app = restart(folder, app)
    assert saved(folder)["MainWindowState"] == "1"
    assert not app.main.minimised


def test_column_widths_survive_in_twips(folder):
    folder.write_settings(Ordalyn={"ColumnsWidth": "884,10019,10890"})
    app = folder.show(LOG)
    app.main.source.drag_column_edge(0, 41)
    assert app.main.source.columns[0].width == 100
    app = restart(folder, app)
    # The other two were not touched and are kept as they were.
    assert saved(folder)["ColumnsWidth"] == "1500,10019,10890"
    assert app.main.source.columns[0].width == 100


def test_the_order_of_columns_survives(folder):
    app = folder.show(LOG)
    app.main.source.order_columns(1, 0)
    assert [column.position for column in app.main.source.columns] == [1, 0]
    app = restart(folder, app)
    assert saved(folder)["ColumnHeadersPosition"] == "2,1,3"
    assert [column.position for column in app.main.source.columns] == [1, 0]


def test_the_splitter_drags_and_its_position_survives(folder):
    app = folder.show(LOG)
    before = app.main.splitter.rect
    app.main.drag_splitter(60)
    moved = app.main.splitter.rect
    assert moved.top - before.top == 60 - JUMP
    assert app.main.target.rect.top == moved.bottom
    app = restart(folder, app)
    assert app.main.splitter.rect == moved
    assert abs(int(saved(folder)["HSplitPosition"]) - (4000 + (60 - JUMP) * TPP)) < TPP
    assert saved(folder)["VSplitPosition"] == "4000"


def test_each_orientation_keeps_its_own_position(folder):
    app = folder.show(LOG)
    stacked = app.main.splitter.rect
    app.main.choose("View", "Vertical Panels")
    assert app.main.menu("View", "Vertical Panels").checked
    assert app.main.source.rect.right <= app.main.target.rect.left
    before = app.main.splitter.rect
    app.main.drag_splitter(100)
    beside = app.main.splitter.rect
    assert beside.left - before.left == 100 - JUMP
    app.main.choose("View", "Vertical Panels")
    assert app.main.splitter.rect == stacked
    app.main.choose("View", "Vertical Panels")
    assert app.main.splitter.rect == beside
    app = restart(folder, app)
    assert saved(folder)["VerticalPanels"] == "1"
    assert app.main.menu("View", "Vertical Panels").checked
    assert app.main.splitter.rect == beside


def test_one_panel_shows_the_target_as_a_column_and_survives(folder):
    app = folder.show(LOG)
    app.main.source.click_row(7)
    app.main.choose("View", "Two Panels")
    assert not app.main.two_panels
    assert app.main.source.headers == ["Time", "Source", "Target"]
    assert app.main.source.rows(7, 1) == [("10:00:07", r"Copy C:\7.txt ", r"D:\7.txt")]
    assert app.main.source.selected == [7]
    assert app.main.source.focused
    assert not app.main.menu("View", "Vertical Panels").enabled
    app = restart(folder, app)
    assert saved(folder)["TwoPanels"] == "0"
    assert app.main.source.headers == ["Time", "Source", "Target"]
    assert not app.main.menu("View", "Two Panels").checked
    app.main.choose("View", "Two Panels")
    assert app.main.two_panels
    assert app.main.source.headers == ["Time", "Source"]
    assert app.main.target.rows(7, 1) == [(r"D:\7.txt",)]


def test_closing_with_one_panel_leaves_the_splitter_settings(folder):
    folder.write_settings(Ordalyn={"VerticalPanels": 1, "VSplitPosition": 5001,
                                   "HSplitPosition": 3002, "TwoPanels": 0})
    app = folder.show(LOG)
    app.close()
    kept = saved(folder)
    assert (kept["VerticalPanels"], kept["VSplitPosition"], kept["HSplitPosition"]) == (
        "1", "5001", "3002")


def test_a_bar_beyond_the_normal_window_survives_a_start_maximised(folder):
    # The screen is larger than the window is when it is not maximised.
    folder.write_settings(Ordalyn={"MainPosition": "0,0,9000,6000", "MainWindowState": 2,
                                   "HSplitPosition": 7000})
    app = folder.show(LOG)
    height = app.main.source.rect.bottom - app.main.source.rect.top
    assert abs(height - 7000 // TPP) <= 2
    app = restart(folder, app)
    assert saved(folder)["HSplitPosition"] == "7000"
    assert app.main.source.rect.bottom - app.main.source.rect.top == height


def test_a_bar_beyond_the_design_s_size_survives_a_start_with_one_panel(folder):
    folder.write_settings(Ordalyn={"MainPosition": "0,0,14000,10500", "TwoPanels": 0,
                                   "HSplitPosition": 8000})
    app = folder.show(LOG)
    app.main.choose("View", "Two Panels")
    assert abs(app.main.source.rect.bottom - app.main.source.rect.top - 8000 // TPP) <= 2
    app.close()
    assert saved(folder)["HSplitPosition"] == "8000"


def test_the_status_bar_hides_at_once_and_stays_hidden(folder):
    app = folder.show(LOG)
    height = app.main.status_bar.rect.bottom - app.main.status_bar.rect.top
    before = app.main.target.rect.bottom
    app.main.choose("View", "Status Bar")
    assert not app.main.status_bar.visible
    assert app.main.target.rect.bottom - before == height
    app = restart(folder, app)
    assert saved(folder)["StatusBarVisible"] == "0"
    assert not app.main.status_bar.visible
    assert not app.main.menu("View", "Status Bar").checked
    app.main.choose("View", "Status Bar")
    assert app.main.status_bar.visible


def test_a_flag_is_on_when_it_is_not_zero_and_one_click_turns_it_off(folder):
    folder.write_settings(Ordalyn={"StatusBarVisible": 2, "VerticalPanels": -1, "TwoPanels": 3})
    app = folder.show(LOG)
    assert app.main.status_bar.visible
    for entry in ("Status Bar", "Vertical Panels", "Two Panels"):
        assert app.main.menu("View", entry).checked, entry
        app.main.choose("View", entry)
        assert not app.main.menu("View", entry).checked, entry
    assert not app.main.status_bar.visible
    assert not app.main.two_panels


@pytest.mark.parametrize("size", [(400, 300), (1200, 800)])
def test_the_panels_fill_the_window(show, size):
    app = show(LOG)
    app.main.place(10, 10, *size)
    client = app.main.info["client"]
    panel, target = app.main.source.rect, app.main.target.rect
    # A pixel is left at each side.
    assert panel.left == client[0] + 1
    assert panel.right == target.right == client[2] - 1
    assert target.bottom <= app.main.status_bar.rect.top
    assert app.main.status_bar.rect.top - target.bottom <= 3


def test_a_window_made_very_small_does_no_harm(show):
    app = show(LOG)
    app.main.place(10, 10, 60, 40)
    app.main.place(10, 10, 900, 600)
    assert app.main.source.rect.bottom <= app.main.target.rect.top
    assert app.main.source.row_count == 50
    app.close()
