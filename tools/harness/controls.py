"""Windows and controls as a user meets them. All positions are screen pixels."""

import re
from collections import namedtuple

from .waiting import Timeout, wait_until

Rect = namedtuple("Rect", "left top right bottom")
Column = namedtuple("Column", "caption width position")


def center(rect):
    return (rect[0] + rect[2]) // 2, (rect[1] + rect[3]) // 2


def plain(caption):
    """A caption without access-key marks."""
    return re.sub(r"&(.)", r"\1", caption)


class Control:
    def __init__(self, app, handle):
        self.app = app
        self.handle = handle

    def ask(self, what, **arguments):
        return self.app.agent.ask(what, window=self.handle, **arguments)

    @property
    def info(self):
        return self.ask("window")

    @property
    def text(self):
        return self.info["text"]

    @property
    def rect(self):
        return Rect(*self.info["rect"])

    @property
    def visible(self):
        return self.info["visible"]

    @property
    def enabled(self):
        return self.info["enabled"]

    @property
    def focused(self):
        return self.info["focused"]

    @property
    def font(self):
        return self.ask("font")

    @property
    def tool_tip(self):
        for tip in self.app.agent.ask("toolTips"):
            if tip["control"] == self.handle:
                return tip["text"]
        return None

    def focus(self):
        self.ask("takeFocus")
        self.app.settle()

    def click(self, button="left"):
        self.app.click(*center(self.rect), button=button)

    def send(self, message, w_param=0, l_param=0):
        return self.ask("send", message=message, wParam=w_param, lParam=l_param)


class Button(Control):
    def press(self):
        self.ask("press")
        self.app.settle()

    @property
    def checked(self):
        return self.send(0xF0) == 1  # BM_GETCHECK


class TextBox(Control):
    def set(self, text):
        """Replaces the text as if typed: selects all, then types."""
        self.focus()
        self.send(0xB1, 0, -1)  # EM_SETSEL
        self.app.type(text) if text else self.app.keys("Delete")


class ComboBox(Control):
    @property
    def items(self):
        return self.ask("combo")["items"]

    @property
    def index(self):
        return self.ask("combo")["selected"]

    @property
    def chosen(self):
        """The text of the chosen item; None without one."""
        combo = self.ask("combo")
        return combo["items"][combo["selected"]] if combo["selected"] >= 0 else None

    @property
    def value(self):
        """The text that the field shows."""
        return self.ask("combo")["text"]

    def choose(self, item):
        """Picks an item by its text or index; does nothing else, so a message box may be open."""
        if isinstance(item, str):
            item = self.items.index(item)
        self.ask("chooseFromCombo", index=item)
        self.app.settle()

    def type(self, text):
        """Replaces the text of an editable combo box by typing."""
        self.focus()
        self.send(0x142, 0, -1 << 16)  # CB_SETEDITSEL, all
        self.app.type(text) if text else self.app.keys("Delete")


class ListView(Control):
    @property
    def _state(self):
        return self.ask("list")

    @property
    def row_count(self):
        return self._state["rows"]

    @property
    def columns(self):
        return [Column(c["caption"], c["width"], c["position"]) for c in self._state["columns"]]

    @property
    def headers(self):
        return [column.caption for column in self.columns]

    def rows(self, first=0, count=None):
        """Texts of all columns, as the control asks for them when it draws."""
        count = self.row_count if count is None else count
        return [tuple(row) for row in self.ask("rows", first=first, count=count)]

    def column(self, number):
        return [row[number] for row in self.rows()]

    @property
    def selected(self):
        return self._state["selected"]

    @property
    def focused_row(self):
        return self._state["focusedRow"]

    @property
    def top_row(self):
        return self._state["top"]

    @property
    def visible_rows(self):
        """The range of rows that can be seen whole."""
        state = self._state
        return range(state["top"], min(state["rows"], state["top"] + state["perPage"]))

    @property
    def owner_data(self):
        return self._state["ownerData"]

    def row_rect(self, row):
        return Rect(*self.ask("rowRect", row=row))

    def show_row(self, row):
        self.ask("ensureVisible", row=row)

    def click_row(self, row, button="left"):
        self.show_row(row)
        bounds = self.row_rect(row)
        at = (max(bounds.left, self.rect.left) + 12, (bounds.top + bounds.bottom) // 2)
        self.app.click(*at, button=button)
        if button == "left":
            # The control looks for a drag first, and handles messages meanwhile. A display that is
            # told late of an earlier move makes it one: then the row is clicked again.
            try:
                wait_until(lambda: self.selected == [row], f"row {row} to be selected", 3)
            except Timeout:
                self.app.click(*at)
                wait_until(lambda: self.selected == [row], f"row {row} to be selected")
            self.app.settle()

    def drag_column_edge(self, column, pixels):
        """Makes a column wider or narrower with the mouse."""
        header = self.ask("headerRects")[column]
        y = (header[1] + header[3]) // 2
        self.app.drag((header[2] - 1, y), (header[2] - 1 + pixels, y))

    def order_columns(self, *order):
        """Puts the columns into this order on screen. Not by mouse: Wine's headers can only be
        dragged while they look like buttons, which ours do not."""
        assert self.ask("setColumnOrder", order=list(order))


class StatusBar(Control):
    @property
    def texts(self):
        return [part["text"] for part in self.ask("statusBar")]


class ToolBar(Control):
    @property
    def buttons(self):
        return [b for b in self.ask("toolBar") if not b["separator"]]

    def click_button(self, number):
        self.app.click(*center(self.buttons[number]["rect"]))


class TabStrip(Control):
    @property
    def tabs(self):
        return [tab["text"] for tab in self.ask("tabs")["tabs"]]

    @property
    def index(self):
        return self.ask("tabs")["selected"]

    def choose(self, number):
        self.app.click(*center(self.ask("tabs")["tabs"][number]["rect"]))


class ProgressBar(Control):
    @property
    def value(self):
        return self.ask("progress")["value"]

    @property
    def maximum(self):
        return self.ask("progress")["high"]


KINDS = {
    "Button": Button, "Edit": TextBox, "ComboBox": ComboBox, "SysListView32": ListView,
    "msctls_statusbar32": StatusBar, "ToolbarWindow32": ToolBar, "SysTabControl32": TabStrip,
    "msctls_progress32": ProgressBar,
}


class MenuEntry:
    def __init__(self, description):
        self.caption = description["caption"]
        self.name = plain(self.caption)
        self.shortcut = description["shortcut"]
        self.enabled = description["enabled"]
        self.checked = description["checked"]
        self.separator = description["separator"]
        self.rect = description.get("rect")
        self.entries = [MenuEntry(item) for item in description.get("items", [])]

    def __repr__(self):
        return f"<{self.caption!r} {self.shortcut}>"

    def __getitem__(self, name):
        return find_entry(self.entries, name)


def find_entry(entries, name):
    for entry in entries:
        if not entry.separator and entry.name == name:
            return entry
    raise AssertionError(f"no menu entry {name!r} among {[e.name for e in entries]}")


class PopUpMenu:
    """A menu that is open on screen now."""

    def __init__(self, app, description):
        self.app = app
        self.rect = Rect(*description["rect"])
        self.entries = [MenuEntry(item) for item in description["items"]]

    def __getitem__(self, name):
        return find_entry(self.entries, name)

    def choose(self, name):
        self.app.click(*center(self[name].rect))


class Window(Control):
    """A top-level window."""

    def controls(self, kind=None, visible=True):
        """Its controls in no order that means anything; of one class only (by KINDS' names), also
        hidden ones with visible=None."""
        return [KINDS.get(info["class"], Control)(self.app, info["handle"])
                for info in self.ask("tree")
                if (kind is None or info["class"].lower() == kind.lower())
                and (visible is None or info["visible"] == visible)]

    def one(self, kind, visible=True, number=0):
        """The n-th control of a class from the top left, as a reader goes over the window."""
        found = sorted(self.controls(kind, visible),
                       key=lambda c: (c.rect.top // 8, c.rect.left))
        assert number < len(found), f"the window has {len(found)} {kind}, not {number + 1}"
        return found[number]

    def button(self, caption):
        """A button, check box or option by its caption without the access-key mark."""
        for control in self.controls("Button"):
            if plain(control.text) == caption:
                return control
        raise AssertionError(f"no button {caption!r} among "
                             f"{[c.text for c in self.controls('Button')]}")

    @property
    def texts(self):
        return [control.text for control in self.controls("Static")]

    # The menu bar.
    @property
    def menus(self):
        return [MenuEntry(item) for item in self.ask("menu")]

    def menu(self, *path):
        """The entry that the captions lead to, as it is now."""
        entries = self.menus
        for name in path:
            entry = find_entry(entries, name)
            entries = entry.entries
        return entry

    def choose(self, *path):
        """Chooses an entry of the menu bar; a grayed one is a failure."""
        self.ask("chooseFromMenu", path=list(path))
        self.app.settle()

    # Placement.
    @property
    def maximised(self):
        return self.info["maximised"]

    @property
    def minimised(self):
        return self.info["minimised"]

    def place(self, left, top, width, height):
        self.ask("place", left=left, top=top, width=width, height=height)
        self.app.settle()

    def come_to_screen(self, dpi, left, top, width, height):
        """Tells the window what the system would on a screen of this resolution, where it proposes the
        place and size."""
        self.ask("changeResolution", dpi=dpi, left=left, top=top, width=width, height=height)
        self.app.settle()

    def move(self, left, top):
        rect = self.rect
        self.place(left, top, rect.right - rect.left, rect.bottom - rect.top)

    def maximise(self):
        self._command("maximise", lambda: self.maximised)

    def minimise(self):
        self._command("minimise", lambda: self.minimised)

    def restore(self):
        self._command("restore", lambda: not self.maximised and not self.minimised)

    def _command(self, name, done):
        self.ask("windowCommand", command=name)
        wait_until(done, f"the window to {name}")
        self.app.settle()

    def close(self):
        self.ask("windowCommand", command="close")

    def activate(self):
        self.ask("activate")
        self.app.settle()

    def drop_files(self, *paths):
        self.ask("dropFiles", paths=list(paths))
        self.app.settle()

    @property
    def responsive(self):
        return self.ask("responsive", milliseconds=1000)


class MessageBox(Window):
    """A message box that waits for an answer."""

    @property
    def title(self):
        return self.info["text"]

    @property
    def text(self):
        """The message, its lines divided by "\\n"."""
        return "\n".join(self.ask("dialog")["texts"]).replace("\r\n", "\n")

    @property
    def icon(self):
        """"error", "question", "warning", "information" or "" without one."""
        return self.ask("dialog")["icon"]

    @property
    def buttons(self):
        return [plain(text) for text in self.ask("dialog")["buttons"]]

    @property
    def default_button(self):
        return plain(self.ask("dialog")["default"])

    def press(self, caption):
        self.button(caption).ask("press")
        wait_until(lambda: not self.app.has_window(self.handle), f"the message to go by {caption}")
        self.app.settle()
