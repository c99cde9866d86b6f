#include "workbench/importer/board/LinkTracks.h"

#include "workbench/importer/board/TBoardDraft.h"
#include "workbench/importer/board/TTrackGroup.h"
#include "workbench/importer/format/Measures.h"

#include <objects/TGraphicsJunctionItem.h>
#include <objects/TGraphicsViaItem.h>
#include <objects/TGraphicsWireItem.h>

#include <QMap>

#include <memory>

namespace {

using LinkEnd = TGraphicsItem::LinkEnd;
using TGroupKey = QPair<int, QString>; ///< A layer and a net.

struct TWireEnd
{
    TGraphicsWireItem* wire;
    LinkEnd end;
    TGridPoint place;
};

/** The ends that meet at one point. */
struct TNode
{
    TGridPoint place;
    QVector<TWireEnd> ends;
    TGraphicsItem* contact = nullptr;
};

QHash<QString, QVector<TGraphicsItem*>> CopperByNet(const TBoardDraft& draft)
{
    QHash<QString, QVector<TGraphicsItem*>> copper;
    const QList<TGraphicsItem*> items = draft.board->Scene()->DesignItems();
    for (TGraphicsItem* item : items) {
        if (item->type() == ItemType::Via || item->type() == ItemType::Pad) {
            copper[item->Net()].append(item);
        } else if (item->type() == ItemType::NetTiePcb) {
            const QStringList nets = draft.netsOfTies.value(item);
            for (const QString& net : nets) {
                copper[net].append(item);
            }
        }
    }
    return copper;
}

QMap<TGroupKey, std::shared_ptr<TTrackGroup>> Groups(const TBoardDraft& draft)
{
    const QHash<QString, QVector<TGraphicsItem*>> copperByNet = CopperByNet(draft);
    QMap<TGroupKey, std::shared_ptr<TTrackGroup>> groups;
    int source = 0;
    for (const TTrack& track : draft.tracks) {
        std::shared_ptr<TTrackGroup>& group = groups[{track.layer, track.net}];
        if (!group) {
            QVector<TGraphicsItem*> copper = copperByNet.value(track.net);
            copper.erase(
                std::remove_if(copper.begin(), copper.end(),
                               [&track](const TGraphicsItem* item) { return !item->HasCopperOn(track.layer); }),
                copper.end());
            group = std::make_shared<TTrackGroup>(copper);
        }
        group->Add(track, source++);
    }
    return groups;
}

TGraphicsWireItem* AddWire(const TTrack& track, TBoard& board)
{
    auto wire = std::make_unique<TGraphicsWireItem>();
    wire->SetLayer(track.layer);
    wire->SetPoint1(Measures::ScenePoint(track.start));
    wire->SetPoint2(Measures::ScenePoint(track.end));
    wire->SetPenWidth(static_cast<float>(Measures::SceneLength(track.width)));
    wire->SetNet(track.net);
    wire->SetTFlag(TGraphicsItem::Lock, track.isLocked);
    TGraphicsWireItem* added = wire.get();
    board.Attach(std::move(wire));
    return added;
}

TGraphicsJunctionItem* AddJunction(const TNode& node, TBoard& board)
{
    float size = 0;
    for (const TWireEnd& end : node.ends) {
        size = std::max(size, end.wire->PenWidth());
    }
    auto junction = std::make_unique<TGraphicsJunctionItem>();
    junction->SetLayer(node.ends.first().wire->Layer());
    junction->SetSize(size, size);
    junction->SetNet(node.ends.first().wire->OwnNet());
    junction->setPos(Measures::ScenePoint(node.place));
    TGraphicsJunctionItem* added = junction.get();
    board.Attach(std::move(junction));
    return added;
}

/** Whether the two ends are head and tail of different wires, at exactly the same point. */
bool AreHeadAndTail(const TWireEnd& one, const TWireEnd& other)
{
    return one.wire != other.wire && one.end != other.end && one.place == other.place;
}

void Link(const TNode& node, TBoard& board)
{
    const QVector<TWireEnd>& ends = node.ends;
    const bool isOneWire =
        std::all_of(ends.begin(), ends.end(), [&ends](const TWireEnd& end) { return end.wire == ends.first().wire; });
    if (!node.contact && isOneWire) {
        return;
    }
    if (!node.contact && ends.size() == 2 && AreHeadAndTail(ends[0], ends[1])) {
        ends[0].wire->LinkTo(ends[0].end, ends[1].wire);
        return;
    }
    TGraphicsItem* target = node.contact ? node.contact : AddJunction(node, board);
    for (const TWireEnd& end : ends) {
        end.wire->LinkTo(end.end, target);
    }
}

} // namespace

void LinkTracks(TBoardDraft& draft)
{
    const QMap<TGroupKey, std::shared_ptr<TTrackGroup>> groups = Groups(draft);
    // Wires are placed on the board in file order.
    std::vector<QPair<const TTrackGroup*, const TTrackPiece*>> pieces;
    for (const std::shared_ptr<TTrackGroup>& group : groups) {
        group->Join();
        for (const TTrackPiece& piece : group->Pieces()) {
            pieces.emplace_back(group.get(), &piece);
        }
    }
    std::stable_sort(pieces.begin(), pieces.end(),
                     [](const auto& one, const auto& other) { return one.second->source < other.second->source; });
    std::vector<TNode> nodes;
    QHash<const TTrackGroup*, QHash<TGridPoint, std::size_t>> nodeAt;
    for (const auto& [group, piece] : pieces) {
        TGraphicsWireItem* wire = AddWire(piece->track, *draft.board);
        const auto addEnd = [&, owner = group](LinkEnd end, const TGridPoint& place, const TGridPoint& node) {
            QHash<TGridPoint, std::size_t>& known = nodeAt[owner];
            if (!known.contains(node)) {
                known.insert(node, nodes.size());
                nodes.push_back({node, {}, owner->Contact(node)});
            }
            nodes[known.value(node)].ends.append({wire, end, place});
        };
        addEnd(LinkEnd::First, piece->track.start, piece->startNode);
        addEnd(LinkEnd::Last, piece->track.end, piece->endNode);
    }
    for (const TNode& node : nodes) {
        Link(node, *draft.board);
    }
}
