// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "imaging/PictureCompleteness.h"

#include <QByteArray>
#include <QIODevice>
#include <QtEndian>

#include <cstdlib>

namespace {

constexpr unsigned char markerStart = 0xFF;
constexpr unsigned char endOfImage = 0xD9;
constexpr unsigned char startOfScan = 0xDA;
constexpr qint64 largestJpeg = qint64{256} << 20; // more bytes than any picture within the limits takes

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

// Follows the segments, so that the end of a thumbnail within one is not taken for the end of the picture.
bool isCompleteJpeg(const QByteArray &data)
{
    qsizetype position = 2;
    while (position + 1 < data.size()) {
        if (byteAt(data, position) != markerStart || byteAt(data, position + 1) == markerStart) {
            ++position; // fill bytes, which some cameras write
            continue;
        }
        const unsigned char marker = byteAt(data, position + 1);
        if (marker == endOfImage)
            return true;
        if (position + 4 > data.size())
            return false;
        position += 2 + qFromBigEndian<quint16>(data.constData() + position + 2);
        if (marker == startOfScan)
            position = endOfScan(data, position);
    }
    return false;
}

// Only pixels that are stored as they are have a size that can be told beforehand.
bool isCompleteBmp(const QByteArray &header, qint64 fileSize)
{
    constexpr int headerBytes = 34;
    constexpr quint32 plain = 0;
    constexpr quint32 bitFields = 3;
    if (header.size() < headerBytes)
        return true; // the older, shorter header; the decoder tells
    const auto field = [&header](int at) { return qFromLittleEndian<qint32>(header.constData() + at); };
    const auto compression = static_cast<quint32>(field(30));
    if (field(14) < 40 || (compression != plain && compression != bitFields))
        return true;
    const qint64 bitsPerPixel = qFromLittleEndian<quint16>(header.constData() + 28);
    const qint64 bytesPerRow = (field(18) * bitsPerPixel + 31) / 32 * 4;
    if (bytesPerRow <= 0)
        return true; // no picture at all; the decoder tells
    // Divided: a product could overflow.
    const qint64 rowsThatFit = (fileSize - quint32(field(10))) / bytesPerRow;
    return std::llabs(field(22)) <= rowsThatFit;
}

} // namespace

bool isCompletePicture(QIODevice &file)
{
    const qint64 start = file.pos();
    const QByteArray beginning = file.peek(64);
    if (beginning.startsWith("BM"))
        return isCompleteBmp(beginning, file.size() - start);
    if (!beginning.startsWith("\xFF\xD8\xFF"))
        return true;
    const bool complete = file.size() <= largestJpeg && isCompleteJpeg(file.readAll());
    file.seek(start);
    return complete;
}
