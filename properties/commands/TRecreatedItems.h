#pragma once

#include <QHash>

#include <memory>
#include <vector>

class TGraphicsViaItem;
class TGraphicsWireItem;

/** Gives an item every attribute that a copy of @p model has. Links are no attributes. */
void MakeLike(TGraphicsViaItem& via, const TGraphicsViaItem& model);
void MakeLike(TGraphicsWireItem& wire, const TGraphicsWireItem& model);

/**
 * The items that a command makes at every redo and takes away at undo. They belong to the design while the command is
 * done, and to this while it is not.
 *
 * Later commands on the undo stack may hold such an item: when all is undone and redone, they must find it again and
 * not another one in its place. So the items of the last redo come back, made anew in all but their identity.
 */
template <class Item>
class TRecreatedItems
{
public:
    /** To be called at the beginning of a redo. */
    void StartOver() { next = 0; }

    /** The next item of this redo: the one that was made in its place before, which becomes like @p fresh, or else
     *  @p fresh itself. The caller owns it. */
    Item* Make(std::unique_ptr<Item> fresh)
    {
        if (next == away.size()) {
            away.emplace_back();
        }
        if (away[next]) {
            MakeLike(*away[next], *fresh);
            fresh = std::move(away[next]);
        }
        placeOf.insert(fresh.get(), next++);
        return fresh.release();
    }

    /** Takes an item that was made off its scene. Nothing may be linked with it any more. */
    void TakeAway(Item* item)
    {
        item->setSelected(false);
        item->Detach();
        away[placeOf.take(item)].reset(item);
    }

private:
    std::vector<std::unique_ptr<Item>> away; ///< In the order in which they are made; null for one on the design.
    QHash<const Item*, std::size_t> placeOf; ///< Of the items on the design, their index in `away`.
    std::size_t next = 0;
};
