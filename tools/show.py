#!/usr/bin/env python3
"""Shows a log (by default the sample installation) in the real program on a display of its own,
writes a picture of it and says what is on it.

    tools/show.py [LOG] [--picture FILE] [--dpi N]
"""

import argparse
import pathlib
import shutil
import sys

PROJECT = pathlib.Path(__file__).resolve().parents[1]
sys.path.insert(0, str(PROJECT / "tools"))

from harness.display import Display  # noqa: E402
from harness.folder import Folder  # noqa: E402
from harness.waiting import wait_until  # noqa: E402
from harness.wine import WORK, Wine, windows_path  # noqa: E402

SAMPLES = PROJECT / "samples" / "totalcmd"


def describe(app):
    main = app.main
    files = f", file {main.files.value}" if main.files.visible else ""
    status = " | ".join(text.strip() for text in main.status)
    return f'window "{main.text}", day {main.dates.chosen}{files}, {status}'


def reason(app):
    """What the program says instead of showing rows."""
    box = app.find_dialog()
    return f"it says: {box.text!r}" if box else "it says nothing"


def show(app, picture):
    try:
        wait_until(lambda: app.find_dialog() or app.main.source.row_count > 0,
                   "rows in the window", timeout=60)
        if app.find_dialog():
            raise AssertionError("a message is in the way")
    except AssertionError as failure:
        app.wine.display.screenshot(picture)
        raise SystemExit(f"The window does not show the rows ({reason(app)}): {failure}") from None
    app.settle()
    left, top, right, bottom = app.main.rect
    picture.parent.mkdir(parents=True, exist_ok=True)
    app.wine.display.screenshot(picture, (left, top, right - left, bottom - top))
    try:
        name = picture.resolve().relative_to(PROJECT)
    except ValueError:
        name = picture
    print(f"{name}: {describe(app)}")


def main():
    arguments = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    arguments.add_argument("log", nargs="?", type=pathlib.Path)
    arguments.add_argument("--picture", type=pathlib.Path, default=PROJECT / "build/ordalyn.png")
    arguments.add_argument("--dpi", type=int, default=96)
    options = arguments.parse_args()
    display = Display()
    try:
        wine = Wine(display)
        try:
            path = WORK / f"show-{wine.folder.name}"
            shutil.rmtree(path, ignore_errors=True)
            path.mkdir(parents=True)
            wine.set_dpi(options.dpi)
            folder = Folder(wine, path)
            if options.log:
                app = folder.start(options.log, env=folder.file_manager())
            else:
                app = folder.start(env={
                    "Commander_Path": windows_path(SAMPLES),
                    "Commander_INI": windows_path(SAMPLES / "wincmd.ini")})
            try:
                show(app, options.picture)
            finally:
                folder.end_all()
        finally:
            wine.close()
    finally:
        display.close()


if __name__ == "__main__":
    main()
