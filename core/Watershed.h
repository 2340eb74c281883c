// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "core/Export.h"
#include "core/Progress.h"
#include "core/Views.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

/// \file
/// Marker-controlled watershed by ordered queues (S. Beucher, F. Meyer: The morphological approach to
/// segmentation: the watershed transformation, in: Mathematical Morphology in Image Processing, 1993;
/// F. Meyer: Color image segmentation, 1992).
///
/// Regions grow from their seeds over the whole picture, cheapest pixel first, and of pixels of equal cost
/// the one that was reached first. A pixel that several regions reach belongs to none: it lies on a watershed
/// line, and the flooding does not go on from it. The one-pixel frame of the picture belongs to no region,
/// and seeds on it are lost; indices off the picture are ignored.
///
/// What a pixel costs where the edge map is 0 is the difference in brightness (0.299 red, 0.587 green, 0.114
/// blue, truncated) to the pixel it is reached from. A step down costs the difference between the pixel it
/// starts from and that one's right-hand neighbour instead.
///
/// Time is linear in the pixels. Working storage is about 6 bytes a pixel (9 with more than 8 regions), of
/// which the result keeps 1 (4).
namespace ornevo {

/// The regions of a flooded picture, numbered from 1 in the order of their seed lists.
class ORNEVO_CORE_EXPORT Regions
{
public:
    class Labels; ///< the label plane; not part of the interface

    Regions();                                              ///< no regions
    explicit Regions(std::unique_ptr<const Labels> labels); ///< made by the flooding
    Regions(Regions &&other) noexcept;                      ///< moves
    Regions &operator=(Regions &&other) noexcept;           ///< moves
    Regions(const Regions &) = delete;
    Regions &operator=(const Regions &) = delete;
    ~Regions();

    /// Whether there was anything to flood. If not, no region has a pixel, not even its seeds: a seed list
    /// that has to be there is empty, or no pixel next to a seed is free.
    [[nodiscard]] bool flooded() const noexcept { return m_labels != nullptr; }

    /// Number of pixels of each region, the first at [0]; empty when nothing was flooded.
    [[nodiscard]] std::vector<std::size_t> sizes() const;

    /// Writes the indices of the pixels of each region in increasing order: those of region k to
    /// destinations[k - 1], which holds sizes()[k - 1] of them. A null one leaves its region out.
    void listPixels(const std::vector<int *> &destinations) const;

    /// Writes `value` for the pixels of `region` and 0 for all others to a plane of one channel and of the
    /// picture's size. All 0 when nothing was flooded.
    void writeMask(std::size_t region, const MutablePlaneView &mask, std::uint8_t value = 1) const;

    /// Writes the region of each pixel, 0 where there is none, to `width · height` elements. With `names`,
    /// which has one for each region, names[k - 1] stands for region k. All 0 when nothing was flooded.
    void writeLabels(std::int32_t *labels, int width, int height,
                     const std::vector<std::int32_t> &names = {}) const;

private:
    std::unique_ptr<const Labels> m_labels;
};

/// Floods two regions: 1 from `keep`, 2 from `remove`; a pixel in both is a seed of the latter. A pixel costs
/// what the edge map holds there, where that is not 0. Nothing is flooded when one of the lists is empty.
///
/// \param picture  its fourth byte is ignored
/// \param edges    the edge map, of the picture's size, one channel; see computeEdgeMap()
/// \param keep     indices in any order, repeats allowed
/// \param remove   likewise
/// \param progress called once in ten thousand pixels
///
/// Throws std::invalid_argument, also for a picture of more than 2^31 - 1 pixels, and std::bad_alloc.
[[nodiscard]] ORNEVO_CORE_EXPORT Regions floodTwoRegions(const PictureView &picture, const PlaneView &edges,
                                                         const PixelIndices &keep, const PixelIndices &remove,
                                                         const ProgressCallback &progress = {});

/// Floods one region for each seed list; a later list wins a shared pixel. A pixel whose edge map is not 0
/// costs 255, whatever the value. Lists may be empty; nothing is flooded when all are. Otherwise like
/// floodTwoRegions().
[[nodiscard]] ORNEVO_CORE_EXPORT Regions floodRegions(const PictureView &picture, const PlaneView &edges,
                                                      const std::vector<PixelIndices> &seeds,
                                                      const ProgressCallback &progress = {});

} // namespace ornevo
