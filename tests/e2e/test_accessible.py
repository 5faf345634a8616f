"""What programs that speak the screen find, and that the keyboard alone is enough."""

import re

import pytest

from harness.controls import Window, plain
from harness.dialogs import open_filter, open_find, open_history, open_options
from harness.waiting import wait_until
from harness.wine import PROJECT

LOG = [rf"{day:02d}.03.2024 10:00:{i:02d}: Copy C:\{i}.txt -> D:\{i}.txt"
       for day in (1, 2) for i in range(5)]
# Every Windows gives these a role by their class.
HAVE_A_ROLE = {"Button", "Static", "ComboBox", "Edit", "SysListView32", "msctls_statusbar32",
               "ToolbarWindow32", "SysTabControl32"}
# The program's own: an area that says what is looked at in it.
CANVAS = "OrdalynCanvas"
ARE_CALLED_BY_THEIR_TEXT = {"Button", "Static", CANVAS}
PARTS_OF_OTHERS = {"SysHeader32", "msctls_updown32"}
EDIT_ROLE = 42
GROUP_BOX, KIND_OF_BUTTON = 7, 0xF
TAB_STOP = 0x10000


def is_area(info):
    """What only holds others or parts them: pages, and frames that say nothing."""
    return info["class"] == "OrdalynPicture" or (
        info["class"] == "Button" and info["style"] & KIND_OF_BUTTON == GROUP_BOX
        and not info["text"])


def named_controls(app, window):
    """Names and classes of the controls that a person meets, in the order of the window."""
    classes = {info["handle"]: info["class"] for info in window.ask("tree")}
    found = []
    for info in window.ask("tree"):
        kind = info["class"]
        if kind in PARTS_OF_OTHERS or is_area(info) or classes.get(info["parent"]) == "ComboBox":
            continue
        own = info["style"] & 0x10000000  # WS_VISIBLE
        if kind == "Static" and not own:
            continue  # a label that nobody sees
        spoken = app.agent.ask("accessible", window=info["handle"])
        if kind in ARE_CALLED_BY_THEIR_TEXT:
            name = info["text"]
            assert spoken["name"] == plain(info["text"])
        else:
            name = spoken["label"]
        if kind == "Edit":
            assert (spoken["name"], spoken["role"]) == (name, EDIT_ROLE)
        found.append((kind, plain(name)))
    return found


def windows_of(app, menus):
    """Every window that a menu leads to, one after the other; `menus` are the places of the menus.
    (The progress window goes by too fast; its own tests look at it.)"""
    yield "main", app.main
    search, view, about = menus
    for name, menu, entry in (("filter", search, 2), ("find", search, 0), ("options", view, 4),
                              ("calendar", view, "Ctrl+K"), ("about", about, 1)):
        before = {window["handle"] for window in app.windows()}
        entries = [e for e in app.main.menus[menu].entries if not e.separator]
        if isinstance(entry, str):
            entry = [e.shortcut for e in entries].index(entry)
        app.main.choose(app.main.menus[menu].name, entries[entry].name)
        opened = wait_until(lambda: [w for w in app.windows() if w["handle"] not in before], name)
        yield name, Window(app, opened[0]["handle"])
        app.keys("Escape")
        wait_until(lambda: not app.has_window(opened[0]["handle"]), "the window to go")


NAMES = {
    "main": [("ComboBox", 5100), ("ComboBox", 5101), ("SysListView32", 4001),
             ("SysListView32", 4002), ("msctls_statusbar32", 143)],
    "filter": [("ComboBox", 4031), ("ComboBox", 5102), ("ComboBox", 255), ("ToolbarWindow32", 4031),
               ("Button", 1009)],
    "find": [("Static", 254), ("ComboBox", 254), ("Button", 255), ("Button", 4003),
             ("Button", 4004), ("Button", 258), ("Button", 4016), ("Button", 252),
             ("Button", 1009), ("Button", 109)],
    "options": [("Static", 1052), ("Static", 1052), ("Static", 1053), ("Static", 1053),
                ("SysTabControl32", 1001), ("Edit", 5103)],
    "calendar": [("Button", 5142), ("Button", 5143), ("Button", 5129)],
    "about": [("Button", 1008), ("Static", 1502), ("Static", 1503)],
}


def texts_of(language):
    if language is None:
        source = (PROJECT / "src/settings/cDefaultStrings.cpp").read_text(encoding="utf-8")
        return dict(re.findall(r'^\s*"(\d+)=(.*)",$', source, re.M))
    lines = (PROJECT / "languages" / f"{language}.lng").read_text(encoding="utf-8-sig").splitlines()
    return dict(line.split("=", 1) for line in lines if "=" in line)


@pytest.mark.parametrize("language", [None, "German", "Hebrew"])
def test_every_control_of_every_window_has_a_name_and_a_role(show, folder, language):
    if language is not None:
        folder.write_settings(
            Ordalyn={"UseDefaultLanguage": 0},
            Common={"LanguageFile": folder.windows("Ordalyn", "Languages", f"{language}.lng")})
    texts = texts_of(language)
    app = show(LOG)
    seen = set()
    for window, shown in windows_of(app, (1, 2, 3)):
        seen.add(window)
        controls = named_controls(app, shown)
        empty = [kind for kind, name in controls if not name.strip()]
        assert empty == [], (window, controls)
        assert {kind for kind, _ in controls} <= HAVE_A_ROLE | {CANVAS}
        expected = [(kind, plain(texts[str(number)])) for kind, number in NAMES[window]]
        assert [control for control in controls if control in expected] == expected, window
    assert seen == NAMES.keys()


def tab_stops(window):
    """What Tab can stop at, a group of options once, in the order of the window."""
    stops, groups = [], set()
    infos = {info["handle"]: info for info in window.ask("tree")}
    for info in infos.values():
        reachable, at = info["visible"], info
        while at is not None:
            reachable = reachable and at["enabled"]
            at = infos.get(at["parent"])
        if not reachable or not info["style"] & TAB_STOP or info["class"] == "Edit" and infos.get(
                info["parent"], {"class": ""})["class"] == "ComboBox":
            continue
        if info["class"] == "Button" and info["style"] & KIND_OF_BUTTON in (4, 9):
            if info["parent"] in groups:
                continue
            groups.add(info["parent"])
        stops.append(info["handle"])
    return stops


def stop_with_focus(app, window):
    focus = app.agent.ask("focus")["focus"]
    infos = {info["handle"]: info for info in window.ask("tree")}
    assert focus in infos, "the focus is outside"
    parent = infos[focus]["parent"]
    return parent if infos.get(parent, {"class": ""})["class"] == "ComboBox" else focus


def walk(app, window, key, count):
    """Where the key goes, beginning with the control behind the one that has the focus."""
    walked = []
    for _ in range(count):
        app.keys(key)
        walked.append(stop_with_focus(app, window))
    return walked


def turned(stops, first):
    at = stops.index(first)
    return stops[at + 1:] + stops[:at + 1]


@pytest.mark.parametrize("opened", ["main", "main with one panel", "filter", "find", "history",
                                    "about"])
def test_tab_goes_through_each_window_and_back(show, folder, opened):
    if opened == "main with one panel":
        folder.write_settings(Ordalyn={"TwoPanels": 0})
    folder.write("totalcmd_old.log", LOG[:2])  # so that the list of logs is there, too
    app = show(LOG)
    window = app.main
    if opened == "filter":
        window = open_filter(app)
    elif opened == "find":
        window = open_find(app)
    elif opened == "history":
        window = open_history(app)
    elif opened == "about":
        window.choose("Help", "About...")
        window = app.window("About")
    stops = tab_stops(window)
    if opened == "main with one panel":
        # The panel came onto the window when all else was there, and lies on top of it.
        stops = [*stops[1:], stops[0]]
    assert len(stops) > 1
    begin = stop_with_focus(app, window)
    forward = turned(stops, begin)
    assert walk(app, window, "Tab", len(stops)) == forward
    backward = turned(stops[::-1], begin)
    assert walk(app, window, "Shift+Tab", len(stops)) == backward


class Focus:
    """Says after each step that some control of the active window has the focus and can use it."""

    def __init__(self, app):
        self.app = app

    def __call__(self, step):
        self.app.settle()

        def is_kept():
            found = self.app.agent.ask("focus")
            if not found["focus"] or not found["active"]:
                return False
            info = self.app.agent.ask("window", window=found["focus"])
            inside = {child["handle"] for child in self.app.agent.ask(
                "tree", window=found["active"])}
            return info["visible"] and info["enabled"] and found["focus"] in inside
        wait_until(is_kept, f"the focus after {step}", 3)


def test_the_focus_is_never_lost(show, folder):
    for file in folder.program.glob("Readme*.chm"):
        file.unlink()
    app = show(LOG)
    kept = Focus(app)
    kept("start")
    for path in (("View", "Status Bar"), ("View", "Vertical Panels"), ("View", "Refresh")):
        for panel in (app.main.source, app.main.target):
            panel.focus()
            app.main.choose(*path)
            kept(path)
    for panel in (app.main.target, app.main.source):
        panel.focus()
        app.main.choose("View", "Two Panels")
        kept("one panel")
        app.main.choose("View", "Two Panels")
        kept("two panels")
    app.main.dates.focus()
    app.keys("Up")
    kept("another day")
    app.main.choose("Help", "Help Topics")
    app.message().press("OK")
    kept("a message")
    app.main.source.click_row(1)
    app.keys_without_waiting("ContextMenu")
    app.pop_up()
    app.keys("Escape")
    kept("the context menu")

    filters = open_filter(app)
    kept("the filter dialog")
    filters.enter("nothing has this")
    kept("a filter that leaves nothing")
    filters.contains.choose(1)
    kept("the other condition")
    app.keys("Escape")
    kept("the end of the filter dialog")

    find = open_find(app)
    find.search("3.txt")
    kept("a search")
    app.message().press("OK") if app.find_dialog() else None
    clear = find.button("Clear List")
    if not clear.enabled:
        app.keys("Escape")
        find = open_find(app)
        clear = find.button("Clear List")
    clear.focus()
    app.keys("Space")
    app.message().press("Yes")
    kept("a button that disabled itself")
    app.keys("Escape")
    kept("the end of the find dialog")

    options = open_options(app)
    kept("the options")
    options.button("Show grid lines").focus()
    app.keys("Space", "Alt+A")
    kept("Apply, which disables itself")
    app.keys("Ctrl+Tab")
    kept("the other page")
    options.button("Other").focus()
    app.keys("Space", "Tab")
    assert options.focus_is_in(options.language_file)
    options.button("Use default language").press()
    kept("a disabled text box")
    app.keys("Escape")
    kept("the end of the options")

    app.main.choose("Help", "About...")
    kept("the about box")
    app.keys("Escape")
    kept("the end of the about box")
    app.main.drop_files(folder.windows(folder.write("other.log", LOG[:2]).name))
    kept("another log")
