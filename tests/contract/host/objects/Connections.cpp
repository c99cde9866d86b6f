#include <contract/Store.h>
#include <contract/TypedLinks.h>
#include <objects/TGraphicsBusEntryItem.h>
#include <objects/TGraphicsBusItem.h>
#include <objects/TGraphicsJunctionItem.h>
#include <objects/TGraphicsNetItem.h>
#include <objects/TGraphicsWireItem.h>

using ContractHost::CallOut;
using ContractHost::Store;

namespace {

constexpr int busPlace = 0;
constexpr int netPlace = 1;

int PlaceOf(TGraphicsItem::LinkEnd end) { return end == TGraphicsItem::LinkEnd::First ? 0 : 1; }

} // namespace

TGraphicsSectionItem::TGraphicsSectionItem()
{
    links = {nullptr, nullptr};
    hasEnds = true;
}

void TGraphicsSectionItem::SetPoint1(const QPointF& point) { Store(point1, point); }
void TGraphicsSectionItem::SetPoint2(const QPointF& point) { Store(point2, point); }
QPointF TGraphicsSectionItem::ScenePoint(LinkEnd end) const
{
    return mapToScene(end == LinkEnd::First ? point1 : point2);
}
QLineF TGraphicsSectionItem::SceneLine() const { return {mapToScene(point1), mapToScene(point2)}; }

TGraphicsItem* TGraphicsSectionItem::FirstLink() const { return Link(LinkEnd::First); }
TGraphicsItem* TGraphicsSectionItem::LastLink() const { return Link(LinkEnd::Last); }
TGraphicsItem* TGraphicsSectionItem::Link(LinkEnd end) const { return links.at(PlaceOf(end)); }

void TGraphicsSectionItem::SetFirstLink(TGraphicsItem* item)
{
    HoldAt(PlaceOf(LinkEnd::First), item);
    CallOut();
}

void TGraphicsSectionItem::SetLastLink(TGraphicsItem* item)
{
    HoldAt(PlaceOf(LinkEnd::Last), item);
    CallOut();
}

void TGraphicsSectionItem::Cut(LinkEnd end)
{
    if (TGraphicsItem* other = Link(end)) {
        HoldAt(PlaceOf(end), nullptr);
        DropFrom(other, this);
    }
}

void TGraphicsSectionItem::LinkTo(LinkEnd end, TGraphicsItem* item)
{
    Cut(end);
    if (item) {
        HoldAt(PlaceOf(end), item);
        HoldSection(item, this, end);
    }
    CallOut();
}

void TGraphicsSectionItem::LinkToLast(TGraphicsItem* item) { LinkTo(LinkEnd::Last, item); }

void TGraphicsSectionItem::Unlink(LinkEnd end)
{
    Cut(end);
    CallOut();
}

void TGraphicsSectionItem::UpdateNet() { CallOut(); }

int TGraphicsWireItem::type() const { return ItemType::Wire; }
int TGraphicsWireItem::CompositionMode() const { return compositionMode; }
void TGraphicsWireItem::SetCompositionMode(int mode) { Store(compositionMode, mode); }

TGraphicsItem* TGraphicsWireItem::CreateCopy() const
{
    auto* copy = new TGraphicsWireItem;
    copy->Assign(*this);
    return copy;
}

void TGraphicsWireItem::Assign(const TGraphicsItem& other)
{
    TakeState(other);
    const auto& wire = static_cast<const TGraphicsWireItem&>(other);
    penWidth = wire.penWidth;
    pen = wire.pen;
    point1 = wire.point1;
    point2 = wire.point2;
    compositionMode = wire.compositionMode;
    CallOut();
}

int TGraphicsNetItem::type() const { return ItemType::NetWire; }

int TGraphicsJunctionItem::type() const { return ItemType::Junction; }
QList<TGraphicsSectionItem*> TGraphicsJunctionItem::LinkedSections() const
{
    return TypedLinks<TGraphicsSectionItem>(links);
}

void TGraphicsJunctionItem::AddLinkedSection(TGraphicsSectionItem* section)
{
    Hold(section);
    CallOut();
}

void TGraphicsJunctionItem::RemoveLinkedSection(TGraphicsSectionItem* section)
{
    Drop(section);
    CallOut();
}

int TGraphicsBusItem::type() const { return UserType; }
QString TGraphicsBusItem::Name() const { return name; }
void TGraphicsBusItem::SetName(const QString& text) { Store(name, text); }

void TGraphicsBusItem::AddLinkedBusEntry(TGraphicsBusEntryItem* entry)
{
    Hold(entry);
    CallOut();
}

TGraphicsBusEntryItem::TGraphicsBusEntryItem()
{
    links = {nullptr, nullptr};
    hasEnds = true;
}

int TGraphicsBusEntryItem::type() const { return ItemType::BusEntry; }
TGraphicsBusItem* TGraphicsBusEntryItem::BusLink() const { return static_cast<TGraphicsBusItem*>(links.at(busPlace)); }
TGraphicsNetItem* TGraphicsBusEntryItem::NetLink() const { return static_cast<TGraphicsNetItem*>(links.at(netPlace)); }

void TGraphicsBusEntryItem::SetBusLink(TGraphicsBusItem* bus)
{
    HoldAt(busPlace, bus);
    CallOut();
}

void TGraphicsBusEntryItem::SetNetLink(TGraphicsNetItem* net)
{
    HoldAt(netPlace, net);
    CallOut();
}

void TGraphicsBusEntryItem::Unlink(int place)
{
    if (TGraphicsItem* other = links.at(place)) {
        HoldAt(place, nullptr);
        DropFrom(other, this);
    }
    CallOut();
}

void TGraphicsBusEntryItem::UnlinkFromBus() { Unlink(busPlace); }
void TGraphicsBusEntryItem::UnlinkFromNet() { Unlink(netPlace); }
