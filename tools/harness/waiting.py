"""Waiting for a condition, never for a time."""

import time


class Timeout(AssertionError):
    pass


def wait_until(condition, what, timeout=10.0):
    """Calls `condition` until its answer is true and returns that answer; fails after `timeout` s."""
    end = time.monotonic() + timeout
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > end:
            raise Timeout(f"waited {timeout:g} s in vain: {what}")
        time.sleep(0.02)
