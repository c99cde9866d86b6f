#pragma once

#include <graphics/TGraphicsLineItem.h>

class TGraphicsBusItem;
class TGraphicsNetItem;

/** The short line by which a net leaves a bus: one end is linked to the bus, the other to a net wire. */
class TGraphicsBusEntryItem : public TGraphicsLineItem
{
public:
    explicit TGraphicsBusEntryItem(QGraphicsItem* parent = nullptr);

    int type() const override { return ItemType::BusEntry; }
    QString KindName() const override { return QStringLiteral("busentry"); }

    /** The linked bus and the linked net wire; null for none. The setters are one-sided and do not repaint. */
    TGraphicsBusItem* BusLink() const;
    void SetBusLink(TGraphicsBusItem* bus);
    TGraphicsNetItem* NetLink() const;
    void SetNetLink(TGraphicsNetItem* net);

    /** Two-sided: cuts the entry from the bus that it is linked to, then links it to another. */
    void LinkToBus(TGraphicsBusItem* bus);
    /** Two-sided: cut the entry from its bus, or from its net wire, if it has one. */
    void UnlinkFromBus();
    void UnlinkFromNet();

    QVector<TGraphicsItem*> Links() const override;
    bool ReplaceLinkedItem(TGraphicsItem* from, TGraphicsItem* to) override;
    /** A net wire replaces the one that was linked before. */
    void AcceptLink(TGraphicsItem* section, LinkEnd end) override;
    void ReleaseLink(TGraphicsItem* section, LinkEnd end) override;
    bool CanBeLinkedTo() const override { return true; }

protected:
    std::unique_ptr<TGraphicsItem> CreateEmpty() const override;
    void Describe(TStateText& state) const override;

private:
    TGraphicsItem* busLink = nullptr;
    TGraphicsItem* netLink = nullptr;
};
