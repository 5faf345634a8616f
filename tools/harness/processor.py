"""Which processor a desktop's programs run on."""

import os


def stay_on_processor(number):
    """Keeps the calling thread and all that it starts on one processor, the one with that number
    among those that may be used (beyond the last one it goes on with the first).

    The program, Wine's server and the X server wait for one another at every call. On two
    processors each wait ends with waking the other one up, which a virtual machine can take longer
    for than for the call: a start takes two or three seconds instead of half a second.
    """
    allowed = sorted(os.sched_getaffinity(0))
    os.sched_setaffinity(0, {allowed[number % len(allowed)]})
