# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
"""The progress callable: what it is told, and what it may do."""

import threading

import numpy as np
import ornevo
import pictures
import pytest

every_function = pytest.mark.parametrize("name", pictures.NAMES)
LONG = [name for name in pictures.NAMES if name != "feather"]


def large_call(name):
    return getattr(ornevo, name), pictures.calls((500, 600))[name]


@every_function
def test_percentages_rise_to_a_hundred(name):
    function, arguments = large_call(name)
    told = []
    result = function(**arguments, progress=told.append)
    assert all(type(percent) is int for percent in told)
    assert told == sorted(set(told)) and told[0] >= 0 and told[-1] == 100
    assert len(told) > (10 if name in LONG else 0)
    np.testing.assert_array_equal(result, function(**arguments))
    np.testing.assert_array_equal(result, function(**arguments, progress=None))


@every_function
def test_small_pictures_end_at_a_hundred_as_well(name):
    told = []
    getattr(ornevo, name)(**pictures.calls()[name], progress=told.append)
    assert told[-1] == 100


class Enough(Exception):
    pass


@every_function
@pytest.mark.parametrize("error", [Enough, KeyboardInterrupt, MemoryError, StopIteration, SystemExit])
def test_an_exception_stops_the_work_and_comes_out(name, error):
    function, arguments = large_call(name)
    told = []

    def stop(percent):
        told.append(percent)
        if percent >= 20:
            raise error("enough")

    with pytest.raises(error, match="enough") as caught:
        function(**arguments, progress=stop)
    assert type(caught.value) is error
    assert told[-1] >= 20 and all(percent < 20 for percent in told[:-1])
    if name in LONG:
        assert told[-1] < 60
    np.testing.assert_array_equal(function(**arguments), function(**arguments))


@every_function
def test_it_is_called_on_the_thread_that_called(name):
    function, arguments = large_call(name)
    threads = set()
    function(**arguments, progress=lambda percent: threads.add(threading.get_ident()))
    assert threads == {threading.get_ident()}


@every_function
def test_it_may_call_the_module(name):
    function, arguments = large_call(name)
    small = pictures.calls()[name]
    expected = function(**small)
    inner = []
    result = function(**arguments, progress=lambda percent: inner.append(function(**small)))
    np.testing.assert_array_equal(result, function(**arguments))
    assert inner and all((each == expected).all() for each in inner)


@every_function
def test_an_array_keeps_its_memory_while_it_is_worked_on(name):
    function, arguments = large_call(name)
    if name in ("cut_out", "watershed"):
        arguments["edges"] = ornevo.edge_map(arguments["image"])
    arguments["image"] = pictures.picture((500, 600), 4, 1)
    refused = []

    def resize(percent):
        for value in arguments.values():
            if isinstance(value, np.ndarray):
                try:
                    value.resize((1,), refcheck=False)
                except ValueError:
                    refused.append(percent)

    function(**arguments, progress=resize)
    assert len(refused) > 1
    owned = np.arange(5)
    owned.resize(2, refcheck=False)
    assert owned.shape == (2,)
