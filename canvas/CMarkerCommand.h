// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "canvas/ItemPointer.h"

#include <QGraphicsScene>
#include <QPointer>
#include <QUndoCommand>

/// Undo of one marker dab that is already on the scene. Undoing takes the dab away and deletes it; there is
/// no way back, so redo() does nothing and a second undo() neither. A dab that has gone meanwhile is left
/// alone.
class CMarkerCommand : public QUndoCommand
{
public:
    CMarkerCommand(QGraphicsScene *scene, QGraphicsItem *item);

    void undo() override;
    void redo() override;

private:
    QPointer<QGraphicsScene> m_scene;
    ItemPointer<QGraphicsItem> m_item;
};
