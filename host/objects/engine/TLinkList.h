#pragma once

#include <graphics/TGraphicsItem.h>

#include <QList>

class TGraphicsBusEntryItem;
class TGraphicsPinItem;
class TGraphicsSectionItem;

/** The items of one class that an item holds links to, once for each link. A part of that item. */
template <class Linked>
class TLinksTo
{
public:
    explicit TLinksTo(TLinkNode& ofItem) : node(ofItem) {}

    const QList<Linked*>& List() const { return list; }
    QVector<TGraphicsItem*> Items() const;

    /** Adds one link. What is of another class is ignored. */
    void Add(TGraphicsItem* item);
    /** Removes the last link, if there is one, so that one that is made and cut again leaves the order as it was. */
    void Remove(const TGraphicsItem* item);
    /** Puts another item in the place of the first link, or removes it, and tells whether there was one. */
    bool Replace(const TGraphicsItem* from, TGraphicsItem* to);

private:
    TLinkNode& node;
    QList<Linked*> list;
};

extern template class TLinksTo<TGraphicsBusEntryItem>;
extern template class TLinksTo<TGraphicsPinItem>;
extern template class TLinksTo<TGraphicsSectionItem>;

/** The sections that an item of a place holds links to, once for each of their ends. */
using TLinkList = TLinksTo<TGraphicsSectionItem>;
