// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/Orientation.h"

#include <QByteArrayView>
#include <QtEndian>

namespace cutout {

namespace {

constexpr int upright = 1;
constexpr quint32 orientationTag = 0x0112;

/// Numbers in the order of bytes that the file says it has; 0 beyond its end.
class Numbers
{
public:
    explicit Numbers(QByteArrayView bytes) : m_bytes(bytes), m_little(bytes.startsWith("II")) {}

    [[nodiscard]] quint32 two(qint64 at) const
    {
        if (at + 2 > m_bytes.size())
            return 0;
        const char *place = m_bytes.data() + at;
        return m_little ? qFromLittleEndian<quint16>(place) : qFromBigEndian<quint16>(place);
    }
    [[nodiscard]] quint32 four(qint64 at) const
    {
        if (at + 4 > m_bytes.size())
            return 0;
        const char *place = m_bytes.data() + at;
        return m_little ? qFromLittleEndian<quint32>(place) : qFromBigEndian<quint32>(place);
    }

private:
    QByteArrayView m_bytes;
    bool m_little;
};

} // namespace

int orientationIn(const QByteArray &exif)
{
    constexpr qint64 entryBytes = 12;
    if (!exif.startsWith("II") && !exif.startsWith("MM"))
        return upright;
    const Numbers numbers(exif);
    const qint64 directory = numbers.four(4);
    const qint64 entries = numbers.two(directory);
    for (qint64 entry = 0; entry < entries; ++entry) {
        const qint64 at = directory + 2 + entry * entryBytes;
        if (numbers.two(at) != orientationTag)
            continue;
        const quint32 value = numbers.two(at + 8);
        return value >= 1 && value <= 8 ? static_cast<int>(value) : upright;
    }
    return upright;
}

QByteArray orientationSegment(int orientation)
{
    QByteArray segment("\xFF\xE1\0\x22"
                       "Exif\0\0"
                       "MM\0*\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0\0\0\0\0\0\0\0",
                       36);
    segment[29] = static_cast<char>(orientation);
    return segment;
}

} // namespace cutout
