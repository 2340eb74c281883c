#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
"""Cut the objects out of all photographs of a folder.

    cut_out_folder.py PHOTOS SCRIBBLES OUTPUT

For a photograph PHOTOS/name.jpg (or .jpeg, .png, .tif), SCRIBBLES/name.png is a layer of the same size, drawn in any
paint program over the photograph and saved without it: green where the object is, red where it is not, transparent or
black elsewhere. The cut-out becomes OUTPUT/name.png. Photographs without scribbles are skipped. It needs ornevo, numpy
and Pillow.
"""

import argparse
import os
import pathlib
import sys
from concurrent.futures import ThreadPoolExecutor

import numpy as np
import ornevo
from PIL import Image

PHOTOS = {".jpg", ".jpeg", ".png", ".tif", ".tiff"}


def read_scribbles(path, shape):
    """What to keep and what to remove, as masks."""
    layer = np.array(Image.open(path).convert("RGBA")).astype(int)
    if layer.shape[:2] != shape:
        raise ValueError(f"the scribbles have another size than the photograph: {layer.shape[:2]}, not {shape}")
    red, green, blue, alpha = np.moveaxis(layer, 2, 0)
    drawn = alpha >= 128
    keep = drawn & (green > 100) & (green > red + 50) & (green > blue + 50)
    remove = drawn & (red > 100) & (red > green + 50) & (red > blue + 50)
    return keep, remove


class ProgressBar:
    """A line on the terminal that shows how much of several works is done."""

    def __init__(self, works):
        self.percent = [0] * works

    def callback(self, work):
        def report(percent):
            self.percent[work] = percent
            self.draw()

        return report

    def draw(self):
        done = sum(self.percent) / max(1, len(self.percent))
        bar = "#" * int(done * 0.4)
        print(f"\r[{bar:<40}] {done:3.0f} %", end="", file=sys.stderr, flush=True)


def cut_out(photo_path, scribbles_path, output_path, progress):
    photo = np.array(Image.open(photo_path).convert("RGB"))
    keep, remove = read_scribbles(scribbles_path, photo.shape[:2])
    mask = ornevo.cut_out(photo, keep, remove, progress=progress)
    transparent = np.dstack([photo, np.where(mask, 255, 0).astype(np.uint8)])
    Image.fromarray(ornevo.feather(transparent, mask, 3)).save(output_path)


def main():
    parser = argparse.ArgumentParser(description="Cut the objects out of all photographs of a folder.")
    parser.add_argument("photos", type=pathlib.Path)
    parser.add_argument("scribbles", type=pathlib.Path)
    parser.add_argument("output", type=pathlib.Path)
    arguments = parser.parse_args()

    photos = sorted(path for path in arguments.photos.iterdir() if path.suffix.lower() in PHOTOS)
    layers = [arguments.scribbles / f"{path.stem}.png" for path in photos]
    pairs = [(photo, layer) for photo, layer in zip(photos, layers) if layer.exists()]
    arguments.output.mkdir(parents=True, exist_ok=True)

    bar = ProgressBar(len(pairs))
    # The functions release the interpreter's lock: threads share the processors.
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        works = [
            pool.submit(cut_out, photo, layer, arguments.output / f"{photo.stem}.png", bar.callback(number))
            for number, (photo, layer) in enumerate(pairs)
        ]
    print(file=sys.stderr)

    failed = [(photo, work.exception()) for (photo, _), work in zip(pairs, works) if work.exception()]
    for photo, error in failed:
        print(f"{photo.name}: {error}", file=sys.stderr)
    skipped = len(photos) - len(pairs)
    print(f"{len(pairs) - len(failed)} cut out, {len(failed)} failed, {skipped} without scribbles")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
