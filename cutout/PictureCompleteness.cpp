// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/PictureCompleteness.h"

#include <QtEndian>

#include <cstdlib>

namespace cutout {

namespace {

constexpr unsigned char markerStart = 0xFF;
constexpr unsigned char endOfImage = 0xD9;
constexpr unsigned char startOfScan = 0xDA;

unsigned char byteAt(const QByteArray &data, qsizetype position)
{
    return static_cast<unsigned char>(data[position]);
}

/// Position of the marker that ends the entropy-coded data at `position`, or the size of the data.
qsizetype endOfScan(const QByteArray &data, qsizetype position)
{
    while ((position = data.indexOf(char(markerStart), position)) >= 0 && position + 1 < data.size()) {
        const unsigned char next = byteAt(data, position + 1);
        const bool partOfScan = next == 0 || next == markerStart || (next >= 0xD0 && next <= 0xD7);
        if (!partOfScan)
            return position;
        position += next == markerStart ? 1 : 2;
    }
    return data.size();
}

} // namespace

bool beginsLikeJpeg(const QByteArray &beginning)
{
    return beginning.startsWith("\xFF\xD8\xFF");
}

// Follows the segments, so that the end of a thumbnail within one is not taken for the end of the picture.
bool isCompleteJpeg(const QByteArray &file)
{
    qsizetype position = 2;
    while (position + 1 < file.size()) {
        if (byteAt(file, position) != markerStart || byteAt(file, position + 1) == markerStart) {
            ++position; // fill bytes, which some cameras write
            continue;
        }
        const unsigned char marker = byteAt(file, position + 1);
        if (marker == endOfImage)
            return true;
        if (position + 4 > file.size())
            return false;
        position += 2 + qFromBigEndian<quint16>(file.constData() + position + 2);
        if (marker == startOfScan)
            position = endOfScan(file, position);
    }
    return false;
}

// Only pixels that are stored as they are have a size that can be told beforehand.
bool isCompleteBmp(const QByteArray &beginning, qint64 fileSize)
{
    constexpr int headerBytes = 34;
    constexpr quint32 plain = 0;
    constexpr quint32 bitFields = 3;
    if (!beginning.startsWith("BM") || beginning.size() < headerBytes)
        return true; // no BMP, or the older, shorter header; the decoder tells
    const auto field = [&beginning](int at) { return qFromLittleEndian<qint32>(beginning.constData() + at); };
    const auto compression = static_cast<quint32>(field(30));
    if (field(14) < 40 || (compression != plain && compression != bitFields))
        return true;
    const qint64 bitsPerPixel = qFromLittleEndian<quint16>(beginning.constData() + 28);
    const qint64 bytesPerRow = (field(18) * bitsPerPixel + 31) / 32 * 4;
    if (bytesPerRow <= 0)
        return true; // no picture at all; the decoder tells
    // Divided: a product could overflow.
    const qint64 rowsThatFit = (fileSize - quint32(field(10))) / bytesPerRow;
    return std::llabs(field(22)) <= rowsThatFit;
}

} // namespace cutout
