#include "tests/support/Observers.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/RowText.h"
#include "tests/support/TestBoard.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyEnum.h"
#include "properties/rows/TPropertySize.h"
#include "properties/rows/TPropertyText.h"
#include "properties/sets/TPropertySetForPad.h"

#include <workspace/TDoubleSpinBox.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

namespace {

using Pad = TGraphicsPadItem;

double Scene(double millimetres)
{
    return millimetres * Test::sceneUnitsPerMillimetre;
}

float SceneF(double millimetres)
{
    return static_cast<float>(Scene(millimetres));
}

Pad* AddPlainPad(Test::TestBoard& board, TGraphicsPackageItem* package = nullptr)
{
    Pad* pad = board.AddThroughPad(1.6, 0.8, package);
    pad->SetNumber("7");
    pad->SetName("GND");
    return pad;
}

const QStringList plainRows = {
    "TPropertyText Number: = 7",
    "TPropertySize Size (W x H): 0.1..100 step 0.1 decimals 2 = 1.60 mm x 1.60 mm, height locked",
    "TPropertyEnum Type: SMT 1, THT 0 = THT",
    "TPropertyFloatSpin Drill: 0.1..10 step 0.1 decimals 1 = 0.8 mm",
    "TPropertyLayer Side: Top 68, Bottom 75 = Top, hidden",
    "TPropertyEnum Shape: Round 1, Rectangle 5, Obround 4, Octagon 3 = Round",
    "TPropertyEnum Thermal: By pour 0, Yes 1, No 2 = By pour",
    "TPropertyFloatSpin Mask: 0..10 step 0.1 decimals 2 = [ ] 0.00 mm",
    "TPropertyFloatSpin Paste: 0..10 step 0.1 decimals 2 = [ ] 0.00 mm",
};

/** The rows of a plain pad that is part of a package. */
QStringList PackageRows()
{
    QStringList rows = Test::WithRows(
        plainRows, {"TPropertyText Number: = 7, read-only", "TPropertyEnum Type: SMT 1, THT 0 = THT, disabled",
                    "TPropertyLayer Side: Top 68, Bottom 75 = Top, disabled, hidden",
                    "TPropertyFloatSpin Mask: 0..10 step 0.1 decimals 2 = [ ] 0.00 mm, disabled",
                    "TPropertyFloatSpin Paste: 0..10 step 0.1 decimals 2 = [ ] 0.00 mm, disabled"});
    rows.insert(1, "TPropertyText Name: = GND, read-only");
    return rows;
}

using ChangePad = void (*)(Pad& pad);

void AddCase(const char* name, ChangePad change, const QStringList& rows)
{
    QTest::newRow(name) << change << rows;
}

} // namespace

Q_DECLARE_METATYPE(ChangePad)

/** What the pad set shows. */
class TestPadSet : public QObject
{
    Q_OBJECT

private slots:
    void nameTellsHowManyWereSelected_data()
    {
        QTest::addColumn<int>("pads");
        QTest::addColumn<int>("vias");
        QTest::addColumn<QString>("name");
        QTest::newRow("one pad") << 1 << 0 << "Pad";
        QTest::newRow("two pads") << 2 << 0 << "Pads";
        QTest::newRow("a pad and a via") << 1 << 1 << "Pads";
        QTest::newRow("one via") << 0 << 1 << "Pad";
        QTest::newRow("two vias") << 0 << 2 << "Pads";
        QTest::newRow("nothing") << 0 << 0 << "Pads";
    }

    void nameTellsHowManyWereSelected()
    {
        QFETCH(int, pads);
        QFETCH(int, vias);
        Test::TestBoard board;
        QList<TGraphicsItem*> items;
        for (int i = 0; i < vias; ++i) {
            items.append(board.AddVia());
        }
        for (int i = 0; i < pads; ++i) {
            items.append(AddPlainPad(board));
        }
        const TPropertySetForPad set(items, board.Sides());
        QTEST(set.Name(), "name");
        QCOMPARE(Test::RowTexts(&set), pads > 0 ? plainRows : QStringList());
    }

    void showsOnePad_data()
    {
        QTest::addColumn<ChangePad>("change");
        QTest::addColumn<QStringList>("rows");
        AddCase("as it is", [](Pad&) {}, {});
        AddCase("number", [](Pad& pad) { pad.SetNumber("A12"); }, {"TPropertyText Number: = A12"});
        AddCase("no number", [](Pad& pad) { pad.SetNumber(""); }, {"TPropertyText Number: = "});
        AddCase("drill", [](Pad& pad) { pad.SetDrill(SceneF(1.1)); },
                {"TPropertyFloatSpin Drill: 0.1..10 step 0.1 decimals 1 = 1.1 mm"});
        AddCase("no drill: clamped", [](Pad& pad) { pad.SetDrill(0); },
                {"TPropertyFloatSpin Drill: 0.1..10 step 0.1 decimals 1 = 0.1 mm"});
        AddCase("surface pad: a side and no drill", [](Pad& pad) { pad.SetTypeSMD(true); },
                {"TPropertyEnum Type: SMT 1, THT 0 = SMT",
                 "TPropertyFloatSpin Drill: 0.1..10 step 0.1 decimals 1 = 0.8 mm, hidden",
                 "TPropertyLayer Side: Top 68, Bottom 75 = Top"});
        AddCase("surface pad on the bottom",
                [](Pad& pad) { pad.SetLayers(Osmirel::CopperBottom, Osmirel::CopperBottom); },
                {"TPropertyEnum Type: SMT 1, THT 0 = SMT",
                 "TPropertyFloatSpin Drill: 0.1..10 step 0.1 decimals 1 = 0.8 mm, hidden",
                 "TPropertyLayer Side: Top 68, Bottom 75 = Bottom"});
        AddCase("surface pad on a layer that is not offered: first in the list",
                [](Pad& pad) { pad.SetLayers(Osmirel::Copper2, Osmirel::Copper2); },
                {"TPropertyEnum Type: SMT 1, THT 0 = SMT",
                 "TPropertyFloatSpin Drill: 0.1..10 step 0.1 decimals 1 = 0.8 mm, hidden",
                 "TPropertyLayer Side: Inner 1 69, Top 68, Bottom 75 = Inner 1"});
        AddCase("through pad that starts at the bottom: the side is its start",
                [](Pad& pad) { pad.SetLayers(Osmirel::CopperBottom, Osmirel::CopperTop); },
                {"TPropertyLayer Side: Top 68, Bottom 75 = Bottom, hidden"});
        AddCase("rectangle: open height",
                [](Pad& pad) {
                    pad.SetPadShape(Pad::ShapeRectangle);
                    pad.SetSize(Scene(2.25), Scene(0.75));
                },
                {"TPropertySize Size (W x H): 0.1..100 step 0.1 decimals 2 = 2.25 mm x 0.75 mm",
                 "TPropertyEnum Shape: Round 1, Rectangle 5, Obround 4, Octagon 3 = Rectangle"});
        AddCase("obround: its own height, not twice the width",
                [](Pad& pad) {
                    pad.SetPadShape(Pad::ShapeObround);
                    pad.SetSize(Scene(2), Scene(0.75));
                },
                {"TPropertySize Size (W x H): 0.1..100 step 0.1 decimals 2 = 2.00 mm x 0.75 mm, height locked",
                 "TPropertyEnum Shape: Round 1, Rectangle 5, Obround 4, Octagon 3 = Obround"});
        AddCase("octagon: its own height, not the width",
                [](Pad& pad) {
                    pad.SetPadShape(Pad::ShapeOctagon);
                    pad.SetSize(Scene(1), Scene(3));
                },
                {"TPropertySize Size (W x H): 0.1..100 step 0.1 decimals 2 = 1.00 mm x 3.00 mm, height locked",
                 "TPropertyEnum Shape: Round 1, Rectangle 5, Obround 4, Octagon 3 = Octagon"});
        AddCase("round, not as high as wide: its own height", [](Pad& pad) { pad.SetSize(Scene(1), Scene(0.5)); },
                {"TPropertySize Size (W x H): 0.1..100 step 0.1 decimals 2 = 1.00 mm x 0.50 mm, height locked"});
        AddCase("square: not offered", [](Pad& pad) { pad.SetPadShape(Pad::ShapeSquare); },
                {"TPropertyEnum Shape: Round 1, Rectangle 5, Obround 4, Octagon 3 = none"});
        AddCase("long octagon: not offered", [](Pad& pad) { pad.SetPadShape(Pad::ShapeLongOctagon); },
                {"TPropertyEnum Shape: Round 1, Rectangle 5, Obround 4, Octagon 3 = none"});
        AddCase("thermal", [](Pad& pad) { pad.SetThermal(Pad::ThermalNo); },
                {"TPropertyEnum Thermal: By pour 0, Yes 1, No 2 = No"});
        AddCase("mask",
                [](Pad& pad) {
                    pad.SetMaskEnabled(true);
                    pad.SetMaskClearance(SceneF(0.15));
                },
                {"TPropertyFloatSpin Mask: 0..10 step 0.1 decimals 2 = [x] 0.15 mm"});
        AddCase("paste",
                [](Pad& pad) {
                    pad.SetPasteEnabled(true);
                    pad.SetPasteClearance(SceneF(1.25));
                },
                {"TPropertyFloatSpin Paste: 0..10 step 0.1 decimals 2 = [x] 1.25 mm"});
        AddCase("negative clearances: clamped",
                [](Pad& pad) {
                    pad.SetMaskClearance(SceneF(-0.2));
                    pad.SetPasteClearance(SceneF(-0.2));
                },
                {});
    }

    void showsOnePad()
    {
        QFETCH(ChangePad, change);
        QFETCH(QStringList, rows);
        Test::TestBoard board;
        Pad* pad = AddPlainPad(board);
        change(*pad);
        const TPropertySetForPad set({pad}, board.Sides());
        QCOMPARE(Test::RowTexts(&set), Test::WithRows(plainRows, rows));
    }

    void showsWhatTheSecondPadLeavesShared_data()
    {
        QTest::addColumn<ChangePad>("change");
        QTest::addColumn<QStringList>("rows");
        AddCase("nothing differs", [](Pad&) {}, {});
        AddCase("number", [](Pad& pad) { pad.SetNumber("8"); }, {"TPropertyText Number: = "});
        AddCase("width: the first's", [](Pad& pad) { pad.SetWidth(Scene(5)); }, {});
        AddCase("height: the first's", [](Pad& pad) { pad.SetHeight(Scene(5)); }, {});
        AddCase("drill: the first's", [](Pad& pad) { pad.SetDrill(SceneF(5)); }, {});
        AddCase("mask clearance: the first's", [](Pad& pad) { pad.SetMaskClearance(5); }, {});
        AddCase("paste clearance: the first's", [](Pad& pad) { pad.SetPasteClearance(5); }, {});
        AddCase("type: neither drill nor side", [](Pad& pad) { pad.SetTypeSMD(true); },
                {"TPropertyEnum Type: SMT 1, THT 0 = none",
                 "TPropertyFloatSpin Drill: 0.1..10 step 0.1 decimals 1 = 0.8 mm, hidden",
                 "TPropertyLayer Side: Top 68, Bottom 75 = Top, hidden"});
        AddCase("start layer", [](Pad& pad) { pad.SetLayers(Osmirel::CopperBottom, Osmirel::CopperTop); },
                {"TPropertyLayer Side: Top 68, Bottom 75 = none, hidden"});
        AddCase("end layer alone: nothing", [](Pad& pad) { pad.SetLayers(Osmirel::CopperTop, Osmirel::Copper3); }, {});
        AddCase("shape: open height", [](Pad& pad) { pad.SetPadShape(Pad::ShapeObround); },
                {"TPropertySize Size (W x H): 0.1..100 step 0.1 decimals 2 = 1.60 mm x 1.60 mm",
                 "TPropertyEnum Shape: Round 1, Rectangle 5, Obround 4, Octagon 3 = none"});
        AddCase("thermal", [](Pad& pad) { pad.SetThermal(Pad::ThermalYes); },
                {"TPropertyEnum Thermal: By pour 0, Yes 1, No 2 = none"});
        AddCase("name: not shown at all", [](Pad& pad) { pad.SetName("VCC"); }, {});
        AddCase("mask enable: unchecked", [](Pad& pad) { pad.SetMaskEnabled(true); }, {});
        AddCase("paste enable: unchecked", [](Pad& pad) { pad.SetPasteEnabled(true); }, {});
    }

    void showsWhatTheSecondPadLeavesShared()
    {
        QFETCH(ChangePad, change);
        QFETCH(QStringList, rows);
        Test::TestBoard board;
        Pad* first = AddPlainPad(board);
        Pad* second = AddPlainPad(board);
        Pad* third = AddPlainPad(board);
        change(*second);
        const TPropertySetForPad set({board.AddVia(), first, second, third}, board.Sides());
        QCOMPARE(Test::RowTexts(&set), Test::WithRows(plainRows, rows));
    }

    void enablesOfTheFirstOnlyAreNotShown()
    {
        Test::TestBoard board;
        Pad* first = AddPlainPad(board);
        Pad* second = AddPlainPad(board);
        first->SetMaskEnabled(true);
        first->SetPasteEnabled(true);
        const TPropertySetForPad set({first, second}, board.Sides());
        QCOMPARE(Test::RowTexts(&set), plainRows);
    }

    void surfacePadsOnBothSidesShowTheSideRow()
    {
        Test::TestBoard board;
        Pad* top = AddPlainPad(board);
        Pad* bottom = AddPlainPad(board);
        top->SetLayers(Osmirel::CopperTop, Osmirel::CopperTop);
        bottom->SetLayers(Osmirel::CopperBottom, Osmirel::CopperBottom);
        const TPropertySetForPad set({top, bottom}, board.Sides());
        QCOMPARE(Test::RowTexts(&set),
                 Test::WithRows(plainRows, {"TPropertyEnum Type: SMT 1, THT 0 = SMT",
                                            "TPropertyFloatSpin Drill: 0.1..10 step 0.1 decimals 1 = 0.8 mm, hidden",
                                            "TPropertyLayer Side: Top 68, Bottom 75 = none"}));
    }

    void padsOfPackagesKeepWhatThePackageGives_data()
    {
        QTest::addColumn<bool>("firstInPackage");
        QTest::addColumn<bool>("secondInPackage");
        QTest::newRow("both") << true << true;
        QTest::newRow("only the first") << true << false;
        QTest::newRow("only the second") << false << true;
    }

    void padsOfPackagesKeepWhatThePackageGives()
    {
        QFETCH(bool, firstInPackage);
        QFETCH(bool, secondInPackage);
        Test::TestBoard board;
        TGraphicsPackageItem* package = board.AddPackage();
        Pad* first = AddPlainPad(board, firstInPackage ? package : nullptr);
        Pad* second = AddPlainPad(board, secondInPackage ? package : nullptr);
        const TPropertySetForPad set({first, second}, board.Sides());
        QCOMPARE(Test::RowTexts(&set), PackageRows());
    }

    void namesOfPackagePadsAreShownWhenShared()
    {
        Test::TestBoard board;
        TGraphicsPackageItem* package = board.AddPackage();
        Pad* first = AddPlainPad(board, package);
        Pad* second = AddPlainPad(board, package);
        second->SetName("VCC");
        const TPropertySetForPad set({first, second}, board.Sides());
        QCOMPARE(Test::RowTexts(&set), Test::WithRows(PackageRows(), {"TPropertyText Name: = , read-only"}));
    }

    void surfacePadOfAPackageHasADisabledSide()
    {
        Test::TestBoard board;
        Pad* pad = AddPlainPad(board, board.AddPackage());
        pad->SetTypeSMD(true);
        const TPropertySetForPad set({pad}, board.Sides());
        QCOMPARE(
            Test::RowTexts(&set),
            Test::WithRows(PackageRows(), {"TPropertyEnum Type: SMT 1, THT 0 = SMT, disabled",
                                           "TPropertyFloatSpin Drill: 0.1..10 step 0.1 decimals 1 = 0.8 mm, hidden",
                                           "TPropertyLayer Side: Top 68, Bottom 75 = Top, disabled"}));
    }

    void readOnlyTextsDoNotOpen_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<bool>("inPackage");
        QTest::addColumn<bool>("opens");
        QTest::newRow("number of a free pad") << "Number:" << false << true;
        QTest::newRow("number of a package's pad") << "Number:" << true << false;
        QTest::newRow("name of a package's pad") << "Name:" << true << false;
    }

    void readOnlyTextsDoNotOpen()
    {
        QFETCH(QString, label);
        QFETCH(bool, inPackage);
        Test::TestBoard board;
        Test::PanelWindow place;
        auto* set =
            new TPropertySetForPad({AddPlainPad(board, inPackage ? board.AddPackage() : nullptr)}, board.Sides());
        place.Show(set);
        const TLineEdit* line = Test::RowOf<TPropertyText>(set, label)->line;
        QVERIFY(line->label->isVisible());
        QTest::mouseDClick(line->label, Qt::LeftButton);
        QTEST(line->edit->isVisible(), "opens");
    }

    void rowsThatArePartOfAPackageStayDisabledInThePanel()
    {
        Test::TestBoard board;
        Test::PanelWindow place;
        auto* set = new TPropertySetForPad({AddPlainPad(board, board.AddPackage())}, board.Sides());
        place.Show(set);
        QStringList disabled;
        for (const TAbstractProperty* row : set->Properties()) {
            QCOMPARE(row->flags(), Qt::ItemIsEnabled);
            if (!row->Editor()->isEnabled()) {
                disabled.append(row->text(1));
            }
        }
        QCOMPARE(disabled, (QStringList{"Type:", "Side:", "Mask:", "Paste:"}));
    }

    void hiddenRowsAreHiddenInThePanel()
    {
        Test::TestBoard board;
        Test::PanelWindow place;
        auto* set = new TPropertySetForPad({AddPlainPad(board)}, board.Sides());
        place.Show(set);
        QVERIFY(Test::FindRow(set, "Side:")->QTreeWidgetItem::isHidden());
        QVERIFY(!Test::FindRow(set, "Drill:")->QTreeWidgetItem::isHidden());
    }

    void choosingATypeShowsItsRows_data()
    {
        QTest::addColumn<QString>("choice");
        QTest::addColumn<bool>("drill");
        QTest::addColumn<bool>("side");
        QTest::newRow("THT") << "THT" << true << false;
        QTest::newRow("SMT, the first item") << "SMT" << false << true;
    }

    void choosingATypeShowsItsRows()
    {
        QFETCH(QString, choice);
        Test::TestBoard board;
        Test::PanelWindow place;
        Pad* surface = AddPlainPad(board);
        surface->SetTypeSMD(true);
        auto* set = new TPropertySetForPad({AddPlainPad(board), surface}, board.Sides());
        place.Show(set);
        const TAbstractProperty* drill = Test::FindRow(set, "Drill:");
        const TAbstractProperty* side = Test::FindRow(set, "Side:");
        QVERIFY(drill->QTreeWidgetItem::isHidden() && side->QTreeWidgetItem::isHidden());
        const Test::CommandLog log(*set);
        Test::RowOf<TPropertyEnum>(set, "Type:")->Box()->setCurrentText(choice);
        QTEST(!drill->QTreeWidgetItem::isHidden(), "drill");
        QTEST(!side->QTreeWidgetItem::isHidden(), "side");
        QCOMPARE(log.Names(), QStringList{"TCmdPadType"});
    }

    void typeSlotShowsRows_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("drill");
        QTest::addColumn<bool>("side");
        QTest::newRow("THT") << 0 << true << false;
        QTest::newRow("SMT") << 1 << false << true;
        QTest::newRow("any other number") << 2 << false << false;
    }

    void typeSlotShowsRows()
    {
        QFETCH(int, type);
        Test::TestBoard board;
        TPropertySetForPad set({AddPlainPad(board)}, board.Sides());
        const Test::CommandLog log(set);
        set.TypeChanged(type);
        QTEST(!Test::FindRow(&set, "Drill:")->IsHidden(), "drill");
        QTEST(!Test::FindRow(&set, "Side:")->IsHidden(), "side");
        QCOMPARE(log.Count(), 0);
    }

    void onlyARectanglesHeightIsOpen_data()
    {
        QTest::addColumn<int>("shape");
        QTest::addColumn<bool>("open");
        QTest::addColumn<QString>("followingHeight");
        QTest::newRow("round") << 1 << false << "4.00 mm";
        QTest::newRow("square") << 2 << false << "4.00 mm";
        QTest::newRow("octagon") << 3 << false << "4.00 mm";
        QTest::newRow("obround: doubled") << 4 << false << "8.00 mm";
        QTest::newRow("rectangle") << 5 << true << "1.60 mm";
        QTest::newRow("long octagon") << 6 << false << "4.00 mm";
    }

    void onlyARectanglesHeightIsOpen()
    {
        QFETCH(int, shape);
        Test::TestBoard board;
        TPropertySetForPad set({AddPlainPad(board)}, board.Sides());
        auto* size = Test::RowOf<TPropertySize>(&set, "Size (W x H):");
        set.ShapeChanged(5);
        size->height->setValue(1.6);
        set.ShapeChanged(shape);
        QTEST(size->height->isEnabled(), "open");
        size->width->setValue(4);
        QTEST(size->height->text(), "followingHeight");
    }

    void unitIsTheWorkspaces_data()
    {
        QTest::addColumn<int>("unit");
        QTest::addColumn<QStringList>("rows");
        QTest::newRow("mils") << int(TWorkspace::Unit::Mil)
                              << QStringList{
                                     "TPropertySize Size (W x H): 0.1..100 step 0.1 decimals 2 = 62.99 mil x 62.99 mil,"
                                     " height locked",
                                     "TPropertyFloatSpin Drill: 0.1..10 step 0.1 decimals 1 = 10.0 mil",
                                     "TPropertyFloatSpin Mask: 0..10 step 0.1 decimals 2 = [ ] 5.91 mil",
                                     "TPropertyFloatSpin Paste: 0..10 step 0.1 decimals 2 = [ ] 7.87 mil"};
        QTest::newRow("inches") << int(TWorkspace::Unit::Inch)
                                << QStringList{
                                       "TPropertySize Size (W x H): 0.1..100 step 0.1 decimals 2 = 0.10 in x 0.10 in,"
                                       " height locked",
                                       "TPropertyFloatSpin Drill: 0.1..10 step 0.1 decimals 1 = 0.1 in",
                                       "TPropertyFloatSpin Mask: 0..10 step 0.1 decimals 2 = [ ] 0.01 in",
                                       "TPropertyFloatSpin Paste: 0..10 step 0.1 decimals 2 = [ ] 0.01 in"};
    }

    void unitIsTheWorkspaces()
    {
        QFETCH(int, unit);
        QFETCH(QStringList, rows);
        Test::TestBoard board;
        Test::TestBoard other;
        board.Workspace()->SetCurrentUnit(static_cast<TWorkspace::Unit>(unit));
        Pad* pad = AddPlainPad(board);
        pad->SetMaskClearance(SceneF(0.15));
        pad->SetPasteClearance(SceneF(0.2));
        const TPropertySetForPad set({other.AddVia(), pad, AddPlainPad(other)}, board.Sides());
        QCOMPARE(Test::RowTexts(&set), Test::WithRows(plainRows, rows));
    }

    void padWithoutAWorkspaceShowsMillimetres()
    {
        Pad pad;
        pad.SetSize(Scene(1.6), Scene(1.6));
        pad.SetDrill(SceneF(0.8));
        pad.SetNumber("7");
        const TPropertySetForPad set({&pad}, {Osmirel::CopperTop, Osmirel::CopperBottom});
        const QString side = Test::RowTexts(&set).value(4);
        QVERIFY(side.startsWith("TPropertyLayer Side:") && side.endsWith(", hidden"));
        QCOMPARE(Test::RowTexts(&set), Test::WithRows(plainRows, {side}));
    }

    void sidesAreOfferedInTheGivenOrder()
    {
        Test::TestBoard board;
        const TPropertySetForPad set({AddPlainPad(board)},
                                     {Osmirel::CopperBottom, Osmirel::Copper3, Osmirel::CopperTop});
        QCOMPARE(Test::RowTexts(&set).value(4),
                 QString("TPropertyLayer Side: Bottom 75, Inner 2 70, Top 68 = Top, hidden"));
    }

    void textsAreTranslated()
    {
        Test::TestBoard board;
        const Test::MarkingTranslator translator;
        const TPropertySetForPad one({AddPlainPad(board, board.AddPackage())}, board.Sides());
        const TPropertySetForPad none({}, board.Sides());
        QCOMPARE(one.Name(), QString("~Pad"));
        QCOMPARE(none.Name(), QString("~Pads"));
        QStringList expected;
        for (const char* label : {"Number:", "Name:", "Size (W x H):", "Type:", "Drill:", "Side:", "Shape:", "Thermal:",
                                  "Mask:", "Paste:"}) {
            expected.append(Test::MarkingTranslator::Marked(label));
            QVERIFY(translator.WasAsked("TPropertySetForPad", label));
        }
        QCOMPARE(Test::Labels(&one), expected);
        for (const char* choice : {"SMT", "THT", "Round", "Rectangle", "Obround", "Octagon", "By pour", "Yes", "No"}) {
            QVERIFY(translator.WasAsked("TPropertySetForPad", choice));
        }
        QVERIFY(Test::RowTexts(&one).value(3).startsWith("TPropertyEnum ~Type: ~SMT 1, ~THT 0 = ~THT"));
    }
};

PROPERTIES_TEST(TestPadSet)
#include "tst_pad.moc"
