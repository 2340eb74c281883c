// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "segmentation/FrWaveSegment.h"

#include "core/WaveSegmentation.h"
#include "imaging/Views.h"

#include <QImage>
#include <QProgressBar>
#include <QStatusBar>

using namespace Qt::StringLiterals;

int FrWaveSegment(QImage *image, QList<QList<int>> &regions, int threshold, QProgressBar *progress,
                  QStatusBar *status)
{
    const auto append = [&regions](const ornevo::PixelIndices &pixels) {
        regions.append(QList<int>(pixels.begin(), pixels.end()));
    };
    const auto rowDone = [=](int percent) {
        if (progress != nullptr)
            progress->setValue(percent);
        if (status != nullptr)
            status->showMessage(u"Segmenting image"_s);
    };
    ornevo::segmentWaves(imaging::viewOf(*image), threshold, append, rowDone);
    if (status != nullptr)
        status->showMessage(u"Segmented image"_s);
    return 0;
}

bool IsBlack(unsigned char value)
{
    return value == 0;
}

bool is_white_mw(unsigned char value)
{
    return value == 255;
}
