"""Documents say what is so: links lead somewhere, files are there, and every command in them is one that can be given.

A command that no rule below knows is an error, so that nothing is left unchecked.
"""

import fnmatch
import functools
import json
import pathlib
import re
import shlex
import subprocess
import sys

import pytest

PROJECT = pathlib.Path(__file__).resolve().parents[2]
sys.path[:0] = [str(PROJECT / "tools"), str(PROJECT / "tests/bench")]
import figures  # noqa: E402
import make_release  # noqa: E402

THIS = "tests/lint/test_documents.py"
SOURCES = (".cpp", ".h", ".py", ".sh", ".txt", ".cmake", ".json", ".nsi", ".nsh", ".in", ".ini", ".html", ".lng")
# What a reader fills in.
BLANKS = {"LOG", "FILE", "KIND"}
# Files that others make or have: the program, Windows, the file manager, a build.
NOT_OURS = {"Ordalyn.exe", "Ordalyn.ini", "wincmd.ini", "uninstall.exe", "SHA256SUMS", "LICENSE", "texts.html",
            "totalcmd.log", "TOTALCMD64.EXE", "TOTALCMD.EXE", "Readme.chm"}
NOT_OURS_FOLDERS = ("build/", "dist/", "C:\\", "D:\\", "%")
# What begins a command of a shell in running text.
BEGINS_COMMAND = re.compile(r"^(?:[A-Z_]+=\S+ |\./|build/\S+/|tools/\S+ |tests/\S+\.py |docs/\S+\.py )"
                            r"|^(?:cmake|ctest|python3|git|clang-format-14|certutil|bench_\w+|make_log) \S")


def tracked(*patterns):
    names = subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard", "--", *patterns],
                           cwd=PROJECT, stdout=subprocess.PIPE, check=True).stdout.decode().splitlines()
    return sorted({name for name in names if (PROJECT / name).is_file()})


DOCUMENTS = tracked("*.md")
each_document = pytest.mark.parametrize("document", DOCUMENTS)


def read(name):
    return (PROJECT / name).read_text(encoding="utf-8")


@functools.cache
def all_files():
    return tracked()


@functools.cache
def source_words():
    """Every name in the code, the tests, the scripts and the build files."""
    words = set()
    for name in all_files():
        if name.endswith(SOURCES) and name != THIS:
            words.update(re.findall(r"\w+", (PROJECT / name).read_text(encoding="utf-8", errors="replace")))
    return words


@functools.cache
def source_text():
    return "\n".join((PROJECT / name).read_text(encoding="utf-8", errors="replace") for name in all_files()
                     if name.endswith(SOURCES) and name != THIS)


class Wrong(Exception):
    """Why a command, a name or a link is not what it says."""


def check(condition, why):
    if not condition:
        raise Wrong(why)


# --- What a document is made of.

def parts(text):
    """The code blocks as (language, lines before it, text), and the text without them."""
    blocks = []

    def take(match):
        blocks.append((match.group(1).strip(), text[:match.start()].count("\n") + 1, match.group(2)))
        return "\n" * match.group().count("\n")
    rest = re.sub(r"^```([^\n]*)\n(.*?)^```$", take, text, flags=re.M | re.S)
    rest = re.sub(r"^---\n.*?^---$", lambda found: "\n" * found.group().count("\n"), rest, count=1,
                  flags=re.M | re.S) if text.startswith("---\n") else rest
    return blocks, rest


def inline_code(rest):
    """What stands between marks of code in running text, each once."""
    return sorted({re.sub(r"\s+", " ", code) for code in re.findall(r"(?<!`)`([^`]+)`(?!`)", rest)})


def slug(heading):
    """The anchor that a heading gets where such pages are shown."""
    plain = re.sub(r"[`*]|\[([^\]]*)\]\([^)]*\)", r"\1", heading).strip().lower()
    return re.sub(r"[^\w\- ]", "", plain).replace(" ", "-")


def anchors(text):
    _, rest = parts(text)
    return {slug(heading) for heading in re.findall(r"^#+ (.+)$", rest, re.M)}


def broken_links(name, text):
    _, rest = parts(text)
    rest = re.sub(r"`[^`]*`", "", rest)
    wrong = [f"{name}: [{link}] has nothing that it leads to"
             for link in re.findall(r"\]\[([^\]]*)\]", rest)]
    for target in re.findall(r"\]\(([^)\s]*)\)|<(https?:[^>]*)>", rest):
        target = "".join(target)
        path, _, anchor = target.partition("#")
        file = (PROJECT / name).parent / path if path else PROJECT / name
        if re.match(r"\w+:", target):
            wrong.append(f"{name}: {target} leads out of the project, where nobody can check it")
        elif not file.exists() or (file.is_file() and PROJECT in file.resolve().parents
                                   and str(file.resolve().relative_to(PROJECT)) not in all_files()):
            wrong.append(f"{name}: there is no {path}")
        elif anchor and anchor not in anchors(file.read_text("utf-8") if file != PROJECT / name else text):
            wrong.append(f"{name}: {target} names no heading")
    return wrong


# --- Commands.

def kinds_of(script):
    """The words that a script of the root takes, from the lines that decide on them."""
    body = read(script)
    if script == "test.sh":
        found = re.search(r"case \$kind in\s+([\w |]+)\) ;;\s+\*\)", body)
        return set(re.findall(r"\w+", found.group(1)))
    return set(re.findall(r"^ +(\w+)\)", body[body.index("case $bits in"):], re.M))


def presets(sort):
    return {preset["name"] for preset in json.loads(read("CMakePresets.json"))[sort] if not preset.get("hidden")}


@functools.cache
def targets():
    """Target -> where its program is, from the configured build."""
    build = PROJECT / "build/native-debug/build.ninja"
    if not build.exists():
        subprocess.run(["cmake", "--preset", "native-debug"], cwd=PROJECT, stdout=subprocess.DEVNULL, check=True)
    found = dict(re.findall(r"^build (\w+): phony (\S+)$", build.read_text("utf-8"), re.M))
    # What is built for Windows or for the fuzzer only.
    for name in tracked("tests/**/CMakeLists.txt", "src/**/CMakeLists.txt"):
        for target in re.findall(r"^\s*(?:add_executable|ordalyn_(?:fuzz\w*|test|bench)|add_custom_target)\((\w+)",
                                 read(name), re.M):
            found.setdefault(target, f"{pathlib.PurePath(name).parent}/{target}")
    return found


@functools.cache
def googletests(folder):
    """Every "Suite.Name" of a folder of tests."""
    return {f"{suite}.{test}" for name in tracked(f"{folder}/*.cpp", f"{folder}/*.h")
            for suite, test in re.findall(r"^TEST(?:_[FP])?\((\w+),\s*(\w+)\)", read(name), re.M)}


def check_filter(folder, pattern):
    names = googletests(folder)
    for part in pattern.split("-")[0].split(":"):
        check(any(fnmatch.fnmatch(test, part) for test in names), f"no test of {folder} is named {part}")


def check_words(words, folder):
    """That each word of pytest's -k is in the name of a test there, or of its file."""
    names = [f"{name} {test}" for name in tracked(f"{folder}/*.py", folder)
             for test in re.findall(r"^def (test_\w+)", read(name), re.M)]
    for word in re.findall(r"\w+", words):
        if word not in ("and", "or", "not"):
            check(any(word in name for name in names), f"no test in {folder} has {word} in its name")


def check_file(name):
    """FILE or FILE:LINE."""
    name, _, line = name.partition(":")
    check(name in BLANKS or name in all_files() or (PROJECT / name).is_dir() or name.startswith(NOT_OURS_FOLDERS),
          f"there is no file {name}")
    if line:
        check(int(line) <= read(name).count("\n"), f"{name} has no line {line}")


@functools.cache
def help_of(script):
    """What a script says of itself when it is asked, or the comment at its top."""
    body = read(script)
    if "argparse" not in body:
        return body
    return subprocess.run([sys.executable, "-B", PROJECT / script, "--help"], stdout=subprocess.PIPE, check=True,
                          timeout=20).stdout.decode() + body.split('"""')[1]


def with_value(arguments):
    """Options and what follows each, and what belongs to none."""
    options, others, rest = [], [], list(arguments)
    while rest:
        word = rest.pop(0)
        if word.startswith("-"):
            name, equals, value = word.partition("=")
            if not equals and rest and not rest[0].startswith("-"):
                value = rest.pop(0)
            options.append((name, value))
        else:
            others.append(word)
    return options, others


def check_cmake(arguments):
    options = with_value(arguments)[0]
    building = "--build" in arguments
    for name, value in options:
        if name == "--preset":
            check(value in presets("buildPresets" if building else "configurePresets"), f"no preset {value}")
        elif name == "--target":
            for target in arguments[arguments.index("--target") + 1:]:
                check(target in targets(), f"no target {target}")
        elif name.startswith("-D"):
            option = name[2:]
            check(option.startswith("CMAKE_") or option in ("BUILD_TESTING",) or option in source_words(),
                  f"CMake is told nothing by {option}")
        else:
            check(name == "--build", f"cmake {name} is not checked")
    check("--preset" in arguments, "cmake without a preset")


def listed_by_ctest(arguments, preset):
    """What ctest says that the command would run; every target where the preset is not configured here."""
    if not (PROJECT / "build" / preset / "CTestTestfile.cmake").exists():
        return {"build", *targets()}
    listed = subprocess.run(["ctest", *arguments, "-N"], cwd=PROJECT, stdout=subprocess.PIPE,
                            stderr=subprocess.DEVNULL, check=False, timeout=30).stdout.decode()
    return set(re.findall(r"Test +#\d+: (\w+)$", listed, re.M))


def check_ctest(arguments):
    options = dict(with_value(arguments)[0])
    preset = options.get("--preset")
    check(preset in presets("testPresets"), f"no preset {preset} for tests")
    for word in re.findall(r"\w{4,}", options.get("-R", "")):
        check(word in listed_by_ctest(arguments, preset), f"no test is named {word}")
    for name in options:
        check(name in ("--preset", "-R", "-N"), f"ctest {name} is not checked")


def check_pytest(arguments):
    options, folders = [], []
    rest = arguments[arguments.index("pytest") + 1:]
    while rest:
        word = rest.pop(0)
        if word in ("-k", "-p", "-n"):
            options.append((word, rest.pop(0)))
        elif not word.startswith("-"):
            folders.append(word)
    for folder in folders:
        check_file(folder)
        for name, value in options:
            if name == "-k":
                check_words(value, folder)


def check_program(path, arguments):
    """A built program: build/PRESET/... as CMake makes it, or only its name."""
    found = re.fullmatch(r"build/([\w-]+)/(.+?)(?:\.exe)?", path)
    name = pathlib.PurePath(path).name.removesuffix(".exe")
    check(name in targets(), f"no program {name} is built")
    if found:
        check(found.group(1) in presets("configurePresets"), f"no preset {found.group(1)}")
        check(found.group(2) == targets()[name], f"{name} is built as {targets()[name]}")
    for option, value in with_value(arguments)[0]:
        check(option in ("--gtest_filter", "--gtest_list_tests"), f"{name} {option} is not checked")
        if option == "--gtest_filter":
            check_filter(str(pathlib.PurePath(targets()[name]).parent), value)


def check_script(script, arguments):
    check((PROJECT / script).stat().st_mode & 0o100, f"{script} cannot be run")
    options, others = with_value(arguments)
    for name, value in options:
        check(re.search(rf"(?<![\w-]){re.escape(name)}\b", help_of(script)), f"{script} knows no {name}")
        if "/" in value:
            check_file(value)
    for other in others:
        if "/" in other and script != "tools/x86_wine.sh":
            check_file(other)
    if script == "tools/x86_wine.sh" and others:
        check_command(" ".join(others))


def check_environment(name, value, words):
    check(name in source_words(), f"nothing asks for {name}")
    if name == "ORDALYN_E2E":
        check("e2e" in words or "x86" in words, "ORDALYN_E2E is for the end-to-end tests")
        check_pytest(["pytest", *shlex.split(value), "tests/e2e"])
    if name.startswith("ORDALYN_FUZZ"):
        check("fuzz" in words, f"{name} is for the fuzzer")


# As tests/bench/figures.py runs them.
OTHER_TOOLS = {command.format("LOG") for _, command in figures.OTHERS}


def check_command(line):
    """Raises Wrong for a command that does not do what a reader expects, or that no rule knows."""
    if line in OTHER_TOOLS:
        return
    words = shlex.split(line, comments=True)
    settings = []
    while words and re.match(r"[A-Z_0-9]+=", words[0]):
        settings.append(words.pop(0).split("=", 1))
    for name, value in settings:
        check_environment(name, value, words)
    check(words, "no command")
    program, arguments = words[0], words[1:]
    check(not {"|", ";", "&&", ">"} & set(words), "several commands in one line")
    if program in ("./test.sh", "./build.sh"):
        unknown = set(arguments) - kinds_of(program[2:]) - BLANKS
        check(not unknown, f"{program} knows no {' '.join(sorted(unknown))}")
    elif program == "./run.sh":
        check(len(arguments) <= 1, "run.sh takes one log")
        for log in arguments:
            check_file(log)
    elif program == "cmake":
        check_cmake(arguments)
    elif program == "ctest":
        check_ctest(arguments)
    elif program in ("python3", "/usr/bin/python3") and arguments[:1] == ["-m"]:
        check(arguments[1] == "pytest", f"python3 -m {arguments[1]} is not checked")
        check_pytest(arguments)
    elif program.startswith("build/") or program in targets():
        check_program(program, arguments)
    elif program.removeprefix("./") in all_files():
        check_script(program.removeprefix("./"), arguments)
    elif program == "clang-format-14":
        for file in with_value(arguments)[1]:
            check_file(file)
    elif program == "git":
        check(arguments[:1] in (["log"], ["clone"], ["diff"], ["switch"]), f"git {arguments[:1]} is not checked")
    else:
        raise Wrong("no rule knows this command")


def switches_of_setup():
    """Those that the setup program and the uninstaller ask for. Every program of the kind knows /S."""
    source = read("packaging/setup.nsi")
    setup, uninstall = source.split("Function un.onInit")
    asked = [set(re.findall(r'GetOptions\} \S+ "(/\w+)"', part)) | {"/S"} for part in (setup, uninstall)]
    # What is so anyway needs no question.
    return asked[0] | {"/CURRENTUSER"}, asked[1]


def check_windows_command(line):
    """A command of Windows: the setup program, the uninstaller, the program itself, certutil."""
    words = re.findall(r'"[^"]*"|\S+', line)
    program = words[0].strip('"').rsplit("\\", 1)[-1]
    switches = {word for word in words[1:] if word.startswith("/") and not word.startswith("/D=")}
    setup, uninstall = switches_of_setup()
    known = {"uninstall.exe": uninstall, "Ordalyn.exe": set(),
             f"ordalyn-{make_release.version()}-setup.exe": setup}
    if program == "certutil":
        check(re.fullmatch(r"certutil -hashfile \S+ SHA256", line), "certutil is asked for something else")
        return
    check(program in known, "no rule knows this command")
    check(switches <= known[program], f"{program} knows no {' '.join(sorted(switches - known[program]))}")
    check(not any(word.startswith("/D=") for word in words[:-1]), "/D= comes last")


def commands_of(block):
    return [line for line in block.replace("\\\n", " ").splitlines() if line.strip() and not line.strip().startswith("#")]


# --- Names in running text.

def is_file_there(name):
    path = name.rstrip("/").split(":")[0]
    if re.fullmatch(r"\.[a-z]+", path):
        return any(file.endswith(path) for file in all_files())
    return (any(file == path or file.startswith(path + "/") for file in all_files())
            or any(("/" + file).endswith("/" + path) or ("/" + file).find("/" + path + "/") >= 0
                   for file in all_files()))


def check_code(code):
    """One piece of code in running text."""
    if BEGINS_COMMAND.match(code) and code.rstrip("/") not in all_files() and not (PROJECT / code).is_dir():
        if code.startswith("certutil"):
            check_windows_command(code)
        elif not (code.startswith("build/") and " " not in code):
            check_command(code)
        return
    if code.startswith("Ordalyn.exe") or re.match(r"ordalyn-[\d.]+-setup\.exe", code):
        check_windows_command(code)
        return
    if re.fullmatch(r"ordalyn-[\d.]+-x(64|86)\.zip", code):
        check(code.startswith(f"ordalyn-{make_release.version()}-"), f"the version is {make_release.version()}")
        return
    if code.startswith(NOT_OURS_FOLDERS) or code.rstrip(".") in NOT_OURS:
        return
    if re.fullmatch(r"[\w./-]*(/|\.(cpp|h|py|sh|md|lng|nsi|nsh|txt|json|png|ini|in|hhp|hhc|html|cmake|css))(:\d+)?", code):
        check(is_file_there(code), f"there is no file {code}")
        return
    if all(word in source_words() for word in re.findall(r"[A-Za-z_]\w+", code)):
        return
    check(code in source_text() or is_file_there(code), f"nothing is called {code}")


# --- The tests.

def test_there_are_documents_to_check():
    assert {"README.md", "CONTRIBUTING.md", "CHANGELOG.md", "docs/testing.md"} <= set(DOCUMENTS)


@each_document
def test_links_lead_somewhere(document):
    assert broken_links(document, read(document)) == []


@each_document
def test_commands_and_names_are_known(document):
    blocks, rest = parts(read(document))
    wrong = []
    checks = [(code, check_code) for code in inline_code(rest)]
    for language, _, block in blocks:
        if language in ("mermaid", "text"):
            continue  # drawn by tools/draw_rooms.py, and compared with it; for people to fill in
        rule = {"": check_command, "sh": check_command, "bat": check_windows_command}.get(language)
        assert rule, f"{document}: no rule knows a block of {language}"
        checks += [(line, rule) for line in commands_of(block)]
    for code, rule in checks:
        try:
            rule(code)
        except Wrong as why:
            wrong.append(f"{document}: {code}: {why}")
    assert wrong == []


def test_changes_that_make_no_difference_are_still_there():
    """The table of them names a file and what stands in it."""
    table = re.findall(r"^\| `([^`]+)`: `([^`]+)` becomes (?:`[^`]+`|nothing) \|", read("docs/testing.md"), re.M)
    assert len(table) > 10
    assert [row for row in table if row[1] not in read(f"src/{row[0]}")] == []


FIGURES = ("measured", "not noticed")


def tables_without_a_command(name, text):
    """Headings above tables of figures that no block of commands stands before."""
    wrong = []
    for section in re.split(r"^(?=#+ )", text, flags=re.M):
        table = re.search(r"^\|[^\n]*\n\|[-| ]+\|$", section, re.M)
        if table and any(word in table.group() for word in FIGURES):
            blocks, _ = parts(section[:table.start()])
            if not any(commands_of(block) for _, _, block in blocks):
                wrong.append(f"{name}: {section.splitlines()[0]}")
    return wrong


@pytest.mark.parametrize("document", ["docs/performance.md", "docs/testing.md"])
def test_a_command_stands_before_each_table_of_figures(document):
    text = read(document)
    assert any(word in text for word in FIGURES)
    assert tables_without_a_command(document, text) == []


def named_tests(document):
    """The folder of the program and the suite in each command that runs only some tests."""
    return re.findall(r"build/[\w-]+/tests/(\S+)/\w+ --gtest_filter='(\w+)\.\*'", read(document))


@pytest.mark.parametrize("document", ["README.md", "CONTRIBUTING.md", "docs/testing.md"])
def test_commands_that_run_one_suite_name_one_that_exists(document):
    assert named_tests(document)
    for folder, suite in named_tests(document):
        sources = "".join(file.read_text() for file in (PROJECT / "tests" / folder).glob("*.cpp"))
        assert re.search(rf"^TEST(_F|_P)?\({suite},", sources, re.M), suite


def test_the_readme_names_every_key_of_the_menus():
    design = read("src/windows/main/frmMainDesign.cpp")
    names = {"key::F1": "F1", "key::F3": "F3", "key::F5": "F5"}
    wanted = {f"Ctrl+{key}" for key in re.findall(r"\{'(\w)', kControl\}", design)}
    wanted |= {f"Ctrl+Shift+{key}" for key in re.findall(r"\{'(\w)', kControlShift\}", design)}
    wanted |= {names[key] for key in re.findall(r"\{(key::\w+), \{\}\}", design)}
    wanted |= set(re.findall(r'\{\}, "([^"]+)"\}', design))
    assert len(wanted) > 10
    table = re.search(r"^## Keys$(.*?)^## ", read("README.md"), re.M | re.S).group(1)
    first_column = re.findall(r"^\| ([^|]+) \|", table, re.M)
    assert wanted - set(", ".join(first_column).split(", ")) == set()


def test_the_readme_tells_of_each_document():
    listed = set(re.findall(r"\]\(([\w/]+\.md)", read("README.md")))
    assert {name for name in DOCUMENTS if name.startswith("docs/")} - listed == set()


def test_the_newest_entry_of_the_changes_is_the_version_that_is_built():
    entries = re.findall(r"^## \[(\S+)\](?: - (\S+))?$", read("CHANGELOG.md"), re.M)
    versions = [version for version, _ in entries if version != "Unreleased"]
    assert versions[0] == make_release.version()
    assert versions == sorted(versions, key=lambda text: [int(part) for part in text.split(".")], reverse=True)
    assert all(re.fullmatch(r"\d{4}-\d\d-\d\d|unreleased", date) for version, date in entries if version != "Unreleased")


def test_the_changes_are_of_the_usual_kinds():
    headings = set(re.findall(r"^### (.+)$", read("CHANGELOG.md"), re.M))
    assert headings <= {"Added", "Changed", "Deprecated", "Removed", "Fixed", "Security"}


@pytest.mark.parametrize("name", ["bug", "idea", "translation"])
def test_a_template_says_what_it_is_for(name):
    text = read(f".github/ISSUE_TEMPLATE/{name}.md")
    head = re.match(r"---\n(.*?)\n---\n", text, re.S).group(1)
    assert {"name", "about", "title", "labels"} == {line.split(":")[0] for line in head.splitlines()}


# --- That what is wrong is noticed.

@pytest.mark.parametrize("command", [
    "./test.sh lynt", "./build.sh x65", "make all",
    "tools/mutate.py --onely src/log/DayIndex.cpp", "tools/mutate.py --only src/log/NoSuch.cpp",
    "tools/mutate.py --only src/log/DayIndex.cpp:99999", "cmake --preset naitive-debug",
    "cmake --build --preset native-debug --target unit_lag", "ctest --preset mingw-x64 -R '^unit_lag$'",
    "ctest --preset mingw-x86 -R unit_log", "build/native-debug/tests/unit/lag/unit_log",
    "build/native-debug/tests/unit/log/unit_log --gtest_filter='DayIndax.*'",
    "python3 -m pytest tests/lint -k languagges", "python3 -m pytest tests/lynt", "./test.sh lint | tail",
    'ORDALYN_E2E="-k ratated" ./test.sh e2e', "ORDALYN_NOTHING=1 ./test.sh e2e", "ORDALYN_E2E=-v ./test.sh unit",
    "docs/screenshots/make.py --dip 96", "cmake --build build/elsewhere", "cmake --preset native-debug -DNO_SUCH_CHOICE=1",
    "cmake --preset native-debug --frish", "ctest --preset mingw-x64 -V", "build/naitive-debug/tests/unit/log/unit_log",
    "build/native-debug/tests/unit/log/unit_lug", "build/native-debug/tests/unit/log/unit_log --gtest_repeat=2",
    "ORDALYN_FUZZ_SEED=2 ./test.sh unit", "ORDALYN_KILLS=3", "./run.sh LOG FILE", "python3 -m pip", "git push",
    "git log | tail", "tools/check_includes.py", "tools/nothing.py",
    "LC_ALL=C.UTF-8 grep -c delete LOG", "rg -F Delete FILE"])
def test_a_wrong_command_is_noticed(command):
    with pytest.raises(Wrong):
        check_command(command)


@pytest.mark.parametrize("command", [
    "ordalyn-0.0.1-setup.exe /S", f"ordalyn-{make_release.version()}-setup.exe /QUIET",
    f"ordalyn-{make_release.version()}-setup.exe /D=C:\\x /S", "uninstall.exe /ALLUSERS", "format.com C:",
    "certutil -hashfile FILE MD5"])
def test_a_wrong_command_of_windows_is_noticed(command):
    with pytest.raises(Wrong):
        check_windows_command(command)


@pytest.mark.parametrize("code", [
    "src/log/NoSuch.cpp", "tests/e2e/test_nothing.py", "docs/nowhere/", "NoSuchClass", "DayIndex::NoSuchCall",
    "./test.sh lynt", "ordalyn-0.0.1-x64.zip", "no_such.py"])
def test_a_wrong_name_is_noticed(code):
    with pytest.raises(Wrong):
        check_code(code)


@pytest.mark.parametrize("code", ["src/log/DayIndex.cpp", "settings/cDefaultStrings.cpp", "DayIndex", "src/log"])
def test_a_right_name_is_known(code):
    check_code(code)


@pytest.mark.parametrize("text", ["[a](docs/nothing.md)", "![a](docs/screenshots/nothing.png)", "[a](#nowhere)",
                                  "[a](docs/testing.md#nowhere)", "[a](https://elsewhere.example/)", "[a][b]",
                                  "[a](build/native-debug/build.ninja)"])
def test_a_link_that_leads_nowhere_is_noticed(text):
    assert len(broken_links("README.md", f"# Here\n\n{text} [b](docs/testing.md#one-test) [c](#here)\n")) == 1


def test_a_table_of_figures_without_a_command_is_noticed():
    table = "| | measured |\n|---|---|\n| a | 1 |\n"
    assert tables_without_a_command("x", "# A\n```\n./test.sh bench\n```\n" + table) == []
    assert tables_without_a_command("x", "# A\n" + table) == ["x: # A"]
    assert tables_without_a_command("x", "# A\n```\n./test.sh bench\n```\n# B\n" + table) == ["x: # B"]
