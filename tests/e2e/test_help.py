"""F1 asks Windows' viewer of help files, for which a stand-in notes what it is told, for the right page."""

import shutil

import pytest

from harness.dialogs import open_calendar, open_filter, open_find, open_history, open_options
from harness.filedialog import FileDialog
from harness.folder import tools_folder
from harness.waiting import wait_until

LOG = [rf"01.03.2024 10:00:{i:02d}: Copy C:\{i}.txt -> D:\{i}.txt" for i in range(3)]


class Viewer:
    def __init__(self, place):
        self.place = place
        self.noted = place.with_name(f"{place.name}.started")
        self.asked = 0

    def page(self):
        """What it is asked for next, as the program it is a part of reads its arguments."""
        def lines():
            found = self.noted.read_text("utf-8").splitlines() if self.noted.exists() else []
            return found if len(found) > self.asked else None
        found = wait_until(lines, "the viewer to be started", 20)
        self.asked += 1
        assert len(found) == self.asked
        arguments, *read = found[-1].split("\t")
        assert len(read) == 1 and arguments == f'"{read[0]}"'
        return read[0]


@pytest.fixture
def viewer(wine):
    place = wine.folder / "drive_c" / "windows" / "hh.exe"
    own = place.read_bytes()
    place.unlink()
    shutil.copy(tools_folder() / "ordalyn_e2e_file_manager.exe", place)
    found = Viewer(place)
    yield found
    place.unlink()
    place.write_bytes(own)
    found.noted.unlink(missing_ok=True)


def test_each_window_has_its_page(show, folder, viewer):
    app = show(LOG)
    file = folder.windows(folder.program.name, "Readme.chm")
    pages = []

    def press():
        app.keys("F1")
        path, _, page = viewer.page().partition("::/")
        assert path.casefold() == file.casefold()
        pages.append(page)

    app.main.source.click_row(0)
    press()
    for open_window in (open_filter, open_calendar, open_history):
        window = open_window(app)
        press()
        app.keys("Escape")
        wait_until(lambda handle=window.handle: not app.has_window(handle), "the window to go")
    assert pages == ["window.html", "filter.html", "calendar.html", "history.html"]

    # In a message, which belongs to the find dialog here.
    find = open_find(app)
    press()
    find.search("nowhere")
    message = app.message()
    press()
    message.press("OK")
    app.keys("Escape")
    options = open_options(app)
    press()
    app.keys("Ctrl+Tab")
    press()
    app.keys("Escape")
    wait_until(lambda: not app.has_window(options.handle), "the options to go")
    # The system's own dialogs have help of their own, or none.
    app.keys("Ctrl+O")
    dialog = FileDialog.of(app)
    app.keys("F1")
    dialog.cancel()
    app.main.choose("Help", "About...")
    press()
    app.keys("Escape")
    assert pages[4:] == ["find.html", "messages.html", "options.html", "languages.html", "about.html"]
    app.close()


def test_help_that_is_missing_is_reported_where_it_is_asked_for(show, folder, viewer):
    for file in folder.program.glob("Readme*.chm"):
        file.unlink()
    app = show(LOG)
    open_find(app)
    app.keys("F1")
    message = app.message()
    assert message.text == "File not found."
    # It would take another message to say so again.
    app.keys("F1")
    assert len([window for window in app.windows() if window["class"] == "#32770"]) == 1
    message.press("OK")
    assert not viewer.noted.exists()
    app.close()
