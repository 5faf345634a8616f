"""The interface languages that ship: whole, readable everywhere, and free of clashing keys."""

import collections
import pathlib
import re

import pytest

PROJECT = pathlib.Path(__file__).resolve().parents[2]
FOLDER = PROJECT / "languages"
MARK = b"\xef\xbb\xbf"

SHIPPED = ["Chinese (Simplified)", "Czech", "Dutch", "French", "German", "Greek", "Hebrew",
           "Hungarian", "Italian", "Japanese", "Polish", "Portuguese (Brazil)", "Russian",
           "Spanish", "Turkish", "Ukrainian"]
RIGHT_TO_LEFT = {"Hebrew"}
# Their access keys are Latin letters that stand in brackets behind the text.
BRACKETED_KEYS = {"Chinese (Simplified)", "Japanese"}

# The texts that the keyboard can choose between at one moment.
TOGETHER = {
    "menu bar": {101, 250, 141, 161},
    "file menu": {103, 107, 110, 5155},
    "search menu": {251, 252, 4030, 5110},
    "view menu": {143, 4021, 145, 4020, 150, 5181, 5167, 5140},
    "main window without a log": {101, 250, 141, 161, 5184, 5196, 5197, 5198},
    "help menu": {162, 163},
    "context menu": {4022, 4023, 5175, 5176, 5156, 5111, 5112},
    "find dialog": {253, 254, 255, 252, 1009, 109, 258, 4003, 4004, 4016},
    "filter dialog": {1009},
    "calendar": {5142, 5143, 5129},
    "history window": {5114, 5115, 5116, 5127, 5128, 5129},
    "options, layout": {1002, 1006, 1008, 1009, 1010, 1021, 1024, 1025, 1026, 4015, 1051, 1052,
                        1053, 1065, 1044},
    "options, language": {1002, 1006, 1008, 1009, 1010, 1089, 1090, 1091},
    "progress window": {1009},
    "about box": {1502, 1503, 1505, 1506, 1507, 1508, 1008},
}
# The built-in English gives one key to two controls of the find dialog; it then goes from the one
# to the other. That is as users know it, and translations need not repeat it.
SHARED_IN_ENGLISH = {("find dialog", "s"): {4003, 4016}}

# These stand in front of a file name, a number or a word.
COLON_WHERE_ENGLISH_HAS_IT = {254, 255, 1021, 1051, 1065, 1089, 1502, 1503, 1506, 1507, 3016, 4051, 4052}


def built_in():
    source = (PROJECT / "src/settings/cDefaultStrings.cpp").read_text(encoding="utf-8")
    return {int(number): text for number, text in re.findall(r'^\s*"(\d+)=(.*)",$', source, re.M)}


ENGLISH = built_in()


def named():
    source = (PROJECT / "src/base/TextIds.h").read_text(encoding="utf-8")
    return {name: int(number) for name, number in re.findall(r'TextId (\w+)\{"(\d+)"\};', source)}


NAMED = named()
# Shown in English by the program itself when there is no language file to take it from.
WITHOUT_A_NAME = {3048}


def lines(language):
    data = (FOLDER / f"{language}.lng").read_bytes()
    assert data.startswith(MARK), "without the mark a Windows of another code page reads it wrongly"
    return data[len(MARK):].decode("utf-8").split("\r\n")


def entries(language):
    """Keys and values as the INI calls give them: blanks around them and one pair of quotes go."""
    found = []
    for line in lines(language)[2:]:
        if not line:
            continue
        key, equals, value = line.partition("=")
        assert equals, f"{language}: no entry: {line}"
        value = value.strip(" \t")
        if len(value) > 1 and value[0] == value[-1] and value[0] in "\"'":
            value = value[1:-1]
        found.append((key.strip(" \t"), value))
    return found


def texts(language):
    return {int(key): value for key, value in entries(language) if key.isdigit()}


def access_key(text):
    found = re.search(r"&([^&])", text.replace("&&", ""))
    return found.group(1).casefold() if found else None


def shared_keys(table):
    """Where one key of a menu or dialog chooses between several texts."""
    shared = {}
    for place, numbers in TOGETHER.items():
        users = collections.defaultdict(set)
        for number in numbers:
            if key := access_key(table[number]):
                users[place, key].add(number)
        shared.update({where: which for where, which in users.items() if len(which) > 1})
    return shared


def without_key(text):
    return re.sub(r"\(&\w\)", "", text).replace("&", "")


each_language = pytest.mark.parametrize("language", SHIPPED)


def test_the_table_is_read_whole():
    source = (PROJECT / "src/settings/cDefaultStrings.cpp").read_text(encoding="utf-8")
    table = source[source.index("kTable[] = {"):source.index("\n};")]
    assert len(ENGLISH) == table.count("=") - 1 > 70


def test_the_folder_has_these_languages_and_nothing_else():
    assert sorted(file.name for file in FOLDER.iterdir()) == [f"{name}.lng" for name in SHIPPED]


def test_every_text_has_one_name():
    assert len(set(NAMED.values())) == len(NAMED)
    assert set(NAMED.values()) | WITHOUT_A_NAME == set(ENGLISH)


def test_windows_name_their_texts_and_show_each():
    """A number in a window's code is one that the table of names does not see change."""
    named_uses = set()
    for file in (PROJECT / "src").rglob("*.cpp"):
        source = file.read_text(encoding="utf-8")
        named_uses.update(re.findall(r"text_id::(\w+)", source))
        if "windows" in file.relative_to(PROJECT / "src").parts:
            assert not re.findall(r'tag = "\d|"mnu\w+", "\d|AddTab\("\d|[tT]ext\(\d\d|String\(\d\d',
                                  source), file
    assert named_uses == set(NAMED)


def test_the_groups_are_those_of_the_forms():
    """What a form's design names is in a group, so that a new control cannot be forgotten."""
    grouped = set().union(*TOGETHER.values())
    titles = {1001, 1501, 4031, 5113, 5141}
    own_text = {108}  # the placeholder of the recent files, the only entry of its menu
    designs = {file: source for file in (PROJECT / "src/windows").rglob("*.cpp")
               if "toolkit::FormDesign k" in (source := file.read_text(encoding="utf-8"))
               and "text_id::" in source}
    assert len(designs) >= 8
    for file, source in designs.items():
        # A name is heard, and has no key.
        shown = re.sub(r"nameTag = text_id::\w+\.tag", "", source)
        numbers = {NAMED[name] for name in re.findall(r"text_id::(\w+)\.tag", shown)}
        assert numbers, file
        assert numbers <= grouped | titles | own_text, file
    assert {number for number, text in ENGLISH.items() if "&" in text} <= grouped


def test_the_built_in_english_shares_no_other_key():
    assert shared_keys(ENGLISH) == SHARED_IN_ENGLISH


@each_language
def test_a_file_has_windows_line_ends_a_name_and_one_section(language):
    data = (FOLDER / f"{language}.lng").read_bytes()
    assert data.endswith(b"\r\n")
    assert data.count(b"\r\n") == data.count(b"\n") == data.count(b"\r")
    assert data.count(MARK) == 1
    first, section, *rest = lines(language)
    assert first.startswith(f"; {language} - ")
    assert section == "[UserLanguage]"
    assert [line for line in rest if line.startswith(("[", ";"))] == []


@each_language
def test_every_text_is_there_once_and_no_other(language):
    keys = [key for key, _ in entries(language)]
    assert keys == ["RightToLeftLanguage", *[str(number) for number in ENGLISH]]


@each_language
def test_only_what_is_written_from_the_right_says_so(language):
    assert dict(entries(language))["RightToLeftLanguage"] == str(int(language in RIGHT_TO_LEFT))


@each_language
def test_no_text_is_empty_or_stands_for_english(language):
    bad = {number for number, text in texts(language).items() if text.strip().lower() in ("", "/e")}
    assert bad == set()


@each_language
def test_a_file_is_a_translation(language):
    same = {number for number, text in texts(language).items() if text == ENGLISH[number]}
    assert len(same) < len(ENGLISH) // 5


@each_language
def test_texts_have_access_keys_exactly_where_english_has(language):
    table = texts(language)
    wrong = {number: text for number, text in table.items()
             if text.count("&") != ENGLISH[number].count("&")
             or ("&" in text and not access_key(text).isalnum())}
    assert wrong == {}


@each_language
def test_access_keys_differ_within_each_menu_and_dialog(language):
    assert shared_keys(texts(language)) == {}


@pytest.mark.parametrize("language", sorted(BRACKETED_KEYS))
def test_bracketed_keys_are_those_of_english_keyboards(language):
    wrong = {number: text for number, text in texts(language).items()
             if "&" in text and not re.search(r"\(&[A-Z]\)(\.\.\.|:)?$", text)}
    assert wrong == {}


@each_language
def test_the_places_of_values_are_kept(language):
    def places(text):
        return sorted(re.findall("%.?", text))
    wrong = {number: text for number, text in texts(language).items()
             if places(text) != places(ENGLISH[number])}
    assert wrong == {}


@each_language
def test_dots_and_colons_are_kept(language):
    table = texts(language)
    dots = {number: text for number, text in table.items()
            if ("..." in text) != ("..." in ENGLISH[number])
            or text.endswith("...") != ENGLISH[number].endswith("...") or "…" in text}
    colons = {number: table[number] for number in COLON_WHERE_ENGLISH_HAS_IT
              if not table[number].endswith(":")}
    assert (dots, colons) == ({}, {})


@each_language
def test_blanks_at_the_ends_are_those_of_english(language):
    def ends(text):
        return text[:len(text) - len(text.lstrip())], text[len(text.rstrip()):]
    wrong = {number: text for number, text in texts(language).items()
             if ends(text) != ends(ENGLISH[number])}
    assert wrong == {}
    assert texts(language)[4032].endswith(": ")


@each_language
def test_names_stay_as_they_are(language):
    wrong = {number: text for number, text in texts(language).items()
             for name in ("Total Commander", "[Wincmd.ini]")
             if (name in text) != (name in ENGLISH[number])}
    assert wrong == {}


@each_language
def test_no_text_is_much_longer_than_english(language):
    def longest(number):
        length = len(without_key(ENGLISH[number]))
        return max(2 * length, length + 15) if length < 40 else length * 3 // 2
    wrong = {number: text for number, text in texts(language).items()
             if len(without_key(text)) > longest(number)}
    assert wrong == {}


@each_language
def test_what_is_one_thing_has_one_word(language):
    """The column headers and the choices of both dialogs name the same columns."""
    table = texts(language)
    assert without_key(table[4003]) == table[4001]
    assert without_key(table[4004]) == table[4002]
