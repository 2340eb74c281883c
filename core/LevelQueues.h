// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace ornevo::flooding {

/// First-in first-out queues of places (see TiledLayout.h), one for each of the 256 cost levels.
///
/// The queues grow in blocks that they share and use again, so that their memory follows the number of pixels
/// that wait at the same time, at four bytes each. A bitmap of the levels that are not empty names the lowest
/// one without a search through them.
///
/// A level is drained through a Drain, which keeps both ends of its queue in registers. The other levels
/// take their entries through push() meanwhile.
class LevelQueues
{
public:
    static constexpr int levels = 256;
    static_assert(levels == 256, "a cost is a byte, and empty() names four words of 64 levels");
    /// How many places behind the next entry Drain::ahead() looks.
    static constexpr std::size_t lookAhead = 8;
    /// How many entries a Drain takes between two calls of reserve().
    static constexpr std::size_t reserved = 4;

    class Drain;

    /// `fill` stands in the places of the queues that hold no entry yet: ahead() may return it.
    explicit LevelQueues(std::uint32_t fill) : m_fill(fill) {}

    /// Appends to a level that no Drain is open on.
    void push(unsigned level, std::uint32_t index)
    {
        Level &queue = m_levels[level];
        if (queue.tail >= queue.limit) [[unlikely]]
            addBlock(queue);
        *queue.tail++ = index;
        m_filled[level / 64] |= std::uint64_t{1} << (level % 64);
    }

    [[nodiscard]] bool empty() const { return (m_filled[0] | m_filled[1] | m_filled[2] | m_filled[3]) == 0; }

    /// The lowest level that is not empty. There must be one.
    [[nodiscard]] unsigned lowest() const
    {
        for (unsigned word = 0;; ++word)
            if (m_filled[word] != 0)
                return word * 64 + static_cast<unsigned>(std::countr_zero(m_filled[word]));
    }

private:
    static constexpr std::size_t blockSize = 496; // with the look-ahead behind it, a block is some 2 KiB

    struct Block
    {
        Block *next = nullptr;
        std::uint32_t *end = nullptr; ///< behind the last entry, once a next block was begun
        std::array<std::uint32_t, blockSize + lookAhead> indices;
    };

    /// A level keeps its last block when it turns empty: most levels are soon filled again.
    struct Level
    {
        std::uint32_t *head = nullptr;
        std::uint32_t *tail = nullptr;
        std::uint32_t *limit =
            nullptr; ///< from here on the tail has less than `reserved` places left in its block
        Block *first = nullptr;
        Block *last = nullptr;
    };

    void addBlock(Level &queue);
    void dropFirstBlock(Level &queue);
    Block *takeBlock();

    std::array<Level, levels> m_levels;
    std::array<std::uint64_t, levels / 64> m_filled{};
    Block *m_spare = nullptr;
    std::uint32_t m_fill;
    std::vector<std::unique_ptr<Block>> m_blocks;
};

/// The queue of one level while it is drained. close() must be called before the level is used otherwise.
class LevelQueues::Drain
{
public:
    Drain(LevelQueues &queues, unsigned level)
        : m_queues(queues),
          m_queue(queues.m_levels[level]),
          m_level(level),
          m_head(m_queue.head),
          m_end(m_queue.head),
          m_tail(m_queue.tail),
          m_limit(m_queue.limit)
    {
    }

    /// Whether there is an entry to take.
    [[nodiscard]] bool more() { return m_head != m_end || findMore(); }

    /// Takes the oldest entry. There must be one.
    std::uint32_t take() { return *m_head++; }

    /// A guess at an entry that is taken soon: what stands `lookAhead` places behind the next one. It may be
    /// an entry of the past or the fill, but is always a valid index.
    [[nodiscard]] std::uint32_t ahead() const { return m_head[lookAhead]; }

    /// Makes sure that `reserved` entries can be pushed.
    void reserve()
    {
        if (m_tail >= m_limit) [[unlikely]] {
            m_queue.tail = m_tail;
            m_queues.addBlock(m_queue);
            m_tail = m_queue.tail;
            m_limit = m_queue.limit;
        }
    }

    void push(std::uint32_t index) { *m_tail++ = index; }

    /// Puts the queue back.
    void close()
    {
        if (m_head == m_tail && m_queue.first == m_queue.last) {
            m_head = m_tail = m_queue.first->indices.data();
            m_queues.m_filled[m_level / 64] &= ~(std::uint64_t{1} << (m_level % 64));
        }
        m_queue.head = m_head;
        m_queue.tail = m_tail;
    }

private:
    /// Goes on to the entries that were pushed since the last look, or that stand in the next block.
    bool findMore()
    {
        if (m_queue.first != m_queue.last && m_head == m_queue.first->end) {
            m_queues.dropFirstBlock(m_queue);
            m_head = m_queue.first->indices.data();
        }
        m_end = m_queue.first == m_queue.last ? m_tail : m_queue.first->end;
        return m_head != m_end;
    }

    LevelQueues &m_queues;
    Level &m_queue;
    unsigned m_level;
    std::uint32_t *m_head;
    std::uint32_t *m_end; ///< entries up to here are known to be there
    std::uint32_t *m_tail;
    std::uint32_t *m_limit;
};

} // namespace ornevo::flooding
