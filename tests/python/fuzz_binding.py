# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
"""Calls the module with random arguments, sensible and not, and checks what may come of it.

    fuzz_binding.py SECONDS [SEED]

A call gives a result of the promised type and shape, or raises TypeError, ValueError or MemoryError. Whatever else
comes, and any crash, is a finding; the seed that is printed at the end of each round calls it back.
"""

import sys
import time

import numpy as np
import ornevo

DTYPES = [np.dtype(kind) for kind in "? i1 u1 <i2 >i2 <u2 >u2 <i4 >i4 <u4 >u4 <i8 >i8 <u8 >u8 f2 f4 >f8 c8 O S3 U2 V5 M8[D] m8[s]".split()]
DTYPES.append(np.dtype([("a", "u1"), ("b", ">i4")]))
ODD_NUMBERS = [0, 1, -1, 2, 3, 4, 5, 7, 255, 256, 765, 2**15, 2**31 - 1, 2**31, -(2**31), -(2**31) - 1, 2**63, 10**30, -(10**30)]
ODD_NUMBERS += [0.0, -0.0, 1.5, 1e-320, 1e300, float("nan"), float("inf"), -1.0, True, np.int8(-3), np.uint64(2**64 - 1), 2j]


class Subclass(np.ndarray):
    shape = property(lambda self: None)
    dtype = property(lambda self: None)


class Unwilling:
    def __getattr__(self, name):
        raise RuntimeError(name)

    def __repr__(self):
        raise ValueError("no")

    __str__ = __index__ = __float__ = __call__ = __array__ = __len__ = __repr__


ODD_OBJECTS = [None, [], (), {}, "", "image", b"x", object(), np, int, Unwilling(), memoryview(bytearray(12)), range(3), ...]
ODD_OBJECTS += [np.uint8(1), np.bool_(True), np.ma.ones((4, 4)), np.matrix([[1, 2]]), np.array(7), np.array([[]]), [[True, False]]]


class Choices:
    def __init__(self, seed):
        self.random = np.random.default_rng(seed)

    def below(self, bound):
        return int(self.random.integers(bound))

    def one_in(self, bound):
        return self.below(bound) == 0

    def of(self, options):
        return options[self.below(len(options))]


def shape_for(choose, size, parameter):
    if choose.one_in(40):
        return tuple(choose.below(6) for _ in range(choose.below(6)))
    if choose.one_in(60):
        return tuple(choose.of([0, 1, 2**20, 2**31 - 1, 2**31, 2**33]) for _ in range(2 + choose.below(2)))
    if parameter == "image":
        return size + choose.of([(), (3,), (4,)])
    return size if not choose.one_in(40) else size[::-1]


def memory_for(choose, shape, dtype):
    """An array over random bytes of its own, at any offset, with any strides that stay within."""
    extents, strides, begin = 1, [], 0
    for length in shape[::-1]:
        step = extents * choose.of([1, 1, 1, 2]) + choose.of([0, 0, 0, 1, 3])
        sign = choose.of([1, 1, 1, -1])
        if choose.one_in(12):
            step = 0
        if sign < 0:
            begin += step * (length - 1)
        strides.insert(0, sign * step)
        extents = max(extents, step * (length - 1) + extents)
    strides = [stride * dtype.itemsize for stride in strides]
    offset = choose.of([0, 0, 0, 1, 5])
    count = extents * dtype.itemsize + offset
    # Exactly as long as the array reaches, so that a byte too far is noticed.
    memory = choose.random.integers(0, 256, count, np.uint8)
    if choose.one_in(2):
        memory[choose.random.random(count) < 0.9] = 0
    return np.ndarray(shape, dtype, memory, offset + begin * dtype.itemsize, strides)


def array_for(choose, size, parameter):
    wanted = {"image": "u1", "edges": "u1", "keep": "?", "remove": "?", "mask": "?"}.get(parameter)
    if wanted is None:
        dtype = choose.of([each for each in DTYPES if each.kind in "iu"])
    else:
        dtype = np.dtype(wanted)
    if choose.one_in(30):
        dtype = choose.of(DTYPES)
    shape = shape_for(choose, size, parameter)
    pixels = np.prod(np.array(shape, float))
    if 1e7 < pixels < 2**31:  # would be worked on, for minutes
        shape = (2**31, *shape[1:])
    large = pixels > 1e5
    if dtype.kind == "O" or large and dtype.kind == "V":
        return np.zeros((2, 2), dtype)
    if large:
        return np.lib.stride_tricks.as_strided(np.zeros(1, dtype), shape, (0,) * len(shape))
    if 0 in shape:  # numpy itself refuses what would be too large with ones for the zeros
        array = np.zeros([min(n, 1000) for n in shape], dtype)
    else:
        array = memory_for(choose, shape, dtype)
    if parameter == "markers" and dtype.kind in "iu" and not choose.one_in(10):
        array[...] = np.where(choose.random.random(shape) < 0.05, choose.random.integers(0, choose.of([2, 5, 100]), shape), 0)
    if choose.one_in(8):
        array.flags.writeable = False
    return array.view(Subclass) if choose.one_in(10) else array


class Stop(Exception):
    pass


def progress_for(choose):
    limit = choose.below(150)

    def progress(percent):
        assert type(percent) is int and 0 <= percent <= 100
        if percent >= limit:
            raise Stop

    return choose.of([None, print, progress, progress]) if not choose.one_in(20) else choose.of(ODD_OBJECTS)


PARAMETERS = {
    "edge_map": ["image"],
    "cut_out": ["image", "keep", "remove", "edges"],
    "watershed": ["image", "markers", "edges"],
    "wave_segment": ["image", "threshold"],
    "smooth": ["image", "size", "sigma"],
    "feather": ["image", "mask", "rings"],
}
NUMBERS = {"threshold": 900, "size": 30, "sigma": 9, "rings": 6}
RESULTS = {"edge_map": "u1", "cut_out": "?", "watershed": "i4", "wave_segment": "i4", "smooth": "u1", "feather": "u1"}


def value_for(choose, size, parameter):
    if choose.one_in(50):
        return choose.of(ODD_OBJECTS)
    if parameter in NUMBERS:
        return choose.of(ODD_NUMBERS) if choose.one_in(4) else choose.below(NUMBERS[parameter])
    if parameter == "edges" and choose.one_in(2):
        return None
    try:
        return array_for(choose, size, parameter)
    except ValueError:  # more than numpy makes, even of nothing or of one element
        return np.zeros((1, 1), np.uint8)


def check_result(name, arguments, result):
    image = arguments["image"]
    shape = np.ndarray.view(image, np.ndarray).shape
    expected = {"smooth": shape, "feather": (*shape[:2], 4)}.get(name, shape[:2])
    assert type(result) is np.ndarray and result.dtype == RESULTS[name] and result.shape == expected
    assert result.flags.c_contiguous and result.flags.writeable
    assert not any(isinstance(value, np.ndarray) and np.may_share_memory(result, value) for value in arguments.values())
    if name == "cut_out":
        assert result.view(np.uint8).max(initial=0) <= 1
    if name == "watershed":
        markers = np.ndarray.view(arguments["markers"], np.ndarray)
        assert np.isin(result, markers).all() or set(np.unique(result)) <= {0, *np.unique(markers)}


def round_of(seed):
    """One call; whether it gave a result."""
    choose = Choices(seed)
    name = choose.of(list(PARAMETERS))
    size = (choose.below(20), choose.below(70)) if not choose.one_in(10) else (150, 150)
    arguments = {parameter: value_for(choose, size, parameter) for parameter in PARAMETERS[name]}
    if choose.one_in(3):
        arguments["progress"] = progress_for(choose)
    if choose.one_in(40):
        arguments.pop(choose.of(list(arguments)))
    if choose.one_in(40):
        arguments[choose.of(["", "x", "image\0", "\udc80", "size", "edges"])] = choose.of(ODD_OBJECTS)
    by_position = []
    if choose.one_in(4):
        by_position = [arguments.pop(key) for key in PARAMETERS[name] if key in arguments]
    try:
        result = getattr(ornevo, name)(*by_position, **arguments)
    except (TypeError, ValueError, MemoryError, Stop):
        return False
    except RuntimeError as error:  # of the unwilling object only
        assert any(isinstance(value, Unwilling) for value in [*by_position, *arguments.values()]), error
        return False
    check_result(name, {**dict(zip(PARAMETERS[name], by_position)), **arguments}, result)
    return True


def main():
    seconds = float(sys.argv[1])
    seed = first = int(sys.argv[2]) if len(sys.argv) > 2 else np.random.SeedSequence().entropy % 2**40
    end = time.monotonic() + seconds
    results = 0
    sys.stdout = open("/dev/null", "w", encoding="ascii")  # print() is one of the progress callables
    try:
        while time.monotonic() < end:
            results += round_of(seed)
            seed += 1
    except BaseException:
        print(f"FOUND SOMETHING with seed {seed}: fuzz_binding.py 0.001 {seed}", file=sys.stderr)
        raise
    print(f"{seed - first} calls from seed {first} on, {results} of them with a result; nothing found", file=sys.stderr)
    assert results > (seed - first) // 10, "nearly all calls were refused: nothing was tested"


if __name__ == "__main__":
    main()
