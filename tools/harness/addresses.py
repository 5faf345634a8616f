"""Where the kernel puts the memory of the programs that a thread starts."""

import ctypes

_AS_IT_IS = 0xFFFFFFFF
_NOT_AT_RANDOM = 0x0040000


def keep_memory_in_place():
    """For the calling thread, and all that it starts from now on.

    Wine's programs need one page at 7FFE0000. They are loaded below it, and the kernel puts their
    heap at random somewhere in the gigabyte above where they end: once in some thousand starts on
    that page, and the program ends before it has begun.
    """
    personality = ctypes.CDLL(None).personality
    personality.argtypes = [ctypes.c_ulong]
    # Where this is forbidden (in some containers) it is left at random.
    personality(personality(_AS_IT_IS) | _NOT_AT_RANDOM)
