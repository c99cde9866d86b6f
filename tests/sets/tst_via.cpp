#include "tests/support/PanelFixture.h"
#include "tests/support/RowText.h"
#include "tests/support/SlotLaw.h"
#include "tests/support/TestBoard.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TPropertyEnum.h"
#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/sets/TPropertySetForVia.h"

#include <workspace/TDoubleSpinBox.h>

#include <QCheckBox>
#include <QComboBox>

namespace {

using Test::Single;

double Scene(double millimetres)
{
    return millimetres * Test::sceneUnitsPerMillimetre;
}

float SceneF(double millimetres)
{
    return static_cast<float>(Scene(millimetres));
}

/** Three vias that differ in what a set does not compare, and items of other kinds before and between them. */
struct Vias
{
    using Set = TPropertySetForVia;
    using Item = TGraphicsViaItem;

    Vias()
    {
        TGraphicsPadItem* pad = board.AddThroughPad();
        pad->SetTFlag(TGraphicsItem::UndoBypass, true);
        items = {board.AddVia(0.6, 0.3), board.AddVia(0.8, 0.4), board.AddVia(1.0, 0.5)};
        items[1]->SetThermal(TGraphicsViaItem::ThermalYes);
        items[2]->SetMaskClearance(SceneF(0.4));
        selection = {pad, items[0], items[1], board.AddHole(), board.AddSurfacePad(), items[2]};
    }

    Set* MakeSet() { return new Set(selection, board.ViaGroups()); }

    Test::TestBoard board;
    QList<Item*> items;
    QList<TGraphicsItem*> selection;
};

TDoubleSpinBox* SpinOf(TPropertySetForVia& set, const char* label)
{
    return Test::RowOf<TPropertyFloatSpin>(&set, label)->spin;
}

QComboBox* BoxOf(TPropertySetForVia& set, const char* label)
{
    return Test::RowOf<TPropertyEnum>(&set, label)->Box();
}

const Test::SlotCase<Vias> slotCases[] = {
    {"diameter, in single precision", [](TPropertySetForVia& set) { set.SetDiam(2.3); },
     [](TPropertySetForVia& set) { SpinOf(set, "Diameter:")->setValue(2.3); }, "TCmdViaDiam",
     [](TGraphicsViaItem& via) { via.SetSize(Single(Scene(2.3)), Single(Scene(2.3))); }, nullptr, nullptr},
    {"drill", [](TPropertySetForVia& set) { set.SetDrill(1.7); },
     [](TPropertySetForVia& set) { SpinOf(set, "Drill:")->setValue(1.7); }, "TCmdViaDrill",
     [](TGraphicsViaItem& via) { via.SetDrill(SceneF(1.7)); }, nullptr, nullptr},
    {"thermal that there is not", [](TPropertySetForVia& set) { set.SetThermal(9); }, nullptr, "TCmdViaTherm", nullptr,
     nullptr, nullptr},
    {"thermal", [](TPropertySetForVia& set) { set.SetThermal(2); },
     [](TPropertySetForVia& set) { BoxOf(set, "Thermal:")->setCurrentText("No"); }, "TCmdViaTherm",
     [](TGraphicsViaItem& via) { via.SetThermal(TGraphicsViaItem::ThermalNo); }, nullptr, nullptr},
    {"drill pair", [](TPropertySetForVia& set) { set.SetGroup("Top - Inner 1"); },
     [](TPropertySetForVia& set) { BoxOf(set, "Drill pair:")->setCurrentText("Top - Inner 1"); }, "TCmdViaGroup",
     [](TGraphicsViaItem& via) { via.SetViaGroup("Top - Inner 1"); }, nullptr, nullptr},
    {"mask enable", [](TPropertySetForVia& set) { set.SetMaskEnable(true); },
     [](TPropertySetForVia& set) { Test::RowOf<TPropertyFloatSpin>(&set, "Mask:")->check->click(); }, "TCmdMaskEn",
     [](TGraphicsViaItem& via) { via.SetMaskEnabled(true); }, nullptr, nullptr},
    {"mask clearance", [](TPropertySetForVia& set) { set.SetMaskClearance(0.7); },
     [](TPropertySetForVia& set) { SpinOf(set, "Mask:")->setValue(0.7); }, "TCmdMaskClearance",
     [](TGraphicsViaItem& via) { via.SetMaskClearance(SceneF(0.7)); }, nullptr, nullptr},
};

const QStringList plainRows = {
    "TPropertyFloatSpin Diameter: 0.1..10 step 0.1 decimals 1 = 0.6 mm",
    "TPropertyFloatSpin Drill: 0.1..10 step 0.1 decimals 1 = 0.3 mm",
    "TPropertyEnum Thermal: Auto 0, Yes 1, No 2 = Auto",
    "TPropertyEnum Drill pair: Top - Bottom 0, Top - Inner 1 1 = Top - Bottom",
    "TPropertyFloatSpin Mask: 0.1..10 step 0.1 decimals 1 = [ ] 0.5mm",
};

TGraphicsViaItem* AddPlainVia(Test::TestBoard& board)
{
    TGraphicsViaItem* via = board.AddVia(0.6, 0.3);
    via->SetMaskClearance(SceneF(0.5));
    return via;
}

using ChangeVia = void (*)(TGraphicsViaItem& via);

} // namespace

Q_DECLARE_METATYPE(ChangeVia)
Q_DECLARE_METATYPE(const Test::SlotCase<Vias>*)

class TestViaSet : public QObject
{
    Q_OBJECT

private slots:
    void showsOneVia_data()
    {
        QTest::addColumn<ChangeVia>("change");
        QTest::addColumn<QStringList>("rows");
        const auto add = [](const char* name, ChangeVia change, const QStringList& rows) {
            QTest::newRow(name) << change << rows;
        };
        add("as it is", [](TGraphicsViaItem&) {}, {});
        add("wider than high: the smaller", [](TGraphicsViaItem& via) { via.SetSize(Scene(2), Scene(1.5)); },
            {"TPropertyFloatSpin Diameter: 0.1..10 step 0.1 decimals 1 = 1.5 mm"});
        add("higher than wide: the smaller", [](TGraphicsViaItem& via) { via.SetSize(Scene(1.2), Scene(4)); },
            {"TPropertyFloatSpin Diameter: 0.1..10 step 0.1 decimals 1 = 1.2 mm"});
        add("beyond the range: clamped", [](TGraphicsViaItem& via) { via.SetSize(Scene(12), Scene(12)); },
            {"TPropertyFloatSpin Diameter: 0.1..10 step 0.1 decimals 1 = 10.0 mm"});
        add("drill", [](TGraphicsViaItem& via) { via.SetDrill(SceneF(0.9)); },
            {"TPropertyFloatSpin Drill: 0.1..10 step 0.1 decimals 1 = 0.9 mm"});
        add("thermal", [](TGraphicsViaItem& via) { via.SetThermal(TGraphicsViaItem::ThermalNo); },
            {"TPropertyEnum Thermal: Auto 0, Yes 1, No 2 = No"});
        add("drill pair", [](TGraphicsViaItem& via) { via.SetViaGroup("Top - Inner 1"); },
            {"TPropertyEnum Drill pair: Top - Bottom 0, Top - Inner 1 1 = Top - Inner 1"});
        add("drill pair that the board lacks: first in the list", [](TGraphicsViaItem& via) { via.SetViaGroup("Odd"); },
            {"TPropertyEnum Drill pair: Odd, Top - Bottom 0, Top - Inner 1 1 = Odd"});
        add("mask enable", [](TGraphicsViaItem& via) { via.SetMaskEnabled(true); },
            {"TPropertyFloatSpin Mask: 0.1..10 step 0.1 decimals 1 = [x] 0.5mm"});
        add("mask clearance", [](TGraphicsViaItem& via) { via.SetMaskClearance(SceneF(1.4)); },
            {"TPropertyFloatSpin Mask: 0.1..10 step 0.1 decimals 1 = [ ] 1.4mm"});
    }

    void showsOneVia()
    {
        QFETCH(ChangeVia, change);
        QFETCH(QStringList, rows);
        Test::TestBoard board;
        TGraphicsViaItem* via = AddPlainVia(board);
        change(*via);
        const TPropertySetForVia set({via}, board.ViaGroups());
        QCOMPARE(Test::RowTexts(&set), Test::WithRows(plainRows, rows));
        QCOMPARE(set.Name(), QString("Vias"));
    }

    void showsWhatTheSecondViaLeavesShared_data()
    {
        QTest::addColumn<ChangeVia>("change");
        QTest::addColumn<QStringList>("rows");
        const auto add = [](const char* name, ChangeVia change, const QStringList& rows) {
            QTest::newRow(name) << change << rows;
        };
        add("diameter: the first's", [](TGraphicsViaItem& via) { via.SetSize(Scene(2), Scene(2)); }, {});
        add("drill: the first's", [](TGraphicsViaItem& via) { via.SetDrill(SceneF(0.9)); }, {});
        add("thermal: the first's", [](TGraphicsViaItem& via) { via.SetThermal(TGraphicsViaItem::ThermalNo); }, {});
        add("mask clearance: the first's", [](TGraphicsViaItem& via) { via.SetMaskClearance(SceneF(1.4)); }, {});
        add("drill pair: neither drill pair nor thermal",
            [](TGraphicsViaItem& via) { via.SetViaGroup("Top - Inner 1"); },
            {"TPropertyEnum Thermal: Auto 0, Yes 1, No 2 = none",
             "TPropertyEnum Drill pair: Top - Bottom 0, Top - Inner 1 1 = none"});
        add("drill pair that the board lacks: it is not offered", [](TGraphicsViaItem& via) { via.SetViaGroup("Odd"); },
            {"TPropertyEnum Thermal: Auto 0, Yes 1, No 2 = none",
             "TPropertyEnum Drill pair: Top - Bottom 0, Top - Inner 1 1 = none"});
        add("mask enable: unchecked", [](TGraphicsViaItem& via) { via.SetMaskEnabled(true); }, {});
    }

    void showsWhatTheSecondViaLeavesShared()
    {
        QFETCH(ChangeVia, change);
        QFETCH(QStringList, rows);
        Test::TestBoard board;
        TGraphicsViaItem* first = AddPlainVia(board);
        TGraphicsViaItem* second = AddPlainVia(board);
        TGraphicsViaItem* third = AddPlainVia(board);
        change(*second);
        const TPropertySetForVia set({first, second, third}, board.ViaGroups());
        QCOMPARE(Test::RowTexts(&set), Test::WithRows(plainRows, rows));
    }

    void maskEnableOfTheFirstOnlyIsNotShown()
    {
        Test::TestBoard board;
        TGraphicsViaItem* first = AddPlainVia(board);
        first->SetMaskEnabled(true);
        const TPropertySetForVia alone({first}, board.ViaGroups());
        QVERIFY(Test::RowOf<TPropertyFloatSpin>(&alone, "Mask:")->check->isChecked());
        const TPropertySetForVia both({first, AddPlainVia(board)}, board.ViaGroups());
        QVERIFY(!Test::RowOf<TPropertyFloatSpin>(&both, "Mask:")->check->isChecked());
    }

    void firstItemOfAMixedChoiceCanBeChosen_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("command");
        QTest::newRow("thermal") << "Thermal:"
                                 << "TCmdViaTherm";
        QTest::newRow("drill pair") << "Drill pair:"
                                    << "TCmdViaGroup";
    }

    void firstItemOfAMixedChoiceCanBeChosen()
    {
        QFETCH(QString, label);
        Test::TestBoard board;
        Test::PanelWindow place;
        auto* set =
            new TPropertySetForVia({board.AddVia(), board.AddVia(0.6, 0.3, "Top - Inner 1")}, board.ViaGroups());
        place.Show(set);
        const Test::CommandLog log(*set);
        QTest::keyClick(Test::FindRow(set, label)->Editor(), Qt::Key_Down);
        QTEST(log.Names().join(' '), "command");
    }

    void unitIsTheWorkspaces_data()
    {
        QTest::addColumn<int>("unit");
        QTest::addColumn<QStringList>("rows");
        QTest::newRow("millimetres") << int(TWorkspace::Unit::Millimetre)
                                     << QStringList{"TPropertyFloatSpin Diameter: 0.1..10 step 0.1 decimals 1 = 0.2 mm",
                                                    "TPropertyFloatSpin Drill: 0.1..10 step 0.1 decimals 1 = 0.1 mm",
                                                    "TPropertyFloatSpin Mask: 0.1..10 step 0.1 decimals 1 = [ ] 0.2mm"};
        QTest::newRow("mils") << int(TWorkspace::Unit::Mil)
                              << QStringList{"TPropertyFloatSpin Diameter: 0.1..10 step 0.1 decimals 1 = 7.9 mil",
                                             "TPropertyFloatSpin Drill: 0.1..10 step 0.1 decimals 1 = 3.9 mil",
                                             "TPropertyFloatSpin Mask: 0.1..10 step 0.1 decimals 1 = [ ] 6.3mil"};
        QTest::newRow("inches") << int(TWorkspace::Unit::Inch)
                                << QStringList{"TPropertyFloatSpin Diameter: 0.1..10 step 0.1 decimals 1 = 0.1 in",
                                               "TPropertyFloatSpin Drill: 0.1..10 step 0.1 decimals 1 = 0.1 in",
                                               "TPropertyFloatSpin Mask: 0.1..10 step 0.1 decimals 1 = [ ] 0.1in"};
    }

    void unitIsTheWorkspaces()
    {
        QFETCH(int, unit);
        QFETCH(QStringList, rows);
        Test::TestBoard board;
        board.Workspace()->SetCurrentUnit(static_cast<TWorkspace::Unit>(unit));
        TGraphicsViaItem* via = board.AddVia(0.2, 0.1);
        via->SetMaskClearance(SceneF(0.16));
        const TPropertySetForVia set({via}, board.ViaGroups());
        QCOMPARE(Test::RowTexts(&set), Test::WithRows(plainRows, rows));
    }

    void unitIsThatOfTheFirstVia()
    {
        Test::TestBoard mils;
        mils.Workspace()->SetCurrentUnit(TWorkspace::Unit::Mil);
        Test::TestBoard millimetres;
        const TPropertySetForVia set({mils.AddThroughPad(), millimetres.AddVia(), mils.AddVia()},
                                     millimetres.ViaGroups());
        QCOMPARE(Test::RowTexts(&set).value(0), plainRows.first());
    }

    void viaWithoutAWorkspaceShowsMillimetres()
    {
        TGraphicsViaItem via;
        via.SetSize(Scene(0.6), Scene(0.6));
        via.SetDrill(SceneF(0.3));
        via.SetViaGroup("Top - Bottom");
        via.SetMaskClearance(SceneF(0.5));
        const TPropertySetForVia set({&via}, {"Top - Bottom", "Top - Inner 1"});
        QCOMPARE(Test::RowTexts(&set), plainRows);
    }

    void drillPairsAreOfferedInTheGivenOrder()
    {
        Test::TestBoard board;
        const TPropertySetForVia set({board.AddVia()}, {"b", "Top - Bottom", "a"});
        QCOMPARE(Test::RowTexts(&set).value(3),
                 QString("TPropertyEnum Drill pair: b 0, Top - Bottom 1, a 2 = Top - Bottom"));
    }

    void withoutViasThereAreNoRows_data()
    {
        QTest::addColumn<bool>("foreign");
        QTest::newRow("nothing selected") << false;
        QTest::newRow("other kinds only") << true;
    }

    void withoutViasThereAreNoRows()
    {
        QFETCH(bool, foreign);
        Test::TestBoard board;
        const QList<TGraphicsItem*> others{board.AddThroughPad(), board.AddHole(), board.AddPackage()};
        const TPropertySetForVia set(foreign ? others : QList<TGraphicsItem*>(), board.ViaGroups());
        QVERIFY(set.Properties().isEmpty());
        QCOMPARE(set.Name(), QString("Vias"));
    }

    void slotMakesACommand_data() { Test::AddSlotRows(slotCases); }

    void slotMakesACommand()
    {
        QFETCH(const Test::SlotCase<Vias>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Vias>(*slot, {byRow, {}}).CheckCommand();
        Test::SlotLaw<Vias>(*slot, {byRow, {1, 2}}).CheckCommand();
    }

    void slotWritesAtOnceWhereTheFirstBypassesUndo_data() { Test::AddSlotRows(slotCases); }

    void slotWritesAtOnceWhereTheFirstBypassesUndo()
    {
        QFETCH(const Test::SlotCase<Vias>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Vias>(*slot, {byRow, {0}}).CheckDirectWrite();
        Test::SlotLaw<Vias>(*slot, {byRow, {0, 1, 2}}).CheckDirectWrite();
    }

    void bypassIsLookedAtWithEachEdit()
    {
        Test::TestBoard board;
        TGraphicsViaItem* via = board.AddVia();
        TPropertySetForVia set({via}, board.ViaGroups());
        const Test::CommandLog log(set);
        set.SetDiam(1);
        via->SetTFlag(TGraphicsItem::UndoBypass, true);
        set.SetDiam(2);
        via->SetTFlag(TGraphicsItem::UndoBypass, false);
        set.SetDiam(3);
        QCOMPARE(log.Count(), 2);
        QCOMPARE(via->Width(), Single(Scene(2)));
    }

    void directMaskEnableRefreshesNothing_data()
    {
        QTest::addColumn<bool>("bypass");
        QTest::newRow("command: refreshed") << false;
        QTest::newRow("written at once: not refreshed") << true;
    }

    void directMaskEnableRefreshesNothing()
    {
        QFETCH(bool, bypass);
        Test::TestBoard board;
        auto owned = std::make_unique<Test::Counting<TGraphicsViaItem>>();
        auto* via = owned.get();
        board.Attach(std::move(owned));
        via->SetTFlag(TGraphicsItem::UndoBypass, bypass);
        TPropertySetForVia set({via}, board.ViaGroups());
        Test::CommandLog log(set);
        set.SetMaskEnable(true);
        log.Redo();
        QVERIFY(via->MaskEnabled());
        QCOMPARE(via->refreshes > 0, !bypass);
    }

    void drillIsRepaintedAndThermalIsNot_data()
    {
        QTest::addColumn<bool>("bypass");
        QTest::newRow("by command") << false;
        QTest::newRow("at once") << true;
    }

    void drillIsRepaintedAndThermalIsNot()
    {
        QFETCH(bool, bypass);
        Test::TestBoard board;
        TGraphicsViaItem* via = board.AddVia();
        via->SetTFlag(TGraphicsItem::UndoBypass, bypass);
        TPropertySetForVia set({via}, board.ViaGroups());
        Test::CommandLog log(set);
        Test::RepaintLog repaints(*board.Scene());

        set.SetThermal(2);
        log.Redo();
        QCOMPARE(via->Thermal(), TGraphicsViaItem::ThermalNo);
        QCOMPARE(repaints.Take(), QRectF());
        set.SetDrill(0.4);
        log.Redo();
        QVERIFY(repaints.Take().contains(via->sceneBoundingRect()));
        log.Undo();
        QCOMPARE(repaints.Take().isNull(), bypass);
    }

    void rowsAreNotRefreshedByAnEdit()
    {
        Vias vias;
        const std::unique_ptr<TPropertySetForVia> set(vias.MakeSet());
        Test::CommandLog log(*set);
        const QStringList rows = Test::RowTexts(set.get());
        set->SetDiam(2);
        set->SetThermal(2);
        set->SetMaskEnable(true);
        log.Redo();
        QCOMPARE(Test::RowTexts(set.get()), rows);
    }

    void everyStepIsACommandOfItsOwn()
    {
        Test::TestBoard board;
        TPropertySetForVia set({board.AddVia()}, board.ViaGroups());
        const Test::CommandLog log(set);
        for (int i = 0; i < 3; ++i) {
            SpinOf(set, "Diameter:")->stepUp();
        }
        QCOMPARE(log.Names(), (QStringList{"TCmdViaDiam", "TCmdViaDiam", "TCmdViaDiam"}));
    }

    void textsAreTranslated()
    {
        Test::TestBoard board;
        const Test::MarkingTranslator translator;
        const TPropertySetForVia set({board.AddVia()}, board.ViaGroups());
        QCOMPARE(set.Name(), QString("~Vias"));
        for (const char* label : {"Diameter:", "Drill:", "Thermal:", "Drill pair:", "Mask:"}) {
            QVERIFY(Test::Labels(&set).contains(Test::MarkingTranslator::Marked(label)));
            QVERIFY(translator.WasAsked("TPropertySetForVia", label));
        }
        for (const char* choice : {"Auto", "Yes", "No"}) {
            QVERIFY(translator.WasAsked("TPropertySetForVia", choice));
        }
        QVERIFY(Test::RowTexts(&set).value(2).startsWith("TPropertyEnum ~Thermal: ~Auto 0, ~Yes 1, ~No 2"));
        QVERIFY(Test::RowTexts(&set).value(3).contains(" Top - Bottom 0,"));
    }
};

PROPERTIES_TEST(TestViaSet)
#include "tst_via.moc"
