#pragma once

#include <graphics/TGraphicsItem.h>

#include <QList>

class TGraphicsSectionItem;

/** The sections that an item of a place holds links to, once for each of their ends. A part of that item. */
class TLinkList
{
public:
    explicit TLinkList(TLinkNode& ofItem) : node(ofItem) {}

    const QList<TGraphicsSectionItem*>& Sections() const { return sections; }
    QVector<TGraphicsItem*> Items() const;

    /** Adds one link. What is no section is ignored. */
    void Add(TGraphicsItem* section);
    /** Removes one link, if there is one. */
    void Remove(const TGraphicsItem* section) { Replace(section, nullptr); }
    /** Puts another section in the place of one link, or removes it, and tells whether there was one. */
    bool Replace(const TGraphicsItem* from, TGraphicsItem* to);

private:
    TLinkNode& node;
    QList<TGraphicsSectionItem*> sections;
};
