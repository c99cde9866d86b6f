#pragma once

#include <graphics/TGraphicsRectItem.h>

#include <QList>

class TGraphicsSectionItem;

/** A node at which several sections meet. */
class TGraphicsJunctionItem : public TGraphicsRectItem
{
public:
    int type() const override;

    QList<TGraphicsSectionItem*> LinkedSections() const;
    void AddLinkedSection(TGraphicsSectionItem* section);
    void RemoveLinkedSection(TGraphicsSectionItem* section);
};
