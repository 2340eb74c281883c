// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

class QImage;
class QProgressBar;

/// Grows a Keep and a Remove region from the marked pixels over the whole picture, cheapest pixel first, and
/// tells which pixels ended in the Keep region.
///
/// \param image    the colour picture, four bytes a pixel (blue, green, red, unused); not changed
/// \param keep     indices (y · width + x) of the Keep seeds, repeats allowed; not changed
/// \param remove   indices of the Remove seeds; a pixel in both lists is a Remove seed; not changed
/// \param result   the indices of the Keep region are appended to it in increasing order
/// \param edges    the edge map, one byte a pixel, width · height bytes (see computeEdgeMap()); not changed
/// \param progress set to the percentage done now and then; may be null
/// \return 0, or -1 when there was nothing to do: a seed list is empty, or no pixel can be flooded.
///         `result` is left as it was then.
///
/// No pointer but `progress` may be null. Throws std::invalid_argument when the picture has another depth or
/// more than 2^31 - 1 pixels, or `edges` is null, and std::bad_alloc when memory is short; of `result`, only
/// what it held before is of use then.
///
/// The rules of the flooding stand in core/Watershed.h, whose ornevo::floodTwoRegions() does the work. Takes
/// time linear in the pixels and about 6 bytes a pixel of working storage, which is released on return.
int FrWatershed(QImage *image, QList<int> &keep, QList<int> &remove, QList<int> &result, unsigned char *edges,
                QProgressBar *progress);
