"""Where the settings are kept: beside the program, or with the user where that cannot be written."""

import contextlib
import os
import shutil
import subprocess

import pytest

from harness.second import held

pytestmark = pytest.mark.usefixtures("pointer_inside")

LOG = [r"01.03.2024 10:15:30: Copy C:\a.txt -> D:\a.txt"]
# What a person has written with an editor stays in the copy as it is.
SETTINGS = b"; mine\r\n[Ordalyn]\r\nTwoPanels=0\r\nLeft\xe9=1\r\n"


class Place:
    """The folder of the test with an %APPDATA% of its own."""

    def __init__(self, folder):
        self.folder = folder
        self.roaming = folder.path / "Roaming"
        self.roaming.mkdir()
        self.beside_program = folder.settings_file
        self.with_user = self.roaming / "Ordalyn" / "Ordalyn.ini"

    def start(self):
        log = self.folder.write("totalcmd.log", LOG)
        app = self.folder.start(log, env={**self.folder.file_manager(),
                                          "APPDATA": self.folder.windows("Roaming")})
        app.wait_for_rows()
        return app


@pytest.fixture
def place(folder):
    return Place(folder)


def not_kept(folder):
    return ("The settings could not be kept in this file:\n" +
            folder.windows("Ordalyn", "Ordalyn.ini"))


def files(folder):
    return sorted(os.listdir(folder))


def test_beside_the_program(place):
    before = files(place.folder.program)
    place.start().close()
    assert files(place.folder.program) == sorted([*before, "Ordalyn.ini"])
    assert b"MainPosition=" in place.beside_program.read_bytes()
    assert files(place.roaming) == []


def test_with_the_user_when_the_file_is_read_only(place):
    place.beside_program.write_bytes(SETTINGS)
    place.beside_program.chmod(0o444)
    before = files(place.folder.program)
    app = place.start()
    # It begins with what the program's file says,
    assert not app.main.two_panels
    app.close()
    kept = place.with_user.read_bytes()
    assert kept.startswith(SETTINGS)
    assert b"MainPosition=" in kept
    assert place.beside_program.read_bytes() == SETTINGS
    # and goes on with its own.
    place.with_user.write_bytes(kept.replace(b"TwoPanels=0", b"TwoPanels=1"))
    app = place.start()
    assert app.main.two_panels
    app.close()
    assert b"TwoPanels=1\r\n" in place.with_user.read_bytes()
    assert place.beside_program.read_bytes() == SETTINGS
    assert files(place.folder.program) == before


def test_with_the_user_when_a_folder_has_the_files_name(place):
    place.beside_program.mkdir()
    app = place.start()
    app.main.place(120, 90, 900, 600)
    app.close()
    assert b"MainPosition=1800,1350,13500,9000\r\n" in place.with_user.read_bytes()
    assert files(place.beside_program) == []
    assert place.start().main.rect == (120, 90, 1020, 690)


def test_read_beside_the_program_when_neither_can_be_written(place):
    place.roaming.rmdir()
    place.beside_program.write_bytes(SETTINGS)
    place.beside_program.chmod(0o444)
    app = place.start()
    assert not app.main.two_panels
    assert app.close_with_message() == not_kept(place.folder)
    assert not place.roaming.exists()
    assert place.beside_program.read_bytes() == SETTINGS


def test_nowhere_when_neither_can_be_written(place):
    place.roaming.rmdir()
    place.beside_program.mkdir()
    before = files(place.folder.program)
    for _ in range(2):
        app = place.start()
        assert app.main.source.row_count == 1
        assert app.main.rect.left == 0
        app.main.place(120, 90, 900, 600)
        assert app.close_with_message() == not_kept(place.folder)
    assert files(place.beside_program) == []
    assert files(place.folder.program) == before
    assert not place.roaming.exists()


@contextlib.contextmanager
def volume(place, state):
    """The program's folder as a volume of its own with settings on it: read-only, or full."""
    program = place.folder.program
    saved = place.folder.path / "saved"
    program.rename(saved)
    program.mkdir()
    made = subprocess.run(["mount", "-t", "tmpfs", "-o", "size=32m", "tmpfs", program],
                          capture_output=True, text=True, check=False)
    if made.returncode != 0:
        pytest.skip(f"no right to mount a volume: {made.stderr.strip()}")
    try:
        shutil.copytree(saved, program, dirs_exist_ok=True)
        place.beside_program.write_bytes(SETTINGS)
        if state == "read-only":
            subprocess.run(["mount", "-o", "remount,ro", program], check=True)
        else:
            with open(program / "fill", "wb", buffering=0) as fill, contextlib.suppress(OSError):
                while fill.write(bytes(4096)):
                    pass
        yield
    finally:
        # Also when the program could not be ended.
        subprocess.run(["umount", "--lazy", program], check=True)


@pytest.mark.parametrize("state", ["read-only", "full"])
def test_on_a_volume_that_cannot_be_written(place, state):
    place.roaming.rmdir()
    with volume(place, state):
        before = files(place.folder.program)
        app = place.start()
        assert not app.main.two_panels
        app.main.choose("View", "Two Panels")
        app.main.choose("View", "Options...")
        options = app.window("Options")
        options.button("Show grid lines").press()
        options.button("OK").press()
        # At once, as it can be helped now, and not again at the end.
        message = app.message()
        assert message.text == not_kept(place.folder)
        assert message.icon == "warning"
        message.press("OK")
        app.keys("F5")
        assert app.main.source.row_count == 1
        app.close()
        assert place.beside_program.read_bytes() == SETTINGS
        assert files(place.folder.program) == before


def test_beside_the_program_when_another_program_only_holds_the_file(place, wine):
    place.beside_program.write_bytes(SETTINGS)
    with held(place.folder, wine, place.beside_program):
        app = place.start()
    app.close()
    kept = place.beside_program.read_bytes()
    assert kept.startswith(b"; mine\r\n")
    assert b"MainPosition=" in kept
    assert files(place.roaming) == []


def test_not_kept_when_another_program_holds_the_file_at_the_end(place, wine):
    app = place.start()
    app.main.place(120, 90, 900, 600)
    before, kept = files(place.folder.program), place.beside_program.read_bytes()
    with held(place.folder, wine, place.beside_program):
        assert app.close_with_message() == not_kept(place.folder)
    assert place.beside_program.read_bytes() == kept
    assert files(place.folder.program) == before
