# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
"""Every function against the plain reference, to the bit."""

import numpy as np
import ornevo
import pictures
import plain
import pytest

KINDS = ["noise", "plateaus", "flat"]
every_size = pytest.mark.parametrize("size", pictures.SIZES, ids=str)
every_kind = pytest.mark.parametrize("kind", KINDS)
every_layout = pytest.mark.parametrize("channels", pictures.CHANNELS)


def assert_same(result, expected, dtype):
    assert type(result) is np.ndarray
    assert result.dtype == dtype
    assert result.shape == expected.shape
    assert result.flags.c_contiguous and result.flags.writeable and result.flags.owndata
    np.testing.assert_array_equal(result, expected)


@every_size
@every_layout
@every_kind
def test_edge_map(size, channels, kind):
    image = pictures.picture(size, channels, 1, kind)
    assert_same(ornevo.edge_map(image), plain.edge_map(image), np.uint8)


def seeds(size, number):
    keep, remove = pictures.mask(size, number), pictures.mask(size, number + 1)
    keep.flat[number % keep.size] = True
    remove.flat[-1 - number % keep.size] = True
    return keep, remove


@every_size
@every_layout
@every_kind
def test_cut_out(size, channels, kind):
    image = pictures.picture(size, channels, 2, kind)
    for number in range(4):
        keep, remove = seeds(size, number)
        assert_same(ornevo.cut_out(image, keep, remove), plain.cut_out(image, keep, remove), np.bool_)


@every_size
@every_kind
def test_cut_out_with_edges(size, kind):
    image = pictures.picture(size, 3, 3, kind)
    keep, remove = seeds(size, 5)
    for edges in (pictures.picture(size, 0, 4), pictures.picture(size, 0, 4, "plateaus"), np.zeros(size, np.uint8)):
        assert_same(ornevo.cut_out(image, keep, remove, edges), plain.cut_out(image, keep, remove, edges), np.bool_)


def test_a_pixel_that_is_marked_twice_is_removed():
    image = pictures.picture((12, 12), 3, 5)
    keep = np.zeros((12, 12), bool)
    keep[6, 4:9] = True
    remove = np.zeros((12, 12), bool)
    remove[6, 6:11] = True
    mask = ornevo.cut_out(image, keep, remove)
    assert mask[6, 4:6].all() and not mask[6, 6:11].any()


@pytest.mark.parametrize("size", [(1, 1), (1, 9), (2, 2), (2, 40), (9, 2)])
def test_where_nothing_can_grow(size):
    image = pictures.picture(size, 3, 6)
    everything = np.ones(size, bool)
    assert not ornevo.cut_out(image, everything, everything).any()
    assert not ornevo.watershed(image, everything.astype(int)).any()


def test_seeds_everywhere_leave_nothing_to_grow():
    image = pictures.picture((9, 9), 3, 7)
    keep = np.zeros((9, 9), bool)
    keep[:4] = True
    assert not ornevo.cut_out(image, keep, ~keep).any()
    assert not ornevo.watershed(image, keep + 1).any()


@every_size
@every_layout
@every_kind
def test_watershed(size, channels, kind):
    image = pictures.picture(size, channels, 8, kind)
    random = np.random.default_rng(9)
    for labels in ([1], [1, 2], [2, 7, 100], list(range(1, 13)), [2**31 - 1, 5]):
        markers = np.where(random.random(size) < 0.06, random.choice(labels, size), 0)
        markers.flat[0] = labels[0]
        assert_same(ornevo.watershed(image, markers), plain.watershed(image, markers), np.int32)


@every_size
def test_watershed_with_edges(size):
    image = pictures.picture(size, 3, 10, "plateaus")
    markers = np.where(pictures.mask(size, 11), np.arange(np.prod(size)).reshape(size) % 5, 0)
    markers.flat[0] = 3
    for edges in (pictures.picture(size, 0, 12, "plateaus"), np.zeros(size, np.uint8)):
        assert_same(ornevo.watershed(image, markers, edges), plain.watershed(image, markers, edges), np.int32)


def test_watershed_with_a_label_for_each_pixel():
    image = pictures.picture((30, 40), 3, 13)
    markers = np.random.default_rng(14).permutation(1200).reshape(30, 40) * 1000
    markers[::2] = 0
    assert_same(ornevo.watershed(image, markers), plain.watershed(image, markers), np.int32)


@every_size
@every_layout
@every_kind
def test_wave_segment(size, channels, kind):
    image = pictures.picture(size, channels, 15, kind)
    for threshold in (-1, 0, 1, 100, 330, 766):
        assert_same(ornevo.wave_segment(image, threshold), plain.wave_segment(image, threshold), np.int32)


@every_size
@every_layout
@every_kind
def test_smooth(size, channels, kind):
    image = pictures.picture(size, channels, 16, kind)
    for taps, sigma in ((0, 1), (1, 0.5), (2, 1.5), (3, 1), (5, 0), (5, 1.4), (8, 3), (21, 2.5)):
        assert_same(ornevo.smooth(image, taps, sigma), plain.smooth(image, taps, sigma), np.uint8)


def test_smooth_keeps_the_frame():
    image = pictures.picture((20, 24), 4, 17)
    smoothed = ornevo.smooth(image, 6, 2.0)
    inner = np.zeros((20, 24), bool)
    inner[3:-3, 3:-3] = True
    np.testing.assert_array_equal(smoothed[~inner], image[~inner])
    assert (smoothed[inner] != image[inner]).any()


@every_size
@every_layout
def test_feather(size, channels):
    image = pictures.picture(size, channels, 18)
    for mask in (pictures.disc(size), pictures.mask(size, 19, 0.5), np.ones(size, bool), np.zeros(size, bool)):
        for rings in (-2, 0, 1, 2, 3, 4, 10):
            assert_same(ornevo.feather(image, mask, rings), plain.feather(image, mask, rings), np.uint8)


def test_pictures_without_pixels():
    for size in ((0, 0), (0, 5), (5, 0)):
        for channels in pictures.CHANNELS:
            image = np.zeros(pictures.shape_of(size, channels), np.uint8)
            assert ornevo.edge_map(image).shape == size
            assert ornevo.wave_segment(image, 3).shape == size
            assert ornevo.smooth(image, 3, 1).shape == image.shape
            assert ornevo.feather(image, np.zeros(size, bool), 3).shape == (*size, 4)
