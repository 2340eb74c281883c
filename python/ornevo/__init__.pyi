# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT

from typing import Any, Callable, Optional, SupportsFloat, SupportsIndex, Union

import numpy as np
import numpy.typing as npt

__version__: str
__all__: list[str]

_Bytes = npt.NDArray[np.uint8]
_Mask = npt.NDArray[np.bool_]
_Labels = npt.NDArray[np.int32]
_Progress = Optional[Callable[[int], object]]

def edge_map(image: _Bytes, *, progress: _Progress = None) -> _Bytes: ...
def cut_out(
    image: _Bytes, keep: _Mask, remove: _Mask, edges: Optional[_Bytes] = None, *, progress: _Progress = None
) -> _Mask: ...
def watershed(
    image: _Bytes, markers: npt.NDArray[np.integer[Any]], edges: Optional[_Bytes] = None, *, progress: _Progress = None
) -> _Labels: ...
def wave_segment(image: _Bytes, threshold: SupportsIndex, *, progress: _Progress = None) -> _Labels: ...
def smooth(
    image: _Bytes, size: SupportsIndex, sigma: Union[SupportsFloat, SupportsIndex], *, progress: _Progress = None
) -> _Bytes: ...
def feather(image: _Bytes, mask: _Mask, rings: SupportsIndex, *, progress: _Progress = None) -> _Bytes: ...
