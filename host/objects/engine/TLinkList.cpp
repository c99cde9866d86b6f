#include <objects/engine/TLinkList.h>

#include <objects/TGraphicsBusEntryItem.h>
#include <objects/TGraphicsPinItem.h>
#include <objects/TGraphicsSectionItem.h>

#include <algorithm>
#include <iterator>

template <class Linked>
QVector<TGraphicsItem*> TLinksTo<Linked>::Items() const
{
    QVector<TGraphicsItem*> items;
    items.reserve(list.size());
    std::copy(list.cbegin(), list.cend(), std::back_inserter(items));
    return items;
}

template <class Linked>
void TLinksTo<Linked>::Add(TGraphicsItem* item)
{
    if (auto* added = dynamic_cast<Linked*>(item)) {
        list.append(added);
        node.Hold(added->LinkNode());
    }
}

template <class Linked>
void TLinksTo<Linked>::Remove(const TGraphicsItem* item)
{
    const auto found = std::find(list.rbegin(), list.rend(), item);
    if (found != list.rend()) {
        TGraphicsItem* removed = *found;
        list.erase(std::prev(found.base()));
        node.Drop(removed->LinkNode());
    }
}

template <class Linked>
bool TLinksTo<Linked>::Replace(const TGraphicsItem* from, TGraphicsItem* to)
{
    const auto found = std::find(list.begin(), list.end(), from);
    if (found == list.end()) {
        return false;
    }
    TGraphicsItem* replaced = *found;
    if (auto* added = dynamic_cast<Linked*>(to)) {
        *found = added;
        node.Hold(added->LinkNode());
    } else {
        list.erase(found);
    }
    node.Drop(replaced->LinkNode());
    return true;
}

template class TLinksTo<TGraphicsBusEntryItem>;
template class TLinksTo<TGraphicsPinItem>;
template class TLinksTo<TGraphicsSectionItem>;
