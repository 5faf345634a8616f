"""What the copy commands put on the clipboard, and what they leave there."""

import pytest

from harness.agent import AgentError
from harness.waiting import wait_until

LOG = [
    r"01.03.2024 10:15:30: Copy C:\Пётр и 報告.txt -> D:\ελληνικά\Пётр 🗒.txt",
    r"01.03.2024 10:15:31: Delete C:\b.txt",
    r"01.03.2024 10:15:32: Copy C:\c.txt -> D:\c.txt",
]
BEFORE = "what was there before"


@pytest.fixture
def app(show):
    app = show(LOG)
    app.main.source.click_row(0)
    app.clipboard = BEFORE
    return app


def copied(app, *chords):
    """What the clipboard holds after the keys, when it held something else before."""
    app.clipboard = BEFORE
    app.keys(*chords)
    return app.clipboard


def test_keys(app):
    source, target = r"Copy C:\Пётр и 報告.txt ", r"D:\ελληνικά\Пётр 🗒.txt"
    assert copied(app, "Ctrl+C") == source
    assert copied(app, "Ctrl+Shift+C") == source
    assert copied(app, "Ctrl+Alt+C") == target
    assert copied(app, "Ctrl+Alt+Shift+C") == target
    for chord in ("c", "Shift+C"):
        assert copied(app, chord) == BEFORE
    # The letter searches the list like any other; back to the row.
    app.main.source.click_row(0)

    # Nothing happens when the key goes down, whatever is held when it comes up counts.
    app.clipboard = BEFORE
    app.key_down("Ctrl")
    app.key_down("C")
    app.settle()
    assert app.clipboard == BEFORE
    app.key_up("C")
    app.key_up("Ctrl")
    assert app.clipboard == source

    # Anywhere in the window.
    app.main.target.click_row(2)
    assert app.main.target.focused
    assert copied(app, "Ctrl+C") == r"Copy C:\c.txt "
    assert copied(app, "Ctrl+Alt+C") == r"D:\c.txt"
    app.main.dates.focus()
    assert copied(app, "Ctrl+C") == r"Copy C:\c.txt "

    # Without a target the clipboard stays as it is.
    app.main.source.click_row(1)
    assert copied(app, "Ctrl+Alt+C") == BEFORE
    assert copied(app, "Ctrl+C") == r"Delete C:\b.txt"

    # One panel shows the same rows.
    app.main.choose("View", "Two Panels")
    app.main.source.click_row(0)
    assert app.main.source.selected == [0]
    assert copied(app, "Ctrl+C") == source
    assert copied(app, "Ctrl+Alt+C") == target


def test_the_context_menu(app):
    app.main.source.click_row(0, "right")
    app.pop_up().choose("Copy Source")
    assert app.clipboard == r"Copy C:\Пётр и 報告.txt "
    app.main.target.click_row(2, "right")
    assert app.main.source.selected == [2]
    app.pop_up().choose("Copy Target")
    assert app.clipboard == r"D:\c.txt"

    # By the keyboard, at the selected row: the menu opens when the key comes up.
    app.main.source.click_row(1)
    app.key_down("ContextMenu")
    app.settle()
    assert not app.has_pop_up
    app.agent.ask("keys", keys=[0x5D, 0])
    menu = app.pop_up()
    assert menu["Copy Source"].enabled
    assert not menu["Copy Target"].enabled
    app.clipboard = BEFORE
    app.agent.ask("keys", keys=[0x1B, 1, 0x1B, 0])
    app.settle()
    assert not app.has_pop_up
    assert app.clipboard == BEFORE


@pytest.mark.parametrize("panel", ["source", "target"])
@pytest.mark.parametrize("key", ["ContextMenu", "Shift+F10"])
def test_the_menu_by_keyboard_opens_at_the_selected_row(app, key, panel):
    used = getattr(app.main, panel)
    used.click_row(2)
    # The pointer is elsewhere.
    app.point_at(app.main.rect.right - 30, app.main.rect.bottom - 60)
    app.keys_without_waiting(key)
    menu = app.pop_up()
    row = used.row_rect(2)
    assert abs(menu.rect.top - row.bottom) <= 4
    assert used.rect.left - 4 <= menu.rect.left <= used.rect.left + 8
    menu.choose("Copy Target")
    assert app.clipboard == r"D:\c.txt"
    # The key that opened it has opened no other menu.
    assert not app.agent.ask("focus")["inMenu"]
    app.keys("Up")
    assert used.selected == [1]


def test_ctrl_c_copies_whichever_key_is_let_go_first(app):
    for held, expected in ((["Ctrl"], r"Copy C:\c.txt "), (["Ctrl", "Alt"], r"D:\c.txt")):
        app.main.source.click_row(2)
        app.clipboard = BEFORE
        for name in [*held, "C"]:
            app.key_down(name)
        app.settle()
        assert app.clipboard == BEFORE
        for name in [*held, "C"]:
            app.key_up(name)
        assert app.clipboard == expected


def hold(app, seconds):
    """Another program opens the clipboard, as soon as nobody else has it."""
    wait_until(lambda: app.agent.ask("holdClipboard", milliseconds=int(seconds * 1000)),
               "the clipboard to be held")


def held_no_more(app):
    """The clipboard's text; None while it cannot be opened."""
    try:
        return app.clipboard
    except AgentError:
        return None


def test_another_program_holds_the_clipboard(app):
    # For a moment: the copy is tried again.
    hold(app, 0.3)
    app.keys("Ctrl+C")
    assert app.clipboard == r"Copy C:\Пётр и 報告.txt "
    # For long: the copy is given up without a word.
    app.clipboard = BEFORE
    hold(app, 8)
    app.keys("Ctrl+Alt+C")
    assert not app.find_dialog()
    assert app.main.responsive
    assert wait_until(lambda: held_no_more(app), "the clipboard to be free", 20) == BEFORE
    assert copied(app, "Ctrl+Alt+C") == r"D:\ελληνικά\Пётр 🗒.txt"
    app.close()


def test_what_was_copied_outlives_the_program(folder, app):
    app.keys("Ctrl+C")
    app.close()
    again = folder.show(LOG)
    assert again.clipboard == r"Copy C:\Пётр и 報告.txt "
