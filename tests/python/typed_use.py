# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
"""Not run: read by mypy, which has to find these calls right, and those marked with an ignore wrong."""

import numpy as np
import numpy.typing as npt
import ornevo

image: npt.NDArray[np.uint8] = np.zeros((4, 4, 3), np.uint8)
heights: npt.NDArray[np.float32] = np.zeros((4, 4), np.float32)
mask: npt.NDArray[np.bool_] = np.zeros((4, 4), np.bool_)

version: str = ornevo.__version__
edges: npt.NDArray[np.uint8] = ornevo.edge_map(image)
cut: npt.NDArray[np.bool_] = ornevo.cut_out(image, mask, remove=mask, edges=edges, progress=print)
labels: npt.NDArray[np.int32] = ornevo.watershed(image, np.zeros((4, 4), np.int16), None)
waves: npt.NDArray[np.int32] = ornevo.wave_segment(image=image, threshold=3)
smoothed: npt.NDArray[np.uint8] = ornevo.smooth(image, 5, 1.5)
feathered: npt.NDArray[np.uint8] = ornevo.feather(image, mask, rings=3)

ornevo.cut_out(image, mask)  # type: ignore[call-arg]
ornevo.cut_out(image, image, mask)  # type: ignore[arg-type]
ornevo.watershed(image, heights)  # type: ignore[arg-type]
ornevo.smooth(image, 5.5, 1.5)  # type: ignore[arg-type]
ornevo.edge_map(image, None)  # type: ignore[misc]
