# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
"""The module as people meet it: its names, its help, what it loads."""

import inspect
import multiprocessing
import pickle
import pydoc
import re
import subprocess
import sys

import numpy as np
import ornevo
import pictures
import pytest

every_function = pytest.mark.parametrize("name", pictures.NAMES)


def test_names():
    assert re.fullmatch(r"\d+\.\d+\.\d+", ornevo.__version__)
    assert set(ornevo.__all__) == {"__version__", *pictures.NAMES}


def test_it_loads_no_qt():
    program = "import ornevo, numpy; ornevo.edge_map(numpy.zeros((9, 9), numpy.uint8)); print(open('/proc/self/maps').read())"
    maps = subprocess.run([sys.executable, "-c", program], capture_output=True, text=True, check=True).stdout
    assert "_ornevo" in maps
    assert not re.search(r"libQt|libX11|libGL|libicu", maps)


@every_function
def test_signatures_are_told(name):
    function = getattr(ornevo, name)
    assert function.__name__ == name and function.__module__ == "ornevo"
    signature = inspect.signature(function)
    arguments = pictures.calls()[name]
    assert list(signature.parameters)[: len(arguments)] == list(arguments)
    signature.bind(**arguments, progress=None)
    assert signature.parameters["progress"].default is None
    assert signature.parameters["progress"].kind is inspect.Parameter.KEYWORD_ONLY
    assert str(signature) in pydoc.plain(pydoc.render_doc(function))


@every_function
def test_docstrings_have_the_usual_sections(name):
    text = inspect.getdoc(getattr(ornevo, name))
    sections = re.findall(r"^([A-Z][A-Za-z ]+)\n-{3,}$", text, re.MULTILINE)
    assert [section for section in sections if section not in ("See Also", "Notes")] == [
        "Parameters",
        "Returns",
        "Raises",
        "Examples",
    ]
    for parameter in inspect.signature(getattr(ornevo, name)).parameters:
        assert re.search(rf"^{parameter} : ", text, re.MULTILINE)


@every_function
def test_functions_can_be_pickled(name):
    function = getattr(ornevo, name)
    assert pickle.loads(pickle.dumps(function)) is function
    assert repr(function) == f"<built-in function {name}>"


def test_processes_share_the_work():
    images = [pictures.picture((20, 30), 3, seed) for seed in range(6)]
    with multiprocessing.get_context("spawn").Pool(2) as pool:
        for image, edges in zip(images, pool.map(ornevo.edge_map, images)):
            np.testing.assert_array_equal(edges, ornevo.edge_map(image))


def test_it_can_be_loaded_again():
    program = "import sys, ornevo; del sys.modules['ornevo']; import ornevo; print(ornevo.__version__)"
    assert subprocess.run([sys.executable, "-c", program], capture_output=True, text=True, check=True).stdout.strip() == (
        ornevo.__version__
    )
