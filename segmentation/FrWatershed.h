// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

class QImage;
class QProgressBar;

/// Grows a Keep and a Remove region from the marked pixels over the whole picture, cheapest pixel first, and
/// tells which pixels ended in the Keep region.
///
/// \param image    the colour picture, four bytes a pixel (blue, green, red, unused), which is not checked;
///                 not changed
/// \param keep     indices (y · width + x) of the Keep seeds, repeats allowed; not changed
/// \param remove   indices of the Remove seeds; a pixel in both lists is a Remove seed; not changed
/// \param result   the indices of the Keep region are appended to it in increasing order
/// \param edges    the edge map, one byte a pixel, width · height bytes (see computeEdgeMap()); not changed
/// \param progress set to the percentage done now and then; may be null
/// \return 0, or -1 when there was nothing to do: a seed list is empty, or no pixel can be flooded.
///         `result` is left as it was then.
///
/// No pointer but `progress` may be null. Throws std::bad_alloc when memory is short; of `result`, only what
/// it held before is of use then.
///
/// A pixel costs what the edge map holds there or, where that is 0, the difference in brightness (0.299 red,
/// 0.587 green, 0.114 blue, truncated) to the pixel it is reached from. A step down is priced with the
/// difference between the pixel it starts from and that one's right-hand neighbour instead. Of pixels of
/// equal cost, the one that was reached first is taken first. A pixel that both regions reach belongs to
/// neither, and the flooding does not go on from it. The one-pixel frame of the picture belongs to no region,
/// and seeds on it are lost; indices off the picture are passed over.
///
/// Takes time linear in the pixels and about 6 bytes a pixel of working storage, which is released on return.
int FrWatershed(QImage *image, QList<int> &keep, QList<int> &remove, QList<int> &result, unsigned char *edges,
                QProgressBar *progress);
