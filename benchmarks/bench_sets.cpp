#include "benchmarks/support/BenchBoard.h"
#include "benchmarks/support/Ratios.h"

#include "properties/sets/TPropertySetForHole.h"
#include "properties/sets/TPropertySetForPad.h"
#include "properties/sets/TPropertySetForVia.h"

#include <benchmark/benchmark.h>

#include <QApplication>

#include <algorithm>

namespace {

using Bench::BenchBoard;
using Bench::BoardShelf;
using Bench::Kind;
using Items = QList<TGraphicsItem*>;

/** Small selections are scanned many at once: what is timed covers at least so many items. */
constexpr int itemsInAStretch = 10'000;

/** Of small selections so many sets are made, each with its rows. */
constexpr int setsInAStretch = 10;

template <class... Values>
void Use(const Values&... values)
{
    (benchmark::DoNotOptimize(values), ...);
}

// The scans: what a set has to know of its items, read and compared until it is known, and nothing else.

void ScanVias(const Items& items)
{
    const TGraphicsViaItem* first = nullptr;
    bool sameGroup = true;
    bool sameMask = true;
    for (const TGraphicsItem* item : items) {
        if (item->type() != ItemType::Via) {
            continue;
        }
        const auto* via = static_cast<const TGraphicsViaItem*>(item);
        first = first ? first : via;
        sameGroup = sameGroup && via->ViaGroup() == first->ViaGroup();
        sameMask = sameMask && via->MaskEnabled() == first->MaskEnabled();
    }
    Use(sameGroup, sameMask);
}

void ScanPads(const Items& items)
{
    const TGraphicsPadItem* first = nullptr;
    bool sameNumber = true;
    bool sameName = true;
    bool sameSide = true;
    bool sameType = true;
    bool sameShape = true;
    bool sameThermal = true;
    bool sameMask = true;
    bool samePaste = true;
    bool inPackage = false;
    for (const TGraphicsItem* item : items) {
        if (item->type() != ItemType::Pad) {
            continue;
        }
        const auto* pad = static_cast<const TGraphicsPadItem*>(item);
        first = first ? first : pad;
        sameNumber = sameNumber && pad->Number() == first->Number();
        sameName = sameName && pad->Name() == first->Name();
        sameSide = sameSide && pad->StartLayer() == first->StartLayer();
        sameType = sameType && pad->IsSMD() == first->IsSMD();
        sameShape = sameShape && pad->PadShape() == first->PadShape();
        sameThermal = sameThermal && pad->Thermal() == first->Thermal();
        sameMask = sameMask && pad->MaskEnabled() == first->MaskEnabled();
        samePaste = samePaste && pad->PasteEnabled() == first->PasteEnabled();
        inPackage = inPackage || pad->parentItem();
    }
    Use(sameNumber, sameName, sameSide, sameType, sameShape, sameThermal, sameMask, samePaste, inPackage);
}

void ScanHoles(const Items& items)
{
    double lastDiameter = 0;
    for (const TGraphicsItem* item : items) {
        if (item->type() == ItemType::Hole) {
            lastDiameter = static_cast<const TGraphicsHoleItem*>(item)->Size().width();
        }
    }
    Use(lastDiameter);
}

std::vector<Items> SelectionsOf(const BenchBoard& board, int size)
{
    std::vector<Items> selections;
    for (int first = 0; first + size <= board.Made().size(); first += size) {
        selections.push_back(board.Made().mid(first, size));
    }
    return selections;
}

/** Benchmarks a set; @p make makes one for a selection of the board, and @p scan reads what the set has to read. */
template <class MakeSet>
void Add(BoardShelf& shelf, const char* name, Kind kind, void (*scan)(const Items&), MakeSet make)
{
    const auto round = [&shelf, kind, scan, make](int size) {
        BenchBoard& board = shelf.Board(kind, std::max(size, itemsInAStretch));
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
    Bench::Register(name, {"scan", "set"}, {1, 10, 100, 1'000, 10'000, 100'000, 1'000'000}, round);
}

void AddAll(BoardShelf& shelf)
{
    Add(shelf, "TPropertySetForVia", Kind::Via, ScanVias, [](const Items& items, const BenchBoard& board) {
        return std::make_unique<TPropertySetForVia>(items, board.ViaGroups());
    });
    Add(shelf, "TPropertySetForPad", Kind::Pad, ScanPads, [](const Items& items, const BenchBoard&) {
        return std::make_unique<TPropertySetForPad>(items, QList{Osmirel::CopperTop, Osmirel::CopperBottom});
    });
    Add(shelf, "TPropertySetForHole", Kind::Hole, ScanHoles,
        [](const Items& items, const BenchBoard&) { return std::make_unique<TPropertySetForHole>(items); });
}

} // namespace

int main(int argc, char** argv)
{
    Bench::UseOffscreenPlatform();
    const QApplication application(argc, argv);
    BoardShelf shelf;
    AddAll(shelf);
    return Bench::RunAndCompare(argc, argv, {{"set", "scan", 2.0, 100'000}});
}
