# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
"""Threads: the interpreter's lock is free while the functions work, and they don't get into each other's way."""

import sys
import threading
import time
from concurrent.futures import ThreadPoolExecutor

import numpy as np
import ornevo
import pictures
import pytest


class Counter(threading.Thread):
    """Notes when it was running."""

    def __init__(self):
        super().__init__(daemon=True)
        self.ticks = []
        self.stopped = False

    def run(self):
        while not self.stopped:
            self.ticks.append(time.perf_counter())
            time.sleep(0)

    def __enter__(self):
        self.start()
        while not self.ticks:
            time.sleep(0.001)
        return self

    def __exit__(self, *_):
        self.stopped = True
        self.join()


@pytest.fixture
def unhurried():
    """Nobody takes the lock away: others run only where it is given up."""
    before = sys.getswitchinterval()
    sys.setswitchinterval(1000)
    yield
    sys.setswitchinterval(before)


@pytest.mark.parametrize("name", pictures.NAMES)
def test_others_run_meanwhile(name, unhurried):
    function = getattr(ornevo, name)
    side = 3000 if name in ("edge_map", "smooth") else 1500
    arguments = pictures.calls((side, side))[name]
    with Counter() as counter:
        for attempt in range(5):  # the other thread may be kept from running by other programs
            begin = time.perf_counter()
            function(**arguments)
            end = time.perf_counter()
            # In the middle, not only as the function begins or ends.
            third = (end - begin) / 3
            if sum(begin + third < tick < end - third for tick in counter.ticks) >= 3:
                return
    pytest.fail(f"nobody ran during {name}()")


def test_the_counter_notices_who_keeps_the_lock(unhurried):
    with Counter() as counter:
        begin = time.perf_counter()
        sum(range(3_000_000))
        end = time.perf_counter()
    assert not any(begin + 0.001 < tick < end for tick in counter.ticks)


@pytest.mark.parametrize("name", pictures.NAMES)
def test_four_threads_get_right_answers(name):
    function = getattr(ornevo, name)
    calls = [pictures.calls((120, 130 + seed), seed=seed)[name] for seed in range(8)]
    expected = [function(**arguments) for arguments in calls]
    with ThreadPoolExecutor(4) as pool:
        for _ in range(5):
            for result, right in zip(pool.map(lambda arguments: function(**arguments), calls), expected):
                np.testing.assert_array_equal(result, right)


def test_four_threads_on_the_same_arrays():
    arguments = pictures.calls((300, 300), channels=4)
    expected = {name: getattr(ornevo, name)(**arguments[name]) for name in pictures.NAMES}
    jobs = pictures.NAMES * 4
    with ThreadPoolExecutor(4) as pool:
        results = pool.map(lambda name: getattr(ornevo, name)(**arguments[name], progress=lambda percent: None), jobs)
        for name, result in zip(jobs, results):
            np.testing.assert_array_equal(result, expected[name])


def test_arrays_that_others_write_to():
    # The results are anybody's guess then, but what they hold is still valid.
    arguments = pictures.calls((200, 200), channels=4)
    arguments["watershed"]["edges"] = arguments["cut_out"]["edges"] = np.zeros((200, 200), np.uint8)
    stopped = threading.Event()

    def scribble():
        random = np.random.default_rng(1)
        while not stopped.is_set():
            for call in arguments.values():
                for value in call.values():
                    if isinstance(value, np.ndarray):
                        value[random.integers(0, 200)] = random.integers(0, 2)
            arguments["cut_out"]["keep"][100, 100] = arguments["cut_out"]["remove"][50, 50] = True
            arguments["watershed"]["markers"][100, 100] = 3

    thread = threading.Thread(target=scribble)
    thread.start()
    try:
        for _ in range(40):
            for name in pictures.NAMES:
                result = getattr(ornevo, name)(**arguments[name])
                if name == "watershed":
                    assert set(np.unique(result)) <= {0, 1, 3, 8}
    finally:
        stopped.set()
        thread.join()
