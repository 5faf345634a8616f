"""What became of a file, asked by somebody who only knows what it was called."""

import pathlib
import shutil

from harness.dialogs import open_history
from harness.waiting import wait_until

PROJECT = pathlib.Path(__file__).resolve().parents[2]
FIRST = r"C:\Users\Anna\Documents\Reiseplan.odt"
LAST = r"D:\Archiv\2024\Reiseplan Italien.odt"


def test_where_a_file_of_the_sample_installation_went(folder):
    shutil.copytree(PROJECT / "samples" / "totalcmd", folder.path / "totalcmd")
    app = folder.start(env={"COMMANDER_PATH": folder.windows("totalcmd"),
                            "COMMANDER_INI": folder.windows("totalcmd", "wincmd.ini")})
    app.wait_for_rows()
    history = open_history(app)
    assert history.focus_is_in(history.path)
    history.ask_for(FIRST.lower())
    assert history.words == f"Moved 3 times, last seen at {LAST} on 14.03.2024"
    steps = history.steps
    assert steps.column(0) == ["11.03.2024", "12.03.2024", "13.03.2024", "13.03.2024", "14.03.2024"]
    assert steps.column(2) == ["NeueDatei", "Verschieben", "Verschieben", "Kopieren", "Verschieben"]
    assert steps.column(3)[0] == FIRST
    assert steps.column(4)[-1] == LAST
    # The rotated logs are there and have not been read.
    assert history.button("Read All Files").visible

    # From the path over its button to the rows, and to the fourth of them.
    app.keys("Tab", "Tab")
    wait_until(lambda: history.focus_is_in(steps), "the focus in the rows")
    app.keys("Down", "Down", "Down", "Enter")
    wait_until(lambda: app.main.dates.chosen == "13.03.2024", "the day of the row")
    app.settle()
    source = app.main.source
    assert source.rows()[source.selected[0]][1].startswith("Kopieren D:\\Projekte\\Urlaub")

    # The window is still there; Esc closes it.
    history.activate()
    app.keys("Escape")
    wait_until(lambda: not app.has_window(history.handle) or not history.visible, "it to go")
    # Its path is kept.
    history = open_history(app)
    assert history.path.value == FIRST.lower()
