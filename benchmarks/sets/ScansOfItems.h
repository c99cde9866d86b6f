#pragma once

#include "benchmarks/sets/Scans.h"

#include <benchmark/benchmark.h>

#include <QStringList>

/** Building blocks of scans. */
namespace Bench {

template <class... Values>
void Use(const Values&... values)
{
    (benchmark::DoNotOptimize(values), ...);
}

/** The items of a kind, one after the other. */
template <class Item, class Look>
void ForEach(const Items& items, int kind, Look look)
{
    for (const TGraphicsItem* item : items) {
        if (item->type() == kind) {
            look(*static_cast<const Item*>(item));
        }
    }
}

/** The last one of a kind. */
template <class Item>
const Item* LastOf(const Items& items, int kind)
{
    const Item* last = nullptr;
    ForEach<Item>(items, kind, [&last](const Item& item) { last = &item; });
    return last;
}

/** The first one of a kind, after reading the kind of every item, since a set must collect them. */
template <class Item>
const Item* FirstOf(const Items& items, int kind)
{
    const Item* first = nullptr;
    ForEach<Item>(items, kind, [&first](const Item& item) { first = first ? first : &item; });
    return first;
}

inline QStringRef NameWithoutQualifier(const QString& name)
{
    return name.leftRef(name.indexOf(QLatin1Char('@')));
}

} // namespace Bench
