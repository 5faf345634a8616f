"""What belongs to the file manager is the same, to the last byte and time stamp, after a session."""

import os
import shutil
import time

from harness.filedialog import FileDialog
from harness.untouched import KEYS, files_below, registry_of
from harness.wine import PROJECT

LONG_AGO = 1_400_000_000


def test_a_whole_session_changes_nothing(folder, registry):
    home = folder.path / "totalcmd"
    shutil.copytree(PROJECT / "samples" / "totalcmd", home)
    shutil.move(home / "wincmd.ini", home / "main.ini")
    user = folder.write("totalcmd/user/user.ini", ["[Search]", "Text=1"])
    folder.write("totalcmd/wincmd.ini",
                 (home / "main.ini").read_bytes().replace(
                     b"[Configuration]\r\n",
                     b"[Configuration]\r\nAlternateUserIni=%COMMANDER_PATH%\\user\\user.ini\r\n", 1))
    (home / "main.ini").unlink()
    for item in home.rglob("*"):
        os.utime(item, (LONG_AGO, LONG_AGO))
    os.utime(home, (LONG_AGO, LONG_AGO))
    assert user.exists() and b"AlternateUserIni" in (home / "wincmd.ini").read_bytes()
    registry.registry_import({
        KEYS[0]: {"InstallDir": folder.windows("totalcmd"), "IniFileName": r".\wincmd.ini"},
        KEYS[1]: {"InstallDir": r"C:\elsewhere", "IniFileName": "wincmd.ini"}})
    imported = time.time()
    windows = {name: (registry.windows_folder / name).stat().st_mtime_ns
               for name in os.listdir(registry.windows_folder) if name.lower().endswith(".ini")}
    before, keys_before = files_below(home), registry_of(registry)

    app = folder.start(env={"COMMANDER_PATH": folder.windows("totalcmd")})
    app.wait_for_rows()
    main = app.main
    assert main.log_title == folder.windows("totalcmd", "logs", "totalcmd.log")
    main.files.ask("chooseFromCombo", index=0)
    app.settle(30)
    assert main.dates.chosen == "All dates"
    main.files.choose("totalcmd.1.log")
    main.files.choose("totalcmd.log")
    main.dates.choose(0)
    main.source.click_row(2)
    app.keys("Ctrl+C", "Ctrl+Alt+C", "F5")
    # The filter's words come from the file manager's language file.
    app.keys("Ctrl+L")
    app.window("Filter")
    app.type("Kopieren")
    app.keys("Enter", "Escape")
    app.keys("Ctrl+F")
    app.window("Find").one("ComboBox").type("zip")
    app.keys("Enter", "Escape")
    main.choose("View", "Two Panels")
    main.choose("View", "Two Panels")
    main.choose("View", "Options...")
    app.window("Options").button("Cancel").press()
    app.keys("Ctrl+O")
    FileDialog.of(app).choose(folder.windows("totalcmd", "logs", "totalcmd.2.log"))
    main.drop_files(folder.windows("totalcmd", "wincmd.ini"))
    # That is no log: it is told, and nothing else.
    message = app.find_dialog()
    if message:
        message.press("OK")
    main.choose("File", "Recent Files",
                main.menu("File", "Recent Files").entries[0].name)
    app.settle()
    app.close()

    assert files_below(home) == before
    assert registry_of(registry) == keys_before
    assert {name: (registry.windows_folder / name).stat().st_mtime_ns
            for name in os.listdir(registry.windows_folder)
            if name.lower().endswith(".ini")} == windows
    # All that was written is in the program's own settings file.
    assert sorted(file.name for file in folder.program.iterdir()
                  if file.stat().st_mtime > LONG_AGO and file.suffix == ".ini") == ["Ordalyn.ini"]
    own = folder.settings
    assert own["Common"]["TCInstallDir"] == folder.windows("totalcmd")
    assert own["Ordalyn"]["RecentFiles1"].startswith("%Commander_Path%\\")

    # Nor was anything there written and put back, which only the times of the keys tell.
    app = folder.start(env={"COMMANDER_PATH": folder.windows("totalcmd")})
    app.wait_for_rows()
    for key in KEYS:
        for place in (key, key.rsplit("\\", 1)[0]):
            root, path = place.split("\\", 1)
            written = app.agent.ask("registryKeyTime", root=root, key=path)
            assert LONG_AGO < written / 1000 <= imported, place
    app.close()
