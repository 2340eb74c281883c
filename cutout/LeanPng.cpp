// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/LeanPicture.h"

#include <QList>
#include <QtEndian>

#include <cstring>

namespace cutout {

namespace {

constexpr qsizetype signatureBytes = 8;
constexpr qsizetype chunkOverhead = 12; // length, name, checksum
constexpr qint64 largestSideMatter = qint64{1} << 20;

bool isCritical(const QByteArray &name)
{
    return (name.at(0) & 0x20) == 0; // a capital letter
}

/// What says how the stored values are to be understood.
bool decidesThePixels(const QByteArray &name)
{
    static const QList<QByteArray> names{"tRNS", "gAMA", "cHRM", "sRGB", "iCCP", "pHYs", "eXIf"};
    return names.contains(name);
}

} // namespace

QByteArray leanPng(QByteArray file)
{
    QList<QByteArray> seen;
    qsizetype from = signatureBytes;
    qsizetype to = signatureBytes;
    while (from + 8 <= file.size()) {
        const qint64 length = qFromBigEndian<quint32>(file.constData() + from);
        const QByteArray name = file.mid(from + 4, 4);
        const qsizetype chunk = qMin<qint64>(length + chunkOverhead, file.size() - from);
        bool kept = isCritical(name);
        if (!kept && decidesThePixels(name) && !seen.contains(name) && length <= largestSideMatter) {
            seen.append(name);
            kept = true;
        }
        if (kept) {
            std::memmove(file.data() + to, file.constData() + from, static_cast<std::size_t>(chunk));
            to += chunk;
        }
        from += chunk;
        if (name == "IEND")
            break;
    }
    file.truncate(to);
    return file;
}

QByteArray pngInIcon(const QByteArray &file)
{
    constexpr qsizetype headerBytes = 6;
    constexpr qsizetype entryBytes = 16;
    if (file.size() < headerBytes + entryBytes)
        return {};
    const qint64 size = qFromLittleEndian<quint32>(file.constData() + headerBytes + 8);
    const qint64 offset = qFromLittleEndian<quint32>(file.constData() + headerBytes + 12);
    const QByteArray picture = file.mid(offset, size);
    return picture.startsWith("\x89PNG\r\n\x1A\n") ? picture : QByteArray();
}

} // namespace cutout
