#pragma once

#include <graphics/TGraphicsItem.h>

class TGraphicsBusItem;
class TGraphicsNetItem;

/** What leads from a bus to a net wire. */
class TGraphicsBusEntryItem : public TGraphicsItem
{
public:
    TGraphicsBusEntryItem();
    int type() const override;

    TGraphicsBusItem* BusLink() const;
    void SetBusLink(TGraphicsBusItem* bus);
    TGraphicsNetItem* NetLink() const;
    void SetNetLink(TGraphicsNetItem* net);
    void UnlinkFromBus();
    void UnlinkFromNet();

private:
    void Unlink(int place);
};
