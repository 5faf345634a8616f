"""What the system's own dialogs for colours, fonts and files are given, and what is kept of them."""

import pathlib
import struct

import pytest

from harness.controls import center
from harness.dialogs import open_options
from harness.filedialog import FileDialog
from harness.waiting import wait_until
from harness.wine import windows_path

LOG = [r"01.03.2024 10:15:30: Delete C:\a.txt"]

# Control ids of the system's dialogs.
CUSTOM_COLOURS, RED, GREEN, BLUE, ADD_COLOUR = 0x2D1, 706, 707, 708, 0x2C8
FONT_NAMES, FONT_STYLES = 0x470, 0x471

REMEMBERED_BY_THE_SYSTEM = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Explorer\ComDlg32"

# A font whose bold face can be made heavier: both names are of the same length.
BOLD_FONT = pathlib.Path("/usr/share/fonts/truetype/liberation/LiberationSans-Bold.ttf")
ITS_NAME, HEAVY_NAME = "Liberation Sans", "Ponderosus Sans"
WEIGHT = 900


def settings(folder):
    return folder.settings.get("Ordalyn", {})


class ColourDialog:
    """The system's colour dialog with the part for colours of one's own."""

    def __init__(self, app, options, label):
        options.colours[label].click()
        self.app, self.options = app, options
        self.window = app.dialog()
        self.window.button("Define Custom Colors >>").press()

    def _control(self, number):
        return [c for c in self.window.controls() if c.info["id"] == number][0]

    def add(self, red, green, blue):
        """Into the first box for colours of one's own."""
        for number, part in ((RED, red), (GREEN, green), (BLUE, blue)):
            self._control(number).set(str(part))
        self._control(ADD_COLOUR).press()

    def first(self):
        """Clicks on the first of one's own colours; answers which one it is."""
        area = self._control(CUSTOM_COLOURS).rect
        self.app.click(area.left + 10, area.top + 8)
        return tuple(int(self._control(number).text) for number in (RED, GREEN, BLUE))

    def close(self, button):
        self.window.button(button).press()
        self.options.wait_for_child(self.window)


def test_one_s_own_colours_are_kept_while_the_program_runs(show, folder):
    app = show(LOG)
    options = open_options(app)
    colours = ColourDialog(app, options, 0)
    assert colours.first() == (0, 0, 0)
    colours.add(12, 34, 56)
    colours.close("Cancel")
    assert not options.button("Apply").enabled
    # Also by the other label, after OK, and when the options were closed in between.
    colours = ColourDialog(app, options, 1)
    assert colours.first() == (12, 34, 56)
    colours.add(78, 90, 12)
    colours.close("OK")
    options.button("Cancel").click()
    options.wait_for_end()
    options = open_options(app)
    colours = ColourDialog(app, options, 0)
    assert colours.first() == (78, 90, 12)
    colours.close("OK")
    options.button("OK").click()
    options.wait_for_end()
    assert settings(folder)["ForegroundColor"] == str(78 + (90 << 8) + (12 << 16))
    app.close()
    # The next run begins without them.
    app = folder.show(LOG)
    colours = ColourDialog(app, open_options(app), 1)
    assert colours.first() == (0, 0, 0)
    colours.close("Cancel")


def heavy_font(folder):
    """A font file like the bold one, with a name of its own and the greatest weight."""
    if not BOLD_FONT.exists():
        pytest.skip(f"there is no font to make a heavy one of: {BOLD_FONT}")
    font = bytearray(BOLD_FONT.read_bytes())
    for name, heavy in ((ITS_NAME, HEAVY_NAME),
                        (ITS_NAME.replace(" ", ""), HEAVY_NAME.replace(" ", ""))):
        for form in ("ascii", "utf-16-be"):
            font = font.replace(name.encode(form), heavy.encode(form))
    tables = {bytes(font[at:at + 4]): struct.unpack_from(">I", font, at + 8)[0]
              for at in range(12, 12 + 16 * struct.unpack_from(">H", font, 4)[0], 16)}
    struct.pack_into(">H", font, tables[b"OS/2"] + 4, WEIGHT)
    return folder.write("heavy.ttf", bytes(font))


def test_a_font_that_is_heavier_than_bold_is_not_bold(show, folder):
    app = show(LOG)
    app.agent.ask("addFont", path=windows_path(heavy_font(folder)))
    options = open_options(app)
    options.button("Change...").click()
    chooser = app.dialog()
    boxes = {combo.info["id"]: combo for combo in chooser.controls("ComboBox")}
    assert HEAVY_NAME in boxes[FONT_NAMES].items
    boxes[FONT_NAMES].choose(HEAVY_NAME)
    # Its only weight has a name of its own, or the next lighter one's.
    boxes[FONT_STYLES].choose(0)
    chooser.button("OK").press()
    options.wait_for_child(chooser)
    options.button("OK").click()
    options.wait_for_end()
    assert settings(folder)["FontName"] == HEAVY_NAME
    assert settings(folder)["FontStyle"] == "0"


def test_a_file_that_is_missing_is_refused_by_the_dialog(show, folder):
    app = show(LOG)
    before = app.main.source.rows(), app.main.text
    app.keys("Ctrl+O")
    dialog = FileDialog.of(app)
    dialog.enter(folder.windows("missing.log"))
    message = app.message()
    assert message.handle != dialog.handle
    assert message.buttons == ["OK"]
    message.press("OK")
    # The dialog stays, and takes one that is there.
    assert app.has_window(dialog.handle)
    assert not app.main.enabled
    assert (app.main.source.rows(), app.main.text) == before
    other = folder.write("other.log", [LOG[0].replace("a.txt", "other.txt")])
    dialog.choose(folder.windows(other.name))
    wait_until(lambda: app.main.source.rows() == [("10:15:30", r"Delete C:\other.txt")], "the log")


def test_without_a_log_the_dialog_opens_where_a_file_was_chosen_last(folder, wine):
    ini = folder.write("chosen/wincmd.ini", ["[Configuration]", "LogFile=c:\\gone.log"])
    folder.write("chosen/beside.log", LOG)
    app = folder.start()
    app.message(30).press("OK")
    FileDialog.of(app).choose(windows_path(ini))
    message = app.message(30)
    assert message.icon == "error"
    message.press("OK")
    # The system itself remembers a folder for each program, which must not be what helps.
    wine.registry_delete(REMEMBERED_BY_THE_SYSTEM)
    app.keys("Ctrl+O")
    dialog = FileDialog.of(app)
    assert dialog.files == ["beside.log"]
    dialog.cancel()
