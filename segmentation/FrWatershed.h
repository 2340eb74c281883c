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
/// \param keep     indices (y · width + x) of the Keep seeds, repeats allowed
/// \param remove   indices of the Remove seeds; a pixel in both lists is a Remove seed
/// \param result   the indices of the Keep region are appended to it in increasing order
/// \param edges    the edge map, one byte a pixel, width · height bytes (see computeEdgeMap()); not changed
/// \param progress set to the percentage done now and then; may be null
/// \return 0, or -1 when there was nothing to do: a seed list is empty, or no pixel can be flooded.
///         `result` is left as it was then.
///
/// A pixel costs what the edge map holds there or, where that is 0, the difference in brightness (0.299 red,
/// 0.587 green, 0.114 blue, truncated) to the pixel it is reached from; a step down is priced with the
/// difference to the right-hand neighbour instead. Pixels of equal cost are taken first come, first served. A
/// pixel that both regions reach belongs to neither and is not flooded through. The one-pixel frame of the
/// picture belongs to no region, and seeds on it are lost; indices off the picture are passed over.
///
/// Takes time linear in the pixels and about 6 bytes a pixel of working storage, which is released on return.
int FrWatershed(QImage *image, QList<int> &keep, QList<int> &remove, QList<int> &result, unsigned char *edges,
                QProgressBar *progress);
