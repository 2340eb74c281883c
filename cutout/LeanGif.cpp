// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/LeanPicture.h"

#include <QtEndian>

#include <array>

namespace cutout {

namespace {

constexpr int mostCodes = 4096;

/// Counts the pixels that compressed data makes, without making them: a code of twelve bits can stand for
/// four thousand, and a decoder goes on with them beyond the end of the picture.
class PixelCount
{
public:
    explicit PixelCount(int codeBits) : m_firstBits(codeBits + 1), m_clear(1 << codeBits) { clear(); }

    /// Takes the next byte; false when no more may follow: at the end of the data, and in what is no data.
    bool take(unsigned char byte)
    {
        m_bits |= static_cast<unsigned>(byte) << m_bitCount;
        m_bitCount += 8;
        while (m_bitCount >= m_codeBits) {
            const int code = static_cast<int>(m_bits & ((1U << m_codeBits) - 1));
            m_bits >>= m_codeBits;
            m_bitCount -= m_codeBits;
            if (!takeCode(code))
                return false;
        }
        return true;
    }
    [[nodiscard]] qint64 pixels() const { return m_pixels; }

private:
    void clear()
    {
        m_codeBits = m_firstBits;
        m_next = m_clear + 2;
        m_previousLength = 0;
    }

    bool takeCode(int code)
    {
        if (code == m_clear) {
            clear();
            return true;
        }
        if (code == m_clear + 1 || code > m_next || (code == m_next && m_previousLength == 0))
            return false;
        const int length = code < m_clear ? 1 : code == m_next ? m_previousLength + 1 : m_lengths.at(code);
        if (m_previousLength != 0 && m_next < mostCodes) {
            m_lengths.at(m_next++) = m_previousLength + 1;
            if (m_next == 1 << m_codeBits && m_codeBits < 12)
                ++m_codeBits;
        }
        m_previousLength = length;
        m_pixels += length;
        return true;
    }

    std::array<int, mostCodes + 1> m_lengths{};
    int m_firstBits;
    int m_clear;
    int m_codeBits = 0;
    int m_next = 0;
    int m_previousLength = 0;
    unsigned m_bits = 0;
    int m_bitCount = 0;
    qint64 m_pixels = 0;
};

constexpr qint64 mostPixels = qint64{1} << 28;

class Reader
{
public:
    explicit Reader(const QByteArray &file) : m_file(file) {}

    QByteArray firstFrame()
    {
        QByteArray frame = m_file.left(13);
        if (frame.size() < 13)
            return m_file;
        m_at = 13;
        frame += palette(m_file.at(10));
        while (m_at < m_file.size()) {
            if (m_file.at(m_at) == ',')
                return image(frame) ? frame : QByteArray();
            if (m_file.at(m_at) != '!') {
                ++m_at;
                continue;
            }
            const qsizetype from = m_at;
            m_at += 2;
            skipBlocks();
            if (m_file.mid(from + 1, 2) == "\xF9\x04") // which colour is transparent
                frame += m_file.mid(from, 8);
        }
        return frame;
    }

private:
    [[nodiscard]] int byteAt(qsizetype at) const
    {
        return at < m_file.size() ? static_cast<unsigned char>(m_file.at(at)) : 0;
    }

    QByteArray palette(int flags)
    {
        const qsizetype bytes = (flags & 0x80) != 0 ? qsizetype{3} << ((flags & 7) + 1) : 0;
        m_at += bytes;
        return m_file.mid(m_at - bytes, bytes);
    }

    void skipBlocks()
    {
        while (byteAt(m_at) != 0)
            m_at += 1 + byteAt(m_at);
        ++m_at;
    }

    /// Appends the image that begins here.
    bool image(QByteArray &frame)
    {
        const QByteArray head = m_file.mid(m_at, 10);
        frame += head;
        m_at += 10;
        if (head.size() < 10)
            return true;
        const qint64 width = qFromLittleEndian<quint16>(head.constData() + 5);
        const qint64 height = qFromLittleEndian<quint16>(head.constData() + 7);
        frame += palette(head.at(9));
        const int codeBits = byteAt(m_at);
        if (width * height > mostPixels || codeBits > 11)
            return false;
        frame += m_file.mid(m_at++, 1);
        blocks(frame, PixelCount(codeBits), width * height);
        return true;
    }

    void blocks(QByteArray &frame, PixelCount count, qint64 pixels)
    {
        while (byteAt(m_at) != 0) {
            const int length = static_cast<int>(qMin<qsizetype>(byteAt(m_at), m_file.size() - m_at - 1));
            int used = 0;
            bool more = true;
            while (more && used < length) {
                more = count.take(static_cast<unsigned char>(m_file.at(m_at + 1 + used)));
                ++used;
                more = more && count.pixels() < pixels;
            }
            frame += static_cast<char>(more ? byteAt(m_at) : used);
            frame += m_file.mid(m_at + 1, used);
            m_at += 1 + length;
            if (!more)
                break;
        }
        frame += QByteArray(m_at < m_file.size() ? "\0;" : "", m_at < m_file.size() ? 2 : 0);
    }

    const QByteArray &m_file;
    qsizetype m_at = 0;
};

} // namespace

QByteArray leanGif(const QByteArray &file)
{
    return Reader(file).firstFrame();
}

} // namespace cutout
