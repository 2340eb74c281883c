// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "core/Feathering.h"

#include "tests/core/Views.h"
#include "tests/reference/FeatheringReference.h"
#include "tests/reference/Pictures.h"

#include <gtest/gtest.h>

#include <limits>

using namespace coretest;
using namespace testpictures;

TEST(Feathering, isTheReference)
{
    for (const auto &[width, height] : awkwardExtents())
        for (const auto &[maskWidth, maskHeight] :
             {std::pair(width, height), std::pair(width + 3, height), std::pair(width, height + 5),
              std::pair(std::max(width - 2, 1), std::max(height - 1, 1))})
            for (const auto &bytes :
                 {blobMask(maskWidth, maskHeight, 1), plateauPlane(maskWidth, maskHeight, 2, 2),
                  sparsePlane(maskWidth, maskHeight, 5, 3), constantPlane(maskWidth, maskHeight, 0),
                  constantPlane(maskWidth, maskHeight, 255)})
                for (const int rings :
                     {std::numeric_limits<int>::min(), 0, 1, 2, 3, 4, std::numeric_limits<int>::max()}) {
                    reference::Plane mask(maskWidth, maskHeight);
                    mask.data = bytes;
                    reference::Picture expected = randomArgbPicture(width, height, 4);
                    reference::Picture picture = expected;
                    reference::feather(expected, mask, std::min(rings, 20));
                    ornevo::featherEdge(mutableViewOf(picture), viewOf(mask), rings);
                    ASSERT_EQ(picture, expected) << width << " x " << height << ", " << rings;
                }
}
