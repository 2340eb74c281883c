// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/reference/TestPictures.h"

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QSize>

#include <cstdint>
#include <vector>

namespace testsupport {

/// Pictures of one size on which floodings and waves go different ways: noise, few colours with many ties,
/// steps of grey whose difference in brightness is a whole number, smooth areas and none at all.
inline QList<QImage> picturesToSegment(QSize size, std::uint32_t seed)
{
    const int w = size.width();
    const int h = size.height();
    return {testpictures::randomImage(w, h, seed),
            testpictures::plateauImage(w, h, 3, 4, seed),
            testpictures::greyStepsImage(w, h, seed),
            testpictures::greyImage(w, h, testpictures::plateauPlane(w, h, 6, seed)),
            testpictures::rampImage(w, h, 3),
            testpictures::blobImage(w, h, seed),
            testpictures::constantImage(w, h, 0xFF405060)};
}

/// Edge maps of one size: flat, edge all over, sparse, with few levels, and any.
inline std::vector<std::vector<std::uint8_t>> edgeMaps(QSize size, std::uint32_t seed)
{
    const int w = size.width();
    const int h = size.height();
    return {testpictures::constantPlane(w, h, 0), testpictures::constantPlane(w, h, 255),
            testpictures::sparsePlane(w, h, 5, seed), testpictures::plateauPlane(w, h, 3, seed),
            testpictures::randomPlane(w, h, seed)};
}

/// A picture of which only the middle row can be flooded: the others are frame.
inline QImage rowPicture(const std::vector<std::uint8_t> &greys)
{
    std::vector<std::uint8_t> plane;
    for (int row = 0; row < 3; ++row)
        plane.insert(plane.end(), greys.begin(), greys.end());
    return testpictures::greyImage(static_cast<int>(greys.size()), 3, plane);
}

/// The edge map of such a picture.
inline std::vector<std::uint8_t> rowEdges(const std::vector<std::uint8_t> &costs)
{
    std::vector<std::uint8_t> plane(3 * costs.size());
    std::copy(costs.begin(), costs.end(), plane.begin() + static_cast<std::ptrdiff_t>(costs.size()));
    return plane;
}

/// Pixels of its middle row by their columns.
inline QList<int> columnsOf(int width, const QList<int> &columns)
{
    QList<int> indices;
    for (const int column : columns)
        indices.append(width + column);
    return indices;
}

inline QByteArray described(QSize size, int picture, int edges = 0)
{
    return QByteArray::number(size.width()) + " x " + QByteArray::number(size.height()) + ", picture " +
           QByteArray::number(picture) + ", edges " + QByteArray::number(edges);
}

} // namespace testsupport
