// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QImage>
#include <QTest>

#include <algorithm>
#include <cstddef>
#include <vector>

namespace testsupport {

/// Empty when both hold the same values, else words that say where they part. `width` turns a position into a
/// pixel.
template <typename Values> QByteArray firstDifference(const Values &actual, const Values &expected, int width)
{
    if (actual.size() != expected.size())
        return "sizes " + QByteArray::number(static_cast<qlonglong>(actual.size())) + " and " +
               QByteArray::number(static_cast<qlonglong>(expected.size()));
    const auto at = std::mismatch(actual.begin(), actual.end(), expected.begin());
    if (at.first == actual.end())
        return {};
    const auto index = static_cast<qlonglong>(at.first - actual.begin());
    const qlonglong columns = std::max(width, 1);
    return "at (" + QByteArray::number(index % columns) + ", " + QByteArray::number(index / columns) +
           "): " + QByteArray::number(static_cast<qlonglong>(*at.first)) + " and not " +
           QByteArray::number(static_cast<qlonglong>(*at.second));
}

/// The four bytes of each pixel, without what pads the rows.
inline std::vector<QRgb> pixelsOf(const QImage &image)
{
    std::vector<QRgb> pixels;
    for (int y = 0; y < image.height(); ++y) {
        const auto *row = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        pixels.insert(pixels.end(), row, row + image.width());
    }
    return pixels;
}

/// Of pictures of four bytes a pixel, the fourth byte included.
inline QByteArray firstDifference(const QImage &actual, const QImage &expected)
{
    if (actual.size() != expected.size() || actual.depth() != expected.depth())
        return "another size or depth";
    if (actual.depth() != 32)
        return actual.isNull() ? "" : "not four bytes a pixel";
    return firstDifference(pixelsOf(actual), pixelsOf(expected), actual.width());
}

} // namespace testsupport

/// Fails with the place of the first difference; `context` is what the round of a loop was about.
#define VERIFY_SAME(context, ...)                                                                            \
    do {                                                                                                     \
        const QByteArray difference = testsupport::firstDifference(__VA_ARGS__);                             \
        QVERIFY2(difference.isEmpty(), (QByteArray(context) + ": " + difference).constData());               \
    } while (false)
