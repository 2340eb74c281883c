// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// What every machine, compiler and instruction set has to give, to the bit. The hashes are of generated
// pictures; a change of one of them is a change of what users get.

#include "core/EdgeMap.h"
#include "core/Feathering.h"
#include "core/GaussianBlur.h"
#include "core/Watershed.h"
#include "core/WaveSegmentation.h"
#include "tests/core/SimdTargets.h"
#include "tests/core/Views.h"
#include "tests/reference/Pictures.h"

using namespace coretest;
using namespace testpictures;
using reference::Picture;

namespace {

/// FNV-1a, over the bytes of the values from the lowest on.
class Hash
{
public:
    template <typename Value> Hash &operator<<(const std::vector<Value> &values)
    {
        for (const Value value : values)
            for (std::size_t byte = 0; byte < sizeof(Value); ++byte)
                m_state =
                    (m_state ^ (static_cast<std::uint64_t>(value) >> (8 * byte) & 0xFFU)) * 0x100000001B3U;
        return *this;
    }
    [[nodiscard]] std::uint64_t value() const { return m_state; }

private:
    std::uint64_t m_state = 0xCBF29CE484222325U;
};

Picture photograph()
{
    return blobPicture(523, 389, 2026);
}

std::vector<std::uint8_t> edgesOf(const Picture &picture)
{
    std::vector<std::uint8_t> edges(picture.data.size());
    ornevo::computeEdgeMap(viewOf(picture), {edges.data(), picture.width, picture.height});
    return edges;
}

std::uint64_t edgeMaps()
{
    return (Hash() << edgesOf(photograph()) << edgesOf(randomPicture(301, 207, 1))
                   << edgesOf(plateauPicture(257, 131, 9, 4, 4)))
        .value();
}

std::uint64_t floodings(int regions)
{
    Hash hash;
    const Picture picture = photograph();
    for (const std::vector<std::uint8_t> &edges :
         {edgesOf(picture), sparsePlane(picture.width, picture.height, 3, 7),
          constantPlane(picture.width, picture.height, 0)}) {
        std::vector<std::vector<int>> seeds;
        for (int k = 0; k < regions; ++k)
            seeds.push_back(
                randomPixels(picture.width, picture.height, 40, 90U + static_cast<std::uint32_t>(k)));
        const ornevo::PlaneView relief(edges.data(), picture.width, picture.height);
        const ornevo::Regions flooded =
            regions == 2 ? ornevo::floodTwoRegions(viewOf(picture), relief, seeds[0], seeds[1])
                         : ornevo::floodRegions(viewOf(picture), relief, {seeds.begin(), seeds.end()});
        std::vector<std::int32_t> labels(picture.data.size());
        flooded.writeLabels(labels.data(), picture.width, picture.height);
        hash << labels;
    }
    return hash.value();
}

std::uint64_t waves()
{
    Hash hash;
    for (const int threshold : {0, 4, 60, 300}) {
        const Picture picture = plateauPicture(311, 203, 7, 9, 5);
        std::vector<std::int32_t> labels(picture.data.size());
        ornevo::labelWaves(viewOf(picture), threshold, labels.data());
        hash << labels;
    }
    return hash.value();
}

std::uint64_t fourChannelBlurs()
{
    Hash hash;
    for (const int size : {1, 2, 3, 5, 9, 15, 33, 99})
        for (Picture picture : {blobMaskPicture(400, 300, 1), randomArgbPicture(211, 157, 3)}) {
            ornevo::blurFourChannels(viewOf(picture), mutableViewOf(picture), size, size / 5.0);
            hash << picture.data;
        }
    return hash.value();
}

std::uint64_t planeBlurs()
{
    Hash hash;
    reference::Plane plane(211, 157);
    plane.data = randomPlane(211, 157, 6);
    reference::Plane blurred = plane;
    for (const int size : {3, 7, 12, 31}) {
        ornevo::blurPlane(viewOf(plane), mutableViewOf(blurred), 1.4, size);
        hash << blurred.data;
    }
    ornevo::blurPlaneNineTaps(viewOf(plane), mutableViewOf(blurred), 2.0);
    hash << blurred.data;
    ornevo::blurPlaneFiveByFive(viewOf(plane), mutableViewOf(blurred));
    hash << blurred.data;
    ornevo::blurPlaneThreeByThree(viewOf(plane), mutableViewOf(blurred));
    return (hash << blurred.data).value();
}

std::uint64_t feathering()
{
    Picture picture = photograph();
    reference::Plane mask(picture.width, picture.height);
    mask.data = blobMask(mask.width, mask.height, 8);
    ornevo::featherEdge(mutableViewOf(picture), viewOf(mask), 3);
    return (Hash() << picture.data).value();
}

} // namespace

TEST(Hashes, areTheSameEverywhere)
{
    onEveryTarget([] {
        EXPECT_EQ(edgeMaps(), 0x5260AC3A83638411U);
        EXPECT_EQ(floodings(2), 0x17CDA7BC2F7DA9E6U);
        EXPECT_EQ(floodings(5), 0xB660FE00117E1E16U);
        EXPECT_EQ(floodings(40), 0x40A0BE5ADF01E1DAU);
        EXPECT_EQ(waves(), 0x19086855A55C5E16U);
        EXPECT_EQ(fourChannelBlurs(), 0x05EFF674BDF6CA23U);
        EXPECT_EQ(planeBlurs(), 0xA61A62AAD17F2952U);
        EXPECT_EQ(feathering(), 0x70606009B218202DU);
    });
}
