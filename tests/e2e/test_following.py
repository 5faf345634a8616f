"""The log is followed: what another program adds to it appears by itself."""

import threading
import time

from harness.second import Busy, held
from harness.waiting import wait_until

# New lines appear within a second; a busy machine is given more before a test fails.
SOON = 1.0
AT_LAST = 15


def line(word, date="01.03.2024"):
    return rf"{date} 10:15:30: Delete: C:\{word}.txt"


def names(app):
    return [text.rpartition("\\")[2].removesuffix(".txt") for text in app.main.source.column(1)]


def append(log, *lines):
    with open(log, "ab") as file:
        file.write("".join(text + "\r\n" for text in lines).encode())


def begin(folder, count, *keys, **settings):
    folder.write_settings(Ordalyn={"FollowLog": 1, **settings})
    log = folder.write("logs/live.log", [line(f"n{i}") for i in range(count)])
    app = folder.start(env=folder.file_manager(f"LogFile={folder.windows('logs', log.name)}", *keys))
    app.wait_for_rows()
    return app, log


def rows_come_to(app, count):
    """Waits for them; answers how long that took."""
    begun = time.monotonic()
    wait_until(lambda: app.main.source.row_count == count, f"{count} rows", AT_LAST)
    return time.monotonic() - begun


def test_new_lines_appear_and_nothing_moves(folder):
    app, log = begin(folder, 200)
    source, target = app.main.source, app.main.target
    source.click_row(100)
    top, target_top = source.top_row, target.top_row
    app.main.dates.focus()
    taken = []
    for count in range(201, 206):
        append(log, line(f"n{count - 1}"))
        taken.append(rows_come_to(app, count))
        assert source.selected == target.selected == [100]
        assert (source.top_row, target.top_row) == (top, target_top)
        assert app.main.dates.focused
    # One of them may have met a moment in which the machine had other things to do.
    assert min(taken) < SOON, taken
    assert target.row_count == 205
    assert app.main.status[0] == "205 Operation(s)  "
    assert not app.find_dialog() and app.pointer == "arrow"

    # The last row remains the last one.
    source.click_row(204)
    append(log, line("n205"), line("n206"))
    rows_come_to(app, 207)
    wait_until(lambda: source.selected == target.selected == [206], "the new last row")
    assert 206 in source.visible_rows and 206 in target.visible_rows
    # A new day is gone to from there.
    append(log, line("m0", "02.03.2024"), line("m1", "02.03.2024"))
    wait_until(lambda: app.main.dates.chosen == "02.03.2024", "the new day", AT_LAST)
    wait_until(lambda: app.main.source.selected == [1], "its last row", AT_LAST)
    assert names(app) == ["m0", "m1"]

    # While a menu is open nothing happens behind it.
    source.click_row(0, button="right")
    app.pop_up()
    append(log, line("m2", "02.03.2024"))
    wait_until(lambda: log.stat().st_mtime + 1.5 < time.time(), "more than a second", AT_LAST)
    assert source.row_count == 2
    app.keys("Escape")
    rows_come_to(app, 3)

    # Nor while the window is minimised; then it is caught up with.
    app.main.minimise()
    append(log, line("m3", "02.03.2024"))
    wait_until(lambda: log.stat().st_mtime + 1.5 < time.time(), "more than a second", AT_LAST)
    assert source.row_count == 3
    app.main.restore()
    rows_come_to(app, 4)
    app.close()
    assert folder.settings["Ordalyn"]["FollowLog"] == "1"


def test_the_menu_says_it_and_it_is_remembered(folder):
    app, log = begin(folder, 2, FollowLog=0)
    assert not app.main.menu("View", "Follow the Log").checked
    append(log, line("n2"))
    app.main.choose("View", "Follow the Log")
    assert app.main.menu("View", "Follow the Log").checked
    # What came before is caught up with.
    rows_come_to(app, 3)
    app.main.choose("View", "Follow the Log")
    app.main.choose("View", "Follow the Log")
    app.close()
    assert folder.settings["Ordalyn"]["FollowLog"] == "1"


def test_beside_a_writer_each_line_appears_once(folder, wine):
    """Two hundred lines, a rotation, somebody who holds the log, one that is gone for a while: no
    message, and nothing that the writer would notice."""
    app, log = begin(folder, 1, "LogRotateLimit=1000", "LogKeepCount=3")
    count, refused = 1, []

    def write(until):
        nonlocal count
        while count < until:
            try:
                append(log, line(f"n{count}"))
                count += 1
            except OSError as error:
                refused.append(error)
            time.sleep(0.005)

    def shown(expected):
        wait_until(lambda: names(app) == expected, f"{expected[-1]} and those before it", AT_LAST)
        assert app.main.source.selected == [len(expected) - 1]
        assert not app.find_dialog()

    writer = threading.Thread(target=write, args=(100,))
    writer.start()
    writer.join()
    shown([f"n{i}" for i in range(100)])

    with held(folder, wine, log):
        # Whoever holds it is not in the way of following, nor the other way round.
        assert app.main.responsive and not app.find_dialog()
    away = log.rename(log.with_name("live.1.log"))
    wait_until(lambda: away.stat().st_ctime + 1 < time.time(), "a second without a log", AT_LAST)
    assert app.main.source.row_count == 100 and not app.find_dialog()
    append(log, line("r0"))
    shown(["r0"])
    assert app.main.files.items == ["All files", "live.log", "live.1.log"]
    assert app.main.files.chosen == "live.log"

    # Following waits for whoever looks at another file.
    app.main.files.choose("live.1.log")
    assert app.main.source.row_count == 100
    append(log, line("r1"))
    wait_until(lambda: log.stat().st_mtime + 1.5 < time.time(), "more than a second", AT_LAST)
    assert app.main.source.row_count == 100
    app.main.files.choose("live.log")
    assert names(app) == ["r0", "r1"]

    count = 2
    log.write_bytes(b"")
    append(log, line("n0"), line("n1"))
    writer = threading.Thread(target=write, args=(100,))
    writer.start()
    writer.join()
    shown([f"n{i}" for i in range(100)])
    assert refused == []
    app.close()


def test_following_never_stands_in_another_program_s_way(folder, wine):
    """What the file manager does, as fast as a program can: it appends, and it renames the log."""
    app, log = begin(folder, 1)
    path, moved = folder.windows("logs", "live.log"), folder.windows("logs", "moved.log")
    failures = folder.windows("failures")
    busy = Busy(folder, wine,
                *[f"echo {line('added')}>>{path}"] * 10,
                f"ren {path} moved.log",
                f"if exist {path} echo rename>>{failures}",
                f"ren {moved} live.log",
                f"if not exist {path} echo rename back>>{failures}")
    begun = time.monotonic()
    wait_until(lambda: time.monotonic() > begun + 3 and busy.count(busy.rounds) > 5,
               "some rounds", 60)
    rounds, failed = busy.stop()
    assert failed == 0, busy.failures.read_text()
    # Each line has come into the log, and from there into the window.
    count = 1 + 10 * rounds
    assert len(log.read_bytes().splitlines()) == count
    wait_until(lambda: app.main.source.row_count == count, f"{count} rows", AT_LAST)
    assert not app.find_dialog()
    app.close()
