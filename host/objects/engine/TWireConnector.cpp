#include <objects/engine/TWireConnector.h>

#include <objects/engine/TPinContacts.h>
#include <objects/engine/TWireContacts.h>
#include <objects/TGraphicsPinItem.h>
#include <objects/TGraphicsSectionItem.h>

#include <algorithm>

namespace {

using LinkEnd = TGraphicsItem::LinkEnd;
using PinContacts::AsPin;

TGraphicsSectionItem* AsWire(TGraphicsItem* item)
{
    return dynamic_cast<TGraphicsSectionItem*>(item);
}

bool IsLinked(const TConnection& connection)
{
    if (const TGraphicsPinItem* pin = AsPin(connection.item)) {
        return pin->LinkedPins().contains(AsPin(connection.place));
    }
    return AsWire(connection.item)->Link(connection.end) == connection.place;
}

void Link(const TConnection& connection)
{
    if (TGraphicsPinItem* pin = AsPin(connection.item)) {
        AsPin(connection.place)->LinkToPin(pin);
    } else {
        AsWire(connection.item)->LinkTo(connection.end, connection.place);
    }
}

void Cut(const TConnection& connection)
{
    if (TGraphicsPinItem* pin = AsPin(connection.item)) {
        AsPin(connection.place)->UnlinkFromPin(pin);
    } else {
        AsWire(connection.item)->Unlink(connection.end);
    }
}

/** The connection behind an item of a list, if it is known and its place still exists. */
std::optional<TConnection> Known(const TConnections& known, int index, const QVector<TGraphicsItem*>& places)
{
    return index < known.size() && places.contains(known.at(index).place) ? std::make_optional(known.at(index))
                                                                          : std::nullopt;
}

} // namespace

QVector<TGraphicsItem*> TWireConnector::Connect(const QVector<TGraphicsItem*>& places,
                                                const QVector<TGraphicsItem*>& items)
{
    TConnections linked;
    if (items.isEmpty()) {
        linked = WireContacts::Free(places) + PinContacts::Free(places);
        std::for_each(linked.cbegin(), linked.cend(), Link);
        return memory.ListOf(linked);
    }
    const TConnections known = memory.Behind(items);
    for (int i = 0; i < items.size(); ++i) {
        const auto ofList = Known(known, i, places);
        const auto wanted = ofList ? ofList : GuessFree(items.at(i), places);
        if (wanted && !IsLinked(*wanted)) {
            Link(*wanted);
            linked.append(*wanted);
        }
    }
    return memory.ListOf(linked);
}

QVector<TGraphicsItem*> TWireConnector::Disconnect(const QVector<TGraphicsItem*>& places,
                                                   const QVector<TGraphicsItem*>& items)
{
    TConnections cut;
    if (items.isEmpty()) {
        cut = WireContacts::Linked(places) + PinContacts::Linked(places);
        std::for_each(cut.cbegin(), cut.cend(), Cut);
        return memory.ListOf(cut);
    }
    const TConnections known = memory.Behind(items);
    for (int i = 0; i < items.size(); ++i) {
        const auto ofList = Known(known, i, places);
        const auto wanted = ofList ? ofList : GuessLinked(items.at(i), places);
        if (wanted && IsLinked(*wanted)) {
            Cut(*wanted);
            cut.append(*wanted);
        }
    }
    return memory.ListOf(cut);
}

std::optional<TConnection> TWireConnector::GuessFree(TGraphicsItem* item, const Places& places) const
{
    TGraphicsSectionItem* wire = AsWire(item);
    TGraphicsPinItem* pin = AsPin(item);
    if (!wire && !pin) {
        return {};
    }
    // Free ends that touch come first. But an item is linked again to its former place even if it is linked elsewhere
    // by now, or no longer touches.
    const auto wasHere = [&](const TConnection& former) {
        return places.contains(former.place) && (pin ? !IsLinked(former) : !places.contains(wire->Link(former.end)));
    };
    const auto wasHereAndTouches = [&](const TConnection& former) {
        return wasHere(former) && (pin || (!wire->Link(former.end) && WireContacts::Touch(former)));
    };
    auto found = memory.Latest(item, wasHereAndTouches);
    found = found ? found : memory.Latest(item, wasHere);
    return found ? found : pin ? PinContacts::Nearest(pin, places) : WireContacts::Nearest(wire, places);
}

std::optional<TConnection> TWireConnector::GuessLinked(TGraphicsItem* item, const Places& places) const
{
    TGraphicsSectionItem* wire = AsWire(item);
    TGraphicsPinItem* pin = AsPin(item);
    const auto isHere = [&places](const TConnection& made) { return places.contains(made.place) && IsLinked(made); };
    if (const auto found = wire || pin ? memory.Latest(item, isHere) : std::nullopt) {
        return found;
    }
    if (pin) {
        const auto place = std::find_if(places.cbegin(), places.cend(),
                                        [pin](TGraphicsItem* each) { return pin->LinkedPins().contains(AsPin(each)); });
        return place == places.cend() ? std::nullopt : std::make_optional(TConnection{item, LinkEnd::First, *place});
    }
    for (const LinkEnd end : {LinkEnd::First, LinkEnd::Last}) {
        if (wire && places.contains(wire->Link(end))) {
            return TConnection{item, end, wire->Link(end)};
        }
    }
    return {};
}
