// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "imaging/BackgroundLayer.h"

#include <QColor>
#include <QPainter>

namespace {

QPixmap colourOverBoard(QSize size, QRgb colour, const QImage &board)
{
    if (board.isNull() || size.isEmpty())
        return {};
    if (qAlpha(colour) == 255) { // nothing of the board would show
        QPixmap layer(size);
        layer.fill(QColor(colour));
        return layer;
    }
    if (qAlpha(colour) == 0 && !board.hasAlphaChannel()) // nothing of the colour would show
        return QPixmap::fromImage(board.scaled(size, Qt::IgnoreAspectRatio, Qt::FastTransformation)
                                      .convertToFormat(QImage::Format_RGB32));
    // The colour goes over the stretched board and not over the small one: how blending rounds depends on the
    // place in the row.
    QImage layer = board.scaled(size, Qt::IgnoreAspectRatio, Qt::FastTransformation)
                       .convertToFormat(QImage::Format_ARGB32);
    if (layer.isNull())
        return {};
    // One row of the colour, drawn again and again: the blending is that of a whole picture of it.
    QImage row(size.width(), 1, QImage::Format_ARGB32);
    row.fill(colour);
    QPainter painter(&layer);
    for (int y = 0; y < size.height(); ++y)
        painter.drawImage(0, y, row);
    painter.end();
    return QPixmap::fromImage(std::move(layer));
}

} // namespace

QPixmap backgroundLayer(QSize size, QRgb colour, const QImage &board, const QImage &picture)
{
    if (picture.isNull())
        return colourOverBoard(size, colour, board);
    return QPixmap::fromImage(picture).scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}
