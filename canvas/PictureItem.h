// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QGraphicsPixmapItem>
#include <QImage>

/// A pixmap item that is shown smoothly where it is reduced and with sharp pixels where it is enlarged.
class PictureItem : public QGraphicsPixmapItem
{
public:
    explicit PictureItem(const QPixmap &pixmap);

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;
};

/// Brings the pixels of `area` in the pixmap of `item` up to date with `image`, a picture in Format_ARGB32 of
/// the same size. Only these are converted; a pixmap of another size or without alpha is replaced as a whole.
void updatePixmap(QGraphicsPixmapItem &item, const QImage &image, const QRect &area);
