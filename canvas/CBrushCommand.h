// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "canvas/UndoSnapshot.h"

#include <QGraphicsPixmapItem>
#include <QImage>
#include <QPixmap>
#include <QRect>
#include <QUndoCommand>

#include <functional>

/// Undo of one batch of brush dabs: keeps the pixels of the box around them from before and after. With the
/// first redo() they move into a temporary file, which goes with the command. The first redo(), which
/// QUndoStack::push() calls, changes no pixel: the batch is in the picture already.
class CBrushCommand : public QUndoCommand
{
public:
    /// Has whatever shows the picture now show what has changed in `area`.
    using Show = std::function<void(const QRect &area)>;

    /// \param show   called after every change, the first redo() included; what it borrows
    ///               must outlive the command
    /// \param area   the box around the dabs, in pixels of the picture; may reach outside it
    /// \param image  the picture, already brushed; borrowed, must outlive the command
    /// \param before the pixels of `area` before the batch; null when `area` is empty
    CBrushCommand(Show show, const QRect &area, QImage *image, const QImage &before);

    /// For one item that shows the picture as long as it lives.
    ///
    /// \param item        borrowed, and left alone once it is gone
    /// \param area        as above
    /// \param afterPixmap the whole picture as it is after the batch; need only live until the first redo()
    /// \param image       as above
    /// \param before      as above
    CBrushCommand(QGraphicsPixmapItem *item, const QRect &area, QPixmap *afterPixmap, QImage *image,
                  const QImage &before);

    void undo() override;
    void redo() override;

private:
    void putBack(QImage pixels);

    Show m_show;
    std::function<void()> m_showFirst; ///< for the first redo(); empty afterwards
    QRect m_area;
    QImage *m_image;
    canvas::UndoSnapshot m_snapshot;
};
