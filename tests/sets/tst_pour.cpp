#include "tests/sets/SetSupport.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/RowText.h"
#include "tests/support/SlotLaw.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyCheck.h"
#include "properties/rows/TPropertyEnum.h"
#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/rows/TPropertyIntSpin.h"
#include "properties/rows/TPropertyLayer.h"
#include "properties/rows/TPropertyText.h"
#include "properties/sets/TPropertySetForPour.h"

#include <objects/TGraphicsPourItem.h>
#include <workspace/TDoubleSpinBox.h>

#include <QCheckBox>
#include <QSpinBox>

namespace {

using Test::Scene;
using Set = TPropertySetForPour;
using Item = TGraphicsPourItem;

Item* AddPour(Test::TestBoard& board)
{
    Item* pour = Test::Place<Item>(board);
    pour->SetLayer(Osmirel::CopperTop);
    pour->SetArea(QPolygonF(QRectF(0, 0, 100, 100)));
    pour->SetClearanceToEtch(Scene(0.2));
    pour->SetClearanceToBorder(Scene(0.4));
    pour->SetClearanceToPour(Scene(0.3));
    pour->SetFillType(Qt::CrossPattern);
    pour->SetLineWidth(Scene(0.25));
    pour->SetMinimumArea(6);
    pour->SetPriority(2);
    pour->SetThermalLine(Scene(0.5));
    pour->SetThermalIsolation(Scene(0.6));
    pour->SetNet("GND");
    return pour;
}

/** Three pours, no two alike, and items of other kinds before and between them. */
struct Pours
{
    using Set = ::Set;
    using Item = ::Item;

    Pours()
    {
        TGraphicsPadItem* pad = board.AddThroughPad();
        pad->SetTFlag(TGraphicsItem::UndoBypass, true);
        items = {AddPour(board), AddPour(board), AddPour(board)};
        items[0]->SetClearanceToEtch(Scene(7));
        items[1]->SetPriority(9);
        items[1]->SetNet("VCC");
        items[1]->SetLayer(Osmirel::CopperBottom);
        selection = {pad, items[0], items[1], board.AddHole(), items[2]};
    }

    Set* MakeSet() { return new Set(selection, board.Sides()); }

    Test::TestBoard board;
    QList<Item*> items;
    QList<TGraphicsItem*> selection;
};

TDoubleSpinBox* SpinOf(Set& set, const char* label)
{
    return Test::RowOf<TPropertyFloatSpin>(&set, label)->spin;
}

const Test::SlotCase<Pours> commandCases[] = {
    {"clearance to etch", [](Set& set) { set.SetClearanceToEtch(1.5); },
     [](Set& set) { SpinOf(set, "Clearance to etch:")->setValue(1.5); }, "TCmdPourClEtch",
     [](Item& pour) { pour.SetClearanceToEtch(Scene(1.5)); }, nullptr, nullptr},
    {"clearance to border", [](Set& set) { set.SetClearanceToBorder(1.5); }, nullptr, "TCmdPourClBorder",
     [](Item& pour) { pour.SetClearanceToBorder(Scene(1.5)); }, nullptr, nullptr},
    {"clearance to pour", [](Set& set) { set.SetClearanceToPour(1.5); },
     [](Set& set) { SpinOf(set, "Clearance to pour:")->setValue(1.5); }, "TCmdPourClPour",
     [](Item& pour) { pour.SetClearanceToPour(Scene(1.5)); }, nullptr, nullptr},
    {"fill type that there is not", [](Set& set) { set.SetFillType(99); }, nullptr, "TCmdPourFillType", nullptr,
     nullptr, nullptr},
    {"fill type", [](Set& set) { set.SetFillType(9); },
     [](Set& set) { Test::RowOf<TPropertyEnum>(&set, "Fill type:")->Box()->setCurrentText("H-Lines"); },
     "TCmdPourFillType", [](Item& pour) { pour.SetFillType(Qt::HorPattern); }, nullptr, nullptr},
    {"line width", [](Set& set) { set.SetLineWidth(1.5); }, [](Set& set) { SpinOf(set, "Line width:")->setValue(1.5); },
     "TCmdPourLineWidth", [](Item& pour) { pour.SetLineWidth(Scene(1.5)); }, nullptr, nullptr},
    {"minimum area, in square millimetres", [](Set& set) { set.SetMinimumArea(12); },
     [](Set& set) { SpinOf(set, "Minimum area:")->setValue(12); }, "TCmdPourMinArea",
     [](Item& pour) { pour.SetMinimumArea(12); }, nullptr, nullptr},
    {"only connected", [](Set& set) { set.SetOnlyConnected(true); }, nullptr, "TCmdPourOnlyConn",
     [](Item& pour) { pour.SetOnlyConnected(true); }, nullptr, nullptr},
    {"priority", [](Set& set) { set.SetPriority(11); },
     [](Set& set) { Test::RowOf<TPropertyIntSpin>(&set, "Priority:")->SetCurrentValue(11); }, "TCmdPourPrio",
     [](Item& pour) { pour.SetPriority(11); }, nullptr, nullptr},
    {"priority, cut to eight bits", [](Set& set) { set.SetPriority(256 + 3); }, nullptr, "TCmdPourPrio",
     [](Item& pour) { pour.SetPriority(3); }, nullptr, nullptr},
    {"thermal enable", [](Set& set) { set.SetThermalEn(true); },
     [](Set& set) { Test::RowOf<TPropertyCheck>(&set, "Thermal enable:")->SetCurrentState(true); }, "TCmdPourThermEn",
     [](Item& pour) { pour.SetThermalEnable(true); }, nullptr, nullptr},
    {"thermal line", [](Set& set) { set.SetThermalLine(1.5); },
     [](Set& set) { SpinOf(set, "Thermal line:")->setValue(1.5); }, "TCmdPourThermLine",
     [](Item& pour) { pour.SetThermalLine(Scene(1.5)); }, nullptr, nullptr},
    {"thermal isolation", [](Set& set) { set.SetThermalIsol(1.5); },
     [](Set& set) { SpinOf(set, "Thermal isolation:")->setValue(1.5); }, "TCmdPourThermIsol",
     [](Item& pour) { pour.SetThermalIsolation(Scene(1.5)); }, nullptr, nullptr},
    {"layer", [](Set& set) { set.SetLayer(Osmirel::CopperBottom); },
     [](Set& set) { Test::RowOf<TPropertyLayer>(&set, "Layer:")->Box()->setCurrentText("Bottom"); }, "TCmdPourLayer",
     [](Item& pour) { pour.SetLayer(Osmirel::CopperBottom); }, nullptr, nullptr},
    {"net", [](Set& set) { set.SetNet("CLK"); },
     [](Set& set) { emit Test::RowOf<TPropertyText>(&set, "Net:")->line->textChanged("CLK"); }, "TCmdPourNet",
     [](Item& pour) { pour.SetNet("CLK"); }, nullptr, nullptr},
};

/** No row that is shown leads to these. */
const Test::SlotCase<Pours> directCases[] = {
    {"composition mode", [](Set& set) { set.SetCompMode(12); }, nullptr, "",
     [](Item& pour) { pour.SetCompositionMode(12); }, nullptr, nullptr},
    {"alpha", [](Set& set) { set.SetAlpha(7); }, nullptr, "", [](Item& pour) { pour.SetAlpha(7); }, nullptr, nullptr},
};

const QStringList plainRows = {
    "TPropertyFloatSpin Clearance to etch: 0..100 step 0.1 decimals 2 = 0.20 mm",
    "TPropertyFloatSpin Clearance to pour: 0..100 step 0.1 decimals 2 = 0.30 mm",
    "TPropertyEnum Fill type: No fill 0, Solid 1, H-Lines 9, V-Lines 10, Cross 11 = Cross",
    "TPropertyFloatSpin Line width: 0..100 step 0.1 decimals 2 = 0.25 mm",
    QString::fromUtf8("TPropertyFloatSpin Minimum area: 0..9999 step 1 decimals 0 = 6 mm\xC2\xB2"),
    "TPropertyIntSpin Priority: 0..15 step 1 = 2",
    "TPropertyCheck Thermal enable: = [ ]",
    "TPropertyFloatSpin Thermal line: 0..100 step 0.1 decimals 2 = 0.50 mm",
    "TPropertyFloatSpin Thermal isolation: 0..100 step 0.1 decimals 2 = 0.60 mm",
    "TPropertyLayer Layer: Top 68, Bottom 75 = Top",
    "TPropertyText Net: = GND",
};

const QStringList clearedRows = {
    "TPropertyFloatSpin Clearance to etch: 0..100 step 0.1 decimals 2 = 0.00 mm",
    "TPropertyFloatSpin Clearance to pour: 0..100 step 0.1 decimals 2 = 0.00 mm",
    "TPropertyEnum Fill type: No fill 0, Solid 1, H-Lines 9, V-Lines 10, Cross 11 = No fill",
    "TPropertyFloatSpin Line width: 0..100 step 0.1 decimals 2 = 0.00 mm",
    QString::fromUtf8("TPropertyFloatSpin Minimum area: 0..9999 step 1 decimals 0 = 0 mm\xC2\xB2"),
    "TPropertyIntSpin Priority: 0..15 step 1 = 0",
    "TPropertyCheck Thermal enable: = [ ]",
    "TPropertyFloatSpin Thermal line: 0..100 step 0.1 decimals 2 = 0.00 mm",
    "TPropertyFloatSpin Thermal isolation: 0..100 step 0.1 decimals 2 = 0.00 mm",
    "TPropertyLayer Layer: Top 68, Bottom 75 = none",
    "TPropertyText Net: = ",
};

using ChangePour = void (*)(Item& pour);

} // namespace

Q_DECLARE_METATYPE(ChangePour)
Q_DECLARE_METATYPE(const Test::SlotCase<Pours>*)

class TestPourSet : public QObject
{
    Q_OBJECT

private slots:
    void showsOnePour_data()
    {
        QTest::addColumn<ChangePour>("change");
        QTest::addColumn<QStringList>("rows");
        const auto add = [](const char* name, ChangePour change, const QStringList& rows) {
            QTest::newRow(name) << change << rows;
        };
        add("as it is", [](Item&) {}, {});
        add("clearance to etch", [](Item& pour) { pour.SetClearanceToEtch(Scene(10)); },
            {"TPropertyFloatSpin Clearance to etch: 0..100 step 0.1 decimals 2 = 10.00 mm"});
        add("clearance to pour, beyond the range", [](Item& pour) { pour.SetClearanceToPour(Scene(101)); },
            {"TPropertyFloatSpin Clearance to pour: 0..100 step 0.1 decimals 2 = 100.00 mm"});
        add("solid: the line width starts enabled", [](Item& pour) { pour.SetFillType(Qt::SolidPattern); },
            {"TPropertyEnum Fill type: No fill 0, Solid 1, H-Lines 9, V-Lines 10, Cross 11 = Solid"});
        add("vertical lines", [](Item& pour) { pour.SetFillType(Qt::VerPattern); },
            {"TPropertyEnum Fill type: No fill 0, Solid 1, H-Lines 9, V-Lines 10, Cross 11 = V-Lines"});
        add("filling that is not offered", [](Item& pour) { pour.SetFillType(Qt::Dense1Pattern); },
            {"TPropertyEnum Fill type: No fill 0, Solid 1, H-Lines 9, V-Lines 10, Cross 11 = none"});
        add("line width", [](Item& pour) { pour.SetLineWidth(Scene(0.4)); },
            {"TPropertyFloatSpin Line width: 0..100 step 0.1 decimals 2 = 0.40 mm"});
        add("minimum area, not converted", [](Item& pour) { pour.SetMinimumArea(118); },
            {QString::fromUtf8("TPropertyFloatSpin Minimum area: 0..9999 step 1 decimals 0 = 118 mm\xC2\xB2")});
        add("priority", [](Item& pour) { pour.SetPriority(15); }, {"TPropertyIntSpin Priority: 0..15 step 1 = 15"});
        add("priority, beyond the range", [](Item& pour) { pour.SetPriority(200); },
            {"TPropertyIntSpin Priority: 0..15 step 1 = 15"});
        add("thermal enable", [](Item& pour) { pour.SetThermalEnable(true); },
            {"TPropertyCheck Thermal enable: = [x]"});
        add("thermal line", [](Item& pour) { pour.SetThermalLine(Scene(0.7)); },
            {"TPropertyFloatSpin Thermal line: 0..100 step 0.1 decimals 2 = 0.70 mm"});
        add("thermal isolation", [](Item& pour) { pour.SetThermalIsolation(Scene(0.7)); },
            {"TPropertyFloatSpin Thermal isolation: 0..100 step 0.1 decimals 2 = 0.70 mm"});
        add("layer", [](Item& pour) { pour.SetLayer(Osmirel::CopperBottom); },
            {"TPropertyLayer Layer: Top 68, Bottom 75 = Bottom"});
        add("layer that is not offered: first in the list", [](Item& pour) { pour.SetLayer(Osmirel::Copper2); },
            {"TPropertyLayer Layer: Inner 1 69, Top 68, Bottom 75 = Inner 1"});
        add("net", [](Item& pour) { pour.SetNet("VCC"); }, {"TPropertyText Net: = VCC"});
        add("millimetres whatever the display unit",
            [](Item& pour) { pour.Workspace()->SetCurrentUnit(TWorkspace::Unit::Mil); }, {});
    }

    void showsOnePour()
    {
        QFETCH(ChangePour, change);
        QFETCH(QStringList, rows);
        Test::TestBoard board;
        Item* pour = AddPour(board);
        change(*pour);
        const Set set({pour}, board.Sides());
        QCOMPARE(Test::RowTexts(&set), Test::WithRows(plainRows, rows));
        QCOMPARE(set.Name(), QString("Pour"));
    }

    void showsTheLastPourWithoutALookAtTheOthers()
    {
        Test::TestBoard board;
        Item* first = Test::Place<Item>(board);
        first->SetLayer(Osmirel::CopperBottom);
        first->SetThermalEnable(true);
        const Set set({AddPour(board), first, AddPour(board), board.AddVia()}, board.Sides());
        QCOMPARE(Test::RowTexts(&set), plainRows);
        QCOMPARE(set.Name(), QString("Pours"));
        for (const TAbstractProperty* row : set.Properties()) {
            QVERIFY(!row->IsMixed());
        }
    }

    void nameCountsAllItemsGiven()
    {
        Test::TestBoard board;
        Item* pour = AddPour(board);
        QCOMPARE(Set({pour}, {}).Name(), QString("Pour"));
        QCOMPARE(Set({pour, board.AddVia()}, {}).Name(), QString("Pours"));
        QCOMPARE(Set({board.AddVia()}, {}).Name(), QString("Pour"));
        QCOMPARE(Set({}, {}).Name(), QString("Pours"));
    }

    void withoutPoursRowsShowAClearedRecord_data()
    {
        QTest::addColumn<bool>("foreign");
        QTest::newRow("nothing selected") << false;
        QTest::newRow("other kinds only") << true;
    }

    void withoutPoursRowsShowAClearedRecord()
    {
        QFETCH(bool, foreign);
        Test::TestBoard board;
        Set set(foreign ? QList<TGraphicsItem*>{board.AddVia()} : QList<TGraphicsItem*>(), board.Sides());
        QStringList rows = clearedRows;
        if (!foreign) {
            rows = Test::WithRows(rows, {"TPropertyLayer Layer:  = none"}); // Without a workspace nothing has a name.
        }
        QCOMPARE(Test::RowTexts(&set), rows);
        const Test::CommandLog log(set);
        SpinOf(set, "Clearance to etch:")->setValue(1.5);
        set.SetNet("GND");
        set.SetAlpha(7);
        QCOMPARE(log.Count(), 0);
    }

    void layerRowHasTheWorkspaceOfTheFirstItemGiven()
    {
        Test::TestBoard board;
        Test::TestBoard other;
        other.LayerManager()->AddLayer({Osmirel::CopperTop, "Upper", Qt::red, {}});
        const Set set({other.AddVia(), AddPour(board)}, board.Sides());
        QCOMPARE(Test::RowTexts(&set).value(9), QString("TPropertyLayer Layer: Upper 68, Bottom 75 = Upper"));
    }

    void slotAlwaysMakesACommand_data() { Test::AddSlotRows(commandCases); }

    void slotAlwaysMakesACommand()
    {
        QFETCH(const Test::SlotCase<Pours>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Pours>(*slot, {byRow, {}}).CheckCommand();
        Test::SlotLaw<Pours>(*slot, {byRow, {0}}).CheckCommand();
        Test::SlotLaw<Pours>(*slot, {byRow, {0, 1, 2}}).CheckCommand();
    }

    void drawingSlotAlwaysWritesAtOnce_data() { Test::AddSlotRows(directCases); }

    void drawingSlotAlwaysWritesAtOnce()
    {
        QFETCH(const Test::SlotCase<Pours>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Pours>(*slot, {byRow, {}}).CheckDirectWrite();
        Test::SlotLaw<Pours>(*slot, {byRow, {0}}).CheckDirectWrite();
    }

    void drawingSlotRepaintsAndRefillsNothing()
    {
        Test::TestBoard board;
        Item* pour = AddPour(board);
        pour->SetFillType(Qt::SolidPattern);
        pour->Fill();
        const QPainterPath filled = pour->FilledPath();
        QVERIFY(!filled.isEmpty());
        Set set({pour}, board.Sides());
        board.AddVia()->setPos(50, 50);
        Test::RepaintLog repaints(*board.Scene());
        set.SetAlpha(7);
        QVERIFY(repaints.Take().contains(pour->sceneBoundingRect()));
        set.SetCompMode(3);
        QVERIFY(repaints.Take().contains(pour->sceneBoundingRect()));
        QCOMPARE(pour->FilledPath(), filled);
        Test::CommandLog log(set);
        set.SetClearanceToEtch(0.4);
        log.Redo();
        QVERIFY(pour->FilledPath() != filled);
    }

    void solidFillingGreysTheLineWidth()
    {
        Test::TestBoard board;
        Item* pour = AddPour(board);
        pour->SetFillType(Qt::SolidPattern);
        Set set({pour}, board.Sides());
        const Test::CommandLog log(set);
        auto* width = Test::RowOf<TPropertyFloatSpin>(&set, "Line width:");
        QComboBox* fillType = Test::RowOf<TPropertyEnum>(&set, "Fill type:")->Box();
        QVERIFY(width->Editor()->isEnabled());
        fillType->setCurrentText("Cross");
        QVERIFY(width->Editor()->isEnabled());
        fillType->setCurrentText("Solid");
        QVERIFY(!width->Editor()->isEnabled());
        QCOMPARE(width->flags(), Qt::NoItemFlags);
        fillType->setCurrentText("No fill");
        QVERIFY(width->Editor()->isEnabled());
        QCOMPARE(log.Count(), 3);
        set.SetFillType(1);
        QVERIFY(width->Editor()->isEnabled());
    }

    void thermalTypeGreysTheThermalLine()
    {
        Test::TestBoard board;
        Set set({AddPour(board)}, board.Sides());
        auto* line = Test::RowOf<TPropertyFloatSpin>(&set, "Thermal line:");
        set.ThermalTypeChanged(1);
        QVERIFY(!line->Editor()->isEnabled());
        set.ThermalTypeChanged(0);
        QVERIFY(line->Editor()->isEnabled());
        Test::RowOf<TPropertyCheck>(&set, "Thermal enable:")->SetCurrentState(true);
        QVERIFY(line->Editor()->isEnabled());
    }

    void unshownRowsAreMadeAndConnected()
    {
        Test::TestBoard board;
        Item* pour = AddPour(board);
        pour->SetCompositionMode(3);
        pour->SetAlpha(50);
        pour->SetOnlyConnected(true);
        const Test::UnshownEditors unshown;
        Set set({pour}, board.Sides());
        const Test::CommandLog log(set);

        const auto modes = unshown.Of<QComboBox>(set);
        QCOMPARE(modes.size(), 1);
        QCOMPARE(Test::TextsByPosition(*modes.first()), Test::CompositionModeNames());
        QCOMPARE(modes.first()->currentIndex(), 3);
        modes.first()->setCurrentIndex(37);
        QCOMPARE(pour->CompositionMode(), 37);

        const auto alphas = unshown.Of<QSpinBox>(set);
        QCOMPARE(alphas.size(), 1);
        QCOMPARE(alphas.first()->minimum(), 0);
        QCOMPARE(alphas.first()->maximum(), 255);
        QCOMPARE(alphas.first()->singleStep(), 1);
        QCOMPARE(alphas.first()->value(), 130); // whatever the pours hold
        alphas.first()->setValue(51);
        QCOMPARE(pour->Alpha(), 51);
        QCOMPARE(log.Count(), 0);

        TDoubleSpinBox* border = nullptr;
        QCheckBox* onlyConnected = nullptr;
        for (QWidget* editor : unshown.Of<QWidget>(set)) {
            if (auto* spin = editor->findChild<TDoubleSpinBox*>()) {
                border = spin;
            } else if (auto* box = editor->findChild<QCheckBox*>()) {
                onlyConnected = box;
            }
        }
        QVERIFY(border && onlyConnected);
        QCOMPARE(border->text(), QString("0.40 mm"));
        QCOMPARE(border->maximum(), 100.0);
        border->setValue(0.5);
        QVERIFY(onlyConnected->isChecked());
        onlyConnected->click();
        QCOMPARE(log.Names(), (QStringList{"TCmdPourClBorder", "TCmdPourOnlyConn"}));
    }

    void textsAreTranslated()
    {
        Test::TestBoard board;
        Item* pour = AddPour(board);
        const Test::MarkingTranslator translator;
        const Set one({pour}, board.Sides());
        const Set more({pour, pour}, board.Sides());
        QCOMPARE(one.Name(), QString("~Pour"));
        QCOMPARE(more.Name(), QString("~Pours"));
        QCOMPARE(Test::Untranslated(translator, "TPropertySetForPour",
                                    {"Clearance to etch:", "Clearance to border:", "Clearance to pour:", "Fill type:",
                                     "Line width:", "Minimum area:", "Only connected:", "Priority:", "Thermal enable:",
                                     "Thermal line:", "Thermal isolation:", "Layer:", "Net:", "Alpha", "No fill",
                                     "Solid", "H-Lines", "V-Lines", "Cross"}),
                 QStringList());
        QVERIFY(!translator.WasAsked("TPropertySetForPour", "Comp mode:"));
        QVERIFY(!translator.WasAsked("TPropertySetForPour", "SourceOver"));
    }
};

PROPERTIES_TEST(TestPourSet)
#include "tst_pour.moc"
