"""The log grows, moves and goes away under the program's eyes."""

import os
import re
import shutil
import subprocess
import threading
import time

import pytest

from harness.folder import tools_folder
from harness.second import Busy, held
from harness.waiting import wait_until
from harness.wine import windows_path

pytestmark = pytest.mark.all_processors

# Lines that the second process appends before it renames the log.
APPENDED = 10
READ_ERROR = "There is an error in file\n{}\nLine: {}"


def line(word, date="01.03.2024"):
    return rf"{date} 10:15:30: Delete C:\{word}.txt"


def cmd(wine, command):
    """A second process works on the log: one command line of the system's shell."""
    wine.run(["cmd", "/c", command])


def start(folder, lines, *keys):
    """Starts the program on the log that wincmd.ini names."""
    log = folder.write("live.log", lines)
    app = folder.start(env=folder.file_manager(f"LogFile={folder.windows(log.name)}", *keys))
    app.wait_for_rows()
    return app, log, folder.windows(log.name)


def operations(app):
    return [text.split("\\")[1] for text in app.main.source.column(1)]


@pytest.mark.usefixtures("pointer_inside")
def test_lines_of_another_program_appear(folder, wine):
    app, log, path = start(folder, [line("a"), line("b"), line("c")])
    cmd(wine, f"echo {line('new')}>>{path}")
    app.main.source.click_row(0)
    app.keys("F5")
    assert operations(app) == ["a.txt", "b.txt", "c.txt", "new.txt"]
    assert app.main.source.selected == [3]
    assert app.main.target.selected == [3]
    assert app.main.status[0] == "4 Operation(s)  "
    assert app.pointer == "arrow"

    # Nothing new: nothing changes.
    app.main.source.click_row(1)
    app.keys("F5")
    assert app.main.source.selected == [1]

    # A new day is chosen; a blank line counts as a line and is no entry.
    with open(log, "ab") as file:
        file.write(f"\r\n{line('d', '02.03.2024')}\r\n{line('e', '02.03.2024')}\r\n".encode())
    app.main.choose("View", "Refresh")
    assert app.main.dates.items == ["All dates", "01.03.2024", "02.03.2024"]
    assert app.main.dates.chosen == "02.03.2024"
    assert operations(app) == ["d.txt", "e.txt"]
    assert app.main.source.selected == [1]
    # A click on a row that came later does no harm.
    app.main.source.click_row(0)
    assert app.main.source.selected == [0]

    # A bad line: the message names the number of lines from before, plus one.
    with open(log, "ab") as file:
        file.write(b"garbage\r\n")
    app.main.choose("View", "Refresh")
    message = app.message()
    assert message.text == READ_ERROR.format(path, 8)
    assert message.icon == ""
    message.press("OK")
    app.main.dates.choose("All dates")
    assert operations(app) == ["a.txt", "b.txt", "c.txt", "new.txt", "d.txt", "e.txt"]
    app.close()


def test_the_log_is_rotated_and_deleted_while_it_is_shown(folder, wine):
    app, log, path = start(folder, [line("a"), line("b"), line("c")],
                           "LogRotateLimit=1000", "LogKeepCount=3")
    assert not app.main.files.visible
    cmd(wine, f"ren {path} live.1.log && echo {line('new')}>{path}")
    assert log.with_name("live.1.log").exists() and log.exists()
    app.keys("F5")
    # The new log does not go on with what was read: it is read anew, and the old one is offered.
    assert operations(app) == ["new.txt"]
    assert app.main.source.selected == [0]
    assert app.main.files.visible
    assert app.main.files.items == ["All files", "live.log", "live.1.log"]
    app.main.files.choose("live.1.log")
    app.main.files.choose("live.log")
    assert operations(app) == ["new.txt"]

    cmd(wine, f"del {path}")
    assert not log.exists()
    app.keys("F5")
    message = app.message()
    assert message.text == READ_ERROR.format(path, 0)
    message.press("OK")
    assert operations(app) == ["new.txt"]
    assert app.main.responsive
    # It comes back with the next operation.
    cmd(wine, f"echo {line('new')}>{path}")
    cmd(wine, f"echo {line('next')}>>{path}")
    app.keys("F5")
    assert operations(app) == ["new.txt", "next.txt"]


def test_reading_never_stands_in_another_program_s_way(folder, wine):
    count = 20_000
    app, log, path = start(folder, [line("a")] * count)
    failures = folder.windows("failures")
    # What the file manager does: it appends, and it renames the log and begins another one.
    busy = Busy(folder, wine,
                *[f"echo {line('added')}>>{path}"] * APPENDED,
                f"ren {path} moved.log",
                f"if exist {path} echo rename>>{failures}",
                f"ren {folder.windows('moved.log')} {log.name}",
                # Between two changes there is time to read.
                *[f"if not exist {path} echo rename back>>{failures}"] * 200)
    # A read of the whole file or a refresh, each in whatever moment it meets.
    read, missed = 0, []
    begun = time.monotonic()
    while time.monotonic() < begun + (4 if read > len(missed) else 20):
        if read % 2:
            app.agent.ask("keys", keys=[0x74, 1, 0x74, 0])
        else:
            app.main.ask("dropFiles", paths=[path])
        app.settle(30)
        message = app.find_dialog()
        if message:
            assert message.text.startswith(READ_ERROR.format(path, "")), message.text
            missed.append(int(message.text.split()[-1]))
            message.press("OK")
        read += 1
    rounds, failed = busy.stop()
    assert failed == 0, busy.failures.read_text()
    assert rounds > 5 and read > len(missed), (rounds, read, missed)
    # Just then there was no file of that name, or it grew after its lines had been counted.
    assert all(number == 0 or number > count for number in missed), missed
    assert not app.find_dialog()
    app.main.drop_files(path)
    app.settle(30)
    app.main.dates.choose("01.03.2024")
    assert app.main.source.row_count == count + rounds * APPENDED


def test_logs_that_take_each_other_s_place_are_read(folder, wine):
    """The very moment of a rotation: logs are renamed or deleted, and others begun, all the time."""
    app, log, path = start(folder, [line("log0")] * 1000)
    mark = folder.path / "rotates"
    rotation = subprocess.Popen(
        ["wine", str(tools_folder() / "ordalyn_e2e_hold.exe"), path, windows_path(mark), "rotate"],
        env=wine.environment(), stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
        stderr=subprocess.DEVNULL)
    wait_until(lambda: mark.exists() or rotation.poll() is not None, "the second process", 30)
    seen, missed, refreshed = set(), 0, 0
    begun = time.monotonic()
    while rotation.poll() is None and time.monotonic() < begun + (4 if len(seen) > 2 else 20):
        app.main.ask("dropFiles", paths=[path])
        app.settle(30)
        message = app.find_dialog()
        if message:
            assert re.fullmatch(re.escape(READ_ERROR.format(path, "")) + r"\d+", message.text)
            message.press("OK")
            missed += 1
            continue
        # What is shown are rows of one log; of a log that is just being written the last line may
        # not be whole.
        count = app.main.source.row_count
        words = {app.main.source.rows(row, 1)[0][1]
                 for row in range(0, count - 1, max(1, count // 20))}
        assert len(words) == 1, (words, count)
        seen |= words
        app.agent.ask("keys", keys=[0x74, 1, 0x74, 0])
        app.settle(30)
        message = app.find_dialog()
        if message:
            assert message.text.startswith(READ_ERROR.format(path, "")), message.text
            message.press("OK")
            refreshed += 1
    assert rotation.poll() is None, f"a step of the rotation was refused: {rotation.returncode}"
    mark.unlink()
    rotation.wait(30)
    assert rotation.returncode == 0
    assert len(seen) > 2, (seen, missed, refreshed)
    assert not app.find_dialog()
    app.main.drop_files(path)
    app.settle(30)
    lines = log.read_bytes().decode().splitlines()
    assert app.main.source.row_count == len(lines) > 0
    assert app.main.source.rows(0, 1) == [("10:15:30", lines[0].split(": ", 1)[1])]
    assert app.main.responsive
    app.close()


# How often the log is refreshed beside its writer; docs/reliability.md says what was tried.
REFRESHES = int(os.environ.get("ORDALYN_REFRESHES", "200"))


def test_beside_a_writer_every_refresh_brings_each_line_once(folder, wine):
    """A log that another program appends to all the time, and that is rotated, truncated, held by
    somebody who shares it with nobody, and gone with its folder for a while."""
    log = folder.write("logs/live.log", [line("n0")])
    path = folder.windows("logs", "live.log")
    app = folder.start(env=folder.file_manager(f"LogFile={path}"))
    app.wait_for_rows()
    stop = threading.Event()
    lock = threading.Lock()
    count = 1

    def write():
        nonlocal count
        while not stop.wait(0.004):
            with lock, open(log, "ab") as file:
                file.write((line(f"n{count}") + "\r\n").encode())
                count += 1

    def refresh():
        app.agent.ask("keys", keys=[0x74, 1, 0x74, 0])
        app.settle(30)

    def cannot_be_read():
        before = app.main.source.row_count
        refresh()
        message = app.message()
        assert message.text.startswith(READ_ERROR.format(path, "")), message.text
        message.press("OK")
        assert app.main.source.row_count == before

    writer = threading.Thread(target=write)
    writer.start()
    try:
        for turn in range(REFRESHES):
            part = turn * 10 / REFRESHES
            if part in (3, 6):
                with lock:
                    if part == 3:
                        log.rename(log.with_name("live.1.log"))
                    log.write_bytes(b"")
                    count = 0
            elif part == 4:
                with held(folder, wine, log):
                    cannot_be_read()
            elif part == 8:
                with lock:
                    away = log.parent.rename(folder.path / "away")
                    cannot_be_read()
                    away.rename(log.parent)
            refresh()
            assert not app.find_dialog(), turn
            if turn % 20 == 0:
                shown = operations(app)
                assert shown == [f"n{i}.txt" for i in range(len(shown))], turn
    finally:
        stop.set()
        writer.join()
    app.keys("F5")
    assert operations(app) == [f"n{i}.txt" for i in range(count)]
    assert app.main.source.selected == [count - 1]
    app.close()


def test_another_log_in_a_folder_that_was_deleted_is_read_anew(folder):
    log = folder.write("logs/live.log", [line("a"), line("b")])
    path = folder.windows("logs", "live.log")
    app = folder.start(env=folder.file_manager(f"LogFile={path}"))
    app.wait_for_rows()
    shutil.rmtree(log.parent)
    app.keys("F5")
    message = app.message()
    assert message.text == READ_ERROR.format(path, 0)
    message.press("OK")
    assert operations(app) == ["a.txt", "b.txt"]
    folder.write("logs/live.log", [line("c")])
    app.keys("F5")
    assert not app.find_dialog()
    assert operations(app) == ["c.txt"]
    app.close()


def test_a_line_that_had_no_end_is_read_again(folder):
    app, log, _ = start(folder, [line("a")])
    with open(log, "ab") as file:
        file.write(line("unfin")[:-4].encode())
    app.keys("F5")
    with open(log, "ab") as file:
        file.write((f"ished.txt\r\n{line('c')}\r\n").encode())
    app.keys("F5")
    assert operations(app) == ["a.txt", "unfinished.txt", "c.txt"]
    app.close()


def test_lines_that_no_log_has_are_passed_over_when_the_settings_say_so(folder):
    folder.write_settings(Ordalyn={"SkipMalformedLines": 1})
    log = folder.write("live.log", [line("a"), "garbage", line("b"), "rubbish"])
    path = folder.windows(log.name)
    app = folder.start(env=folder.file_manager(f"LogFile={path}"))
    passed_over = "Lines passed over that are not lines of a log: {}\n{}\nThe first one is line: {}"
    message = app.message(30)
    assert message.text == passed_over.format(2, path, 2)
    assert message.buttons == ["OK"]
    assert operations(app) == ["a.txt", "b.txt"]
    message.press("OK")
    assert app.main.enabled

    with open(log, "ab") as file:
        file.write(f"litter\r\n{line('c')}\r\n".encode())
    app.main.choose("View", "Refresh")
    message = app.message()
    assert message.text == passed_over.format(1, path, 5)
    message.press("OK")
    assert operations(app) == ["a.txt", "b.txt", "c.txt"]
    app.keys("F5")
    assert not app.find_dialog()
    assert app.pointer == "arrow"
