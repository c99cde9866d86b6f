#include <objects/TLanding.h>

#include <graphics/TItemScene.h>
#include <objects/TGraphicsSectionItem.h>

#include <QHash>
#include <QSet>

#include <algorithm>
#include <array>
#include <optional>

namespace {

using LinkEnd = TGraphicsItem::LinkEnd;

/** A wire and one of its ends. */
using End = QPair<const TGraphicsItem*, int>;

End KeyOf(const TGraphicsItem* wire, LinkEnd end)
{
    return {wire, static_cast<int>(end)};
}

constexpr std::array<LinkEnd, 2> bothEnds = {LinkEnd::First, LinkEnd::Last};

/** One end of a wire, and the copper that it lies on. */
struct Touch
{
    TGraphicsSectionItem* wire;
    LinkEnd end;
    TGraphicsItem* target;
    double squareDistance; ///< From the target's centre.
};

std::optional<Touch> TouchOf(TGraphicsSectionItem* wire, LinkEnd end, TGraphicsItem* target)
{
    const QPointF point = target->mapFromScene(wire->ScenePoint(end));
    if (!target->TakesEnd(point, wire->Layer())) {
        return {};
    }
    return Touch{wire, end, target, QPointF::dotProduct(point, point)};
}

QVector<TGraphicsSectionItem*> WiresNear(const TGraphicsItem& target)
{
    QVector<TGraphicsSectionItem*> wires;
    if (!target.Owner()) {
        return wires;
    }
    const QList<QGraphicsItem*> near =
        target.Owner()->items(target.sceneBoundingRect(), Qt::IntersectsItemBoundingRect);
    for (QGraphicsItem* item : near) {
        if (auto* wire = dynamic_cast<TGraphicsSectionItem*>(item)) {
            wires.append(wire);
        }
    }
    return wires;
}

} // namespace

QVector<TGraphicsItem*> TLanding::Connect(const QVector<TGraphicsItem*>& targets, const QVector<TGraphicsItem*>& wires)
{
    return wires.isEmpty() ? ConnectTouching(targets) : ConnectAgain(targets, wires);
}

QVector<TGraphicsItem*> TLanding::ConnectTouching(const QVector<TGraphicsItem*>& targets)
{
    // An end that lies on several targets goes to the one whose centre is nearest.
    QHash<End, Touch> nearest;
    for (TGraphicsItem* target : targets) {
        const QVector<TGraphicsSectionItem*> near = WiresNear(*target);
        for (TGraphicsSectionItem* wire : near) {
            for (const LinkEnd end : bothEnds) {
                const std::optional<Touch> touch = wire->Link(end) ? std::nullopt : TouchOf(wire, end, target);
                const auto known = nearest.constFind(KeyOf(wire, end));
                if (touch && (known == nearest.cend() || touch->squareDistance < known->squareDistance)) {
                    nearest.insert(KeyOf(wire, end), *touch);
                }
            }
        }
    }
    QVector<Touch> touches;
    touches.reserve(nearest.size());
    std::copy(nearest.cbegin(), nearest.cend(), std::back_inserter(touches));
    std::sort(touches.begin(), touches.end(), [](const Touch& left, const Touch& right) {
        const auto order = [](const Touch& touch) {
            return std::make_tuple(touch.target->DesignOrder(), touch.wire->DesignOrder(), touch.end);
        };
        return order(left) < order(right);
    });
    QVector<TGraphicsItem*> linked;
    for (const Touch& touch : qAsConst(touches)) {
        touch.wire->LinkTo(touch.end, touch.target);
        memory.Note(touch.wire, TConnectionMemory::Change::Linked, {touch.end, touch.target});
        linked.append(touch.wire);
    }
    return linked;
}

QVector<TGraphicsItem*> TLanding::ConnectAgain(const QVector<TGraphicsItem*>& targets,
                                               const QVector<TGraphicsItem*>& wires)
{
    QVector<TGraphicsItem*> linked;
    for (TGraphicsItem* item : wires) {
        auto* wire = dynamic_cast<TGraphicsSectionItem*>(item);
        std::optional<Place> place = wire ? PlaceItWasCutFrom(wire, targets) : std::nullopt;
        if (wire && !place) {
            place = PlaceItTouches(wire, targets);
            if (place) {
                memory.Note(wire, TConnectionMemory::Change::Linked, {place->end, place->target});
            }
        }
        if (place) {
            wire->LinkTo(place->end, place->target);
            linked.append(wire);
        }
    }
    return linked;
}

std::optional<TLanding::Place> TLanding::PlaceItWasCutFrom(TGraphicsSectionItem* wire,
                                                           const QVector<TGraphicsItem*>& targets)
{
    // What it was cut from gets it back even if it has been linked elsewhere since, or does not touch any more; but
    // what touches comes first, and then a free end.
    struct Rank
    {
        bool touches;
        bool isFree;
    };
    for (const Rank& wanted : {Rank{true, true}, Rank{true, false}, Rank{false, true}, Rank{false, false}}) {
        TGraphicsItem* target = nullptr;
        const auto suits = [&](const TConnectionMemory::Place& cut) {
            const auto found = std::find(targets.cbegin(), targets.cend(), cut.target);
            target = found == targets.cend() || wire->Link(cut.end) == *found ? nullptr : *found;
            return target && (wire->Link(cut.end) == nullptr) == wanted.isFree
                   && TouchOf(wire, cut.end, target).has_value() == wanted.touches;
        };
        const auto cut = memory.Take(wire, TConnectionMemory::Change::Cut, suits);
        if (cut) {
            return Place{cut->end, target};
        }
    }
    return {};
}

std::optional<TLanding::Place> TLanding::PlaceItTouches(TGraphicsSectionItem* wire,
                                                        const QVector<TGraphicsItem*>& targets)
{
    std::optional<Touch> nearest;
    for (const LinkEnd end : bothEnds) {
        for (TGraphicsItem* target : targets) {
            const std::optional<Touch> touch = wire->Link(end) ? std::nullopt : TouchOf(wire, end, target);
            if (touch && (!nearest || touch->squareDistance < nearest->squareDistance)) {
                nearest = touch;
            }
        }
    }
    return nearest ? std::make_optional(Place{nearest->end, nearest->target}) : std::nullopt;
}

void TLanding::Cut(TGraphicsSectionItem* wire, LinkEnd end)
{
    memory.Note(wire, TConnectionMemory::Change::Cut, {end, wire->Link(end)});
    wire->Unlink(end);
}

QVector<TGraphicsItem*> TLanding::Disconnect(const QVector<TGraphicsItem*>& targets,
                                             const QVector<TGraphicsItem*>& wires)
{
    QVector<TGraphicsItem*> cut;
    if (wires.isEmpty()) {
        for (TGraphicsItem* target : targets) {
            const QVector<TGraphicsItem*> links = target->Links();
            for (TGraphicsItem* link : links) {
                if (auto* wire = dynamic_cast<TGraphicsSectionItem*>(link)) {
                    Cut(wire, wire->FirstLink() == target ? LinkEnd::First : LinkEnd::Last);
                    cut.append(wire);
                }
            }
        }
        return cut;
    }
    const QSet<TGraphicsItem*> landings(targets.cbegin(), targets.cend());
    for (TGraphicsItem* item : wires) {
        auto* wire = dynamic_cast<TGraphicsSectionItem*>(item);
        const auto isLinked = [&](const TConnectionMemory::Place& linked) {
            return wire->Link(linked.end) == linked.target && landings.contains(wire->Link(linked.end));
        };
        if (!wire) {
            continue;
        }
        if (const auto linked = memory.Take(wire, TConnectionMemory::Change::Linked, isLinked)) {
            wire->Unlink(linked->end);
        } else if (landings.contains(wire->FirstLink())) {
            Cut(wire, LinkEnd::First);
        } else if (landings.contains(wire->LastLink())) {
            Cut(wire, LinkEnd::Last);
        } else {
            continue;
        }
        cut.append(wire);
    }
    return cut;
}
