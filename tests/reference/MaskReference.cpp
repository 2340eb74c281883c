// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reference/MaskReference.h"

#include "tests/reference/ImageReferences.h"

#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QPointF>
#include <QPolygon>
#include <QRegion>
#include <QTransform>

#include <cmath>
#include <vector>

namespace reference {

namespace {

void paintPoints(QImage &image, const QList<int> &indices, const QColor &color)
{
    const int W = image.width();
    if (W < 1)
        return;
    std::vector<QPointF> points;
    for (const int i : indices)
        points.push_back(QPointF(i % W, i / W));
    QPainter painter(&image);
    painter.setPen(QPen(color));
    painter.drawPoints(points.data(), static_cast<int>(points.size()));
    painter.end();
}

int rounded(double value)
{
    return static_cast<int>(std::round(value));
}

} // namespace

QList<int> seedSquare(const QRectF &rect, int W, int H)
{
    QList<int> indices;
    const int x0 = static_cast<int>(rect.x());
    const int y0 = static_cast<int>(rect.y());
    const int s = static_cast<int>(rect.width());
    if (x0 > W || y0 > H || s <= 0 || x0 >= W)
        return indices;
    for (int c = 0; c < s && c < W - x0; ++c) {
        if (y0 < H) {
            for (int r = 0; r < s && r < H - y0; ++r)
                indices.append((y0 + r) * W + (x0 + c));
        }
    }
    return indices;
}

Seeds collectSeeds(const QList<Marker> &items, int W, int H)
{
    Seeds seeds;
    for (const Marker &item : items) {
        if (item.type == 3)
            seeds.keep.append(seedSquare(item.rect, W, H));
        else if (item.type == 4 && item.penColor == QColor(10, 10, 255, 255))
            seeds.blue.append(seedSquare(item.rect, W, H));
        else if (item.type == 4)
            seeds.remove.append(seedSquare(item.rect, W, H));
    }
    return seeds;
}

QImage overlayImage(const QList<int> &indices, int W, int H)
{
    QImage image(W, H, QImage::Format_RGB32);
    image.fill(0xffffffffu);
    paintPoints(image, indices, QColor(0, 255, 0, 255));
    return image;
}

QImage hardMaskImage(const QList<int> &indices, int W, int H)
{
    QImage image(W, H, QImage::Format_RGB32);
    image.fill(0xffffffffu);
    paintPoints(image, indices, QColor(0, 0, 0, 255));
    return image;
}

QImage maskImage(const QList<int> &indices, int W, int H, bool smoothEdges, int gaussSize)
{
    const QImage hard = hardMaskImage(indices, W, H);
    QImage mask = hard.copy();
    if (smoothEdges)
        fourChannelBlur(hard, mask, gaussSize, gaussSize / 5.0);
    return mask;
}

QImage cutOut(const QPixmap &photo, const QImage &mask)
{
    QImage preview = photo.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int x = 0; x < mask.width(); ++x) {
        for (int y = 0; y < mask.height(); ++y) {
            if (!preview.valid(x, y))
                continue;
            const int alpha = ~qBlue(mask.pixel(x, y)) & 0xff;
            preview.scanLine(y)[4 * x + 3] = static_cast<uchar>(alpha);
        }
    }
    return preview;
}

BrushBatch applyBrush(QImage &preview, const QList<QRect> &rects, QPoint previewOffset, Brush brush,
                      int intensity, bool skipLastRect, const QRect &lastRect)
{
    QPainterPath path;
    for (const QRect &r : rects)
        path.addEllipse(
            QRectF(r.left() - previewOffset.x(), r.top() - previewOffset.y(), r.width(), r.height()));
    QRegion region(path.toFillPolygon(QTransform()).toPolygon(), Qt::WindingFill);
    region = region.intersected(QRect(0, 0, preview.width(), preview.height()));
    if (!skipLastRect)
        region = region.subtracted(lastRect);

    std::vector<QPoint> points;
    for (const QRect &rect : region)
        for (int x = rect.left(); x <= rect.right(); ++x)
            for (int y = rect.top(); y <= rect.bottom(); ++y)
                points.push_back(QPoint(x, y));

    const QRectF bounds = path.boundingRect();
    BrushBatch batch;
    batch.box =
        QRect(rounded(bounds.x()), rounded(bounds.y()), rounded(bounds.width()), rounded(bounds.height()));
    batch.before = preview.copy(batch.box);

    for (const QPoint &p : points) {
        const QRgb c = preview.pixel(p);
        int a = 0;
        if (brush == Brush::Keep) {
            a = qAlpha(c) + intensity;
            if (a > 255)
                a = 255;
        } else {
            a = qAlpha(c) - intensity;
            if (a < 0)
                a = 0;
        }
        preview.setPixel(p, qRgba(qRed(c), qGreen(c), qBlue(c), a));
    }
    return batch;
}

QPixmap backgroundLayer(QRgb backgroundColor, const QImage &backgroundImage, const QImage &checkerboard,
                        int W, int H)
{
    QImage colorLayer(W, H, QImage::Format_ARGB32);
    colorLayer.fill(backgroundColor);
    QImage scaled = checkerboard.scaled(W, H, Qt::IgnoreAspectRatio, Qt::FastTransformation)
                        .convertToFormat(QImage::Format_ARGB32);
    if (!scaled.isNull()) {
        QPainter painter(&scaled);
        painter.drawImage(0, 0, colorLayer);
        painter.end();
    }
    if (backgroundImage.isNull())
        return QPixmap::fromImage(scaled);
    return QPixmap::fromImage(backgroundImage).scaled(W, H, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

QPixmap exportComposition(const ExportSource &source, int W, int H)
{
    QPixmap canvas;
    if (!source.backgroundImage.isNull()) {
        canvas = QPixmap::fromImage(source.backgroundImage);
    } else {
        QImage filled = source.backgroundPixmap.toImage().convertToFormat(QImage::Format_ARGB32);
        filled.fill(source.backgroundColor);
        canvas = QPixmap::fromImage(filled);
    }

    const int bw = static_cast<int>(source.backgroundExtent.width() * source.m11);
    const int bh = static_cast<int>(source.backgroundExtent.height() * source.m22);
    if (bw < 1 || bh < 1)
        return QPixmap();
    const double sx = static_cast<double>(W) / bw;
    const double sy = static_cast<double>(H) / bh;

    canvas = canvas.scaled(W, H, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const QImage object = source.previewImage.scaled(static_cast<int>(source.previewImage.width() * sx),
                                                     static_cast<int>(source.previewImage.height() * sy),
                                                     Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (canvas.isNull())
        return canvas;
    const double left = source.previewOffset.x() * sx;
    const double top = source.previewOffset.y() * sy;
    const double farthest = 1e9; // off every canvas, and still an int
    if (left < -farthest || left > farthest || top < -farthest || top > farthest)
        return canvas;
    QPainter painter(&canvas);
    painter.drawImage(static_cast<int>(left), static_cast<int>(top), object);
    painter.end();
    return canvas;
}

int exportHeight(int width, float aspect)
{
    return static_cast<int>(static_cast<float>(width) * aspect);
}

bool losesTransparency(QRgb backgroundColor, const QString &suffix)
{
    const QString upper = suffix.toUpper();
    return qAlpha(backgroundColor) != 255 &&
           (upper == QLatin1String("JPG") || upper == QLatin1String("JPEG"));
}

} // namespace reference
