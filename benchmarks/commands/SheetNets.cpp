#include "benchmarks/commands/Families.h"
#include "benchmarks/support/BenchSheet.h"
#include "benchmarks/support/Edits.h"

#include "properties/commands/TCmdBusEntry.h"
#include "properties/commands/TCmdNet.h"

#include <objects/TGraphicsBusEntryItem.h>
#include <objects/TGraphicsBusItem.h>
#include <objects/TGraphicsNetItem.h>

#include <benchmark/benchmark.h>

#include <array>

namespace Bench {

namespace {

/** Alternating net wires of two nets, all of a net linked head to tail. */
struct TwoNetsOfSheet
{
    explicit TwoNetsOfSheet(int count)
    {
        std::array<TGraphicsNetItem*, 2> previousOf{};
        for (int number = 0; number < count; ++number) {
            const int net = number % 2;
            const QPointF at = GridPoint(number);
            auto* wire = sheet.PlaceWire(at, at + QPointF(20, 0), Name(net));
            TGraphicsNetItem*& previous = previousOf.at(static_cast<std::size_t>(net));
            if (previous) {
                previous->LinkToLast(wire);
            }
            previous = wire;
            if (net == 0) {
                ofFirst.append(wire);
            }
        }
        sheet.AddNet(Name(0));
        sheet.AddNet(Name(1));
        sheet.Settle();
    }

    static QString Name(int net) { return QStringLiteral("N%1").arg(net); }

    ShownSheet sheet;
    QVector<TGraphicsItem*> ofFirst;
};

/** Colours one of two nets. The sizes are those of the page: half of its items are on the net. */
class ColouringOnSheet : public OneCommandEdit
{
public:
    ColouringOnSheet(Shelf& shelf, int size)
        : design(shelf.Get<TwoNetsOfSheet>("two nets of a sheet", size,
                                           [size] { return std::make_unique<TwoNetsOfSheet>(size); }))
    {}

    void ReadAll() override
    {
        for (const TGraphicsItem* item : qAsConst(design.ofFirst)) {
            benchmark::DoNotOptimize(item->AltColor());
        }
    }

    void Loop() override { SetAll(Qt::green); }
    void LoopBack() override { SetAll(QColor()); }
    void Settle() override { design.sheet.Settle(); }
    QString State() override { return design.sheet.Dump(); }

private:
    void SetAll(const QColor& color)
    {
        design.sheet.NetModel()->SetColorSch(TwoNetsOfSheet::Name(0), color);
        for (TGraphicsItem* item : qAsConst(design.ofFirst)) {
            item->SetAltColor(color);
        }
    }

    Command MakeCommand() const override
    {
        return std::make_unique<TCmdNetColorSch>(TwoNetsOfSheet::Name(0), QColor(Qt::green), &design.sheet);
    }

    TwoNetsOfSheet& design;
};

/** Buses of sixteen entries, each of which leads to a net wire that alternately begins or ends at it. */
struct BusSheet
{
    explicit BusSheet(int count)
    {
        constexpr int entriesOfABus = 16;
        for (int number = 0; number < count; ++number) {
            const QPointF at = GridPoint(number);
            if (number % entriesOfABus == 0) {
                bus = sheet.Place<TGraphicsBusItem>({});
                bus->SetPoint1(at);
                bus->SetPoint2(at + QPointF(entriesOfABus * 50, 0));
            }
            auto* entry = sheet.Place<TGraphicsBusEntryItem>(at);
            entry->SetLine({0, 0, 10, 10});
            entry->LinkToBus(bus);
            const QPointF end = at + QPointF(10, 10);
            const QString net = QStringLiteral("D%1").arg(number);
            if (number % 2 == 0) {
                sheet.PlaceWire(end, end + QPointF(0, 20), net)->LinkToFirst(entry);
            } else {
                sheet.PlaceWire(end + QPointF(0, 20), end, net)->LinkToLast(entry);
            }
            entries.append(entry);
        }
        sheet.Settle();
    }

    ShownSheet sheet;
    TGraphicsBusItem* bus = nullptr; ///< The last one.
    QList<TGraphicsItem*> entries;
};

/** Takes all bus entries off the page with one command. */
class TakingOffEntries : public OneCommandEdit
{
public:
    TakingOffEntries(Shelf& shelf, int size)
        : design(shelf.Get<BusSheet>("buses", size, [size] { return std::make_unique<BusSheet>(size); }))
    {
        for (TGraphicsItem* item : qAsConst(design.entries)) {
            auto* entry = static_cast<TGraphicsBusEntryItem*>(item);
            linked.push_back({entry, entry->BusLink(), entry->NetLink(), entry->NetLink()->FirstLink() == entry});
        }
    }

    void ReadAll() override
    {
        for (const Linked& each : linked) {
            benchmark::DoNotOptimize(each.entry->NetLink());
        }
    }

    void Loop() override
    {
        for (const Linked& each : linked) {
            each.entry->UnlinkFromBus();
            each.entry->UnlinkFromNet();
            each.entry->Detach();
        }
    }

    void LoopBack() override
    {
        for (const Linked& each : linked) {
            each.entry->AttachTo(design.sheet.Sheet().Scene());
            each.entry->SetBusLink(each.bus);
            each.bus->AddLinkedBusEntry(each.entry);
            each.entry->SetNetLink(each.net);
            each.entry->update();
            if (each.isFirst) {
                each.net->SetFirstLink(each.entry);
            } else {
                each.net->SetLastLink(each.entry);
            }
        }
    }

    void Settle() override { design.sheet.Settle(); }
    QString State() override { return design.sheet.Dump(); }

private:
    struct Linked
    {
        TGraphicsBusEntryItem* entry;
        TGraphicsBusItem* bus;
        TGraphicsNetItem* net;
        bool isFirst;
    };

    Command MakeCommand() const override { return std::make_unique<TCmdBusEntryDisconnect>(design.entries); }

    BusSheet& design;
    std::vector<Linked> linked;
};

} // namespace

void AddSheetNets(Shelf& shelf)
{
    RegisterEdit("TCmdNetColorSch", [&shelf](int size) { return std::make_unique<ColouringOnSheet>(shelf, size); });
    RegisterEdit(
        "TCmdBusEntryDisconnect", [&shelf](int size) { return std::make_unique<TakingOffEntries>(shelf, size); },
        AllSizes(100'000));
}

} // namespace Bench
