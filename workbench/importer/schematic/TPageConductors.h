#pragma once

#include "workbench/importer/schematic/BusNames.h"
#include "workbench/importer/schematic/TLineFinder.h"
#include "workbench/importer/schematic/TSheetPage.h"
#include <graphics/engine/DisjointSets.h>

/**
 * The conductors of a page, joined by union-find where they touch: wire ends at one point; pins, labels, junctions and
 * entries with the wires that they lie on, and with each other. Wires that cross, or of which one ends on the
 * middle of another, are not joined. The same holds for buses among themselves; an entry joins no bus with a wire.
 */
class TPageConductors
{
public:
    TPageConductors(const TSheetPage& ofPage, DisjointSets& allSets);

    /** A label or the pin of a sheet's box; it names one net, or the members of a bus. */
    struct TName
    {
        const TSheetLabel* label = nullptr;
        int node = 0;
        QVector<BusNames::TMember> members; ///< None for a single net.
    };

    // Numbers in the joined sets, parallel to the lists of the page and its file.
    std::vector<int> wires;
    std::vector<int> buses;
    std::vector<int> junctions;
    std::vector<int> entries;
    std::vector<TName> labels;
    std::vector<std::vector<TName>> boxPins;
    std::vector<std::vector<int>> pins;
    std::vector<int> noConnects;

private:
    /** Wires, or buses, with the positions of their ends. */
    struct TKind
    {
        const std::vector<TSheetLine>& lines;
        TLineFinder finder;
        std::vector<int> nodes;
        QHash<TGridPoint, int> nodeAt;
    };

    void AddLines(TKind& kind);
    int AddAt(const TGridPoint& place, TKind& kind);
    TName AddName(const TSheetLabel& label, TKind& wireKind, TKind& busKind);
    void AddEntry(const TSheetLine& entry, TKind& wireKind, TKind& busKind);
    void JoinAt(const TGridPoint& place, int node, TKind& kind);

    const TSheetPage& page;
    DisjointSets& sets;
};
