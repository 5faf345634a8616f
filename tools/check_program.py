#!/usr/bin/python3
"""Looks into a built Windows program and names everything in it that docs/security.md promises not to be
there. build.sh runs it on each program that it makes.

    tools/check_program.py PROGRAM amd64|x86
"""

import pathlib
import re
import struct
import sys

# Libraries that every Windows from 7 on takes from its own folder, whatever lies beside a program. The
# source is the registry of these versions, where they are the values below HKEY_LOCAL_MACHINE\SYSTEM\
# CurrentControlSet\Control\Session Manager\KnownDLLs. There are more; here are those that the program
# uses or may come to use. comctl32, uxtheme, version and dwmapi are in none of these registries.
KNOWN_LIBRARIES = frozenset(
    "advapi32 comdlg32 gdi32 kernel32 msvcrt ole32 oleaut32 shell32 shlwapi user32".split())
# The functions that every Windows from 7 on has, as far as the program uses them.
FUNCTIONS = "tools/windows7_functions.txt"
WINDOWS = ("XP", "Vista", "7")
# This one comes from the system's side-by-side store when the manifest asks for its version 6, before any
# folder is looked into.
FROM_STORE = "comctl32"

MACHINES = {"amd64": 0x8664, "x86": 0x14C}
IMPORTS, RESOURCES, RELOCATIONS, DELAYED_IMPORTS = 1, 2, 5, 13
RELOCATIONS_STRIPPED = 0x1
HIGH_ENTROPY, DYNAMIC_BASE, NO_EXECUTE = 0x20, 0x40, 0x100
EXECUTE, WRITE = 0x20000000, 0x80000000
VERSION, MANIFEST = 16, 24
FOUR_GIGABYTES = 1 << 32


class Program:
    """The parts of a program file that matter here."""

    def __init__(self, content):
        self.content = content
        start, = struct.unpack_from("<I", content, 0x3C)
        assert content[:2] == b"MZ" and content[start:start + 4] == b"PE\0\0", "no Windows program"
        self.machine, sections, options_size, self.characteristics = struct.unpack_from(
            "<HH12xHH", content, start + 4)
        options = start + 24
        self.wide = struct.unpack_from("<H", content, options)[0] == 0x20B
        self.image_base, = (struct.unpack_from("<Q", content, options + 24) if self.wide else
                            struct.unpack_from("<I", content, options + 28))
        self.flags, = struct.unpack_from("<H", content, options + 70)
        count_at = options + (108 if self.wide else 92)
        count, = struct.unpack_from("<I", content, count_at)
        self.directories = [struct.unpack_from("<II", content, count_at + 4 + 8 * i)
                            for i in range(count)]
        self.sections = [struct.unpack_from("<8sIIII12xI", content, options + options_size + 40 * i)
                         for i in range(sections)]

    def offset(self, address):
        """Where in the file lies what will lie at an address of memory, counted from the image's base."""
        for _, size, start, file_size, place, _ in self.sections:
            if start <= address < start + max(size, file_size):
                return address - start + place
        raise ValueError(f"nothing lies at {address:#x}")

    def text(self, address):
        at = self.offset(address)
        return self.content[at:self.content.index(b"\0", at)].decode("ascii")

    def imports(self):
        """The names of the functions by library, whose name is in small letters and without ".dll"."""
        address, size = self.directories[IMPORTS]
        found = {}
        while size:
            names, _, _, library, places = struct.unpack_from("<5I", self.content, self.offset(address))
            if not library:
                break
            found.setdefault(self.text(library).lower().removesuffix(".dll"), []).extend(
                self.functions(names or places))
            address += 20
        return found

    def functions(self, address):
        """A library's list of functions. One that is asked for by its number is named by it."""
        form, last = ("<Q", 63) if self.wide else ("<I", 31)
        at = self.offset(address)
        while entry := struct.unpack_from(form, self.content, at)[0]:
            yield f"number {entry & 0xFFFF}" if entry >> last else self.text(entry + 2)
            at += struct.calcsize(form)

    def resources(self, kind):
        """The contents of all resources of a kind."""
        address, size = self.directories[RESOURCES]
        if not size:
            return []
        base = self.offset(address)

        def below(at, wanted=None):
            named, numbered = struct.unpack_from("<12xHH", self.content, base + at)
            for i in range(named + numbered):
                name, place = struct.unpack_from("<II", self.content, base + at + 16 + 8 * i)
                if wanted is not None and name != wanted:
                    continue
                if place & 0x80000000:
                    yield from below(place & 0x7FFFFFFF)
                else:
                    data, length = struct.unpack_from("<II", self.content, base + place)
                    start = self.offset(data)
                    yield self.content[start:start + length]
        return list(below(0, kind))


def complaints_of_memory(program):
    """Where the program may lie in memory, and what of it may be run."""
    if not program.flags & DYNAMIC_BASE or program.characteristics & RELOCATIONS_STRIPPED or \
            not program.directories[RELOCATIONS][1]:
        yield "it lies at the same place in memory at each start"
    if program.wide and not (program.flags & HIGH_ENTROPY and program.image_base >= FOUR_GIGABYTES):
        yield "it does not use the whole memory for its place"
    if not program.flags & NO_EXECUTE:
        yield "its data and its stack can be run as code"
    for name, _, _, _, _, rights in program.sections:
        if rights & WRITE and rights & EXECUTE:
            yield f"its section {name.rstrip(bytes(1)).decode()} can be both written and run as code"


def complaints_of_manifest(manifest, architecture):
    if f'processorArchitecture="{architecture}"' not in manifest:
        yield f"it has no manifest for {architecture}"
    levels = re.findall(r"<requestedExecutionLevel\s([^>]*)/>", manifest)
    if len(levels) != 1 or 'level="asInvoker"' not in levels[0] or 'uiAccess="false"' not in levels[0]:
        yield "its manifest does not ask for the rights of who starts it, and no others"
    # Each Windows takes the first one that it knows, and those that know none of the first line the second.
    if ">PerMonitorV2, PerMonitor</dpiAwareness>" not in manifest or ">true/pm</dpiAware>" not in manifest:
        yield "its manifest does not say that it draws for the resolution of each screen"


def complaints_of_libraries(program, manifest):
    if program.directories[DELAYED_IMPORTS][1]:
        yield "it has libraries that are loaded later, which this check cannot follow"
    store = re.search(r'name="Microsoft\.Windows\.Common-Controls" version="6\.[\d.]+"[^>]*'
                      r'publicKeyToken="6595b64144ccf1df"', manifest)
    for library in program.imports():
        if library == FROM_STORE and store:
            continue
        if library not in KNOWN_LIBRARIES:
            yield f"it would take {library} from its own folder if one lay there"


def functions_of_windows7(text):
    """The pairs of library and function in the list, which says of each since which Windows it exists."""
    rows = [row.split() for row in text.splitlines() if row and not row.startswith("#")]
    for library, function, since in rows:
        if since not in WINDOWS:
            raise ValueError(f"{FUNCTIONS}: Windows 7 does not have {function} of {library}")
    return {(library, function) for library, function, _ in rows}


def complaints_of_functions(program):
    """A Windows does not start a program when it lacks one function that the program is linked with."""
    file = pathlib.Path(__file__).resolve().parents[1] / FUNCTIONS
    known = functions_of_windows7(file.read_text(encoding="utf-8"))
    for library, functions in program.imports().items():
        for function in functions:
            if (library, function) not in known:
                yield f"it needs {function} of {library}, which {FUNCTIONS} does not have"


def complaints(content, architecture):
    """Everything that is wrong with a program, a sentence each."""
    program = Program(content)
    manifest = "".join(each.decode("utf-8") for each in program.resources(MANIFEST))
    if program.machine != MACHINES[architecture]:
        yield f"it is no program for {architecture}"
    if not program.resources(VERSION):
        yield "it has no version resource"
    yield from complaints_of_memory(program)
    yield from complaints_of_manifest(manifest, architecture)
    yield from complaints_of_libraries(program, manifest)
    yield from complaints_of_functions(program)


def main():
    file, architecture = sys.argv[1:]
    found = list(complaints(pathlib.Path(file).read_bytes(), architecture))
    for complaint in found:
        print(f"{file}: {complaint}", file=sys.stderr)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
