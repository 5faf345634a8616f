"""How often the program opens its settings file and its language file: a person waits for each on a
stick, a network drive or behind a scanner."""

import pytest

from harness.opens import Opens

pytestmark = pytest.mark.usefixtures("pointer_inside")

LOG = [r"01.03.2024 10:15:30: Copy C:\a.txt -> D:\a.txt"]
MOST = 10
LANGUAGE = "German.lng"


@pytest.fixture
def opens(folder):
    watch = Opens(folder.program, folder.program / "Languages")
    yield watch
    watch.close()


def test_a_start_and_the_about_box(folder, opens):
    """Both files have just been written, which makes the program look at them once more."""
    folder.write_settings(Ordalyn={"UseDefaultLanguage": 0},
                          Common={"LanguageFile": folder.windows("Ordalyn", "Languages", LANGUAGE)})
    language = folder.program / "Languages" / LANGUAGE
    language.write_bytes(language.read_bytes())
    opens.of("Ordalyn.ini"), opens.of(LANGUAGE)

    app = folder.show(LOG)
    assert app.main.menu("Datei")
    assert 1 <= opens.of("Ordalyn.ini") <= MOST
    assert 1 <= opens.of(LANGUAGE) <= MOST

    app.main.choose("Hilfe", "Info...")
    about = app.window("Info")
    assert opens.of("Ordalyn.ini") <= 2
    assert opens.of(LANGUAGE) <= 2
    about.button("OK").press()

    app.close()
    assert 1 <= opens.of("Ordalyn.ini") <= MOST
    assert opens.of(LANGUAGE) <= 2
