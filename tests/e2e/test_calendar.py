"""The calendar: opened by its key, worked by keys and by the mouse."""

import pytest

from harness.dialogs import open_calendar
from harness.waiting import wait_until

LOG = [
    r"31.12.2023 23:00:00: Copy: C:\a.txt -> D:\a.txt",
    r"04.03.2024 10:00:00: Copy: C:\b.txt -> D:\b.txt",
    r"04.03.2024 10:00:01: Copy(Error: Disk full): C:\c.txt -> D:\c.txt",
    r"12.03.2024 10:00:00: Delete: C:\d.txt",
    r"13.03.2024 10:00:00: Delete: C:\e.txt",
]
# As Wine's English writes them.
FOURTH, TWELFTH = "Monday, March 4, 2024", "Tuesday, March 12, 2024"


@pytest.fixture
def app(show, display):
    # Where the calendar will not be: it would tell the day that the pointer is on.
    display.xdotool("mousemove", 1270, 890)
    return show(LOG)


def test_keys_choose_a_day_and_the_year(app, folder):
    calendar = open_calendar(app)
    assert calendar.day == "Wednesday, March 13, 2024: 1 operation(s)"
    app.keys("Left")
    assert calendar.day == f"{TWELFTH}: 1 operation(s)"
    assert app.main.dates.chosen == "13.03.2024"
    app.keys("Enter")
    assert app.main.dates.chosen == "12.03.2024"
    assert [row[1].strip() for row in app.main.source.rows()] == [r"Delete: C:\d.txt"]
    app.keys("Up", "Left", "Enter")
    assert calendar.day == f"{FOURTH}: 2 operation(s), 1 of them failed"
    assert app.main.dates.chosen == "04.03.2024"
    app.keys("Home", "Enter")
    assert app.main.dates.chosen == "31.12.2023"
    assert not calendar.previous.enabled
    calendar.next.click()
    assert calendar.day == "Tuesday, December 31, 2024: no operations"
    app.keys("Escape")
    wait_until(lambda: not calendar.visible, "the calendar to go")
    app.close()
    assert "CalendarPosition" in folder.settings["Ordalyn"]


def test_pointing_tells_the_day_and_a_click_chooses_it(app):
    calendar = open_calendar(app)
    calendar.point_at_day(2, FOURTH)
    assert calendar.day == f"{FOURTH}: 2 operation(s), 1 of them failed"
    assert calendar.canvas.tool_tip == calendar.day
    app.mouse(("down", "left"), ("up", "left"))
    wait_until(lambda: app.main.dates.chosen == "04.03.2024", "the day to be chosen")
    assert calendar.visible
    app.mouse(("wheel", 120))
    wait_until(lambda: not calendar.previous.enabled, "the year before")


def test_it_follows_the_main_window(app):
    calendar = open_calendar(app)
    app.main.dates.choose("31.12.2023")
    assert calendar.day == "Sunday, December 31, 2023: 1 operation(s)"
    assert not calendar.previous.enabled
