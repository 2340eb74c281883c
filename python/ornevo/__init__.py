# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
"""Cut objects out of photographs: numpy arrays in, numpy arrays out.

A few marked pixels tell the object from its background, and a flooding of the
picture finds the outline between them:

>>> import numpy as np
>>> import ornevo
>>> image = np.zeros((32, 32, 3), np.uint8)
>>> image[8:24, 8:24] = (200, 120, 40)
>>> keep = np.zeros((32, 32), bool)
>>> remove = np.zeros((32, 32), bool)
>>> keep[16, 16] = True
>>> remove[2, 2] = True
>>> mask = ornevo.cut_out(image, keep, remove)
>>> mask.shape, mask.dtype, bool(mask[16, 16])
((32, 32), dtype('bool'), True)

Arrays that are handed in may have any strides and are never changed; results
share no memory with them. The functions release the interpreter's lock while
they work, so that threads work side by side. Results are the same to the bit
on every machine.
"""

from ornevo._ornevo import (
    __version__,
    cut_out,
    edge_map,
    feather,
    smooth,
    watershed,
    wave_segment,
)

__all__ = [
    "__version__",
    "cut_out",
    "edge_map",
    "feather",
    "smooth",
    "watershed",
    "wave_segment",
]
