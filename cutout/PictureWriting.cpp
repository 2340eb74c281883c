// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/FileReplacement.h"
#include "cutout/PictureFile.h"

#include <QBuffer>
#include <QImageWriter>

#include <new>

namespace cutout {

namespace {

/// Memory that an encoder writes to. Encoders are C, and no exception may pass through them.
class Memory : public QBuffer
{
public:
    [[nodiscard]] bool ranOut() const { return m_ranOut; }

protected:
    qint64 writeData(const char *data, qint64 size) override
    {
        try {
            return QBuffer::writeData(data, size);
        } catch (const std::bad_alloc &) {
            m_ranOut = true;
            return -1;
        }
    }

private:
    bool m_ranOut = false;
};

} // namespace

bool writePicture(const QImage &picture, const QString &path, const QByteArray &format)
{
    if (picture.isNull() || path.isEmpty() ||
        !QImageWriter::supportedImageFormats().contains(format.toLower()))
        return false;
    Memory memory;
    memory.open(QIODevice::ReadWrite);
    QImageWriter writer(&memory, format);
    writer.setQuality(100);
    const bool encoded = writer.write(picture);
    if (memory.ranOut())
        throw std::bad_alloc();
    return encoded && replaceFile(path, memory.data());
}

} // namespace cutout
