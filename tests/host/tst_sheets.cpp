#include "tests/host/LinkFault.h"
#include "tests/host/Sheet.h"
#include "tests/support/TestMain.h"

#include <application/TProjectTree.h>

#include <QPainter>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <random>

namespace {

using Test::PinOf;
using Test::Sheet;
using Items = QVector<TGraphicsItem*>;

TGraphicsPinItem* LoosePin(Sheet& sheet, const QPointF& at)
{
    auto* pin = sheet.Add<TGraphicsPinItem>(at);
    pin->SetName("CLK");
    pin->NumberText()->SetText("A1");
    return pin;
}

using Maker = TGraphicsItem* (*)(Sheet&);

/** One of each kind, with no attribute as it is at first. */
const QList<QPair<const char*, Maker>>& EveryKind()
{
    static const QList<QPair<const char*, Maker>> kinds{
        {"pin",
         [](Sheet& sheet) -> TGraphicsItem* {
             TGraphicsPinItem* pin = LoosePin(sheet, {30, 40});
             pin->SetNumberVisible(false);
             pin->SetPinType(TGraphicsPinItem::TypePower);
             pin->SetPinStyle(TGraphicsPinItem::StyleInverse);
             pin->SetPinLength(TGraphicsPinItem::LengthLong);
             pin->SetSymbolLength(50);
             pin->SetSwap(3);
             return pin;
         }},
        {"port",
         [](Sheet& sheet) -> TGraphicsItem* {
             TGraphicsPortItem* port = sheet.Port({30, 40}, "GND");
             port->SetPortShape(TGraphicsPortItem::ShapeBidirectional);
             return port;
         }},
        {"port without its name",
         [](Sheet& sheet) -> TGraphicsItem* {
             TGraphicsPortItem* port = sheet.Port({30, 40}, "GND");
             port->SetPortShape(TGraphicsPortItem::ShapePower);
             port->SetNameVisible(false);
             return port;
         }},
        {"part",
         [](Sheet& sheet) -> TGraphicsItem* {
             TGraphicsPartItem* part = sheet.Part({30, 40}, 7, {{0, 0}, {60, 0}});
             part->SetRefDes("U7");
             part->SetValue("74HC00");
             part->SetName("7400");
             part->SetPackageName("SO14@x");
             part->SetSwapNumber(2);
             part->SetSymbolOpen(true);
             part->SetLockValue(true);
             PinOf(part, 2)->SetPinLength(TGraphicsPinItem::LengthShort);
             PinOf(part, 2)->UpdatePath();
             return part;
         }},
        {"nettiesymbol",
         [](Sheet& sheet) -> TGraphicsItem* {
             return sheet.NetTie({30, 40}, 9);
         }},
        {"netwire",
         [](Sheet& sheet) -> TGraphicsItem* {
             return sheet.Wire({30, 40}, {90, 40}, "N");
         }},
        {"bus",
         [](Sheet& sheet) -> TGraphicsItem* {
             return sheet.Bus({30, 40}, {90, 40}, "D[0..7]");
         }},
        {"busentry",
         [](Sheet& sheet) -> TGraphicsItem* {
             return sheet.Entry({30, 40});
         }},
        {"tag",
         [](Sheet& sheet) -> TGraphicsItem* {
             TGraphicsTagItem* tag = sheet.Tag({30, 40}, "TITLE");
             tag->SetValue("Amplifier", true);
             return tag;
         }},
    };
    return kinds;
}

void Kinds()
{
    QTest::addColumn<int>("kind");
    for (int i = 0; i < EveryKind().size(); ++i) {
        QTest::newRow(EveryKind()[i].first) << i;
    }
}

/** The lines of an item and of all below it. */
QString State(const TGraphicsItem* item)
{
    QString state = item->StateLine() + item->OwnNet();
    const QList<QGraphicsItem*> children = item->childItems();
    for (const QGraphicsItem* child : children) {
        state += '\n' + State(dynamic_cast<const TGraphicsItem*>(child));
    }
    return state;
}

/** Something of each kind that net wires can be linked to. */
TGraphicsItem* Linkable(Sheet& sheet, const QByteArray& kind)
{
    const QPointF at(100, 0);
    if (kind == "pin") {
        return LoosePin(sheet, at);
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

class TestSheets : public QObject
{
    Q_OBJECT

private slots:
    // Items.

    void kindsHaveTheirNumbersAndNames()
    {
        Sheet sheet;
        const auto kind = [](const TGraphicsItem* item) { return qMakePair(item->type(), item->KindName()); };
        QCOMPARE(kind(sheet.Port({}, "P")), qMakePair(0x10009, QString("port")));
        QCOMPARE(kind(sheet.Part({}, 1, {})), qMakePair(0x1000a, QString("part")));
        QCOMPARE(kind(LoosePin(sheet, {})), qMakePair(0x1000c, QString("pin")));
        QCOMPARE(kind(sheet.Wire({}, {})), qMakePair(0x1000e, QString("netwire")));
        QCOMPARE(kind(sheet.Entry({})), qMakePair(0x1000f, QString("busentry")));
        QCOMPARE(kind(sheet.Bus({}, {})), qMakePair(0x10016, QString("bus")));
        QCOMPARE(kind(sheet.Tag({}, "T")), qMakePair(0x1001b, QString("tag")));
        QCOMPARE(static_cast<int>(sheet.Bus({}, {})->Layer()), 21);
    }

    void aCopyHasAllAttributesAndNoLinks_data() { Kinds(); }
    void aCopyHasAllAttributesAndNoLinks()
    {
        QFETCH(int, kind);
        Sheet sheet;
        TGraphicsItem* item = EveryKind()[kind].second(sheet);
        item->setRotation(90);
        item->SetAltColor(Qt::green);
        item->SetTFlag(TGraphicsItem::Lock, true);
        const QString unlinked = State(item);
        item->setSelected(true);
        for (TGraphicsItem* pin : item->ChildrenOfKind(ItemType::Pin) + Items{item}) {
            if (auto* section = dynamic_cast<TGraphicsSectionItem*>(item)) {
                section->LinkToFirst(LoosePin(sheet, {}));
            } else if (pin->CanBeLinkedTo()) {
                sheet.Wire({0, 0}, {30, 40})->LinkToLast(pin);
            }
        }
        const std::unique_ptr<TGraphicsItem> copy(item->CreateCopy());
        QCOMPARE(copy->type(), item->type());
        QCOMPARE(State(copy.get()), unlinked);
        QVERIFY(!copy->Owner() && !copy->isSelected() && copy->DesignOrder() == 0);
        QCOMPARE(copy->Workspace(), item->Workspace());
        QCOMPARE(copy->Links(), Items());
        QCOMPARE(copy->zValue(), item->zValue());
        QCOMPARE(copy->boundingRect(), item->boundingRect());
        const std::unique_ptr<TGraphicsItem> copyOfCopy(copy->CreateCopy());
        QCOMPARE(State(copyOfCopy.get()), unlinked);
    }

    void aCopyIsChangedByItself()
    {
        Sheet sheet;
        TGraphicsPartItem* part = sheet.Part({0, 0}, 1, {{0, 0}});
        const QString before = State(part);
        const std::unique_ptr<TGraphicsItem> owned(part->CreateCopy());
        auto* copy = static_cast<TGraphicsPartItem*>(owned.get());
        copy->SetValue("10k");
        copy->SetRefDes("R1");
        TGraphicsPinItem* pin = PinOf(copy, 1);
        pin->NumberText()->SetText("9");
        pin->SetNumberVisible(false);
        QCOMPARE(State(part), before);
        QCOMPARE(static_cast<TGraphicsTextItem*>(copy->ValueText())->Text(), QString("10k"));
        QCOMPARE(static_cast<TGraphicsTextItem*>(copy->RefDesText())->Text(), QString("R1"));
        QCOMPARE(pin->Number(), QString("9"));
        QVERIFY(!pin->NumberText()->isVisible());
    }

    void aCopiedPortNamesWhatIsWiredToIt()
    {
        Sheet sheet;
        TGraphicsPortItem* port = sheet.Port({0, 0}, "GND");
        auto* copy = static_cast<TGraphicsPortItem*>(port->CreateCopy());
        copy->AttachTo(port->Owner());
        TGraphicsNetItem* wire = sheet.Wire({0, 0}, {50, 0});
        wire->LinkToFirst(copy->Pin());
        QCOMPARE(wire->Net(), QString("GND"));
        copy->SetName("VCC", {});
        QCOMPARE(wire->Net(), QString("VCC"));
        QCOMPARE(port->Net(), QString("GND"));
    }

    void everyKindIsDrawnWithinItsExtent_data() { Kinds(); }
    void everyKindIsDrawnWithinItsExtent()
    {
        QFETCH(int, kind);
        Sheet sheet;
        TGraphicsItem* item = EveryKind()[kind].second(sheet);
        for (const double angle : {0.0, 90.0, 180.0}) {
            item->setRotation(angle);
            QRectF extent;
            for (const TGraphicsItem* each : sheet.AllItems()) {
                extent |= each->sceneBoundingRect();
            }
            const QRectF area = extent.adjusted(-50, -50, 50, 50);
            QImage image((area.size() * 2).toSize(), QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::transparent);
            QPainter painter(&image);
            item->Owner()->render(&painter, {}, area, Qt::IgnoreAspectRatio);
            painter.end();
            int inside = 0;
            int outside = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    const QPointF place = area.topLeft() + QPointF(x, y) / 2;
                    const bool isDrawn = qAlpha(image.pixel(x, y)) > 0;
                    (extent.adjusted(-1, -1, 1, 1).contains(place) ? inside : outside) += isDrawn ? 1 : 0;
                }
            }
            QVERIFY(inside > 20);
            QCOMPARE(outside, 0);
        }
    }

    void aPinKeepsItsNumberUpright()
    {
        Sheet sheet;
        TGraphicsPinItem* pin = LoosePin(sheet, {0, 0});
        for (const double angle : {0.0, 180.0}) {
            pin->setRotation(angle);
            const double seen = std::fmod(pin->rotation() + pin->NumberText()->rotation(), 360);
            QCOMPARE(seen, 0.0);
            QVERIFY(pin->NumberText()->sceneBoundingRect().center().y() < 0); // Above the line.
        }
    }

    void lengthClassesAreMultiplesOfATwentiethOfAnInch()
    {
        TGraphicsPinItem pin;
        for (const int length : {0, 1, 2, 3}) {
            pin.SetPinLength(static_cast<TGraphicsPinItem::TypePinLength>(length));
            QCOMPARE(pin.LineLength(), 15.0 * length);
        }
        pin.SetPinLength(TGraphicsPinItem::LengthShort);
        pin.SetSymbolLength(21);
        QCOMPARE(pin.LineLength(), 21.0);
        pin.SetPinLength(TGraphicsPinItem::LengthLong);
        QCOMPARE(pin.LineLength(), 45.0); // The symbol's length is of one class only.
        pin.SetPinLength(TGraphicsPinItem::LengthShort);
        QCOMPARE(pin.LineLength(), 21.0);
    }

    void aPinWithoutItsNumberTextHasNone()
    {
        Sheet sheet;
        TGraphicsPinItem* pin = LoosePin(sheet, {0, 0});
        delete pin->NumberText();
        QCOMPARE(pin->NumberText(), nullptr);
        QCOMPARE(pin->Number(), QString());
        pin->UpdateNumberPos();
        pin->UpdatePath();
        pin->SetNumberVisible(false);
        QVERIFY(!pin->NumberVisible());
        const std::unique_ptr<TGraphicsItem> copy(pin->CreateCopy());
        QCOMPARE(copy->StateLine(), pin->StateLine());
    }

    void aPortWithoutItsPinIsOfItsOwnName()
    {
        Sheet sheet;
        TGraphicsPortItem* port = sheet.Port({0, 0}, "GND");
        delete port->Pin();
        QCOMPARE(port->Pin(), nullptr);
        port->SetName("VCC", Qt::red);
        QCOMPARE(port->Net(), QString("VCC"));
        QCOMPARE(port->ConnectedItems(), Items());
        const std::unique_ptr<TGraphicsItem> copy(port->CreateCopy());
        QCOMPARE(copy->StateLine(), port->StateLine());
    }

    void aTagShowsItsValueOrItsName()
    {
        Sheet sheet;
        TGraphicsTagItem* tag = sheet.Tag({0, 0}, "TITLE");
        QCOMPARE(tag->Text(), QString("{TITLE}"));
        tag->SetValue("Amplifier", false);
        QCOMPARE(tag->Text(), QString("{TITLE}"));
        tag->SetName("NAME", true);
        QCOMPARE(tag->Text(), QString("Amplifier"));
        tag->SetName("OTHER", false);
        tag->SetValue(QString(), true);
        QCOMPARE(tag->Text(), QString("{OTHER}"));
    }

    void aPartFitsItsPins()
    {
        Sheet sheet;
        TGraphicsPartItem* part = sheet.Part({0, 0}, 1, {{0, 0}});
        PinOf(part, 1)->SetName(QString());
        const QRectF before = part->boundingRect();
        PinOf(part, 1)->SetPinLength(TGraphicsPinItem::LengthLong);
        QCOMPARE(part->boundingRect(), before); // Not before the pin is told.
        PinOf(part, 1)->UpdatePath();
        QVERIFY(part->boundingRect().width() > before.width() + 14);
    }

    // Links.

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
        if (kind != "bus entry") {
            wire->LinkToFirst(target); // With both ends, or with itself from tail to head.
        }
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

    // Colours of nets.

    void theColourOfANetReachesAllThatIsDrawnOfIt()
    {
        Sheet sheet;
        sheet.NetModel()->AddNet("N", {}, {}, {}, 0);
        TGraphicsPortItem* port = sheet.Port({0, 0}, "N");
        TGraphicsNetItem* wire = sheet.Wire({0, 0}, {50, 0});
        TGraphicsJunctionItem* junction = sheet.Junction({50, 0});
        TGraphicsNetItem* toPart = sheet.Wire({50, 0}, {100, 0});
        TGraphicsPartItem* part = sheet.Part({100, 0}, 1, {{0, 0}});
        TGraphicsBusEntryItem* entry = sheet.Entry({50, 20});
        TGraphicsNetItem* toEntry = sheet.Wire({50, 0}, {50, 20});
        TGraphicsNetItem* other = sheet.Wire({0, 90}, {50, 90}, "M");
        wire->LinkToFirst(port->Pin());
        wire->LinkToLast(junction);
        toPart->LinkToFirst(junction);
        toPart->LinkToLast(PinOf(part, 1));
        toEntry->LinkToFirst(junction);
        toEntry->LinkToLast(entry);
        sheet.GoToPage(sheet.AddPage());
        TGraphicsNetItem* elsewhere = sheet.Wire({0, 0}, {50, 0}, "N");
        for (const QColor& color : {QColor(Qt::red), QColor(1, 2, 3, 4), QColor()}) {
            sheet.SetNetColor("N", color);
            QCOMPARE(sheet.NetModel()->ColorSch(0), color);
            for (const TGraphicsItem* item : Items{port, wire, junction, toPart, toEntry, entry, elsewhere}) {
                QCOMPARE(item->AltColor(), color);
            }
            for (const TGraphicsItem* item : Items{part, PinOf(part, 1), port->Pin(), other}) {
                QVERIFY(!item->AltColor().isValid());
            }
        }
    }

    void noNetHasNoColour()
    {
        Sheet sheet;
        TGraphicsNetItem* wire = sheet.Wire({0, 0}, {50, 0});
        TGraphicsPartItem* part = sheet.Part({0, 0}, 1, {{0, 0}});
        const QString before = sheet.Dump();
        sheet.SetNetColor(QString(), Qt::red);
        QCOMPARE(sheet.Dump(), before);
        QVERIFY(!wire->AltColor().isValid() && !part->AltColor().isValid());
    }

    // The documents.

    void pagesAreCountedFromOne()
    {
        TSchematic schematic;
        QCOMPARE(schematic.Page(1), nullptr);
        for (int number = 1; number <= 255; ++number) {
            TSchematicPage* page = schematic.AddPage();
            QVERIFY(page);
            QCOMPARE(int{page->Number()}, number);
            QCOMPARE(schematic.Page(number), page);
        }
        QCOMPARE(schematic.AddPage(), nullptr); // A page's number is a byte.
        QCOMPARE(schematic.Pages().size(), std::size_t{255});
        for (const int number : {0, -1, 256}) {
            QCOMPARE(schematic.Page(number), nullptr);
        }
    }

    void onlyTopItemsAreTakenOver()
    {
        Sheet sheet;
        TGraphicsPartItem* part = sheet.Part({0, 0}, 1, {{0, 0}});
        TGraphicsPortItem* port = sheet.Port({0, 0}, "P");
        QVERIFY(sheet.Items().isEmpty());
        sheet.SaveTopItemsFromWorkspace();
        QCOMPARE(sheet.Items(), (QList<TGraphicsItem*>{part, port}));
        delete part;
        QCOMPARE(sheet.Items().size(), 2); // As they were taken over.
        sheet.SaveTopItemsFromWorkspace();
        QCOMPARE(sheet.Items(), QList<TGraphicsItem*>{port});
    }

    void partsAreFoundByTheirNumber()
    {
        Sheet sheet;
        TGraphicsPartItem* first = sheet.Part({0, 0}, 4, {});
        TGraphicsPartItem* loose = sheet.Part({0, 50}, 0, {});
        sheet.GoToPage(sheet.AddPage());
        TGraphicsPartItem* unit = sheet.Part({0, 0}, 4, {});
        TGraphicsPartItem* other = sheet.Part({0, 50}, 65535, {});
        QCOMPARE(sheet.PartItems(4), (QList<TGraphicsPartItem*>{first, unit}));
        QCOMPARE(sheet.PartItems(65535), QList<TGraphicsPartItem*>{other});
        QCOMPARE(sheet.PartItems(5), QList<TGraphicsPartItem*>());
        QCOMPARE(sheet.PartItems(0), (QList<TGraphicsPartItem*>{first, loose, unit, other}));
    }

    void pinsTellTheNetsOfComponents()
    {
        Sheet sheet;
        TGraphicsPartItem* unit = sheet.Part({0, 0}, 4, {{0, 0}, {0, 20}});
        TGraphicsPartItem* second = sheet.Part({100, 0}, 4, {{0, 0}, {0, 20}});
        sheet.Part({200, 0}, 0, {{0, 0}});
        sheet.Part({300, 0}, 5, {{0, 0}});
        const auto wireTo = [&sheet](TGraphicsPartItem* part, int pin, const char* net) {
            TGraphicsNetItem* wire = sheet.Wire(PinOf(part, pin)->scenePos(), {0, 200}, net);
            wire->LinkToFirst(PinOf(part, pin));
        };
        wireTo(second, 1, "VCC"); // Pin 1 is on both units, and wired at one of them.
        wireTo(unit, 2, "A");
        QHash<TSchematic::TPinKey, QString> expected{{{4, "1"}, "VCC"}, {{4, "2"}, "A"}};
        QCOMPARE(sheet.PinNets({4}), expected);
        QCOMPARE(sheet.PinNets({4, 4, 0}), expected);
        QCOMPARE(sheet.PinNets({0}), (QHash<TSchematic::TPinKey, QString>()));
        QCOMPARE(sheet.PinNets({}), (QHash<TSchematic::TPinKey, QString>()));
        expected.insert({5, "1"}, QString());
        QCOMPARE(sheet.PinNets({5, 4}), expected);
    }

    void dumpsTellOfPagesNetsAndComponents()
    {
        Sheet sheet;
        sheet.NetModel()->AddNet("N", "Power", Qt::red, {}, 2);
        sheet.CmpModel()->Add(7, {"U7", "74HC00", "SO14", 0});
        TGraphicsPartItem* part = sheet.Part({0, 0}, 7, {{0, 0}});
        sheet.GoToPage(sheet.AddPage());
        TGraphicsNetItem* wire = sheet.Wire({0, 0}, {50, 0}, "N");
        QStringList lines = sheet.Dump().split('\n');
        QCOMPARE(lines.takeLast(), QString());
        QCOMPARE(lines.first(), QString("page 1"));
        QCOMPARE(lines.at(1), part->StateLine());
        QCOMPARE(lines.at(lines.size() - 4), QString("page 2"));
        QCOMPARE(lines.at(lines.size() - 3), wire->StateLine());
        QVERIFY(lines.at(lines.size() - 2).contains("\"N\""));
        QCOMPARE(lines.last(), QString("component number=7 refDes=\"U7\" value=\"74HC00\" package=\"SO14\" count=0"));
    }

    void componentsThatAreAlikeAreCounted()
    {
        TCmpModel model;
        model.Add(0, {"X", "1k", "R", 0}); // No component's number.
        model.Add(3, {"R3", "1k", "R", 0});
        model.Add(1, {"R1", "1k", "R", 9});
        model.Add(2, {"R2", "2k", "R", 9});
        model.Add(4, {"C4", "1k", "C", 9});
        QCOMPARE(model.Size(), 4);
        QCOMPARE(model.CmpModelItem(0), nullptr);
        QCOMPARE(model.CmpModelItem(5), nullptr);
        QCOMPARE(model.CmpModelItem(1)->count, 9); // As of the last time.
        model.UpdateCount();
        QCOMPARE(model.CmpModelItem(1)->count, 2);
        QCOMPARE(model.CmpModelItem(2)->count, 1);
        QCOMPARE(model.CmpModelItem(3)->count, 2);
        QCOMPARE(model.CmpModelItem(4)->count, 1);
        model.CmpModelItem(2)->value = "1k";
        model.UpdateCount();
        QCOMPARE(model.CmpModelItem(3)->count, 3);
        model.Add(3, {"R3", "9k", "R", 0});
        QCOMPARE(model.Size(), 4);
        QVERIFY(model.Dump().startsWith("component number=1 refDes=\"R1\""));
        QCOMPARE(model.Dump().count('\n'), 4);
    }

    void theProjectTreeShowsPagesAndParts()
    {
        TProjectTree tree;
        TSchPage* page = tree.AddPage(1, "Supply");
        TSchPage* last = tree.AddPage(2, "Output");
        TPart* part = tree.AddPart(7, "U7", "74HC00");
        QCOMPARE(tree.Pages(), (QList<TSchPage*>{page, last}));
        QCOMPARE(tree.Page(2), last);
        QCOMPARE(tree.Page(3), nullptr);
        QCOMPARE(tree.Part(7), part);
        QCOMPARE(tree.Part(1), nullptr);
        QCOMPARE(tree.topLevelItemCount(), 2);
        QCOMPARE(page->data(0, Qt::DisplayRole).toString(), QString("Supply"));
        QCOMPARE(part->data(1, Qt::DisplayRole).toString(), QString("74HC00"));
        QCOMPARE(part->data(0, Qt::DisplayRole).toString(), QString("U7"));
        const QString before = tree.Dump();
        part->setData(1, 0, "74LS00");
        QCOMPARE(part->Name(), QString("74LS00"));
        QVERIFY(tree.Dump() != before);
        part->setData(1, 0, "74HC00");
        QCOMPARE(tree.Dump(), before);
        page->setData(0, 0, "Power");
        QCOMPARE(tree.Page(1)->Name(), QString("Power"));
        QCOMPARE(before, QString("treepage number=1 name=\"Supply\"\ntreepage number=2 name=\"Output\"\n"
                                 "treepart number=7 refDes=\"U7\" name=\"74HC00\"\n"));
    }
};

PROPERTIES_TEST_MAIN(TestSheets)
#include "tst_sheets.moc"
