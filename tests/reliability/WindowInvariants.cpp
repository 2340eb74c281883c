// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reliability/WindowInvariants.h"

#include "canvas/MarkerDabs.h"
#include "canvas/SceneLayers.h"

#include <QAction>
#include <QGraphicsItem>
#include <QGraphicsView>

#include <algorithm>
#include <functional>

namespace {

constexpr int undoLimit = 200;

bool isBrushCircle(const QGraphicsItem &item)
{
    return item.type() == QGraphicsEllipseItem::Type && item.zValue() == layers::brushOutlineZ;
}

int brushCircles(const QGraphicsScene &scene)
{
    const auto items = scene.items();
    return static_cast<int>(
        std::count_if(items.begin(), items.end(), [](auto *item) { return isBrushCircle(*item); }));
}

} // namespace

WindowInvariants::WindowInvariants(MainWindow &window) : m_window(window), m_probe(window) {}

QString WindowInvariants::broken()
{
    for (const QString &complaint : {actions(), editingScene(), preview(), picture(), mask(), history()})
        if (!complaint.isEmpty())
            return complaint;
    return {};
}

QString WindowInvariants::actions()
{
    const bool preview = m_window.findChild<QAction *>("actionPreview")->isChecked();
    for (const char *name : {"actionMask", "actionKeep_arker", "action_Remove_Marker", "actionEraser"})
        if (m_window.findChild<QAction *>(name)->isEnabled() == preview)
            return QStringLiteral("%1 disagrees with the mode").arg(name);
    for (const char *name :
         {"actionForeground_Brush", "actionBackground_Brush", "actionHandTool", "actionSelect_Background",
          "actionBackgroundZoomMinus", "actionBackgroundZoomPlus"})
        if (m_window.findChild<QAction *>(name)->isEnabled() != preview)
            return QStringLiteral("%1 disagrees with the mode").arg(name);
    for (const char *name : {"actionOpen", "actionExport", "actionPreview", "actionZoom_In", "actionZoom_Out",
                             "actionPreferences"})
        if (!m_window.findChild<QAction *>(name)->isEnabled())
            return QStringLiteral("%1 is not enabled").arg(name);
    const auto *shown = m_window.findChild<QGraphicsView *>("graphicsView")->scene();
    if (shown != nullptr && shown != &m_probe.imageScene() && shown != &m_probe.previewScene())
        return "the canvas shows a scene of somebody else's";
    if (!preview && shown == &m_probe.previewScene())
        return "the preview is shown although it is off";
    return {};
}

QString WindowInvariants::editingScene()
{
    int photos = 0;
    int overlays = 0;
    for (QGraphicsItem *item : m_probe.imageScene().items()) {
        if (item->type() == QGraphicsPixmapItem::Type) {
            const bool overlay = item->zValue() == layers::maskOverlayZ;
            ++(overlay ? overlays : photos);
            if (overlay && item != m_probe.maskItem())
                return "an overlay is on the scene that the window does not know";
        } else if (item->type() != QGraphicsRectItem::Type && item->type() != QGraphicsEllipseItem::Type) {
            return "an item of an unknown kind is on the editing scene";
        }
    }
    if (photos > 1 || overlays > 1)
        return QStringLiteral("%1 photos and %2 overlays are on the editing scene").arg(photos).arg(overlays);
    if ((m_probe.maskItem() != nullptr) != (overlays == 1))
        return "the window and the scene disagree about the overlay";
    if (brushCircles(m_probe.imageScene()) + brushCircles(m_probe.previewScene()) > 1)
        return "there is more than one brush circle";
    return {};
}

QString WindowInvariants::preview()
{
    int pictures = 0;
    for (QGraphicsItem *item : m_probe.previewScene().items()) {
        if (item->type() == QGraphicsPixmapItem::Type) {
            ++pictures;
            if (item != m_probe.backgroundItem() && item != m_probe.previewItem())
                return "a picture is on the preview that the window does not know";
            continue;
        }
        // The Blue marker lays its discs on whatever is shown.
        const auto *disc = qgraphicsitem_cast<QGraphicsEllipseItem *>(item);
        if (disc == nullptr || (!isBrushCircle(*disc) && disc->pen().color() != QColor(markers::blueColour)))
            return "an item of an unknown kind is on the preview";
    }
    if (pictures != 0 && pictures != 2)
        return QStringLiteral("the preview holds %1 pictures").arg(pictures);
    for (QGraphicsPixmapItem *item : {m_probe.backgroundItem(), m_probe.previewItem()})
        if (item != nullptr && item->scene() != &m_probe.previewScene())
            return "an item of the preview is not on it";
    if (m_probe.previewItem() != nullptr && m_probe.previewItem()->pos() != QPointF(m_probe.previewOffset()))
        if (!m_probe.workingImage().isNull() &&
            m_probe.previewScene().items().contains(m_probe.previewItem()))
            if (m_window.findChild<QAction *>("actionPreview")->isChecked())
                return "the cut-out does not lie where it should";
    const QImage &cutOut = m_probe.previewImage();
    if (!cutOut.isNull() && cutOut.format() != QImage::Format_ARGB32)
        return "the cut-out has lost its format";
    return {};
}

QString WindowInvariants::picture()
{
    const QImage &picture = m_probe.workingImage();
    if (picture.isNull())
        return {};
    if (picture.format() != QImage::Format_RGB32 || picture.size() != m_probe.imagePixmap().size())
        return "the photo and its pixmap disagree";
    if (m_probe.edgeMap() == nullptr)
        return "the photo has no edge map";
    // Reading the first and the last byte lets the address sanitizer judge the size.
    m_lastEdges += m_probe.edgeMap()[0];
    m_lastEdges += m_probe.edgeMap()[static_cast<std::size_t>(picture.width()) *
                                         static_cast<std::size_t>(picture.height()) -
                                     1];
    return {};
}

QString WindowInvariants::mask()
{
    const QList<int> &mask = m_probe.outmask();
    if (mask.isSharedWith(m_checkedMask))
        return {};
    const qsizetype pixels = qsizetype{m_probe.workingImage().width()} * m_probe.workingImage().height();
    if (std::adjacent_find(mask.cbegin(), mask.cend(), std::greater_equal<>()) != mask.cend())
        return "the mask's pixels are not in increasing order";
    if (!mask.isEmpty() && (mask.constFirst() < 0 || mask.constLast() >= pixels))
        return "the mask has pixels off the picture";
    m_checkedMask = mask;
    return {};
}

QString WindowInvariants::history()
{
    const QUndoStack &stack = m_probe.undoStack();
    if (stack.count() > undoLimit || stack.index() > stack.count())
        return QStringLiteral("the undo history holds %1 entries").arg(stack.count());
    if (m_probe.pendingBrushRects().size() > 1000)
        return "brush squares are piling up";
    return {};
}
