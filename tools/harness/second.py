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
