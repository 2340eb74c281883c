// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "segmentation/OvDoFeathering.h"

#include "core/Feathering.h"
#include "imaging/Views.h"

#include <QImage>

void OvDoFeathering(QImage *picture, QBitmap mask, int count)
{
    if (picture->depth() != 32 || mask.isNull())
        return;
    QImage setPixels = mask.toImage().convertToFormat(QImage::Format_Grayscale8);
    setPixels.invertPixels(); // black is set
    ornevo::featherEdge(
        imaging::mutableViewOf(*picture),
        {setPixels.constBits(), setPixels.width(), setPixels.height(), setPixels.bytesPerLine()}, count);
}
