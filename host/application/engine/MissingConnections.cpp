#include <application/engine/MissingConnections.h>

#include <application/engine/SpanningTree.h>
#include <graphics/engine/TBoxIndex.h>
#include <graphics/engine/TLinkNode.h>
#include <objects/TGraphicsKeepoutItem.h>
#include <objects/TGraphicsPourItem.h>
#include <objects/TGraphicsSectionItem.h>
#include <objects/TGraphicsViaItem.h>

#include <algorithm>
#include <iterator>

namespace {

bool Holds(const QPolygonF& area, const QRectF& bounds, const QPointF& point)
{
    return bounds.contains(point) && area.containsPoint(point, Qt::OddEvenFill);
}

bool ShareLayer(const TGraphicsViaItem& one, const TGraphicsViaItem& other)
{
    const auto [oneFirst, oneLast] = std::minmax({one.StartLayer(), one.EndLayer()});
    const auto [otherFirst, otherLast] = std::minmax({other.StartLayer(), other.EndLayer()});
    return oneFirst <= otherLast && otherFirst <= oneLast;
}

QRectF SceneBox(const TGraphicsViaItem* item)
{
    return item->sceneTransform().mapRect(item->Outline().boundingRect());
}

bool Overlap(const TGraphicsViaItem& one, const TGraphicsViaItem& other)
{
    return ShareLayer(one, other) && one.mapFromItem(&other, other.Outline()).intersects(one.Outline());
}

/** Joins the groups of pads and vias that overlap; `groups` runs parallel to `items`. */
void JoinOverlapping(const QVector<const TGraphicsViaItem*>& items, const QVector<int>& groups, DisjointSets& sets)
{
    QVector<QRectF> boxes;
    boxes.reserve(items.size());
    std::transform(items.cbegin(), items.cend(), std::back_inserter(boxes), SceneBox);
    const TBoxIndex index(boxes, TBoxIndex::Of);
    for (int i = 0; i < items.size(); ++i) {
        const QVector<int> near = index.Meeting(TBoxIndex::Of(boxes[i]));
        for (const int other : near) {
            if (other > i && boxes[i].intersects(boxes[other]) && sets.Root(groups[i]) != sets.Root(groups[other])
                && Overlap(*items[i], *items[other])) {
                sets.Join(groups[i], groups[other]);
            }
        }
    }
}

QVector<QPointF> AnchorsOf(const TGraphicsItem& item)
{
    if (const auto* section = dynamic_cast<const TGraphicsSectionItem*>(&item)) {
        const QLineF line = section->SceneLine();
        return {line.p1(), line.p2()};
    }
    return {item.scenePos()};
}

} // namespace

BoardCopper::BoardCopper(const QList<TGraphicsItem*>& items)
{
    for (TGraphicsItem* item : items) {
        if (item->type() == ItemType::Pour) {
            const auto* pour = static_cast<const TGraphicsPourItem*>(item);
            const QPolygonF area = pour->mapToScene(pour->Area());
            pours.append({pour, area, area.boundingRect()});
        } else if (item->type() == ItemType::Keepout) {
            const auto* keepout = static_cast<const TGraphicsKeepoutItem*>(item);
            const QPolygonF area = keepout->mapToScene(keepout->Area());
            keepouts.append({keepout, area, area.boundingRect()});
        } else if (item->CanBeLinkedTo()) {
            const QString net = item->Net();
            if (!net.isEmpty()) {
                copperOf[net].append(item);
            }
        }
    }
}

QSet<QString> BoardCopper::Nets() const
{
    const QList<QString> names = copperOf.keys();
    return {names.cbegin(), names.cend()};
}

QSet<QString> BoardCopper::NetsOfPours() const
{
    QSet<QString> nets;
    for (const PourArea& each : pours) {
        nets.insert(each.pour->Net());
    }
    nets.remove(QString());
    return nets;
}

bool BoardCopper::Covers(const PourArea& pour, const QPointF& point) const
{
    const Osmirel::Layer layer = pour.pour->Layer();
    if (!Holds(pour.area, pour.bounds, point)) {
        return false;
    }
    const bool isKeptOut = std::any_of(keepouts.cbegin(), keepouts.cend(), [&](const KeepoutArea& each) {
        return each.keepout->IsLayerEnable(layer) && Holds(each.area, each.bounds, point);
    });
    return !isKeptOut && std::none_of(pours.cbegin(), pours.cend(), [&](const PourArea& other) {
        return other.pour != pour.pour && other.pour->Layer() == layer && other.pour->FillType() != Qt::NoBrush
               && other.pour->Net() != pour.pour->Net() && other.pour->IsStrongerThan(*pour.pour)
               && Holds(other.area, other.bounds, point);
    });
}

QVector<QLineF> BoardCopper::MissingConnections(const QString& net) const
{
    const QVector<TGraphicsItem*> copper = copperOf.value(net);
    SpanningTree tree;
    DisjointSets& sets = tree.Sets();
    QHash<const TLinkIsland*, int> groupOfIsland;
    QVector<int> groups;
    QVector<const TGraphicsViaItem*> vias;
    QVector<int> groupsOfVias;
    for (const TGraphicsItem* item : copper) {
        const TLinkIsland* island = item->Island();
        const int group = island && groupOfIsland.contains(island) ? groupOfIsland.value(island) : sets.Add();
        if (island) {
            groupOfIsland.insert(island, group);
        }
        groups.append(group);
        if (const auto* via = dynamic_cast<const TGraphicsViaItem*>(item)) {
            vias.append(via);
            groupsOfVias.append(group);
        }
        for (const QPointF& anchor : AnchorsOf(*item)) {
            tree.AddPoint(anchor, group);
        }
    }
    JoinOverlapping(vias, groupsOfVias, sets);
    for (const PourArea& pour : pours) {
        if (pour.pour->Net() != net || pour.pour->FillType() == Qt::NoBrush) {
            continue;
        }
        const int groupOfPour = sets.Add();
        for (int i = 0; i < copper.size(); ++i) {
            const QVector<QPointF> anchors = AnchorsOf(*copper[i]);
            if (copper[i]->HasCopperOn(pour.pour->Layer())
                && std::any_of(anchors.cbegin(), anchors.cend(),
                               [&](const QPointF& anchor) { return Covers(pour, anchor); })) {
                sets.Join(groupOfPour, groups[i]);
            }
        }
    }
    return tree.MissingEdges();
}
