#pragma once

#include <QHash>

#include <memory>
#include <vector>

/**
 * The items that a command creates at every redo and removes at undo. The design owns them while the command is done,
 * and this object while it is not.
 *
 * Later commands on the undo stack may hold such an item: when all is undone and redone, they must find the
 * same object again. So a redo reuses the items of the last one and only updates their attributes.
 */
template <class Item>
class TRecreatedItems
{
public:
    /** To be called at the beginning of a redo. */
    void StartOver() { next = 0; }

    /** The next item of this redo: the item of the last redo, with the attributes of @p fresh, or else @p fresh itself.
     *  The caller owns it. */
    Item* Make(std::unique_ptr<Item> fresh)
    {
        if (next == away.size()) {
            away.emplace_back();
        }
        if (away[next]) {
            away[next]->Assign(*fresh);
            fresh = std::move(away[next]);
        }
        placeOf.insert(fresh.get(), next++);
        return fresh.release();
    }

    /** Takes an item that this object made off its scene. It must have no links left. */
    void TakeAway(Item* item)
    {
        item->setSelected(false);
        item->Detach();
        away[placeOf.take(item)].reset(item);
    }

private:
    std::vector<std::unique_ptr<Item>> away; ///< In order of creation; null for an item on the design.
    QHash<const Item*, std::size_t> placeOf; ///< Of the items on the design, their index in `away`.
    std::size_t next = 0;
};
