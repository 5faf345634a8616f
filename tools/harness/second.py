"""A second process beside the program."""

import contextlib
import subprocess

from .folder import tools_folder
from .waiting import wait_until
from .wine import windows_path


@contextlib.contextmanager
def held(folder, wine, file):
    """A second process holds the file while this lasts."""
    mark = folder.path / "held"
    process = subprocess.Popen(
        ["wine", str(tools_folder() / "ordalyn_e2e_hold.exe"), windows_path(file),
         windows_path(mark)],
        env=wine.environment(), stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
        stderr=subprocess.DEVNULL)
    try:
        wait_until(lambda: mark.exists() or process.poll() is not None, "the second process", 30)
        assert process.poll() is None, f"the file cannot be held: {process.returncode}"
        yield
    finally:
        mark.unlink(missing_ok=True)
        process.wait(30)
    assert process.returncode == 0


class Busy:
    """A second process that repeats commands until it is stopped."""

    def __init__(self, folder, wine, *commands):
        self.stop_file = folder.path / "stop"
        self.failures = folder.path / "failures"
        self.rounds = folder.path / "rounds"
        name = {key: folder.windows(key) for key in ("stop", "failures", "rounds", "busy.bat")}
        batch = ["@echo off", ":again", *commands, f"echo x>>{name['rounds']}",
                 f"if not exist {name['stop']} goto again"]
        folder.write("busy.bat", batch, encoding="ascii")
        self.process = subprocess.Popen(["wine", "cmd", "/c", name["busy.bat"]],
                                        env=wine.environment(), stdin=subprocess.DEVNULL,
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_until(lambda: self.count(self.rounds) > 0, "the second process", 30)

    @staticmethod
    def count(file):
        return len(file.read_bytes().splitlines()) if file.exists() else 0

    def stop(self):
        """Ends it; answers how many rounds it went and how many commands failed."""
        self.stop_file.touch()
        self.process.wait(30)
        return self.count(self.rounds), self.count(self.failures)
