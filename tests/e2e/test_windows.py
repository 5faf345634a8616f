"""The windows beside the main one: about box, progress, and what the menus offer."""

import pytest

WM_CLOSE = 0x10
LOG = [r"01.03.2024 10:15:30: Copy C:\a.txt -> D:\a.txt"]


def test_the_about_box_says_who_and_which(show):
    app = show(LOG)
    app.main.choose("Help", "About...")
    about = app.window("About")
    assert about.text == "About Ordalyn"
    texts = about.texts
    for text in ("Programmed by:", "Version:", "1.00", "Web site:", "e-mail:"):
        assert text in texts, text
    assert not app.main.enabled
    about.button("OK").press()
    assert not app.find_window("About")
    assert app.main.enabled


def test_the_about_box_goes_by_escape(show):
    app = show(LOG)
    app.main.choose("Help", "About...")
    app.window("About")
    app.keys("Escape")
    assert not app.find_window("About")


def test_missing_help_is_told(show, folder):
    for file in folder.program.glob("Readme*.chm"):
        file.unlink()
    app = show(LOG)
    app.main.choose("Help", "Help Topics")
    message = app.message()
    assert message.text == "File not found."
    assert message.icon == "error"
    message.press("OK")


@pytest.mark.usefixtures("pointer_inside")
def test_a_read_shows_its_progress_and_leaves_nothing_of_it(show, folder):
    app = show(LOG)
    app.watch_windows()
    app.main.drop_files(folder.windows(folder.write("long.log", LOG * 20_000).name))
    app.wait_for_rows(20_000)
    assert "  Reading... Please wait." in app.captions_so_far
    assert [w["text"] for w in app.windows() if "Reading" in w["text"]] == []
    assert app.pointer == "arrow"


def test_the_menus(show):
    app = show(LOG)
    captions = [menu.caption for menu in app.main.menus]
    assert (captions[0], captions[-1]) == ("&File", "&Help")
    assert "&View" in captions
    assert app.main.menu("View", "Status Bar").checked
    assert app.main.menu("View", "Two Panels").checked
    assert not app.main.menu("View", "Vertical Panels").checked
    assert app.main.menu("File", "Exit").shortcut == "Alt+F4"


def test_exit_ends_the_program(show):
    app = show(LOG)
    app.main.choose("File", "Exit")
    app.wait_for_end()
    assert app.exit_code == 0


def test_alt_f4_ends_the_program(show):
    app = show(LOG)
    app.keys("Alt+F4")
    app.wait_for_end()
    assert app.exit_code == 0


@pytest.mark.parametrize("menu, title", [(("Help", "About..."), "About"),
                                         (("View", "Options..."), "Options")])
def test_no_dialog_keeps_another_program_from_ending_this_one(show, folder, menu, title):
    app = show(LOG)
    app.main.choose(*menu)
    app.window(title)
    assert not app.main.enabled
    app.main.ask("post", message=WM_CLOSE)
    app.wait_for_end()
    assert app.exit_code == 0
    assert "MainPosition" in folder.settings["Ordalyn"]


def test_nothing_but_the_main_window_is_on_screen(show):
    app = show(LOG)
    width, height = app.wine.display.WIDTH, app.wine.display.HEIGHT
    on_screen = [w["text"] for w in app.windows()
                 if w["rect"][0] < width and w["rect"][1] < height
                 and w["rect"][2] > 0 and w["rect"][3] > 0]
    assert on_screen == [app.main.text]
