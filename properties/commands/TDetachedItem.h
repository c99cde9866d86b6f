#pragma once

#include <graphics/TGraphicsItem.h>
#include <graphics/TItemScene.h>

#include <QPointer>

#include <utility>

/**
 * An item that a command takes off the design and puts back: owned by the command exactly while it is off.
 *
 * The destructor does not dereference an item it does not own: an item on the design may have been deleted by then.
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

    /** Takes the item off its scene. An item without a scene keeps its owner. */
    void Detach()
    {
        if (item->Owner()) {
            owner = item->Owner();
            item->Detach();
            detached = true;
        }
    }

    /** The same, but takes ownership of an item without a scene too. */
    void TakeOver()
    {
        Detach();
        detached = true;
    }

    /** Puts the item back onto the scene it was taken from, which owns it from then on. */
    void Attach()
    {
        if (detached && owner) {
            item->AttachTo(owner);
            detached = false;
        }
    }

    /** Puts the item onto a scene, for null onto the one it was taken from. An item that had no scene goes back to its
     *  former owner. */
    void GiveTo(TItemScene* scene)
    {
        item->AttachTo(scene ? scene : owner.data());
        detached = false;
    }

private:
    Item* item;
    QPointer<TItemScene> owner;
    bool detached = false;
};
