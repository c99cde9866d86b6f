#pragma once

#include "properties/commands/ItemsOfView.h"

#include <QSet>

#include <algorithm>

/**
 * The items that a view still shows: commands use it to detect dangling pointers. An item that is not found is never
 * dereferenced. All operations are linear in the items.
 */
class TExistingItems
{
public:
    using Lists = QVector<QVector<TGraphicsItem*>>;

    /** Queries the view once. Without a view, existence is unknown and all items are kept. */
    explicit TExistingItems(const QGraphicsView* view) : isKnown(view != nullptr), shown(ItemsOfView(view)) {}

    /**
     * Removes the items that the view no longer shows as one of these kinds, with their entries in the lists that are
     * parallel to @p items; a parallel list may be shorter.
     */
    template <class Items, class... ParallelLists>
    void KeepOnlyExisting(std::initializer_list<ItemType::Number> kinds, Items& items, ParallelLists&... parallel) const
    {
        if (!isKnown) {
            return;
        }
        const QSet<const TGraphicsItem*> live = Live(kinds);
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

    /** Removes the items that the view no longer shows, of any kind, from each of the lists. A list without such items
     *  is not modified. */
    void KeepOnlyExisting(Lists& lists) const
    {
        const bool isAnyFilled =
            std::any_of(lists.cbegin(), lists.cend(), [](const auto& list) { return !list.isEmpty(); });
        if (!isKnown || !isAnyFilled) {
            return;
        }
        const QSet<const TGraphicsItem*> live(shown.cbegin(), shown.cend());
        const auto isGone = [&live](const TGraphicsItem* item) { return !live.contains(item); };
        for (QVector<TGraphicsItem*>& list : lists) {
            if (std::any_of(list.cbegin(), list.cend(), isGone)) {
                list.erase(std::remove_if(list.begin(), list.end(), isGone), list.end());
            }
        }
    }

private:
    QSet<const TGraphicsItem*> Live(std::initializer_list<ItemType::Number> kinds) const
    {
        QSet<const TGraphicsItem*> live;
        for (const TGraphicsItem* item : shown) {
            if (std::find(kinds.begin(), kinds.end(), item->type()) != kinds.end()) {
                live.insert(item);
            }
        }
        return live;
    }

    template <class List>
    static void Move(List& list, int from, int to)
    {
        if (from != to && from < list.size()) {
            list[to] = list.at(from);
        }
    }

    /** Erases what follows the kept entries, if the list has an entry for each of the @p length items. */
    template <class List>
    static void Shorten(List& list, int length, int kept)
    {
        if (list.size() == length) {
            list.erase(list.begin() + kept, list.end());
        }
    }

    bool isKnown;
    QVector<TGraphicsItem*> shown;
};
