// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

/// \file
/// What help() shows. The first line of each is the signature, which inspect reads; the examples are run as
/// tests.
namespace ornevo::python::docstrings {

inline constexpr const char *edgeMap = R"(edge_map(image, *, progress=None)
--

The edge map of a picture: how much it changes at each pixel.

Parameters
----------
image : ndarray of uint8, shape (H, W), (H, W, 3) or (H, W, 4)
    Grey, RGB or RGBA; alpha is ignored. Never changed.
progress : callable, optional
    Called with the percentage done, an int that rises to 100. An exception
    that it raises ends the work and comes out.

Returns
-------
ndarray of uint8, shape (H, W)
    0 is flat; the strongest edge of the picture is 255.

Raises
------
TypeError
    If an argument is of the wrong type.
ValueError
    If `image` has another shape, or more than 2**31 - 1 pixels.

See Also
--------
cut_out, watershed : what takes an edge map.

Notes
-----
Each colour is smoothed, the low byte of its Sobel magnitude taken, and the
three are averaged. What lies below the mean of the picture becomes 0, the
rest is lifted so that the largest value is 255.

Examples
--------
>>> import numpy as np
>>> import ornevo
>>> image = np.zeros((12, 16), np.uint8)
>>> image[:, 8:] = 20
>>> edges = ornevo.edge_map(image)
>>> print(edges[6])
[  0   0   0   0   0   0 199 207 211 203 187   0   0   0   0   0]
)";

inline constexpr const char *cutOut = R"(cut_out(image, keep, remove, edges=None, *, progress=None)
--

The mask of an object that a few marked pixels tell from its background.

Two regions grow from the marked pixels over the whole picture, cheapest pixel
first, until they meet.

Parameters
----------
image : ndarray of uint8, shape (H, W), (H, W, 3) or (H, W, 4)
    Grey, RGB or RGBA; alpha is ignored. Never changed.
keep : ndarray of bool, shape (H, W)
    True where the object is, in one pixel at least.
remove : ndarray of bool, shape (H, W)
    True where it is not, in one pixel at least. Wins where `keep` is True,
    too.
edges : ndarray of uint8, shape (H, W), optional
    The edge map; by default that of `edge_map`. Worth keeping where one
    picture is cut out again and again with other marks.
progress : callable, optional
    Called with the percentage done, an int that rises to 100. An exception
    that it raises ends the work and comes out.

Returns
-------
ndarray of bool, shape (H, W)
    True where the object is. The lines on which the regions meet and the
    one-pixel frame of the picture are False, and so is all of it when nothing
    can grow, as in a picture smaller than 3 x 3.

Raises
------
TypeError
    If an argument is of the wrong type; masks have to be bool.
ValueError
    If an argument has another shape, if `keep` or `remove` is True nowhere,
    or if the picture has more than 2**31 - 1 pixels.

See Also
--------
watershed : the same for many regions.
feather : soften the border of the mask.

Examples
--------
A blurred disc, marked by one stroke in it and one beside it:

>>> import numpy as np
>>> import ornevo
>>> y, x = np.mgrid[:48, :64]
>>> distance = np.hypot(x - 32, y - 24)
>>> image = np.clip(300 - 12 * distance, 80, 160).astype(np.uint8)
>>> keep = np.zeros(image.shape, bool)
>>> remove = np.zeros(image.shape, bool)
>>> keep[24, 28:36] = True
>>> remove[4, 4:60] = True
>>> mask = ornevo.cut_out(image, keep, remove)
>>> bool(mask[24, 32]), bool(mask[4, 4])
(True, False)
>>> bool(mask[distance < 13].all()), bool(mask[distance > 17].any())
(True, False)
)";

inline constexpr const char *watershed = R"(watershed(image, markers, edges=None, *, progress=None)
--

Regions that grow from any number of markers over the whole picture.

Parameters
----------
image : ndarray of uint8, shape (H, W), (H, W, 3) or (H, W, 4)
    Grey, RGB or RGBA; alpha is ignored. Never changed.
markers : ndarray of any integer type, shape (H, W)
    0 where nothing is marked, else the label of the region that grows from
    there. Labels need not follow each other.
edges : ndarray of uint8, shape (H, W), optional
    The edge map; by default that of `edge_map`. A pixel whose edge is not 0
    is taken last, whatever the value.
progress : callable, optional
    Called with the percentage done, an int that rises to 100. An exception
    that it raises ends the work and comes out.

Returns
-------
ndarray of int32, shape (H, W)
    The label of each pixel; 0 on the watershed lines and on the one-pixel
    frame of the picture, and everywhere when nothing can grow, as in a
    picture smaller than 3 x 3.

Raises
------
TypeError
    If an argument is of the wrong type.
ValueError
    If an argument has another shape, if a label is negative or above
    2**31 - 1, if there is none above 0, or if the picture has more than
    2**31 - 1 pixels.

See Also
--------
cut_out : the same for two regions, with the height of the edges.

Examples
--------
Three stripes, each with a marker:

>>> import numpy as np
>>> import ornevo
>>> image = np.repeat(np.array([10, 90, 200], np.uint8), 5)
>>> image = np.tile(image, (7, 1))
>>> markers = np.zeros(image.shape, np.uint8)
>>> markers[3, [2, 7, 12]] = [4, 9, 5]
>>> labels = ornevo.watershed(image, markers)
>>> np.unique(labels)
array([0, 4, 5, 9], dtype=int32)
>>> print(labels[3])
[0 4 4 4 4 0 9 9 9 9 0 5 5 5 0]
)";

inline constexpr const char *waveSegment = R"(wave_segment(image, threshold, *, progress=None)
--

A partition of the whole picture into regions of similar colour.

Every pixel that no region has taken yet, row by row, starts a region that
grows in waves as long as the step from a pixel to its neighbour stays below
the threshold.

Parameters
----------
image : ndarray of uint8, shape (H, W), (H, W, 3) or (H, W, 4)
    Grey, RGB or RGBA; alpha is ignored. Never changed.
threshold : int
    The step that is too large, 0 to 765. With 0 or less every pixel is a
    region of its own.
progress : callable, optional
    Called with the percentage done, an int that rises to 100. An exception
    that it raises ends the work and comes out.

Returns
-------
ndarray of int32, shape (H, W)
    The regions, numbered 1, 2, ... in the order in which they start. A pixel
    that two of them reach belongs to the first.

Raises
------
TypeError
    If an argument is of the wrong type.
ValueError
    If `image` has another shape, or more than 2**31 - 1 pixels.

Notes
-----
The step is the sum over red, green and blue of (pixel - neighbour) modulo 256.
It is not symmetric: a neighbour that is brighter by a little is far away.

Examples
--------
>>> import numpy as np
>>> import ornevo
>>> image = np.array([[50, 50, 9], [50, 9, 9]], np.uint8)
>>> ornevo.wave_segment(image, 30)
array([[1, 1, 2],
       [1, 2, 2]], dtype=int32)
)";

inline constexpr const char *smooth = R"(smooth(image, size, sigma, *, progress=None)
--

A picture smoothed with a Gaussian, each channel on its own, alpha as well.

Parameters
----------
image : ndarray of uint8, shape (H, W), (H, W, 3) or (H, W, 4)
    Grey, RGB or RGBA. Never changed.
size : int
    The number of taps; an even one acts as the next odd one, and one below 1
    as 1.
sigma : float
    The width of the Gaussian in pixels, at least 0. With 0 nothing changes.
progress : callable, optional
    Called with the percentage done, an int that rises to 100. An exception
    that it raises ends the work and comes out.

Returns
-------
ndarray of uint8, same shape as `image`
    The outer ``size // 2`` pixels are those of `image`.

Raises
------
TypeError
    If an argument is of the wrong type.
ValueError
    If `image` has another shape or more than 2**31 - 1 pixels, or if `sigma`
    is negative or not finite.

Notes
-----
The Gaussian is wider than usual, since its weights are square roots of the
usual ones. Sums are truncated to bytes after each pair of taps, so that a
picture of one colour loses up to ``size // 2`` levels.

Examples
--------
>>> import numpy as np
>>> import ornevo
>>> image = np.zeros((5, 7), np.uint8)
>>> image[:, 3:] = 90
>>> ornevo.smooth(image, 3, 1.0)[2]
array([ 0,  0, 26, 61, 89, 89, 90], dtype=uint8)
)";

inline constexpr const char *feather = R"(feather(image, mask, rings, *, progress=None)
--

A picture whose alpha fades out along the border of a mask.

Parameters
----------
image : ndarray of uint8, shape (H, W), (H, W, 3) or (H, W, 4)
    Grey, RGB or RGBA. Never changed.
mask : ndarray of bool, shape (H, W)
    True where the object is.
rings : int
    How many rings of pixels are walked into the object beyond the first;
    more than 3 make no difference.
progress : callable, optional
    Called with 100 when the work is done.

Returns
-------
ndarray of uint8, shape (H, W, 4)
    The picture as RGBA, opaque where `image` has no alpha. Alpha is 0 on the
    pixels just outside of the mask and on the first ring within, 100 on the
    second and 180 on the third.

Raises
------
TypeError
    If an argument is of the wrong type; the mask has to be bool.
ValueError
    If an argument has another shape, or if the picture has more than
    2**31 - 1 pixels.

Notes
-----
Alpha changes along the border only: what lies further outside stays as it is.
A ring grows downward where the pixel above is in the mask.

Examples
--------
>>> import numpy as np
>>> import ornevo
>>> image = np.full((9, 12, 3), 70, np.uint8)
>>> mask = np.zeros((9, 12), bool)
>>> mask[:, 4:] = True
>>> print(ornevo.feather(image, mask, 3)[4, :, 3])
[255 255 255   0   0 100 180 255 255 255 255 255]
)";

} // namespace ornevo::python::docstrings
