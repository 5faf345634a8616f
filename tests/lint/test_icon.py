"""The icon of the program: what it holds, and that it is what tools/make_icon.py draws."""

import pathlib
import struct
import sys

import pytest

PROJECT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(PROJECT / "tools"))
import make_icon  # noqa: E402

ICON = PROJECT / "packaging" / "ordalyn.ico"
SIZES = [16, 20, 24, 32, 40, 48, 64, 256]


def pictures():
    """{size: its data}, as the file's directory says."""
    content = ICON.read_bytes()
    reserved, kind, count = struct.unpack_from("<HHH", content)
    assert (reserved, kind) == (0, 1)
    found = {}
    for number in range(count):
        width, height, colors, _, planes, bits, length, offset = struct.unpack_from(
            "<BBBBHHII", content, 6 + 16 * number)
        assert (width, colors, planes, bits) == (height, 0, 1, 32)
        found[width or 256] = content[offset:offset + length]
    return found


def test_it_has_each_size_with_a_byte_for_each_part_of_a_colour():
    found = pictures()
    assert list(found) == SIZES
    for size, data in found.items():
        if size == 256:
            # Compressed, as Windows wants the largest.
            assert data.startswith(b"\x89PNG\r\n\x1a\n")
            assert struct.unpack_from(">IIBB", data, 16) == (256, 256, 8, 6)
            continue
        header, width, height, planes, bits, packed = struct.unpack_from("<IiiHHI", data)
        assert (header, width, height, planes, bits, packed) == (40, size, 2 * size, 1, 32, 0)
        assert len(data) == 40 + 4 * size * size + (size + 31) // 32 * 4 * size


def test_it_is_what_the_script_draws():
    assert ICON.read_bytes() == make_icon.icon()


@pytest.mark.parametrize("size", SIZES)
def test_level_and_upright_edges_lie_on_pixels(size):
    """Left of the folded corner and the arrow's head, each pixel has one colour."""
    pure = {(0, 0, 0, 0), *((*color, 255) for color in (
        make_icon.PAGE, make_icon.EDGE, make_icon.GREEN, make_icon.BLUE, make_icon.ORANGE, make_icon.RED,
        make_icon.TEXT, make_icon.ARROW))}
    half = [pixel for row in make_icon.draw(size) for pixel in row[:size // 2]]
    assert set(half) <= pure
