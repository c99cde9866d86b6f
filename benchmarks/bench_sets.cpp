#include "benchmarks/sets/Scans.h"
#include "benchmarks/support/BenchBoard.h"
#include "benchmarks/support/Ratios.h"

#include "properties/sets/TPropertySetForBus.h"
#include "properties/sets/TPropertySetForHole.h"
#include "properties/sets/TPropertySetForKeepout.h"
#include "properties/sets/TPropertySetForMilling.h"
#include "properties/sets/TPropertySetForNet.h"
#include "properties/sets/TPropertySetForNetTiePcb.h"
#include "properties/sets/TPropertySetForNetTieSch.h"
#include "properties/sets/TPropertySetForOutline.h"
#include "properties/sets/TPropertySetForPackage.h"
#include "properties/sets/TPropertySetForPad.h"
#include "properties/sets/TPropertySetForPart.h"
#include "properties/sets/TPropertySetForPin.h"
#include "properties/sets/TPropertySetForPort.h"
#include "properties/sets/TPropertySetForPour.h"
#include "properties/sets/TPropertySetForPrimitives.h"
#include "properties/sets/TPropertySetForTag.h"
#include "properties/sets/TPropertySetForText.h"
#include "properties/sets/TPropertySetForVia.h"
#include "properties/sets/TPropertySetForWire.h"

#include <application/TProject.h>
#include <application/TSchematic.h>

#include <QApplication>

#include <algorithm>

namespace {

using Bench::BenchBoard;
using Bench::Items;
using Bench::Kind;
using Bench::Shelf;

/** Small selections are scanned repeatedly: a timed interval covers at least this many items. */
constexpr int itemsInAStretch = 10'000;

/** The number of sets made from a small selection, each with its rows. */
constexpr int setsInAStretch = 10;

std::vector<Items> SelectionsOf(const BenchBoard& board, int size)
{
    std::vector<Items> selections;
    for (int first = 0; first + size <= board.Made().size(); first += size) {
        selections.push_back(board.Made().mid(first, size));
    }
    return selections;
}

/** Benchmarks a set; @p make creates one for a selection of the board, and @p scan reads what the set must read. */
template <class MakeSet>
void Add(Shelf& shelf, const char* name, Kind kind, void (*scan)(const Items&), MakeSet make)
{
    const auto round = [&shelf, kind, scan, make](int size) {
        BenchBoard& board = Bench::BoardOf(shelf, kind, std::max(size, itemsInAStretch));
        const std::vector<Items> selections = SelectionsOf(board, size);
        const auto scanAll = [&] { std::for_each(selections.begin(), selections.end(), scan); };
        const std::size_t setCount = std::min<std::size_t>(selections.size(), setsInAStretch);

        return Bench::MedianOfRounds([&] {
            scanAll();
            const double scanning = Bench::SecondsOf(scanAll) / static_cast<double>(selections.size());

            std::vector<std::unique_ptr<TPropertySet>> sets;
            const double making = Bench::SecondsOf([&] {
                for (std::size_t i = 0; i < setCount; ++i) {
                    sets.push_back(make(selections[i], board));
                }
            });
            return Bench::Times{scanning, making / static_cast<double>(setCount)};
        });
    };
    std::vector<int> sizes;
    for (int size = 1; size <= Bench::MostOf(kind); size *= 10) {
        sizes.push_back(size);
    }
    Bench::Register(name, {"scan", "set"}, sizes, round);
}

using Layers = QList<Osmirel::Layer>;

void AddOfCopper(Shelf& shelf, TProject& project)
{
    Add(shelf, "TPropertySetForVia", Kind::Via, Bench::ScanVias, [](const Items& items, BenchBoard& board) {
        return std::make_unique<TPropertySetForVia>(items, board.ViaGroups());
    });
    Add(shelf, "TPropertySetForPad", Kind::Pad, Bench::ScanPads, [](const Items& items, BenchBoard&) {
        return std::make_unique<TPropertySetForPad>(items, Layers{Osmirel::CopperTop, Osmirel::CopperBottom});
    });
    Add(shelf, "TPropertySetForHole", Kind::Hole, Bench::ScanHoles,
        [](const Items& items, BenchBoard&) { return std::make_unique<TPropertySetForHole>(items); });
    Add(shelf, "TPropertySetForWire", Kind::Wire, Bench::ScanWires,
        [&project](const Items& items, BenchBoard&) { return std::make_unique<TPropertySetForWire>(items, &project); });
    Add(shelf, "TPropertySetForPour", Kind::Pour, Bench::ScanPours, [](const Items& items, BenchBoard&) {
        return std::make_unique<TPropertySetForPour>(items, Layers{Osmirel::CopperTop, Osmirel::CopperBottom});
    });
    Add(shelf, "TPropertySetForKeepout", Kind::Keepout, Bench::ScanKeepouts,
        [](const Items& items, BenchBoard&) { return std::make_unique<TPropertySetForKeepout>(items); });
}

void AddOfComponents(Shelf& shelf, TProject& project)
{
    Add(shelf, "TPropertySetForPackage", Kind::Package, Bench::ScanPackages, [](const Items& items, BenchBoard& board) {
        return std::make_unique<TPropertySetForPackage>(items, Layers{Osmirel::PackagesTop, Osmirel::PackagesBottom},
                                                        &board);
    });
    Add(shelf, "TPropertySetForNetTiePcb", Kind::NetTie, Bench::ScanNetTies,
        [&project](const Items& items, BenchBoard&) {
            return std::make_unique<TPropertySetForNetTiePcb>(items, &project);
        });
    Add(shelf, "TPropertySetForNetTieSch", Kind::NetTieSymbol, Bench::ScanNetTieSymbols,
        [&project](const Items& items, BenchBoard&) {
            return std::make_unique<TPropertySetForNetTieSch>(items, &project);
        });
}

void AddOfDrawings(Shelf& shelf)
{
    Add(shelf, "TPropertySetForText", Kind::Text, Bench::ScanTexts, [](const Items& items, BenchBoard&) {
        return std::make_unique<TPropertySetForText>(items, Layers{Osmirel::SilkTop, Osmirel::SilkBottom});
    });
    Add(shelf, "TPropertySetForPrimitives", Kind::Drawing, Bench::ScanDrawings, [](const Items& items, BenchBoard&) {
        return std::make_unique<TPropertySetForPrimitives>(items,
                                                           Layers{Osmirel::DrawingsTop, Osmirel::DrawingsBottom});
    });
    Add(shelf, "TPropertySetForMilling", Kind::Milling, Bench::ScanMillings,
        [](const Items& items, BenchBoard&) { return std::make_unique<TPropertySetForMilling>(items); });
    Add(shelf, "TPropertySetForOutline", Kind::Outline, Bench::ScanOutlines,
        [](const Items& items, BenchBoard&) { return std::make_unique<TPropertySetForOutline>(items); });
}

void AddOfSheets(Shelf& shelf, TProject& project)
{
    TSchematic* schematic = project.Schematic();
    Add(shelf, "TPropertySetForNet", Kind::NetWire, Bench::ScanNetWires, [schematic](const Items& items, BenchBoard&) {
        return std::make_unique<TPropertySetForNet>(items, schematic);
    });
    Add(shelf, "TPropertySetForBus", Kind::Bus, Bench::ScanBuses,
        [](const Items& items, BenchBoard&) { return std::make_unique<TPropertySetForBus>(items); });
    Add(shelf, "TPropertySetForPin", Kind::Pin, Bench::ScanPins,
        [](const Items& items, BenchBoard&) { return std::make_unique<TPropertySetForPin>(items); });
    Add(shelf, "TPropertySetForPort", Kind::Port, Bench::ScanPorts, [schematic](const Items& items, BenchBoard&) {
        return std::make_unique<TPropertySetForPort>(items, schematic);
    });
    Add(shelf, "TPropertySetForPart", Kind::Part, Bench::ScanParts,
        [](const Items& items, BenchBoard&) { return std::make_unique<TPropertySetForPart>(items); });
    Add(shelf, "TPropertySetForTag", Kind::Tag, Bench::ScanTags,
        [&project](const Items& items, BenchBoard&) { return std::make_unique<TPropertySetForTag>(items, &project); });
}

} // namespace

int main(int argc, char** argv)
{
    Bench::UseOffscreenPlatform();
    const QApplication application(argc, argv);
    Shelf shelf;
    TSchematic schematic;
    TProject project;
    project.SetKind(TProject::InStep);
    project.SetSchematic(&schematic);
    AddOfCopper(shelf, project);
    AddOfComponents(shelf, project);
    AddOfDrawings(shelf);
    AddOfSheets(shelf, project);
    return Bench::RunAndCompare(argc, argv, {{"set", "scan", 2.0, 100'000}}, Bench::Order::AsRegistered);
}
