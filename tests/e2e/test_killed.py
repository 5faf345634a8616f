"""The program is killed while it is used and while it closes: each entry of its settings file has its
old or its new value then. ORDALYN_KILLS says how often; a part of the kills comes at any moment, a part
while the settings file is being written."""

import contextlib
import os
import pathlib
import random
import select
import signal
import threading
import time

import pytest

from harness.agent import AgentError
from harness.opens import CHANGES, read_events, watch
from harness.untouched import KEYS, files_below, registry_of
from harness.waiting import wait_until

pytestmark = pytest.mark.usefixtures("pointer_inside")

KILLS = int(os.environ.get("ORDALYN_KILLS", "6"))
LOG = [r"01.03.2024 10:15:30: Copy C:\a.txt -> D:\a.txt"]


class Use:
    """A start, some use that changes settings, and a close; always the same."""

    def __init__(self, folder):
        self.folder = folder
        self.other = folder.write("totalcmd/other.log", LOG)
        self.log = folder.write("totalcmd/totalcmd.log", LOG)
        self.environment = folder.file_manager("LogFile=" + folder.windows("totalcmd", "totalcmd.log"))

    def start(self):
        app = self.folder.start(env=self.environment)
        app.wait_for_rows()
        return app

    def go_on(self, app):
        main = app.main
        main.place(150, 120, 900, 600)
        main.choose("View", "Two Panels")
        main.choose("View", "Options...")
        options = app.window("Options")
        for box in ("Show grid lines", "Fixed borders", "Long date format"):
            options.button(box).press()
        options.button("OK").press()
        main.drop_files(self.folder.windows("totalcmd", "other.log"))
        app.keys("Ctrl+F")
        app.window("Find").one("ComboBox").type("a.txt")
        app.keys("Enter", "Escape")
        app.close()

    def process(self):
        """Its number among the processes of the system below Windows."""
        program = self.folder.windows("Ordalyn", "Ordalyn.exe").encode()
        for place in pathlib.Path("/proc").glob("[0-9]*"):
            with contextlib.suppress(OSError):
                if (place / "cmdline").read_bytes().strip(b'"').startswith(program):
                    return int(place.name)
        raise AssertionError("the program does not run")


def killed_at(use, app, moment, watched):
    """Kills the program, from another thread: after some seconds, or after so many changes in its
    folder and a little."""
    process = use.process()
    changes, seconds = moment

    def kill():
        left = changes
        while left > 0:
            select.select([watched], [], [], 1)
            if app.exit_code is not None:
                return
            left -= sum(1 for _ in read_events(watched))
        time.sleep(seconds)
        with contextlib.suppress(ProcessLookupError):
            os.kill(process, signal.SIGKILL)

    thread = threading.Thread(target=kill)
    thread.start()
    # It goes away in the middle of whatever is asked of it.
    with contextlib.suppress(AssertionError, AgentError, OSError):
        use.go_on(app)
    thread.join()
    wait_until(lambda: app.exit_code is not None, "the program to end")
    # What it was told last never reached it.
    with contextlib.suppress(OSError):
        app.agent.close()


def entries(data):
    """The whole INI file as {(section, key): value}; anything else in it is a failure."""
    assert data.endswith(b"\r\n"), data
    found, section = {}, None
    for line in data.decode("latin-1").split("\r\n")[:-1]:
        if line.startswith("["):
            section = line
            assert section in ("[Common]", "[Ordalyn]"), data
            continue
        key, equals, value = line.partition("=")
        assert key.isalnum() and equals and (section, key) not in found, data
        found[section, key] = value
    return found


def test_each_entry_has_its_old_or_its_new_value(folder, registry):
    use = Use(folder)
    registry.registry_import({key: {"InstallDir": folder.windows("totalcmd")} for key in KEYS})
    before, keys_before = files_below(folder.path / "totalcmd"), registry_of(registry)
    use.start().close()
    begin = folder.settings_file.read_bytes()
    watched = watch(CHANGES, folder.program)
    try:
        app = use.start()
        started = time.monotonic()
        use.go_on(app)
        took = time.monotonic() - started
        changes = sum(1 for _ in read_events(watched))
        old, new = entries(begin), entries(folder.settings_file.read_bytes())
        assert {key for _, key in new if old.get(("[Ordalyn]", key)) != new[_, key]} >= {
            "MainPosition", "TwoPanels", "GridLines", "FixedBorders", "LongDate", "RecentFiles1",
            "Find1"}
        assert changes > 0

        chance = random.Random(KILLS)
        seen = set()
        for number in range(KILLS):
            for rest in folder.program.glob("Ordalyn.ini*"):
                rest.unlink()
            folder.settings_file.write_bytes(begin)
            app = use.start()
            list(read_events(watched))
            moment = ((0, chance.uniform(0, took)) if number % 2 == 0 else
                      (chance.randint(1, changes), chance.choice([0, 0, chance.uniform(0, 0.003)])))
            killed_at(use, app, moment, watched)
            # At most what was about to take the file's place is left beside it.
            assert len(list(folder.program.glob("Ordalyn.ini.*"))) <= 1, moment
            kept = folder.settings_file.read_bytes()
            found = entries(kept)
            assert old.keys() <= found.keys() <= new.keys(), moment
            for name, value in found.items():
                assert value in (old.get(name), new[name]), (moment, name)
            seen.add(kept)
    finally:
        os.close(watched)
    print(f"{KILLS} kills left {len(seen)} different files")
    # The program goes on with what was left.
    use.start().close()
    assert files_below(folder.path / "totalcmd") == before
    assert registry_of(registry) == keys_before
