// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "core/BlurKernels.h"
#include "core/GaussianBlur.h"
#include "core/GaussianWeights.h"
#include "tests/core/SimdTargets.h"
#include "tests/core/Views.h"
#include "tests/reference/GaussianBlurReference.h"
#include "tests/reference/Pictures.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

using namespace coretest;
using namespace testpictures;
using reference::Picture;
using reference::Plane;

namespace {

void expectReference(const Picture &picture, int size, double sigma)
{
    SCOPED_TRACE(testing::Message() << picture.width << " x " << picture.height << ", size " << size
                                    << ", sigma " << sigma);
    const Picture before = randomArgbPicture(picture.width, picture.height, 77);
    Picture expected = before;
    reference::fourChannelBlur(picture, expected, size, sigma);
    onEveryTarget([&] {
        Picture blurred = before;
        ornevo::blurFourChannels(viewOf(picture), mutableViewOf(blurred), size, sigma);
        ASSERT_EQ(blurred, expected);
    });
}

std::vector<int> progressOf(int width, int height, int size)
{
    const Picture picture = randomArgbPicture(width, height, 58);
    Picture blurred = picture;
    std::vector<int> reported;
    ornevo::blurFourChannels(viewOf(picture), mutableViewOf(blurred), size, 1.0,
                             [&reported](int percent) { reported.push_back(percent); });
    return reported;
}

} // namespace

TEST(FourChannelBlur, isTheReference)
{
    for (const Picture &picture :
         {blobMaskPicture(400, 300, 1), randomArgbPicture(200, 90, 3), blobPicture(320, 200, 4),
          plateauPicture(520, 260, 100, 5, 5), plateauPicture(520, 160, 16, 3, 6),
          stepPicture(200, 60, 101, 0xFF000000U, 0xFFFFFFFFU), constantPicture(150, 70, 0xFFFFFFFFU)})
        for (const int size : {std::numeric_limits<int>::min(), -1, 0, 1, 2, 3, 5, 8, 9, 15, 33, 34, 41})
            expectReference(picture, size, std::max(size, 1) / 5.0);
}

TEST(FourChannelBlur, ofAwkwardSizes)
{
    auto sizes = awkwardExtents();
    for (int width = 1; width < 100; ++width)
        sizes.emplace_back(width, 7 + width % 4);
    for (const auto &[width, height] : sizes) {
        expectReference(randomArgbPicture(width, height, 12), 5, 1.0);
        expectReference(constantPicture(width, height, 0xFF101112U), 5, 1.0);
    }
}

// One level in a frame of another, wide enough for whole blocks to be flat.
TEST(FourChannelBlur, ofEveryGrey)
{
    for (std::uint32_t grey = 0; grey < 256; ++grey) {
        Picture picture = constantPicture(180, 40, (255 - grey) << 16 | grey << 8 | 17U);
        for (int y = 15; y < 25; ++y)
            for (int x = 85; x < 97; ++x)
                picture.at(x, y) = 0xFF000000U | grey * 0x010101U;
        expectReference(picture, 5, 1.0);
    }
}

// Kernels that no setting of the program makes, among them those that change nothing.
TEST(FourChannelBlur, withOddKernels)
{
    for (const double sigma :
         {0.0, -1.0, 1e-3, 0.1, 0.33, 0.5, 0.7, 1.3, 2.9, 50.0, 1e6, 1e200, std::nan("")})
        for (const int size : {1, 3, 4, 7, 13}) {
            expectReference(blobMaskPicture(150, 70, 13), size, sigma);
            expectReference(randomArgbPicture(90, 40, 14), size, sigma);
        }
}

TEST(FourChannelBlur, mayBlurInPlaceAndOffAnyAlignment)
{
    for (const Picture &picture : {blobMaskPicture(153, 71, 13), randomArgbPicture(90, 41, 14)}) {
        Picture expected = picture;
        reference::fourChannelBlur(picture, expected, 7, 1.4);
        onEveryTarget([&] {
            GuardedRows rows(bytesOf(picture).data(), 4 * picture.width, picture.height);
            const ornevo::MutablePictureView view(rows.row(0), picture.width, picture.height, rows.stride());
            ornevo::blurFourChannels(view, view, 7, 1.4);
            ASSERT_EQ(rows.values(), bytesOf(expected));
            ASSERT_TRUE(rows.untouchedAround());
        });
    }
}

TEST(ChannelBlur, isTheReference)
{
    for (const int channels : {1, 2, 3, 4})
        for (const auto &[width, height] : awkwardExtents()) {
            const int rowBytes = width * channels;
            Plane src(rowBytes, height);
            src.data = randomPlane(rowBytes, height, 31);
            Plane expected(rowBytes, height, 77);
            reference::channelBlur(src, expected, channels, 5, 1.0);
            onEveryTarget([&, w = width, h = height] {
                GuardedRows dst(std::vector<std::uint8_t>(src.data.size(), 77).data(), rowBytes, h);
                ornevo::blurChannels({src.data.data(), w, h, rowBytes, channels},
                                     {dst.row(0), w, h, dst.stride(), channels}, 5, 1.0);
                ASSERT_EQ(dst.values(), expected.data);
                ASSERT_TRUE(dst.untouchedAround());
            });
        }
}

// The vertical pass is fast where its weights have integer factors: the usual kernels must.
TEST(FourChannelBlur, integerFactorsOfUsualKernels)
{
    for (const int size : {3, 5, 7, 9, 11})
        EXPECT_TRUE(ornevo::blurkernels::integerFactors(ornevo::gaussianHalfKernel(size, size / 5.0)))
            << size;
}

TEST(FourChannelBlurProgress, takesTheValuesOfBothPassesInTheirOrder)
{
    for (const int height : {5, 6, 50, 1000})
        for (const int size : {1, 3, 5}) {
            const int radius = size / 2;
            std::vector<int> expected;
            for (int y = 0; y < height; ++y)
                expected.push_back(y * 45 / height);
            for (int y = radius; y < height - radius; ++y)
                expected.push_back(45 + y * 45 / height);
            EXPECT_EQ(progressOf(20, height, size), expected) << height << ", " << size;
        }
}

TEST(FourChannelBlurProgress, ofAPictureWithoutInnerPixelsGoesThroughTheFirstPassOnly)
{
    for (const auto &[width, height] :
         {std::pair(1, 1), std::pair(4, 4), std::pair(40, 3), std::pair(3, 40)}) {
        std::vector<int> expected;
        for (int y = 0; y < height; ++y)
            expected.push_back(y * 45 / height);
        EXPECT_EQ(progressOf(width, height, 5), expected);
    }
}

TEST(FourChannelBlurProgress, runsEvenly)
{
    // Half of the values by the time that half of the rows are done: seen by what is written by then.
    const Picture picture = randomArgbPicture(30, 400, 9);
    Picture blurred(30, 400, 0);
    int rowsWrittenAtHalf = -1;
    ornevo::blurFourChannels(viewOf(picture), mutableViewOf(blurred), 5, 1.0, [&](int percent) {
        if (percent >= 45 && rowsWrittenAtHalf < 0)
            rowsWrittenAtHalf = static_cast<int>(std::count_if(blurred.data.begin(), blurred.data.end(),
                                                               [](std::uint32_t p) { return p != 0; }) /
                                                 26);
    });
    EXPECT_NEAR(rowsWrittenAtHalf, 200, 10);
}

TEST(FourChannelBlurProgress, anExceptionComesOut)
{
    const Picture picture = randomArgbPicture(30, 40, 9);
    Picture blurred = picture;
    EXPECT_THROW(ornevo::blurFourChannels(viewOf(picture), mutableViewOf(blurred), 5, 1.0,
                                          [](int percent) {
                                              if (percent > 20)
                                                  throw std::runtime_error("enough");
                                          }),
                 std::runtime_error);
}

TEST(PlaneBlurs, areTheReference)
{
    for (const auto &[width, height] : awkwardExtents()) {
        Plane src(width, height);
        src.data = randomPlane(width, height, 41);
        const auto expectSame = [&, w = width, h = height](auto blur, auto plain) {
            Plane expected(w, h, 5);
            plain(src, expected);
            GuardedRows dst(std::vector<std::uint8_t>(src.data.size(), 5).data(), w, h);
            blur(viewOf(src), ornevo::MutablePlaneView(dst.row(0), w, h, dst.stride()));
            EXPECT_EQ(dst.values(), expected.data);
            EXPECT_TRUE(dst.untouchedAround());
        };
        for (const int size : {-3, 0, 1, 2, 3, 4, 7, 9, 14})
            expectSame([size](auto from, auto to) { ornevo::blurPlane(from, to, 1.4, size); },
                       [size](const Plane &from, Plane &to) { reference::blurAny(from, to, 1.4, size); });
        expectSame([](auto from, auto to) { ornevo::blurPlaneNineTaps(from, to, 2.0); },
                   [](const Plane &from, Plane &to) { reference::blur99(from, to, 2.0); });
        expectSame([](auto from, auto to) { ornevo::blurPlaneFiveByFive(from, to); }, reference::blurFast);
        expectSame([](auto from, auto to) { ornevo::blurPlaneThreeByThree(from, to); }, reference::blur33);
    }
}
