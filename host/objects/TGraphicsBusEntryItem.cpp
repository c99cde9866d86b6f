#include <objects/TGraphicsBusEntryItem.h>

#include <graphics/engine/TStateText.h>
#include <objects/TGraphicsBusItem.h>
#include <objects/TGraphicsNetItem.h>

namespace {

constexpr float usualEntryWidth = 2;

} // namespace

TGraphicsBusEntryItem::TGraphicsBusEntryItem(QGraphicsItem* parent) : TGraphicsLineItem(parent)
{
    SetLayer(Osmirel::SchematicNets);
    SetPenWidth(usualEntryWidth);
}

TGraphicsBusItem* TGraphicsBusEntryItem::BusLink() const
{
    return static_cast<TGraphicsBusItem*>(busLink);
}

void TGraphicsBusEntryItem::SetBusLink(TGraphicsBusItem* bus)
{
    StoreLink(busLink, bus);
}

TGraphicsNetItem* TGraphicsBusEntryItem::NetLink() const
{
    return static_cast<TGraphicsNetItem*>(netLink);
}

void TGraphicsBusEntryItem::SetNetLink(TGraphicsNetItem* net)
{
    StoreLink(netLink, net);
}

void TGraphicsBusEntryItem::LinkToBus(TGraphicsBusItem* bus)
{
    UnlinkFromBus();
    if (bus) {
        SetBusLink(bus);
        bus->AddLinkedBusEntry(this);
    }
}

void TGraphicsBusEntryItem::UnlinkFromBus()
{
    if (TGraphicsBusItem* bus = BusLink()) {
        bus->RemoveLinkedBusEntry(this);
        SetBusLink(nullptr);
    }
}

void TGraphicsBusEntryItem::UnlinkFromNet()
{
    if (TGraphicsNetItem* net = NetLink()) {
        net->UnlinkFrom(this);
        net->UnlinkFrom(this); // Both of its ends may be linked.
        SetNetLink(nullptr);
    }
}

QVector<TGraphicsItem*> TGraphicsBusEntryItem::Links() const
{
    QVector<TGraphicsItem*> links;
    for (TGraphicsItem* link : {busLink, netLink}) {
        if (link) {
            links.append(link);
        }
    }
    return links;
}

bool TGraphicsBusEntryItem::ReplaceLinkedItem(TGraphicsItem* from, TGraphicsItem* to)
{
    if (from && from == busLink) {
        SetBusLink(dynamic_cast<TGraphicsBusItem*>(to));
        return true;
    }
    if (from && from == netLink) {
        SetNetLink(dynamic_cast<TGraphicsNetItem*>(to));
        return true;
    }
    return false;
}

void TGraphicsBusEntryItem::AcceptLink(TGraphicsItem* section, LinkEnd)
{
    auto* net = dynamic_cast<TGraphicsNetItem*>(section);
    if (net && net != netLink) {
        UnlinkFromNet();
        SetNetLink(net);
    }
}

void TGraphicsBusEntryItem::ReleaseLink(TGraphicsItem* section, LinkEnd end)
{
    if (section && section == netLink) {
        const LinkEnd other = end == LinkEnd::First ? LinkEnd::Last : LinkEnd::First;
        const bool isHeldByOtherEnd = NetLink()->Link(other) == this;
        SetNetLink(isHeldByOtherEnd ? NetLink() : nullptr);
    }
}

void TGraphicsBusEntryItem::Describe(TStateText& state) const
{
    TGraphicsLineItem::Describe(state);
    DescribeLinks(state, "links", Links());
}

std::unique_ptr<TGraphicsItem> TGraphicsBusEntryItem::CreateEmpty() const
{
    return std::make_unique<TGraphicsBusEntryItem>();
}
