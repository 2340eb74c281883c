# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
"""Nothing is kept, nothing is shared, nothing is lost."""

import gc
import resource
import sys

import numpy as np
import ornevo
import pictures
import pytest


def failing_calls(name):
    good = pictures.calls()[name]

    def stop(percent):
        raise RuntimeError("enough")

    yield {}
    yield {**good, "colour": object()}
    yield {**good, "progress": stop}
    yield {**good, "progress": 5}
    for key in good:
        yield {**good, key: object()}
        yield {**good, key: np.zeros((2, 3, 4, 5), np.uint8)}
        yield {**good, key: np.zeros((24, 31), object)}
        yield {**good, key: np.zeros((24, 31), ">i8")}


def call(name, arguments):
    try:
        getattr(ornevo, name)(**arguments)
    except (TypeError, ValueError, RuntimeError):
        pass


def counts(objects):
    return [sys.getrefcount(each) for each in objects]


@pytest.mark.parametrize("name", pictures.NAMES)
def test_reference_counts_stay(name):
    all_calls = [pictures.calls()[name], pictures.calls(channels=4)[name], *failing_calls(name)]
    objects = [value for arguments in all_calls for value in arguments.values()]
    objects += [value.dtype for value in objects if isinstance(value, np.ndarray)]
    objects += [None, True, False, np.ndarray, TypeError, ValueError, np.dtype(bool), np.dtype("i4"), np.dtype("u1")]
    for arguments in all_calls:
        call(name, arguments)
    gc.collect()
    before = counts(objects)
    blocks = sys.getallocatedblocks()
    for _ in range(300):
        for arguments in all_calls:
            call(name, arguments)
    gc.collect()
    grown = [after - earlier for after, earlier in zip(counts(objects), before)]
    assert max(map(abs, grown)) < 10, grown
    assert abs(sys.getallocatedblocks() - blocks) < 300


def peak_kilobytes():
    with open("/proc/self/statm", encoding="ascii") as file:
        return int(file.read().split()[1]) * resource.getpagesize() // 1024


@pytest.mark.skipif("libasan" in open("/proc/self/maps").read() or "clang_rt.asan" in open("/proc/self/maps").read(),
                    reason="AddressSanitizer keeps what is freed for a while")
@pytest.mark.parametrize("name", pictures.NAMES)
def test_ten_thousand_calls_take_no_memory(name):
    good = pictures.calls((24, 31))[name]
    bad = list(failing_calls(name))
    for _ in range(200):
        call(name, good)
        for arguments in bad:
            call(name, arguments)
    gc.collect()
    before = peak_kilobytes()
    for _ in range(10_000):
        call(name, good)
    for _ in range(10_000 // len(bad)):
        for arguments in bad:
            call(name, arguments)
    gc.collect()
    # 2 kB kept by each call would be 40 MB.
    assert peak_kilobytes() - before < 4000


@pytest.mark.parametrize("channels", pictures.CHANNELS)
@pytest.mark.parametrize("name", pictures.NAMES)
def test_results_share_no_memory(name, channels):
    function = getattr(ornevo, name)
    arguments = pictures.calls(channels=channels)[name]
    given = [value for value in arguments.values() if isinstance(value, np.ndarray)]
    copies = [value.copy() for value in given]
    first, second = function(**arguments), function(**arguments)
    for result in (first, second):
        assert not any(np.shares_memory(result, value) for value in given)
    assert not np.shares_memory(first, second)
    kept = second.copy()
    first[...] = 1
    np.testing.assert_array_equal(second, kept)
    for value, copy in zip(given, copies):
        np.testing.assert_array_equal(value, copy)


@pytest.mark.parametrize("name", pictures.NAMES)
def test_short_memory_is_an_exception(name):
    side = 12000
    image = np.lib.stride_tricks.as_strided(np.zeros(4, np.uint8), (side, side, 3), (0, 0, 1))
    mask = np.lib.stride_tricks.as_strided(np.ones(1, bool), (side, side), (0, 0))
    markers = np.lib.stride_tricks.as_strided(np.ones(1, np.uint8), (side, side), (0, 0))
    others = {
        "edge_map": {},
        "cut_out": dict(keep=mask, remove=mask),
        "watershed": dict(markers=markers),
        "wave_segment": dict(threshold=3),
        "smooth": dict(size=3, sigma=1),
        "feather": dict(mask=mask, rings=3),
    }[name]
    with open("/proc/self/statm", encoding="ascii") as file:
        used = int(file.read().split()[0]) * resource.getpagesize()
    before = resource.getrlimit(resource.RLIMIT_AS)
    if "asan" in open("/proc/self/maps", encoding="ascii").read():
        pytest.skip("AddressSanitizer needs all of the address space for itself")
    resource.setrlimit(resource.RLIMIT_AS, (used + 100_000_000, before[1]))
    try:
        with pytest.raises(MemoryError):
            getattr(ornevo, name)(image, **others)
    finally:
        resource.setrlimit(resource.RLIMIT_AS, before)
