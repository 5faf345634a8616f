"""The program's own dialogs, their parts by their names."""

from .controls import PopUpMenu, Window, center
from .waiting import wait_until


def filter_dialog(app):
    return FilterDialog(app, app.window("Filter|Фильтр").handle)


def open_filter(app):
    """By the menu."""
    app.main.choose("Search", "Filter...")
    return filter_dialog(app)


def open_find(app):
    """By the keyboard; the keys belong to the main window."""
    app.main.activate()
    app.keys("Ctrl+F")
    return FindDialog(app, app.window("Find$").handle)


def open_calendar(app):
    """By the keyboard; the keys belong to the main window."""
    app.main.activate()
    app.keys("Ctrl+K")
    return CalendarWindow(app, app.window("Calendar$").handle)


def open_history(app):
    """By the keyboard, as above."""
    app.main.activate()
    app.keys("Ctrl+H")
    return HistoryWindow(app, app.window("File History$").handle)


def open_options(app):
    app.main.choose("View", "Options...")
    return OptionsDialog(app, app.window("Options").handle)


class Dialog(Window):
    def wait_for_child(self, child):
        """Until a dialog on top of this one has gone."""
        wait_until(lambda: not self.app.has_window(child.handle) and self.enabled,
                   "the dialog on top to go")
        self.app.settle()

    def wait_for_end(self):
        wait_until(lambda: not self.app.has_window(self.handle), "the dialog to go")
        self.app.settle()

    def focus_is_in(self, control):
        """Whether the focus is in the control, or in the text box inside of it."""
        focused = self.app.agent.ask("focus")["focus"]
        return focused == control.handle or focused in [
            child["handle"] for child in control.ask("tree")]


class FilterDialog(Dialog):
    def _combos(self):
        return sorted(self.controls("ComboBox"), key=lambda combo: combo.rect.left)

    @property
    def filter(self):
        return self._combos()[0]

    @property
    def contains(self):
        return self._combos()[1]

    @property
    def source(self):
        return self._combos()[2]

    @property
    def tool_bar(self):
        return self.controls("ToolbarWindow32")[0]

    @property
    def cancel(self):
        return self.controls("Button")[0]

    def enter(self, text):
        """Types a filter and presses Enter."""
        self.filter.type(text)
        self.app.keys("Enter")

    def click_apply(self):
        self._click_left_half(0)

    def click_remove(self):
        self._click_left_half(-1)

    def _click_left_half(self, number):
        left, top, _, bottom = self.tool_bar.buttons[number]["rect"]
        self.app.click(left + 10, (top + bottom) // 2)

    def drop_down(self, number):
        """Opens the menu of a button by its arrow: 0 holds the words, -1 clears the list."""
        _, top, right, bottom = self.tool_bar.buttons[number]["rect"]
        self.app.click(right - 5, (top + bottom) // 2)
        return self.app.pop_up()

    def words(self):
        """The operation words, "-" for a separator."""
        menu = self.drop_down(0)
        found = ["-" if entry.separator else entry.name for entry in menu.entries]
        self.app.keys("Escape")
        return found

    def choose_word(self, word):
        self.drop_down(0).choose(word)


class FindDialog(Dialog):
    @property
    def what(self):
        return self.one("ComboBox")

    def search(self, text):
        """Types a text and presses Enter."""
        self.what.type(text)
        self.app.keys("Enter")


class HistoryWindow(Dialog):
    @property
    def path(self):
        return self.one("ComboBox")

    @property
    def steps(self):
        return self.controls("SysListView32")[0]

    @property
    def words(self):
        """The line that says it all: the label below the path's own."""
        labels = sorted(self.controls("Static"), key=lambda label: label.rect.top)
        return labels[1].text

    def ask_for(self, path):
        """Types a path and presses Enter."""
        self.path.type(path)
        self.app.keys("Enter")
        self.app.settle()


class OptionsDialog(Dialog):
    @property
    def pages(self):
        return self.controls("SysTabControl32")[0]

    @property
    def language_file(self):
        return self.controls("Edit", None)[0]

    @property
    def colours(self):
        """lblColorChange(0) and (1): the only labels that draw themselves (SS_OWNERDRAW)."""
        return sorted((label for label in self.controls("Static", None)
                       if label.info["style"] & 0x1F == 0xD), key=lambda label: label.rect.top)


__all__ = ["CalendarWindow", "Dialog", "FilterDialog", "FindDialog", "HistoryWindow", "OptionsDialog", "PopUpMenu",
           "center", "filter_dialog", "open_calendar", "open_filter", "open_find", "open_history",
           "open_options"]


class CalendarWindow(Dialog):
    @property
    def canvas(self):
        return self.one("OrdalynCanvas")

    @property
    def day(self):
        """What it says of the day that is pointed at, else of the one that keys are for."""
        return self.one("Static").text

    @property
    def previous(self):
        return self.button("Previous Year")

    @property
    def next(self):
        return self.button("Next Year")

    def point_at_day(self, month_of_row, words):
        """Points at the square of a day in the first row of months, which has four; goes over all
        squares of the month (from 0) until it says so."""
        area = self.canvas.rect
        pitch = (area.right - area.left) / 31.5
        top = area.top
        left = area.left + pitch * (8 * month_of_row + 0.7)
        for line in range(4, 24):
            for column in range(7):
                x, y = int(left + column * pitch), int(top + line * pitch / 2)
                self.app.point_at(x, y)
                if self.day.startswith(words):
                    return
        raise AssertionError(f"no square says {words!r}")
