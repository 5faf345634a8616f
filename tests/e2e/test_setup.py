"""What people download: the setup program installs, keeps settings, and takes away what it brought.

The setup program is a 32-bit one, so that it starts everywhere: these tests run with ./test.sh x86.
"""

import os
import re
import shutil
import subprocess
import zipfile

import pytest

from harness.waiting import wait_until
from harness.wine import BITS, PROJECT, windows_path

pytestmark = pytest.mark.skipif(BITS != "x86", reason="needs a Wine that runs 32-bit programs")

DIST = PROJECT / "dist"
UNINSTALL = r"Software\Microsoft\Windows\CurrentVersion\Uninstall\Ordalyn"
# Of the system, which a program that runs changes by running.
RESTLESS = re.compile(r"\\(Explorer|Shell Folders|User Shell Folders|MenuOrder|UserAssist|RunMRU|Time Zones?|Perflib|"
                      r"Wine|Services|Fonts?|Internet Settings|Environment|Volatile Environment)\b", re.I)


def package(end):
    return next(DIST.glob(f"ordalyn-*{end}"))


class Computer:
    """The Wine prefix as something that software is installed on."""

    def __init__(self, wine):
        self.wine = wine
        self.drive = wine.folder / "drive_c"
        user = self.drive / "users" / os.environ.get("USER", "root")
        self.mine = user / "AppData/Local/Programs/Ordalyn"
        self.roaming = user / "AppData/Roaming/Ordalyn"
        self.everybodys = self.drive / "Program Files/Ordalyn"

    def files(self):
        """Everything on the drive; what programs leave in the folder for such things aside."""
        return {str(file.relative_to(self.drive)) for file in self.drive.rglob("*")
                if "Temp" not in file.parts and "temp" not in file.parts}

    def registry(self):
        keys = set()
        for root in (r"HKCU\Software", r"HKLM\Software"):
            listed = self.wine.run(["reg", "query", root, "/s", "/reg:64"]).decode("utf-8", "replace")
            keys |= {line.strip() for line in listed.splitlines() if line.startswith("HKEY_")}
        # The key for such entries is the system's own, which some do not make before it is used.
        return {key for key in keys if not RESTLESS.search(key) and not key.endswith(r"\Uninstall")}

    def state(self):
        return self.files(), self.registry()

    def run(self, program, *switches):
        """The program's exit code."""
        done = subprocess.run(["wine", str(program), *switches], env=self.wine.environment(), check=False,
                              timeout=120, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        return done.returncode

    def entry(self, root):
        """What the system's list of programs says; nothing when it is not in it."""
        try:
            listed = self.wine.run(["reg", "query", f"{root}\\{UNINSTALL}", "/reg:64"])
        except subprocess.CalledProcessError:
            return {}
        lines = [line.strip().split(None, 2) for line in listed.decode("utf-8", "replace").splitlines()]
        return {line[0]: line[2] for line in lines if len(line) == 3}

    def clear(self):
        """Nothing is left of what a test has installed, even one that failed."""
        for folder in (self.mine, self.everybodys, self.roaming):
            shutil.rmtree(folder, ignore_errors=True)
        for shortcut in self.drive.rglob("Ordalyn.lnk"):
            shortcut.unlink()
        for root in ("HKCU", "HKLM"):
            if self.entry(root):
                self.wine.run(["reg", "delete", f"{root}\\{UNINSTALL}", "/f", "/reg:64"])

    def install(self, *switches):
        return self.run(package("setup.exe"), "/S", *switches)

    def uninstall(self, folder, *switches):
        """The uninstaller goes on as a copy of itself, so that its own file can go."""
        self.run(folder / "uninstall.exe", "/S", *switches)
        wait_until(lambda: not (folder / "uninstall.exe").exists(), "the uninstaller to end", timeout=60)
        wait_until(lambda: not re.search(r"\\(Un|Au)_?[A-Z]?\.exe", self.wine.processes(), re.I),
                   "the uninstaller's copy to end", timeout=60)


@pytest.fixture
def computer(wine):
    made = Computer(wine)
    made.clear()
    yield made
    made.clear()


def contents(folder):
    return {file.relative_to(folder).as_posix(): file.read_bytes() for file in folder.rglob("*") if file.is_file()}


def shipped(bits):
    with zipfile.ZipFile(package(f"{bits}.zip")) as archive:
        return {name.removeprefix("Ordalyn/"): archive.read(name) for name in archive.namelist()}


def test_the_archives_are_the_program_folders_and_the_sums_are_theirs():
    for bits in ("x64", "x86"):
        files = shipped(bits)
        assert files["Ordalyn.exe"] == (DIST / bits / "Ordalyn.exe").read_bytes()
        assert {"Readme.chm", "Readme Deutsch.chm", "Readme.txt", "Languages/German.lng"} <= set(files)
        assert len([name for name in files if name.startswith("Languages/")]) == len(
            list((PROJECT / "languages").glob("*.lng")))
        assert "Ordalyn.ini" not in files
    checked = subprocess.run(["sha256sum", "--check", "--strict", "--quiet", "SHA256SUMS"], cwd=DIST, check=False)
    assert checked.returncode == 0
    assert len((DIST / "SHA256SUMS").read_text().splitlines()) == 3


def test_installs_for_the_user_and_takes_everything_away_again(computer):
    before = computer.state()
    assert computer.install() == 0
    installed = contents(computer.mine)
    assert installed.pop("uninstall.exe")
    # Wine has both architectures here; Windows starts the 64-bit program where it can.
    assert installed == shipped("x64")
    assert list(computer.drive.glob("users/*/AppData/Roaming/Microsoft/Windows/Start Menu/Programs/Ordalyn.lnk"))
    entry = computer.entry("HKCU")
    assert entry["DisplayName"] == "Ordalyn"
    assert entry["DisplayVersion"] == re.search(r"ordalyn-(.*)-setup", package("setup.exe").name).group(1)
    assert entry["InstallLocation"].lower().endswith(r"\programs\ordalyn")
    assert computer.entry("HKLM") == {}
    computer.uninstall(computer.mine)
    files, registry = computer.state()
    assert files - before[0] <= {"users", "/"} | {
        str(folder.relative_to(computer.drive)) for folder in (computer.mine.parent,)}
    assert before[0] - files == set()
    assert registry == before[1]


def test_what_is_installed_starts(computer):
    assert computer.install() == 0
    program = computer.wine.start_on_desktop([computer.mine / "Ordalyn.exe"])
    try:
        # It has begun to work when it has read its settings.
        wait_until((computer.mine / "Ordalyn.ini").exists, "the installed program", timeout=60)
        assert program.poll() is None
        # Nobody can replace a program that runs, and nothing is changed by the attempt.
        before = contents(computer.mine)
        assert computer.install() == 2
        assert contents(computer.mine) == before
    finally:
        program.kill()
        program.wait(timeout=60)
        wait_until(lambda: "Ordalyn.exe" not in computer.wine.processes(), "the program to end", timeout=60)


def test_an_upgrade_keeps_settings_and_a_language_of_ones_own(computer):
    assert computer.install() == 0
    (computer.mine / "Ordalyn.ini").write_bytes(b"[Ordalyn]\r\nGridLines=1\r\n")
    (computer.mine / "Languages" / "Mine.lng").write_bytes(b"mine")
    (computer.mine / "Readme.txt").write_bytes(b"of an older version")
    assert computer.install() == 0
    now = contents(computer.mine)
    assert now["Ordalyn.ini"] == b"[Ordalyn]\r\nGridLines=1\r\n"
    assert now["Languages/Mine.lng"] == b"mine"
    assert now["Readme.txt"] == shipped("x64")["Readme.txt"]
    computer.uninstall(computer.mine)
    assert contents(computer.mine) == {"Ordalyn.ini": b"[Ordalyn]\r\nGridLines=1\r\n",
                                       "Languages/Mine.lng": b"mine"}
    (computer.mine / "Languages" / "Mine.lng").unlink()


def test_an_upgrade_goes_where_the_program_is(computer):
    elsewhere = computer.drive / "tools" / "log viewer"
    # As two arguments it stands on the command line without the quotation marks that it must not have.
    assert computer.install(r"/D=C:\tools\log", "viewer") == 0
    (elsewhere / "Readme.txt").unlink()
    assert computer.install() == 0
    assert (elsewhere / "Readme.txt").exists() and not computer.mine.exists()
    computer.uninstall(elsewhere)
    assert not elsewhere.exists()
    elsewhere.parent.rmdir()


def test_the_settings_go_too_when_that_is_wished(computer):
    assert computer.install() == 0
    (computer.mine / "Ordalyn.ini").write_bytes(b"[Ordalyn]\r\n")
    computer.roaming.mkdir(parents=True, exist_ok=True)
    (computer.roaming / "Ordalyn.ini").write_bytes(b"[Ordalyn]\r\n")
    computer.uninstall(computer.mine, "/REMOVESETTINGS")
    assert not computer.mine.exists() and not computer.roaming.exists()


def test_installs_for_all_users(computer):
    before = computer.state()
    assert computer.install("/ALLUSERS") == 0
    assert "Ordalyn.exe" in contents(computer.everybodys)
    assert not computer.mine.exists()
    assert computer.entry("HKLM")["DisplayName"] == "Ordalyn"
    assert computer.entry("HKCU") == {}
    assert list(computer.drive.glob("ProgramData/Microsoft/Windows/Start Menu/Programs/Ordalyn.lnk"))
    computer.uninstall(computer.everybodys)
    after = computer.state()
    assert after[0] - before[0] == set()
    assert after[1] == before[1]


def test_portable_is_the_files_and_nothing_else(computer, folder):
    before = computer.state()
    target = folder.path / "Ordalyn"
    assert computer.install("/PORTABLE", "/D=" + windows_path(target)) == 0
    assert contents(target) == shipped("x64")
    assert computer.state() == before
