// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

#include <vector>

class QImage;
class QProgressBar;

/// FrWatershed() for any number of regions, with one difference in cost: a pixel whose edge map value is not
/// 0 always costs 255, whatever that value is.
///
/// \param image    the colour picture, four bytes a pixel; not changed
/// \param seeds    seeds[k - 1] holds the pixel indices of region k, k = 1 .. N; a later list wins a
///                 shared pixel
/// \param result   should hold exactly one list on entry, which receives nothing: N lists are appended, and
///                 the pixels of region k are appended to the list at position k, in increasing order
/// \param edges    the edge map, width · height bytes; not changed
/// \param progress set to the percentage done now and then; may be null
/// \return N, or -1 when there was nothing to do: no seed lists, or no pixel that can be flooded.
///         `result` is left as it was then.
///
/// A `result` of another length is the caller's error. When it is empty, there is no position N for the last
/// region, and its pixels are dropped (debug builds stop there); when it is longer, the pixels go to its
/// older lists from position 1 on, and as many of the new ones stay empty. No pointer but `progress` may be
/// null. Throws std::invalid_argument as FrWatershed() does, and std::bad_alloc when memory is short;
/// `result` is of no use then. Without Qt: ornevo::floodRegions() in core/Watershed.h.
int FrWatershedMany(QImage *image, std::vector<std::vector<int>> seeds, QList<QList<int>> &result,
                    unsigned char *edges, QProgressBar *progress);
