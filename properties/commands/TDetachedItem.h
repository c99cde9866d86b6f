#pragma once

#include <graphics/TGraphicsItem.h>
#include <graphics/TItemScene.h>

#include <QPointer>

#include <utility>

/**
 * An item that a command takes off the design and puts back: owned by the command exactly while it is off.
 *
 * The item itself is not looked at on destruction unless it is owned, since an item on the design may be gone by then.
 */
template <class Item>
class TDetachedItem
{
public:
    explicit TDetachedItem(Item* ofItem) : item(ofItem) {}
    TDetachedItem(TDetachedItem&& other) noexcept
        : item(other.item), owner(std::move(other.owner)), detached(std::exchange(other.detached, false))
    {}
    TDetachedItem& operator=(TDetachedItem&& other) noexcept
    {
        std::swap(item, other.item);
        std::swap(owner, other.owner);
        std::swap(detached, other.detached);
        return *this;
    }
    ~TDetachedItem()
    {
        if (detached) {
            delete item;
        }
    }

    Item* Get() const { return item; }
    bool IsDetached() const { return detached; }

    /** Takes the item off its scene. */
    void Detach()
    {
        owner = item->Owner();
        item->Detach();
        detached = true;
    }

    /** Puts the item back onto the scene that it was taken from, which owns it from then on. */
    void Attach()
    {
        if (detached && owner) {
            item->AttachTo(owner);
            detached = false;
        }
    }

private:
    Item* item;
    QPointer<TItemScene> owner;
    bool detached = false;
};
