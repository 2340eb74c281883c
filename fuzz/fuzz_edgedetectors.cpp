// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "fuzz/Input.h"
#include "fuzz/SimdTarget.h"
#include "imaging/EdgeDetectors.h"
#include "imaging/EdgeMap.h"
#include "tests/reference/ImageReferences.h"

#include <memory>

namespace {

void compareSobel(reference::Plane &plane)
{
    CFrImage<unsigned char> src{plane.data.data(), plane.width, plane.height, 1, 1};
    for (const int order : {0, 1}) {
        reference::PlaneOf<std::int16_t> found(plane.width, plane.height, 77);
        CFrImage<short> dst{found.data.data(), plane.width, plane.height, 1, 1};
        cvSobel(&src, &dst, order, 1 - order, 3);
        require(found == reference::sobel(plane, order), "cvSobel is the reference to the bit");
    }
    CFrImage<unsigned char> magnitudes;
    FrSobelEdgeDetector(&src, &magnitudes);
    const std::unique_ptr<unsigned char[]> owner(magnitudes.data);
    reference::Plane found(magnitudes.width, magnitudes.height);
    found.data.assign(owner.get(), owner.get() + found.data.size());
    require(found == reference::sobelMagnitude(plane), "FrSobelEdgeDetector is the reference to the byte");
}

void compareColourDifferences(std::vector<std::uint8_t> &picture, int width, int height)
{
    CFrImage<unsigned char> src{picture.data(), width, height, 4, 1};
    reference::PlaneOf<std::uint16_t> expectedWide(width, height, 4711);
    reference::PlaneOf<std::uint16_t> foundWide = expectedWide;
    CFrImage<unsigned short> wide{foundWide.data.data(), width, height, 1, 1};
    reference::colorDifference16(picture, expectedWide);
    FrColorRCEdgeDetector(&src, &wide);
    require(foundWide == expectedWide, "FrColorRCEdgeDetector in 16 bits is the reference");

    reference::Plane expected(width, height, 47);
    reference::Plane found = expected;
    CFrImage<unsigned char> narrow{found.data.data(), width, height, 1, 1};
    reference::colorDifference8(picture, expected);
    FrColorRCEdgeDetector(&src, &narrow);
    require(found == expected, "FrColorRCEdgeDetector in bytes is the reference");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const SimdTarget target(data, size);
    Input input(data, size);
    const int width = 1 + input.below(48);
    const int height = 1 + input.below(48);
    reference::Plane plane(width, height);
    plane.data = input.bytes(plane.data.size());
    compareSobel(plane);
    std::vector<std::uint8_t> packed = input.bytes(plane.data.size() * 4);
    compareColourDifferences(packed, width, height);

    const QImage picture = input.picture(width, height, QImage::Format_RGB32);
    std::vector<std::uint8_t> edges(plane.data.size());
    imaging::computeEdgeMap(picture, edges.data());
    require(edges == reference::edgeMap(picture), "the edge map is the reference to the byte");
    return 0;
}
