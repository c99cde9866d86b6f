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

    /** Takes the item off its scene. One that is on none stays with whoever has it. */
    void Detach()
    {
        if (item->Owner()) {
            owner = item->Owner();
            item->Detach();
            detached = true;
        }
    }

    /** The same, but one that is on no scene belongs to the command as well. */
    void TakeOver()
    {
        Detach();
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

    /** Puts the item onto a scene, or for null onto the one that it was taken from. One that was on no scene is left
     *  to whoever had it. */
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
