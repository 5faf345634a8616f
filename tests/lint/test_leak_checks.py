"""The native tests fail when a test leaves memory behind."""

import os
import pathlib
import subprocess
import sys

PROJECT = pathlib.Path(__file__).resolve().parents[2]
PROGRAM = r"""
#include <cstdio>
#include <cstdlib>
int main(int argc, char**) {
    void* volatile lost = std::malloc(77);
    if (argc > 5)
        std::free(lost);
    lost = nullptr;
    std::puts("[ RUN      ] A.B\n[       OK ] A.B (0 ms)");
    std::fflush(stdout);
}
"""


def test_a_leak_is_a_failure_whatever_the_environment_says(tmp_path):
    source = tmp_path / "leak.cpp"
    source.write_text(PROGRAM, encoding="ascii")
    program = tmp_path / "leak"
    subprocess.run(["c++", "-fsanitize=address", source, "-o", program], check=True, timeout=120)
    counts = tmp_path / "counts"
    done = subprocess.run([sys.executable, PROJECT / "tools/run_googletest.py", "native", counts],
                          input=f"{program}\n", text=True, check=True, timeout=60,
                          stdout=subprocess.PIPE,
                          env={**os.environ, "ASAN_OPTIONS": "detect_leaks=0"})
    assert "77 byte" in done.stdout
    assert counts.read_text(encoding="ascii").split() == ["1", "1"]
