"""Rules of the build files and scripts, and that what breaks them is named."""

import pathlib
import subprocess
import sys

import pytest

PROJECT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(PROJECT / "tools"))
import draw_rooms  # noqa: E402


def test_the_picture_of_the_rooms_is_that_of_their_table():
    """tools/draw_rooms.py draws it."""
    document = draw_rooms.DOCUMENT.read_text(encoding="utf-8")
    assert draw_rooms.with_picture(document, draw_rooms.picture(PROJECT / "src")) == document


def test_the_picture_of_the_rooms_has_their_parts_purposes_and_direct_arrows(tmp_path):
    (tmp_path / "rooms.txt").write_text("# The rooms: a table.\n\n# Down here: known.\nlow:\n# A note.\nmid: low\n"
                                        "\n# Up here.\nup/high: low mid\n")
    for room in ("low", "mid", "up/high"):
        (tmp_path / room).mkdir(parents=True)
        (tmp_path / room / "CMakeLists.txt").write_text(f"# The purpose\n# of {room}.\nordalyn_room()\n")
    drawn = draw_rooms.picture(tmp_path)
    assert [line.strip() for line in drawn.splitlines() if "-->" in line] == [
        "mid --> low", "up_high --> mid"]
    assert [line for line in drawn.splitlines() if line.startswith("| ")] == [
        "| Down here | what is in it | rests on |", "| `low` | The purpose of low. | nothing |",
        "| `mid` | The purpose of mid. | `low` |", "| Up here | what is in it | rests on |",
        "| `up/high` | The purpose of up/high. | `mid` |"]


def test_a_document_without_a_place_for_the_picture_is_an_error():
    with pytest.raises(SystemExit):
        draw_rooms.with_picture("# Text\n", "picture")


def nothing_forgotten(root):
    """What CMake says about source files and folders that no CMakeLists.txt names."""
    done = subprocess.run(["cmake", f"-DROOT={root}", "-P", PROJECT / "cmake/NothingForgotten.cmake"],
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
    assert (done.returncode == 0) == (done.stdout == b"")
    return " ".join(done.stdout.decode().split())


def test_cmake_names_every_source_and_folder():
    assert nothing_forgotten(PROJECT) == ""


@pytest.mark.parametrize("path", ["src/room/More.cpp", "src/other/CMakeLists.txt",
                                  "tests/unit/room/NewTest.cpp", "tests/unit/rom/CMakeLists.txt",
                                  "tests/unit/loose.cpp"])
def test_a_source_or_folder_that_cmake_does_not_name_is_an_error(tmp_path, path):
    files = {"src/CMakeLists.txt": "foreach(room ${ORDALYN_ROOMS})\n", "src/rooms.txt": "# other\nroom:\n",
             "src/room/CMakeLists.txt": "ordalyn_room(SOURCES A.cpp)\n", "src/room/A.cpp": "",
             "tests/CMakeLists.txt": "add_subdirectory(unit) # loose.cpp\nadd(unit/Shared.cpp)\n",
             "tests/unit/CMakeLists.txt": "foreach(part room rooms)\n", "tests/unit/Shared.cpp": "",
             "tests/unit/room/CMakeLists.txt": "ordalyn_test(unit_room SOURCES NewTests.cpp ATest.cpp\n)",
             "tests/unit/room/ATest.cpp": ""}
    for name_, content in files.items():
        (tmp_path / name_).parent.mkdir(parents=True, exist_ok=True)
        (tmp_path / name_).write_text(content)
    assert nothing_forgotten(tmp_path) == ""
    (tmp_path / path).parent.mkdir(parents=True, exist_ok=True)
    (tmp_path / path).write_text("")
    left_out = pathlib.PurePosixPath(path)
    if left_out.name == "CMakeLists.txt":
        left_out = left_out.parent
    assert f"{tmp_path}/{left_out} is left out" in nothing_forgotten(tmp_path)


def cmake_project(tmp_path, lines):
    """Configures a project of these lines; what CMake says when it fails, else nothing."""
    (tmp_path / "CMakeLists.txt").write_text(
        "cmake_minimum_required(VERSION 3.22)\nproject(Trial VERSION 1.0.0 LANGUAGES NONE)\n"
        f"list(APPEND CMAKE_MODULE_PATH {PROJECT}/cmake)\n" + "\n".join(lines) + "\n")
    done = subprocess.run(["cmake", "-G", "Ninja", "-S", tmp_path, "-B", tmp_path / "build"],
                          stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=False)
    return "" if done.returncode == 0 else " ".join(done.stderr.decode().split())


@pytest.mark.parametrize("table, sources, complaint", [
    ("room:\n", ["room/A.cpp", "room/CMakeLists.txt"], None),
    ("room:\nroof: room\n", ["room/A.cpp", "room/CMakeLists.txt"], "there is no room roof in src/"),
    ("room: roof\n", ["room/A.cpp", "room/CMakeLists.txt"], "room is to use roof, which is no room"),
    ("Room\n", [], "not a row of the table: Room"),
    ("room:\n", ["room/CMakeLists.txt", "room/A.h", "rom/A.cpp"], "src/rom is not in"),
    ("room:\n", ["room/CMakeLists.txt", "room/deep/A.h"], "src/room/deep is not in"),
])
def test_a_room_that_is_in_the_table_or_in_the_tree_only_is_an_error(tmp_path, table, sources, complaint):
    for file in sources:
        (tmp_path / "src" / file).parent.mkdir(parents=True, exist_ok=True)
        (tmp_path / "src" / file).write_text("")
    (tmp_path / "src").mkdir(exist_ok=True)
    (tmp_path / "src" / "rooms.txt").write_text("# bottom first\n" + table)
    said = cmake_project(tmp_path, ["include(Rooms)"])
    assert complaint in said if complaint else said == ""


@pytest.mark.parametrize("link, complaint", [
    ("", None),
    ("target_link_libraries(low INTERFACE windows)", "known must not link windows, but low does"),
    ("target_link_libraries(known INTERFACE windows)", "known must not link windows, but known does"),
    ("target_link_libraries(mid INTERFACE $<LINK_ONLY:windows>)", "but mid does"),
])
def test_what_must_not_be_linked_is_found_however_far_away(tmp_path, link, complaint):
    said = cmake_project(tmp_path, [
        "include(LinkClosure)", "foreach(one known mid low windows)", "add_library(${one} INTERFACE)",
        "endforeach()", "target_link_libraries(known INTERFACE mid outside)",
        "target_link_libraries(mid INTERFACE low)", "target_link_libraries(low INTERFACE mid)", link,
        "ordalyn_links_nothing_of(known windows)"])
    assert complaint in said if complaint else said == ""


def setup_script(tmp_path, user, *tasks):
    """What tools/setup.sh prints for a user where nothing is installed, with a line SUDO or ROOT for
    each command that it runs as root."""
    printed = tmp_path / "printed"
    stubs = {"id": f"echo {user}", "dpkg-query": "exit 1", "locale": "exit 0",
             "sudo": f'echo SUDO "$1" >>{printed}', "apt-get": f"echo ROOT apt-get >>{printed}",
             "localedef": f"echo ROOT localedef >>{printed}"}
    (tmp_path / "bin").mkdir()
    for name_, body in stubs.items():
        (tmp_path / "bin" / name_).write_text(f"#!/bin/sh\n{body}\n")
        (tmp_path / "bin" / name_).chmod(0o755)
    with open(printed, "ab") as out:
        subprocess.run([PROJECT / "tools/setup.sh", *tasks], stdout=out, check=True,
                       env={"PATH": f"{tmp_path}/bin:/usr/bin:/bin"})
    return printed.read_text().splitlines()


def test_what_is_installed_is_said_before_sudo_is_called(tmp_path):
    said = setup_script(tmp_path, 1000, "build", "test")
    assert said[0].startswith("Installing with sudo (apt-get): cmake ")
    assert "python3-pytest" in said[0]
    assert said[1:3] == ["SUDO apt-get", "SUDO env"]
    assert said[3] == "Making locales with sudo (localedef): ru_RU de_DE"
    assert said[4:] == ["SUDO localedef"] * 2


def test_root_needs_no_sudo(tmp_path):
    said = setup_script(tmp_path, 0, "run", "test")
    assert said[0].startswith("Installing (apt-get): wine ")
    assert said[1:] == ["ROOT apt-get"] * 2 + ["Making locales (localedef): ru_RU de_DE"] + [
        "ROOT localedef"] * 2
