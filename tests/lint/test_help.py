"""The help files and the pages for the web site: whatever they name is there, in both languages, and says
what the program says."""

import html
import pathlib
import re
import subprocess
import sys

import pytest

PROJECT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(PROJECT / "tools"))
import make_help  # noqa: E402

LANGUAGES = make_help.languages()
EACH = pytest.mark.parametrize("help_", LANGUAGES, ids=[each.name for each in LANGUAGES])
# What the viewer cannot do without; names with # and $ are the compiler's own.
SYSTEM = ["#SYSTEM", "#WINDOWS", "$FIftiMain"]


@pytest.fixture(scope="module")
def opened(tmp_path_factory):
    """What is in each compiled help file, in folders by the names of the languages."""
    folder = tmp_path_factory.mktemp("help")
    for help_ in LANGUAGES:
        sources = folder / "sources" / help_.name
        make_help.make_sources(help_, sources)
        subprocess.run(["chmcmd", help_.project.name], cwd=sources, stdout=subprocess.PIPE,
                       stderr=subprocess.STDOUT, check=True)
        subprocess.run(["extract_chmLib", sources / help_.options()["Compiled file"], folder / help_.name],
                       stdout=subprocess.PIPE, check=True)
    return folder


@pytest.fixture(scope="module")
def site(tmp_path_factory):
    folder = tmp_path_factory.mktemp("site")
    make_help.make_site(LANGUAGES, folder)
    return folder


def pages_in(folder, encoding="utf-8"):
    return [make_help.Page(str(file.relative_to(folder)), file.read_text(encoding))
            for file in sorted(folder.rglob("*.html"))]


def dead_ends(folder, encoding="utf-8"):
    """Links, pictures and styles of the pages that lead to nothing."""
    pages = {page.name: page for page in pages_in(folder, encoding)}
    found = []
    for page in pages.values():
        at = pathlib.PurePosixPath(page.name).parent
        for link in [*page.links, *page.files]:
            name, _, anchor = link.partition("#")
            target = (folder / at / name).resolve() if name else folder / page.name
            inside = target.is_relative_to(folder.resolve()) and target.is_file()
            known = pages.get(str(target.relative_to(folder.resolve()))) if inside else None
            if not inside or (anchor and (known is None or anchor not in known.ids)):
                found.append(f"{page.name}: {link}")
    return found


def texts_of(language):
    """The program's texts in the language, by their ids, without what only marks them; … is what it puts in."""
    table = (PROJECT / "src/settings/cDefaultStrings.cpp").read_text("utf-8")
    found = dict(re.findall(r'^    "(\d+)=(.*)",$', table, re.M))
    file = PROJECT / "languages" / f"{language}.lng"
    if file.exists():
        found.update(line.split("=", 1) for line in file.read_text("utf-8-sig").splitlines() if line[:1].isdigit())
    return {int(number): re.sub(r"(\.\.\.|:)$", "", re.sub("%[a-z]", "…", text.replace("&", "")).strip(' "'))
            for number, text in found.items()}


def test_there_is_help_in_both_languages():
    assert [help_.name for help_ in LANGUAGES] == ["English", "German"]
    assert [help_.code for help_ in LANGUAGES] == ["en", "de"]


def test_the_program_finds_the_help_by_the_name_of_the_language_file():
    for help_ in LANGUAGES:
        name = help_.options()["Compiled file"]
        assert name == help_.project.with_suffix(".chm").name
    assert [help_.options()["Compiled file"] for help_ in LANGUAGES] == ["Readme.chm", "Readme Deutsch.chm"]
    # The program knows what a language calls itself, which is also in the first line of its file.
    first = (PROJECT / "languages/German.lng").read_text("utf-8-sig").splitlines()[0]
    assert first == "; German - Deutsch"
    assert '{"German", "Deutsch"}' in (PROJECT / "src/windows/about/Help.cpp").read_text("utf-8")


@EACH
def test_the_help_file_holds_every_page_picture_and_list(help_, opened):
    folder = opened / help_.name
    for page in help_.pages:
        text = (folder / page.name).read_text(help_.code_page())
        assert page.title in text and "charset=windows-1252" in text and "utf-8" not in text, page.name
    for file in help_.shared_files():
        assert (folder / file.name).read_bytes() == file.read_bytes()
    for name in SYSTEM:
        assert (folder / name).stat().st_size > 0, name
    # The compiler's own form of the index has question marks for all letters that English does not know; the
    # viewer takes the list itself when there is none.
    assert not (folder / "$WWKeywordLinks").exists()
    for name in ("hhc", "hhk"):
        listed = (folder / f"{help_.project.stem}.{name}").read_text(help_.code_page())
        words = [word for word, _ in help_.words()] if name == "hhk" else [title for _, title, _ in help_.contents]
        assert [html.unescape(word) for word in re.findall(r'"Name" value="([^"]*)"', listed)] == words


@EACH
def test_every_link_picture_and_anchor_is_there(help_, opened):
    assert dead_ends(opened / help_.name, help_.code_page()) == []


@EACH
def test_every_page_is_in_the_contents_once_and_in_the_index(help_, opened):
    def targets(name):
        text = (opened / help_.name / f"{help_.project.stem}.{name}").read_text(help_.code_page())
        return [html.unescape(found) for found in re.findall(r'"Local" value="([^"]*)"', text)]
    every = [page.name for page in help_.pages]
    assert sorted(targets("hhc")) == every
    ids = {page.name: page.ids for page in help_.pages}
    assert {target.split("#")[0] for target in targets("hhk")} == set(every)
    assert [target for target in targets("hhk") if "#" in target
            and target.split("#")[1] not in ids[target.split("#")[0]]] == []
    assert [page.name for page in help_.pages if len(set(page.ids)) < len(page.ids)] == []


@EACH
def test_titles_are_those_of_the_contents(help_):
    titles = {page: title for _, title, page in help_.contents if page}
    for page in help_.pages:
        heading = re.search(r"<h1[^>]*>(.*?)</h1>", page.source)[1]
        assert titles[page.name] == page.title == html.unescape(heading), page.name


def test_the_languages_have_the_same_pages_and_say_the_same():
    def build(page):
        """All that does not depend on the language."""
        keys = len(re.findall("<kbd>", page.source))
        rows = re.findall(r'<(?:tr|li|h2)(?: id="[^"]*"| data-key="[^"]*")?', page.source)
        return page.name, page.ids, sorted(page.links), len(page.files), keys, rows
    first, second = ([build(page) for page in help_.pages] for help_ in LANGUAGES)
    for one, other in zip(first, second, strict=True):
        assert one == other


def test_f1_leads_to_a_page():
    asked = set()
    for file in [*PROJECT.glob("src/windows/**/*.cpp"), PROJECT / "src/toolkit/Toolkit.h"]:
        for line in re.findall(r"(?:helpPage = |SetHelpPage\(|kHelpPageOfMessages = ).*", file.read_text("utf-8")):
            asked.update(re.findall(r'"(\w+)"', line))
    assert len(asked) == 10
    for help_ in LANGUAGES:
        assert asked <= {page.name.removesuffix(".html") for page in help_.pages}


def test_every_window_says_which_page_it_has():
    designs = [file for file in PROJECT.glob("src/windows/**/*.cpp")
               if re.search(r"FormDesign k\w*Design = \{", file.read_text("utf-8"))]
    without = [file.stem for file in designs if ".helpPage" not in file.read_text("utf-8")]
    # It is never seen, and the pages of the options have one each.
    assert sorted(without) == ["frmOptions", "frmXpStyleLoader"]


@EACH
def test_captions_are_those_of_the_program(help_):
    texts = texts_of(help_.name)
    wrong = [f"{page.name}: {number} is {texts[number]!r}, not {text!r}" for page in help_.pages
             for number, text in page.marked if texts[number] != text]
    assert wrong == []


@EACH
def test_every_command_is_in_the_help(help_):
    design = (PROJECT / "src/windows/main/frmMainDesign.cpp").read_text("utf-8")
    names = re.findall(r'\{[12], "mnu\w+", text_id::(k\w+)\.tag', design)
    header = (PROJECT / "src/base/TextIds.h").read_text("utf-8")
    numbers = {name: int(number) for name, number in re.findall(r'TextId (k\w+)\{"(\d+)"\}', header)}
    shown = {number for page in help_.pages for number, _ in page.marked}
    # What stands in an empty list, and the command that opens the help.
    assert {name for name in names if numbers[name] not in shown} <= {"kNoRecentFiles", "kHelpTopics"}
    assert len(names) > 20


@EACH
def test_every_key_of_the_menus_is_in_the_list_of_keys(help_):
    design = (PROJECT / "src/windows/main/frmMainDesign.cpp").read_text("utf-8")
    rows = [line for line in design.splitlines() if re.match(r'\s+\{\d, "mnu', line)]
    keys = set()
    for row in rows:
        keys.update(re.findall(r'"((?:Ctrl|Alt)\+[^"]*|F\d+)"', row))
        keys.update(re.findall(r"\{key::(F\d+), \{\}\}", row))
        keys.update("Ctrl+" + letter for letter in re.findall(r"\{'(\w)', kControl\}", row))
        keys.update("Ctrl+Shift+" + letter for letter in re.findall(r"\{'(\w)', kControlShift\}", row))
    assert len(keys) > 10
    page, = (page for page in help_.pages if page.name == "keys.html")
    listed = {key.replace("Strg", "Ctrl").replace("Umschalt", "Shift")
              for key in re.findall(r"<kbd>(.*?)</kbd>", page.source)}
    assert keys - listed == set()


@EACH
def test_every_setting_is_in_the_help(help_):
    """docs/settings.md is made from the table of the settings."""
    known = {}
    for line in (PROJECT / "docs/settings.md").read_text("utf-8").splitlines():
        cells = [cell.strip() for cell in line.strip("|").split("|")]
        if line.startswith("|") and len(cells) in (5, 7) and cells[0] not in ("key", "---"):
            default = cells[4] if len(cells) == 7 else cells[3]
            known[cells[0]] = (cells[1], "" if default == "absent" else default.strip("`"))
    page, = (page for page in help_.pages if page.name == "settings.html")
    shown = {}
    for section in re.split(r"<h2 ", page.source)[1:]:
        name = re.search(r"<code>\[(\w+)\]</code></h2>", section)
        for key, cells in re.findall(r'<tr data-key="([^"]*)">(.*?)</tr>', section):
            default = re.findall(r"<td>(.*?)</td>", cells)[2]
            shown[key] = (name[1], "".join(re.findall(r"<code>(.*?)</code>", default)))
    assert shown == known


def test_every_link_of_the_web_site_is_there(site):
    assert dead_ends(site) == []
    names = {str(file.relative_to(site)) for file in site.rglob("*.html")}
    assert names == {"index.html", *(f"{help_.code}/{page.name}" for help_ in LANGUAGES for page in help_.pages)}


def test_each_page_of_the_web_site_has_the_contents_and_the_other_language(site):
    for help_ in LANGUAGES:
        other, = (each for each in LANGUAGES if each is not help_)
        for page in pages_in(site / help_.code):
            assert {each.name for each in help_.pages} <= set(page.links), page.name
            assert f"../{other.code}/{page.name}" in page.links


def test_what_leads_nowhere_is_named(tmp_path):
    (tmp_path / "a.html").write_text('<html lang="en"><body><p id="x"><a href="b.html#y">b</a><a href="a.html#x">a</a>'
                                     '<a href="c.html">c</a><img src="p.png"></p></body></html>', "utf-8")
    (tmp_path / "b.html").write_text('<html lang="en"><body></body></html>', "utf-8")
    assert dead_ends(tmp_path) == ["a.html: b.html#y", "a.html: c.html", "a.html: p.png"]
