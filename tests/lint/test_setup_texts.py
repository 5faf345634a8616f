"""What the setup program says: whole in each language, with keys of its own for all that one can choose between."""

import pathlib
import re

import pytest

PROJECT = pathlib.Path(__file__).resolve().parents[2]
# Where the compiler of the setup program keeps the texts of its own buttons.
COMPILERS_TEXTS = pathlib.Path("/usr/share/nsis/Contrib/Language files")
PAGES = {"how to install": (("ModeUser", "ModeAll", "ModePortable"), ("NextBtn", "CancelBtn")),
         "uninstall": (("RemoveSettingsToo",), ("UninstallBtn", "CancelBtn"))}


def setup_texts():
    """Language -> name -> text."""
    source = (PROJECT / "packaging/setup_texts.nsh").read_text(encoding="utf-8")
    found = {}
    for name, language, text in re.findall(r'^LangString (\w+) \$\{LANG_(\w+)\} "(.*)"$', source, re.M):
        assert name not in found.setdefault(language, {}), (language, name)
        found[language][name] = text
    return found


TEXTS = setup_texts()
each_language = pytest.mark.parametrize("language", sorted(TEXTS))


def access_key(text):
    found = re.search(r"&([^&])", text)
    return found.group(1).casefold() if found else None


def button_texts(language):
    file = next(file for file in COMPILERS_TEXTS.glob("*.nlf") if file.stem.upper() == language)
    lines = file.read_text(encoding="utf-8-sig").splitlines()
    return {line[3:].strip(): lines[at + 1] for at, line in enumerate(lines) if line.startswith("# ^")}


def shared_keys(texts):
    keys = [key for key in map(access_key, texts) if key]
    return {key for key in keys if keys.count(key) > 1}


def test_its_languages_are_those_of_the_program():
    chosen = re.findall(r'MUI_LANGUAGE "(\w+)"', (PROJECT / "packaging/setup.nsi").read_text(encoding="utf-8"))
    assert sorted(name.upper() for name in chosen) == sorted(TEXTS)
    assert len(TEXTS) == len(list((PROJECT / "languages").glob("*.lng"))) + 1


@each_language
def test_every_text_is_there(language):
    assert set(TEXTS[language]) == set(TEXTS["ENGLISH"])


@each_language
@pytest.mark.parametrize("page", PAGES)
def test_access_keys_differ_on_each_page(language, page):
    own, buttons = PAGES[page]
    texts = [TEXTS[language][name] for name in own]
    assert all(access_key(text) for text in texts)
    if not COMPILERS_TEXTS.is_dir():
        pytest.fail("the compiler of the setup program is missing; tools/setup.sh release installs it")
    there = button_texts(language)
    assert shared_keys(texts + [there[name] for name in buttons]) == set()


def test_the_pages_of_our_own_are_written_from_the_right_where_the_language_is():
    source = (PROJECT / "packaging/setup.nsi").read_text(encoding="utf-8")
    made = re.findall(r"nsDialogs::Create .*\n.*\n\s*(\S+.*)", source)
    assert made and set(made) == {"nsDialogs::SetRTL $(^RTL)"}
