"""A program folder of its own for each test: the program, its settings, logs to show."""

import os
import pathlib
import shutil

from .app import App
from .wine import BITS, PROJECT, windows_path


def program_folder():
    """Where the program that is tested lies; build.sh makes it."""
    return pathlib.Path(os.environ.get("ORDALYN_PROGRAM", PROJECT / "dist" / BITS))


def tools_folder():
    """Where the agent and its launcher lie."""
    return pathlib.Path(os.environ.get(
        "ORDALYN_E2E_TOOLS", PROJECT / "build" / f"mingw-{BITS}" / "tests" / "e2e" / "agent"))


class Folder:
    """`path` is empty to begin with, apart from the program in `path/Ordalyn`."""

    # What a developer's environment may hold for the file manager is never seen by the program.
    HIDDEN = ("Commander_Path", "Commander_INI")

    def __init__(self, wine, path):
        self.wine = wine
        self.path = path
        self.program = path / "Ordalyn"
        # Not the settings of whoever started the program in that folder.
        shutil.copytree(program_folder(), self.program,
                        ignore=shutil.ignore_patterns("Ordalyn.ini"))
        self._runs = []

    @property
    def settings_file(self):
        return self.program / "Ordalyn.ini"

    @property
    def settings(self):
        """The settings file as sections of keys, {} while there is none."""
        sections = {}
        if self.settings_file.exists():
            for line in self.settings_file.read_bytes().decode("latin-1").splitlines():
                line = line.strip()
                if line.startswith("["):
                    section = sections.setdefault(line.strip("[]"), {})
                elif "=" in line:
                    key, value = line.split("=", 1)
                    section[key.strip()] = value.strip()
        return sections

    def write_settings(self, **sections):
        """write_settings(Ordalyn={"TwoPanels": 0}, Common={...})"""
        lines = []
        for section, values in sections.items():
            lines.append(f"[{section}]")
            lines += [f"{key}={value}" for key, value in values.items()]
        self.settings_file.write_bytes("\r\n".join(lines + [""]).encode("latin-1"))

    def write(self, name, content, encoding="utf-8-sig"):
        """Writes a file below `path`; a list becomes lines ended by CR LF, a text stays as it is.
        Returns its path."""
        if isinstance(content, list):
            content = "".join(line + "\r\n" for line in content)
        if isinstance(content, str):
            content = content.encode(encoding)
        file = self.path / name
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_bytes(content)
        return file

    def windows(self, *names):
        """The Windows path of something below `path`."""
        return windows_path(self.path.joinpath(*names))

    def file_manager(self, *configuration):
        """Makes a folder of the file manager with a wincmd.ini that holds these lines in
        [Configuration]; answers the environment that leads there."""
        ini = self.write("totalcmd/wincmd.ini", ["[Configuration]", "firstmnu=512",
                                                 *configuration], encoding="cp1252")
        return {"Commander_Path": windows_path(ini.parent), "Commander_INI": windows_path(ini)}

    def show(self, log, name="totalcmd.log", **options):
        """Starts the program on a log with this content and waits for its rows."""
        app = self.start(self.write(name, log), env=self.file_manager(), **options)
        app.wait_for_rows()
        return app

    def start(self, arguments="", env=None, locale=None, folder=None):
        """Starts the program. `arguments` is the rest of its command line as it stands (a path
        object becomes its Windows path, unquoted); env sets environment variables."""
        if isinstance(arguments, os.PathLike):
            arguments = windows_path(arguments)
        number = len(self._runs)
        run = self.path / f"run-{number}"
        run.mkdir()
        tools = tools_folder()
        lines = [
            f"program={windows_path(self.program / 'Ordalyn.exe')}",
            f"arguments={arguments}",
            f"folder={windows_path(folder or self.program)}",
            f"agent={windows_path(tools / 'ordalyn_e2e_agent.dll')}",
            f"status={windows_path(run / 'status')}",
            f"set=ORDALYN_E2E_PORT_FILE={windows_path(run / 'port')}",
            *[f"unset={name}" for name in self.HIDDEN],
            *[f"set={name}={value}" for name, value in (env or {}).items()],
        ]
        launch = run / "launch"
        launch.write_text("\n".join(lines) + "\n", encoding="utf-8")
        launcher = self.wine.start_on_desktop(
            [tools / "ordalyn_e2e_launch.exe", windows_path(launch)], locale, run / "output")
        app = App(self.wine, run, launcher)
        self._runs.append(app)
        return app

    @property
    def apps(self):
        return list(self._runs)

    def end_all(self):
        for app in self._runs:
            app.kill()
