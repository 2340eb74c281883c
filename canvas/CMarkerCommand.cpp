// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/CMarkerCommand.h"

CMarkerCommand::CMarkerCommand(QGraphicsScene *scene, QGraphicsItem *item) : m_scene(scene), m_item(item) {}

void CMarkerCommand::undo()
{
    QGraphicsItem *item = m_item;
    if (item == nullptr)
        return;
    if (m_scene != nullptr && item->scene() == m_scene) // the eraser may have taken it off before
        m_scene->removeItem(item);
    delete item;
}

void CMarkerCommand::redo() {}
