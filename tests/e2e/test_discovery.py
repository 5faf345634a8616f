"""Started without a log: the file manager's folder, its settings file and its log are found."""

import shutil

import pytest

from harness.filedialog import FileDialog
from harness.wine import PROJECT, windows_path

USER = r"HKEY_CURRENT_USER\Software\Ghisler\Total Commander"
MACHINE = r"HKEY_LOCAL_MACHINE\Software\Ghisler\Total Commander"
WM_CLOSE = 0x10
NO_INI = "Cannot find Total Commander settings file [Wincmd.ini]"
NO_LOG = "Cannot find Total Commander log file."


def line(word):
    return rf"01.03.2024 10:15:30: Delete C:\{word}.txt"


def install(folder, name, *configuration):
    """An installation whose log has one row that names it; answers the folder's Windows path."""
    word = name.split("/")[-1]
    log = folder.write(f"{name}/{word}.log", [line(word)])
    folder.write(f"{name}/wincmd.ini",
                 ["[Configuration]", f"LogFile={windows_path(log)}", *configuration],
                 encoding="cp1252")
    return folder.windows(name)


def home(folder):
    """A variable that leads to the test's folder, for paths that hold one."""
    return {"E2E_HOME": windows_path(folder.path)}


def shows(app, word):
    app.wait_for_rows(1)
    assert app.main.source.rows() == [("10:15:30", rf"Delete C:\{word}.txt")]
    assert not app.find_dialog()
    return app


def common(folder):
    return folder.settings["Common"]


@pytest.fixture
def windows_ini(wine):
    """wincmd.ini in the Windows folder; not there before and after a test."""
    file = wine.windows_folder / "wincmd.ini"
    file.unlink(missing_ok=True)
    yield file
    file.unlink(missing_ok=True)


def last_day(log):
    """Date and number of the rows that follow the last change of date."""
    dates = [text.split()[0] for text in log.read_bytes().decode("utf-8-sig", "replace")
             .splitlines() if text.strip()]
    count = 0
    while count < len(dates) and dates[-1 - count] == dates[-1]:
        count += 1
    return dates[-1], count


def test_the_sample_installation_is_shown_without_a_question(folder):
    sample = folder.path / "totalcmd"
    shutil.copytree(PROJECT / "samples" / "totalcmd", sample)
    app = folder.start(env={"COMMANDER_PATH": folder.windows("totalcmd"),
                            "COMMANDER_INI": folder.windows("totalcmd", "wincmd.ini")})
    date, count = last_day(sample / "logs" / "totalcmd.log")
    app.wait_for_rows(count)
    assert app.main.dates.chosen == date
    assert app.main.log_title == folder.windows("totalcmd", "logs", "totalcmd.log")
    assert app.main.files.visible
    assert app.main.files.items == ["All files", "totalcmd.log", "totalcmd.1.log", "totalcmd.2.log"]
    assert app.main.files.chosen == "totalcmd.log"
    assert not app.find_dialog()
    assert common(folder)["TCInstallDir"] == folder.windows("totalcmd")
    assert "UserDefinedWincmd" not in common(folder)


def test_the_environment_comes_first_and_its_folder_need_not_exist(folder, registry):
    install(folder, "environment")
    registry.registry_import({USER: {"InstallDir": install(folder, "user"),
                                     "IniFileName": folder.windows("user", "wincmd.ini")}})
    app = folder.start(env={"Commander_Path": r"d:\tc",
                            "Commander_INI": folder.windows("environment", "wincmd.ini")})
    shows(app, "environment")
    assert common(folder)["TCInstallDir"] == r"d:\tc"


def test_a_settings_file_of_the_environment_that_is_missing_is_skipped(folder, registry):
    # The current user's keys come before the machine's, and ".\" is the file manager's folder.
    install(folder, "user")
    install(folder, "machine")
    registry.registry_import({
        USER: {"InstallDir": r"%E2E_HOME%\user", "IniFileName": r".\wincmd.ini"},
        MACHINE: {"InstallDir": folder.windows("machine"),
                  "IniFileName": folder.windows("machine", "wincmd.ini")}})
    app = folder.start(env={"Commander_INI": folder.windows("missing.ini"), **home(folder)})
    shows(app, "user")
    assert common(folder)["TCInstallDir"] == folder.windows("user")


def test_the_machine_s_registry_keys_follow(folder, registry, windows_ini):
    # The bare name means the Windows folder, where there is no such file.
    install(folder, "machine")
    registry.registry_import({
        USER: {"IniFileName": "wincmd.ini"},
        MACHINE: {"InstallDir": folder.windows("machine"),
                  "IniFileName": r"%E2E_HOME%\machine\wincmd.ini"}})
    app = folder.start(env=home(folder))
    shows(app, "machine")
    assert common(folder)["TCInstallDir"] == folder.windows("machine")
    assert not windows_ini.exists()


def test_a_bare_name_in_the_registry_means_the_windows_folder(folder, registry, windows_ini):
    install(folder, "machine")
    shutil.copy(folder.path / "machine" / "wincmd.ini", windows_ini)
    install(folder, "remembered")
    registry.registry_import({MACHINE: {"IniFileName": "wincmd.ini"}})
    # What the program has remembered comes after the registry.
    folder.write_settings(Common={"TCInstallDir": folder.windows("remembered"),
                                  "UserDefinedWincmd": folder.windows("remembered", "wincmd.ini")})
    shows(folder.start(), "machine")


def test_what_is_stored_by_the_file_manager_s_folder_follows_it(folder, registry):
    # Found last in one place, and now, by the registry, in another.
    install(folder, "before")
    install(folder, "now")
    folder.write_settings(Common={"TCInstallDir": folder.windows("before"),
                                  "UserDefinedWincmd": r"%Commander_Path%\wincmd.ini"})
    registry.registry_import({USER: {"InstallDir": ""},
                              MACHINE: {"InstallDir": folder.windows("now")}})
    shows(folder.start(), "now").close()
    assert common(folder)["TCInstallDir"] == folder.windows("now")


def test_the_machine_s_registry_comes_before_what_is_remembered(folder, registry):
    install(folder, "machine")
    install(folder, "remembered")
    registry.registry_import({MACHINE: {"InstallDir": folder.windows("machine"),
                                        "IniFileName": r".\wincmd.ini"}})
    folder.write_settings(Common={"TCInstallDir": folder.windows("remembered"),
                                  "UserDefinedWincmd": folder.windows("remembered", "wincmd.ini")})
    shows(folder.start(), "machine")
    assert common(folder)["TCInstallDir"] == folder.windows("machine")


def test_what_the_file_manager_s_folder_lacks_may_be_in_the_windows_folder(folder, registry,
                                                                            windows_ini):
    install(folder, "windows")
    shutil.copy(folder.path / "windows" / "wincmd.ini", windows_ini)
    (folder.path / "empty").mkdir()
    registry.registry_import({USER: {"InstallDir": folder.windows("empty"),
                                     "IniFileName": r".\wincmd.ini"}})
    shows(folder.start(), "windows")


def test_a_network_path_in_the_registry_is_passed_over(folder, registry):
    """It counts as a name below the Windows folder, where there is no such file."""
    # Both begin with two backslashes; the first one leads to a file that is there.
    install(folder, "there")
    install(folder, "remembered")
    registry.registry_import({
        USER: {"IniFileName": "\\\\?\\" + folder.windows("there", "wincmd.ini")},
        MACHINE: {"IniFileName": r"\\localhost\totalcmd\wincmd.ini"}})
    folder.write_settings(Common={"UserDefinedWincmd": folder.windows("remembered", "wincmd.ini")})
    shows(folder.start(), "remembered")


def test_the_own_settings_file_comes_last(folder):
    install(folder, "remembered")
    folder.write_settings(Common={"TCInstallDir": r"%E2E_HOME%\remembered",
                                  "UserDefinedWincmd": r"%E2E_HOME%\remembered\wincmd.ini"})
    before = common(folder)
    app = folder.start(env=home(folder))
    shows(app, "remembered")
    app.close()
    after = common(folder)
    assert {key: after[key] for key in before} == before


def test_the_user_is_asked_and_the_choice_is_remembered(folder):
    install(folder, "asked")
    install(folder, "Ordalyn/beside")
    folder.write_settings(Common={"TCInstallDir": folder.windows("asked")})
    app = folder.start()
    message = app.message(30)
    assert message.title == "Ordalyn"
    assert message.text == NO_INI
    assert message.icon == "warning"
    assert message.buttons == ["OK"]
    # Behind a message the window takes nothing.
    assert not app.main.enabled
    message.press("OK")
    dialog = FileDialog.of(app)
    assert dialog.title == "Open"
    assert dialog.file_name.lower() == "wincmd.ini"
    assert dialog.file_types == ["Wincmd.ini (*.ini)", "All Files (*.*)"]
    assert "wincmd.ini" in dialog.files
    assert not app.main.enabled
    dialog.choose(folder.windows("asked", "wincmd.ini"))
    shows(app, "asked")
    # The file manager's folder is stored in its symbolic form.
    assert common(folder)["UserDefinedWincmd"] == r"%Commander_Path%\wincmd.ini"
    app.close()

    # The next start knows the folder again, though the file manager has set no variable.
    shows(folder.start(), "asked").close()
    assert common(folder)["UserDefinedWincmd"] == r"%Commander_Path%\wincmd.ini"

    folder.write_settings(Common={"TCInstallDir": folder.windows("asked"),
                                  "UserDefinedWincmd": folder.windows("gone.ini")})
    app = folder.start()
    app.message(30).press("OK")
    FileDialog.of(app).choose(folder.windows("Ordalyn", "beside", "wincmd.ini"))
    shows(app, "beside")
    assert common(folder)["UserDefinedWincmd"] == r"velmordane:\beside\wincmd.ini"
    app.close()

    # A folder below the program's own needs nothing.
    shows(folder.start(), "beside")


@pytest.mark.parametrize("bits, place, stored", [
    (0, "Ordalyn/own", None), (1, "other", None),
    (2, "Ordalyn/own", r"%Commander_Path%\Ordalyn\own\wincmd.ini")],
    ids=["none", "program", "file manager"])
def test_which_folders_have_a_symbolic_form_is_a_setting(folder, bits, place, stored):
    """The program lies in the file manager's folder."""
    file = install(folder, place) + r"\wincmd.ini"
    folder.write_settings(Common={"TCInstallDir": windows_path(folder.path),
                                  "UnExpandPaths": bits})
    app = folder.start()
    app.message(30).press("OK")
    FileDialog.of(app).choose(file)
    shows(app, place.split("/")[-1])
    assert common(folder)["UserDefinedWincmd"] == (stored or file)


def test_whoever_declines_gets_a_fresh_settings_file_once(folder, windows_ini):
    app = folder.start()
    app.message(30).press("OK")
    FileDialog.of(app).cancel()
    message = app.message(30)
    assert message.text == NO_LOG
    assert message.icon == "error"
    entries = [text for text in windows_ini.read_text().splitlines() if text]
    assert entries == ["[Configuration]", "firstmnu=512", "PanelsVertical=0"]
    assert common(folder)["UserDefinedWincmd"].lower() == r"c:\windows\wincmd.ini"
    assert "TCInstallDir" not in common(folder)
    message.press("OK")
    assert app.main.text.endswith(" RC 1 - ")
    assert app.main.source.row_count == 0
    # File > Open still works.
    app.main.drop_files(folder.windows(folder.write("open.log", [line("open")]).name))
    app.wait_for_rows(1)
    app.close()

    # The next start finds that file without asking for it.
    written = windows_ini.read_bytes()
    app = folder.start()
    message = app.message(30)
    assert message.text == NO_LOG
    message.press("OK")
    assert not app.find_dialog()
    app.close()
    assert windows_ini.read_bytes() == written


def test_whoever_declines_keeps_the_settings_file_of_the_windows_folder(folder, windows_ini):
    log = folder.write("windows.log", [line("windows")])
    windows_ini.write_bytes(
        f"[Configuration]\r\nfirstmnu=1717\r\nLogFile={windows_path(log)}\r\n".encode())
    written = windows_ini.read_bytes()
    app = folder.start()
    app.message(30).press("OK")
    FileDialog.of(app).cancel()
    shows(app, "windows")
    app.close()
    assert windows_ini.read_bytes() == written
    assert common(folder)["UserDefinedWincmd"].lower() == r"c:\windows\wincmd.ini"


@pytest.mark.parametrize("question", ["message", "dialog"])
def test_ending_the_program_behind_the_first_question_declines_nothing(folder, windows_ini,
                                                                       question):
    app = folder.start()
    message = app.message(30)
    if question == "dialog":
        message.press("OK")
        FileDialog.of(app)
    app.main.ask("post", message=WM_CLOSE)
    app.wait_for_end()
    assert app.exit_code == 0
    assert not windows_ini.exists()
    assert "UserDefinedWincmd" not in common(folder)


def test_a_redirected_section_names_the_log(folder):
    # The value ends in a blank, as it does in the field.
    install(folder, "main", r"RedirectSection=%commander_path%\user\user.ini ",
            "LogRotateLimit=0")
    folder.write("main/user/x.log", [line("redirected")])
    folder.write("main/user/x_old.log", [line("old")])
    folder.write("main/user/user.ini", ["[Configuration]", r"logfile=%COMMANDER_PATH%\user\x.log",
                                        "LogRotateLimit=-1"])
    app = folder.start(env={"Commander_Path": folder.windows("main"),
                            "Commander_INI": folder.windows("main", "wincmd.ini")})
    shows(app, "redirected")
    assert app.main.files.items == ["All files", "x.log", "x_old.log"]


def test_a_redirection_to_a_bare_name_means_the_folder_of_the_settings_file(folder):
    install(folder, "main", "RedirectSection=user.ini")
    install(folder, "other")
    shutil.copy(folder.path / "other" / "wincmd.ini", folder.path / "main" / "user.ini")
    # Redirections are followed once: those of the target do not count.
    with open(folder.path / "main" / "user.ini", "a", encoding="ascii") as ini:
        ini.write("RedirectSection=nowhere.ini\r\nAlternateUserIni=c:\\nowhere.ini\r\n")
    app = folder.start(env={"Commander_Path": folder.windows("main"),
                            "Commander_INI": folder.windows("main", "wincmd.ini")})
    shows(app, "other")


@pytest.mark.parametrize("redirect, shown", [((), "main"), (("RedirectSection=1",), "user"),
                                             (("RedirectSection=0",), "main")],
                         ids=["exempt", "1", "0"])
def test_a_user_ini_elsewhere(folder, redirect, shown):
    install(folder, "main", rf"AlternateUserIni={folder.windows('user', 'wincmd.ini')}", *redirect)
    install(folder, "user")
    app = folder.start(env={"Commander_Path": folder.windows("main"),
                            "Commander_INI": folder.windows("main", "wincmd.ini")})
    shows(app, shown)


def test_which_sections_stay_is_a_setting(folder):
    install(folder, "main", rf"AlternateUserIni={folder.windows('user', 'wincmd.ini')}")
    install(folder, "user")
    env = {"Commander_Path": folder.windows("main"),
           "Commander_INI": folder.windows("main", "wincmd.ini")}
    app = shows(folder.start(env=env), "main")
    app.close()
    # Whoever wants another list finds the one that counts.
    assert common(folder)["TCSectionsNotRedirectedByDefault"] == (
        "Configuration;Layout;Packer;Confirmation;Extensions;Shortcuts;PackerPlugins;"
        "FileSystemPlugins;ListerPlugins;ContentPlugins")
    own = "Layout;configurations;Packer"
    folder.write_settings(Common={"TCSectionsNotRedirectedByDefault": own})
    app = shows(folder.start(env=env), "user")
    app.close()
    assert common(folder)["TCSectionsNotRedirectedByDefault"] == own


def test_the_file_manager_s_own_variables_name_the_system_s_folders(folder, wine):
    install(folder, "main", "RedirectSection=%$APPDATA%\\e2e-own.ini")
    log = folder.write("own.log", [line("own")])
    users = wine.windows_folder.parent / "users"
    own = next(users.glob("*/AppData/Roaming")) / "e2e-own.ini"
    own.write_text(f"[Configuration]\r\nLogFile={windows_path(log)}\r\n")
    try:
        app = folder.start(env={"Commander_Path": folder.windows("main"),
                                "Commander_INI": folder.windows("main", "wincmd.ini")})
        shows(app, "own")
    finally:
        own.unlink()


@pytest.mark.parametrize("there, shown", [(("current", "temp", "tmp"), "current"),
                                          (("temp", "tmp"), "temp"), (("tmp",), "tmp")],
                         ids=["current", "temp", "tmp"])
def test_a_log_without_a_folder_is_looked_for(folder, there, shown):
    install(folder, "main")
    folder.write("main/wincmd.ini", ["[Configuration]", "LogFile=tc.log"])
    for place in ("current", "temp", "tmp"):
        (folder.path / place).mkdir()
        if place in there:
            folder.write(f"{place}/tc.log", [line(place)])
    app = folder.start(env={"Commander_Path": folder.windows("main"),
                            "Commander_INI": folder.windows("main", "wincmd.ini"),
                            "TEMP": folder.windows("temp"), "TMP": folder.windows("tmp")},
                       folder=folder.path / "current")
    shows(app, shown)
    # The row's reaction names the live log's folder, and that name has none.
    assert app.main.log_title == "tc.log"


def test_the_command_line_comes_before_the_settings(folder):
    install(folder, "main")
    log = folder.write("argument.log", [line("argument")])
    app = folder.start(f'"{folder.windows(log.name)}"',
                       env={"Commander_Path": folder.windows("main"),
                            "Commander_INI": folder.windows("main", "wincmd.ini")})
    shows(app, "argument")
    # The folder in the title stays the live log's.
    assert app.main.log_title == folder.windows("main", "argument.log")
