"""What tools/check_program.py says of small programs, each of which lacks one thing."""

import pathlib
import re
import subprocess
import sys

import pytest

PROJECT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(PROJECT / "tools"))
import check_program  # noqa: E402

COMPILERS = {"amd64": "x86_64-w64-mingw32", "x86": "i686-w64-mingw32"}
EVERYTHING = "-Wl,--dynamicbase,--nxcompat"
SOURCE = """
#include <windows.h>
#include <commctrl.h>
{}
int WINAPI WinMain(HINSTANCE a, HINSTANCE b, LPSTR c, int d) {{ InitCommonControls(); {} return 0; }}
"""
MORE_RIGHTS = ("asInvoker", "requireAdministrator")
OTHERS_WINDOWS = ('uiAccess="false"', 'uiAccess="true"')
OLD_CONTROLS = ('version="6.0.0.0"', 'version="5.82.0.0"')
OTHER_CONTROLS = ("6595b64144ccf1df", "0000000000000000")
ONE_RESOLUTION = ("PerMonitorV2, PerMonitor", "System")
NEWER_ONLY = ("true/pm", "true")
ITS_PLACE = "it lies at the same place in memory at each start"


def build(folder, architecture, options=(), manifest=("", ""), before="", inside="", libraries=(),
          version=True):
    """The bytes of a program, made as the project makes its own, apart from what is named here."""
    compiler = COMPILERS[architecture]
    text = (PROJECT / "packaging/ordalyn.manifest.in").read_text(encoding="utf-8")
    text = text.replace("@ORDALYN_PROCESSOR@", architecture).replace("@PROJECT_VERSION@", "1.0.0")
    assert manifest[0] in text
    (folder / "trial.manifest").write_text(text.replace(*manifest), encoding="utf-8")
    (folder / "trial.rc").write_text('1 24 "trial.manifest"\n' + ("1 VERSIONINFO\nBEGIN\nEND\n" if version else ""))
    (folder / "trial.c").write_text(SOURCE.format(before, inside))
    wide = ["-Wl,--high-entropy-va"] if architecture == "amd64" else []
    subprocess.run([f"{compiler}-windres", "trial.rc", "resources.o"], cwd=folder, check=True)
    subprocess.run([f"{compiler}-gcc-posix", "-mwindows", "-s", "-o", "trial.exe", "trial.c", "resources.o",
                    EVERYTHING, *wide, *options, "-lcomctl32", *libraries], cwd=folder, check=True)
    return (folder / "trial.exe").read_bytes()


@pytest.mark.parametrize("architecture", COMPILERS)
def test_a_program_that_is_made_as_the_projects_own_has_no_faults(tmp_path, architecture):
    assert list(check_program.complaints(build(tmp_path, architecture), architecture)) == []


@pytest.mark.parametrize("architecture", COMPILERS)
@pytest.mark.parametrize("changes, complaint", [
    ({"options": ["-Wl,--disable-dynamicbase"]}, ITS_PLACE),
    ({"options": ["-Wl,--disable-reloc-section"]}, ITS_PLACE),
    ({"options": ["-Wl,--disable-nxcompat"]}, "its data and its stack can be run as code"),
    ({"before": 'asm(".section .both,\\"wx\\"\\n.long 0\\n.text");'},
     "its section .both can be both written and run as code"),
    ({"manifest": MORE_RIGHTS},
     "its manifest does not ask for the rights of who starts it, and no others"),
    ({"manifest": OTHERS_WINDOWS},
     "its manifest does not ask for the rights of who starts it, and no others"),
    ({"manifest": OLD_CONTROLS}, "it would take comctl32 from its own folder if one lay there"),
    ({"manifest": OTHER_CONTROLS}, "it would take comctl32 from its own folder if one lay there"),
    ({"manifest": ONE_RESOLUTION},
     "its manifest does not say that it draws for the resolution of each screen"),
    ({"manifest": NEWER_ONLY},
     "its manifest does not say that it draws for the resolution of each screen"),
    ({"inside": 'GetFileVersionInfoSizeA("a", 0);', "libraries": ["-lversion"]},
     "it would take version from its own folder if one lay there"),
    ({"version": False}, "it has no version resource"),
])
def test_what_a_program_lacks_is_said(tmp_path, architecture, changes, complaint):
    program = build(tmp_path, architecture, **changes)
    assert complaint in list(check_program.complaints(program, architecture))


@pytest.mark.parametrize("option", ["-Wl,--disable-high-entropy-va", "-Wl,--image-base=0x400000"])
def test_the_wide_program_uses_the_whole_memory(tmp_path, option):
    program = build(tmp_path, "amd64", options=[option])
    assert list(check_program.complaints(program, "amd64")) == [
        "it does not use the whole memory for its place"]


@pytest.mark.parametrize("architecture", COMPILERS)
@pytest.mark.parametrize("library, function, call", [
    ("kernel32", "GetSystemTimePreciseAsFileTime", "GetSystemTimePreciseAsFileTime((FILETIME *)a);"),
    ("kernel32", "SetDefaultDllDirectories", "SetDefaultDllDirectories(0x800);"),
    ("user32", "GetDpiForWindow", "GetDpiForWindow((HWND)a);")])
def test_a_function_that_windows_7_does_not_have_is_named(tmp_path, architecture, library, function, call):
    program = build(tmp_path, architecture, options=["-D_WIN32_WINNT=0x0A00"], inside=call)
    assert list(check_program.complaints(program, architecture)) == [
        f"it needs {function} of {library}, which tools/windows7_functions.txt does not have"]


@pytest.mark.parametrize("architecture", COMPILERS)
def test_a_function_that_is_asked_for_by_its_number_is_named(tmp_path, architecture):
    (tmp_path / "trial.def").write_text("LIBRARY user32.dll\nEXPORTS\nByNumber @900 NONAME\n")
    compiler = COMPILERS[architecture]
    subprocess.run([f"{compiler}-dlltool", "-d", "trial.def", "-l", "libtrial.a"], cwd=tmp_path, check=True)
    program = build(tmp_path, architecture, before="void ByNumber(void);", inside="ByNumber();",
                    libraries=["-L.", "-ltrial"])
    assert list(check_program.complaints(program, architecture)) == [
        "it needs number 900 of user32, which tools/windows7_functions.txt does not have"]


def test_the_list_takes_nothing_that_came_after_windows_7():
    with pytest.raises(ValueError, match="Windows 7 does not have GetDpiForWindow of user32"):
        check_program.functions_of_windows7("# what it is\n\nuser32 GetDC XP\nuser32 GetDpiForWindow 10\n")
    assert check_program.functions_of_windows7("user32 GetDC XP\n") == {("user32", "GetDC")}


def test_libraries_that_are_loaded_later_are_named(tmp_path):
    program = bytearray(build(tmp_path, "amd64"))
    start = int.from_bytes(program[0x3C:0x40], "little")
    entry = start + 24 + 112 + 8 * check_program.DELAYED_IMPORTS
    program[entry + 4] = 32
    assert list(check_program.complaints(bytes(program), "amd64")) == [
        "it has libraries that are loaded later, which this check cannot follow"]


def test_a_program_of_the_other_architecture_is_named(tmp_path):
    assert list(check_program.complaints(build(tmp_path, "x86"), "amd64")) == [
        "it is no program for amd64", "it has no manifest for amd64"]


def test_the_tool_ends_with_an_error_and_names_the_program(tmp_path):
    build(tmp_path, "amd64", options=["-Wl,--disable-nxcompat"])
    done = subprocess.run([PROJECT / "tools/check_program.py", tmp_path / "trial.exe", "amd64"],
                          stderr=subprocess.PIPE, check=False)
    assert done.returncode == 1
    assert done.stderr.decode() == (
        f"{tmp_path}/trial.exe: its data and its stack can be run as code\n")


def test_the_page_names_the_libraries_that_the_program_may_link():
    page = (PROJECT / "docs/security.md").read_text(encoding="utf-8")
    linked = page[page.index("**Linked**"):page.index("These load before")]
    named = set(re.findall(r"\b[a-z]+(?:32)?\b", linked))
    # shlwapi may be linked, but is not.
    assert check_program.KNOWN_LIBRARIES - named == {"shlwapi"}


def test_every_program_that_is_handed_out_is_checked():
    script = (PROJECT / "build.sh").read_text(encoding="utf-8")
    assert 'tools/check_program.py "$target/Ordalyn.exe" "$architecture" ||' in script
