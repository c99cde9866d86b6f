#include "tests/sets/SetSupport.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/RowText.h"
#include "tests/support/SlotLaw.h"
#include "tests/support/TestProgram.h"

#include "properties/rows/TPropertyColor.h"
#include "properties/rows/TPropertyFloatSpin.h"
#include "properties/sets/TPropertySetForPrimitives.h"

#include <graphics/TGraphicsArcItem.h>
#include <graphics/TGraphicsEllipseItem.h>
#include <graphics/TGraphicsLineItem.h>
#include <graphics/TGraphicsPolygonItem.h>
#include <graphics/TGraphicsPolylineItem.h>
#include <workspace/TDoubleSpinBox.h>

namespace {

using Test::Scene;
using Test::SceneF;
using Set = TPropertySetForPrimitives;
using Item = TGraphicsPenItem;

const QList<Osmirel::Layer> layers{Osmirel::PackagesTop, Osmirel::PackagesBottom};

template <class Kind>
Item* Add(Test::TestBoard& board)
{
    auto* item = Test::Place<Kind>(board);
    item->SetLayer(Osmirel::PackagesTop);
    item->SetPenWidth(SceneF(0.2));
    if constexpr (std::is_base_of_v<TGraphicsRectItem, Kind>) {
        item->SetSize(SceneF(4), SceneF(3));
    } else if constexpr (std::is_same_v<TGraphicsLineItem, Kind>) {
        item->SetLine({0, 0, Scene(3), Scene(4)});
    } else if constexpr (std::is_same_v<TGraphicsArcItem, Kind>) {
        item->SetArc(Scene(1), 0, 90);
    } else {
        item->SetPoints(QPolygonF(QRectF(0, 0, 10, 10)));
    }
    return item;
}

QBrush* BrushOf(Item& item)
{
    if (auto* rect = dynamic_cast<TGraphicsRectItem*>(&item)) {
        return &rect->Brush();
    }
    auto* polygon = dynamic_cast<TGraphicsPolygonItem*>(&item);
    return polygon ? &polygon->Brush() : nullptr;
}

/** One drawing of each kind that the set keeps, no two alike, and items of other kinds before and between them. */
struct Drawings
{
    using Set = ::Set;
    using Item = ::Item;

    Drawings()
    {
        Item* polyline = Add<TGraphicsPolylineItem>(board);
        polyline->SetTFlag(TGraphicsItem::UndoBypass, true);
        items = {Add<TGraphicsLineItem>(board), Add<TGraphicsRectItem>(board), Add<TGraphicsEllipseItem>(board),
                 Add<TGraphicsPolygonItem>(board), Add<TGraphicsArcItem>(board)};
        items[1]->SetPenWidth(7);
        items[2]->Pen().setStyle(Qt::DashLine);
        BrushOf(*items[2])->setStyle(Qt::HorPattern);
        items[3]->SetLayer(Osmirel::PackagesBottom);
        items[4]->SetAltColor(Qt::red);
        selection = {polyline, items[0], items[1], board.AddVia(), items[2], items[3], items[4]};
    }

    Set* MakeSet() { return new Set(selection, layers); }

    Test::TestBoard board;
    QList<Item*> items;
    QList<TGraphicsItem*> selection;
};

QComboBox* BoxOf(Set& set, const char* label)
{
    return qobject_cast<QComboBox*>(Test::FindRow(&set, label)->Editor());
}

void SetBrush(Item& item, Qt::BrushStyle style)
{
    if (QBrush* brush = BrushOf(item)) {
        brush->setStyle(style);
    }
}

const Test::SlotCase<Drawings> slotCases[] = {
    {"line width, in single precision", [](Set& set) { set.slotSetLineWidth(1.7); },
     [](Set& set) { Test::RowOf<TPropertyFloatSpin>(&set, "Line width:")->spin->setValue(1.7); }, "TCmdPenWidth",
     [](Item& item) { item.SetPenWidth(SceneF(1.7)); }, nullptr, nullptr},
    {"line style", [](Set& set) { set.slotSetLineStyle(Qt::DotLine); },
     [](Set& set) { BoxOf(set, "Line style:")->setCurrentText("Dot"); }, "TCmdPenStyle",
     [](Item& item) { item.Pen().setStyle(Qt::DotLine); }, nullptr, nullptr},
    {"fill style that there is not", [](Set& set) { set.slotSetFillStyle(99); }, nullptr, "TCmdBrushStyle", nullptr,
     nullptr, nullptr},
    {"fill style, of closed shapes", [](Set& set) { set.slotSetFillStyle(8); },
     [](Set& set) { BoxOf(set, "Fill style:")->setCurrentText("Points"); }, "TCmdBrushStyle",
     [](Item& item) { SetBrush(item, Qt::Dense7Pattern); }, nullptr, nullptr},
    {"layer", [](Set& set) { set.slotSetLayer(Osmirel::PackagesBottom); },
     [](Set& set) { BoxOf(set, "Layer:")->setCurrentText("Packages bottom"); }, "TCmdLayerPrim",
     [](Item& item) { item.SetLayer(Osmirel::PackagesBottom); }, nullptr, nullptr},
    {"default colour", [](Set& set) { set.slotSetColor(QColor()); }, nullptr, "TCmdUserColor",
     [](Item& item) { item.SetAltColor(QColor()); }, nullptr, nullptr},
    {"colour", [](Set& set) { set.slotSetColor(QColor("#0066FF")); }, nullptr, "TCmdUserColor",
     [](Item& item) { item.SetAltColor(QColor("#0066FF")); }, nullptr, nullptr},
};

/** The row is there only where undo is not bypassed. */
const Test::SlotCase<Drawings> colorRowCases[] = {
    {"colour", [](Set& set) { set.slotSetColor(QColor("#0066FF")); },
     [](Set& set) { BoxOf(set, "Color:")->setCurrentText("#0066FF"); }, "TCmdUserColor",
     [](Item& item) { item.SetAltColor(QColor("#0066FF")); }, nullptr, nullptr},
};

QString FillRow(const char* shown)
{
    return QStringLiteral("TPropertyEnum Fill style: No fill 0, Solid 1, Points 8, Horiz. 9, Vert. 10, Cross 11, "
                          "Diag. Fwd 13, Diag. Bck 12, Diag. Cross 14 = ")
           + shown;
}

QString StyleRow(const char* shown)
{
    return QStringLiteral("TPropertyPenStyle Line style: Solid 1, Dash 2, Dot 3, Dash dot 4, Dash dot dot 5, None 0 = ")
           + shown;
}

const QString widthRow = "TPropertyFloatSpin Line width: 0..9999.99 step 0.1 decimals 2 = 0.20 mm";
const QString layerRow = "TPropertyLayer Layer: Packages top 59, Packages bottom 84 = Packages top";
const QString colorRow = "TPropertyColor Color: 23 colours = Default";
const QString sizeRow = "TPropertySize Size: 0..9999 step 1 decimals 2 = 4.00 mm x 3.00 mm, height locked, disabled";
const QString lengthRow = "TPropertyText Length: = 5.00 mm, disabled";

QStringList RowsOfRectangle()
{
    return {widthRow, StyleRow("Solid"), FillRow("No fill"), layerRow, colorRow, sizeRow};
}

using AddItem = Item* (*)(Test::TestBoard& board);
using ChangeItem = void (*)(Item& item);

} // namespace

Q_DECLARE_METATYPE(AddItem)
Q_DECLARE_METATYPE(ChangeItem)
Q_DECLARE_METATYPE(const Test::SlotCase<Drawings>*)

class TestPrimitivesSet : public QObject
{
    Q_OBJECT

private slots:
    void rowsDependOnTheKind_data()
    {
        QTest::addColumn<AddItem>("add");
        QTest::addColumn<QStringList>("rows");
        const QStringList open{widthRow, StyleRow("Solid"), layerRow, colorRow};
        QStringList closed = open;
        closed.insert(2, FillRow("No fill"));
        QTest::newRow("line") << AddItem(Add<TGraphicsLineItem>) << open + QStringList{lengthRow};
        QTest::newRow("rectangle") << AddItem(Add<TGraphicsRectItem>) << closed + QStringList{sizeRow};
        QTest::newRow("ellipse") << AddItem(Add<TGraphicsEllipseItem>) << closed + QStringList{sizeRow};
        QTest::newRow("polygon") << AddItem(Add<TGraphicsPolygonItem>) << closed;
        QTest::newRow("arc") << AddItem(Add<TGraphicsArcItem>) << open;
        QTest::newRow("polyline: not kept") << AddItem(Add<TGraphicsPolylineItem>) << QStringList();
    }

    void rowsDependOnTheKind()
    {
        QFETCH(AddItem, add);
        Test::TestBoard board;
        const Set set({add(board)}, layers);
        QTEST(Test::RowTexts(&set), "rows");
        QCOMPARE(set.Name(), QString("Primitive"));
    }

    void severalHaveNeitherSizeNorLength_data()
    {
        QTest::addColumn<AddItem>("add");
        QTest::addColumn<QStringList>("rows");
        QTest::newRow("lines") << AddItem(Add<TGraphicsLineItem>)
                               << QStringList{widthRow, StyleRow("Solid"), layerRow, colorRow};
        QTest::newRow("rectangles") << AddItem(Add<TGraphicsRectItem>)
                                    << QStringList{widthRow, StyleRow("Solid"), FillRow("No fill"), layerRow, colorRow};
    }

    void severalHaveNeitherSizeNorLength()
    {
        QFETCH(AddItem, add);
        Test::TestBoard board;
        const Set set({add(board), add(board)}, layers);
        QTEST(Test::RowTexts(&set), "rows");
        QCOMPARE(set.Name(), QString("Primitives"));
    }

    void measuresAreForTheOnlyOneThatIsKept()
    {
        Test::TestBoard board;
        const Set set({board.AddVia(), Add<TGraphicsRectItem>(board), Add<TGraphicsPolylineItem>(board)}, layers);
        QCOMPARE(Test::RowTexts(&set), RowsOfRectangle());
        QCOMPARE(set.Name(), QString("Primitives"));
    }

    void showsOneRectangle_data()
    {
        QTest::addColumn<ChangeItem>("change");
        QTest::addColumn<QStringList>("rows");
        const auto add = [](const char* name, ChangeItem change, const QStringList& rows) {
            QTest::newRow(name) << change << rows;
        };
        add("line width", [](Item& item) { item.SetPenWidth(SceneF(1.25)); },
            {"TPropertyFloatSpin Line width: 0..9999.99 step 0.1 decimals 2 = 1.25 mm"});
        add("line width in mils, called millimetres",
            [](Item& item) { item.Workspace()->SetCurrentUnit(TWorkspace::Unit::Mil); },
            {"TPropertyFloatSpin Line width: 0..9999.99 step 0.1 decimals 2 = 7.87 mm"});
        add("line style", [](Item& item) { item.Pen().setStyle(Qt::DashDotDotLine); }, {StyleRow("Dash dot dot")});
        add("no line", [](Item& item) { item.Pen().setStyle(Qt::NoPen); }, {StyleRow("None")});
        add("fill forwards", [](Item& item) { SetBrush(item, Qt::FDiagPattern); }, {FillRow("Diag. Fwd")});
        add("fill backwards", [](Item& item) { SetBrush(item, Qt::BDiagPattern); }, {FillRow("Diag. Bck")});
        add("fill that is not offered", [](Item& item) { SetBrush(item, Qt::Dense1Pattern); }, {FillRow("none")});
        add("layer", [](Item& item) { item.SetLayer(Osmirel::PackagesBottom); },
            {"TPropertyLayer Layer: Packages top 59, Packages bottom 84 = Packages bottom"});
        add("colour", [](Item& item) { item.SetAltColor(QColor("#123456")); },
            {"TPropertyColor Color: 24 colours = #123456"});
        add("negative size", [](Item& item) { static_cast<TGraphicsRectItem&>(item).SetSize(SceneF(-4), SceneF(-3)); },
            {});
        add("size that looks the same from a rotation", [](Item& item) { item.setRotation(90); }, {});
    }

    void showsOneRectangle()
    {
        QFETCH(ChangeItem, change);
        QFETCH(QStringList, rows);
        Test::TestBoard board;
        Item* item = Add<TGraphicsRectItem>(board);
        change(*item);
        const Set set({item}, layers);
        QCOMPARE(Test::RowTexts(&set), Test::WithRows(RowsOfRectangle(), rows));
    }

    void showsWhatTheSecondRectangleLeavesShared_data()
    {
        QTest::addColumn<ChangeItem>("change");
        QTest::addColumn<QStringList>("rows");
        const auto add = [](const char* name, ChangeItem change, const QStringList& rows) {
            QTest::newRow(name) << change << rows;
        };
        add("nothing differs", [](Item&) {}, {});
        add("line width: the first's", [](Item& item) { item.SetPenWidth(20); }, {});
        add("line style", [](Item& item) { item.Pen().setStyle(Qt::DashLine); }, {StyleRow("none")});
        add("fill style", [](Item& item) { SetBrush(item, Qt::CrossPattern); }, {FillRow("none")});
        add("layer", [](Item& item) { item.SetLayer(Osmirel::PackagesBottom); },
            {"TPropertyLayer Layer: Packages top 59, Packages bottom 84 = none"});
        add("colour: default", [](Item& item) { item.SetAltColor(Qt::red); }, {});
    }

    void showsWhatTheSecondRectangleLeavesShared()
    {
        QFETCH(ChangeItem, change);
        QFETCH(QStringList, rows);
        Test::TestBoard board;
        Item* second = Add<TGraphicsRectItem>(board);
        change(*second);
        QStringList expected = RowsOfRectangle();
        expected.removeLast();
        const Set set({Add<TGraphicsRectItem>(board), second, Add<TGraphicsRectItem>(board)}, layers);
        QCOMPARE(Test::RowTexts(&set), Test::WithRows(expected, rows));
    }

    void mixedColorShowsDefault()
    {
        Test::TestBoard board;
        Item* first = Add<TGraphicsLineItem>(board);
        first->SetAltColor(Qt::red);
        const Set set({first, Add<TGraphicsLineItem>(board)}, layers);
        QCOMPARE(Test::RowTexts(&set).last(), colorRow);
    }

    void fillStyleIsComparedAmongClosedShapes()
    {
        Test::TestBoard board;
        Item* polygon = Add<TGraphicsPolygonItem>(board);
        SetBrush(*polygon, Qt::CrossPattern);
        const Set one({Add<TGraphicsLineItem>(board), polygon, Add<TGraphicsArcItem>(board)}, layers);
        QCOMPARE(Test::RowTexts(&one).value(2), FillRow("Cross"));
        const Set two({Add<TGraphicsLineItem>(board), polygon, Add<TGraphicsRectItem>(board)}, layers);
        QCOMPARE(Test::RowTexts(&two).value(2), FillRow("none"));
    }

    void lineLengthIsInMillimetres_data()
    {
        QTest::addColumn<QLineF>("line");
        QTest::addColumn<QString>("row");
        QTest::newRow("point") << QLineF(1, 1, 1, 1) << "TPropertyText Length: = 0.00 mm, disabled";
        QTest::newRow("leftwards") << QLineF(0, 0, -Scene(12.345), 0) << "TPropertyText Length: = 12.35 mm, disabled";
        QTest::newRow("long") << QLineF(0, 0, Scene(20000), 0) << "TPropertyText Length: = 20000.00 mm, disabled";
    }

    void lineLengthIsInMillimetres()
    {
        QFETCH(QLineF, line);
        Test::TestBoard board;
        board.Workspace()->SetCurrentUnit(TWorkspace::Unit::Inch);
        auto* item = static_cast<TGraphicsLineItem*>(Add<TGraphicsLineItem>(board));
        item->SetLine(line);
        const Set set({item}, layers);
        QTEST(Test::RowTexts(&set).last(), "row");
    }

    void layerRowNeedsTwoLayers()
    {
        Test::TestBoard board;
        Item* line = Add<TGraphicsLineItem>(board);
        const QStringList labels{"Line width:", "Line style:", "Color:", "Length:"};
        const Set one({line}, {Osmirel::PackagesTop});
        const Set none({line}, {});
        QCOMPARE(Test::Labels(&one), labels);
        QCOMPARE(Test::Labels(&none), labels);
    }

    void noColorRowWhereTheFirstBypassesUndo()
    {
        Test::TestBoard board;
        Item* first = Add<TGraphicsLineItem>(board);
        Item* second = Add<TGraphicsLineItem>(board);
        second->SetTFlag(TGraphicsItem::UndoBypass, true);
        const QStringList labels{"Line width:", "Line style:", "Layer:"};
        const Set secondBypasses({first, second}, layers);
        QCOMPARE(Test::Labels(&secondBypasses), labels + QStringList{"Color:"});
        const Set firstBypasses({second, first}, layers);
        QCOMPARE(Test::Labels(&firstBypasses), labels);
    }

    void withoutDrawingsThereAreNoRows()
    {
        Test::TestBoard board;
        for (const QList<TGraphicsItem*>& selection :
             {QList<TGraphicsItem*>(), QList<TGraphicsItem*>{board.AddVia(), board.AddHole()}}) {
            Set set(selection, layers);
            const Test::CommandLog log(set);
            set.slotSetLineWidth(1);
            set.slotSetColor(Qt::red);
            QVERIFY(set.Properties().isEmpty());
            QCOMPARE(set.Name(), QString("Primitives"));
            QCOMPARE(log.Count(), 0);
        }
        QCOMPARE(Set({board.AddVia()}, layers).Name(), QString("Primitive"));
    }

    void slotMakesACommand_data() { Test::AddSlotRows(slotCases); }

    void slotMakesACommand()
    {
        QFETCH(const Test::SlotCase<Drawings>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Drawings>(*slot, {byRow, {}}).CheckCommand();
        Test::SlotLaw<Drawings>(*slot, {byRow, {1, 2}}).CheckCommand();
    }

    void colorRowMakesACommand_data() { Test::AddSlotRows(colorRowCases); }

    void colorRowMakesACommand()
    {
        QFETCH(const Test::SlotCase<Drawings>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Drawings>(*slot, {byRow, {}}).CheckCommand();
    }

    void slotWritesAtOnceWhereTheFirstBypassesUndo_data() { Test::AddSlotRows(slotCases); }

    void slotWritesAtOnceWhereTheFirstBypassesUndo()
    {
        QFETCH(const Test::SlotCase<Drawings>*, slot);
        QFETCH(bool, byRow);
        Test::SlotLaw<Drawings>(*slot, {byRow, {0}}).CheckDirectWrite();
        Test::SlotLaw<Drawings>(*slot, {byRow, {0, 1, 2}}).CheckDirectWrite();
    }

    void partsAreChangedByDirectWritesOnly_data()
    {
        QTest::addColumn<bool>("bypass");
        QTest::newRow("commands") << false;
        QTest::newRow("written at once: parts too") << true;
    }

    void partsAreChangedByDirectWritesOnly()
    {
        QFETCH(bool, bypass);
        Test::TestBoard board;
        Item* part = Add<TGraphicsRectItem>(board);
        part->setParentItem(board.AddPackage());
        part->SetTFlag(TGraphicsItem::UndoBypass, bypass);
        Set set({part}, layers);
        QCOMPARE(set.Properties().size(), bypass ? 5 : 6);
        Test::CommandLog log(set);
        QString before = board.Dump();
        const QList<void (*)(Set&)> calls{[](Set& called) { called.slotSetLineWidth(1.7); },
                                          [](Set& called) { called.slotSetLineStyle(Qt::DotLine); },
                                          [](Set& called) { called.slotSetFillStyle(8); },
                                          [](Set& called) { called.slotSetLayer(Osmirel::PackagesBottom); },
                                          [](Set& called) { called.slotSetColor(Qt::red); }};
        for (const auto call : calls) {
            call(set);
            log.Redo();
            QCOMPARE(board.Dump() != before, bypass);
            before = board.Dump();
        }
        QCOMPARE(log.Count(), bypass ? 0 : 5);
    }

    void directStylesRepaint()
    {
        Test::TestBoard board;
        Item* item = Add<TGraphicsRectItem>(board);
        item->SetTFlag(TGraphicsItem::UndoBypass, true);
        Set set({item}, layers);
        Test::RepaintLog repaints(*board.Scene());
        set.slotSetLineStyle(Qt::DotLine);
        QVERIFY(!repaints.Take().isNull());
        set.slotSetFillStyle(1);
        QVERIFY(!repaints.Take().isNull());
    }

    void textsAreTranslated()
    {
        Test::TestBoard board;
        const Test::MarkingTranslator translator;
        const Set rectangle({Add<TGraphicsRectItem>(board)}, layers);
        const Set line({Add<TGraphicsLineItem>(board)}, layers);
        const Set none({}, layers);
        QCOMPARE(line.Name(), QString("~Primitive"));
        QCOMPARE(none.Name(), QString("~Primitives"));
        QCOMPARE(Test::Untranslated(
                     translator, "TPropertySetForPrimitives",
                     {"Line width:", "Line style:", "Fill style:", "Layer:", "Color:", "Size:", "Length:", "No fill",
                      "Solid", "Points", "Horiz.", "Vert.", "Cross", "Diag. Fwd", "Diag. Bck", "Diag. Cross"}),
                 QStringList());
    }
};

PROPERTIES_TEST(TestPrimitivesSet)
#include "tst_primitives.moc"
