"""Windows that come to a screen of another resolution. Wine has only one for all screens, so that the
tests tell the program what Windows would; the frames, menus and scroll bars are Wine's own and stay."""

import pytest

from harness.dialogs import open_filter, open_find, open_options

LOG = [rf"01.03.2024 10:{i // 60:02d}:{i % 60:02d}: Copy C:\{i}.txt -> D:\{i}.txt" for i in range(200)]
TB_GETBUTTONSIZE = 0x43A


def size(rect):
    return rect[2] - rect[0], rect[3] - rect[1]


def come_to_screen(window, dpi, rect):
    """In its place, with the size that Windows proposes for one of this size at 96 DPI."""
    width, height = size(rect)
    window.come_to_screen(dpi, rect.left, rect.top, width * dpi // 96, height * dpi // 96)


def parts(window):
    """The classes, places (in their window), sizes and fonts' heights of all that is on a window."""
    around = window.rect
    found = []
    for each in window.controls(visible=None):
        rect = each.rect
        font = each.font
        found.append((each.info["class"], rect.left - around.left, rect.top - around.top, *size(rect),
                      font["height"] if font["own"] else 0))
    return found


def lists(app):
    return [(column.width, panel.top_row, size(panel.row_rect(panel.top_row))[1], panel.selected)
            for panel in (app.main.source, app.main.target) for column in panel.columns]


def everything(app, *windows):
    return [[window.rect, parts(window)] for window in windows], lists(app)


@pytest.fixture
def windows(folder):
    """The main window and its two dialogs. A column has the width that a person gave it."""
    folder.write_settings(Ordalyn={"MainPosition": "0,0,9015,6000", "FiltersPosition": "0,6500,9000,795",
                                   "HSplitPosition": 2507, "ColumnsWidth": "884,10019,10890"})
    app = folder.show(LOG)
    app.main.source.drag_column_edge(0, 41)
    app.main.source.click_row(100)
    return app, app.main, open_filter(app), open_find(app)


def test_everything_grows_with_the_resolution_and_comes_back(folder, windows):
    app, *shown = windows
    places = [window.rect for window in shown]
    before, before_lists = everything(app, *shown)
    for dpi in (144, 192):
        for window, place in zip(shown, places):
            come_to_screen(window, dpi, place)
        now, now_lists = everything(app, *shown)
        times = dpi / 96
        for (_, old_parts), (_, new_parts) in zip(before, now):
            for old, new in zip(old_parts, new_parts):
                assert new[0] == old[0]
                # These have what a frame or a button of Wine's leaves them.
                fills = old[3] > 500 or old[0] in ("SysListView32", "SysHeader32", "OrdalynPicture", "Edit")
                if not fills:
                    assert new[3] == pytest.approx(old[3] * times, abs=8), (dpi, old, new)
                    # Boxes and bars are as high as their fonts and the system's edges make them.
                    assert new[4] == pytest.approx(old[4] * times, rel=0.25), (dpi, old, new)
                assert new[5] == pytest.approx(old[5] * times, abs=1), (dpi, old, new)
        for (width, top, row, selected), (new_width, new_top, new_row, new_selected) in zip(
                before_lists, now_lists):
            assert new_width == pytest.approx(width * times, abs=1)
            assert new_row == pytest.approx(row * times, abs=3)
            assert (new_top, new_selected) == (top, selected)
        bar = shown[0].splitter.rect
        assert bar.bottom - bar.top == pytest.approx(3 * times, abs=1)
        height = bar.top - app.main.source.rect.top
        assert height == pytest.approx(2507 / 15 * times, abs=1)
        assert app.main.target.rect.top == bar.bottom
        assert app.main.source.rect.right == pytest.approx(shown[0].info["client"][2] - times, abs=1)
        button = shown[1].tool_bar.send(TB_GETBUTTONSIZE) & 0xFFFF
        assert button == 23 + 16 * (times - 1)
    for window, place in zip(shown, places):
        come_to_screen(window, 96, place)
    assert everything(app, *shown) == (before, before_lists)
    app.close()
    assert folder.settings["Ordalyn"]["HSplitPosition"] == "2507"
    assert folder.settings["Ordalyn"]["MainPosition"] == "0,0,9015,6000"
    assert folder.settings["Ordalyn"]["ColumnsWidth"].startswith("1500,10019,")


def test_what_is_stored_does_not_depend_on_the_screen(folder):
    folder.write_settings(Ordalyn={"MainPosition": "15,30,9007,6001", "HSplitPosition": 2507,
                                   "ColumnsWidth": "884,10019,10890"})
    app = folder.show(LOG)
    app.main.come_to_screen(192, 1, 2, 1200, 800)
    app.close()
    kept = folder.settings["Ordalyn"]
    assert (kept["MainPosition"], kept["HSplitPosition"]) == ("15,30,9007,6001", "2507")
    assert kept["ColumnsWidth"] == "884,10019,10890"


def test_a_splitter_that_is_dragged_there_is_stored_in_twips(folder):
    folder.write_settings(Ordalyn={"MainPosition": "0,0,9000,6000", "HSplitPosition": 2500})
    app = folder.show(LOG)
    app.main.come_to_screen(192, 0, 0, 1200, 800)
    before = app.main.splitter.rect.top
    app.main.drag_splitter(60)
    moved = app.main.splitter.rect.top - before
    app.close()
    assert int(folder.settings["Ordalyn"]["HSplitPosition"]) == pytest.approx(2500 + moved * 7.5, abs=8)


def test_dialogs_open_at_the_resolution_of_their_owner(show):
    app = show(LOG)
    usual = open_options(app)
    width, button = size(usual.rect)[0], size(usual.button("Cancel").rect)
    font = usual.button("Cancel").font["height"]
    app.keys("Escape")
    come_to_screen(app.main, 144, app.main.rect)
    large = open_options(app)
    assert size(large.rect)[0] == pytest.approx(width * 1.5, abs=6)
    assert size(large.button("Cancel").rect) == pytest.approx([each * 1.5 for each in button], abs=1)
    assert large.button("Cancel").font["height"] == pytest.approx(font * 1.5, abs=1)
    app.keys("Escape")
    come_to_screen(app.main, 96, app.main.rect)


def test_a_dialog_does_not_follow_its_owner_by_itself(show):
    app = show(LOG)
    dialog = open_find(app)
    before = parts(dialog)
    come_to_screen(app.main, 144, app.main.rect)
    assert parts(dialog) == before
    come_to_screen(dialog, 144, dialog.rect)
    assert dialog.what.font["height"] == pytest.approx(before[0][5] * 1.5, abs=1)
