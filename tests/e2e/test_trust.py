"""What lies beside the program gets no hold of it."""

import shutil

from harness.filedialog import FileDialog
from harness.folder import tools_folder

LOG = [r"01.03.2024 10:15:30: Copy C:\a.txt -> D:\a.txt"]
# Libraries of the system that not every Windows protects by their names: the program asks for the
# first two itself, for the others the system does on its behalf.
PLANTED = ("uxtheme", "dwmapi", "version", "propsys", "cryptbase", "oleacc", "textinputframework")


def test_no_library_is_taken_from_the_program_s_folder(show, folder):
    for name in PLANTED:
        shutil.copy(tools_folder() / "ordalyn_e2e_planted.dll", folder.program / f"{name}.dll")
    app = show(LOG)
    assert app.main.source.rows() == [("10:15:30", r"Copy C:\a.txt ")]
    app.keys("Ctrl+O")
    FileDialog.of(app).cancel()
    assert [file.name for file in folder.program.glob("*.loaded")] == []
