#include "workbench/importer/Measures.h"
#include "workbench/importer/schematic/PageItems.h"
#include "workbench/importer/schematic/TLineFinder.h"
#include "workbench/importer/ShapeParts.h"

#include <objects/TGraphicsBusEntryItem.h>
#include <objects/TGraphicsBusItem.h>
#include <objects/TGraphicsJunctionItem.h>
#include <objects/TGraphicsNetItem.h>
#include <objects/TGraphicsPinItem.h>

#include <algorithm>
#include <tuple>

namespace {

using LinkEnd = TGraphicsItem::LinkEnd;

/** A line of the file, or what was cut from one. */
struct TPiece
{
    TGridPoint places[2];
    int source = 0;        ///< Which of the file's lines it is from.
    bool isTurned = false; ///< Its item begins where it ends.
    TGraphicsSectionItem* item = nullptr;
};

/** Cuts lines where others meet them, and notes where the pieces end. */
std::vector<TPiece> Cut(const std::vector<TSheetLine>& lines, TMeetings& meetings)
{
    const TLineFinder finder(lines);
    std::vector<QVector<TGridPoint>> cuts(lines.size());
    for (const TMeeting& meeting : meetings.All()) {
        if (meeting.CutsLines()) {
            const QVector<int> over = finder.LinesOver(meeting.place);
            for (const int line : over) {
                cuts[Index(line)].append(meeting.place);
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
                meetings.At(places[k - 1]).ends.append({number, 0});
                meetings.At(places[k]).ends.append({number, 1});
            }
        }
    }
    return pieces;
}

/** Turns pieces so that wherever two meet the one ends and the other begins. */
void TurnHeadToTail(std::vector<TPiece>& pieces, TMeetings& meetings)
{
    const auto next = [&](const TMeeting::TEnd& leaving) -> std::optional<TMeeting::TEnd> {
        const TMeeting& meeting = meetings.At(pieces[Index(leaving.line)].places[leaving.end]);
        if (!meeting.IsBend()) {
            return std::nullopt;
        }
        return meeting.ends[0].line == leaving.line ? meeting.ends[1] : meeting.ends[0];
    };
    std::vector<bool> isDone(pieces.size(), false);
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        if (isDone[i]) {
            continue;
        }
        const auto first = static_cast<int>(i);
        TMeeting::TEnd begin{first, 0};
        for (auto before = next(begin); before && before->line != first; before = next(begin)) {
            begin = {before->line, 1 - before->end};
        }
        for (std::optional<TMeeting::TEnd> at = begin; at && !isDone[Index(at->line)];
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
        for (TMeeting& meeting : page.busMeetings.All()) {
            LinkEnds(meeting, buses, Osmirel::SchematicBuses, {});
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
            if (const double width = ShapeParts::StrokeWidth(entry.element); width > 0) {
                item->SetPenWidth(static_cast<float>(width));
            }
            item->SetAltColor(draft.NetColor(draft.NetName(page.page.entryNets[i])));
            if (startsOnBus || endsOnBus) {
                item->LinkToBus(BusAt(startsOnBus ? entry.start : entry.end));
            }
            if (!startsOnBus || !endsOnBus) {
                page.meetings.At(endsOnBus ? entry.start : entry.end).entries.append(item.get());
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
                page.meetings.At(place).hasJunction = true;
                junctionNet.insert(place, draft.NetName(page.page.junctionNets[i]));
            }
        }
        wires = Cut(file.wires, page.meetings);
        TurnHeadToTail(wires, page.meetings);
        for (TPiece& piece : wires) {
            Place(std::make_unique<TGraphicsNetItem>(), piece, file.wires[Index(piece.source)].element,
                  draft.NetName(page.page.wireNets[Index(piece.source)]));
        }
        for (TMeeting& meeting : page.meetings.All()) {
            LinkMeeting(meeting);
        }
    }

    void Place(std::unique_ptr<TGraphicsSectionItem> item, TPiece& piece, const TSexpression& element,
               const QString& net)
    {
        item->SetPoint1(Measures::ScenePoint(piece.places[piece.isTurned ? 1 : 0]));
        item->SetPoint2(Measures::ScenePoint(piece.places[piece.isTurned ? 0 : 1]));
        if (const double width = ShapeParts::StrokeWidth(element); width > 0) {
            item->SetPenWidth(static_cast<float>(width));
        }
        item->Pen().setStyle(ShapeParts::StrokeStyle(element));
        item->SetNet(net);
        const QColor color = draft.NetColor(net);
        item->SetAltColor(color.isValid() ? color : ShapeParts::StrokeColor(element));
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

    /** Links ends with each other, over a junction if there is one or if they are more than two. */
    void LinkEnds(const TMeeting& meeting, std::vector<TPiece>& pieces, Osmirel::Layer layer, const QString& net)
    {
        if (meeting.IsBend()) {
            const TMeeting::TEnd& one = meeting.ends[0];
            const TMeeting::TEnd& other = meeting.ends[1];
            pieces[Index(one.line)].item->LinkTo(EndOf(pieces[Index(one.line)], one.end),
                                                 pieces[Index(other.line)].item);
        } else if (meeting.hasJunction || meeting.ends.size() > 1) {
            LinkEndsTo(AddJunction(meeting.place, layer, net), meeting, pieces);
        }
    }

    static void LinkEndsTo(TGraphicsItem* target, const TMeeting& meeting, std::vector<TPiece>& pieces)
    {
        for (const TMeeting::TEnd& end : meeting.ends) {
            pieces[Index(end.line)].item->LinkTo(EndOf(pieces[Index(end.line)], end.end), target);
        }
    }

    QString NetAt(const TMeeting& meeting) const
    {
        if (!meeting.ends.isEmpty()) {
            return draft.NetName(page.page.wireNets[Index(wires[Index(meeting.ends.first().line)].source)]);
        }
        return meeting.pins.isEmpty() ? junctionNet.value(meeting.place) : meeting.pins.first().net;
    }

    void LinkMeeting(const TMeeting& meeting)
    {
        const QString net = NetAt(meeting);
        LinkPins(meeting);
        const bool hasEntryOnly = meeting.pins.isEmpty() && !meeting.hasJunction && meeting.entries.size() == 1;
        if (hasEntryOnly && meeting.ends.size() < 2) {
            LinkEndsTo(meeting.entries.first(), meeting, wires);
            return;
        }
        TGraphicsItem* node = meeting.pins.isEmpty() ? nullptr : meeting.pins.first().item;
        if (meeting.hasJunction || !node) {
            const bool needsNode = meeting.hasJunction || !meeting.entries.isEmpty();
            TGraphicsItem* junction = needsNode ? AddJunction(meeting.place, Osmirel::SchematicNets, net) : nullptr;
            if (junction) {
                LinkEndsTo(junction, meeting, wires);
            } else {
                LinkEnds(meeting, wires, Osmirel::SchematicNets, net);
            }
            if (junction && node) {
                AddLink(junction, node, meeting.place, net);
            }
            node = junction;
        } else {
            LinkEndsTo(node, meeting, wires);
        }
        for (TGraphicsBusEntryItem* entry : meeting.entries) {
            AddLink(node, entry, meeting.place, net);
        }
    }

    /** Links two items that lie on one place, and cannot be linked otherwise, by a wire without length. */
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

    /** Pins on one place are linked: those of a symbol with the first one, and others each with each. Those that get no
     *  net from a wire or a port know it themselves. */
    static void LinkPins(const TMeeting& meeting)
    {
        const bool hasPort = std::any_of(meeting.pins.begin(), meeting.pins.end(),
                                         [](const TMeeting::TPin& pin) { return pin.isOfPort; });
        for (int i = 0; i < meeting.pins.size(); ++i) {
            TGraphicsPinItem* pin = meeting.pins[i].item;
            for (int k = 0; k < i; ++k) {
                if (k == 0 || meeting.pins[k].item->parentItem() != pin->parentItem()) {
                    meeting.pins[k].item->LinkToPin(pin);
                }
            }
            if (!hasPort && meeting.ends.isEmpty()) {
                pin->NameNet(meeting.pins[i].net);
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
