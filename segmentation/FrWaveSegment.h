// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

class QImage;
class QProgressBar;
class QStatusBar;

/// Splits a whole picture into regions of similar colour: every pixel that no region has taken yet, in row
/// order, starts a region that grows in waves as long as the colour step stays under `threshold`.
///
/// \param image     four bytes a pixel (blue, green, red, unused); not changed
/// \param regions   one list of pixel indices (y · width + x) is appended a region, in the order in which the
///                  regions are started; within a list, in the order in which they were reached
/// \param threshold upper bound of the step, not reached; 0 or less makes every pixel a region of its own
/// \param progress  set to the percentage of rows done; may be null
/// \param status    shows "Segmenting image" and at the end "Segmented image"; may be null
/// \return 0
///
/// What a step is, and which pixel may be listed twice: ornevo::segmentWaves() in core/WaveSegmentation.h,
/// which does the work. Throws std::invalid_argument when the picture has another depth or more than 2^31 - 1
/// pixels, and std::bad_alloc.
int FrWaveSegment(QImage *image, QList<QList<int>> &regions, int threshold, QProgressBar *progress,
                  QStatusBar *status);

/// Whether a mask byte is 0. Public; used by no function here.
bool IsBlack(unsigned char value);

/// Whether a mask byte is 255. Public; used by no function here.
bool is_white_mw(unsigned char value);
