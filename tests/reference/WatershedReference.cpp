// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reference/WatershedReference.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <deque>

namespace reference {

namespace {

constexpr int unreached = 0;
constexpr int barrier = -1;
constexpr int queued = -2;

} // namespace

int luminanceDifference(std::uint32_t p, std::uint32_t q)
{
    const auto channel = [&](int c) { return channelOf(p, c) - channelOf(q, c); };
    return std::abs(static_cast<int>(0.299 * channel(2) + 0.587 * channel(1) + 0.114 * channel(0)));
}

std::optional<std::vector<std::int32_t>> watershed(const Picture &picture,
                                                   const std::vector<std::vector<int>> &seeds,
                                                   const std::vector<std::uint8_t> &edges, EdgeCost rule)
{
    const int width = picture.width;
    const int height = picture.height;
    const int pixels = width * height;
    if (pixels == 0)
        return std::nullopt;
    const auto difference = [&picture](int p, int q) {
        return luminanceDifference(picture.data.at(static_cast<std::size_t>(p)),
                                   picture.data.at(static_cast<std::size_t>(q)));
    };
    const auto edgeCost = [&edges, rule](int p) {
        return rule == EdgeCost::strength ? int{edges.at(static_cast<std::size_t>(p))} : 255;
    };

    std::vector<std::int32_t> label(static_cast<std::size_t>(pixels), unreached);
    const auto at = [](int index) { return static_cast<std::size_t>(index); };
    std::vector<std::deque<int>> queue(256);
    int level = 255;
    bool empty = true;

    const int regions = static_cast<int>(seeds.size());
    for (int k = 1; k <= regions; ++k)
        for (const int index : seeds.at(at(k - 1)))
            if (index >= 0 && index < pixels)
                label.at(at(index)) = k;

    for (int x = 0; x < width; ++x) {
        label.at(at(x)) = barrier;
        label.at(at((height - 1) * width + x)) = barrier;
    }
    for (int y = 0; y < height; ++y) {
        label.at(at(y * width)) = barrier;
        label.at(at(y * width + width - 1)) = barrier;
    }

    // The first front: every free pixel beside a seed.
    for (int y = 1; y <= height - 2; ++y) {
        for (int x = 1; x <= width - 2; ++x) {
            const int p = y * width + x;
            if (label.at(at(p)) < 0)
                label.at(at(p)) = unreached;
            if (label.at(at(p)) != unreached)
                continue;
            const bool left = label.at(at(p - 1)) > 0;
            const bool right = label.at(at(p + 1)) > 0;
            const bool up = label.at(at(p - width)) > 0;
            const bool down = label.at(at(p + width)) > 0;
            if (!left && !right && !up && !down)
                continue;
            int cost = 256;
            if (left)
                cost = difference(p, p - 1);
            if (right)
                cost = std::min(cost, difference(p, p + 1));
            if (up)
                cost = std::min(cost, difference(p, p - width));
            if (down)
                cost = std::min(cost, difference(p, p + width));
            if (edges.at(at(p)) != 0)
                cost = edgeCost(p);
            queue.at(at(cost)).push_front(p);
            level = std::min(level, cost);
            empty = false;
            label.at(at(p)) = queued;
        }
    }
    if (empty)
        return std::nullopt;

    while (!empty) {
        const int p = queue.at(at(level)).back();
        queue.at(at(level)).pop_back();

        if (queue.at(at(level)).empty()) {
            int next = level + 1;
            while (next <= 255 && queue.at(at(next)).empty())
                ++next;
            if (next <= 255)
                level = next;
            else
                empty = true;
        }

        int a = 0;
        if (label.at(at(p - 1)) >= 0)
            a = label.at(at(p - 1));
        for (const int n : {p + 1, p - width}) {
            if (label.at(at(n)) > 0) {
                if (a == 0)
                    a = label.at(at(n));
                else if (a != label.at(at(n)))
                    a = barrier;
            }
        }
        const int below = label.at(at(p + width));
        if (below > 0) {
            if (a == 0 || a == below)
                label.at(at(p)) = below;
            else
                label.at(at(p)) = barrier;
        } else {
            label.at(at(p)) = a;
        }
        if (label.at(at(p)) == barrier)
            continue;

        struct Step
        {
            int index;
            int costsAgainst;
        };
        // The step down costs the difference to the pixel to the right.
        const Step steps[4] = {
            {p - 1, p - 1},
            {p + 1, p + 1},
            {p - width, p - width},
            {p + width, p + 1},
        };
        bool wasEmpty = empty;
        for (const Step &step : steps) {
            if (label.at(at(step.index)) != unreached)
                continue;
            int cost = 0;
            if (edges.at(at(step.index)) != 0)
                cost = edgeCost(step.index);
            else
                cost = difference(p, step.costsAgainst);
            queue.at(at(cost)).push_front(step.index);
            // With nothing else waiting, the old level says nothing any more.
            level = wasEmpty ? cost : std::min(level, cost);
            wasEmpty = false;
            empty = false;
            label.at(at(step.index)) = queued;
        }
    }

    return label;
}

} // namespace reference
