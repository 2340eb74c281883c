# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
"""The examples, as a newcomer runs them."""

import os
import pathlib
import subprocess
import sys

import numpy as np
import pytest
from PIL import Image

EXAMPLES = pathlib.Path(os.environ.get("ORNEVO_EXAMPLES", pathlib.Path(__file__).parents[2] / "examples/python"))
SAMPLES = EXAMPLES.parents[1] / "samples"


def run(name, *arguments, status=0):
    result = subprocess.run(
        [sys.executable, EXAMPLES / name, *map(str, arguments)], capture_output=True, text=True, check=False
    )
    assert result.returncode == status, result.stderr
    return result


def agreement(mask):
    truth = np.array(Image.open(SAMPLES / "still-life-mask.png")) > 127
    return (mask & truth).sum() / (mask | truth).sum()


def test_scribbles_on_the_sample(tmp_path):
    run("cut_out.py", tmp_path / "new")
    mask = np.array(Image.open(tmp_path / "new/mask.png"))
    assert mask.dtype == bool and agreement(mask) > 0.97
    cut_out = np.array(Image.open(tmp_path / "new/cut-out.png"))
    assert cut_out.shape == (1500, 2000, 4)
    np.testing.assert_array_equal(cut_out[:, :, :3], np.array(Image.open(SAMPLES / "still-life.jpg")))
    assert not cut_out[~mask, 3].any() and (cut_out[mask, 3] == 255).mean() > 0.9


@pytest.fixture
def folders(tmp_path):
    """Two photographs with scribbles, one without, one with scribbles of a wrong size."""
    for name in ("photos", "scribbles"):
        (tmp_path / name).mkdir()
    photo = Image.open(SAMPLES / "still-life.jpg").resize((500, 375))
    layer = np.zeros((375, 500, 4), np.uint8)
    layer[190:210, 180:330] = (0, 255, 0, 255)
    layer[20:40, 20:480] = layer[330:350, 20:480] = (255, 0, 0, 255)
    layer[60:70, 60:70] = (0, 255, 0, 10)  # transparent: nothing drawn
    for name, suffix in (("one", "jpg"), ("two", "png"), ("without", "jpg"), ("wrong", "jpg")):
        photo.save(tmp_path / f"photos/{name}.{suffix}")
    for name in ("one", "two"):
        Image.fromarray(layer).save(tmp_path / f"scribbles/{name}.png")
    Image.fromarray(layer[:-1]).save(tmp_path / "scribbles/wrong.png")
    return tmp_path


def test_a_folder_of_photographs(folders):
    output = folders / "output"
    result = run("cut_out_folder.py", folders / "photos", folders / "scribbles", output, status=1)
    assert result.stdout == "2 cut out, 1 failed, 1 without scribbles\n"
    assert "wrong.jpg: the scribbles have another size" in result.stderr
    assert "[" in result.stderr and "%" in result.stderr
    assert sorted(path.name for path in output.iterdir()) == ["one.png", "two.png"]
    alpha = np.array(Image.open(output / "two.png"))[:, :, 3]
    assert alpha[200, 250] == 255 and alpha[30, 30] == 0 and alpha[65, 65] == 0
    (folders / "scribbles/wrong.png").unlink()
    result = run("cut_out_folder.py", folders / "photos", folders / "scribbles", output)
    assert result.stdout == "2 cut out, 0 failed, 2 without scribbles\n" and "100 %" in result.stderr
