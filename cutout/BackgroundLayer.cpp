// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/BackgroundLayer.h"

#include "cutout/LargePicture.h"

#include <QPainter>

#include <cstddef>
#include <cstring>
#include <utility>

namespace cutout {

namespace {

/// The colour over the scaled checkerboard, as a pixmap shows it: without alpha where nothing of it is
/// transparent.
QImage colourOverScaled(const QImage &checkerboard, QSize size, QRgb colour)
{
    QImage rows = checkerboard.scaled(size, Qt::IgnoreAspectRatio, Qt::FastTransformation)
                      .convertToFormat(QImage::Format_ARGB32);
    // One row of the colour, drawn again and again: the blending is that of a whole picture of it.
    QImage row(size.width(), 1, QImage::Format_ARGB32);
    row.fill(colour);
    QPainter painter(&rows);
    for (int y = 0; y < rows.height(); ++y)
        painter.drawImage(0, y, row);
    painter.end();
    const QImage shown = QPixmap::fromImage(std::move(rows)).toImage();
    return shown.convertToFormat(shown.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                         : QImage::Format_RGB32);
}

/// Of each of `length` rows, which one of `count` rows it shows when these are scaled.
QImage sourceRows(int count, int length)
{
    QImage numbers(1, count, QImage::Format_RGB32);
    for (int y = 0; y < count; ++y)
        numbers.setPixel(0, y, static_cast<QRgb>(y));
    return numbers.scaled(1, length, Qt::IgnoreAspectRatio, Qt::FastTransformation);
}

/// Scales rows of four-byte pixels in height without smoothing.
QImage scaledInHeight(const QImage &rows, int height)
{
    QImage picture = makeLargePicture(QSize(rows.width(), height), rows.format());
    const QImage numbers = sourceRows(rows.height(), height);
    if (picture.isNull() || numbers.isNull())
        return {};
    const std::size_t bytes = std::size_t{4} * static_cast<std::size_t>(rows.width());
    for (int y = 0; y < height; ++y)
        std::memcpy(picture.scanLine(y),
                    rows.constScanLine(static_cast<int>(numbers.pixel(0, y) & 0xFFFFFFU)), bytes);
    return picture;
}

QPixmap colourOverCheckerboard(QSize size, QRgb colour, const QImage &checkerboard)
{
    if (checkerboard.isNull() || size.isEmpty())
        return {};
    if (qAlpha(colour) == 255) { // nothing of it would show
        QImage layer = makeLargePicture(size, QImage::Format_RGB32);
        layer.fill(colour);
        return QPixmap::fromImage(std::move(layer));
    }
    // Scaling up repeats whole rows, so that the work on each can be done once. Which rows, QImage::scaled()
    // decides otherwise for pixels with alpha, and where the width stays as it is.
    const bool rowsAreKnown =
        checkerboard.format() == QImage::Format_RGB32 && checkerboard.width() != size.width();
    if (rowsAreKnown && checkerboard.height() < size.height())
        return QPixmap::fromImage(
            scaledInHeight(colourOverScaled(checkerboard, QSize(size.width(), checkerboard.height()), colour),
                           size.height()));
    return QPixmap::fromImage(colourOverScaled(checkerboard, size, colour));
}

} // namespace

QPixmap backgroundLayer(QSize size, QRgb colour, const QImage &checkerboard, const QImage &picture)
{
    if (picture.isNull())
        return colourOverCheckerboard(size, colour, checkerboard);
    return QPixmap::fromImage(picture).scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace cutout
