"""Another program has the log open and shares it with nobody."""

import pytest

from harness.second import held

pytestmark = pytest.mark.usefixtures("pointer_inside")

READ_ERROR = "There is an error in file\n{}\nLine: 0"


def line(word, date="01.03.2024"):
    return rf"{date} 10:15:30: Delete C:\{word}.txt"


def confirm_error(app, path):
    message = app.message(30)
    assert message.text == READ_ERROR.format(path)
    assert message.icon == ""
    assert message.buttons == ["OK"]
    message.press("OK")
    assert not app.find_dialog()
    assert not app.find_window("  Reading")
    assert app.main.enabled
    assert app.main.responsive
    assert app.pointer == "arrow"


def shown(app):
    """Everything that a log gives the main window to show."""
    main = app.main
    return {"title": main.text, "dates": main.dates.items, "date": main.dates.chosen,
            "source": main.source.rows(), "target": main.target.rows(),
            "selected": main.source.selected, "status": main.status}


def test_at_the_start(folder, wine):
    log = folder.write("live.log", [line("a"), line("b")])
    path = folder.windows(log.name)
    with held(folder, wine, log):
        app = folder.start(env=folder.file_manager(f"LogFile={path}"))
        confirm_error(app, path)
        assert app.main.source.row_count == 0
        assert app.main.target.row_count == 0
        assert app.main.dates.items == []
        assert app.main.text.endswith(" RC 1 - ")
    # It can be read now: Refresh looks for it as the start did.
    app.keys("F5")
    assert app.main.source.row_count == 2
    assert app.main.log_title == path
    app.close()


def test_while_it_is_shown(folder, wine):
    log = folder.write("live.log", [line("a"), line("b"), line("c", "02.03.2024"),
                                    line("d", "02.03.2024")])
    path = folder.windows(log.name)
    app = folder.start(env=folder.file_manager(f"LogFile={path}"))
    app.wait_for_rows(2)
    app.main.source.click_row(1)
    before = shown(app)
    with held(folder, wine, log):
        app.keys("F5")
        confirm_error(app, path)
        assert shown(app) == before
        # What was read can still be worked with.
        app.main.dates.choose("01.03.2024")
        assert app.main.source.rows() == [("10:15:30", r"Delete C:\a.txt"),
                                          ("10:15:30", r"Delete C:\b.txt")]
    with open(log, "ab") as file:
        file.write((line("e", "02.03.2024") + "\r\n").encode())
    app.keys("F5")
    assert app.main.dates.chosen == "02.03.2024"
    assert app.main.source.row_count == 3
    assert app.main.source.selected == [2]
    app.close()


def test_opened_by_the_user(folder, wine):
    app = folder.show([line("a"), line("b")])
    other = folder.write("other.log", [line("x")])
    path = folder.windows(other.name)
    before = shown(app)
    with held(folder, wine, other):
        app.main.ask("dropFiles", paths=[path])
        confirm_error(app, path)
        # The title and the rows are still those of the log that could be read.
        assert shown(app) == before
        assert "RecentFiles1" not in folder.settings.get("Ordalyn", {})
    app.main.drop_files(path)
    assert app.main.source.rows() == [("10:15:30", r"Delete C:\x.txt")]
    assert folder.settings["Ordalyn"]["RecentFiles1"] == path
    app.close()


def test_a_log_that_cannot_be_read_to_its_end_changes_nothing(folder):
    app = folder.show([line("a"), r"02.03.2024 10:15:31: Copy C:\b.txt -> D:\b.txt"])
    bad = folder.write("bad.log", [line("x", "05.03.2024")] * 5 + ["garbage"])
    before = shown(app)
    app.main.ask("dropFiles", paths=[folder.windows(bad.name)])
    message = app.message(30)
    assert message.text.endswith("Line: 6")
    message.press("OK")
    assert shown(app) == before
    app.main.dates.choose("01.03.2024")
    assert app.main.source.rows() == [("10:15:30", r"Delete C:\a.txt")]
    app.close()
