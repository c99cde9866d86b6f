#include <objects/TPinContacts.h>

#include <graphics/TItemScene.h>
#include <objects/TGraphicsPinItem.h>

#include <algorithm>

namespace {

/** How far apart the points of two pins may lie that touch: less than any drawing grid. */
constexpr double tolerance = 0.5;

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
        if (TGraphicsPinItem* pin = other ? PlaceFor(*other, pins) : nullptr) {
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
            linked.append(other);
        }
    }
    return linked;
}

TGraphicsPinItem* TPinContacts::PlaceFor(const TGraphicsPinItem& other, const QVector<TGraphicsItem*>& pins) const
{
    const QVector<const TGraphicsItem*> remembered = cutFrom.value(&other);
    TGraphicsPinItem* touching = nullptr;
    for (TGraphicsItem* item : pins) {
        TGraphicsPinItem* pin = AsPin(item);
        if (!pin || other.LinkedPins().contains(pin)) {
            continue;
        }
        if (remembered.contains(pin)) {
            return pin;
        }
        if (!touching && Touch(*pin, other)) {
            touching = pin;
        }
    }
    return touching;
}

QVector<TGraphicsItem*> TPinContacts::Disconnect(const QVector<TGraphicsItem*>& pins,
                                                 const QVector<TGraphicsItem*>& others)
{
    QVector<TGraphicsItem*> cut;
    const auto cutOne = [&](TGraphicsPinItem* pin, TGraphicsPinItem* other) {
        QVector<const TGraphicsItem*>& remembered = cutFrom[other];
        if (!remembered.contains(pin)) {
            remembered.append(pin);
        }
        pin->UnlinkFromPin(other);
        cut.append(other);
    };
    if (others.isEmpty()) {
        for (TGraphicsItem* item : pins) {
            TGraphicsPinItem* pin = AsPin(item);
            const QList<TGraphicsPinItem*> linked = pin ? pin->LinkedPins() : QList<TGraphicsPinItem*>();
            for (TGraphicsPinItem* other : linked) {
                if (!AreOfOneSymbol(*pin, *other)) {
                    cutOne(pin, other);
                }
            }
        }
        return cut;
    }
    for (TGraphicsItem* item : others) {
        TGraphicsPinItem* other = AsPin(item);
        const auto found = std::find_if(pins.cbegin(), pins.cend(), [other](TGraphicsItem* each) {
            TGraphicsPinItem* pin = AsPin(each);
            return pin && other && pin->LinkedPins().contains(other);
        });
        if (found != pins.cend()) {
            cutOne(AsPin(*found), other);
        }
    }
    return cut;
}
