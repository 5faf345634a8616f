"""Started with a log's path: the log is shown, or the message says why not."""

import re
import struct

import pytest

from harness.wine import PROJECT

pytestmark = pytest.mark.usefixtures("pointer_inside")

LOG = [
    r"01.03.2024 10:15:30: Copy C:\a.txt -> D:\a.txt",
    r"01.03.2024 10:16:00: Delete C:\b.txt",
    r"02.03.2024 08:00:01: Program start (anna/DESK7) UTF-8",
    r"02.03.2024 08:00:05: Move C:\Пётр и 報告.txt -> \\nas\fotos\Пётр и 報告.txt",
    r"02.03.2024 08:00:09: Copy: Skipped: C:\c.txt",
]
READ_ERROR = "There is an error in file\n{}\nLine: {}"


def project_version():
    """The one place where the version stands."""
    text = (PROJECT / "CMakeLists.txt").read_text(encoding="utf-8")
    return tuple(map(int, re.search(r"project\(Ordalyn VERSION (\d+)\.(\d+)\.(\d+) ",
                                    text).groups()))


def refuse(folder, path, line):
    """Starts the program on a file that it cannot read; answers the app after the message."""
    app = folder.start(path, env=folder.file_manager())
    message = app.message(30)
    assert message.text == READ_ERROR.format(folder.windows(path.name), line)
    assert message.icon == ""
    assert message.buttons == ["OK"]
    message.press("OK")
    assert not app.find_dialog()
    assert app.main.responsive
    assert app.pointer == "arrow"
    return app


def test_the_last_day_is_shown_in_both_panels(show):
    app = show(LOG)
    assert app.main.dates.chosen == "02.03.2024"
    assert app.main.source.headers == ["Time", "Source"]
    assert app.main.source.rows() == [
        ("08:00:01", "Program start (anna/DESK7) UTF-8"),
        ("08:00:05", r"Move C:\Пётр и 報告.txt "),
        ("08:00:09", r"Copy: Skipped: C:\c.txt"),
    ]
    assert app.main.target.headers == ["Target"]
    assert app.main.target.rows() == [("",), (r"\\nas\fotos\Пётр и 報告.txt",), ("",)]
    assert app.main.status[0] == "3 Operation(s)  "
    assert app.main.source.focused


def test_the_panels_hold_no_copies_of_the_rows(show):
    app = show(LOG)
    assert app.main.source.owner_data
    assert app.main.target.owner_data


def test_the_title_names_the_program_and_the_log(show):
    app = show(LOG, name="my log.log")
    major, minor, patch = project_version()
    assert app.main.text.startswith(f"Ordalyn {major}.{minor}{patch} RC 1 - ")
    assert app.main.log_title == "my log.log"


def test_the_about_box_the_version_resource_and_the_manifest_show_the_project_s_version(show, folder):
    major, minor, patch = project_version()
    app = show(LOG)
    app.main.choose("Help", "About...")
    about = app.window("About")
    assert f"{major}.{minor}{patch}" in [label.text for label in about.controls("Static")]
    data = (folder.program / "Ordalyn.exe").read_bytes()
    # VS_FIXEDFILEINFO: its signature, its own version, then the file's and the product's.
    fixed = data.index(struct.pack("<2L", 0xFEEF04BD, 0x10000))
    numbers = struct.unpack_from("<4L", data, fixed + 8)
    assert numbers == (major << 16 | minor, patch << 16) * 2
    for name in ("FileVersion", "ProductVersion"):
        at = data.index(f"{name}\0".encode("utf-16-le")) + 2 * len(name) + 2
        found = data[at:at + 64].decode("utf-16-le", "replace").lstrip("\0").split("\0")[0]
        assert (name, found) == (name, f"{major}.{minor}.{patch}")
    manifest = f'name="Ordalyn" version="{major}.{minor}.{patch}.0"'
    assert data.count(manifest.encode("ascii")) == 1


def test_double_quotes_around_the_path_are_removed(folder):
    log = folder.write("a folder/a log.log", LOG)
    app = folder.start(f'"{folder.windows("a folder", log.name)}"', env=folder.file_manager())
    app.wait_for_rows(3)


def test_a_path_with_blanks_needs_no_quotes(folder):
    app = folder.start(folder.write("a folder/a log.log", LOG), env=folder.file_manager())
    app.wait_for_rows(3)


def test_a_path_outside_the_code_page(folder):
    app = folder.start(folder.write("журнал 報告.log", LOG), env=folder.file_manager())
    app.wait_for_rows(3)
    assert app.main.log_title == "журнал 報告.log"


def test_a_log_that_does_not_exist(folder):
    app = folder.start(folder.windows("missing.log"), env=folder.file_manager())
    message = app.message(30)
    assert message.text == "Cannot find Total Commander log file."
    assert message.icon == "error"
    assert message.buttons == ["OK"]
    message.press("OK")
    assert app.main.source.row_count == 0
    assert app.main.text.endswith(" RC 1 - ")
    app.close()


def test_a_line_without_a_blank_stops_the_read(folder):
    # Four lines, one of them blank: it counts for the number.
    log = folder.write("bad.log", [LOG[0], "", "garbage", LOG[1]])
    app = refuse(folder, log, 3)
    assert app.main.dates.items == []
    app.close()


def test_an_empty_file(folder):
    app = refuse(folder, folder.write("empty.log", b""), 0)
    app.close()


def test_a_folder_instead_of_a_file(folder):
    path = folder.path / "folder.log"
    path.mkdir()
    # A folder is found where a log is looked for, but it cannot be read as one.
    app = refuse(folder, path, 0)
    app.close()


def test_a_file_without_a_line_that_ends(folder):
    app = folder.start(folder.write("open.log", "01.03.2024 10:15:30: Copy a -> b"),
                       env=folder.file_manager())
    app.wait_for_rows(1)
    assert app.main.source.rows() == [("10:15:30", "Copy a ")]
    assert app.main.target.rows() == [("b",)]


@pytest.mark.parametrize("end", ["\r\n", "\n", "\r"], ids=["CR LF", "LF", "CR"])
def test_all_line_ends_end_a_line(folder, end):
    app = folder.start(folder.write("ends.log", end.join(LOG) + end), env=folder.file_manager())
    app.wait_for_rows(3)


def test_a_file_cut_in_the_middle_of_a_character(folder):
    whole = (LOG[0] + "\r\n" + r"01.03.2024 10:17:00: Delete C:\Пётр").encode("utf-8-sig")
    app = folder.start(folder.write("cut.log", whole[:-1]), env=folder.file_manager())
    app.wait_for_rows(2)
    assert app.main.source.rows()[1] == ("10:17:00", "Delete C:\\Пёт\N{REPLACEMENT CHARACTER}")


def test_a_nul_byte_does_no_harm(folder):
    log = folder.write("zero.log", [LOG[0].replace("a.txt ", "a\0b.txt "), LOG[1]])
    app = folder.start(log, env=folder.file_manager())
    app.wait_for_rows(2)
    assert app.main.source.rows()[1] == ("10:16:00", r"Delete C:\b.txt")
    app.close()


def test_a_line_of_ten_megabytes(folder):
    app = folder.start(folder.write("long.log", [LOG[0], LOG[1] + "x" * 10_000_000, LOG[1]]),
                       env=folder.file_manager())
    app.wait_for_rows(3)
    assert app.main.source.rows()[2] == ("10:16:00", r"Delete C:\b.txt")
    app.close()


def test_a_log_in_utf_16(folder):
    text = "\ufeff" + "\r\n".join(LOG)
    app = folder.start(folder.write("wide.log", text, "utf-16-le"), env=folder.file_manager())
    app.wait_for_rows(3)
    assert app.main.target.rows()[1] == (r"\\nas\fotos\Пётр и 報告.txt",)


def test_a_log_in_the_code_page_that_was_continued_in_utf_8(folder):
    old = r"01.03.2024 10:15:30: Kopieren C:\Küche.txt -> D:\Küche.txt" + "\r\n"
    new = r"01.03.2024 10:15:31: Kopieren C:\Пётр.txt -> D:\Пётр.txt" + "\r\n"
    app = folder.start(folder.write("both.log", old.encode("cp1252") + new.encode("utf-8")),
                       env=folder.file_manager())
    app.wait_for_rows(2)
    assert app.main.target.rows() == [(r"D:\Küche.txt",), (r"D:\Пётр.txt",)]


def test_a_log_in_the_code_page_of_a_russian_system(folder):
    line = r"01.03.2024 10:15:30: Копирование C:\Пётр.txt -> D:\Пётр.txt"
    app = folder.start(folder.write("old.log", [line], "cp1251"), env=folder.file_manager(),
                       locale="ru_RU.UTF-8")
    app.wait_for_rows(1)
    assert app.main.target.rows() == [(r"D:\Пётр.txt",)]


def test_while_the_log_is_shown_others_can_rename_and_delete_it(show, folder, wine):
    app = show(LOG)
    wine.run(["cmd", "/c", "ren", folder.windows("totalcmd.log"), "totalcmd.1.log"])
    assert (folder.path / "totalcmd.1.log").exists()
    wine.run(["cmd", "/c", "del", folder.windows("totalcmd.1.log")])
    assert not (folder.path / "totalcmd.1.log").exists()
    assert app.main.source.row_count == 3


def test_closing_ends_the_program(show):
    app = show(LOG)
    app.close()
