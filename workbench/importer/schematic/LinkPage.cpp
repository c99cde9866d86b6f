#include "workbench/importer/format/Measures.h"
#include "workbench/importer/format/ShapeValues.h"
#include "workbench/importer/schematic/PageItems.h"
#include "workbench/importer/schematic/TLineFinder.h"

#include <objects/TGraphicsBusEntryItem.h>
#include <objects/TGraphicsBusItem.h>
#include <objects/TGraphicsJunctionItem.h>
#include <objects/TGraphicsNetItem.h>
#include <objects/TGraphicsPinItem.h>

#include <algorithm>
#include <tuple>

namespace {

using LinkEnd = TGraphicsItem::LinkEnd;

/** A line of the file, or a part cut from one. */
struct TPiece
{
    TGridPoint places[2];
    int source = 0;        ///< The index of its line in the file.
    bool isTurned = false; ///< Its item runs from its end to its start.
    TGraphicsSectionItem* item = nullptr;
};

/** Cuts lines where others meet them, and records the ends of the pieces. */
std::vector<TPiece> Cut(const std::vector<TSheetLine>& lines, TConnectionPoints& connectionPoints)
{
    const TLineFinder finder(lines);
    std::vector<QVector<TGridPoint>> cuts(lines.size());
    for (const TConnectionPoint& point : connectionPoints.All()) {
        if (point.CutsLines()) {
            const QVector<int> over = finder.LinesOver(point.place);
            for (const int line : over) {
                cuts[Index(line)].append(point.place);
            }
        }
    }
    std::vector<TPiece> pieces;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        QVector<TGridPoint> places = cuts[i] + QVector<TGridPoint>{lines[i].start, lines[i].end};
        const TGridPoint start = lines[i].start;
        const auto distance = [&start](const TGridPoint& place) {
            return std::abs(place.x - start.x) + std::abs(place.y - start.y);
        };
        std::sort(places.begin(), places.end(),
                  [&](const TGridPoint& one, const TGridPoint& other) { return distance(one) < distance(other); });
        for (int k = 1; k < places.size(); ++k) {
            if (places[k - 1] != places[k]) {
                const auto number = static_cast<int>(pieces.size());
                pieces.push_back({{places[k - 1], places[k]}, static_cast<int>(i), false, nullptr});
                connectionPoints.At(places[k - 1]).ends.append({number, 0});
                connectionPoints.At(places[k]).ends.append({number, 1});
            }
        }
    }
    return pieces;
}

/** Orients pieces so that wherever two meet one ends and the other begins. */
void TurnHeadToTail(std::vector<TPiece>& pieces, TConnectionPoints& connectionPoints)
{
    const auto next = [&](const TConnectionPoint::TEnd& leaving) -> std::optional<TConnectionPoint::TEnd> {
        const TConnectionPoint& point = connectionPoints.At(pieces[Index(leaving.line)].places[leaving.end]);
        if (!point.IsBend()) {
            return std::nullopt;
        }
        return point.ends[0].line == leaving.line ? point.ends[1] : point.ends[0];
    };
    std::vector<bool> isDone(pieces.size(), false);
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        if (isDone[i]) {
            continue;
        }
        const auto first = static_cast<int>(i);
        TConnectionPoint::TEnd begin{first, 0};
        for (auto before = next(begin); before && before->line != first; before = next(begin)) {
            begin = {before->line, 1 - before->end};
        }
        for (std::optional<TConnectionPoint::TEnd> at = begin; at && !isDone[Index(at->line)];
             at = next({at->line, 1 - at->end})) {
            isDone[Index(at->line)] = true;
            pieces[Index(at->line)].isTurned = at->end == 1;
        }
    }
}

LinkEnd EndOf(const TPiece& piece, int end)
{
    return (end == 0) == piece.isTurned ? LinkEnd::Last : LinkEnd::First;
}

class TPageLinker
{
public:
    TPageLinker(TPageDraft& ofPage, TSchematicDraft& ofDraft) : page(ofPage), draft(ofDraft) {}

    void Link()
    {
        AddBuses();
        AddEntries();
        AddWires();
    }

private:
    void AddBuses()
    {
        const TSheetFile& file = *page.page.file;
        const TLineFinder finder(file.buses);
        for (const TSheetPoint& junction : file.junctions) {
            if (!finder.LinesOver(junction.place).isEmpty()) {
                page.busMeetings.At(junction.place).hasJunction = true;
            }
        }
        buses = Cut(file.buses, page.busMeetings);
        TurnHeadToTail(buses, page.busMeetings);
        for (TPiece& piece : buses) {
            auto bus = std::make_unique<TGraphicsBusItem>();
            bus->SetName(page.page.busNames.value(piece.source));
            Place(std::move(bus), piece, file.buses[Index(piece.source)].element, {});
        }
        for (TConnectionPoint& point : page.busMeetings.All()) {
            LinkEnds(point, buses, Osmirel::SchematicBuses, {});
        }
    }

    void AddEntries()
    {
        const TSheetFile& file = *page.page.file;
        const TLineFinder finder(file.buses);
        for (std::size_t i = 0; i < file.entries.size(); ++i) {
            const TSheetLine& entry = file.entries[i];
            const bool endsOnBus = !finder.LinesOver(entry.end).isEmpty();
            const bool startsOnBus = !finder.LinesOver(entry.start).isEmpty();
            auto item = std::make_unique<TGraphicsBusEntryItem>();
            item->SetLine({Measures::ScenePoint(entry.start), Measures::ScenePoint(entry.end)});
            if (const double width = ShapeValues::StrokeWidth(entry.element); width > 0) {
                item->SetPenWidth(static_cast<float>(width));
            }
            item->SetAltColor(draft.NetColor(draft.NetName(page.page.entryNets[i])));
            if (startsOnBus || endsOnBus) {
                item->LinkToBus(BusAt(startsOnBus ? entry.start : entry.end));
            }
            if (!startsOnBus || !endsOnBus) {
                page.connectionPoints.At(endsOnBus ? entry.start : entry.end).entries.append(item.get());
            } else {
                draft.notShown.Count("further ends of entries between two buses");
            }
            page.target.Attach(std::move(item));
        }
    }

    TGraphicsBusItem* BusAt(const TGridPoint& place)
    {
        const auto bus = std::find_if(buses.begin(), buses.end(), [&place](const TPiece& piece) {
            return TLineFinder::IsOn(place, piece.places[0], piece.places[1]);
        });
        return bus == buses.end() ? nullptr : static_cast<TGraphicsBusItem*>(bus->item);
    }

    void AddWires()
    {
        const TSheetFile& file = *page.page.file;
        const TLineFinder busFinder(file.buses);
        for (std::size_t i = 0; i < file.junctions.size(); ++i) {
            const TGridPoint place = file.junctions[i].place;
            if (page.page.junctionNets[i] >= 0 || busFinder.LinesOver(place).isEmpty()) {
                page.connectionPoints.At(place).hasJunction = true;
                junctionNet.insert(place, draft.NetName(page.page.junctionNets[i]));
            }
        }
        wires = Cut(file.wires, page.connectionPoints);
        TurnHeadToTail(wires, page.connectionPoints);
        for (TPiece& piece : wires) {
            Place(std::make_unique<TGraphicsNetItem>(), piece, file.wires[Index(piece.source)].element,
                  draft.NetName(page.page.wireNets[Index(piece.source)]));
        }
        for (TConnectionPoint& point : page.connectionPoints.All()) {
            LinkMeeting(point);
        }
    }

    void Place(std::unique_ptr<TGraphicsSectionItem> item, TPiece& piece, const TSexpression& element,
               const QString& net)
    {
        item->SetPoint1(Measures::ScenePoint(piece.places[piece.isTurned ? 1 : 0]));
        item->SetPoint2(Measures::ScenePoint(piece.places[piece.isTurned ? 0 : 1]));
        if (const double width = ShapeValues::StrokeWidth(element); width > 0) {
            item->SetPenWidth(static_cast<float>(width));
        }
        item->Pen().setStyle(ShapeValues::StrokeStyle(element));
        item->SetNet(net);
        const QColor color = draft.NetColor(net);
        item->SetAltColor(color.isValid() ? color : ShapeValues::StrokeColor(element));
        piece.item = item.get();
        page.target.Attach(std::move(item));
    }

    TGraphicsJunctionItem* AddJunction(const TGridPoint& place, Osmirel::Layer layer, const QString& net)
    {
        constexpr float usualSize = 10.8F; // In scene units: 36 thousandths of an inch.
        auto junction = std::make_unique<TGraphicsJunctionItem>();
        TGraphicsJunctionItem* added = junction.get();
        junction->SetLayer(layer);
        junction->SetSize(usualSize, usualSize);
        junction->setPos(Measures::ScenePoint(place));
        junction->SetNet(net);
        junction->SetAltColor(draft.NetColor(net));
        page.target.Attach(std::move(junction));
        return added;
    }

    /** Links ends with each other, through a junction if there is one or if there are more than two ends. */
    void LinkEnds(const TConnectionPoint& point, std::vector<TPiece>& pieces, Osmirel::Layer layer, const QString& net)
    {
        if (point.IsBend()) {
            const TConnectionPoint::TEnd& one = point.ends[0];
            const TConnectionPoint::TEnd& other = point.ends[1];
            pieces[Index(one.line)].item->LinkTo(EndOf(pieces[Index(one.line)], one.end),
                                                 pieces[Index(other.line)].item);
        } else if (point.hasJunction || point.ends.size() > 1) {
            LinkEndsTo(AddJunction(point.place, layer, net), point, pieces);
        }
    }

    static void LinkEndsTo(TGraphicsItem* target, const TConnectionPoint& point, std::vector<TPiece>& pieces)
    {
        for (const TConnectionPoint::TEnd& end : point.ends) {
            pieces[Index(end.line)].item->LinkTo(EndOf(pieces[Index(end.line)], end.end), target);
        }
    }

    QString NetAt(const TConnectionPoint& point) const
    {
        if (!point.ends.isEmpty()) {
            return draft.NetName(page.page.wireNets[Index(wires[Index(point.ends.first().line)].source)]);
        }
        return point.pins.isEmpty() ? junctionNet.value(point.place) : point.pins.first().net;
    }

    void LinkMeeting(const TConnectionPoint& point)
    {
        const QString net = NetAt(point);
        LinkPins(point);
        const bool hasEntryOnly = point.pins.isEmpty() && !point.hasJunction && point.entries.size() == 1;
        if (hasEntryOnly && point.ends.size() < 2) {
            LinkEndsTo(point.entries.first(), point, wires);
            return;
        }
        TGraphicsItem* node = point.pins.isEmpty() ? nullptr : point.pins.first().item;
        if (point.hasJunction || !node) {
            const bool needsNode = point.hasJunction || !point.entries.isEmpty();
            TGraphicsItem* junction = needsNode ? AddJunction(point.place, Osmirel::SchematicNets, net) : nullptr;
            if (junction) {
                LinkEndsTo(junction, point, wires);
            } else {
                LinkEnds(point, wires, Osmirel::SchematicNets, net);
            }
            if (junction && node) {
                AddLink(junction, node, point.place, net);
            }
            node = junction;
        } else {
            LinkEndsTo(node, point, wires);
        }
        for (TGraphicsBusEntryItem* entry : point.entries) {
            AddLink(node, entry, point.place, net);
        }
    }

    /** Links two items at one point that cannot be linked otherwise, by a wire of zero length. */
    void AddLink(TGraphicsItem* one, TGraphicsItem* other, const TGridPoint& place, const QString& net)
    {
        auto wire = std::make_unique<TGraphicsNetItem>();
        wire->SetPoint1(Measures::ScenePoint(place));
        wire->SetPoint2(Measures::ScenePoint(place));
        wire->SetNet(net);
        wire->SetAltColor(draft.NetColor(net));
        TGraphicsNetItem* added = wire.get();
        page.target.Attach(std::move(wire));
        added->LinkToFirst(one);
        added->LinkToLast(other);
    }

    /** Links pins at one point: all with the first one, and pins of different symbols pairwise. Pins that get no net
     * from a wire or a port store it themselves. */
    static void LinkPins(const TConnectionPoint& point)
    {
        const bool hasPort = std::any_of(point.pins.begin(), point.pins.end(),
                                         [](const TConnectionPoint::TPin& pin) { return pin.isOfPort; });
        for (int i = 0; i < point.pins.size(); ++i) {
            TGraphicsPinItem* pin = point.pins[i].item;
            for (int k = 0; k < i; ++k) {
                if (k == 0 || point.pins[k].item->parentItem() != pin->parentItem()) {
                    point.pins[k].item->LinkToPin(pin);
                }
            }
            if (!hasPort && point.ends.isEmpty()) {
                pin->NameNet(point.pins[i].net);
            }
        }
    }

    TPageDraft& page;
    TSchematicDraft& draft;
    std::vector<TPiece> buses;
    std::vector<TPiece> wires;
    QHash<TGridPoint, QString> junctionNet;
};

} // namespace

void PageItems::LinkPage(TPageDraft& page, TSchematicDraft& draft)
{
    TPageLinker(page, draft).Link();
}
