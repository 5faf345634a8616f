#!/usr/bin/python3
"""Packs what build.sh has built into what people download: two archives, the setup program and their
check sums. The same program folders and the same moment give the same bytes, wherever and whenever.

    tools/make_release.py DIST SECONDS

DIST has x64/ and x86/ and gets the packages. SECONDS since 1970 is the time of every file in them.
"""

import hashlib
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time
import zipfile

PROJECT = pathlib.Path(__file__).resolve().parents[1]
PACKAGING = PROJECT / "packaging"
ARCHITECTURES = ("x64", "x86")
PROGRAM = "Ordalyn.exe"


def version():
    """That of the project, as everywhere."""
    found = re.search(r"^project\(Ordalyn VERSION (\S+)", (PROJECT / "CMakeLists.txt").read_text("utf-8"), re.M)
    return found.group(1)


def shipped(folder):
    """What belongs to the program in its folder; settings that somebody made there do not."""
    files = [folder / PROGRAM, folder / "Readme.txt", *folder.glob("*.chm"), *folder.glob("Languages/*.lng")]
    return sorted(file.relative_to(folder) for file in files)


def stage(dist, folder, seconds):
    """The files as the setup program takes them: what differs by architecture, and what does not."""
    common = [file for file in shipped(dist / "x64") if str(file) != PROGRAM]
    assert common == [file for file in shipped(dist / "x86") if str(file) != PROGRAM]
    for file in common:
        assert (dist / "x64" / file).read_bytes() == (dist / "x86" / file).read_bytes(), file
    wanted = [(dist / "x64" / file, folder / "both" / file) for file in common]
    wanted += [(dist / bits / PROGRAM, folder / bits / PROGRAM) for bits in ARCHITECTURES]
    for source, target in wanted:
        target.parent.mkdir(parents=True, exist_ok=True)
        shutil.copyfile(source, target)
        os.utime(target, (seconds, seconds))
    return common


def make_archive(target, folder, seconds):
    with zipfile.ZipFile(target, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as archive:
        for file in shipped(folder):
            entry = zipfile.ZipInfo(f"Ordalyn/{file.as_posix()}", time.gmtime(seconds)[:6])
            entry.compress_type = zipfile.ZIP_DEFLATED
            # As files of MS-DOS: the rights of this machine's user are nobody's business.
            entry.create_system = 0
            archive.writestr(entry, (folder / file).read_bytes())


def make_setup(target, dist, seconds):
    with tempfile.TemporaryDirectory() as scratch:
        folder = pathlib.Path(scratch)
        common = stage(dist, folder, seconds)
        names = [PROGRAM, *(str(file).replace("/", "\\") for file in common)]
        (folder / "remove.nsh").write_text("".join(f'Delete "$INSTDIR\\{name}"\n' for name in names), "utf-8")
        size = sum(file.stat().st_size for part in ("both", "x64") for file in (folder / part).rglob("*")
                   if file.is_file())
        defines = {"VERSION": version(), "OUT_FILE": target.resolve(), "ICON": PACKAGING / "ordalyn.ico",
                   "PICTURE": PACKAGING / "setup.bmp",
                   "TEXTS": PACKAGING / "setup_texts.nsh", "REMOVE_FILES": folder / "remove.nsh",
                   "KILOBYTES": size // 1024}
        done = subprocess.run(
            ["makensis", "-V2", "-WX", "-NOCD", "-INPUTCHARSET", "UTF8",
             *(f"-D{name}={value}" for name, value in defines.items()), PACKAGING / "setup.nsi"],
            cwd=folder, env={**os.environ, "SOURCE_DATE_EPOCH": str(seconds)},
            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
        if done.returncode != 0:
            sys.exit(f"make_release.py: the setup program cannot be made\n{done.stdout.decode(errors='replace')}")


def main():
    dist, seconds = pathlib.Path(sys.argv[1]), int(sys.argv[2])
    made = []
    for bits in ARCHITECTURES:
        made.append(dist / f"ordalyn-{version()}-{bits}.zip")
        make_archive(made[-1], dist / bits, seconds)
    made.append(dist / f"ordalyn-{version()}-setup.exe")
    make_setup(made[-1], dist, seconds)
    sums = dist / "SHA256SUMS"
    sums.write_text("".join(f"{hashlib.sha256(file.read_bytes()).hexdigest()}  {file.name}\n" for file in made),
                    "utf-8")
    for file in [*made, sums]:
        print(f"{file}: {file.stat().st_size} bytes")


if __name__ == "__main__":
    main()
