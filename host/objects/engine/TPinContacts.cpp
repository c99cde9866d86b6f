#include <objects/engine/TPinContacts.h>

#include <graphics/TItemScene.h>
#include <objects/TGraphicsPinItem.h>

#include <algorithm>

namespace {

/** Pins have one end only. */
constexpr TGraphicsItem::LinkEnd anyEnd = TGraphicsItem::LinkEnd::First;

bool Touch(const TGraphicsPinItem& one, const TGraphicsPinItem& other)
{
    return (one.scenePos() - other.scenePos()).manhattanLength() < PinContacts::tolerance;
}

bool AreOfOneSymbol(const TGraphicsPinItem& one, const TGraphicsPinItem& other)
{
    return &one == &other || (one.parentItem() && one.parentItem() == other.parentItem());
}

/** The pins of other symbols that touch a pin and are not linked with it, in the design's order. */
QVector<TGraphicsPinItem*> FreeNeighbours(const TGraphicsPinItem& pin)
{
    QVector<TGraphicsPinItem*> found;
    if (!pin.Owner()) {
        return found;
    }
    const QPointF margin(PinContacts::tolerance, PinContacts::tolerance);
    const QList<QGraphicsItem*> near = pin.Owner()->ItemsNear(QRectF(pin.scenePos() - margin, pin.scenePos() + margin));
    for (QGraphicsItem* item : near) {
        TGraphicsPinItem* other = PinContacts::AsPin(item);
        if (other && !AreOfOneSymbol(pin, *other) && Touch(pin, *other) && !pin.LinkedPins().contains(other)) {
            found.append(other);
        }
    }
    std::sort(found.begin(), found.end(), [](const TGraphicsPinItem* left, const TGraphicsPinItem* right) {
        return left->DesignOrder() < right->DesignOrder();
    });
    return found;
}

} // namespace

TGraphicsPinItem* PinContacts::AsPin(QGraphicsItem* item)
{
    return item && item->type() == ItemType::Pin ? static_cast<TGraphicsPinItem*>(item) : nullptr;
}

TConnections PinContacts::Free(const QVector<TGraphicsItem*>& pins)
{
    TConnections free;
    for (TGraphicsItem* item : pins) {
        const TGraphicsPinItem* pin = AsPin(item);
        const QVector<TGraphicsPinItem*> near = pin ? FreeNeighbours(*pin) : QVector<TGraphicsPinItem*>();
        for (TGraphicsPinItem* other : near) {
            free.append({other, anyEnd, item});
        }
    }
    return free;
}

std::optional<TConnection> PinContacts::Nearest(TGraphicsPinItem* other, const QVector<TGraphicsItem*>& pins)
{
    const auto found = std::find_if(pins.cbegin(), pins.cend(), [other](TGraphicsItem* item) {
        TGraphicsPinItem* pin = AsPin(item);
        return pin && Touch(*pin, *other) && !other->LinkedPins().contains(pin);
    });
    return found == pins.cend() ? std::nullopt : std::make_optional(TConnection{other, anyEnd, *found});
}

TConnections PinContacts::Linked(const QVector<TGraphicsItem*>& pins)
{
    TConnections linked;
    for (TGraphicsItem* item : pins) {
        const TGraphicsPinItem* pin = AsPin(item);
        const QList<TGraphicsPinItem*> others = pin ? pin->LinkedPins() : QList<TGraphicsPinItem*>();
        for (TGraphicsPinItem* other : others) {
            if (!AreOfOneSymbol(*pin, *other)) {
                linked.append({other, anyEnd, item});
            }
        }
    }
    return linked;
}
