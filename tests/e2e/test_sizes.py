"""Logs that are larger than what the program can hold."""

import os

import pytest

from harness.wine import BITS


@pytest.mark.skipif(BITS != "x86", reason="only a 32-bit program has so little memory")
def test_a_log_that_does_not_fit_is_refused_and_what_is_shown_stays(folder):
    app = folder.show([r"01.03.2024 10:15:30: Delete C:\a.txt",
                       r"01.03.2024 10:15:31: Copy C:\b.txt -> D:\b.txt"])
    main = app.main

    def shown():
        return main.text, main.dates.items, main.source.rows(), main.target.rows(), main.status

    before = shown()
    big = folder.write("big.log", r"01.03.2024 10:15:32: Delete C:\c.txt")
    # One line of more than such a program can hold; what is not written takes no room on the disk.
    os.truncate(big, 3 << 30)
    main.drop_files(folder.windows(big.name))
    message = app.message(60)
    assert message.text == f"There is not enough memory for this log:\n{folder.windows(big.name)}"
    message.press("OK")
    assert shown() == before
    assert main.enabled
    main.source.click_row(1)
    assert main.source.selected == [1]
