// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "canvas/ItemPointer.h"

#include <QGraphicsPixmapItem>
#include <QImage>
#include <QPixmap>
#include <QRect>
#include <QTemporaryFile>
#include <QUndoCommand>

/// Undo of one batch of brush dabs: keeps the pixels of the box around them from before and after.
///
/// With the first redo() the pixels move into a temporary file, so that a long history costs disk and not
/// memory; where no file can be written they stay in memory. The file goes with the command. The first
/// redo(), which QUndoStack::push() calls, changes no pixel: the batch is in the picture already.
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
    void moveToDisk();
    void loadFromDisk();
    void putBack(const QImage &pixels);

    ItemPointer<QGraphicsPixmapItem> m_item;
    QRect m_area;
    QPixmap *m_afterPixmap;
    QImage *m_image;
    QImage m_before;
    QImage m_after;
    QTemporaryFile m_store;
};
