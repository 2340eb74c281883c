// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/WindingRegion.h"

#include <QList>

#include <algorithm>
#include <cstdint>
#include <vector>

namespace cutout {

namespace {

/// A side of the polygon that is not level, from its upper end down.
struct Edge
{
    std::int64_t top;
    std::int64_t bottom; ///< the first row that it no longer reaches
    std::int64_t x;      ///< at the top
    std::int64_t dx;     ///< from the top to the bottom
    int winding;         ///< +1 where the polygon goes down, -1 where it goes up
};

/// The first column right of an edge in a row.
struct Crossing
{
    std::int64_t x;
    int winding;
};

std::int64_t ceilOfQuotient(std::int64_t dividend, std::int64_t divisor)
{
    const std::int64_t quotient = dividend / divisor;
    return quotient + (dividend % divisor > 0 ? 1 : 0);
}

/// The edges that reach into the rows of `bounds`, by their tops.
std::vector<Edge> edgesOf(const QPolygon &polygon, const QRect &bounds)
{
    std::vector<Edge> edges;
    for (qsizetype i = 0; i < polygon.size(); ++i) {
        const QPoint from = polygon[i];
        const QPoint to = polygon[i + 1 < polygon.size() ? i + 1 : 0];
        const bool down = from.y() < to.y();
        const QPoint upper = down ? from : to;
        const QPoint lower = down ? to : from;
        if (upper.y() != lower.y() && upper.y() <= bounds.bottom() && lower.y() > bounds.top())
            edges.push_back(
                {upper.y(), lower.y(), upper.x(), std::int64_t{lower.x()} - upper.x(), down ? 1 : -1});
    }
    std::sort(edges.begin(), edges.end(), [](const Edge &a, const Edge &b) { return a.top < b.top; });
    return edges;
}

/// Appends what lies between the crossings, which are sorted, to the spans: pairs of a first column and the
/// one after the last.
void appendSpans(const std::vector<Crossing> &crossings, const QRect &bounds, std::vector<int> &spans)
{
    const std::int64_t left = bounds.left();
    const std::int64_t end = std::int64_t{bounds.right()} + 1;
    int winding = 0;
    std::int64_t begin = 0;
    for (const Crossing &crossing : crossings) {
        const int before = winding;
        winding += crossing.winding;
        if (before == 0)
            begin = crossing.x;
        if (winding != 0 || before == 0)
            continue;
        const auto first = static_cast<int>(std::clamp(begin, left, end));
        const auto last = static_cast<int>(std::clamp(crossing.x, left, end));
        if (first == last)
            continue;
        if (!spans.empty() && spans.back() == first)
            spans.back() = last; // QRegion wants no two rectangles side by side
        else
            spans.insert(spans.end(), {first, last});
    }
}

/// Rows of spans, gathered into as few rectangles as a region has.
class Rows
{
public:
    void append(int y, const std::vector<int> &spans)
    {
        if (spans != m_spans) {
            flush(y);
            m_spans = spans;
            m_top = y;
        }
    }
    QRegion takeAll(int end)
    {
        flush(end);
        QRegion region;
        region.setRects(m_rects.constData(), static_cast<int>(m_rects.size()));
        return region;
    }

private:
    void flush(int end)
    {
        for (std::size_t i = 0; i < m_spans.size(); i += 2)
            m_rects.append(QRect(m_spans[i], m_top, m_spans[i + 1] - m_spans[i], end - m_top));
    }

    QList<QRect> m_rects;
    std::vector<int> m_spans;
    int m_top = 0;
};

} // namespace

QRegion windingRegion(const QPolygon &polygon, const QRect &bounds)
{
    if (polygon.size() <= 5) // perhaps a rectangle, of which QRegion takes the far sides in as well
        return QRegion(polygon, Qt::WindingFill).intersected(bounds);
    if (bounds.isEmpty())
        return {};
    const std::vector<Edge> edges = edgesOf(polygon, bounds);
    std::size_t next = 0;
    std::vector<Edge> active;
    std::vector<Crossing> crossings;
    std::vector<int> spans;
    Rows rows;
    for (int y = bounds.top(); y <= bounds.bottom(); ++y) {
        for (; next < edges.size() && edges[next].top <= y; ++next)
            active.push_back(edges[next]);
        std::erase_if(active, [y](const Edge &edge) { return edge.bottom <= y; });
        crossings.clear();
        for (const Edge &edge : active)
            crossings.push_back(
                {edge.x + ceilOfQuotient(edge.dx * (y - edge.top), edge.bottom - edge.top), edge.winding});
        std::sort(crossings.begin(), crossings.end(),
                  [](const Crossing &a, const Crossing &b) { return a.x < b.x; });
        spans.clear();
        appendSpans(crossings, bounds, spans);
        rows.append(y, spans);
    }
    return rows.takeAll(bounds.bottom() + 1);
}

} // namespace cutout
