// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "fuzz/Input.h"
#include "segmentation/FrWaveSegment.h"
#include "tests/reference/ImageReferences.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Input input(data, size);
    const int width = 1 + input.below(40);
    const int height = 1 + input.below(40);
    const int threshold = input.byte() % 4 == 0 ? input.integer() : input.below(800) - 10;
    QImage picture = input.picture(width, height, QImage::Format_RGB32);

    QList<QList<int>> expected;
    QList<QList<int>> found;
    require(reference::waveSegment(picture, expected, threshold) ==
                FrWaveSegment(&picture, found, threshold, nullptr, nullptr),
            "the result of FrWaveSegment is that of the reference");
    require(found == expected, "FrWaveSegment finds the reference's regions");
    return 0;
}
