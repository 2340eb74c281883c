// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "core/LevelQueues.h"

namespace ornevo::flooding {

void LevelQueues::addBlock(Level &queue)
{
    Block *block = takeBlock();
    if (queue.last == nullptr) {
        queue.first = block;
        queue.head = block->indices.data();
    } else {
        queue.last->end = queue.tail;
        queue.last->next = block;
    }
    queue.last = block;
    queue.tail = block->indices.data();
    queue.limit = block->indices.data() + (blockSize - reserved + 1);
}

void LevelQueues::dropFirstBlock(Level &queue)
{
    Block *block = queue.first;
    queue.first = block->next;
    block->next = m_spare;
    m_spare = block;
}

LevelQueues::Block *LevelQueues::takeBlock()
{
    Block *block = m_spare;
    if (block != nullptr) {
        m_spare = block->next;
        block->next = nullptr;
    } else {
        m_blocks.push_back(std::make_unique_for_overwrite<Block>());
        block = m_blocks.back().get();
        block->indices.fill(m_fill);
    }
    return block;
}

} // namespace ornevo::flooding
