#include <objects/TLinkList.h>

#include <objects/TGraphicsSectionItem.h>

#include <algorithm>

QVector<TGraphicsItem*> TLinkList::Items() const
{
    QVector<TGraphicsItem*> items;
    items.reserve(sections.size());
    std::copy(sections.cbegin(), sections.cend(), std::back_inserter(items));
    return items;
}

void TLinkList::Add(TGraphicsItem* section)
{
    if (auto* added = dynamic_cast<TGraphicsSectionItem*>(section)) {
        sections.append(added);
        node.Hold(added->LinkNode());
    }
}

bool TLinkList::Replace(const TGraphicsItem* from, TGraphicsItem* to)
{
    const auto found = std::find(sections.begin(), sections.end(), from);
    if (found == sections.end()) {
        return false;
    }
    TGraphicsItem* replaced = *found;
    auto* added = dynamic_cast<TGraphicsSectionItem*>(to);
    if (added) {
        *found = added;
        node.Hold(added->LinkNode());
    } else {
        sections.erase(found);
    }
    node.Drop(replaced->LinkNode());
    return true;
}
