#include "tests/host/LinkFault.h"
#include "tests/host/Sheet.h"
#include "tests/support/TestProgram.h"

#include <QtTest>

#include <algorithm>
#include <random>

namespace {

using Test::PinOf;
using Test::Sheet;
using Items = QVector<TGraphicsItem*>;

/** Something of each kind that net wires can be linked to. */
TGraphicsItem* Linkable(Sheet& sheet, const QByteArray& kind)
{
    const QPointF at(100, 0);
    if (kind == "pin") {
        return sheet.Add<TGraphicsPinItem>(at);
    }
    if (kind == "pin of a part") {
        return PinOf(sheet.Part(at, 1, {{0, 0}}), 1);
    }
    if (kind == "pin of a port") {
        return sheet.Port(at, "P")->Pin();
    }
    if (kind == "junction") {
        return sheet.Junction(at);
    }
    if (kind == "bus entry") {
        return sheet.Entry(at);
    }
    return sheet.Wire(at, {200, 0});
}

void LinkableKinds()
{
    QTest::addColumn<QByteArray>("kind");
    for (const char* kind : {"pin", "pin of a part", "pin of a port", "junction", "bus entry", "netwire"}) {
        QTest::newRow(kind) << QByteArray(kind);
    }
}

/** Two parts and a net tie whose pins touch, wires, a junction, ports, a bus and entries, all linked. */
void DrawNetwork(Sheet& sheet)
{
    TGraphicsPartItem* left = sheet.Part({0, 0}, 1, {{0, 0}, {0, 50}});
    TGraphicsPartItem* right = sheet.Part({100, 0}, 2, {{0, 0}, {-100, 50}});
    TGraphicsNetTieSchItem* tie = sheet.NetTie({-15, 50}, 3);
    TGraphicsPortItem* port = sheet.Port({50, 0}, "P");
    TGraphicsPortItem* other = sheet.Port({-30, 50}, "Q");
    TGraphicsJunctionItem* junction = sheet.Junction({50, 0});
    TGraphicsNetItem* first = sheet.Wire({0, 0}, {50, 0});
    TGraphicsNetItem* second = sheet.Wire({50, 0}, {100, 0});
    TGraphicsNetItem* third = sheet.Wire({50, 0}, {50, 80});
    TGraphicsNetItem* fourth = sheet.Wire({50, 80}, {60, 90});
    TGraphicsNetItem* fifth = sheet.Wire({50, 0}, {50, 0});
    TGraphicsBusItem* bus = sheet.Bus({70, 100}, {300, 100}, "D[0..1]");
    TGraphicsBusItem* further = sheet.Bus({300, 100}, {300, 200}, "D[0..1]");
    TGraphicsBusEntryItem* entry = sheet.Entry({60, 90});
    TGraphicsBusEntryItem* loose = sheet.Entry({200, 90});
    first->LinkToLast(junction);
    second->LinkToFirst(junction);
    third->LinkToFirst(junction);
    third->LinkToLast(fourth);
    fifth->LinkToFirst(junction);
    fifth->LinkToLast(port->Pin());
    fourth->LinkToLast(entry);
    entry->LinkToBus(bus);
    loose->LinkToBus(bus);
    bus->LinkToLast(further);
    PinOf(tie, 2)->LinkToPin(PinOf(left, 2));
    PinOf(tie, 1)->LinkToPin(other->Pin());
    left->Connect({});
    right->Connect({});
}

/** Those that a page owns directly. */
QList<TGraphicsItem*> TopItems(const Sheet& sheet)
{
    QList<TGraphicsItem*> items = sheet.AllItems();
    items.erase(
        std::remove_if(items.begin(), items.end(), [](const TGraphicsItem* item) { return item->parentItem(); }),
        items.end());
    return items;
}

} // namespace

class TestSheetLinks : public QObject
{
    Q_OBJECT

private slots:
    void linksAreHeldByBothSides_data() { LinkableKinds(); }
    void linksAreHeldByBothSides()
    {
        QFETCH(QByteArray, kind);
        Sheet sheet;
        TGraphicsNetItem* wire = sheet.Wire({0, 0}, {100, 0});
        TGraphicsItem* target = Linkable(sheet, kind);
        const QString before = sheet.DumpWithOwnNets();
        wire->LinkToLast(target);
        QCOMPARE(target->Links(), Items{wire});
        QCOMPARE(wire->Links(), Items{target});
        QVERIFY(target->Island() && target->Island() == wire->Island());
        QCOMPARE(Test::LinkFault(sheet.AllItems()), QString());
        wire->UnlinkFrom(target);
        QCOMPARE(sheet.DumpWithOwnNets(), before);
        QVERIFY(!target->Island() && !wire->Island());
    }

    void aDestroyedItemLeavesNoLinkToItself_data() { LinkableKinds(); }
    void aDestroyedItemLeavesNoLinkToItself()
    {
        QFETCH(QByteArray, kind);
        Sheet sheet;
        TGraphicsNetItem* wire = sheet.Wire({0, 0}, {100, 0});
        TGraphicsItem* target = Linkable(sheet, kind);
        wire->LinkToLast(target);
        wire->LinkToFirst(target); // With both ends, or with itself from tail to head.
        delete (target->parentItem() ? target->parentItem() : target);
        QCOMPARE(wire->Links(), Items());
        QVERIFY(!wire->Island());
        target = Linkable(sheet, kind);
        wire->LinkToLast(target);
        delete wire;
        QCOMPARE(target->Links(), Items());
        QVERIFY(!target->Island());
    }

    void linksStayWhileAnItemIsAway_data() { LinkableKinds(); }
    void linksStayWhileAnItemIsAway()
    {
        QFETCH(QByteArray, kind);
        Sheet sheet;
        TGraphicsNetItem* wire = sheet.Wire({0, 0}, {100, 0}, "N");
        TGraphicsItem* target = Linkable(sheet, kind);
        wire->LinkToLast(target);
        const QString before = sheet.DumpWithOwnNets();
        wire->Detach();
        QCOMPARE(target->Links(), Items{wire});
        wire->AttachTo(sheet.CurrentPage()->Scene());
        QCOMPARE(sheet.DumpWithOwnNets(), before);
        auto* symbol = static_cast<TGraphicsItem*>(target->parentItem() ? target->parentItem() : target);
        symbol->Detach();
        QCOMPARE(wire->Links(), Items{target});
        symbol->AttachTo(sheet.CurrentPage()->Scene());
        QCOMPARE(sheet.DumpWithOwnNets(), before);
        QCOMPARE(Test::LinkFault(sheet.AllItems()), QString());
    }

    void itemsMayBeDestroyedInAnyOrder_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (unsigned seed = 1; seed <= 30; ++seed) {
            QTest::newRow(qPrintable(QString::number(seed))) << seed;
        }
    }
    void itemsMayBeDestroyedInAnyOrder()
    {
        QFETCH(unsigned, seed);
        Sheet sheet;
        DrawNetwork(sheet);
        QCOMPARE(Test::LinkFault(sheet.AllItems()), QString());
        std::mt19937 random(seed);
        QList<TGraphicsItem*> items = sheet.AllItems();
        std::shuffle(items.begin(), items.end(), random);
        // Pins and their numbers on their own, too, before or after their symbols.
        while (!items.isEmpty()) {
            delete items.first();
            const QList<TGraphicsItem*> left = sheet.AllItems();
            items.erase(std::remove_if(items.begin(), items.end(),
                                       [&left](TGraphicsItem* item) { return !left.contains(item); }),
                        items.end());
            QCOMPARE(Test::LinkFault(left), QString());
            for (const TGraphicsItem* item : left) {
                QVERIFY(!item->StateLine().isEmpty());
                QVERIFY(!item->Island() || item->Island()->members.size() > 1);
            }
        }
        QVERIFY(sheet.AllItems().isEmpty());
    }

    void detachedItemsMayOutliveTheSheet()
    {
        auto sheet = std::make_unique<Sheet>();
        DrawNetwork(*sheet);
        std::vector<std::unique_ptr<TGraphicsItem>> away;
        const QList<TGraphicsItem*> top = TopItems(*sheet);
        for (int i = 0; i < top.size(); i += 2) {
            top[i]->Detach();
            away.emplace_back(top[i]);
        }
        sheet.reset();
        for (const auto& item : away) {
            for (const TGraphicsItem* other : item->Links()) {
                QVERIFY(std::any_of(away.cbegin(), away.cend(), [other](const auto& each) {
                    return each.get() == other || each.get() == other->parentItem();
                }));
            }
        }
    }

    // Buses and their entries.

    void anEntryIsLinkedOnBothSides()
    {
        Sheet sheet;
        TGraphicsBusItem* bus = sheet.Bus({0, 0}, {100, 0});
        TGraphicsBusItem* other = sheet.Bus({0, 50}, {100, 50});
        TGraphicsBusEntryItem* entry = sheet.Entry({10, 0});
        TGraphicsBusEntryItem* second = sheet.Entry({20, 0});
        entry->LinkToBus(bus);
        second->LinkToBus(bus);
        QCOMPARE(bus->LinkedBusEntries(), (QList<TGraphicsBusEntryItem*>{entry, second}));
        QCOMPARE(entry->BusLink(), bus);
        entry->LinkToBus(other);
        QCOMPARE(bus->LinkedBusEntries(), QList<TGraphicsBusEntryItem*>{second});
        QCOMPARE(other->LinkedBusEntries(), QList<TGraphicsBusEntryItem*>{entry});
        entry->UnlinkFromBus();
        entry->UnlinkFromBus();
        QCOMPARE(entry->BusLink(), nullptr);
        QCOMPARE(other->Links(), Items());
        entry->LinkToBus(nullptr);
        QCOMPARE(entry->Links(), Items());
    }

    void anEntryTakesOneNetWire()
    {
        Sheet sheet;
        TGraphicsBusEntryItem* entry = sheet.Entry({10, 0});
        TGraphicsNetItem* wire = sheet.Wire({20, 10}, {50, 10});
        TGraphicsNetItem* next = sheet.Wire({20, 10}, {20, 50});
        wire->LinkToFirst(entry);
        QCOMPARE(entry->NetLink(), wire);
        next->LinkToLast(entry);
        QCOMPARE(entry->NetLink(), next);
        QCOMPARE(wire->Links(), Items()); // Both sides are told.
        entry->UnlinkFromNet();
        entry->UnlinkFromNet();
        QCOMPARE(next->Links() + entry->Links(), Items());
    }

    void aWireWithBothEndsAtAnEntryIsCutAtBoth()
    {
        Sheet sheet;
        TGraphicsBusEntryItem* entry = sheet.Entry({10, 0});
        TGraphicsNetItem* loop = sheet.Wire({20, 10}, {20, 10});
        loop->LinkToFirst(entry);
        loop->LinkToLast(entry);
        loop->Unlink(TGraphicsItem::LinkEnd::First);
        QCOMPARE(entry->NetLink(), loop); // Still held by the other end.
        loop->LinkToFirst(entry);
        entry->UnlinkFromNet();
        QCOMPARE(entry->Links() + loop->Links(), Items());
        QVERIFY(!loop->Island());
    }

    void linksOfEntriesThatAreStoredAreOneSided()
    {
        Sheet sheet;
        TGraphicsBusItem* bus = sheet.Bus({0, 0}, {100, 0});
        TGraphicsNetItem* wire = sheet.Wire({20, 10}, {50, 10});
        TGraphicsBusEntryItem* entry = sheet.Entry({10, 0});
        entry->SetBusLink(bus);
        entry->SetNetLink(wire);
        QCOMPARE(entry->Links(), (Items{bus, wire}));
        QCOMPARE(bus->Links() + wire->Links(), Items());
        bus->AddLinkedBusEntry(entry);
        wire->SetFirstLink(entry);
        QCOMPARE(Test::LinkFault(sheet.AllItems()), QString());
        QVERIFY(entry->ReplaceLinkedItem(bus, nullptr));
        QVERIFY(!entry->ReplaceLinkedItem(bus, nullptr));
        QCOMPARE(bus->LinkedBusEntries(), QList<TGraphicsBusEntryItem*>{entry});
        bus->RemoveLinkedBusEntry(entry);
        QCOMPARE(bus->Links(), Items());
    }

    void aBusJoinsNoNets()
    {
        Sheet sheet;
        TGraphicsBusItem* bus = sheet.Bus({0, 0}, {100, 0}, "D[0..1]");
        QList<TGraphicsNetItem*> wires;
        for (const int i : {0, 1}) {
            TGraphicsBusEntryItem* entry = sheet.Entry({10.0 * i, 0});
            entry->LinkToBus(bus);
            wires.append(sheet.Wire({10.0 * i + 10, 10}, {10.0 * i + 10, 50}));
            wires.last()->LinkToFirst(entry);
            TGraphicsPortItem* port = sheet.Port({10.0 * i + 10, 50}, QString("D%1").arg(i));
            wires.last()->LinkToLast(port->Pin());
            QCOMPARE(entry->Net(), port->Name());
        }
        QCOMPARE(wires.first()->Net(), QString("D0"));
        QCOMPARE(wires.last()->Net(), QString("D1"));
        QCOMPARE(bus->Net(), QString());
        QVERIFY(!bus->Island());
        QVERIFY(wires.first()->Island() != wires.last()->Island());
    }

    void busesThatMeetAreNotJoined()
    {
        Sheet sheet;
        TGraphicsBusItem* bus = sheet.Bus({0, 0}, {100, 0});
        TGraphicsBusItem* next = sheet.Bus({100, 0}, {100, 100});
        TGraphicsNetItem* wire = sheet.Wire({100, 0}, {200, 0}, "N");
        bus->LinkToLast(next);
        QVERIFY(!bus->Island() && !next->Island());
        wire->LinkToFirst(bus);
        QCOMPARE(bus->Net(), QString());
        QVERIFY(!wire->Island());
        QCOMPARE(Test::LinkFault(sheet.AllItems()), QString());
    }
};

PROPERTIES_TEST(TestSheetLinks)
#include "tst_sheet_links.moc"
