"""An X server without a screen, on a display number that nobody else uses."""

import os
import subprocess


class Display:
    WIDTH, HEIGHT = 1280, 900

    def __init__(self):
        reading, writing = os.pipe()
        # The server looks for a free number itself and tells it once it takes connections, so
        # several test runs never meet on one display.
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0",
             f"{self.WIDTH}x{self.HEIGHT}x24", "-nolisten", "tcp"],
            pass_fds=[writing], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as pipe:
            number = pipe.readline().strip()
        if not number:
            raise RuntimeError("Xvfb did not start")
        self.name = ":" + number

    def screenshot(self, path, geometry=None):
        """Writes what is on screen to a PNG file; `geometry` is (left, top, width, height)."""
        crop = []
        if geometry:
            left, top, width, height = geometry
            crop = ["-crop", f"{width}x{height}+{left}+{top}", "+repage"]
        subprocess.run(["import", "-display", self.name, "-window", "root", *crop, str(path)],
                       check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def xdotool(self, *arguments):
        """Keyboard and mouse from outside Wine, as the X server gets them from real devices."""
        subprocess.run(["xdotool", *map(str, arguments)], check=True,
                       env={**os.environ, "DISPLAY": self.name})

    def close(self):
        self.server.terminate()
        self.server.wait()
