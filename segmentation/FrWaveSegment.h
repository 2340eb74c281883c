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
/// The step from a pixel to a neighbour is the sum over the three colours of (pixel - neighbour) modulo 256,
/// 0 .. 765. It is not symmetric: a neighbour that is brighter by a little is far away. The pixel that starts
/// a region can be reached again within it and is then listed twice; and only a pixel whose index is above
/// the width steps up, so that the first pixel of the second row never does.
///
/// Takes time linear in the pixels and, beside the result, about one byte a pixel and two waves.
int FrWaveSegment(QImage *image, QList<QList<int>> &regions, int threshold, QProgressBar *progress,
                  QStatusBar *status);

/// Whether a mask byte is 0. Public; used by no function here.
bool IsBlack(unsigned char value);

/// Whether a mask byte is 255. Public; used by no function here.
bool is_white_mw(unsigned char value);
