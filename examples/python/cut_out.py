#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
"""Cut an object out of a photograph with a few scribbles.

    cut_out.py [OUTPUT-FOLDER]

Lays a dozen strokes over samples/still-life.jpg, as a user would, and saves two pictures: the mask, white where the
teapot is, and the teapot with nothing around it. It needs ornevo, numpy and Pillow.
"""

import pathlib
import sys

import numpy as np
import ornevo
from PIL import Image, ImageDraw

SAMPLES = pathlib.Path(__file__).resolve().parents[2] / "samples"


def read_strokes(path, size):
    """Two masks of the picture's size, (width, height): what to keep and what to remove.

    The file has a line for each stroke: "keep" or "remove", and from which x y to which x y it goes.
    """
    layers = {"keep": Image.new("1", size), "remove": Image.new("1", size)}
    for line in path.read_text(encoding="utf-8").splitlines():
        words = line.split("#")[0].split()
        if words:
            points = [int(word) for word in words[1:]]
            ImageDraw.Draw(layers[words[0]]).line(points, fill=1, width=10)
    return np.array(layers["keep"]), np.array(layers["remove"])


def main():
    folder = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ".")
    folder.mkdir(parents=True, exist_ok=True)
    photo = np.array(Image.open(SAMPLES / "still-life.jpg").convert("RGB"))
    keep, remove = read_strokes(SAMPLES / "still-life-strokes.txt", photo.shape[1::-1])

    mask = ornevo.cut_out(photo, keep, remove)

    transparent = np.dstack([photo, np.where(mask, 255, 0).astype(np.uint8)])
    Image.fromarray(mask).save(folder / "mask.png")
    Image.fromarray(ornevo.feather(transparent, mask, 3)).save(folder / "cut-out.png")
    print(f"{mask.sum()} of {mask.size} pixels are the object; see {folder / 'cut-out.png'}")


if __name__ == "__main__":
    main()
