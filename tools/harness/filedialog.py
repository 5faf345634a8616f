"""The system's dialog for choosing a file."""

from .controls import TextBox, Window, plain
from .waiting import wait_until

# Control ids of the system's dialog.
FILE_TYPES = 0x470
FILE_NAME = (0x47C, 0x480)


class FileDialog(Window):
    @classmethod
    def of(cls, app, timeout=10):
        """The file dialog that is open, or opens soon, with all its controls."""
        def there():
            dialog = app.find_dialog(cls)
            return dialog if dialog and dialog._with_id(*FILE_NAME) else None
        return wait_until(there, "a file dialog", timeout)

    def _with_id(self, *ids):
        return [info for info in self.ask("tree") if info["id"] in ids]

    @property
    def title(self):
        return self.info["text"]

    @property
    def file_name(self):
        return self._with_id(*FILE_NAME)[0]["text"]

    @property
    def file_types(self):
        """The entries of the list of file types, the chosen one first."""
        for combo in self.controls("ComboBox"):
            if combo.info["id"] == FILE_TYPES:
                items = combo.items
                items.insert(0, items.pop(combo.index))
                return items
        raise AssertionError("the dialog offers no file types")

    @property
    def files(self):
        """Names in the list of files."""
        return wait_until(lambda: self.one("SysListView32").column(0), "files in the dialog")

    def choose(self, path):
        """Enters the name of a file and confirms."""
        self._enter(path)
        self.press("Open")

    def enter(self, path):
        """Enters the name of a file that the dialog may refuse."""
        self._enter(path)
        self._button("Open").ask("press")
        self.app.settle()

    def _enter(self, path):
        edits = [info for info in self._with_id(*FILE_NAME, 1001) if info["class"] == "Edit"]
        TextBox(self.app, edits[-1]["handle"]).ask("setText", text=path)

    def cancel(self):
        self.press("Cancel")

    def _button(self, caption):
        for button in self.controls("Button"):
            if plain(button.text) == caption:
                return button
        raise AssertionError(f"no button {caption!r} in the file dialog")

    def press(self, caption):
        self._button(caption).ask("press")
        wait_until(lambda: not self.app.has_window(self.handle), f"the dialog to go by {caption}")
        self.app.settle()
