#pragma once

#include "properties/commands/ItemsOfView.h"

#include <QSet>

/**
 * Which items a view still shows: what commands ask before they follow a stored pointer. An item that is not found is
 * compared only.
 */
class TExistingItems
{
public:
    /** Asks the view once for the items of the given kinds. */
    TExistingItems(const QGraphicsView* view, std::initializer_list<ItemType::Number> kinds)
    {
        for (TGraphicsItem* item : ItemsOfView(view, kinds)) {
            live.insert(item);
        }
    }

    /**
     * Removes the items that no longer exist, and with each its entries in the lists that are parallel to @p items; a
     * parallel list may be shorter. Linear in the items.
     */
    template <class Items, class... ParallelLists>
    void KeepOnlyExisting(Items& items, ParallelLists&... parallel) const
    {
        int kept = 0;
        for (int i = 0; i < items.size(); ++i) {
            if (live.contains(items.at(i))) {
                Move(items, i, kept);
                (Move(parallel, i, kept), ...);
                ++kept;
            }
        }
        const int removed = items.size() - kept;
        if (removed > 0) {
            (Shorten(parallel, items.size(), kept), ...);
            Shorten(items, items.size(), kept);
        }
    }

private:
    template <class List>
    static void Move(List& list, int from, int to)
    {
        if (from != to && from < list.size()) {
            list[to] = list.at(from);
        }
    }

    /** Drops what is left over behind the kept entries of a list that was as long as @p length, or shorter. */
    template <class List>
    static void Shorten(List& list, int length, int kept)
    {
        if (list.size() == length) {
            list.erase(list.begin() + kept, list.end());
        }
    }

    QSet<const TGraphicsItem*> live;
};
