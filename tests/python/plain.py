# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
"""The module's functions put together from the plain reference: slow, and right."""

import numpy as np
import ornevo_reference as reference


def four_bytes(image):
    """A picture as the reference wants it: blue, green, red and alpha."""
    image = np.asarray(image)
    if image.ndim == 2:
        image = np.repeat(image[:, :, None], 3, axis=2)
    alpha = image[:, :, 3] if image.shape[2] == 4 else np.full(image.shape[:2], 255, np.uint8)
    return np.ascontiguousarray(np.dstack([image[:, :, 2], image[:, :, 1], image[:, :, 0], alpha]))


def edge_map(image):
    return reference.edge_map(four_bytes(image))


def cut_out(image, keep, remove, edges=None):
    edges = edge_map(image) if edges is None else edges
    seeds = [np.flatnonzero(keep), np.flatnonzero(remove)]
    return reference.watershed(four_bytes(image), seeds, edges, True) == 1


def watershed(image, markers, edges=None):
    edges = edge_map(image) if edges is None else edges
    names = np.array([label for label in np.unique(markers) if label != 0], np.int32)
    seeds = [np.flatnonzero(markers == label) for label in names]
    regions = reference.watershed(four_bytes(image), seeds, edges, False)
    return np.where(regions > 0, names[np.maximum(regions, 1) - 1], 0).astype(np.int32)


def wave_segment(image, threshold):
    labels = np.zeros(image.shape[:2], np.int32)
    flat = labels.reshape(-1)
    for number, pixels in enumerate(reference.wave_segment(four_bytes(image), threshold), start=1):
        for pixel in pixels:
            if flat[pixel] == 0:
                flat[pixel] = number
    return labels


def smooth(image, size, sigma):
    blurred = reference.blur(four_bytes(image), size, sigma)
    if image.ndim == 2:
        return blurred[:, :, 0]
    return blurred[:, :, [2, 1, 0, 3]][:, :, : image.shape[2]]


def feather(image, mask, rings):
    return reference.feather(four_bytes(image), mask.astype(np.uint8), rings)[:, :, [2, 1, 0, 3]]
