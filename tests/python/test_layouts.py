# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
"""Arrays of any strides, alignment and byte order give what a plain copy of them gives, and stay as they were."""

import numpy as np
import ornevo
import pictures
import pytest


def spread(array):
    """In every other place of a larger array, each dimension by itself."""
    large = np.full([3 * n for n in array.shape], 77).astype(array.dtype)
    view = large[tuple(slice(1, None, 3) for _ in array.shape)]
    view[...] = array
    return view


def backwards(array):
    turned = tuple(slice(None, None, -1) for _ in array.shape)
    return np.ascontiguousarray(array[turned])[turned]


def unaligned(array):
    memory = np.zeros(array.nbytes + 1, np.uint8)
    view = memory[1:].view(array.dtype).reshape(array.shape)
    view[...] = array
    return view


def read_only(array):
    copy = array.copy()
    copy.flags.writeable = False
    return copy


def other_byte_order(array):
    return array.astype(array.dtype.newbyteorder())


def in_a_record(array):
    """A field of a packed record, of an odd size, so that most elements are unaligned."""
    records = np.zeros(array.shape, [("before", "u1"), ("value", array.dtype), ("after", "u1", 2)])
    records["value"] = array
    return records["value"]


def of_rows_apart(array):
    wide = np.full((array.shape[0], array.shape[1] + 5, *array.shape[2:]), 99).astype(array.dtype)
    wide[:, : array.shape[1]] = array
    return wide[:, : array.shape[1]]


def upside_down(array):
    return array[::-1].copy()[::-1]


class Labelled(np.ndarray):
    """A subclass with a shape and a dtype that are none."""

    shape = property(lambda self: 1 / 0)
    dtype = property(lambda self: 1 / 0)
    strides = property(lambda self: 1 / 0)
    __array__ = __array_interface__ = property(lambda self: 1 / 0)


def of_a_subclass(array):
    return array.view(Labelled)


LAYOUTS = [
    np.asfortranarray,
    spread,
    backwards,
    unaligned,
    read_only,
    other_byte_order,
    in_a_record,
    of_rows_apart,
    upside_down,
    of_a_subclass,
]
every_layout = pytest.mark.parametrize("layout", LAYOUTS, ids=lambda layout: layout.__name__)


def plain_copy(array):
    return np.array(array.view(np.ndarray), order="C", subok=False)


@every_layout
@pytest.mark.parametrize("channels", pictures.CHANNELS)
@pytest.mark.parametrize("name", pictures.NAMES)
def test_every_array_argument(name, channels, layout):
    function = getattr(ornevo, name)
    arguments = pictures.calls(channels=channels)[name]
    if name in ("cut_out", "watershed"):
        arguments["edges"] = pictures.picture((24, 31), 0, 5)
    expected = function(**arguments)
    for key, value in arguments.items():
        if not isinstance(value, np.ndarray):
            continue
        array = layout(value)
        before = plain_copy(array)
        np.testing.assert_array_equal(function(**{**arguments, key: array}), expected)
        np.testing.assert_array_equal(plain_copy(array), before)


INTEGERS = [order + kind + str(size) for order in "<>" for kind in "iu" for size in (1, 2, 4, 8)]


@pytest.mark.parametrize("dtype", [*INTEGERS, np.intc, np.longlong, np.ulonglong, np.intp])
@every_layout
def test_markers_of_every_integer_type(dtype, layout):
    image = pictures.picture((20, 23), 3, 1)
    markers = np.zeros((20, 23), np.int64)
    markers[4, 4:9], markers[15, 2:20], markers[9, 12] = 100, 7, 127
    expected = ornevo.watershed(image, markers)
    np.testing.assert_array_equal(ornevo.watershed(image, layout(markers.astype(dtype))), expected)


@pytest.mark.parametrize("dtype", INTEGERS)
def test_the_bounds_of_every_integer_type(dtype):
    image = pictures.picture((9, 9), 3, 1)
    markers = np.zeros((9, 9), dtype)
    markers[4, 4] = largest = min(np.iinfo(dtype).max, 2**31 - 1)
    assert set(np.unique(ornevo.watershed(image, markers))) == {0, largest}
    if np.iinfo(dtype).max > 2**31 - 1:
        for beyond in (2**31, np.iinfo(dtype).max):
            markers[4, 4] = beyond
            with pytest.raises(ValueError, match="markers"):
                ornevo.watershed(image, markers)
    if np.iinfo(dtype).min < 0:
        for below in (-1, np.iinfo(dtype).min):
            markers[4, 4] = below
            with pytest.raises(ValueError, match="markers"):
                ornevo.watershed(image, markers)


@pytest.mark.parametrize("width", range(1, 70))
def test_marks_at_any_place_of_a_row(width):
    # Rows are looked through in blocks: none of the places may be lost.
    image = np.zeros((3, width), np.uint8)
    for x in range(width):
        mask = np.zeros((3, width), bool)
        mask[1, x] = True
        markers = mask.astype(np.int16)
        inner = 0 < x < width - 1 and width > 3
        assert ornevo.watershed(image, markers).any() == inner


def test_bytes_of_bool_other_than_one():
    mask = np.zeros((12, 12), np.uint8)
    mask[4:8, 4:8] = 2
    image = pictures.picture((12, 12), 3, 2)
    strange, usual = mask.view(bool), mask > 0
    rest = pictures.mask((12, 12), 3)
    np.testing.assert_array_equal(ornevo.feather(image, strange, 3), ornevo.feather(image, usual, 3))
    np.testing.assert_array_equal(ornevo.cut_out(image, strange, rest), ornevo.cut_out(image, usual, rest))


def test_alpha_is_ignored_where_it_is_no_channel():
    image = pictures.picture((24, 31), 4, 3)
    other = image.copy()
    other[:, :, 3] ^= 0xFF
    for name in ("edge_map", "cut_out", "watershed", "wave_segment"):
        arguments = pictures.calls()[name]
        results = [getattr(ornevo, name)(**{**arguments, "image": each}) for each in (image, other, image[:, :, :3])]
        np.testing.assert_array_equal(results[0], results[1])
        np.testing.assert_array_equal(results[0], results[2])


def test_one_pixel_repeated_without_memory_of_its_own():
    image = np.broadcast_to(np.uint8(90), (30, 40, 3))
    np.testing.assert_array_equal(ornevo.edge_map(image), ornevo.edge_map(image.copy()))
    assert (ornevo.wave_segment(image, 1) == 1).all()
    mask = np.broadcast_to(np.bool_(True), (30, 40))
    assert not ornevo.cut_out(image, mask, mask).any()
