#!/usr/bin/env python3
"""Makes the pictures of the main window and of each dialog in docs/screenshots, with the sample
installation and the program folder that build.sh made (dist/x64).

    docs/screenshots/make.py [LANGUAGE ...] [--folder FOLDER] [--dpi N] [--dark]
    docs/screenshots/make.py --for-help
    docs/screenshots/make.py --for-looks
    docs/screenshots/make.py --sheets [LANGUAGE ...] [--folder FOLDER] [--dpi N] [--dark]

A LANGUAGE is the name of a file in languages/ without its ending, or "English". With --for-help, the
pictures are those of the help, beside its pages in help/LANGUAGE: windows no wider than its lines.
With --for-looks they are those of docs/looks.md, as far as they show how it is now. With --sheets,
every window, menu and message is put on contact sheets, to be looked at (in build/sheets).
"""

import argparse
import pathlib
import re
import shutil
import struct
import subprocess
import sys
import tempfile

PROJECT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(PROJECT / "tools"))

import harness.wine  # noqa: E402
import make_icon  # noqa: E402
from harness.dialogs import HistoryWindow  # noqa: E402
from harness.display import Display  # noqa: E402
from harness.folder import Folder  # noqa: E402
from harness.waiting import wait_until  # noqa: E402
from harness.wine import WORK, Wine  # noqa: E402

SAMPLES = PROJECT / "samples" / "totalcmd"
LANGUAGES = PROJECT / "languages"
SHOWN = ("English", "German", "Russian", "Hebrew")
BUILT_IN = "English"
USUAL_PLACES = ["MainPosition=300,300,12900,7500"]
# As wide as the text of a page of the help (help/shared/style.css).
NARROW_PLACES = ["MainPosition=300,300,9600,6450", "HistoryPosition=600,900,9600,4800",
                 "CalendarPosition=900,600,9000,8700", "ColumnsWidth=884,8200,9090"]
# Ids of the menu entries' texts: the entry that opens a window, below which menu.
MENUS = {"find": (250, 251), "filter": (250, 4030), "history": (250, 5110),
         "options": (141, 150), "about": (161, 163), "calendar": (141, 5140)}
ENGLISH = {141: "&View", 150: "&Options...", 161: "&Help", 163: "&About...", 250: "&Search",
           251: "&Find...", 4030: "Filte&r...", 5110: "File &History...", 5140: "&Calendar"}
DARK = ["ForegroundColor=14737632", "BackgroundColor=2105376"]  # 0xE0E0E0 and 0x202020
SIDE_BY_SIDE = "VerticalPanels=1"
# Whose dates and names of months are shown.
LOCALES = {"German": "de_DE.UTF-8", "Russian": "ru_RU.UTF-8"}

# Wine's own fonts have no Hebrew letters; the dialogs' font is chosen by the system, and lists take
# missing letters from a font that is linked to theirs.
WITHOUT_LETTERS = ("Hebrew",)
OTHER_FONT, OTHER_FONT_FILE = "DejaVu Sans Condensed", "DejaVuSansCondensed.ttf"
FONT_LINKS = r"HKLM\Software\Microsoft\Windows NT\CurrentVersion\FontLink\SystemLink"
METRICS = r"HKCU\Control Panel\Desktop\WindowMetrics"
SYSTEM_FONTS = {"MessageFont": 400, "MenuFont": 400, "StatusFont": 400, "CaptionFont": 700,
                "SmCaptionFont": 400}
# The words of Total Commander's log where it speaks English; those of the sample are German.
ENGLISH_WORDS = {
    1800: "Program start", 1801: "Program shutdown", 1802: "Copy", 1803: "Move", 1804: "Shortcut", 1805: "NewFolder",
    1806: "Delete", 1807: "DeleteFolder", 1808: "Pack", 1809: "Unpack", 1810: "Test", 1811: "CreateFile",
    1900: "Error:", 1901: "Failed", 1902: "Aborted", 1903: "Skipped", 1904: "Not found", 1905: "Identical",
    1906: "Read error", 1907: "Write error", 1911: "Delete failed", 1912: "CRC error", 1917: "Archive bad",
    1921: "File exists"}
# On the drive C: of Wine, as these paths can be seen in the pictures.
HOST_FOLDER, LANGUAGE_FOLDER = "Totalcmd", "Ordalyn/Languages"


def let_the_log_speak_english(host):
    """Changes the words of a copy of the sample, in its language file and before the paths of its log."""
    file = host / "Language" / "WCMD_DEU.LNG"
    lines = file.read_bytes().decode("cp1252").split("\n")
    words = {}
    for number, line in enumerate(lines):
        found = re.match(r'(\d+)="(.*)"', line)
        if found and int(found[1]) in ENGLISH_WORDS:
            words[found[2]] = ENGLISH_WORDS[int(found[1])]
            lines[number] = line.replace(found[2], ENGLISH_WORDS[int(found[1])])
    file.write_bytes("\n".join(lines).encode("cp1252"))
    # The longest first: one word can be a part of another. Some lines are older than UTF-8.
    pairs = [(word.encode(encoding), words[word].encode()) for word in sorted(words, key=len, reverse=True)
             for encoding in ("utf-8", "cp1252")]
    for log in host.glob("logs/*.log"):
        entries = []
        for line in log.read_bytes().split(b"\n"):
            head, path = re.fullmatch(rb"(.*?)((?:[A-Z]:\\|\\\\).*)?", line, re.S).groups(b"")
            for german, english in pairs:
                head = head.replace(german, english)
            entries.append(head + path)
        log.write_bytes(b"\n".join(entries))


def lend_fonts(wine):
    wine.registry_set(FONT_LINKS, "MS Sans Serif", f"{OTHER_FONT_FILE},{OTHER_FONT}",
                      "REG_MULTI_SZ")
    for name, weight in SYSTEM_FONTS.items():
        font = struct.pack("<5l8B64s", -11, 0, 0, 0, weight, 0, 0, 0, 1, 0, 0, 0, 0,
                           OTHER_FONT.encode("utf-16-le"))
        wine.registry_set(METRICS, name, font.hex(), "REG_BINARY")


def take_fonts_back(wine):
    wine.registry_delete(FONT_LINKS)
    for name in SYSTEM_FONTS:
        wine.run(["reg", "delete", METRICS, "/v", name, "/f"])


class Photographer:
    def __init__(self, folder, language, picture, settings):
        """picture(name) is the file that a picture goes into; settings are lines of Ordalyn.ini."""
        self.folder = folder
        self.language = language
        self.picture = picture
        self.texts = dict(ENGLISH)
        drive = folder.wine.folder / "drive_c"
        self.settings = ["[Ordalyn]", *settings]
        if language != BUILT_IN:
            file = LANGUAGES / f"{language}.lng"
            for line in file.read_text("utf-8-sig").splitlines():
                number, _, text = line.partition("=")
                if number.strip().isdigit() and int(number) in self.texts:
                    self.texts[int(number)] = text
            target = drive / LANGUAGE_FOLDER
            target.mkdir(parents=True, exist_ok=True)
            shutil.copy(file, target)
            self.settings += ["UseDefaultLanguage=0", "[Common]",
                              rf"LanguageFile=C:\Ordalyn\Languages\{file.name}"]
        shutil.copytree(SAMPLES, drive / HOST_FOLDER, dirs_exist_ok=True)
        if language == BUILT_IN:
            let_the_log_speak_english(drive / HOST_FOLDER)
        self.start({"Commander_Path": rf"C:\{HOST_FOLDER}",
                    "Commander_INI": rf"C:\{HOST_FOLDER}\wincmd.ini"})
        self.app.wait_for_rows()

    def start(self, environment):
        """The program anew, with the settings as they were."""
        self.folder.settings_file.write_bytes("\r\n".join(self.settings + [""]).encode("latin-1"))
        self.app = self.folder.start(env=environment, locale=LOCALES.get(self.language))

    def take(self, window, name, height=None):
        """A picture of the window, or of as much of its upper part."""
        self.app.settle()
        self.take_now(window, name, height)

    def take_now(self, window, name, height=None):
        left, top, right, bottom = window.rect
        if height is not None:
            bottom = top + height
        picture = self.picture(name)
        self.app.wine.display.screenshot(picture, (left, top, right - left, bottom - top))
        print(picture.name, f"{right - left} x {bottom - top}")

    def open(self, which):
        """Opens a dialog by its menu and answers its window."""
        before = {window["handle"] for window in self.app.windows()}
        self.app.main.choose(*(self.texts[number].replace("&", "") for number in MENUS[which]))
        return self.new_window(before, which)

    def new_window(self, before, which):
        """The window that has come up since `before`, a set of handles."""
        found = wait_until(
            lambda: [w for w in self.app.windows() if w["handle"] not in before], f"the {which}", 30)
        return self.app.window_of(found[0]["handle"])

    def take_all(self):
        main = self.app.main
        self.select(3)
        self.take(main, "main")
        for which in ("find", "filter", "calendar", "about"):
            window = self.open(which)
            self.take(window, which)
            self.close(window)
        self.take_history()
        options = self.open("options")
        self.take(options, "options-layout")
        self.app.keys("Ctrl+Tab")
        self.take(options, "options-language")
        self.close(options)
        # All that went wrong, with several rows selected.
        main.dates.choose(main.dates.items[0])
        self.app.keys("Ctrl+E")
        self.select(1)
        self.app.keys("Shift+Down", "Shift+Down")
        self.take(main, "failed")

    def select(self, row):
        """By keys: Wine does not move the pointer on a large display."""
        self.app.main.source.focus()
        self.app.keys("Home", *["Down"] * row)

    def take_history(self, height=None):
        history = self.open("history")
        HistoryWindow(self.app, history.handle).ask_for(r"C:\Users\Anna\Documents\Reiseplan.odt")
        self.take(history, "history", height)
        self.close(history)

    def take_for_looks(self):
        """The pictures of docs/looks.md that show how it is now, as high as those of how it was."""
        main = self.app.main
        self.select(3)
        self.take(main, "main", 290)
        self.take_history(190)

    def close(self, window):
        self.app.keys("Escape")
        wait_until(lambda: not self.app.has_window(window.handle), "the dialog to go")


class SheetPhotographer(Photographer):
    """Takes every window, menu and message, and puts them on contact sheets."""

    # Pictures side by side, windows of about one size on one sheet.
    SHEETS = (("main", "stacked", "menu-file", "menu-search", "menu-view", "menu-context"),
              ("history", "calendar", "narrow", "first-steps", "progress", "failed"),
              ("find", "filter", "options-layout", "options-language", "about", "question", "message"))

    def take_all(self):
        super().take_all()
        self.take_menus()
        self.app.close()
        self.settings.remove(SIDE_BY_SIDE)
        self.take_reading()
        self.app.kill()
        self.take_without_log()
        for number, names in enumerate(self.SHEETS):
            sheet = self.picture(f"sheet-{number + 1}")
            subprocess.run(["montage", *[str(self.picture(name)) for name in names], "-tile", "2x",
                            "-background", "#c0a0c0", "-geometry", "+6+6", str(sheet)], check=True)
            print(sheet)

    def take_menus(self):
        for number, name in enumerate(("file", "search", "view")):
            for key in ["F10"] + ["Right"] * number + ["Down"]:
                self.app.keys_without_waiting(key)
            self.take_menu(f"menu-{name}")
        self.app.main.source.focus()
        self.app.keys_without_waiting("ContextMenu")
        self.take_menu("menu-context")

    def take_menu(self, name):
        wait_until(lambda: self.app.has_pop_up, "a menu")
        self.take(self.app.main, name)
        while self.app.has_pop_up:
            self.app.keys("Escape")
        self.app.keys("Escape")

    def take_reading(self):
        """The progress window while it asks whether to stop, and the main window as it is else."""
        logs = [f"01.03.2024 10:15:{second:02}: Delete: C:\\Users\\Anna\\Documents\\{second}.txt"
                for second in range(60)]
        self.folder.write("a long name of a folder/of a log that is far away/x.log", logs)
        for number in range(1, 151):
            self.folder.write(f"a long name of a folder/of a log that is far away/x.{number}.log", logs * 100)
        log = self.folder.windows("a long name of a folder", "of a log that is far away", "x.log")
        self.start(self.folder.file_manager(f"LogFile={log}", "LogRotateLimit=1000", "LogKeepCount=150"))
        self.app.wait_for_rows()
        main = self.app.main
        self.take(main, "stacked")
        left, top, right, bottom = main.rect
        main.place(left, top, (right - left) // 2, (bottom - top) // 2)
        self.take(main, "narrow")
        main.place(left, top, right - left, bottom - top)
        before = {window["handle"] for window in self.app.windows()}
        main.files.choose(2)
        main.files.ask("chooseFromCombo", index=0)
        progress = self.new_window(before, "progress window")
        progress.controls("Button")[0].ask("press")
        question = self.app.message(30)
        # Not settled as otherwise: the reading waits for the answer.
        self.wait_for_quiet()
        self.take_now(question, "question")
        question.ask("place", left=0, top=0, width=300, height=100)
        self.wait_for_quiet()
        self.take_now(progress, "progress")

    def wait_for_quiet(self):
        assert self.app.agent.ask("idle", milliseconds=10000)

    def take_without_log(self):
        missing = self.folder.windows("no log yet", "totalcmd.log")
        self.start(self.folder.file_manager(f"LogFile={missing}", "LogOptions=7199"))
        message = self.app.message(30)
        self.take(message, "message")
        message.controls("Button")[0].ask("press")
        wait_until(lambda: self.app.main.controls("Button"), "what to do")
        self.take(self.app.main, "first-steps")


class LargeDisplay(Display):
    """Room for the windows on a screen of a high resolution."""
    WIDTH, HEIGHT = 2560, 1800


def photographer(folder, language, options):
    if options.for_help:
        return Photographer(folder, language, lambda name: PROJECT / "help" / language / f"{name}.png",
                            NARROW_PLACES)
    colours = DARK if options.dark else []
    if options.for_looks:
        return Photographer(folder, language, lambda name: options.folder / f"looks-{name}-after.png",
                            ["MainPosition=300,300,12900,7500"])
    if options.sheets:
        kind = f"{language}-{options.dpi}-{'dark' if options.dark else 'light'}"
        return SheetPhotographer(folder, language, lambda name: options.folder / f"{kind}-{name}.png",
                                 [*USUAL_PLACES, *colours, SIDE_BY_SIDE])
    return Photographer(folder, language, lambda name: options.folder / f"{name}-{language}.png",
                        USUAL_PLACES + colours)


def icons_enlarged(file):
    """The icon's sizes that have descriptions of their own, with pixels that can be seen."""
    with tempfile.TemporaryDirectory() as folder:
        parts = []
        for size in (16, 20, 24, 32):
            part = pathlib.Path(folder) / f"{size}.png"
            part.write_bytes(make_icon.as_png(make_icon.draw(size)))
            parts += ["(", str(part), "-filter", "point", "-resize", f"{240 // size}00%", "-extent", "252x252", ")"]
        subprocess.run(["convert", "-background", "white", "-gravity", "center", *parts, "+append", "+repage",
                        str(file)], check=True)
        print(file)


def main():
    arguments = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    arguments.add_argument("language", nargs="*", default=SHOWN)
    arguments.add_argument("--folder", type=pathlib.Path)
    arguments.add_argument("--dpi", type=int, default=96)
    arguments.add_argument("--dark", action="store_true", help="bright texts on a dark background")
    arguments.add_argument("--for-help", action="store_true")
    arguments.add_argument("--for-looks", action="store_true")
    arguments.add_argument("--sheets", action="store_true")
    options = arguments.parse_args()
    if options.folder is None:
        options.folder = PROJECT / "build" / "sheets" if options.sheets else PROJECT / "docs" / "screenshots"
    options.folder.mkdir(parents=True, exist_ok=True)
    if options.for_help:
        options.language = [project.parent.name for project in sorted(PROJECT.glob("help/*/*.hhp"))]
    if options.for_looks:
        options.language = ["German"]
        icons_enlarged(options.folder / "looks-icons.png")
    if options.sheets:
        # Wine remembers how large a desktop was: this one is not that of the tests.
        harness.wine.WORK = WORK / "large"
    display = LargeDisplay() if options.sheets else Display()
    try:
        wine = Wine(display)
        try:
            wine.set_dpi(options.dpi)
            for language in options.language:
                if language in WITHOUT_LETTERS:
                    lend_fonts(wine)
                with tempfile.TemporaryDirectory(dir=WORK) as path:
                    folder = Folder(wine, pathlib.Path(path))
                    try:
                        taker = photographer(folder, language, options)
                        taker.take_for_looks() if options.for_looks else taker.take_all()
                    finally:
                        folder.end_all()
                        if language in WITHOUT_LETTERS:
                            take_fonts_back(wine)
        finally:
            wine.close()
    finally:
        display.close()


if __name__ == "__main__":
    main()
