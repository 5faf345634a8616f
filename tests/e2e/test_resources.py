"""Use that goes on and on takes no more of the system: what a round of everything leaves behind, the
next round takes up again. ORDALYN_ROUNDS=1000 makes it a long one."""

import os

from harness.controls import plain
from harness.dialogs import FilterDialog, FindDialog, OptionsDialog

ROUNDS = int(os.environ.get("ORDALYN_ROUNDS", "6"))
# Caches of the system and of the program fill at first.
WARM_UP = 2
LOG = [rf"{day:02d}.03.2024 10:00:{i:02d}: Copy C:\{i}.txt -> D:\{i}.txt"
       for day in (1, 2, 3) for i in range(40)]
GERMAN = {250: "&Suchen", 141: "&Ansicht", 1001: "Optionen", 253: "Suchen", 4031: "Filter",
          4002: "Ziel", 4005: "Alle Tage", 1008: "OK", 1009: "Abbrechen"}
# GDI objects; on Windows all user objects, elsewhere those that can be counted; handles.
COUNTED = {"gdi", "user", "windows", "menus", "icons", "handles"}
# Wine's own labels leave 24 bytes each in the heap, in a message box as in any other window, which
# makes 456 bytes a round.
HEAP_BYTES_A_ROUND = 1024
SAMPLES = 36
# The system gives and takes memory in larger pieces: from round to round it is up to a megabyte more
# or less, without a trend. Many samples tell that from growth, a few do not.
PRIVATE_BYTES = 256 * 1024 if ROUNDS >= SAMPLES else 3 * 512 * 1024


class Rounds:
    """One round of all that a person does with the program, by the numbers of its menus' entries:
    their names change with the language."""

    def __init__(self, app, folder):
        self.app = app
        self.language = folder.windows("Ordalyn", "Languages", "Deutsch.lng")
        self.log = folder.path / "totalcmd.log"

    def choose(self, menu, entry):
        found = self.app.main.menus[menu]
        named = [each for each in found.entries if not each.separator][entry]
        self.app.main.choose(found.name, named.name)

    def days(self):
        for item in (0, 1, -1):
            dates = self.app.main.dates
            dates.choose(range(len(dates.items))[item])

    def filter(self):
        self.choose(1, 2)
        dialog = FilterDialog(self.app, self.app.window("Filter").handle)
        dialog.enter("copy")
        dialog.contains.choose(1)
        dialog.contains.choose(0)
        dialog.drop_down(0)
        self.app.keys("Escape")
        dialog.click_remove()
        self.app.keys("Escape")

    def find(self):
        self.choose(1, 0)
        dialog = FindDialog(self.app, self.app.window("Find$|Suchen$").handle)
        dialog.search("5.txt")
        self.app.keys("Escape")
        self.app.keys("F3")

    def panels(self):
        for entry in (0, 1, 1, 2, 2, 0):  # status bar, two panels, vertical panels
            self.choose(2, entry)

    def options(self, button):
        """Another language and look, and back."""
        self.choose(2, 4)
        dialog = OptionsDialog(self.app, self.app.window("Option").handle)
        dialog.pages.choose(1)
        options = [c for c in dialog.controls("Button", None) if c.info["style"] & 0xF in (4, 9)]
        options[button].press()
        if button:
            dialog.language_file.ask("setText", text=self.language)
        dialog.pages.choose(0)
        boxes = [c for c in dialog.controls("Button", None) if c.info["style"] & 0xF in (2, 3)]
        for box in boxes:
            box.press()
        next(c for c in dialog.controls("Button", None) if plain(c.text) == "OK").press()
        dialog.wait_for_end()

    def calendar(self):
        self.app.main.activate()
        self.app.keys("Ctrl+K")
        self.app.window("Calendar")
        self.app.keys("PageUp", "Left", "Right", "Enter", "Escape")

    def about(self):
        self.choose(3, 1)
        self.app.window("About|Info")
        self.app.keys("Escape")

    def messages(self):
        self.choose(3, 0)
        self.app.message().press("OK")
        self.app.main.source.click_row(1)
        self.app.keys_without_waiting("ContextMenu")
        self.app.pop_up()
        self.app.keys("Escape")

    def reads(self):
        self.app.main.drop_files(self.language.rsplit("\\", 3)[0] + r"\totalcmd.log")
        self.choose(2, 3)

    def run(self):
        self.days()
        self.filter()
        self.find()
        self.calendar()
        self.panels()
        self.options(1)
        self.messages()
        self.about()
        self.reads()
        self.options(0)


def growth(samples, what):
    """By how much the last third is above the middle one, at the least. What comes and goes does
    not count; what stays of each round does."""
    third = len(samples) // 3
    return (min(sample[what] for sample in samples[2 * third:])
            - max(sample[what] for sample in samples[third:2 * third]))


def test_rounds_of_use_leave_nothing_behind(show, folder):
    for file in folder.program.glob("Readme*.chm"):
        file.unlink()
    folder.write("Ordalyn/Languages/Deutsch.lng", ["[UserLanguage]"] + [
        f"{number}={text}" for number, text in GERMAN.items()])
    app = show(LOG)
    rounds = Rounds(app, folder)
    samples = []
    for number in range(-WARM_UP, ROUNDS):
        rounds.run()
        if number >= 0 and number % max(1, ROUNDS // SAMPLES) == 0:
            samples.append(app.agent.ask("resources"))
    print(samples[0], samples[-1], sep="\n")
    assert app.main.source.row_count == 40
    counted = COUNTED & samples[0].keys()
    assert {"gdi", "handles"} < counted
    assert {what: growth(samples, what) for what in counted if growth(samples, what) > 0} == {}
    assert samples[-1]["heapBytes"] - samples[0]["heapBytes"] < HEAP_BYTES_A_ROUND * ROUNDS
    assert growth(samples, "privateBytes") < PRIVATE_BYTES
