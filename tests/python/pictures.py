# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
"""Pictures for the tests: small, random, and different in what makes the algorithms stumble."""

import numpy as np

SIZES = [(1, 1), (1, 7), (7, 1), (2, 2), (3, 3), (3, 9), (7, 8), (8, 7), (17, 33), (40, 31), (64, 65)]
CHANNELS = [0, 3, 4]  # 0 stands for grey, without a dimension of channels


def shape_of(size, channels):
    return (*size, channels) if channels else size


def picture(size, channels, seed, kind="noise"):
    random = np.random.default_rng(seed)
    shape = shape_of(size, channels)
    if kind == "noise":
        return random.integers(0, 256, shape, np.uint8)
    if kind == "plateaus":
        return random.integers(0, 3, shape).astype(np.uint8) * 40
    assert kind == "flat"
    return np.full(shape, random.integers(0, 256), np.uint8)


def mask(size, seed, share=0.05):
    return np.random.default_rng(seed).random(size) < share


def disc(size):
    y, x = np.mgrid[: size[0], : size[1]]
    return np.hypot(y - size[0] / 2, x - size[1] / 2) < min(size) / 3


def calls(size=(24, 31), channels=3, seed=0):
    """One call of each function, as its name and its arguments by name."""
    image = picture(size, channels, seed)
    keep, remove = mask(size, seed + 1), mask(size, seed + 2)
    keep.flat[0] = remove.flat[-1] = True
    markers = np.zeros(size, np.int32)
    markers[keep] = 3
    markers[remove] = 8
    return {
        "edge_map": dict(image=image),
        "cut_out": dict(image=image, keep=keep, remove=remove),
        "watershed": dict(image=image, markers=markers),
        "wave_segment": dict(image=image, threshold=200),
        "smooth": dict(image=image, size=5, sigma=1.2),
        "feather": dict(image=image, mask=disc(size), rings=3),
    }


NAMES = list(calls())
