// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "fuzz/Input.h"
#include "fuzz/SimdTarget.h"
#include "segmentation/FrWatershedMany.h"
#include "tests/reference/ImageReferences.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const SimdTarget target(data, size);
    Input input(data, size);
    const int width = 1 + input.below(40);
    const int height = 1 + input.below(40);
    QImage picture = input.picture(width, height, QImage::Format_RGB32);
    // Beyond 253 regions the labels take another type.
    const int regions = input.byte() % 8 == 0 ? 240 + input.byte() % 30 : input.byte() % 12;
    std::vector<std::vector<int>> seeds(static_cast<std::size_t>(regions));
    for (std::vector<int> &list : seeds)
        for (const int index : input.indices(width * height))
            list.push_back(index);
    std::vector<std::uint8_t> edges = input.bytes(static_cast<std::size_t>(width * height));

    QList<QList<int>> expected(1);
    const int expectedResult = reference::watershedMany(picture, seeds, expected, edges);
    QList<QList<int>> found(1);
    const int result = FrWatershedMany(&picture, seeds, found, edges.data(), nullptr);
    require(result == expectedResult, "the result of FrWatershedMany is that of the reference");
    require(found == expected, "FrWatershedMany finds the reference's regions");
    return 0;
}
