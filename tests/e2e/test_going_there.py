"""What a row tells of is shown in the file manager, which a stand-in notes."""

import shutil

import pytest

from harness.folder import tools_folder
from harness.waiting import wait_until

NAMES = ("TOTALCMD64.EXE", "TOTALCMD.EXE")


class FileManager:
    """Programs that note how they are started, in the folder that the environment names."""

    def __init__(self, folder, *names):
        self.folder = folder.path / "totalcmd"
        for name in names:
            shutil.copy(tools_folder() / "ordalyn_e2e_file_manager.exe", self.folder / name)

    def starts(self, name):
        """The lines of one of the programs, each as its arguments and what is read of them."""
        noted = self.folder / f"{name}.started"
        if not noted.exists():
            return []
        lines = noted.read_text(encoding="utf-8").splitlines()
        return [(line.split("\t")[0], line.split("\t")[1:]) for line in lines]

    def wait_for_start(self, count, name=NAMES[0]):
        def there():
            found = self.starts(name)
            return found if len(found) == count else None
        return wait_until(there, f"start {count} of {name}", 20)[-1]


def begin(folder, operations, *programs):
    log = folder.write("totalcmd.log", [f"01.03.2024 10:15:30: {line}" for line in operations])
    environment = folder.file_manager(f"LogFile={folder.windows(log.name)}")
    manager = FileManager(folder, *programs)
    app = folder.start(env=environment)
    app.wait_for_rows()
    return app, manager


def context(app, panel, row, entry):
    """Chooses from the context menu; what it shows before."""
    panel.click_row(row, button="right")
    menu = app.pop_up()
    state = {name: menu[f"Show {name} in the File Manager"].enabled
             for name in ("Source", "Target")}
    if entry:
        menu.choose(f"Show {entry} in the File Manager")
    else:
        app.keys("Escape")
    return state


def test_source_and_target_are_shown(folder):
    there = folder.write("a & b/Пётр 報告 100%.txt", "")
    source = folder.windows("a & b", there.name)
    folder.write("target.txt", "")
    target = folder.windows("target.txt")
    app, manager = begin(folder, [f"Copy: {source} -> {target}", f"Delete: {source}"], *NAMES)

    assert context(app, app.main.source, 0, "Source") == {"Source": True, "Target": True}
    arguments, read = manager.wait_for_start(1)
    assert arguments == f'/O /A /S /L="{source}"'
    assert read == ["/O", "/A", "/S", f"/L={source}"]
    context(app, app.main.source, 0, "Target")
    assert manager.wait_for_start(2)[0] == f'/O /A /S /L="{target}"'

    # Enter and a double click show what the panel is for; without a target, the source.
    app.main.target.click_row(0)
    app.keys("Enter")
    assert manager.wait_for_start(3)[0] == f'/O /A /S /L="{target}"'
    rect = app.main.source.row_rect(0)
    app.click(rect.left + 60, (rect.top + rect.bottom) // 2, double=True)
    assert manager.wait_for_start(4)[0] == f'/O /A /S /L="{source}"'
    app.main.target.click_row(1)
    app.keys("Enter")
    assert manager.wait_for_start(5)[0] == f'/O /A /S /L="{source}"'
    assert not app.find_dialog()
    assert manager.starts(NAMES[1]) == []
    app.close()


@pytest.mark.parametrize("path", ["{}\\", "{}\\\\", "C:\\"],
                         ids=["a backslash", "two of them", "a root"])
def test_a_backslash_at_the_end_takes_nothing_along(folder, path):
    folder.write("some folder/x.txt", "")
    path = path.format(folder.windows("some folder"))
    app, manager = begin(folder, [f"NewFolder: {path}"], NAMES[1])
    app.main.source.click_row(0)
    app.keys("Enter")
    arguments, read = manager.wait_for_start(1, NAMES[1])
    assert not arguments.endswith('\\"')
    assert read == ["/O", "/A", "/S", "/L=" + (path if path == "C:\\" else path.rstrip("\\"))]


def test_what_is_gone_plugins_quotation_marks_and_lines_that_say_nothing(folder):
    folder.write("here/x.txt", "")
    here = folder.windows("here")
    plugin, marked = r"\\\FTP\host\x.txt", here + '\\x" /R="y.txt'
    app, manager = begin(folder, [f"Delete: {here}\\gone\\deep\\x.txt", f"Copy: {plugin} -> x.txt",
                                  f"Delete: {marked}", "nothing that can be read"], NAMES[0])
    app.main.source.click_row(0)
    app.keys("Enter")
    message = app.message()
    assert message.text == (f"This path does not exist:\n{here}\\gone\\deep\\x.txt\n\n"
                            f"Show {here} instead?")
    assert message.buttons == ["Yes", "No"]
    message.press("No")
    assert manager.starts(NAMES[0]) == []
    app.keys("Enter")
    app.message().press("Yes")
    assert manager.wait_for_start(1)[0] == f'/O /A /S /L="{here}"'

    assert context(app, app.main.source, 1, "Source") == {"Source": True, "Target": False}
    assert manager.wait_for_start(2)[0] == f'/O /A /S /L="{plugin}"'

    app.main.source.click_row(2)
    app.keys("Enter")
    message = app.message()
    assert message.text == f"This path holds a sign that no path can have:\n{marked}"
    message.press("OK")

    assert context(app, app.main.source, 3, None) == {"Source": False, "Target": False}
    app.keys("Enter")
    assert not app.find_dialog()
    assert len(manager.starts(NAMES[0])) == 2
    app.close()


def test_without_the_file_manager_the_shell_is_asked_and_nothing_is_run(folder):
    """Selecting a program is not starting it."""
    folder.write("there/x.txt", "")
    app, manager = begin(folder, [f"Copy: {folder.windows('there', 'evil.exe')} -> "
                                  + r"\\\FTP\host\x.txt"])
    shutil.copy(tools_folder() / "ordalyn_e2e_file_manager.exe", folder.path / "there" / "evil.exe")
    app.main.source.click_row(0)
    app.keys("Enter")
    assert app.main.responsive and not app.find_dialog()
    context(app, app.main.source, 0, "Target")
    message = app.message()
    assert message.text.startswith("Only the file manager can show this path")
    message.press("OK")
    assert not (folder.path / "there" / "evil.exe.started").exists()
    app.close()
