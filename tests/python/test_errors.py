# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
"""Wrong calls raise TypeError or ValueError, and the message names the one argument at fault."""

import re

import numpy as np
import ornevo
import pictures
import pytest

PARAMETERS = {"image", "keep", "remove", "edges", "markers", "threshold", "size", "sigma", "mask", "rings", "progress"}
every_function = pytest.mark.parametrize("name", pictures.NAMES)


def fault(error, name, **changed):
    """Calls the function with one argument changed, and expects a message about that one only."""
    with pytest.raises(error) as caught:
        getattr(ornevo, name)(**{**pictures.calls()[name], **changed})
    assert type(caught.value) is error
    (at_fault,) = changed
    words = set(re.findall(r"\w+", str(caught.value)))
    assert words & PARAMETERS == {at_fault}
    assert "\n" not in str(caught.value) and "ndarray[" not in str(caught.value)


NO_ARRAYS = [None, 3, 2.5, "picture", b"picture", [[1, 2], [3, 4]], (1,), {}, object(), np.ndarray, np.uint8(3), memoryview(b"12")]


@every_function
@pytest.mark.parametrize("value", NO_ARRAYS, ids=lambda value: type(value).__name__)
def test_no_arrays(name, value):
    for key, good in pictures.calls()[name].items():
        if isinstance(good, np.ndarray):
            fault(TypeError, name, **{key: value})


WRONG_TYPES = {
    "image": ["bool", "i1", "u2", ">u2", "i4", "i8", "f2", "f4", "f8", "c8", "O", "S1", "U1", "V1", "M8[s]", "m8[s]", "u1,u1"],
    "keep": ["u1", "i1", "i8", "f4", "O", "S1", "V1"],
    "remove": ["u1", "i1", "i8", "f4", "O", "S1", "V1"],
    "mask": ["u1", "i1", "i8", "f4", "O", "S1", "V1"],
    "edges": ["bool", "i1", "u2", "i4", "f8", "O", "V1"],
    "markers": ["bool", "f4", "f8", "c8", "O", "S1", "U4", "V4", "M8[s]", "m8[s]"],
}


@every_function
def test_wrong_types_of_elements(name):
    arguments = pictures.calls()[name]
    if name in ("cut_out", "watershed"):
        arguments["edges"] = np.zeros((24, 31), np.uint8)
    for key, good in arguments.items():
        for dtype in WRONG_TYPES.get(key, []):
            fault(TypeError, name, **{key: np.zeros(good.shape, dtype)})


@every_function
@pytest.mark.parametrize("shape", [(), (5,), (24, 31, 1), (24, 31, 2), (24, 31, 5), (24, 31, 0), (1, 24, 31, 3), (0,), (0, 0, 0)], ids=str)
def test_images_of_wrong_shapes(name, shape):
    fault(ValueError, name, image=np.zeros(shape, np.uint8))


@pytest.mark.parametrize("shape", [(), (24,), (31, 24), (24, 30), (24, 32), (23, 31), (24, 31, 1), (24, 31, 3), (0, 0), (1, 1)], ids=str)
def test_planes_of_wrong_shapes(shape):
    fault(ValueError, "cut_out", keep=np.ones(shape, bool))
    fault(ValueError, "cut_out", remove=np.ones(shape, bool))
    fault(ValueError, "cut_out", edges=np.ones(shape, np.uint8))
    fault(ValueError, "watershed", markers=np.ones(shape, int))
    fault(ValueError, "watershed", edges=np.ones(shape, np.uint8))
    fault(ValueError, "feather", mask=np.ones(shape, bool))


def test_nothing_marked():
    nothing = np.zeros((24, 31), bool)
    fault(ValueError, "cut_out", keep=nothing)
    fault(ValueError, "cut_out", remove=nothing)
    fault(ValueError, "watershed", markers=nothing.astype(np.uint8))
    empty = np.zeros((0, 4), bool)
    with pytest.raises(ValueError, match="keep"):
        ornevo.cut_out(np.zeros((0, 4, 3), np.uint8), empty, empty)
    with pytest.raises(ValueError, match="markers"):
        ornevo.watershed(np.zeros((0, 4, 3), np.uint8), empty.astype(int))


def test_labels_that_do_not_fit():
    markers = np.zeros((24, 31), np.int64)
    markers[3, 3] = 1
    for wrong in (-1, -(2**63), 2**31, 2**32 + 1, 2**63 - 1):
        markers[5, 5] = wrong
        fault(ValueError, "watershed", markers=markers)
    fault(ValueError, "watershed", markers=np.full((24, 31), 2**64 - 1, np.uint64))


NO_INTEGERS = [None, 2.0, "3", b"3", [3], np.float64(3), np.array([3, 4]), 3j, object(), float("nan")]


@pytest.mark.parametrize("value", NO_INTEGERS, ids=repr)
def test_no_integers(value):
    fault(TypeError, "wave_segment", threshold=value)
    fault(TypeError, "smooth", size=value)
    fault(TypeError, "feather", rings=value)


@pytest.mark.parametrize("value", [None, "1.5", b"1", [1.0], 1j, object(), np.array([1.0, 2.0])], ids=repr)
def test_no_numbers(value):
    fault(TypeError, "smooth", sigma=value)


@pytest.mark.parametrize("value", [-1, -1e-300, float("nan"), float("inf"), -float("inf"), 10**400, np.float32("inf")], ids=repr)
def test_sigmas_that_are_none(value):
    fault(ValueError, "smooth", sigma=value)


def test_numbers_of_all_kinds():
    image = pictures.picture((20, 20), 3, 1)
    expected = ornevo.smooth(image, 5, 2.0)
    for size in (5, 4, np.int8(5), np.uint64(5), np.array(5)):
        for sigma in (2, 2.0, np.float32(2), np.int16(2), np.array(2.0), True + 1):
            np.testing.assert_array_equal(ornevo.smooth(image, size, sigma), expected)


@pytest.mark.parametrize("number", [2**31 - 1, 2**31, 2**63 - 1, 2**63, 10**40, 99999], ids=str)
def test_absurd_numbers(number):
    image = pictures.picture((20, 24), 3, 1)
    mask = pictures.disc((20, 24))
    np.testing.assert_array_equal(ornevo.smooth(image, number, 1.5), image)
    np.testing.assert_array_equal(ornevo.smooth(image, -number, 1.5), image)
    np.testing.assert_array_equal(ornevo.wave_segment(image, number), ornevo.wave_segment(image, 766))
    np.testing.assert_array_equal(ornevo.wave_segment(image, -number), np.arange(1, 481).reshape(20, 24))
    np.testing.assert_array_equal(ornevo.feather(image, mask, number), ornevo.feather(image, mask, 3))
    np.testing.assert_array_equal(ornevo.feather(image, mask, -number), ornevo.feather(image, mask, 0))


@pytest.mark.parametrize("sigma", [0, 5e-324, 1e-200, 1e-9, 1e9, 1e150, 1.7e308])
def test_absurd_sigmas(sigma):
    image = np.full((20, 24, 3), 100, np.uint8)
    smoothed = ornevo.smooth(image, 5, sigma)
    assert ((smoothed == 100) | ((smoothed >= 97) & (smoothed <= 100))).all()


@pytest.mark.parametrize("size", [(50000, 50000), (2**31, 1), (1, 2**31), (2**40, 2**20), (65536, 32768), (0, 2**33), (2**33, 0)], ids=str)
def test_more_pixels_than_can_be_counted(size):
    for channels in pictures.CHANNELS:
        image = np.lib.stride_tricks.as_strided(
            np.zeros(4, np.uint8), pictures.shape_of(size, channels), (0, 0, 1)[: 3 if channels else 2]
        )
        for name in pictures.NAMES:
            fault(ValueError, name, image=image)


@every_function
def test_missing_arguments(name):
    arguments = pictures.calls()[name]
    for key in arguments:
        rest = {other: value for other, value in arguments.items() if other != key}
        with pytest.raises(TypeError, match=rf"^{name}\(\) missing required argument: '{key}'$"):
            getattr(ornevo, name)(**rest)
    with pytest.raises(TypeError, match="missing required argument: 'image'"):
        getattr(ornevo, name)()


@every_function
def test_surplus_unknown_and_doubled_arguments(name):
    function = getattr(ornevo, name)
    arguments = pictures.calls()[name]
    values = list(arguments.values())
    optional = [None] if name in ("cut_out", "watershed") else []
    function(*values, *optional)
    with pytest.raises(TypeError, match=rf"^{name}\(\) takes at most \d positional"):
        function(*values, *optional, None)
    with pytest.raises(TypeError, match="unexpected keyword argument 'colour'"):
        function(**arguments, colour=1)
    with pytest.raises(TypeError, match="unexpected keyword argument"):
        function(**arguments, **{"\udcff\0": 1})
    with pytest.raises(TypeError, match="strings"):
        function(**arguments, **{1: 2})
    with pytest.raises(TypeError, match="multiple values for argument 'image'"):
        function(*values, image=values[0])


@every_function
def test_by_position_and_by_name(name):
    function = getattr(ornevo, name)
    arguments = pictures.calls()[name]
    expected = function(**arguments)
    values = list(arguments.items())
    for by_position in range(len(values) + 1):
        result = function(*(value for _, value in values[:by_position]), **dict(values[by_position:]))
        np.testing.assert_array_equal(result, expected)


@every_function
@pytest.mark.parametrize("value", [3, "text", [], np.zeros(3)], ids=repr)
def test_progress_that_can_not_be_called(name, value):
    fault(TypeError, name, progress=value)


class Raises:
    """Numbers whose conversion fails in a way of its own."""

    def __index__(self):
        raise RuntimeError("not today")

    __float__ = __index__


def test_errors_of_the_arguments_themselves_come_out():
    for name, key in (("smooth", "size"), ("smooth", "sigma"), ("feather", "rings"), ("wave_segment", "threshold")):
        with pytest.raises(RuntimeError, match="not today"):
            getattr(ornevo, name)(**{**pictures.calls()[name], key: Raises()})
