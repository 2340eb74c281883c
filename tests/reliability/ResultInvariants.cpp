// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reliability/ResultInvariants.h"

#include "canvas/SceneLayers.h"
#include "canvas/SettingsKeys.h"
#include "tests/reference/ImageReferences.h"
#include "tests/reference/MaskReference.h"

#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QFileInfo>
#include <QGraphicsItem>
#include <QGraphicsView>
#include <QImageWriter>
#include <QPen>
#include <QScreen>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr int smallEnough = 30000; // pixels; the plain code takes its time
constexpr int modestTaps = 31;

/// As a file of this format would give it back.
QImage throughFile(const QImage &picture, const QByteArray &format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setQuality(100);
    writer.write(picture);
    return QImage::fromData(bytes, format);
}

bool samePixels(const QImage &left, const QImage &right)
{
    return left.size() == right.size() &&
           left.convertToFormat(QImage::Format_ARGB32) == right.convertToFormat(QImage::Format_ARGB32);
}

bool canBeWritten(const QString &path)
{
    const QFileInfo file(path);
    return !path.isEmpty() && !file.isDir() && QFileInfo(file.absolutePath()).isDir();
}

QList<reference::Marker> markersOn(const QGraphicsScene &scene)
{
    QList<reference::Marker> markers;
    for (const QGraphicsItem *item : scene.items()) {
        if (const auto *square = qgraphicsitem_cast<const QGraphicsRectItem *>(item))
            markers.append({square->type(), square->pen().color(), square->rect()});
        else if (const auto *disc = qgraphicsitem_cast<const QGraphicsEllipseItem *>(item))
            markers.append({disc->type(), disc->pen().color(), disc->rect()});
    }
    return markers;
}

/// Whether the plain code, which visits every pixel under every dab, is done in a moment.
bool areModest(const QList<reference::Marker> &markers)
{
    constexpr double most = 10000;
    constexpr double mostPixels = 1e6;
    double pixels = 0;
    for (const reference::Marker &marker : markers) {
        if (!QRectF(0, 0, most, most).contains(marker.rect.normalized()))
            return false;
        pixels += marker.rect.width() * marker.rect.height();
    }
    return pixels < mostPixels;
}

/// Pixels that differ visibly, and all those around them. Smoothly scaled pixels may differ by a hair where
/// the painting begins elsewhere, and edges by a pixel.
int solidDifferences(const QImage &left, const QImage &right)
{
    constexpr int hair = 24;
    const auto differ = [&](int x, int y) {
        const QRgb one = left.pixel(x, y);
        const QRgb other = right.pixel(x, y);
        return std::abs(qRed(one) - qRed(other)) > hair || std::abs(qGreen(one) - qGreen(other)) > hair ||
               std::abs(qBlue(one) - qBlue(other)) > hair;
    };
    int solid = 0;
    for (int y = 1; y < left.height() - 1; ++y)
        for (int x = 1; x < left.width() - 1; ++x) {
            bool all = differ(x, y);
            for (int neighbour = 0; all && neighbour < 9; ++neighbour)
                all = differ(x - 1 + neighbour % 3, y - 1 + neighbour / 3);
            solid += all ? 1 : 0;
        }
    return solid;
}

} // namespace

ResultInvariants::ResultInvariants(MainWindow &window, const RandomAnswers &answers)
    : m_window(window), m_probe(window), m_answers(answers)
{
    // The window's own slots were connected first, and have run when these do.
    const auto after = [&](const char *action, auto &&look) {
        connect(window.findChild<QAction *>(action), &QAction::triggered, this, look);
    };
    after("actionOpen", [this] { check(afterOpening()); });
    after("actionMask", [this] {
        check(mask());
        check(overlay());
    });
    after("actionSelect_Background", [this] { check(layers()); });
    after("actionSave", [this] { check(savedFile()); });
    after("actionSave_As", [this] { check(savedFile()); });
    after("actionExport", [this] { check(exportedFile()); });
    connect(window.findChild<QAction *>("actionPreview"), &QAction::toggled, this, [this](bool checked) {
        if (!checked)
            return;
        check(mask());
        check(cutOut());
        check(layers());
        if (cutAnew)
            cutAnew();
    });
}

void ResultInvariants::check(const QString &complaint)
{
    if (m_complaint.isEmpty())
        m_complaint = complaint;
}

QGraphicsPixmapItem *ResultInvariants::photo() const
{
    for (QGraphicsItem *item : m_probe.imageScene().items())
        if (auto *picture = qgraphicsitem_cast<QGraphicsPixmapItem *>(item))
            if (picture->zValue() != layers::maskOverlayZ)
                return picture;
    return nullptr;
}

bool ResultInvariants::isSmall() const
{
    return m_probe.workingImage().width() * m_probe.workingImage().height() <= smallEnough;
}

void ResultInvariants::beforeStep()
{
    m_complaint.clear();
    m_photoWasThere = photo() != nullptr;
    QGraphicsPixmapItem *topmost = m_probe.maskItem() != nullptr ? m_probe.maskItem() : photo();
    m_topmostBefore = topmost == nullptr ? QPixmap() : topmost->pixmap();
    m_photoBefore = m_probe.imagePixmap().cacheKey();
    m_exportsBefore = m_answers.exports();
}

QString ResultInvariants::afterStep()
{
    check(shownCutOut());
    check(storedSettings());
    return m_complaint;
}

QString ResultInvariants::afterOpening()
{
    if (m_probe.currentFile().isEmpty())
        return {}; // cancelled
    if (opened)
        opened();
    if (m_probe.undoStack().count() != 0)
        return "the history of the photo before is still there";
    if (!m_probe.outmask().isEmpty() || m_probe.maskItem() != nullptr)
        return "the mask of the photo before is still there";
    if (!m_probe.previewImage().isNull() || m_probe.previewOffset() != QPoint())
        return "the cut-out of the photo before is still there";
    if (m_window.findChild<QAction *>("actionPreview")->isChecked())
        return "the preview is on although another photo was opened";
    if (photo() == nullptr || !isSmall())
        return {};
    const std::vector<std::uint8_t> edges = reference::edgeMap(m_probe.workingImage());
    if (!std::equal(edges.cbegin(), edges.cend(), m_probe.edgeMap()))
        return "the edge map is not that of the photo";
    return {};
}

QString ResultInvariants::mask()
{
    if (photo() == nullptr)
        return {};
    if (const QString wrong = seedsOnTheirSide(); !wrong.isEmpty())
        return wrong;
    return isSmall() ? floodedMask() : QString();
}

QString ResultInvariants::floodedMask()
{
    const QImage &picture = m_probe.workingImage();
    const QList<reference::Marker> markers = markersOn(m_probe.imageScene());
    if (!areModest(markers))
        return {};
    const auto seeds = reference::collectSeeds(markers, picture.width(), picture.height());
    const auto pixels = static_cast<std::size_t>(picture.width() * picture.height());
    QList<int> expected;
    reference::watershed(picture, seeds.keep, seeds.remove, expected,
                         {m_probe.edgeMap(), m_probe.edgeMap() + pixels});
    // Not by ==, which passes null pointers to memcmp() where both are empty.
    const QList<int> &found = m_probe.outmask();
    return std::equal(expected.cbegin(), expected.cend(), found.cbegin(), found.cend())
               ? QString()
               : "the mask is not what the dabs lead to";
}

QString ResultInvariants::seedsOnTheirSide()
{
    const QImage &picture = m_probe.workingImage();
    const QList<reference::Marker> markers = markersOn(m_probe.imageScene());
    if (!areModest(markers))
        return {};
    const auto seeds = reference::collectSeeds(markers, picture.width(), picture.height());
    const auto pixelsOf = [&picture](const QList<int> &indices) {
        std::vector<char> pixels(static_cast<std::size_t>(picture.width()) *
                                 static_cast<std::size_t>(picture.height()));
        for (const int index : indices)
            if (index >= 0 && static_cast<std::size_t>(index) < pixels.size())
                pixels[static_cast<std::size_t>(index)] = 1;
        return pixels;
    };
    const std::vector<char> keep = pixelsOf(seeds.keep);
    const std::vector<char> remove = pixelsOf(seeds.remove);
    const std::vector<char> mask = pixelsOf(m_probe.outmask());
    if (seeds.keep.isEmpty() || seeds.remove.isEmpty())
        return {};
    // The frame of a picture belongs to no region.
    for (int y = 1; y < picture.height() - 1; ++y)
        for (int x = 1; x < picture.width() - 1; ++x) {
            const auto index = static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.width()) +
                               static_cast<std::size_t>(x);
            if (keep[index] != 0 && remove[index] == 0 && mask[index] == 0)
                return "a Keep dab is not in the mask";
            if (remove[index] != 0 && keep[index] == 0 && mask[index] != 0)
                return "a Remove dab is in the mask";
        }
    return {};
}

QString ResultInvariants::overlay()
{
    QGraphicsPixmapItem *item = m_probe.maskItem();
    constexpr int mostPixels = 300000;
    if (photo() == nullptr || item == nullptr || m_probe.outmask().size() > mostPixels)
        return {};
    const QSize size = m_probe.workingImage().size();
    if (!samePixels(item->pixmap().toImage(),
                    reference::overlayImage(m_probe.outmask(), size.width(), size.height())))
        return "the overlay is not the mask's";
    const double wanted =
        m_probe.settings().value(settings::maskOpacity.name, settings::maskOpacity.windowDefault).toDouble();
    if (item->pos() != QPointF() || !item->isVisible() || std::isnan(wanted) ||
        std::abs(item->opacity() - std::clamp(wanted, 0.0, 1.0)) > 1e-6)
        return std::isnan(wanted) ? QString() : "the overlay does not lie as it should";
    return {};
}

QString ResultInvariants::cutOut()
{
    if (photo() == nullptr || !isSmall())
        return {};
    auto &store = m_probe.settings();
    const bool smooth = store.value(settings::smoothEdges.name, settings::smoothEdges.windowDefault).toBool();
    const int taps = store.value(settings::gaussSize.name, settings::gaussSize.windowDefault).toInt();
    if (smooth && (taps < 1 || taps > modestTaps))
        return {};
    const QSize size = m_probe.workingImage().size();
    const QImage mask = reference::maskImage(m_probe.outmask(), size.width(), size.height(), smooth, taps);
    return reference::cutOut(m_probe.imagePixmap(), mask) == m_probe.previewImage()
               ? QString()
               : "the cut-out is not the mask's";
}

QString ResultInvariants::layers()
{
    if (photo() == nullptr || !isSmall() || !m_window.findChild<QAction *>("actionPreview")->isChecked())
        return {};
    if (m_probe.backgroundItem() == nullptr || m_probe.previewItem() == nullptr)
        return "the preview lacks a layer";
    const QSize size = m_probe.workingImage().size();
    const QPixmap expected =
        reference::backgroundLayer(m_probe.backgroundColor(), m_probe.backgroundImage(),
                                   QImage(":/icons/chessbackground.png"), size.width(), size.height());
    if (!samePixels(m_probe.backgroundItem()->pixmap().toImage(), expected.toImage()))
        return "the background of the preview is not what was chosen";
    if (m_probe.previewItem()->pos() != QPointF(m_probe.previewOffset()))
        return "the cut-out does not lie where the hand has left it";
    return {};
}

QString ResultInvariants::savedFile()
{
    const bool reopened =
        m_probe.imagePixmap().cacheKey() != m_photoBefore || (m_photoWasThere && photo() == nullptr);
    if (!reopened || m_topmostBefore.isNull() || !canBeWritten(m_probe.currentFile()))
        return {};
    const QImage saved(m_probe.currentFile());
    if (!samePixels(saved, throughFile(m_topmostBefore.toImage(), "JPG")))
        return "the saved file is not what was shown";
    return samePixels(m_probe.workingImage(), saved) ? QString() : "the saved file was not opened";
}

QString ResultInvariants::exportedFile()
{
    if (m_answers.exports() == m_exportsBefore)
        return {};
    const RandomAnswers::Export &wanted = m_answers.lastExport();
    const QByteArray suffix = QFileInfo(wanted.path).suffix().toLower().toLatin1();
    if (wanted.size.isEmpty() || !canBeWritten(wanted.path) || m_probe.backgroundItem() == nullptr ||
        m_probe.previewItem() == nullptr || !QByteArrayList{"jpg", "jpeg", "png"}.contains(suffix))
        return {};
    const QTransform zoom = m_probe.backgroundItem()->transform();
    const reference::ExportSource source{m_probe.backgroundImage(),
                                         m_probe.backgroundColor(),
                                         m_probe.backgroundItem()->pixmap(),
                                         m_probe.backgroundItem()->boundingRect().size(),
                                         zoom.m11(),
                                         zoom.m22(),
                                         m_probe.previewImage(),
                                         m_probe.previewOffset()};
    constexpr double mostScaled = 4000; // where the object is much larger, it is drawn in another way
    const QSizeF background = source.backgroundExtent * zoom.m11();
    if (background.width() < 1 || background.height() < 1 || source.previewImage.isNull() ||
        source.previewImage.width() * wanted.size.width() / background.width() > mostScaled ||
        source.previewImage.height() * wanted.size.height() / background.height() > mostScaled)
        return {};
    const QPixmap expected = reference::exportComposition(source, wanted.size.width(), wanted.size.height());
    if (samePixels(QImage(wanted.path), throughFile(expected.toImage(), suffix)))
        return {};
    return QStringLiteral("the exported file is not the composition (%1, %2 x %3)")
        .arg(QFileInfo(wanted.path).fileName())
        .arg(wanted.size.width())
        .arg(wanted.size.height());
}

QString ResultInvariants::shownCutOut()
{
    QGraphicsPixmapItem *item = m_probe.previewItem();
    const QImage &cutOut = m_probe.previewImage();
    if (item == nullptr || cutOut.isNull())
        return {};
    if (cutOut.cacheKey() == m_shownChecked && item->pixmap().cacheKey() == m_shownPixmap)
        return {};
    m_shownChecked = cutOut.cacheKey();
    m_shownPixmap = item->pixmap().cacheKey();
    return item->pixmap().toImage() == cutOut.convertToFormat(QImage::Format_ARGB32_Premultiplied)
               ? QString()
               : "the preview shows another cut-out than there is";
}

QString ResultInvariants::storedSettings()
{
    const auto byte = [this](const settings::Key &key) {
        return static_cast<unsigned char>(m_probe.settings().value(key.name, key.windowDefault).toInt());
    };
    const bool agree = m_probe.keepMarkerSize() == byte(settings::keepMarkerSize) &&
                       m_probe.removeMarkerSize() == byte(settings::removeMarkerSize) &&
                       m_probe.keepBrushSize() == byte(settings::keepBrushSize) &&
                       m_probe.removeBrushSize() == byte(settings::removeBrushSize) &&
                       m_probe.eraserSize() == byte(settings::eraserSize) &&
                       m_probe.brushIntensityKeep() == byte(settings::keepBrushIntensity) &&
                       m_probe.brushIntensityRemove() == byte(settings::removeBrushIntensity);
    return agree ? QString() : "the window goes by other settings than are stored";
}

QString ResultInvariants::staleScreen()
{
    if (!m_window.isVisible() || m_window.isMinimized() || QApplication::activeModalWidget() != nullptr)
        return {};
    const auto *canvas = m_window.findChild<QGraphicsView *>("graphicsView");
    constexpr double mostZoom =
        64; // far beyond it, single pixels fill the canvas, and rounding decides which
    const double zoom = canvas->transform().m11();
    if (!(zoom < mostZoom) || zoom < 1 / mostZoom)
        return {};
    QWidget *viewport = canvas->viewport();
    const auto shown = [&] {
        const QPoint corner = viewport->mapTo(&m_window, QPoint());
        return m_window.screen()
            ->grabWindow(m_window.winId(), corner.x(), corner.y(), viewport->width(), viewport->height())
            .toImage();
    };
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    const QImage before = shown();
    if (QGraphicsPixmapItem *item = m_probe.previewItem(); item != nullptr)
        item->setPixmap(item->pixmap().copy()); // with it go the mipmap levels that were kept in step
    if (QGraphicsPixmapItem *item = m_probe.backgroundItem(); item != nullptr)
        item->update(); // with it goes what was kept of its painting
    viewport->update();
    QCoreApplication::processEvents();
    const QImage after = shown();
    if (before.isNull() || before.size() != after.size())
        return {};
    const int different = solidDifferences(before, after);
    constexpr int few = 8;
    return different <= few ? QString() : QStringLiteral("%1 pixels on the screen are stale").arg(different);
}
