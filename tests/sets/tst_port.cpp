#include "tests/sets/SheetProject.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/RowText.h"
#include "tests/support/SlotLaw.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyText.h"
#include "properties/sets/TPropertySetForPort.h"

#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsPadItem.h>
#include <objects/TGraphicsPartItem.h>
#include <objects/TGraphicsPinItem.h>
#include <objects/TGraphicsPortItem.h>

#include <QCheckBox>

namespace {

using Set = TPropertySetForPort;
using Item = TGraphicsPortItem;

const QColor colorOfA("#010203");
const QColor colorOfB("#0066ff");

/** A schematic that knows the nets "A" and "B", in step with a board that has a package. */
struct PortDesign : Test::SheetProject
{
    PortDesign()
    {
        Nets().AddNet("A", "fast", colorOfA, Qt::red, 3);
        Nets().AddNet("B", {}, colorOfB, {}, 0);
        project.SetKind(TProject::InStep);
        board.SetConnectivityEnabled(true);
        TGraphicsPackageItem* package = board.AddPackage("U1");
        package->SetComponentNumber(7);
        pad = board.AddThroughPad(1.6, 0.8, package);
        pad->SetNumber("1");
    }

    Item* AddPort(const QString& name)
    {
        Item* port = Add<Item>();
        port->SetName(name, {});
        return port;
    }

    /** A net wire that is linked to the port, and to the pin of a part that belongs to the board's package. */
    TGraphicsNetItem* Wire(Item& port)
    {
        auto* part = Add<TGraphicsPartItem>();
        part->SetComponentNumber(7);
        auto* pin = new TGraphicsPinItem(part);
        pin->NumberText()->SetText("1");
        TGraphicsNetItem* wire = AddWire(port.Name());
        wire->LinkToFirst(port.Pin());
        wire->LinkToLast(pin);
        return wire;
    }

    QStringList NetNames()
    {
        QStringList names;
        for (int row = 0; row < Nets().RowCount(); ++row) {
            names.append(Nets().NetName(row));
        }
        return names;
    }

    TGraphicsPadItem* pad;
};

/** Three ports, no two alike, and items of other kinds before and between them. */
struct Ports
{
    using Set = ::Set;
    using Item = ::Item;

    Ports()
    {
        items = {board.AddPort("A"), board.AddPort("B"), board.AddPort("C")};
        items[1]->SetNameVisible(false);
        TGraphicsItem* wire = board.AddWire("A");
        wire->SetTFlag(TGraphicsItem::UndoBypass, true);
        selection = {wire, items[0], items[1], board.board.AddVia(), items[2]};
    }

    Set* MakeSet() { return new Set(selection, &board.schematic); }

    PortDesign board;
    QList<Item*> items;
    QList<TGraphicsItem*> selection;
};

const Test::SlotCase<Ports> visibleCases[] = {
    {"names shown", [](Set& set) { set.SetNameVis(true); },
     [](Set& set) { Test::RowOf<TPropertyText>(&set, "Name:")->visible->click(); }, "TCmdPortNameVis",
     [](Item& port) { port.SetNameVisible(true); }, nullptr, nullptr},
    {"names hidden", [](Set& set) { set.SetNameVis(false); }, nullptr, "TCmdPortNameVis",
     [](Item& port) { port.SetNameVisible(false); }, nullptr, nullptr},
};

using ChangePort = void (*)(Item& port);

} // namespace

Q_DECLARE_METATYPE(ChangePort)
Q_DECLARE_METATYPE(const Test::SlotCase<Ports>*)

class TestPortSet : public QObject
{
    Q_OBJECT

private slots:
    void showsWhatAllPortsShare_data()
    {
        QTest::addColumn<int>("ports");
        QTest::addColumn<ChangePort>("changeLast");
        QTest::addColumn<QString>("row");
        const auto add = [](const char* name, int ports, ChangePort change, const char* row) {
            QTest::newRow(name) << ports << change << QString(row);
        };
        add(
            "one", 1, [](Item&) {}, "TPropertyText Name: = A, [x] Show");
        add(
            "one without a name", 1, [](Item& port) { port.SetName({}, {}); }, "TPropertyText Name: = , [x] Show");
        add(
            "one whose name is hidden", 1, [](Item& port) { port.SetNameVisible(false); },
            "TPropertyText Name: = A, [ ] Show");
        add(
            "three alike", 3, [](Item&) {}, "TPropertyText Name: = A, [x] Show");
        add(
            "the last has another name", 3, [](Item& port) { port.SetName("B", {}); },
            "TPropertyText Name: = , [x] Show");
        add(
            "the last has a name in another case", 3, [](Item& port) { port.SetName("a", {}); },
            "TPropertyText Name: = , [x] Show");
        add(
            "the last one's name is hidden", 3, [](Item& port) { port.SetNameVisible(false); },
            "TPropertyText Name: = A, [ ] Show");
        add(
            "shape and colour: not shown", 3,
            [](Item& port) {
                port.SetPortShape(Item::ShapePower);
                port.SetAltColor(Qt::red);
            },
            "TPropertyText Name: = A, [x] Show");
    }

    void showsWhatAllPortsShare()
    {
        QFETCH(int, ports);
        QFETCH(ChangePort, changeLast);
        QFETCH(QString, row);
        PortDesign design;
        QList<TGraphicsItem*> selection;
        for (int i = 1; i < ports; ++i) {
            selection.append(design.AddPort("A"));
        }
        Item* last = design.AddPort("A");
        changeLast(*last);
        const Set set(selection << last, &design.schematic);
        QCOMPARE(Test::RowTexts(&set), QStringList{row});
    }

    void aPortInTheMiddleCountsToo()
    {
        PortDesign design;
        const QList<TGraphicsItem*> ports{design.AddPort("A"), design.AddPort("A"), design.AddPort("A")};
        auto* middle = static_cast<Item*>(ports[1]);
        middle->SetName("B", {});
        const Set ofNames(ports, &design.schematic);
        QCOMPARE(Test::RowTexts(&ofNames), QStringList{"TPropertyText Name: = , [x] Show"});
        middle->SetName("A", {});
        middle->SetNameVisible(false);
        const Set ofVisibilities(ports, &design.schematic);
        QCOMPARE(Test::RowTexts(&ofVisibilities), QStringList{"TPropertyText Name: = A, [ ] Show"});
    }

    void allHiddenNamesAreUnticked()
    {
        PortDesign design;
        Item* first = design.AddPort("A");
        Item* second = design.AddPort("A");
        first->SetNameVisible(false);
        const Set mixed({first, second}, &design.schematic);
        QCOMPARE(Test::RowTexts(&mixed), QStringList{"TPropertyText Name: = A, [ ] Show"});
        second->SetNameVisible(false);
        const Set hidden({first, second}, &design.schematic);
        QCOMPARE(Test::RowTexts(&hidden), QStringList{"TPropertyText Name: = A, [ ] Show"});
    }

    void nameCountsAllItemsGiven()
    {
        PortDesign design;
        Item* port = design.AddPort("A");
        TGraphicsItem* wire = design.AddWire("A");
        QCOMPARE(Set({port}, &design.schematic).Name(), QString("Port"));
        QCOMPARE(Set({port, design.AddPort("A")}, &design.schematic).Name(), QString("Ports"));
        const Set withWire({wire, port}, &design.schematic);
        QCOMPARE(withWire.Name(), QString("Ports"));
        QCOMPARE(Test::RowTexts(&withWire), QStringList{"TPropertyText Name: = A, [x] Show"});
        QCOMPARE(Set({wire}, &design.schematic).Name(), QString("Port"));
        QCOMPARE(Set({}, &design.schematic).Name(), QString("Ports"));
    }

    void withoutPortsThereAreNoRows()
    {
        PortDesign design;
        for (const QList<TGraphicsItem*>& selection :
             {QList<TGraphicsItem*>(), QList<TGraphicsItem*>{design.AddWire("A"), design.Add<TGraphicsPartItem>()}}) {
            Set set(selection, &design.schematic);
            const Test::CommandLog log(set);
            QVERIFY(set.Properties().isEmpty());
            const QString before = design.Dump();
            set.SetName("B");
            set.SetNameVis(false);
            QCOMPARE(log.Count(), 0);
            QCOMPARE(design.Dump(), before);
        }
    }

    void visibilityMakesACommand_data() { Test::AddSlotRows(visibleCases); }

    void visibilityMakesACommand()
    {
        QFETCH(const Test::SlotCase<Ports>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Ports>(*slot, {byRow, {}}).CheckCommand();
        Test::SlotLaw<Ports>(*slot, {byRow, {1, 2}}).CheckCommand();
    }

    void visibilityIsWrittenAtOnceWhereTheFirstBypassesUndo_data() { Test::AddSlotRows(visibleCases); }

    void visibilityIsWrittenAtOnceWhereTheFirstBypassesUndo()
    {
        QFETCH(const Test::SlotCase<Ports>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Ports>(*slot, {byRow, {0}}).CheckDirectWrite();
        Test::SlotLaw<Ports>(*slot, {byRow, {0, 1, 2}}).CheckDirectWrite();
    }

    void nameMakesACommand_data()
    {
        QTest::addColumn<bool>("byRow");
        QTest::newRow("slot called") << false;
        QTest::newRow("row edited") << true;
    }

    void nameMakesACommand()
    {
        QFETCH(bool, byRow);
        Ports ports;
        ports.items[2]->SetTFlag(TGraphicsItem::UndoBypass, true);
        const std::unique_ptr<Set> set(ports.MakeSet());
        Test::CommandLog log(*set);
        const QString before = ports.board.Dump();
        if (byRow) {
            emit Test::RowOf<TPropertyText>(set.get(), "Name:")->line->textChanged("B");
        } else {
            set->SetName("B");
        }
        QCOMPARE(log.Names(), QStringList{"TCmdPortName"});
        QCOMPARE(ports.board.Dump(), before);
        log.Redo();
        for (const Item* port : ports.items) {
            QCOMPARE(port->Name(), QString("B"));
            QCOMPARE(port->AltColor(), colorOfB);
        }
        log.Undo();
        QCOMPARE(ports.items[0]->Name() + ports.items[1]->Name() + ports.items[2]->Name(), QString("ABC"));
        QCOMPARE(ports.board.NetNames(), (QStringList{"A", "B"}));
    }

    void newNameMovesTheNet()
    {
        PortDesign design;
        Item* port = design.AddPort("A");
        design.Wire(*port);
        port->SetName("A", colorOfA);
        Set set({port}, &design.schematic);
        Test::CommandLog log(set);
        const QString before = design.Dump();
        set.SetName("new");
        log.Redo();
        QCOMPARE(design.NetNames(), (QStringList{"B", "new"}));
        QCOMPARE(design.Nets().NetClass("new"), QString("Default"));
        QCOMPARE(design.pad->Net(), QString("new"));
        log.Undo();
        QCOMPARE(design.NetNames(), (QStringList{"A", "B"}));
        QCOMPARE(design.pad->Net(), QString("A"));
        design.pad->SetNet({}); // As it was before the command told the pad.
        QCOMPARE(design.Dump(), before);
    }

    void netWithAWireLeftOnAnyPageStays()
    {
        PortDesign design;
        design.AddWire("A", design.secondPage);
        Set set({design.AddPort("A")}, &design.schematic);
        Test::CommandLog log(set);
        set.SetName("new");
        log.Redo();
        QCOMPARE(design.NetNames(), (QStringList{"A", "B", "new"}));
        log.Undo();
        QCOMPARE(design.NetNames(), (QStringList{"A", "B"}));
    }

    void directNameChangesNeitherNetsNorBoard_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QColor>("color");
        QTest::addColumn<bool>("byRow");
        QTest::newRow("known net, slot called") << "B" << colorOfB << false;
        QTest::newRow("known net, row edited") << "B" << colorOfB << true;
        QTest::newRow("new net: no colour") << "new" << QColor() << false;
        QTest::newRow("the same net: its colour") << "A" << colorOfA << false;
    }

    void directNameChangesNeitherNetsNorBoard()
    {
        QFETCH(QString, name);
        QFETCH(QColor, color);
        QFETCH(bool, byRow);
        PortDesign design;
        Item* first = design.AddPort("A");
        Item* second = design.AddPort("C");
        TGraphicsNetItem* wire = design.Wire(*first);
        first->SetTFlag(TGraphicsItem::UndoBypass, true);
        design.pad->SetNet("of the board");
        const QString nets = design.Nets().Dump();
        const QString board = design.board.Dump();
        Set set({first, second}, &design.schematic);
        const Test::CommandLog log(set);
        if (byRow) {
            emit Test::RowOf<TPropertyText>(&set, "Name:")->line->textChanged(name);
        } else {
            set.SetName(name);
        }
        QCOMPARE(log.Count(), 0);
        for (const Item* port : {first, second}) {
            QCOMPARE(port->Name(), name);
            QCOMPARE(port->AltColor(), color);
        }
        QCOMPARE(wire->Net(), name);
        QCOMPARE(design.Nets().Dump(), nets);
        QCOMPARE(design.board.Dump(), board);
    }

    void directNameNeedsNoSchematic()
    {
        PortDesign design;
        Item* port = design.AddPort("A");
        port->SetTFlag(TGraphicsItem::UndoBypass, true);
        Set set({port}, nullptr);
        set.SetName("B");
        QCOMPARE(port->Name(), QString("B"));
        QCOMPARE(port->AltColor(), QColor());
    }

    void textsAreTranslated()
    {
        PortDesign design;
        Item* port = design.AddPort("A");
        const Test::MarkingTranslator translator;
        const Set one({port}, &design.schematic);
        const Set more({port, port}, &design.schematic);
        QCOMPARE(one.Name(), QString("~Port"));
        QCOMPARE(more.Name(), QString("~Ports"));
        QCOMPARE(Test::Untranslated(translator, "TPropertySetForPort", {"Port", "Ports", "Name:"}), QStringList());
    }
};

PROPERTIES_TEST(TestPortSet)
#include "tst_port.moc"
