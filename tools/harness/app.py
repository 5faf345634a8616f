"""One run of the program."""

import re

from .agent import Agent, AgentError, ProgramEnded
from .controls import Control, ListView, MessageBox, PopUpMenu, Window, center
from .waiting import Timeout, wait_until
from .wine import windows_path

VIRTUAL_KEYS = {
    "Tab": 0x09, "Enter": 0x0D, "Shift": 0x10, "Ctrl": 0x11, "Alt": 0x12, "Escape": 0x1B,
    "Space": 0x20, "PageUp": 0x21, "PageDown": 0x22, "End": 0x23, "Home": 0x24, "Left": 0x25,
    "Up": 0x26, "Right": 0x27, "Down": 0x28, "Insert": 0x2D, "Delete": 0x2E, "Backspace": 0x08,
    "ContextMenu": 0x5D, **{f"F{n}": 0x6F + n for n in range(1, 13)},
}
BUTTONS = {"left": 0, "right": 1, "middle": 2}


class App:
    def __init__(self, wine, run_folder, launcher):
        """`launcher` is the process that starts the program and waits for its end."""
        self.wine = wine
        self._folder = run_folder
        self.launcher = launcher
        try:
            wait_until(lambda: self._port_file.exists() or self._launcher_has_ended,
                       "the program to start", timeout=60)
        except Timeout as late:
            raise Timeout(f"{late}; there is\n{wine.processes()}") from late
        if not self._port_file.exists():
            raise RuntimeError(f"the program did not start: {self._status}, what starts it ended with "
                               f"{launcher.returncode}\n{self.output}")
        self.agent = Agent(int(self._port_file.read_text()))

    @property
    def _launcher_has_ended(self):
        return self.launcher.poll() is not None

    @property
    def output(self):
        """What Wine had to say so far."""
        return (self._folder / "output").read_text(errors="replace")

    @property
    def _port_file(self):
        return self._folder / "port"

    @property
    def _status(self):
        try:
            lines = (self._folder / "status").read_text().splitlines()
        except FileNotFoundError:
            return {}
        return dict(line.split("=", 1) for line in lines)

    # Windows.
    def has_window(self, handle):
        return any(w["handle"] == handle and w["visible"] for w in self.agent.ask("windows"))

    def windows(self):
        """All visible top-level windows, front to back."""
        return [w for w in self.agent.ask("windows") if w["visible"]]

    def watch_windows(self):
        """From now on `captions_so_far` tells of all top-level windows that come up, also of those
        that are gone again."""
        assert self.agent.ask("watchWindows")

    @property
    def captions_so_far(self):
        return self.agent.ask("shownWindows")

    def find_window(self, title):
        """A visible window whose title matches the regular expression from its start, or None."""
        for window in self.windows():
            if re.match(title, window["text"]) and window["class"] != "#32770":
                return Window(self, window["handle"])
        return None

    def window(self, title, timeout=10):
        return wait_until(lambda: self.find_window(title), f"a window {title!r}", timeout)

    def window_of(self, handle):
        """The top-level window that `windows` lists with this handle."""
        return Window(self, handle)

    @property
    def main(self):
        if not hasattr(self, "_main"):
            self._main = MainWindow(self, self.window(r"Ordalyn \d", 30).handle)
        return self._main

    def find_dialog(self, kind=MessageBox):
        """The foremost system dialog (message box, file, colour or font dialog), or None."""
        for window in self.windows():
            if window["class"] == "#32770":
                return kind(self, window["handle"])
        return None

    def message(self, timeout=10):
        return wait_until(self.find_dialog, "a message box", timeout)

    def dialog(self, timeout=10):
        return wait_until(lambda: self.find_dialog(Window), "a dialog", timeout)

    def pop_up(self, timeout=5):
        """The pop-up menu that was opened last."""
        found = wait_until(lambda: self.agent.ask("popUps"), "a pop-up menu", timeout)
        return PopUpMenu(self, found[0])

    @property
    def has_pop_up(self):
        return bool(self.agent.ask("popUps"))

    def settle(self, timeout=10):
        """Waits until the program has worked off what it was told. It may have ended by it."""
        try:
            self._wait_for_quiet(timeout)
            # The reading of a log handles messages now and then, which looks like quiet.
            while self.find_window("  Reading"):
                self._wait_for_quiet(timeout)
        except ProgramEnded:
            pass

    def _wait_for_quiet(self, timeout):
        if not self.agent.ask("idle", milliseconds=int(timeout * 1000)):
            raise AssertionError(f"the program is still busy after {timeout} s")

    def wait_for_rows(self, count=None, timeout=30):
        """Waits until the source panel has that many rows (at least one without a number)."""
        def there():
            try:
                rows = self.main.source.row_count
                return rows > 0 if count is None else rows == count
            except AgentError:
                return False
        wait_until(there, f"{'rows' if count is None else f'{count} rows'} in the panel", timeout)
        self.settle()

    # Keyboard and mouse, as the system gets them from a user.
    def keys(self, *chords):
        """Presses chords such as "Ctrl+Shift+C", "Down", "a" one after the other."""
        for chord in chords:
            self.keys_without_waiting(chord)
        self.settle()

    def keys_without_waiting(self, chord):
        """For a chord that opens a menu, which keeps the program busy."""
        codes = []
        for name in re.findall(r"[^+]+|\+$", chord):
            codes.append(VIRTUAL_KEYS.get(name) or ord(name.upper()))
        events = [x for code in codes for x in (code, 1)]
        events += [x for code in reversed(codes) for x in (code, 0)]
        self.agent.ask("keys", keys=events)

    def key_down(self, name):
        self.agent.ask("keys", keys=[VIRTUAL_KEYS.get(name) or ord(name.upper()), 1])

    def key_up(self, name):
        self.agent.ask("keys", keys=[VIRTUAL_KEYS.get(name) or ord(name.upper()), 0])
        self.settle()

    def type(self, text):
        self.agent.ask("typeText", text=text)
        self.settle()

    def mouse(self, *events):
        """events: ("move", x, y), ("down", "left"), ("up", "left"), ("wheel", delta)."""
        flat = []
        for action, *numbers in events:
            numbers = [BUTTONS.get(n, n) for n in numbers]
            flat += [action, *numbers, *[0] * (2 - len(numbers))]
        self.agent.ask("mouse", events=flat)

    def click(self, x, y, button="left", double=False):
        press = [("down", button), ("up", button)] * (2 if double else 1)
        self.point_at(x, y)
        self.mouse(*press)
        self.settle()

    def point_at(self, x, y):
        """Moves the pointer and waits until it is there: on a busy machine the display tells of an
        earlier move late, and a click would then land where the pointer was before."""
        def there():
            self.mouse(("move", x, y))
            self.settle()
            pointer = self.agent.ask("pointer")
            return (pointer["x"], pointer["y"]) == (x, y)
        wait_until(there, f"the pointer at {x}, {y}")

    def drag(self, start, end, steps=8):
        """Drags with the left button; the moves are as many as a hand's would be."""
        (x0, y0), (x1, y1) = start, end
        self.point_at(x0, y0)
        self.mouse(("down", "left"))
        for step in range(1, steps + 1):
            self.mouse(("move", x0 + (x1 - x0) * step // steps, y0 + (y1 - y0) * step // steps))
            self.settle()
        self.mouse(("up", "left"))
        self.settle()

    @property
    def pointer(self):
        """The shape of the mouse pointer: "arrow", "hourglass", "east-west", ..."""
        return self.agent.ask("pointer")["shape"]

    # The clipboard, from another thread, as another program sees it.
    @property
    def clipboard(self):
        return self.agent.ask("clipboard")

    @clipboard.setter
    def clipboard(self, text):
        self.agent.ask("setClipboard", text=text)

    def hold_clipboard(self, seconds):
        assert self.agent.ask("holdClipboard", milliseconds=int(seconds * 1000))

    def screenshot(self, path):
        self.settle()
        self.wine.display.screenshot(path)

    # The end.
    @property
    def exit_code(self):
        """None while the program runs."""
        code = self._status.get("exit")
        return None if code is None else int(code)

    def wait_for_end(self, timeout=15):
        return wait_until(lambda: self._status.get("exit"), "the program to end", timeout)

    def close(self):
        """Closes the main window as a user does; the program must end by it, without a fault."""
        self.main.close()
        self.wait_for_end()
        assert self.exit_code == 0, f"the program ended with {self.exit_code}"

    def close_with_message(self):
        """The same for a program that has something to say at its end; answers the message's text."""
        self.main.close()
        message = self.message()
        text = message.text
        message.button("OK").ask("press")
        self.wait_for_end()
        assert self.exit_code == 0, f"the program ended with {self.exit_code}"
        return text

    def kill(self):
        """The last resort: ends the process whatever it is doing."""
        if self.exit_code is None:
            try:
                self.agent.ask("terminate")
            except AssertionError:
                pass
            self.wait_for_end()
        self.agent.close()


class MainWindow(Window):
    """The main window, its parts by their names."""

    def _panel(self, visible, is_it):
        for panel in self.controls("SysListView32", visible):
            if is_it(panel.headers):
                return panel
        raise AgentError("the panel is not there")

    @property
    def source(self):
        """SourceListView: the only panel with several columns."""
        panel = self._panel(None, lambda headers: len(headers) > 1)
        assert isinstance(panel, ListView)
        return panel

    @property
    def target(self):
        """TargetListView: one column. Not on screen in one-panel mode."""
        return self._panel(None, lambda headers: len(headers) == 1)

    def _combos(self):
        """Both combo boxes from left to right, hidden ones too."""
        return sorted(self.controls("ComboBox", None), key=lambda combo: combo.rect.left)

    @property
    def dates(self):
        """cboDate."""
        return self._combos()[0]

    @property
    def files(self):
        """cboFiles."""
        return self._combos()[1]

    @property
    def two_panels(self):
        return self.target.visible

    @property
    def splitter(self):
        """The bar between the two panels."""
        container = self.target.info["parent"]
        for control in self.ask("tree"):
            if control["parent"] == container and control["class"] == "Button":
                return Control(self.app, control["handle"])
        raise AgentError("there is no splitter")

    def drag_splitter(self, pixels):
        """Moves the bar to the right or down."""
        bar = self.splitter.rect
        x, y = center(bar)
        sideways = bar.bottom - bar.top > bar.right - bar.left
        self.app.drag((x, y), (x + pixels, y) if sideways else (x, y + pixels))

    @property
    def log_title(self):
        """What the caption says behind the program's name and version. (`text` is what fits into the
        title bar.)"""
        return self.ask("wholeText").split(" RC 1 - ", 1)[1]

    @property
    def status_bar(self):
        return self.controls("msctls_statusbar32", None)[0]

    @property
    def status(self):
        """The status bar's texts."""
        return self.status_bar.texts


__all__ = ["App", "MainWindow", "windows_path"]
