#include "workbench/importer/schematic/TPageConductors.h"

TPageConductors::TPageConductors(const TSheetPage& ofPage, DisjointSets& allSets) : page(ofPage), sets(allSets)
{
    const TSheetFile& file = *page.file;
    TKind wireKind{file.wires, TLineFinder(file.wires), {}, {}};
    TKind busKind{file.buses, TLineFinder(file.buses), {}, {}};
    AddLines(wireKind);
    AddLines(busKind);
    for (const TSheetPoint& junction : file.junctions) {
        junctions.push_back(AddAt(junction.place, wireKind));
        AddAt(junction.place, busKind);
    }
    for (const TPageSymbol& symbol : page.symbols) {
        pins.emplace_back();
        for (const TPagePin& pin : symbol.pins) {
            pins.back().push_back(AddAt(pin.place, wireKind));
        }
    }
    for (const TSheetLabel& label : file.labels) {
        labels.push_back(AddName(label, wireKind, busKind));
    }
    for (const TSheetBox& box : file.boxes) {
        boxPins.emplace_back();
        for (const TSheetLabel& pin : box.pins) {
            boxPins.back().push_back(AddName(pin, wireKind, busKind));
        }
    }
    for (const TSheetLine& entry : file.entries) {
        AddEntry(entry, wireKind, busKind);
    }
    for (const TSheetPoint& mark : file.noConnects) {
        noConnects.push_back(AddAt(mark.place, wireKind));
    }
    wires = wireKind.nodes;
    buses = busKind.nodes;
}

void TPageConductors::AddLines(TKind& kind)
{
    for (const TSheetLine& line : kind.lines) {
        const int node = sets.Add();
        kind.nodes.push_back(node);
        for (const TGridPoint& end : {line.start, line.end}) {
            if (kind.nodeAt.contains(end)) {
                sets.Join(node, kind.nodeAt.value(end));
            } else {
                kind.nodeAt.insert(end, node);
            }
        }
    }
}

int TPageConductors::AddAt(const TGridPoint& place, TKind& kind)
{
    const int node = sets.Add();
    JoinAt(place, node, kind);
    return node;
}

void TPageConductors::JoinAt(const TGridPoint& place, int node, TKind& kind)
{
    if (kind.nodeAt.contains(place)) {
        sets.Join(node, kind.nodeAt.value(place));
    } else {
        kind.nodeAt.insert(place, node);
    }
    const QVector<int> over = kind.finder.LinesOver(place);
    for (const int line : over) {
        sets.Join(node, kind.nodes[static_cast<std::size_t>(line)]);
    }
}

TPageConductors::TName TPageConductors::AddName(const TSheetLabel& label, TKind& wireKind, TKind& busKind)
{
    TName name{&label, 0, BusNames::Members(label.text, page.file->aliases)};
    const bool isOnBus = !busKind.finder.LinesOver(label.place).isEmpty();
    const bool isOnWire = !wireKind.finder.LinesOver(label.place).isEmpty();
    // A wire has one net, even if its label looks like a bus name.
    if (isOnWire && !isOnBus) {
        name.members.clear();
    }
    name.node = AddAt(label.place, name.members.isEmpty() ? wireKind : busKind);
    return name;
}

void TPageConductors::AddEntry(const TSheetLine& entry, TKind& wireKind, TKind& busKind)
{
    const bool startsOnBus = !busKind.finder.LinesOver(entry.start).isEmpty();
    const bool endsOnBus = !busKind.finder.LinesOver(entry.end).isEmpty();
    if (startsOnBus && endsOnBus) {
        const int node = AddAt(entry.start, busKind);
        JoinAt(entry.end, node, busKind);
        entries.push_back(-1);
    } else {
        entries.push_back(AddAt(endsOnBus ? entry.start : entry.end, wireKind));
    }
}
