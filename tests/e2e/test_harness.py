"""What all other end-to-end tests depend on."""

import pathlib
import subprocess

import pytest

LOG = [r"01.03.2024 10:15:30: Copy C:\a.txt -> D:\a.txt"]
NOT_AT_RANDOM = 0x0040000


def test_programs_start_with_their_memory_in_place(show):
    if subprocess.run(["setarch", "-R", "true"], stderr=subprocess.DEVNULL, check=False).returncode != 0:
        pytest.skip("the kernel may not be told where memory is put")
    started = pathlib.Path(f"/proc/{show(LOG).launcher.pid}")
    assert int((started / "personality").read_text(), 16) & NOT_AT_RANDOM


def test_a_program_that_cannot_be_started_is_told_of_at_once(folder):
    (folder.program / "Ordalyn.exe").write_bytes(b"no program")
    with pytest.raises(RuntimeError, match="the program did not start: {'failed': 'start 193'}"):
        folder.start()
