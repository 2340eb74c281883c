// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reliability/CutOutModel.h"

#include "canvas/SettingsKeys.h"
#include "cutout/AlphaBrush.h"
#include "tests/reference/MaskReference.h"

#include <QAction>

#include <algorithm>

namespace {

constexpr qsizetype undoLimit = 200;

/// Whether the plain code can cope with the squares: it makes a region of every row, on the picture or not.
bool areModest(const QList<QRect> &squares)
{
    constexpr int most = 4000;
    const QRect modest(-most, -most, 2 * most, 2 * most);
    return std::all_of(squares.cbegin(), squares.cend(),
                       [&](const QRect &square) { return square.isEmpty() || modest.contains(square); });
}

int byteOf(QSettings &settings, const settings::Key &key)
{
    return static_cast<unsigned char>(settings.value(key.name, key.windowDefault).toInt());
}

} // namespace

void CutOutModel::push(const Entry &entry)
{
    m_entries.resize(m_index);
    m_entries.append(entry);
    if (m_entries.size() > undoLimit)
        m_entries.removeFirst();
    m_index = m_entries.size();
}

void CutOutModel::dabPushed(QGraphicsItem *dab)
{
    push({dab, {}, {}, {}});
}

void CutOutModel::forgetDabs()
{
    for (Entry &entry : m_entries)
        entry.dab = nullptr;
}

QString CutOutModel::processBatch()
{
    const QList<QRect> squares = m_probe.pendingBrushRects();
    const QPoint offset = m_probe.previewOffset();
    const bool keep = m_window.findChild<QAction *>("actionForeground_Brush")->isChecked();
    const bool remove = m_window.findChild<QAction *>("actionBackground_Brush")->isChecked();
    const bool brushes = !squares.isEmpty() && (keep || remove) && !m_cutOut.isNull() &&
                         m_window.findChild<QAction *>("actionPreview")->isChecked() &&
                         m_probe.previewItem() != nullptr;
    QMetaObject::invokeMethod(&m_window, "on_ProcessBrushMouseEvent");
    if (!m_probe.pendingBrushRects().isEmpty())
        return "brush squares wait although they were processed";
    if (!brushes)
        return {};
    const bool modest = areModest(squares) && areModest({QRect(offset, QSize(1, 1))});
    const QRect area = cutout::brushBatch(squares, offset, m_cutOut.size()).box.intersected(m_cutOut.rect());
    const QImage before = area.isEmpty() ? QImage() : m_cutOut.copy(area);
    if (modest)
        reference::applyBrush(
            m_cutOut, squares, offset, keep ? reference::Brush::Keep : reference::Brush::Remove,
            byteOf(m_probe.settings(), keep ? settings::keepBrushIntensity : settings::removeBrushIntensity));
    else
        adopt();
    push({nullptr, area, before, area.isEmpty() ? QImage() : m_cutOut.copy(area)});
    return m_cutOut == m_probe.previewImage() ? QString() : "a batch of brush dabs has another effect";
}

// The cut-out may have been made anew since, of another size even.
void CutOutModel::putBack(const QRect &area, const QImage &pixels)
{
    const QRect here = area.intersected(m_cutOut.rect());
    if (pixels.isNull() || here.isEmpty())
        return;
    for (int y = here.top(); y <= here.bottom(); ++y)
        for (int x = here.left(); x <= here.right(); ++x)
            m_cutOut.setPixel(x, y, pixels.pixel(QPoint(x, y) - area.topLeft()));
}

QString CutOutModel::undo(Entry &entry)
{
    putBack(entry.area, entry.before);
    QGraphicsItem *dab = std::exchange(entry.dab, nullptr);
    const bool there = dab != nullptr && (m_probe.imageScene().items().contains(dab) ||
                                          m_probe.previewScene().items().contains(dab));
    return there ? "a dab is still there although it was undone" : QString();
}

QString CutOutModel::follow()
{
    const QUndoStack &stack = m_probe.undoStack();
    if (stack.count() == 0) {
        m_entries.clear();
        m_index = 0;
    }
    if (stack.count() != m_entries.size())
        return QStringLiteral("the history holds %1 entries, not %2")
            .arg(stack.count())
            .arg(m_entries.size());
    while (m_index > stack.index())
        if (const QString complaint = undo(m_entries[--m_index]); !complaint.isEmpty())
            return complaint;
    for (; m_index < stack.index(); ++m_index)
        putBack(m_entries[m_index].area, m_entries[m_index].after);
    return m_cutOut == m_probe.previewImage() ? QString() : "the cut-out is not what was made of it";
}
