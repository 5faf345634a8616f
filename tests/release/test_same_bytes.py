"""A package is the same whoever builds it, where and when: anybody can check that what people download was
made from these sources."""

import subprocess

from build_elsewhere import PROJECT, build_elsewhere


def test_the_packages_are_the_same_bytes_from_another_folder_and_another_user():
    try:
        packages = build_elsewhere(PROJECT / "build" / "elsewhere")
    except subprocess.CalledProcessError as failed:
        raise AssertionError((failed.stdout or b"").decode(errors="replace")[-4000:]) from failed
    assert (packages / "SHA256SUMS").read_text() == (PROJECT / "dist/SHA256SUMS").read_text()
