"""What belongs to the file manager, to be compared before and after."""

from .wine import windows_path

KEYS = (r"HKEY_CURRENT_USER\Software\Ghisler\Total Commander",
        r"HKEY_LOCAL_MACHINE\Software\Ghisler\Total Commander")


def files_below(path):
    """Name, content and times of every file and folder."""
    found = {}
    for item in [path, *sorted(path.rglob("*"))]:
        about = item.stat()
        content = item.read_bytes() if item.is_file() else None
        found[item.relative_to(path)] = (content, about.st_mtime_ns, about.st_mode, about.st_ino)
    return found


def registry_of(wine):
    """What the registry holds below the file manager's keys."""
    file = wine.folder / "export.reg"
    texts = []
    for key in KEYS:
        wine.run(["reg", "export", key, windows_path(file), "/y"])
        texts.append(file.read_bytes())
        file.unlink()
    return texts
