#pragma once

#include <graphics/TGraphicsItem.h>

#include <QList>

class TGraphicsBusEntryItem;
class TGraphicsPinItem;
class TGraphicsSectionItem;

/** The items of one class that an item holds links to, once for each link. A member of that item. */
template <class Linked>
class TLinksTo
{
public:
    explicit TLinksTo(TLinkNode& ofItem) : node(ofItem) {}

    const QList<Linked*>& List() const { return list; }
    QVector<TGraphicsItem*> Items() const;

    /** Adds one link. Items of other classes are ignored. */
    void Add(TGraphicsItem* item);
    /** Removes the last link to an item, if any, so that making and cutting a link preserves the order. */
    void Remove(const TGraphicsItem* item);
    /** Replaces the first link by one to another item, or removes it; returns whether there was one. */
    bool Replace(const TGraphicsItem* from, TGraphicsItem* to);

private:
    TLinkNode& node;
    QList<Linked*> list;
};

extern template class TLinksTo<TGraphicsBusEntryItem>;
extern template class TLinksTo<TGraphicsPinItem>;
extern template class TLinksTo<TGraphicsSectionItem>;

/** The sections that a place, a pin or pad, holds links to, once for each of their ends. */
using TLinkList = TLinksTo<TGraphicsSectionItem>;
