// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QGraphicsItem>
#include <QVariant>

#include <memory>

namespace canvas {

/// A borrowed pointer to a scene item that becomes null when the item dies, whoever deletes it: the scene on
/// a clear(), an undo command, or the owner. It is to items what QPointer is to objects.
template <typename Item> class ItemPointer
{
public:
    ItemPointer() = default;
    ItemPointer(Item *item) : m_item(item) // implicit, as for QPointer
    {
        if (item != nullptr)
            m_life = lifeOf(*item);
    }

    [[nodiscard]] Item *get() const { return m_life.expired() ? nullptr : m_item; }
    operator Item *() const { return get(); }
    Item *operator->() const { return get(); }

private:
    struct Life
    {
    };

    // The item's own custom data goes with the item, so a token there tells whether it lives.
    static std::shared_ptr<void> lifeOf(QGraphicsItem &item)
    {
        constexpr int key = 0x6F726E76; // away from the small keys that others use
        auto life = item.data(key).value<std::shared_ptr<void>>();
        if (life == nullptr) {
            life = std::make_shared<Life>();
            item.setData(key, QVariant::fromValue(life));
        }
        return life;
    }

    Item *m_item = nullptr;
    std::weak_ptr<void> m_life;
};

} // namespace canvas
