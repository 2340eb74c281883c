// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "fuzz/Input.h"
#include "fuzz/SimdTarget.h"
#include "segmentation/FrWatershed.h"
#include "tests/reference/ImageReferences.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const SimdTarget target(data, size);
    Input input(data, size);
    const int width = 1 + input.below(40);
    const int height = 1 + input.below(40);
    QImage picture = input.picture(width, height, QImage::Format_RGB32);
    QList<int> keep = input.indices(width * height);
    QList<int> remove = input.indices(width * height);
    std::vector<std::uint8_t> edges = input.bytes(static_cast<std::size_t>(width * height));
    const QImage before = picture.copy();

    QList<int> expected{-5};
    const int expectedResult = reference::watershed(picture, keep, remove, expected, edges);
    QList<int> found{-5};
    const int result = FrWatershed(&picture, keep, remove, found, edges.data(), nullptr);
    require(result == expectedResult, "the result of FrWatershed is that of the reference");
    require(found == expected, "FrWatershed keeps the reference's pixels");
    require(picture == before, "FrWatershed leaves the picture as it is");
    return 0;
}
