"""Rules of this code base that no compiler checks."""

import pathlib
import re
import shutil
import subprocess
import sys

import pytest

PROJECT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(PROJECT / "tools"))
import check_includes  # noqa: E402

LONGEST_FILE = 450

# What a newcomer sees first. Anything else there was left by a tool.
TOP = {".ci", ".clang-format", ".clang-tidy", ".gitattributes", ".github", ".gitignore", "CHANGELOG.md",
       "CMakeLists.txt", "CMakePresets.json", "CONTRIBUTING.md", "README.md", "build.sh", "cmake", "docs", "help", "languages", "packaging",
       "run.sh", "samples", "src", "test.sh", "tests", "tools"}

# Headers of the system that only src/win32 may know.
SYSTEM_HEADERS = re.compile(
    r"^\s*#\s*include\s*<((?:windows|winsock2?|ws2tcpip|commctrl|commdlg|shellapi|shlobj|shlwapi|"
    r"ole2|oleauto|objbase|oaidl|uxtheme|winver|winreg|winuser|winbase|wingdi|windowsx|vssym32|"
    r"dlgs|cderr|richedit|unistd|sys/\w+)\.h)>", re.M | re.I)


def tracked(*patterns):
    """Files of the project that match, also ones that are not committed yet."""
    names = subprocess.run(
        ["git", "ls-files", "--cached", "--others", "--exclude-standard", "--", *patterns],
        cwd=PROJECT, stdout=subprocess.PIPE, check=True).stdout.decode().splitlines()
    return [PROJECT / name for name in sorted(set(names)) if (PROJECT / name).is_file()]


def code(*folders):
    return tracked(*[f"{folder}/*.{end}" for folder in folders for end in ("h", "cpp")])


def name(file):
    return str(file.relative_to(PROJECT))


def text(file):
    return file.read_text(encoding="utf-8")


def without_comments(source):
    """Comments and the insides of texts become blanks; lines stay where they are."""
    def blank(match):
        found = match.group()
        return found if found[0] in "\"'" and len(found) < 3 else re.sub(r"[^\n]", " ", found)
    return re.sub(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"', blank, source, flags=re.S)


def test_there_is_code_to_check():
    assert len(code("src")) > 10


def test_nothing_lies_about_at_the_top():
    assert {file.relative_to(PROJECT).parts[0] for file in tracked()} == TOP


def test_only_the_windows_room_includes_system_headers():
    found = [f"{name(file)}: {header}" for file in code("src")
             if not name(file).startswith("src/win32/")
             for header in SYSTEM_HEADERS.findall(text(file))]
    assert found == []


def test_one_header_includes_the_systems_main_header_for_all():
    main = re.compile(r"^\s*#\s*include\s*[<\"]windows\.h[>\"]", re.M | re.I)
    found = [name(file) for file in code("src") if main.search(text(file))]
    assert found == ["src/win32/common/Win32.h"]


def test_every_include_is_in_the_table_of_rooms():
    assert check_includes.wrong_includes(PROJECT / "src") == []


def test_an_include_that_the_table_does_not_allow_is_named(tmp_path):
    (tmp_path / "src" / "below").mkdir(parents=True)
    (tmp_path / "src" / "above").mkdir()
    (tmp_path / "src" / "rooms.txt").write_text("# bottom first\nbelow:\nabove: below\n")
    (tmp_path / "src" / "below" / "Low.h").write_text('#include <string>\n#include "above/High.h"\n')
    (tmp_path / "src" / "above" / "High.h").write_text('#include "below/Low.h"\n'
                                                       '#include "below/Lost.h"\n')
    (tmp_path / "src" / "Loose.h").write_text("")
    assert check_includes.wrong_includes(tmp_path / "src") == [
        "src/Loose.h: . is not in the table of rooms",
        "src/above/High.h:2: there is no header below/Lost.h in src/",
        "src/below/Low.h:2: below may not include above/High.h"]


def test_the_table_of_rooms_has_no_arrow_upwards(tmp_path):
    (tmp_path / "rooms.txt").write_text("below: above\nabove:\n")
    assert check_includes.wrong_includes(tmp_path) == [
        "rooms.txt: below is to use above, which does not stand above it in the table"]


def test_no_handler_swallows_an_exception_without_a_word():
    empty = re.compile(r"catch\s*\([^)]*\)\s*\{\s*\}")
    found = [f"{name(file)}:{without_comments(text(file))[:match.start()].count(chr(10)) + 1}"
             for file in code("src", "tests")
             for match in empty.finditer(without_comments(text(file)))]
    assert found == []


def test_threads_wait_for_one_another_with_a_mutex_and_a_condition():
    """The other means of the library that builds for Windows look before they lock: a thread that is woken in between
    sleeps on."""
    others = re.compile(r"#include <(?:latch|semaphore|barrier|stop_token)>")
    found = [name(file) for file in code("src", "tests") if others.search(text(file))]
    assert found == []


def test_no_file_of_the_program_is_too_long_to_read():
    found = {name(file): lines for file in code("src")
             if (lines := text(file).count("\n")) > LONGEST_FILE}
    assert found == {}


def test_headers_guard_themselves():
    found = [name(file) for file in tracked("src/*.h", "tests/*.h")
             if "#pragma once" not in text(file)]
    assert found == []


def test_nothing_is_left_for_later():
    marks = re.compile(r"\b(?:TODO|FIXME|XXX|HACK)\b")
    found = [name(file) for file in code("src", "tests") if marks.search(text(file))]
    assert found == []


def test_files_are_utf_8_with_unix_line_ends():
    found = []
    for file in code("src", "tests") + tracked("*.py", "*.sh", "*.txt", "*.cmake", "*.md", "*.json"):
        if name(file).startswith("samples/"):
            continue
        content = file.read_bytes()
        content.decode("utf-8")
        if b"\r" in content or b"\t" in content or (content and not content.endswith(b"\n")):
            found.append(name(file))
    assert found == []


def test_code_is_laid_out_by_the_layout_tool():
    files = [str(file) for file in code("src", "tests")]
    done = subprocess.run(["clang-format-14", "--dry-run", *files], stderr=subprocess.PIPE,
                          cwd=PROJECT, check=False)
    wrong = sorted(set(re.findall(r"^(\S+?):\d+:\d+: warning", done.stderr.decode(), re.M)))
    assert wrong == [] and done.returncode == 0


def test_shell_scripts_are_clean():
    scripts = [str(file) for file in tracked("*.sh", ".ci/run")]
    assert scripts
    if not shutil.which("shellcheck"):
        pytest.fail("shellcheck is missing; tools/setup.sh test installs it")
    done = subprocess.run(["shellcheck", "-x", *scripts], stdout=subprocess.PIPE, cwd=PROJECT,
                          check=False)
    assert done.stdout.decode() == ""


# What starts programs or loads libraries, and which files may.
STARTING = re.compile(r"\b(?:Shell_?Execute\w*|SHOpen\w*|CreateProcess\w*|WinExec|_?w?system|_?w?popen|"
                      r"_?w?(?:spawn|exec)[lv]p?e?|fork)\s*\(")
LOADING = re.compile(r"\b(?:LoadLibrary\w*|LoadPackagedLibrary|LoadModule|LdrLoadDll|CoCreateInstance\w*|"
                     r"CoGetClassObject|CLSIDFromProgID|dlopen)\s*\(|GetModuleHandle\w*\((?!nullptr\))")
# Calls that take a text with places for values in it.
FORMATTING = re.compile(r"\b\w*(?:printf|scanf)\w*\s*\(|\bFormatMessage[AW]?\s*\(|"
                        r"\bstd::v?format\w*\s*\(")


def calls(pattern, folder="src"):
    """file -> how many calls of it match."""
    found = {name(file): len(pattern.findall(without_comments(text(file)))) for file in code(folder)}
    return {file: count for file, count in found.items() if count}


def test_one_place_starts_other_programs():
    # To open something, and to have something selected.
    assert calls(STARTING) == {"src/win32/services/Win32Shell.cpp": 2}


def test_one_place_loads_libraries():
    # A look at the system's first library, which is in every process, and the load by a whole path.
    assert calls(LOADING) == {"src/win32/common/SystemLibraries.cpp": 2}


def test_no_text_is_a_format():
    assert calls(FORMATTING) == {}


@pytest.mark.parametrize("pattern, call", [
    (STARTING, "::ShellExecuteExW(&info)"), (STARTING, "CreateProcessW(a"), (STARTING, "system (a)"),
    (STARTING, "_wspawnl(a"), (STARTING, "SHOpenWithDialog(a"), (LOADING, "LoadLibraryExW(a"), (LOADING, 'GetModuleHandleW(L"a")'),
    (LOADING, "CoCreateInstance(a"), (FORMATTING, "std::snprintf(a"), (FORMATTING, "wsprintfW(a"),
    (FORMATTING, "swprintf(a"), (FORMATTING, "printf(a"), (FORMATTING, "std::vformat(a"),
    (FORMATTING, "FormatMessageW(a")])
def test_such_calls_are_noticed(pattern, call):
    assert pattern.search(call)


def test_the_first_thing_a_process_does_is_to_mind_where_libraries_come_from():
    entry = without_comments(text(PROJECT / "src/win32/entry/WinMain.cpp"))
    body = entry[entry.index("{", entry.index("wWinMain")) + 1:]
    assert body.split(";")[0].strip() == "ordalyn::win32::FindLibrariesInSystemFolderOnly()"
