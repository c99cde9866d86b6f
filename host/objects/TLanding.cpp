#include <objects/TLanding.h>

#include <graphics/TItemScene.h>
#include <objects/TGraphicsSectionItem.h>

#include <QSet>

#include <algorithm>
#include <array>
#include <optional>

namespace {

using LinkEnd = TGraphicsItem::LinkEnd;

QPair<const TGraphicsItem*, int> KeyOf(const TGraphicsItem* wire, LinkEnd end)
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
        const std::optional<Place> place = wire ? PlaceFor(wire, targets) : std::nullopt;
        if (place) {
            cutFrom.remove(KeyOf(wire, place->end));
            wire->LinkTo(place->end, place->target);
            linked.append(wire);
        }
    }
    return linked;
}

std::optional<TLanding::Place> TLanding::PlaceFor(TGraphicsSectionItem* wire,
                                                  const QVector<TGraphicsItem*>& targets) const
{
    // The copper that the end was cut from and still lies on; else that it was cut from; else the nearest it lies on.
    // What it was cut from gets it back even if it has been linked elsewhere since, but a free end comes first.
    enum Rank { CutAndTouching, CutAndTouchingButTaken, Cut, CutButTaken, Touching, Unsuitable };
    std::optional<Place> best;
    auto bestRank = std::make_pair(Unsuitable, 0.0);
    for (const LinkEnd end : bothEnds) {
        const bool isTaken = wire->Link(end) != nullptr;
        const QVector<const TGraphicsItem*> remembered = cutFrom.value(KeyOf(wire, end));
        for (TGraphicsItem* target : targets) {
            const std::optional<Touch> touch = TouchOf(wire, end, target);
            const bool wasCut = remembered.contains(target);
            Rank kind = Unsuitable;
            if (wasCut && touch) {
                kind = isTaken ? CutAndTouchingButTaken : CutAndTouching;
            } else if (wasCut) {
                kind = isTaken ? CutButTaken : Cut;
            } else if (touch && !isTaken) {
                kind = Touching;
            }
            const auto rank = std::make_pair(kind, touch ? touch->squareDistance : 0.0);
            if (rank < bestRank && kind != Unsuitable) {
                best = Place{end, target};
                bestRank = rank;
            }
        }
    }
    return best;
}

QVector<TGraphicsItem*> TLanding::Disconnect(const QVector<TGraphicsItem*>& targets,
                                             const QVector<TGraphicsItem*>& wires)
{
    QVector<TGraphicsItem*> cut;
    const auto cutOne = [&](TGraphicsSectionItem* wire, TGraphicsItem* target) {
        const LinkEnd end = wire->FirstLink() == target ? LinkEnd::First : LinkEnd::Last;
        QVector<const TGraphicsItem*>& remembered = cutFrom[KeyOf(wire, end)];
        if (!remembered.contains(target)) {
            remembered.append(target);
        }
        wire->Unlink(end);
        cut.append(wire);
    };
    if (wires.isEmpty()) {
        for (TGraphicsItem* target : targets) {
            const QVector<TGraphicsItem*> links = target->Links();
            for (TGraphicsItem* link : links) {
                if (auto* wire = dynamic_cast<TGraphicsSectionItem*>(link)) {
                    cutOne(wire, target);
                }
            }
        }
        return cut;
    }
    const QSet<TGraphicsItem*> landings(targets.cbegin(), targets.cend());
    for (TGraphicsItem* item : wires) {
        auto* wire = dynamic_cast<TGraphicsSectionItem*>(item);
        if (wire && landings.contains(wire->FirstLink())) {
            cutOne(wire, wire->FirstLink());
        } else if (wire && landings.contains(wire->LastLink())) {
            cutOne(wire, wire->LastLink());
        }
    }
    return cut;
}
