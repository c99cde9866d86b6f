#include "tests/sets/WireProject.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/SlotLaw.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TPropertyColor.h"
#include "properties/rows/TPropertyEnum.h"
#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/rows/TPropertyLayer.h"
#include "properties/sets/TPropertySetForWire.h"

#include <workspace/TDoubleSpinBox.h>

#include <QKeyEvent>

namespace {

using Test::SceneF;
using Test::WireProject;
using Set = TPropertySetForWire;
using Item = TGraphicsWireItem;

/** Three wires, no two alike, and items of other kinds before and between them. */
struct Wires
{
    using Set = ::Set;
    using Item = ::Item;

    Wires() : board(design.board)
    {
        TGraphicsViaItem* via = board.AddVia();
        via->SetTFlag(TGraphicsItem::UndoBypass, true);
        items = {design.AddWire("GND"), design.AddWire("GND", Osmirel::CopperBottom), design.AddWire("GND")};
        items[1]->SetPenWidth(7);
        items[2]->SetCompositionMode(5);
        selection = {via, items[0], items[1], board.AddHole(), items[2]};
    }

    Set* MakeSet() { return new Set(selection, &design.project); }

    WireProject design;
    Test::TestBoard& board;
    QList<Item*> items;
    QList<TGraphicsItem*> selection;
};

const Test::SlotCase<Wires> slotCases[] = {
    {"width, in single precision", [](Set& set) { set.SetWidth(1.7); },
     [](Set& set) { Test::RowOf<TPropertyFloatSpin>(&set, "Width:")->spin->setValue(1.7); }, "TCmdWireWidth",
     [](Item& wire) { wire.SetPenWidth(SceneF(1.7)); }, nullptr, nullptr},
    {"layer", [](Set& set) { set.SetLayer(Osmirel::CopperBottom); },
     [](Set& set) { Test::RowOf<TPropertyLayer>(&set, "Layer:")->Box()->setCurrentText("Bottom"); }, "TCmdWireLayer",
     [](Item& wire) { wire.SetLayer(Osmirel::CopperBottom); }, nullptr, nullptr},
};

/** Written at once, undo bypassed or not; no row that is shown leads there. */
const Test::SlotCase<Wires> directCases[] = {
    {"composition mode", [](Set& set) { set.SetCompMode(12); }, nullptr, "",
     [](Item& wire) { wire.SetCompositionMode(12); }, nullptr, nullptr},
};

void Press(Set& set, int key)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    set.KeyPressEvent(&event);
}

} // namespace

Q_DECLARE_METATYPE(const Test::SlotCase<Wires>*)

class TestWireSlots : public QObject
{
    Q_OBJECT

private slots:
    void slotMakesACommand_data() { Test::AddSlotRows(slotCases); }

    void slotMakesACommand()
    {
        QFETCH(const Test::SlotCase<Wires>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Wires>(*slot, {byRow, {}}).CheckCommand();
        Test::SlotLaw<Wires>(*slot, {byRow, {1, 2}}).CheckCommand();
    }

    void slotWritesAtOnceWhereTheFirstBypassesUndo_data() { Test::AddSlotRows(slotCases); }

    void slotWritesAtOnceWhereTheFirstBypassesUndo()
    {
        QFETCH(const Test::SlotCase<Wires>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Wires>(*slot, {byRow, {0}}).CheckDirectWrite();
        Test::SlotLaw<Wires>(*slot, {byRow, {0, 1, 2}}).CheckDirectWrite();
    }

    void compositionIsAlwaysWrittenAtOnce_data() { Test::AddSlotRows(directCases); }

    void compositionIsAlwaysWrittenAtOnce()
    {
        QFETCH(const Test::SlotCase<Wires>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Wires>(*slot, {byRow, {}}).CheckDirectWrite();
        Test::SlotLaw<Wires>(*slot, {byRow, {0}}).CheckDirectWrite();
    }

    void compositionRepaints()
    {
        Wires wires;
        const std::unique_ptr<Set> set(wires.MakeSet());
        Test::RepaintLog repaints(*wires.board.Scene());
        set->SetCompMode(12);
        const QRectF repainted = repaints.Take();
        for (const Item* wire : wires.items) {
            QVERIFY(repainted.contains(wire->sceneBoundingRect()));
        }
    }

    void directWritesLeaveTheNeighbours_data()
    {
        QTest::addColumn<bool>("bypass");
        QTest::newRow("commands: junction and pad follow") << false;
        QTest::newRow("written at once: they stay") << true;
    }

    void directWritesLeaveTheNeighbours()
    {
        QFETCH(bool, bypass);
        WireProject design;
        Item* wire = design.AddWire({});
        TGraphicsPadItem* pad = design.board.AddSurfacePad();
        TGraphicsJunctionItem* junction = design.AddJunction();
        wire->LinkToFirst(pad);
        wire->LinkToLast(junction);
        wire->SetTFlag(TGraphicsItem::UndoBypass, bypass);
        Set set({wire}, &design.project);
        Test::CommandLog log(set);
        set.SetWidth(2);
        log.Redo();
        QCOMPARE(wire->PenWidth(), SceneF(2));
        const double size = bypass ? 2.0 : static_cast<double>(SceneF(2));
        QCOMPARE(junction->Size(), QSizeF(size, size));

        set.SetLayer(Osmirel::CopperBottom);
        QCOMPARE(log.Count(), bypass ? 0 : 2);
        if (!bypass) {
            log.Redo(1);
        }
        QCOMPARE(wire->Layer(), Osmirel::CopperBottom);
        QCOMPARE(wire->FirstLink() == pad, bypass);
        QCOMPARE(junction->Layer() == Osmirel::CopperTop, bypass);
        log.Undo();
        QCOMPARE(wire->FirstLink(), pad);
    }

    void netIsAlwaysChangedByACommand_data()
    {
        QTest::addColumn<bool>("byRow");
        QTest::addColumn<bool>("bypass");
        QTest::newRow("slots called") << false << false;
        QTest::newRow("slots called, undo bypassed") << false << true;
        QTest::newRow("rows edited") << true << false;
        QTest::newRow("rows edited, undo bypassed") << true << true;
    }

    void netIsAlwaysChangedByACommand()
    {
        QFETCH(bool, byRow);
        QFETCH(bool, bypass);
        WireProject design;
        Item* wire = design.AddWire("CLK");
        Item* other = design.AddWire("GND");
        wire->SetTFlag(TGraphicsItem::UndoBypass, bypass);
        const TNetModel& model = *design.schematic.NetModel();
        design.schematic.NetModel()->SetNetClass("CLK", "Default");
        Set set({wire}, &design.project);
        Test::CommandLog log(set);
        if (byRow) {
            Test::RowOf<TPropertyEnum>(&set, "Net class:")->Box()->setCurrentText("Power");
            Test::RowOf<TPropertyColor>(&set, "Color:")->Box()->setCurrentText("#0066FF");
        } else {
            set.SetClass("Power");
            set.SetColor(QColor("#0066FF"));
        }
        QCOMPARE(log.Names(), (QStringList{"TCmdNetClass", "TCmdNetColorPcb"}));
        QCOMPARE(model.NetClass("CLK"), QString("Default"));
        log.Redo();
        QCOMPARE(model.NetClass("CLK"), QString("Power"));
        QCOMPARE(model.ColorPcb(model.NetRow("CLK")), QColor("#0066FF"));
        QCOMPARE(wire->AltColor(), QColor("#0066FF"));
        QVERIFY(!other->AltColor().isValid());
        log.Undo();
        QCOMPARE(model.NetClass("CLK"), QString("Default"));
        QVERIFY(!model.ColorPcb(model.NetRow("CLK")).isValid());
        QCOMPARE(model.NetClass("GND"), QString("Power"));
    }

    void netIsTheFirstWiresAsItWas()
    {
        WireProject design;
        Item* wire = design.AddWire("CLK");
        Set set({wire, design.AddWire("GND")}, &design.project);
        Test::CommandLog log(set);
        wire->SetNet("GND");
        set.SetClass("Power");
        log.Redo();
        QCOMPARE(design.schematic.NetModel()->NetClass("CLK"), QString("Power"));
    }

    void digitsSetTheWidth_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<double>("width");
        QTest::newRow("0: a whole one") << int(Qt::Key_0) << 1.0;
        for (int digit = 1; digit <= 9; ++digit) {
            QTest::addRow("%d", digit) << Qt::Key_0 + digit << 0.1 * digit;
        }
    }

    void digitsSetTheWidth()
    {
        QFETCH(int, key);
        QFETCH(double, width);
        Wires wires;
        const std::unique_ptr<Set> set(wires.MakeSet());
        Test::CommandLog log(*set);
        Press(*set, key);
        QCOMPARE(log.Names(), QStringList{"TCmdWireWidth"});
        log.Redo();
        for (const Item* wire : wires.items) {
            QCOMPARE(wire->PenWidth(), SceneF(width));
        }
    }

    void keyChangesTheSide_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::newRow("from the top") << 68 << 75;
        QTest::newRow("from the bottom") << 75 << 68;
        QTest::newRow("from a layer without a pair") << 69 << 0;
        QTest::newRow("from a layer that the board lacks") << 72 << 0;
        QTest::newRow("from a layer whose pair the board lacks") << 70 << 0;
    }

    void keyChangesTheSide()
    {
        QFETCH(int, from);
        QFETCH(int, to);
        for (const bool bypass : {false, true}) {
            WireProject design;
            design.board.LayerManager()->AddLayer({Osmirel::Copper3, "Inner 2", Qt::red, "of no board"});
            Item* wire = design.AddWire("GND", static_cast<Osmirel::Layer>(from));
            wire->SetTFlag(TGraphicsItem::UndoBypass, bypass);
            Set set({wire}, &design.project);
            Test::CommandLog log(set);
            Press(set, Qt::Key_O);
            QCOMPARE(log.Names(), to != 0 && !bypass ? QStringList{"TCmdWireLayer"} : QStringList());
            log.Redo();
            QCOMPARE(static_cast<int>(wire->Layer()), to != 0 ? to : from);
        }
    }

    void keyGoesFromTheLayerThatTheRowShows()
    {
        WireProject design;
        Item* first = design.AddWire("GND", Osmirel::CopperBottom);
        Item* last = design.AddWire("GND", Osmirel::CopperTop);
        Set set({first, last}, &design.project);
        Test::CommandLog log(set);
        Press(set, Qt::Key_O);
        log.Redo();
        QCOMPARE(first->Layer(), Osmirel::CopperBottom);
        QCOMPARE(last->Layer(), Osmirel::CopperBottom);
    }

    void otherKeysAreIgnored_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("before the digits") << int(Qt::Key_Slash);
        QTest::newRow("after the digits") << int(Qt::Key_Colon);
        QTest::newRow("P") << int(Qt::Key_P);
        QTest::newRow("N") << int(Qt::Key_N);
        QTest::newRow("Return") << int(Qt::Key_Return);
    }

    void otherKeysAreIgnored()
    {
        QFETCH(int, key);
        Wires wires;
        wires.items[0]->SetTFlag(TGraphicsItem::UndoBypass, true);
        const std::unique_ptr<Set> set(wires.MakeSet());
        const Test::CommandLog log(*set);
        const QString before = wires.board.Dump();
        Press(*set, key);
        QCOMPARE(log.Count(), 0);
        QCOMPARE(wires.board.Dump(), before);
    }

    void withoutWiresNothingHappens()
    {
        WireProject design;
        Set set({design.board.AddVia()}, &design.project);
        const Test::CommandLog log(set);
        for (int key = Qt::Key_0; key <= Qt::Key_O; ++key) {
            Press(set, key);
        }
        set.SetWidth(1);
        set.SetLayer(Osmirel::CopperTop);
        set.SetClass("Power");
        set.SetColor(Qt::red);
        set.SetCompMode(1);
        QCOMPARE(log.Count(), 0);
    }

    void everyStepIsACommandOfItsOwn()
    {
        WireProject design;
        Set set({design.AddWire("GND")}, &design.project);
        const Test::CommandLog log(set);
        for (int i = 0; i < 3; ++i) {
            Test::RowOf<TPropertyFloatSpin>(&set, "Width:")->spin->stepUp();
        }
        QCOMPARE(log.Names(), (QStringList{"TCmdWireWidth", "TCmdWireWidth", "TCmdWireWidth"}));
    }
};

PROPERTIES_TEST(TestWireSlots)
#include "tst_wireslots.moc"
