// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reliability/CanvasModel.h"

#include "canvas/MarkerDabs.h"
#include "canvas/SceneLayers.h"

#include <QAction>
#include <QCoreApplication>
#include <QPen>

#include <algorithm>
#include <cmath>

namespace {

constexpr double farthest = 1e8; // beyond it, other rules hold than those of an int
constexpr int undoLimit = 200;

bool isNear(QPointF point)
{
    return std::abs(point.x()) < farthest && std::abs(point.y()) < farthest;
}

bool isDab(const QGraphicsItem *item)
{
    return item->type() == QGraphicsRectItem::Type || item->type() == QGraphicsEllipseItem::Type;
}

int dabsIn(const QList<QGraphicsItem *> &items)
{
    return static_cast<int>(std::count_if(items.cbegin(), items.cend(), isDab));
}

bool isPress(const QEvent &event)
{
    return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick;
}

QPoint rounded(QPointF point)
{
    return {static_cast<int>(std::round(point.x())), static_cast<int>(std::round(point.y()))};
}

} // namespace

CanvasModel::CanvasModel(MainWindow &window)
    : m_probe(window), m_canvas(window.findChild<QGraphicsView *>("graphicsView"))
{
    struct Row
    {
        const char *action;
        DrawingTools tool;
    };
    for (const Row &row :
         {Row{"actionKeep_arker", ToolKeepMarker}, Row{"action_Remove_Marker", ToolRemoveMarker},
          Row{"actionEraser", ToolEraser}, Row{"actionForeground_Brush", ToolKeepBrush},
          Row{"actionBackground_Brush", ToolRemoveBrush}, Row{"actionHandTool", ToolHand},
          Row{"actionBlueMarker", ToolBlueMarker}})
        connect(window.findChild<QAction *>(row.action), &QAction::toggled, this,
                [this, tool = row.tool](bool checked) { m_tool = checked ? tool : m_tool; });
    connect(window.findChild<QAction *>("actionPreview"), &QAction::toggled, this,
            [this] { m_tool = ToolNone; });
}

int CanvasModel::sizeOf(const settings::Key &key) const
{
    const auto stored = [this](const settings::Key &wanted) {
        return m_probe.settings().value(wanted.name, wanted.viewDefault);
    };
    return static_cast<unsigned char>(
        stored(stored(settings::sameSize).toBool() ? settings::keepMarkerSize : key).toInt());
}

std::optional<QRect> CanvasModel::brushSquare(QPoint position, const settings::Key &size) const
{
    const int half = sizeOf(size) / 2;
    const QPointF first = m_canvas->mapToScene(position - QPoint(half, half));
    const QPointF second = m_canvas->mapToScene(position + QPoint(half, half));
    if (!isNear(first) || !isNear(second))
        return {};
    return QRect(static_cast<int>(first.x()), static_cast<int>(first.y()),
                 static_cast<int>(second.x() - first.x()), static_cast<int>(second.y() - first.y()));
}

CanvasModel::Expected CanvasModel::predict(const QMouseEvent &event) const
{
    Expected expected;
    const QPoint position = event.position().toPoint();
    const QRectF picture =
        m_canvas->scene()->sceneRect(); // first: it may have to grow, and the canvas scrolls
    const QPointF there = m_canvas->mapToScene(position);
    const bool press = isPress(event);
    const bool move = event.type() == QEvent::MouseMove;
    if (m_tool == ToolKeepMarker || m_tool == ToolRemoveMarker) {
        if (move && there.x() >= 1 && there.y() >= 1 && std::floor(there.x()) < picture.width() &&
            std::floor(there.y()) < picture.height())
            expected.dab = there;
    } else if (m_tool == ToolEraser && press) {
        const int half = sizeOf(settings::eraserSize) / 2;
        expected.erased = QRectF(m_canvas->mapToScene(position - QPoint(half, half)),
                                 m_canvas->mapToScene(position + QPoint(half, half)));
    } else if ((m_tool == ToolKeepBrush || m_tool == ToolRemoveBrush) && (press || move)) {
        expected.square = brushSquare(position, m_tool == ToolKeepBrush ? settings::keepBrushSize
                                                                        : settings::removeBrushSize);
    } else if (m_tool == ToolHand && move && m_pressed) {
        const QPointF from = m_canvas->mapToScene(m_handFrom);
        if (isNear(there) && isNear(from) && isNear(m_probe.previewOffset()))
            expected.offset = m_probe.previewOffset() + rounded(there) - rounded(from);
    }
    return expected;
}

void CanvasModel::trackPress(const QMouseEvent &event)
{
    if (isPress(event))
        m_pressed = true;
    if (event.type() == QEvent::MouseButtonRelease)
        m_pressed = false;
    m_handFrom = event.position().toPoint();
}

QString CanvasModel::send(QMouseEvent &event)
{
    QWidget *viewport = m_canvas->viewport();
    QGraphicsScene *scene = m_canvas->scene();
    if (scene == nullptr) {
        QCoreApplication::sendEvent(viewport, &event);
        trackPress(event);
        return {};
    }
    const Expected expected = predict(event);
    const int entries = m_probe.undoStack().index();
    const qsizetype squares = m_probe.pendingBrushRects().size();
    const bool press = isPress(event);
    const qsizetype all = expected.erased ? scene->items().size() : 0;
    const int touched = expected.erased ? dabsIn(scene->items(*expected.erased)) : 0;

    QCoreApplication::sendEvent(viewport, &event);

    const QString dab = compareDab(expected.dab, entries);
    const bool pressed = m_pressed;
    trackPress(event);
    if (!dab.isEmpty())
        return dab;
    if (expected.erased &&
        (dabsIn(scene->items(*expected.erased)) != 0 || scene->items().size() != all - touched))
        return "the eraser left something, or took something else";
    if (expected.offset && m_probe.previewOffset() != *expected.offset)
        return QStringLiteral("the Hand tool has moved the object to %1, %2 instead of %3, %4")
            .arg(m_probe.previewOffset().x())
            .arg(m_probe.previewOffset().y())
            .arg(expected.offset->x())
            .arg(expected.offset->y());
    if (expected.square && (press || pressed)) {
        const bool counts = !press || scene->sceneRect().contains(*expected.square);
        const QList<QRect> &pending = m_probe.pendingBrushRects();
        if (pending.size() != squares + (counts ? 1 : 0))
            return "a brush square was lost, or came from nowhere";
        if (counts && pending.constLast() != *expected.square)
            return "a brush square is not where the pointer is";
    }
    return {};
}

QGraphicsItem *CanvasModel::newestDab(QPointF position) const
{
    // Those of one layer lie the higher the later they came.
    const QRectF around(position - QPointF(1, 1), QSizeF(2, 2));
    for (QGraphicsItem *item : m_canvas->scene()->items(around, Qt::IntersectsItemBoundingRect))
        if (item->zValue() == layers::dabZ)
            return item;
    return nullptr;
}

QString CanvasModel::compareDab(const std::optional<QPointF> &expected, int entriesBefore)
{
    const QUndoStack &stack = m_probe.undoStack();
    // At the limit the oldest entry goes when one is added.
    const bool full = entriesBefore == undoLimit;
    const bool laid = stack.index() != entriesBefore || (full && expected && m_pressed);
    if (!laid)
        return expected && m_pressed ? "a marker laid no dab" : QString();
    if (!expected)
        return "a dab came from nowhere";
    const bool keep = m_tool == ToolKeepMarker;
    const bool hasSize = sizeOf(keep ? settings::keepMarkerSize : settings::removeMarkerSize) != 0;
    if (!hasSize) { // the scene finds nothing where there is no area
        if (dabPushed)
            dabPushed(nullptr);
        return {};
    }
    QGraphicsItem *dab = newestDab(*expected);
    if (const QString wrong = wrongDab(dab, *expected); !wrong.isEmpty())
        return wrong;
    if (dabPushed)
        dabPushed(dab);
    return {};
}

QString CanvasModel::wrongDab(QGraphicsItem *dab, QPointF position) const
{
    if (dab == nullptr)
        return "a dab is not where the pointer is";
    const bool keep = m_tool == ToolKeepMarker;
    const int size = sizeOf(keep ? settings::keepMarkerSize : settings::removeMarkerSize);
    const QRectF place(position, QSizeF(size, size));
    const auto *square = qgraphicsitem_cast<QGraphicsRectItem *>(dab);
    const auto *disc = qgraphicsitem_cast<QGraphicsEllipseItem *>(dab);
    if ((square != nullptr) != keep || (disc != nullptr) == keep)
        return "a dab is that of another marker";
    if ((keep ? square->rect() : disc->rect()) != place)
        return "a dab has another place or size";
    const QColor colour(keep ? markers::keepColour : markers::removeColour);
    if ((keep ? square->pen() : disc->pen()).color() != colour)
        return "a dab has another colour";
    return {};
}
