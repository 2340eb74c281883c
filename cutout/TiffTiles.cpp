// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/LeanPicture.h"

#include <QtEndian>

#include <algorithm>

namespace cutout {

namespace {

constexpr qint64 mostSamples = qint64{1} << 27; // of one tile or one row; 256 MiB of 16 bits each

enum Tag : quint16 { imageWidth = 256, samplesPerPixel = 277, tileWidth = 322, tileLength = 323 };
enum Type : quint16 { shortNumber = 3, longNumber = 4 };

template <typename Number> Number numberAt(const QByteArray &bytes, qsizetype at, bool little)
{
    const char *place = bytes.constData() + at;
    return little ? qFromLittleEndian<Number>(place) : qFromBigEndian<Number>(place);
}

} // namespace

bool hasModestTiles(QIODevice &file)
{
    const QByteArray head = file.peek(16);
    if (head.size() < 16)
        return false; // no directory, no picture
    const bool little = head.startsWith("II");
    const bool large = head.at(little ? 2 : 3) == '+'; // with offsets of 64 bits
    const qint64 directory = large ? static_cast<qint64>(numberAt<quint64>(head, 8, little))
                                   : qint64{numberAt<quint32>(head, 4, little)};
    const qsizetype countBytes = large ? 8 : 2;
    const qsizetype entryBytes = large ? 20 : 12;
    const qsizetype valueAt = large ? 12 : 8;
    if (directory < 0 || !file.seek(directory))
        return false;
    // A directory has some twenty entries in order of their tags; four tags matter.
    const QByteArray entries = file.read(countBytes + 65535 * entryBytes);
    if (!file.seek(0) || entries.size() < countBytes)
        return false;
    const qsizetype count = std::min(
        large ? static_cast<qsizetype>(std::min<quint64>(numberAt<quint64>(entries, 0, little), 65535))
              : qsizetype{numberAt<quint16>(entries, 0, little)},
        (entries.size() - countBytes) / entryBytes);
    qint64 width = 1;
    qint64 samples = 1;
    qint64 tile[2] = {1, 1};
    for (qsizetype entry = 0; entry < count; ++entry) {
        const qsizetype at = countBytes + entry * entryBytes;
        const auto tag = numberAt<quint16>(entries, at, little);
        const auto type = numberAt<quint16>(entries, at + 2, little);
        const qint64 value = type == shortNumber  ? qint64{numberAt<quint16>(entries, at + valueAt, little)}
                             : type == longNumber ? qint64{numberAt<quint32>(entries, at + valueAt, little)}
                                                  : 1;
        if (tag == imageWidth)
            width = std::max(width, value);
        else if (tag == samplesPerPixel)
            samples = std::max(samples, value);
        else if (tag == tileWidth || tag == tileLength)
            tile[tag - tileWidth] = std::max(tile[tag - tileWidth], value);
    }
    // Divided: a product could overflow.
    return samples <= mostSamples / width && samples <= mostSamples / tile[0] / tile[1];
}

} // namespace cutout
