#!/usr/bin/env python3
"""Runs clang-tidy over src/ and adds the counts of clean and of other files to a file.

A file is looked at again only when it, a header of the project that it includes, or the checks
have changed; what was found clean is remembered in build/tidy.

    tidy.py COUNTS [FILE ...]
"""

import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import subprocess
import sys

PROJECT = pathlib.Path(__file__).resolve().parents[1]
CLEAN = PROJECT / "build" / "tidy"
INCLUDE = re.compile(rb'^\s*#\s*include\s*"([^"]+)"', re.M)

# clang can read the cross compiler's headers when it is told where they are.
MINGW_HEADERS = pathlib.Path("/usr/lib/gcc/x86_64-w64-mingw32/12-posix/include/c++")
FOR_WINDOWS = ["--target=x86_64-w64-mingw32", "-nostdinc++", "-Wno-unknown-pragmas",
               *[f"-isystem{path}" for path in (
                   MINGW_HEADERS, MINGW_HEADERS / "x86_64-w64-mingw32", MINGW_HEADERS / "backward",
                   "/usr/share/mingw-w64/include")]]


def commands(preset):
    """How each file is compiled in a build folder: file -> (folder, flags that matter)."""
    found = {}
    path = PROJECT / "build" / preset / "compile_commands.json"
    for entry in json.loads(path.read_text()):
        words = entry["command"].split()
        flags = [w for w in words[1:] if w.startswith(("-I", "-D", "-std", "-isystem"))]
        # "-isystem PATH" comes in two words.
        for i, word in enumerate(words):
            if word == "-isystem":
                flags += ["-isystem" + words[i + 1]]
        for file in compiled_with(pathlib.Path(entry["file"])):
            found[file] = [f for f in flags if f != "-isystem"]
    return found


def compiled_with(file):
    """The file itself, or those that a generated file of the build folder puts together."""
    if file.is_relative_to(PROJECT / "build") and "Unity" in file.parts:
        return [pathlib.Path(name.decode()) for name in INCLUDE.findall(file.read_bytes())]
    return [file]


def included(file, seen):
    """The project's own headers that a file includes, directly or not."""
    if file in seen:
        return
    seen.add(file)
    for header in INCLUDE.findall(file.read_bytes()):
        for folder in (file.parent, PROJECT / "src"):
            path = (folder / header.decode()).resolve()
            if path.is_file():
                included(path, seen)
                break


def batches(work):
    """The files of a folder that are compiled alike, together: most of the time goes into what they
    all include. Forms stay alone, because their design tables bear the same names."""
    found = {}
    for file, flags in work.items():
        alone = file.name if file.name.startswith("frm") else ""
        found.setdefault((file.parent, alone, tuple(flags)), []).append(file)
    return [(files, list(flags)) for (_, _, flags), files in found.items()]


def fingerprint(batch, flags):
    files = set()
    for file in batch:
        included(file, files)
    digest = hashlib.sha256("\0".join(flags).encode())
    digest.update((PROJECT / ".clang-tidy").read_bytes())
    for one in sorted(files):
        digest.update(str(one).encode())
        digest.update(one.read_bytes())
    return digest.hexdigest()


def check(batch, flags):
    """An empty text: clean."""
    mark = CLEAN / fingerprint(batch, flags)
    if mark.exists():
        return ""
    together = mark.with_suffix(".cpp")
    together.write_text("".join(f'#include "{file}"\n' for file in batch))
    done = subprocess.run(["clang-tidy-14", "--quiet", "--checks=-bugprone-suspicious-include",
                           str(together), "--", "-x", "c++", *flags],
                          stdout=subprocess.PIPE, stderr=subprocess.PIPE, cwd=PROJECT, check=False)
    if done.returncode == 0:
        mark.touch()
        return ""
    said = (done.stdout + done.stderr).decode("utf-8", "replace")
    return re.sub(r"^\d+ warnings? .*generated\.\n", "", said, flags=re.M)


def main():
    counts, only = sys.argv[1], [pathlib.Path(name).resolve() for name in sys.argv[2:]]
    CLEAN.mkdir(parents=True, exist_ok=True)
    native = commands("native-debug")
    windows = {file: flags + FOR_WINDOWS for file, flags in commands("mingw-x64").items()}
    work = {file: flags for file, flags in {**windows, **native}.items()
            if file.is_relative_to(PROJECT / "src") and file.suffix == ".cpp" and file.exists()
            and (not only or file in only)}
    clean = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        together = sorted(batches(work), key=lambda one: -len(one[0]))
        for (files, _), said in zip(together, pool.map(lambda one: check(*one), together)):
            named = [file for file in files if str(file) in said]
            if said:
                print(f"{files[0].parent.relative_to(PROJECT)}:\n{said}", flush=True)
            clean += len(files) - (len(named) or (len(files) if said else 0))
    print(f"clang-tidy: {clean} of {len(work)} files are clean")
    with open(counts, "a", encoding="ascii") as out:
        print(clean, len(work) - clean, file=out)


if __name__ == "__main__":
    main()
