"""What happens to files, as the kernel reports it: how often they are opened, when they change."""

import ctypes
import os
import struct

IN_OPEN = 0x20
CHANGES = 0x2 | 0x8 | 0x40 | 0x80 | 0x100 | 0x200  # modified, closed, renamed, made, deleted
EVENT = struct.Struct("iIII")


def watch(events, *folders):
    """A file descriptor from which such events of files in these folders can be read."""
    libc = ctypes.CDLL(None, use_errno=True)
    made = libc.inotify_init1(os.O_NONBLOCK)
    assert made >= 0, os.strerror(ctypes.get_errno())
    for folder in folders:
        added = libc.inotify_add_watch(made, os.fsencode(folder), events)
        assert added >= 0, os.strerror(ctypes.get_errno())
    return made


def read_events(watched):
    """What has happened since the last question: pairs of an event and a file's name."""
    try:
        data = os.read(watched, 65536)
    except BlockingIOError:
        return
    while data:
        _, mask, _, length = EVENT.unpack_from(data)
        yield mask, os.fsdecode(data[EVENT.size:EVENT.size + length].rstrip(b"\0"))
        data = data[EVENT.size + length:]


class Opens:
    """Counts the openings of files in these folders, by their names, whoever opens them."""

    def __init__(self, *folders):
        self._watch = watch(IN_OPEN, *folders)
        self._counts = {}

    def of(self, name):
        """How often since the last question about this name."""
        while events := list(read_events(self._watch)):
            for mask, opened in events:
                assert mask & IN_OPEN, "events were lost"
                self._counts[opened] = self._counts.get(opened, 0) + 1
        return self._counts.pop(name, 0)

    def close(self):
        os.close(self._watch)
