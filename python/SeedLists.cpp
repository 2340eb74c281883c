// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "python/SeedLists.h"

#include <algorithm>
#include <iterator>

namespace ornevo::python {

namespace {

/// Pixels side by side mostly have the same label.
std::vector<std::int32_t> distinct(const std::vector<std::int32_t> &labels)
{
    std::vector<std::int32_t> names;
    std::unique_copy(labels.begin(), labels.end(), std::back_inserter(names));
    std::sort(names.begin(), names.end());
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return names;
}

class Ranks
{
public:
    explicit Ranks(const std::vector<std::int32_t> &names) : m_names(names) {}

    std::size_t of(std::int32_t label)
    {
        if (label != m_names[m_last])
            m_last = static_cast<std::size_t>(std::lower_bound(m_names.begin(), m_names.end(), label) -
                                              m_names.begin());
        return m_last;
    }

private:
    const std::vector<std::int32_t> &m_names;
    std::size_t m_last = 0;
};

} // namespace

SeedLists::SeedLists(const MarkedPixels &marked)
    : m_names(distinct(marked.labels)), m_ends(m_names.size()), m_indices(marked.indices.size())
{
    Ranks ranks(m_names);
    for (const std::int32_t label : marked.labels)
        ++m_ends[ranks.of(label)];
    std::size_t begin = 0;
    for (std::size_t &end : m_ends) { // for now the begin, which moves to the end as the list is filled
        const std::size_t size = end;
        end = begin;
        begin += size;
    }
    for (std::size_t i = 0; i < marked.indices.size(); ++i)
        m_indices[m_ends[ranks.of(marked.labels[i])]++] = marked.indices[i];
}

std::vector<PixelIndices> SeedLists::lists() const
{
    std::vector<PixelIndices> lists;
    lists.reserve(m_ends.size());
    std::size_t begin = 0;
    for (const std::size_t end : m_ends) {
        lists.emplace_back(m_indices.data() + begin, end - begin);
        begin = end;
    }
    return lists;
}

} // namespace ornevo::python
