// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "canvas/ItemPointer.h"

#include <QGraphicsScene>
#include <QPointer>
#include <QUndoCommand>

/// Undo of one marker dab, which is on the scene already; every mouse move lays one. Undoing takes the dab
/// away and deletes it; there is no way back, so that redo() and a second undo() do nothing. A dab that has
/// gone meanwhile is left alone; one that was never undone outlives the command. Scene and dab are borrowed.
class CMarkerCommand : public QUndoCommand
{
public:
    CMarkerCommand(QGraphicsScene *scene, QGraphicsItem *item);

    void undo() override;
    void redo() override;

private:
    QPointer<QGraphicsScene> m_scene;
    canvas::ItemPointer<QGraphicsItem> m_item;
};
