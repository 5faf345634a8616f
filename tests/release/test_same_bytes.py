"""A package is the same whoever builds it, where and when: anybody can check that what people download was
made from these sources."""

import os
import pathlib
import shutil
import subprocess

PROJECT = pathlib.Path(__file__).resolve().parents[2]


def sources():
    listed = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"], cwd=PROJECT,
                            stdout=subprocess.PIPE, check=True).stdout.decode()
    return [name for name in listed.split("\0") if name and (PROJECT / name).is_file()]


def copy_project(folder):
    """The project as it is now, also what is not committed yet."""
    subprocess.run(["git", "clone", "--quiet", "--no-checkout", PROJECT, folder], check=True)
    for name in sources():
        (folder / name).parent.mkdir(parents=True, exist_ok=True)
        shutil.copy2(PROJECT / name, folder / name)


def test_the_packages_are_the_same_bytes_from_another_folder_and_another_user(tmp_path):
    folder = tmp_path / "a folder with another name" / "and depth"
    copy_project(folder)
    home = tmp_path / "home"
    home.mkdir()
    cache = os.environ.get("CCACHE_DIR", str(pathlib.Path.home() / ".cache/ccache"))
    somebody = {"PATH": os.environ["PATH"], "HOME": str(home), "USER": "somebody", "LOGNAME": "somebody",
                "LC_ALL": "de_DE.UTF-8", "TZ": "Asia/Kathmandu", "CCACHE_DIR": cache}
    done = subprocess.run(["bash", "-c", "umask 077; ./build.sh release"], cwd=folder, env=somebody,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
    assert done.returncode == 0, done.stdout.decode(errors="replace")[-4000:]
    assert (folder / "dist/SHA256SUMS").read_text() == (PROJECT / "dist/SHA256SUMS").read_text()
