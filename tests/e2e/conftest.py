"""Fixtures of the end-to-end tests. Needs the program folder and the agent: ./test.sh e2e makes both."""

import json
import os
import pathlib
import re
import shutil
import sys

import pytest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))

from harness.display import Display  # noqa: E402
from harness.folder import Folder  # noqa: E402
from harness.processor import stay_on_processor  # noqa: E402
from harness.wine import BITS, PROJECT, WORK, Wine  # noqa: E402

ARTIFACTS = PROJECT / "build" / ("e2e-artifacts" if BITS == "x64" else f"e2e-artifacts-{BITS}")


def pytest_configure(config):
    config.addinivalue_line("markers", "all_processors: run where the programs are not kept to one "
                            "processor (ORDALYN_ALL_PROCESSORS), so that races show")


@pytest.fixture(scope="session")
def display(request):
    # Tests that run at the same time each have a desktop, and a processor, of their own.
    worker = getattr(request.config, "workerinput", {}).get("workerid", "gw0")
    if "ORDALYN_ALL_PROCESSORS" not in os.environ:
        stay_on_processor(int(worker.removeprefix("gw")))
    server = Display()
    yield server
    server.close()


@pytest.fixture(scope="session")
def wine(display):
    prefix = Wine(display)
    yield prefix
    prefix.close()


@pytest.fixture
def folder(wine, request):
    """A folder with the program in it; every program started from it is ended with the test."""
    name = re.sub(r"[^A-Za-z0-9]+", "_", request.node.name)
    path = WORK / f"tests-{wine.folder.name}" / name
    shutil.rmtree(path, ignore_errors=True)
    path.mkdir(parents=True)
    made = Folder(wine, path)
    yield made
    failed = getattr(request.node, "failed", False)
    try:
        if failed:
            keep_artifacts(made, name)
    finally:
        made.end_all()
        if not failed:
            shutil.rmtree(path, ignore_errors=True)


@pytest.fixture
def start(folder):
    """start(arguments, env=..., locale=...) -> App"""
    return folder.start


@pytest.fixture
def show(folder):
    """show(lines of a log) -> App that shows its rows"""
    return folder.show


@pytest.fixture
def pointer_inside(display):
    """The mouse pointer where the main window will be. Elsewhere its shape is not the program's, and
    the test before may have left it there."""
    display.xdotool("mousemove", 400, 300)


@pytest.fixture
def dpi144(wine):
    wine.set_dpi(144)
    yield 144
    wine.set_dpi(96)


@pytest.fixture
def registry(wine):
    """The registry of the test's Wine prefix; the file manager's keys are gone afterwards."""
    keys = [r"HKCU\Software\Ghisler\Total Commander", r"HKLM\Software\Ghisler\Total Commander"]
    yield wine
    for key in keys:
        wine.registry_delete(key)


@pytest.hookimpl(hookwrapper=True)
def pytest_runtest_makereport(item, call):
    outcome = yield
    if outcome.get_result().failed and call.when != "teardown":
        item.failed = True


def keep_artifacts(folder, name):
    """What helps to see why a test failed: the screen, the windows, the settings file."""
    ARTIFACTS.mkdir(parents=True, exist_ok=True)
    folder.wine.display.screenshot(ARTIFACTS / f"{name}.png")
    windows = []
    for app in folder.apps:
        try:
            windows += app.windows()
        except AssertionError as ended:
            windows.append(str(ended))
    (ARTIFACTS / f"{name}.json").write_text(json.dumps(windows, indent=1, ensure_ascii=False))
    if folder.settings_file.exists():
        shutil.copy(folder.settings_file, ARTIFACTS / f"{name}.ini")
