// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#ifndef ORNEVO_TESTS_REFERENCE_MASKREFERENCE_H
#define ORNEVO_TESTS_REFERENCE_MASKREFERENCE_H

#include <QColor>
#include <QImage>
#include <QList>
#include <QPixmap>
#include <QPoint>
#include <QRect>
#include <QRectF>
#include <QSizeF>
#include <QString>

namespace reference {

/// What the mask computation looks at of one item of the editing scene.
/// \a type is the number of the graphics item's kind: 3 for a rectangle, 4 for
/// an ellipse.
struct Marker
{
    int type = 0;
    QColor penColor;
    QRectF rect;
};

struct Seeds
{
    QList<int> keep;
    QList<int> remove;
    QList<int> blue;
};

/// Indices of the seed square of an item's rectangle in a W x H picture.
QList<int> seedSquare(const QRectF &rect, int W, int H);

/// Seeds of all markers, in the order of the items.
Seeds collectSeeds(const QList<Marker> &items, int W, int H);

/// White image with the listed pixels in green.
QImage overlayImage(const QList<int> &indices, int W, int H);

/// White image with the listed pixels in black.
QImage hardMaskImage(const QList<int> &indices, int W, int H);

/// The hard mask, smoothed with a kernel of \a gaussSize if asked for.
QImage maskImage(const QList<int> &indices, int W, int H, bool smoothEdges, int gaussSize);

/// The photo with alpha = 255 - blue of the mask.
QImage cutOut(const QPixmap &photo, const QImage &mask);

enum class Brush { Keep, Remove };

/// What one batch of brush squares leaves for its undo entry.
struct BrushBatch
{
    QRect box;
    QImage before;
};

/// Raises or lowers the alpha of \a preview inside the union of the dabs.
/// With \a skipLastRect false, \a lastRect is left out.
BrushBatch applyBrush(QImage &preview, const QList<QRect> &rects, QPoint previewOffset, Brush brush,
                      int intensity, bool skipLastRect = true, const QRect &lastRect = QRect());

/// The background layer of the preview.
QPixmap backgroundLayer(QRgb backgroundColor, const QImage &backgroundImage, const QImage &checkerboard,
                        int W, int H);

/// What the export reads of the preview.
struct ExportSource
{
    QImage backgroundImage;   ///< null when a colour is used
    QRgb backgroundColor = 0; ///< used when backgroundImage is null
    QPixmap backgroundPixmap; ///< the pixmap of the background item
    QSizeF backgroundExtent;  ///< size of the background item's bounding rectangle
    double m11 = 1.0;         ///< horizontal scale of the background item
    double m22 = 1.0;         ///< vertical scale of the background item
    QImage previewImage;
    QPoint previewOffset;
};

/// The picture that the export writes. Null where the background item's extent
/// is empty, since the object has no scale then.
QPixmap exportComposition(const ExportSource &source, int W, int H);

/// Height that goes with a width while the aspect ratio is kept.
int exportHeight(int width, float aspect);

/// True where the warning about lost transparency is due.
bool losesTransparency(QRgb backgroundColor, const QString &suffix);

} // namespace reference

#endif
