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
    edges = edge_map(image) if edges is None else np.ascontiguousarray(edges)
    mask = np.zeros(keep.shape, bool)
    mask.flat[reference.watershed(four_bytes(image), np.flatnonzero(keep), np.flatnonzero(remove), edges)] = True
    return mask


def watershed(image, markers, edges=None):
    edges = edge_map(image) if edges is None else np.ascontiguousarray(edges)
    names = [label for label in np.unique(markers) if label != 0]
    regions = reference.watershed_many(
        four_bytes(image), [np.flatnonzero(markers == label) for label in names], edges
    )
    labels = np.zeros(markers.shape, np.int32)
    for label, pixels in zip(names, regions):
        labels.flat[pixels] = label
    return labels


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
    levels = np.where(mask, 0, 255).astype(np.uint8)
    mask_picture = np.dstack([levels, levels, levels, np.full_like(levels, 255)])
    return reference.feather(four_bytes(image), mask_picture, rings)[:, :, [2, 1, 0, 3]]
