#pragma once

#include <graphics/TGraphicsItem.h>

class TGraphicsBusEntryItem;

/** A bus of a page. */
class TGraphicsBusItem : public TGraphicsItem
{
public:
    int type() const override;

    QString Name() const;
    void SetName(const QString& text);
    void AddLinkedBusEntry(TGraphicsBusEntryItem* entry);

protected:
    QString name;
};
