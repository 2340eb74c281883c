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

/// A pixel waiting in a queue: its index in the planes and the place of its
/// first byte in the picture, whose rows may be padded.
struct Node
{
    std::int32_t index;
    std::int32_t offset;
};

/// Difference of the pixels whose first bytes lie at the two offsets.
int differenceAt(const uchar *bits, int offsetP, int offsetQ)
{
    const int blue = bits[offsetP] - bits[offsetQ];
    const int green = bits[offsetP + 1] - bits[offsetQ + 1];
    const int red = bits[offsetP + 2] - bits[offsetQ + 2];
    return std::abs(static_cast<int>(0.299 * red + 0.587 * green + 0.114 * blue));
}

} // namespace

int luminanceDifference(QRgb p, QRgb q)
{
    return std::abs(static_cast<int>(0.299 * (qRed(p) - qRed(q)) + 0.587 * (qGreen(p) - qGreen(q)) +
                                     0.114 * (qBlue(p) - qBlue(q))));
}

int watershed(const QImage &image, const QList<int> &keep, const QList<int> &remove, QList<int> &result,
              const std::vector<std::uint8_t> &edges)
{
    if (keep.isEmpty() || remove.isEmpty())
        return -1;

    const int width = image.width();
    const int height = image.height();
    const int stride = static_cast<int>(image.bytesPerLine());
    const uchar *bits = image.constBits();
    const int pixels = width * height;

    std::vector<std::int32_t> label(static_cast<std::size_t>(pixels), unreached);
    const auto at = [](int index) { return static_cast<std::size_t>(index); };
    std::vector<std::deque<Node>> queue(256);
    int level = 255;
    bool empty = true;

    for (const int index : keep)
        if (index >= 0 && index < pixels)
            label.at(at(index)) = 1;
    for (const int index : remove)
        if (index >= 0 && index < pixels)
            label.at(at(index)) = 2;

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
            const int offset = y * stride + 4 * x;
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
                cost = differenceAt(bits, offset, offset - 4);
            if (right)
                cost = std::min(cost, differenceAt(bits, offset, offset + 4));
            if (up)
                cost = std::min(cost, differenceAt(bits, offset, offset - stride));
            if (down)
                cost = std::min(cost, differenceAt(bits, offset, offset + stride));
            if (edges.at(at(p)) != 0)
                cost = edges.at(at(p));
            queue.at(at(cost)).push_front(Node{p, offset});
            level = std::min(level, cost);
            empty = false;
            label.at(at(p)) = queued;
        }
    }
    if (empty)
        return -1;

    while (!empty) {
        const Node node = queue.at(at(level)).back();
        queue.at(at(level)).pop_back();
        const int p = node.index;

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
            int offset;
            int pricedAgainst;
        };
        // The step down is priced with the pixel to the right.
        const Step steps[4] = {
            {p - 1, node.offset - 4, node.offset - 4},
            {p + 1, node.offset + 4, node.offset + 4},
            {p - width, node.offset - stride, node.offset - stride},
            {p + width, node.offset + stride, node.offset + 4},
        };
        bool wasEmpty = empty;
        for (const Step &step : steps) {
            if (label.at(at(step.index)) != unreached)
                continue;
            int cost = 0;
            if (edges.at(at(step.index)) != 0)
                cost = edges.at(at(step.index));
            else
                cost = differenceAt(bits, node.offset, step.pricedAgainst);
            queue.at(at(cost)).push_front(Node{step.index, step.offset});
            // With nothing else waiting, the old level says nothing any more.
            level = wasEmpty ? cost : std::min(level, cost);
            wasEmpty = false;
            empty = false;
            label.at(at(step.index)) = queued;
        }
    }

    for (int i = 0; i < pixels; ++i)
        if (label.at(at(i)) == 1)
            result.append(i);
    return 0;
}

int watershedMany(const QImage &image, const std::vector<std::vector<int>> &seeds, QList<QList<int>> &result,
                  const std::vector<std::uint8_t> &edges)
{
    if (seeds.empty())
        return -1;

    const int width = image.width();
    const int height = image.height();
    const int stride = static_cast<int>(image.bytesPerLine());
    const uchar *bits = image.constBits();
    const int pixels = width * height;

    std::vector<std::int32_t> label(static_cast<std::size_t>(pixels), unreached);
    const auto at = [](int index) { return static_cast<std::size_t>(index); };
    std::vector<std::deque<Node>> queue(256);
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
            const int offset = y * stride + 4 * x;
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
                cost = differenceAt(bits, offset, offset - 4);
            if (right)
                cost = std::min(cost, differenceAt(bits, offset, offset + 4));
            if (up)
                cost = std::min(cost, differenceAt(bits, offset, offset - stride));
            if (down)
                cost = std::min(cost, differenceAt(bits, offset, offset + stride));
            if (edges.at(at(p)) != 0)
                cost = 255;
            queue.at(at(cost)).push_front(Node{p, offset});
            level = std::min(level, cost);
            empty = false;
            label.at(at(p)) = queued;
        }
    }
    if (empty)
        return -1;

    while (!empty) {
        const Node node = queue.at(at(level)).back();
        queue.at(at(level)).pop_back();
        const int p = node.index;

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
            int offset;
            int pricedAgainst;
        };
        // The step down is priced with the pixel to the right.
        const Step steps[4] = {
            {p - 1, node.offset - 4, node.offset - 4},
            {p + 1, node.offset + 4, node.offset + 4},
            {p - width, node.offset - stride, node.offset - stride},
            {p + width, node.offset + stride, node.offset + 4},
        };
        bool wasEmpty = empty;
        for (const Step &step : steps) {
            if (label.at(at(step.index)) != unreached)
                continue;
            int cost = 0;
            if (edges.at(at(step.index)) != 0)
                cost = 255;
            else
                cost = differenceAt(bits, node.offset, step.pricedAgainst);
            queue.at(at(cost)).push_front(Node{step.index, step.offset});
            // With nothing else waiting, the old level says nothing any more.
            level = wasEmpty ? cost : std::min(level, cost);
            wasEmpty = false;
            empty = false;
            label.at(at(step.index)) = queued;
        }
    }

    for (int k = 1; k <= regions; ++k)
        result.append(QList<int>());
    for (int i = 0; i < pixels; ++i) {
        const int k = label.at(at(i));
        // A result that came in without its first list has no place for the
        // last region.
        if (k > 0 && k < result.size())
            result[k].append(i);
    }
    return regions;
}

} // namespace reference
