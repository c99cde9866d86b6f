#include "tests/sets/TieProject.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/RowText.h"
#include "tests/support/SlotLaw.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/rows/TPropertyLayer.h"
#include "properties/rows/TPropertyText.h"
#include "properties/sets/TPropertySetForNetTiePcb.h"

#include <workspace/TDoubleSpinBox.h>

#include <QCheckBox>

namespace {

using Test::Scene;
using Set = TPropertySetForNetTiePcb;
using Item = TGraphicsNetTiePcbItem;

/** Three ties, no two alike, and items of other kinds before and between them. */
struct Ties
{
    using Set = ::Set;
    using Item = ::Item;

    Ties()
    {
        TGraphicsViaItem* via = board.board.AddVia();
        via->SetTFlag(TGraphicsItem::UndoBypass, true);
        items = {board.AddTie(3, "NT3"), board.AddTie(4, "NT4"), board.AddTie(5, "NT5")};
        items[1]->SetLayer(Osmirel::CopperBottom);
        items[1]->SetPadSize(Scene(2));
        items[2]->SetNameVisible(false);
        items[2]->Pen().setWidthF(Scene(0.9));
        selection = {via, items[0], board.board.AddHole(), items[1], items[2]};
        board.AddSymbol(3, "NT3");
    }

    Set* MakeSet() { return new Set(selection, &board.project); }

    Test::TieProject board;
    QList<Item*> items;
    QList<TGraphicsItem*> selection;
};

const Test::SlotCase<Ties> slotCases[] = {
    {"name", [](Set& set) { set.SetName("other"); },
     [](Set& set) { emit Test::RowOf<TPropertyText>(&set, "Name:")->line->textChanged("other"); }, "TCmdNetTieName",
     [](Item& tie) { tie.SetName("other"); }, nullptr, nullptr},
    {"name hidden", [](Set& set) { set.SetNameVis(false); },
     [](Set& set) { Test::RowOf<TPropertyText>(&set, "Name:")->visible->click(); }, "TCmdNetTieNameVis",
     [](Item& tie) { tie.SetNameVisible(false); }, nullptr, nullptr},
    {"layer", [](Set& set) { set.SetLayer(Osmirel::Copper3); },
     [](Set& set) { Test::RowOf<TPropertyLayer>(&set, "Layer:")->Box()->setCurrentText("Inner 2"); },
     "TCmdNetTiePcbLayer", [](Item& tie) { tie.SetLayer(Osmirel::Copper3); }, nullptr, nullptr},
    {"pad size", [](Set& set) { set.SetPadSz(1.7); },
     [](Set& set) { Test::RowOf<TPropertyFloatSpin>(&set, "Pad size:")->spin->setValue(1.7); }, "TCmdNetTiePadSz",
     [](Item& tie) { tie.SetPadSize(Scene(1.7)); }, nullptr, nullptr},
    {"wire width: the command sets the pad size", [](Set& set) { set.SetWireWidth(1.7); },
     [](Set& set) { Test::RowOf<TPropertyFloatSpin>(&set, "Wire width:")->spin->setValue(1.7); }, "TCmdNetTiePadSz",
     [](Item& tie) { tie.SetPadSize(Scene(1.7)); }, [](Item& tie) { tie.Pen().setWidthF(Scene(1.7)); }, nullptr},
};

const QStringList plainRows = {
    "TPropertyText Name: = NT3, [x] Show",
    "TPropertyFloatSpin Pad size: 0.3..10 step 0.1 decimals 2 = 1.20 mm",
    "TPropertyFloatSpin Wire width: 0.3..10 step 0.1 decimals 2 = 0.40 mm",
    "TPropertyLayer Layer: Top 68, Inner 1 69, Inner 2 70, Bottom 75 = Top",
    "TPropertyText Id: = 3, disabled",
};

using ChangeTie = void (*)(Item& tie);

} // namespace

Q_DECLARE_METATYPE(ChangeTie)
Q_DECLARE_METATYPE(const Test::SlotCase<Ties>*)

class TestNetTiePcbSet : public QObject
{
    Q_OBJECT

private slots:
    void showsOneTie_data()
    {
        QTest::addColumn<ChangeTie>("change");
        QTest::addColumn<QStringList>("rows");
        const auto add = [](const char* name, ChangeTie change, const QStringList& rows) {
            QTest::newRow(name) << change << rows;
        };
        add("as it is", [](Item&) {}, {});
        add("name", [](Item& tie) { tie.SetName("a b"); }, {"TPropertyText Name: = a b, [x] Show"});
        add("name hidden", [](Item& tie) { tie.SetNameVisible(false); }, {"TPropertyText Name: = NT3, [ ] Show"});
        add("pad size", [](Item& tie) { tie.SetPadSize(Scene(3.25)); },
            {"TPropertyFloatSpin Pad size: 0.3..10 step 0.1 decimals 2 = 3.25 mm"});
        add("pad size below the range", [](Item& tie) { tie.SetPadSize(Scene(0.1)); },
            {"TPropertyFloatSpin Pad size: 0.3..10 step 0.1 decimals 2 = 0.30 mm"});
        add("wire width above the range", [](Item& tie) { tie.Pen().setWidthF(Scene(11)); },
            {"TPropertyFloatSpin Wire width: 0.3..10 step 0.1 decimals 2 = 10.00 mm"});
        add("layer", [](Item& tie) { tie.SetLayer(Osmirel::CopperBottom); },
            {"TPropertyLayer Layer: Top 68, Inner 1 69, Inner 2 70, Bottom 75 = Bottom"});
        add("layer that the board lacks", [](Item& tie) { tie.SetLayer(Osmirel::Copper7); },
            {"TPropertyLayer Layer: Layer 74 74, Top 68, Inner 1 69, Inner 2 70, Bottom 75 = Layer 74"});
        add("number", [](Item& tie) { tie.SetNumber(65535); }, {"TPropertyText Id: = 65535, disabled"});
        add("millimetres whatever the display unit",
            [](Item& tie) { tie.Workspace()->SetCurrentUnit(TWorkspace::Unit::Inch); }, {});
    }

    void showsOneTie()
    {
        QFETCH(ChangeTie, change);
        QFETCH(QStringList, rows);
        Test::TieProject design;
        Item* tie = design.AddTie(3, "NT3");
        change(*tie);
        const Set set({tie}, &design.project);
        QCOMPARE(Test::RowTexts(&set), Test::WithRows(plainRows, rows));
        QCOMPARE(set.Name(), QString("Net Tie"));
    }

    void showsTheFirstOfSeveral()
    {
        Ties ties;
        const std::unique_ptr<Set> set(ties.MakeSet());
        QCOMPARE(Test::RowTexts(set.get()), plainRows);
        QCOMPARE(set->Name(), QString("Net Tie"));
    }

    void withoutTiesThereAreNoRows()
    {
        Test::TieProject design;
        for (const QList<TGraphicsItem*>& selection :
             {QList<TGraphicsItem*>(), QList<TGraphicsItem*>{design.AddSymbol(3, "NT3"), design.board.AddVia()}}) {
            const Set set(selection, &design.project);
            QVERIFY(set.Properties().isEmpty());
            QCOMPARE(set.Name(), QString("Net Tie"));
        }
    }

    void slotMakesACommand_data() { Test::AddSlotRows(slotCases); }

    void slotMakesACommand()
    {
        QFETCH(const Test::SlotCase<Ties>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Ties>(*slot, {byRow, {}}).CheckCommand();
        Test::SlotLaw<Ties>(*slot, {byRow, {1, 2}}).CheckCommand();
    }

    void slotWritesAtOnceWhereTheFirstBypassesUndo_data() { Test::AddSlotRows(slotCases); }

    void slotWritesAtOnceWhereTheFirstBypassesUndo()
    {
        QFETCH(const Test::SlotCase<Ties>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Ties>(*slot, {byRow, {0}}).CheckDirectWrite();
        Test::SlotLaw<Ties>(*slot, {byRow, {0, 1, 2}}).CheckDirectWrite();
    }

    void undoOfAWireWidthRestoresThePadSize()
    {
        Test::TieProject design;
        Item* tie = design.AddTie(3, "NT3");
        Set set({tie}, &design.project);
        Test::CommandLog log(set);
        set.SetWireWidth(0.8);
        log.Redo();
        QCOMPARE(tie->PadSize(), Scene(0.8));
        tie->Pen().setWidthF(Scene(5));
        log.Undo();
        QCOMPARE(tie->PadSize(), Scene(1.2));
        QCOMPARE(tie->Pen().widthF(), Scene(5));
    }

    void nameReachesTheSchematicInStepOnly_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<bool>("bypass");
        QTest::addColumn<QString>("name");
        QTest::newRow("in step") << int(TProject::InStep) << false << "other";
        QTest::newRow("separate") << int(TProject::Separate) << false << "NT3";
        QTest::newRow("in step, undo bypassed") << int(TProject::InStep) << true << "NT3";
    }

    void nameReachesTheSchematicInStepOnly()
    {
        QFETCH(int, kind);
        QFETCH(bool, bypass);
        Test::TieProject design;
        design.project.SetKind(kind);
        Item* tie = design.AddTie(3, "NT3");
        const TGraphicsNetTieSchItem* symbol = design.AddSymbol(3, "NT3");
        tie->SetTFlag(TGraphicsItem::UndoBypass, bypass);
        Set set({tie}, &design.project);
        Test::CommandLog log(set);
        set.SetName("other");
        log.Redo();
        QCOMPARE(tie->Name(), QString("other"));
        QTEST(symbol->Name(), "name");
    }

    void directWireWidthRepaints()
    {
        Test::TieProject design;
        Item* tie = design.AddTie(3, "NT3");
        tie->SetTFlag(TGraphicsItem::UndoBypass, true);
        Set set({tie}, &design.project);
        Test::RepaintLog repaints(*design.board.Scene());
        set.SetWireWidth(0.8);
        QVERIFY(!repaints.Take().isNull());
    }

    void textsAreTranslated()
    {
        Test::TieProject design;
        const Test::MarkingTranslator translator;
        const Set set({design.AddTie(3, "NT3")}, &design.project);
        QCOMPARE(set.Name(), QString("~Net Tie"));
        QCOMPARE(Test::Untranslated(translator, "TPropertySetForNetTiePcb",
                                    {"Name:", "Pad size:", "Wire width:", "Layer:", "Id:"}),
                 QStringList());
    }
};

PROPERTIES_TEST(TestNetTiePcbSet)
#include "tst_nettiepcb.moc"
