"""Wine as the tests use it: a prefix that belongs to one run at a time, a desktop, the registry."""

import fcntl
import os
import pathlib
import shutil
import subprocess
import tempfile

from .addresses import keep_memory_in_place
from .waiting import wait_until

PROJECT = pathlib.Path(__file__).resolve().parents[2]
# Which program is tested: the 64-bit one, or the 32-bit one under a Wine that runs it (x86_wine.sh).
BITS = os.environ.get("ORDALYN_BITS", "x64")
WORK = PROJECT / "build" / ("e2e" if BITS == "x64" else f"e2e-{BITS}")


def windows_path(path):
    """The Windows form of a Unix path. Wine shows the whole file system as drive Z:."""
    return "Z:" + str(pathlib.Path(path).absolute()).replace("/", "\\")


class Wine:
    """A prefix under build/, kept between runs, locked while it is in use.

    Runs that are going on at the same time get prefixes of their own.
    """

    def __init__(self, display):
        keep_memory_in_place()
        self.display = display
        self.folder, self._lock = self._take_prefix()
        self._resident = None
        ready = self.folder / "ready"
        if not ready.exists():
            shutil.rmtree(self.folder, ignore_errors=True)
            self.folder.mkdir()
        self._start_server()
        if not ready.exists():
            self.run(["wineboot", "-i"], timeout=300)
            self.registry_set(r"HKCU\Software\Wine\Explorer", "Desktop", "ordalyn")
            self.registry_set(r"HKCU\Software\Wine\Explorer\Desktops", "ordalyn",
                              f"{display.WIDTH}x{display.HEIGHT}")
            self._install_fonts()
            ready.touch()
        self.set_dpi(96)

    def _install_fonts(self):
        """Debian's Wine does not look into the folder where its own fonts are (the signs of the
        caption buttons are one of them)."""
        fonts = self.windows_folder / "Fonts"
        fonts.mkdir(exist_ok=True)
        for font in pathlib.Path("/usr/share/wine/fonts").glob("*.ttf"):
            shutil.copy(font, fonts)
        # Fonts are looked for when the server starts.
        self._end_server()
        self._start_server()

    def _start_server(self):
        """A program that is started in the moment in which Wine's server ends waits forever. So
        the server does not end with the last program, but some minutes later."""
        subprocess.run(["wineserver", "-p600"], env=self.environment(), check=True,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def _end_server(self):
        # Ends every program of this prefix, and of no other.
        subprocess.run(["wineserver", "-k"], env=self.environment(), check=False)
        subprocess.run(["wineserver", "-w"], env=self.environment(), check=False)

    @staticmethod
    def _take_prefix():
        WORK.mkdir(parents=True, exist_ok=True)
        number = 0
        while True:
            lock = open(WORK / f"wine-{number}.lock", "w", encoding="ascii")
            try:
                fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
                return WORK / f"wine-{number}", lock
            except BlockingIOError:
                lock.close()
                number += 1

    def environment(self, locale=None):
        env = dict(os.environ)
        # What a developer has set for the file manager at home must not reach the tests.
        for name in list(env):
            if name.lower() in ("commander_path", "commander_ini", "lc_all", "lang", "language"):
                del env[name]
        env["WINEPREFIX"] = str(self.folder)
        env["WINEDEBUG"] = os.environ.get("WINEDEBUG", "-all")
        # No questions about add-ons, and a crashed program just ends.
        env["WINEDLLOVERRIDES"] = "mscoree,mshtml=;winedbg.exe=d"
        env["DISPLAY"] = self.display.name
        env["LC_ALL"] = locale or "C.UTF-8"
        return env

    def run(self, arguments, timeout=60, **options):
        """What the program has written. Not through a pipe: Wine's own programs, which the first
        one starts, would keep it open."""
        with tempfile.TemporaryFile() as output:
            subprocess.run(["wine", *map(str, arguments)], env=self.environment(), check=True,
                           timeout=timeout, stdout=output, stderr=subprocess.DEVNULL, **options)
            output.seek(0)
            return output.read()

    def show_desktop(self, locale=None):
        """Every program of this prefix runs on a desktop window as large as the display, which
        draws frames and captions. It outlives the programs, so that each of them starts quickly."""
        if self._resident is not None and self._resident.poll() is None:
            return
        # Wine takes a desktop away a second after the last program on it, and with it whatever is
        # just about to start there. So one program waits there for a line that never comes.
        self._resident = subprocess.Popen(["wine", "cmd"], env=self.environment(locale), stdin=subprocess.PIPE,
                                          stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self._resident.stdout.read(1)
        self._start(["explorer", self._desktop_option], locale)
        wait_until(self._desktop_is_shown, "the Wine desktop", timeout=60)

    def start_on_desktop(self, arguments, locale=None, output=None):
        """The started process. What Wine has to say about it goes into the file `output`."""
        self.show_desktop(locale)
        return self._start(list(map(str, arguments)), locale, output)

    @property
    def _desktop_option(self):
        return f"/desktop=ordalyn,{self.display.WIDTH}x{self.display.HEIGHT}"

    def _start(self, arguments, locale, output=None):
        environment = self.environment(locale)
        if output:
            environment["WINEDEBUG"] = os.environ.get("WINEDEBUG", "fixme-all")
        with open(output or os.devnull, "wb") as file:
            return subprocess.Popen(["wine", *arguments], env=environment, stdin=subprocess.DEVNULL,
                                    stdout=file, stderr=file)

    def _desktop_is_shown(self):
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "Wine desktop"],
                               env=self.environment(), stdout=subprocess.PIPE,
                               stderr=subprocess.DEVNULL, check=False)
        return found.stdout.strip() != b""

    # The registry of this prefix. Keys are written like HKCU\\Software\\Name.
    def registry_set(self, key, name, value, kind="REG_SZ"):
        self.run(["reg", "add", key, "/v", name, "/t", kind, "/d", str(value), "/f"])

    def registry_import(self, keys):
        """Sets many values at once: {key: {name: text}}, the keys written in full
        (HKEY_CURRENT_USER\\...)."""
        lines = ["Windows Registry Editor Version 5.00", ""]
        for key, values in keys.items():
            lines.append(f"[{key}]")
            for name, text in values.items():
                text = text.replace("\\", "\\\\").replace('"', '\\"')
                lines.append(f'"{name}"="{text}"')
            lines.append("")
        file = self.folder / "import.reg"
        file.write_bytes("\r\n".join(lines).encode("utf-16"))
        self.run(["regedit", "/S", windows_path(file)])

    def registry_delete(self, key):
        subprocess.run(["wine", "reg", "delete", key, "/f"], env=self.environment(), check=False,
                       timeout=60, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def registry_get(self, key, name):
        """The value's text as `reg query` shows it, or None."""
        try:
            found = self.run(["reg", "query", key, "/v", name])
        except subprocess.CalledProcessError:
            return None
        for line in found.decode("utf-8", "replace").splitlines():
            parts = line.strip().split(None, 2)
            if parts and parts[0].lower() == name.lower():
                return parts[2] if len(parts) > 2 else ""
        return None

    def set_dpi(self, dpi):
        """Holds for programs that are started from now on."""
        if getattr(self, "_dpi", None) != dpi:
            self.registry_set(r"HKCU\Control Panel\Desktop", "LogPixels", dpi, "REG_DWORD")
            self._dpi = dpi

    @property
    def windows_folder(self):
        return self.folder / "drive_c" / "windows"

    def processes(self):
        """What runs with this prefix and what it waits for, a line for each process."""
        found = []
        for folder in pathlib.Path("/proc").glob("[0-9]*"):
            try:
                variables = (folder / "environ").read_bytes().split(b"\0")
                if b"WINEPREFIX=" + os.fsencode(self.folder) in variables:
                    command = (folder / "cmdline").read_bytes().replace(b"\0", b" ").decode()
                    waits = (folder / "wchan").read_text()
                    found.append(f"{folder.name} {waits}: {command}")
            except (OSError, UnicodeDecodeError):
                continue
        return "\n".join(found)

    def close(self):
        self._end_server()
        if self._resident:
            # One that the server did not know yet when it ended waits for it.
            self._resident.kill()
            self._resident.communicate()
        self._lock.close()
