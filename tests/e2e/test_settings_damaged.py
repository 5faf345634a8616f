"""A settings file that is damaged: the program starts, shows its log and can write its settings."""

import random

import pytest

pytestmark = pytest.mark.usefixtures("pointer_inside")

LOG = [r"01.03.2024 10:15:30: Copy C:\a.txt -> D:\a.txt"]
PART = b"[Ordalyn]\r\nTwoPanels=1\r\nMainPosition=1800,1350,135"


@pytest.mark.parametrize("settings", [
    b"",
    PART,
    b"\xef\xbb\xbf" + PART,
    b"\xff\xfe" + PART,
    bytes(600),
    random.Random(1).randbytes(600),
    PART + b"\r\n" + random.Random(2).randbytes(600),
    b"[" * 70000,
], ids=["empty", "cut off", "cut off UTF-8", "marked as UTF-16", "NUL", "random",
        "random behind settings", "one long line"])
def test_the_program_can_be_used(folder, settings):
    folder.settings_file.write_bytes(settings)
    for width in (900, 950):
        app = folder.show(LOG)
        app.keys("F5")
        assert app.main.source.row_count == 1
        app.main.place(120, 90, width, 600)
        app.close()
    app = folder.show(LOG)
    assert app.main.rect == (120, 90, 120 + 950, 690)
    app.close()
