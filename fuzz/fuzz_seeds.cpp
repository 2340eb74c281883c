// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "canvas/MarkerDabs.h"
#include "fuzz/Input.h"
#include "fuzz/WindowHarness.h"
#include "tests/reference/MaskReference.h"

#include <QGraphicsEllipseItem>
#include <QGraphicsRectItem>
#include <QPen>

#include <algorithm>
#include <bit>
#include <memory>
#include <vector>

namespace {

double anyNumber(Input &input)
{
    if (input.byte() % 8 != 0)
        return input.below(2000) / 16.0 - 20;
    const auto high = static_cast<std::uint64_t>(static_cast<std::uint32_t>(input.integer()));
    return std::bit_cast<double>(high << 32 | static_cast<std::uint32_t>(input.integer()));
}

constexpr double longestSide = 300; // left of and above the picture a square is not clipped

/// Whether the plain code can cope with it.
bool isModest(const QRectF &rect)
{
    return rect.x() > -1e3 && rect.y() > -1e3 && rect.x() < 1e3 && rect.y() < 1e3 && rect.width() > -1e3 &&
           rect.width() <= longestSide;
}

} // namespace

/// Dabs of any place and size, none of them a number perhaps.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    WindowHarness::application();
    Input input(data, size);
    const QSize picture(1 + input.below(60), 1 + input.below(60));
    const std::vector<QRgb> colours = {markers::keepColour, markers::removeColour, markers::blueColour,
                                       markers::penColour};
    std::vector<std::unique_ptr<QAbstractGraphicsShapeItem>> owner;
    QList<QGraphicsItem *> items;
    QList<reference::Marker> plain;
    bool modest = true;
    bool listable = true;
    for (int count = input.byte() % 10; count > 0; --count) {
        const QRectF rect(anyNumber(input), anyNumber(input), anyNumber(input), anyNumber(input));
        modest = modest && isModest(rect);
        listable = listable && !(rect.width() > longestSide); // none that is no number is, either
        if (input.byte() % 2 == 0)
            owner.push_back(std::make_unique<QGraphicsRectItem>(rect));
        else
            owner.push_back(std::make_unique<QGraphicsEllipseItem>(rect));
        owner.back()->setPen(QPen(QColor(colours[input.byte() % colours.size()])));
        items.append(owner.back().get());
        plain.append({owner.back()->type(), owner.back()->pen().color(), rect});
    }
    if (!listable)
        return 0;
    const cutout::Seeds seeds = markers::seedsOf(items, picture);
    if (!modest)
        return 0;
    const reference::Seeds expected = reference::collectSeeds(plain, picture.width(), picture.height());
    // Not by ==, which hands null pointers to memcmp() where both are empty.
    const auto same = [](const QList<int> &a, const QList<int> &b) {
        return std::equal(a.cbegin(), a.cend(), b.cbegin(), b.cend());
    };
    require(same(seeds.keep, expected.keep), "the Keep seeds are the reference's");
    require(same(seeds.remove, expected.remove), "the Remove seeds are the reference's");
    return 0;
}
