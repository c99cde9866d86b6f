#include <objects/TPinContacts.h>

#include <graphics/TItemScene.h>
#include <objects/TGraphicsPinItem.h>

#include <algorithm>

namespace {

/** How far apart the points of two pins may lie that touch: less than any drawing grid. */
constexpr double tolerance = 0.5;

using Change = TConnectionMemory::Change;

/** Pins have one end only. */
constexpr TGraphicsItem::LinkEnd anyEnd = TGraphicsItem::LinkEnd::First;

bool Touch(const TGraphicsPinItem& one, const TGraphicsPinItem& other)
{
    return (one.scenePos() - other.scenePos()).manhattanLength() < tolerance;
}

bool AreOfOneSymbol(const TGraphicsPinItem& one, const TGraphicsPinItem& other)
{
    return &one == &other || (one.parentItem() && one.parentItem() == other.parentItem());
}

TGraphicsPinItem* AsPin(QGraphicsItem* item)
{
    return item && item->type() == ItemType::Pin ? static_cast<TGraphicsPinItem*>(item) : nullptr;
}

/** The pins of other symbols that touch a pin and are not linked with it, in the design's order. */
QVector<TGraphicsPinItem*> FreeNeighbours(const TGraphicsPinItem& pin)
{
    QVector<TGraphicsPinItem*> found;
    if (!pin.Owner()) {
        return found;
    }
    const QPointF margin(tolerance, tolerance);
    const QList<QGraphicsItem*> near =
        pin.Owner()->items(QRectF(pin.scenePos() - margin, pin.scenePos() + margin), Qt::IntersectsItemBoundingRect);
    for (QGraphicsItem* item : near) {
        TGraphicsPinItem* other = AsPin(item);
        if (other && !AreOfOneSymbol(pin, *other) && Touch(pin, *other) && !pin.LinkedPins().contains(other)) {
            found.append(other);
        }
    }
    std::sort(found.begin(), found.end(), [](const TGraphicsPinItem* left, const TGraphicsPinItem* right) {
        return left->DesignOrder() < right->DesignOrder();
    });
    return found;
}

/** The first of the pins that touches another one and is not linked with it. */
TGraphicsPinItem* FreePinTouching(const TGraphicsPinItem& other, const QVector<TGraphicsItem*>& pins)
{
    for (TGraphicsItem* item : pins) {
        TGraphicsPinItem* pin = AsPin(item);
        if (pin && Touch(*pin, other) && !other.LinkedPins().contains(pin)) {
            return pin;
        }
    }
    return nullptr;
}

} // namespace

QVector<TGraphicsItem*> TPinContacts::Connect(const QVector<TGraphicsItem*>& pins,
                                              const QVector<TGraphicsItem*>& others)
{
    if (others.isEmpty()) {
        return ConnectTouching(pins);
    }
    QVector<TGraphicsItem*> linked;
    for (TGraphicsItem* item : others) {
        TGraphicsPinItem* other = AsPin(item);
        TGraphicsPinItem* pin = other ? PinItWasCutFrom(*other, pins) : nullptr;
        if (other && !pin) {
            pin = FreePinTouching(*other, pins);
            if (pin) {
                memory.Note(other, Change::Linked, {anyEnd, pin});
            }
        }
        if (pin) {
            pin->LinkToPin(other);
            linked.append(other);
        }
    }
    return linked;
}

QVector<TGraphicsItem*> TPinContacts::ConnectTouching(const QVector<TGraphicsItem*>& pins)
{
    QVector<TGraphicsItem*> linked;
    for (TGraphicsItem* item : pins) {
        TGraphicsPinItem* pin = AsPin(item);
        const QVector<TGraphicsPinItem*> near = pin ? FreeNeighbours(*pin) : QVector<TGraphicsPinItem*>();
        for (TGraphicsPinItem* other : near) {
            pin->LinkToPin(other);
            memory.Note(other, Change::Linked, {anyEnd, pin});
            linked.append(other);
        }
    }
    return linked;
}

TGraphicsPinItem* TPinContacts::PinItWasCutFrom(const TGraphicsPinItem& other, const QVector<TGraphicsItem*>& pins)
{
    TGraphicsPinItem* pin = nullptr;
    memory.Take(&other, Change::Cut, [&](const TConnectionMemory::Place& cut) {
        const auto found = std::find(pins.cbegin(), pins.cend(), cut.target);
        pin = found == pins.cend() || other.LinkedPins().contains(AsPin(*found)) ? nullptr : AsPin(*found);
        return pin != nullptr;
    });
    return pin;
}

void TPinContacts::Cut(TGraphicsPinItem* pin, TGraphicsPinItem* other)
{
    memory.Note(other, Change::Cut, {anyEnd, pin});
    pin->UnlinkFromPin(other);
}

QVector<TGraphicsItem*> TPinContacts::Disconnect(const QVector<TGraphicsItem*>& pins,
                                                 const QVector<TGraphicsItem*>& others)
{
    if (others.isEmpty()) {
        return CutAll(pins);
    }
    QVector<TGraphicsItem*> cut;
    for (TGraphicsItem* item : others) {
        TGraphicsPinItem* other = AsPin(item);
        if (other && CutOne(other, pins)) {
            cut.append(other);
        }
    }
    return cut;
}

QVector<TGraphicsItem*> TPinContacts::CutAll(const QVector<TGraphicsItem*>& pins)
{
    QVector<TGraphicsItem*> cut;
    for (TGraphicsItem* item : pins) {
        TGraphicsPinItem* pin = AsPin(item);
        const QList<TGraphicsPinItem*> linked = pin ? pin->LinkedPins() : QList<TGraphicsPinItem*>();
        for (TGraphicsPinItem* other : linked) {
            if (!AreOfOneSymbol(*pin, *other)) {
                Cut(pin, other);
                cut.append(other);
            }
        }
    }
    return cut;
}

bool TPinContacts::CutOne(TGraphicsPinItem* other, const QVector<TGraphicsItem*>& pins)
{
    const auto isLinkedPin = [other](const TGraphicsItem* each) {
        return std::find(other->LinkedPins().cbegin(), other->LinkedPins().cend(), each) != other->LinkedPins().cend();
    };
    TGraphicsPinItem* linked = nullptr;
    memory.Take(other, Change::Linked, [&](const TConnectionMemory::Place& place) {
        const auto found = std::find(pins.cbegin(), pins.cend(), place.target);
        linked = found != pins.cend() && isLinkedPin(*found) ? AsPin(*found) : nullptr;
        return linked != nullptr;
    });
    if (linked) {
        linked->UnlinkFromPin(other);
        return true;
    }
    const auto any = std::find_if(pins.cbegin(), pins.cend(), isLinkedPin);
    if (any != pins.cend()) {
        Cut(AsPin(*any), other);
    }
    return any != pins.cend();
}
