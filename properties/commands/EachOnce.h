#pragma once

#include <QList>
#include <QSet>

/** The items of a list without duplicates, in order of first occurrence. Nulls are skipped. */
template <class Item>
QList<Item*> EachOnce(const QList<Item*>& given)
{
    QList<Item*> once;
    QSet<const Item*> known;
    for (Item* item : given) {
        if (item && !known.contains(item)) {
            known.insert(item);
            once.append(item);
        }
    }
    return once;
}
