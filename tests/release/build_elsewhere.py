"""Builds the release once more, from a copy of the project in another folder, as somebody else with another
home, language and time zone. What is there from a run before is used as far as it still holds; ./test.sh
begins with nothing.

    build_elsewhere.py FOLDER
"""

import fcntl
import os
import pathlib
import shutil
import subprocess
import sys

PROJECT = pathlib.Path(__file__).resolve().parents[2]


def sources():
    listed = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"], cwd=PROJECT,
                            stdout=subprocess.PIPE, check=True).stdout.decode()
    return [name for name in listed.split("\0") if name and (PROJECT / name).is_file()]


def copy_project(folder):
    """The project as it is now, also what is not committed yet."""
    if not folder.exists():
        subprocess.run(["git", "clone", "--quiet", "--no-checkout", PROJECT, folder], check=True)
    for name in sources():
        (folder / name).parent.mkdir(parents=True, exist_ok=True)
        shutil.copy2(PROJECT / name, folder / name)


def build_elsewhere(folder):
    """The folder of the packages; a build that fails raises subprocess.CalledProcessError."""
    copy = folder / "a folder with another name" / "and depth"
    home = folder / "home"
    home.mkdir(parents=True, exist_ok=True)
    with open(folder / "lock", "w", encoding="ascii") as lock:
        # It may be going on already.
        fcntl.flock(lock, fcntl.LOCK_EX)
        copy_project(copy)
        cache = os.environ.get("CCACHE_DIR", str(pathlib.Path.home() / ".cache/ccache"))
        somebody = {"PATH": os.environ["PATH"], "HOME": str(home), "USER": "somebody", "LOGNAME": "somebody",
                    "LC_ALL": "de_DE.UTF-8", "TZ": "Asia/Kathmandu", "CCACHE_DIR": cache}
        subprocess.run(["bash", "-c", "umask 077; ./build.sh release"], cwd=copy, env=somebody,
                       stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=True)
    return copy / "dist"


if __name__ == "__main__":
    try:
        build_elsewhere(pathlib.Path(sys.argv[1]).resolve())
    except subprocess.CalledProcessError as failed:
        sys.exit(failed.stdout.decode(errors="replace")[-4000:] if failed.stdout else str(failed))
