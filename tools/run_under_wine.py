#!/usr/bin/env python3
"""Runs one Windows program under Wine, on a display, a desktop and in a prefix that nobody else uses
at that time, and ends with its exit code. This is how ctest runs the tests of a Windows build.

    run_under_wine.py PROGRAM [ARGUMENT ...]
"""

import pathlib
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))

from harness.display import Display  # noqa: E402
from harness.wine import Wine  # noqa: E402


def main():
    display = Display()
    try:
        wine = Wine(display)
        try:
            wine.show_desktop()
            # Wine gives the shell the lowest byte of what the program ends with.
            return subprocess.run(["wine", *sys.argv[1:]], env=wine.environment(),
                                  stdin=subprocess.DEVNULL, check=False).returncode
        finally:
            wine.close()
    finally:
        display.close()


if __name__ == "__main__":
    sys.exit(main())
