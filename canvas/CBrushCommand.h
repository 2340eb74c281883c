// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "canvas/ItemPointer.h"
#include "canvas/UndoSnapshot.h"

#include <QGraphicsPixmapItem>
#include <QImage>
#include <QPixmap>
#include <QRect>
#include <QUndoCommand>

/// Undo of one batch of brush dabs: keeps the pixels of the box around them from before and after. With the
/// first redo() they move into a temporary file, which goes with the command. The first redo(), which
/// QUndoStack::push() calls, changes no pixel: the batch is in the picture already.
class CBrushCommand : public QUndoCommand
{
public:
    /// \param item        shows the picture; borrowed, and left alone once it is gone
    /// \param area        the box around the dabs, in pixels of the picture; may reach outside it
    /// \param afterPixmap the whole picture as it is after the batch; need only live until the first redo()
    /// \param image       the picture, already brushed; borrowed, must outlive the command
    /// \param before      the pixels of `area` before the batch; null when `area` is empty
    CBrushCommand(QGraphicsPixmapItem *item, const QRect &area, QPixmap *afterPixmap, QImage *image,
                  const QImage &before);

    void undo() override;
    void redo() override;

private:
    void showFirstTime();
    void putBack(QImage pixels);

    ItemPointer<QGraphicsPixmapItem> m_item;
    QRect m_area;
    QPixmap *m_afterPixmap;
    QImage *m_image;
    UndoSnapshot m_snapshot;
};
