// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/LeanPicture.h"

#include "cutout/Orientation.h"

#include <QtEndian>

#include <cstring>

namespace cutout {

namespace {

enum Marker : unsigned char {
    startOfImage = 0xD8,
    endOfImage = 0xD9,
    startOfScan = 0xDA,
    defineHuffman = 0xC4,
    extension = 0xC8,
    defineArithmetic = 0xCC,
    application0 = 0xE0,
    application15 = 0xEF,
    comment = 0xFE,
    start = 0xFF
};

// A progressive photo has about ten. Each goes over all of the picture, however few bytes it takes.
constexpr int mostScans = 100;
// Blocks of 8 x 8 that the scans may go over together; 256 megapixels thirty times.
constexpr qint64 mostBlocksOfAllScans = qint64{1} << 27;
// A picture of several scans is all in memory as coefficients, two bytes each, before its first pixel is.
constexpr qint64 mostCoefficients = qint64{15} << 26;
constexpr qsizetype largestProfile = qsizetype{4} << 20;

bool standsAlone(unsigned char marker)
{
    return marker == startOfImage || marker == 0x01 || (marker >= 0xD0 && marker <= 0xD7);
}

bool isFrame(unsigned char marker)
{
    return marker >= 0xC0 && marker <= 0xCF && marker != defineHuffman && marker != extension &&
           marker != defineArithmetic;
}

/// Copies what is kept of a file to the front of it.
class Sieve
{
public:
    explicit Sieve(QByteArray &file) : m_file(file) {}

    /// Whether the file can be read within bounds.
    bool run()
    {
        while (m_from + 1 < m_file.size()) {
            const unsigned char marker = byteAt(m_from + 1);
            if (byteAt(m_from) != start || marker == start || marker == 0)
                ++m_from; // fill bytes, which some cameras write, and garbage, which decoders skip
            else if (standsAlone(marker))
                keep(2);
            else if (marker == endOfImage)
                return finish();
            else if (!segment(marker))
                return false;
        }
        m_file.truncate(m_to);
        return true;
    }

private:
    [[nodiscard]] unsigned char byteAt(qsizetype position) const
    {
        return static_cast<unsigned char>(m_file.at(position));
    }

    void keep(qsizetype bytes)
    {
        std::memmove(m_file.data() + m_to, m_file.constData() + m_from, static_cast<std::size_t>(bytes));
        m_to += bytes;
        m_from += bytes;
    }

    bool finish()
    {
        keep(2);
        m_file.truncate(m_to);
        return true;
    }

    bool segment(unsigned char marker)
    {
        qsizetype bytes = m_file.size() - m_from;
        if (bytes >= 4)
            bytes = qMin<qsizetype>(bytes, 2 + qFromBigEndian<quint16>(m_file.constData() + m_from + 2));
        if (marker == comment || (marker >= application0 && marker <= application15))
            sideMatter(marker, bytes);
        else if (marker == startOfScan)
            return scan(bytes);
        else {
            if (isFrame(marker) && bytes >= 10)
                noteSize();
            keep(bytes);
        }
        return true;
    }

    void sideMatter(unsigned char marker, qsizetype bytes)
    {
        const auto body = QByteArray::fromRawData(m_file.constData() + m_from, bytes).mid(4);
        if (marker == application0 + 1 && !m_turned && body.startsWith(QByteArrayView("Exif\0\0", 6))) {
            m_turned = true;
            orientation(body.mid(6), bytes);
        } else if (marker == application0 || (marker == application0 + 14 && body.startsWith("Adobe"))) {
            keep(bytes);
        } else if (marker == application0 + 2 && body.startsWith(QByteArrayView("ICC_PROFILE\0", 12)) &&
                   m_profile + bytes <= largestProfile) {
            m_profile += bytes;
            keep(bytes);
        } else {
            m_from += bytes;
        }
    }

    /// Of all that a camera notes, the side that is up, in the place of the rest.
    void orientation(const QByteArray &exif, qsizetype bytes)
    {
        const QByteArray note = orientationSegment(orientationIn(exif));
        if (note.size() <= bytes) {
            std::memcpy(m_file.data() + m_to, note.constData(), static_cast<std::size_t>(note.size()));
            m_to += note.size();
        }
        m_from += bytes;
    }

    void noteSize()
    {
        const char *const frame = m_file.constData() + m_from;
        const qint64 height = qFromBigEndian<quint16>(frame + 5);
        const qint64 width = qFromBigEndian<quint16>(frame + 7);
        m_blocks = (width + 7) / 8 * ((height + 7) / 8);
        m_components = static_cast<unsigned char>(frame[9]);
        m_severalScans = byteAt(m_from + 1) % 4 == 2; // progressive
    }

    /// A scan's header and its data up to the next marker.
    bool scan(qsizetype headerBytes)
    {
        const int components = headerBytes > 4 ? byteAt(m_from + 4) : 0;
        m_severalScans = m_severalScans || components < m_components;
        ++m_scans;
        m_blocksOfAllScans += m_blocks * components;
        if (m_scans > mostScans || (m_scans > 1 && m_blocksOfAllScans > mostBlocksOfAllScans) ||
            (m_severalScans && m_blocks * m_components * 64 > mostCoefficients))
            return false;
        keep(headerBytes);
        const char *const data = m_file.constData();
        qsizetype end = m_from;
        while ((end = m_file.indexOf(char(start), end)) >= 0 && end + 1 < m_file.size()) {
            const auto next = static_cast<unsigned char>(data[end + 1]);
            if (next != 0 && next != start && !(next >= 0xD0 && next <= 0xD7))
                break;
            end += next == start ? 1 : 2;
        }
        keep((end < 0 || end + 1 >= m_file.size() ? m_file.size() : end) - m_from);
        return true;
    }

    QByteArray &m_file;
    qsizetype m_from = 0;
    qsizetype m_to = 0;
    qsizetype m_profile = 0;
    bool m_turned = false;
    bool m_severalScans = false;
    int m_scans = 0;
    int m_components = 0;
    qint64 m_blocks = 0;
    qint64 m_blocksOfAllScans = 0;
};

} // namespace

QByteArray leanJpeg(QByteArray file)
{
    return Sieve(file).run() ? file : QByteArray();
}

} // namespace cutout
