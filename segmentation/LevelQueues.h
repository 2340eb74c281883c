// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

/// First-in first-out queues of pixel indices, one for each of the 256 cost levels.
///
/// The queues grow in blocks that they share and use again, so that their memory follows the number of pixels
/// that wait at the same time, at four bytes each. A bitmap of the levels that are not empty names the lowest
/// one without a search through them; it changes only when a level turns empty or filled.
class LevelQueues
{
public:
    static constexpr int levels = 256;

    void push(unsigned level, std::uint32_t index)
    {
        Level &queue = m_levels[level];
        if (queue.tail == nullptr || queue.end == blockSize)
            addBlock(queue, level);
        queue.tail->indices[queue.end++] = index;
    }

    [[nodiscard]] bool empty() const { return (m_filled[0] | m_filled[1] | m_filled[2] | m_filled[3]) == 0; }

    /// The lowest level that is not empty. There must be one.
    [[nodiscard]] unsigned lowest() const
    {
        for (unsigned word = 0;; ++word)
            if (m_filled[word] != 0)
                return word * 64 + static_cast<unsigned>(std::countr_zero(m_filled[word]));
    }

    /// Takes the oldest index of a level that is not empty.
    std::uint32_t pop(unsigned level)
    {
        Level &queue = m_levels[level];
        const std::uint32_t index = queue.head->indices[queue.begin++];
        if (queue.head == queue.tail ? queue.begin == queue.end : queue.begin == blockSize)
            dropHead(queue, level);
        return index;
    }

private:
    static constexpr std::uint32_t blockSize = 510; // a block is 2 KiB

    struct Block
    {
        Block *next;
        std::array<std::uint32_t, blockSize> indices;
    };

    struct Level
    {
        Block *head = nullptr;
        Block *tail = nullptr;
        std::uint32_t begin = 0; ///< next to pop, in head
        std::uint32_t end = 0;   ///< next free place, in tail
    };

    void addBlock(Level &queue, unsigned level)
    {
        Block *block = takeBlock();
        if (queue.tail == nullptr) {
            queue.head = block;
            queue.begin = 0;
            m_filled[level / 64] |= std::uint64_t{1} << (level % 64);
        } else {
            queue.tail->next = block;
        }
        queue.tail = block;
        queue.end = 0;
    }

    void dropHead(Level &queue, unsigned level)
    {
        Block *block = queue.head;
        queue.head = block->next;
        queue.begin = 0;
        if (queue.head == nullptr) {
            queue.tail = nullptr;
            m_filled[level / 64] &= ~(std::uint64_t{1} << (level % 64));
        }
        block->next = m_spare;
        m_spare = block;
    }

    Block *takeBlock()
    {
        Block *block = m_spare;
        if (block != nullptr) {
            m_spare = block->next;
        } else {
            m_blocks.push_back(std::make_unique_for_overwrite<Block>());
            block = m_blocks.back().get();
        }
        block->next = nullptr;
        return block;
    }

    std::array<Level, levels> m_levels;
    std::array<std::uint64_t, 4> m_filled{};
    Block *m_spare = nullptr;
    std::vector<std::unique_ptr<Block>> m_blocks;
};
