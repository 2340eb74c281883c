// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QGraphicsPixmapItem>
#include <QImage>

#include <vector>

namespace canvas {

/// A pixmap item that is shown smoothly where it is reduced and with sharp pixels where it is enlarged.
///
/// Where it is reduced to less than a half, it is drawn from mipmap levels of half, a quarter ... of its
/// size: a plain bilinear reduction would skip pixels, and a large photo would shimmer. The copies are made
/// when they are first needed and take a third of the pixmap's memory.
class PictureItem : public QGraphicsPixmapItem
{
public:
    explicit PictureItem(const QPixmap &pixmap);

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

    /// Keeps a copy of what has been painted of the item, at the size of the screen: for a picture that lies
    /// under others and is painted again and again only because they change.
    void keepPainted();

    /// Brings the pixels of `area` in the pixmap up to date with `image`, a picture in Format_ARGB32 of the
    /// same size. Only these are converted and repainted; a pixmap of another size or without alpha is
    /// replaced as a whole.
    void renew(const QImage &image, const QRect &area);

private:
    [[nodiscard]] const QImage *mipmapFor(qreal scale);
    void renewMipmaps(const QRect &area);

    std::vector<QImage> m_mipmaps; ///< [k] has 1 / 2^(k + 1) of the size
    qint64 m_mipmapsFrom = 0;      ///< cache key of the pixmap that m_mipmaps was made from
};

/// Has `item` show `image`, of which `area` has changed: a PictureItem renews that alone, any other item gets
/// a new pixmap.
void updatePixmap(QGraphicsPixmapItem &item, const QImage &image, const QRect &area);

} // namespace canvas
