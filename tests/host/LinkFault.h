#pragma once

#include <objects/TGraphicsSectionItem.h>

#include <QSet>

namespace Test {

/** What is wrong with the links of a design: one that its other item does not hold, or that leads to none of the items.
 *  Empty if nothing is. */
inline QString LinkFault(const QList<TGraphicsItem*>& items)
{
    const QSet<TGraphicsItem*> known(items.cbegin(), items.cend());
    for (TGraphicsItem* item : items) {
        const QVector<TGraphicsItem*> links = item->Links();
        for (TGraphicsItem* other : links) {
            if (!known.contains(other)) {
                return QStringLiteral("off the design: ") + item->StateLine();
            }
            if (other->Links().count(item) != links.count(other)) {
                return QStringLiteral("one-sided: ") + item->StateLine() + QStringLiteral(" | ") + other->StateLine();
            }
        }
        if (const auto* section = dynamic_cast<TGraphicsSectionItem*>(item)) {
            const auto* next = dynamic_cast<TGraphicsSectionItem*>(section->LastLink());
            if (next && next->FirstLink() != section) {
                return QStringLiteral("not head to tail: ") + item->StateLine();
            }
        }
    }
    return {};
}

} // namespace Test
