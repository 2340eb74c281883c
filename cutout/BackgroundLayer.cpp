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

/// The colour over the stretched board, as a pixmap shows it: without alpha where nothing of it is
/// transparent.
QImage colourOverStretched(const QImage &board, QSize size, QRgb colour)
{
    QImage rows = board.scaled(size, Qt::IgnoreAspectRatio, Qt::FastTransformation)
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

/// Of each of `length` rows, which one of `count` rows it shows when these are stretched.
QImage stretchedRowNumbers(int count, int length)
{
    QImage numbers(1, count, QImage::Format_RGB32);
    for (int y = 0; y < count; ++y)
        numbers.setPixel(0, y, static_cast<QRgb>(y));
    return numbers.scaled(1, length, Qt::IgnoreAspectRatio, Qt::FastTransformation);
}

/// Stretches rows of four-byte pixels downwards without smoothing.
QImage stretchedDown(const QImage &rows, int height)
{
    QImage picture = makeLargePicture(QSize(rows.width(), height), rows.format());
    const QImage numbers = stretchedRowNumbers(rows.height(), height);
    if (picture.isNull() || numbers.isNull())
        return {};
    const std::size_t bytes = std::size_t{4} * static_cast<std::size_t>(rows.width());
    for (int y = 0; y < height; ++y)
        std::memcpy(picture.scanLine(y),
                    rows.constScanLine(static_cast<int>(numbers.pixel(0, y) & 0xFFFFFFU)), bytes);
    return picture;
}

QPixmap colourOverBoard(QSize size, QRgb colour, const QImage &board)
{
    if (board.isNull() || size.isEmpty())
        return {};
    if (qAlpha(colour) == 255) { // nothing of the board would show
        QImage layer = makeLargePicture(size, QImage::Format_RGB32);
        layer.fill(colour);
        return QPixmap::fromImage(std::move(layer));
    }
    // Stretching repeats whole rows, so that the work on each can be done once. Which rows, QImage::scaled()
    // decides otherwise for pixels with alpha, and where the width stays as it is.
    const bool rowsAreKnown = board.format() == QImage::Format_RGB32 && board.width() != size.width();
    if (rowsAreKnown && board.height() < size.height())
        return QPixmap::fromImage(stretchedDown(
            colourOverStretched(board, QSize(size.width(), board.height()), colour), size.height()));
    return QPixmap::fromImage(colourOverStretched(board, size, colour));
}

} // namespace

QPixmap backgroundLayer(QSize size, QRgb colour, const QImage &board, const QImage &picture)
{
    if (picture.isNull())
        return colourOverBoard(size, colour, board);
    return QPixmap::fromImage(picture).scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace cutout
