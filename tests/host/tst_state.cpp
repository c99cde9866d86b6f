#include "tests/host/StateFields.h"
#include "tests/support/TestBoard.h"
#include "tests/support/TestMain.h"

#include <graphics/TStateText.h>

#include <QtTest>

#include <cmath>
#include <functional>
#include <limits>

using Test::StateFields;

namespace {

/** The value alone, as a state line writes it. */
template <class Value>
QString Written(const Value& value)
{
    const QString line = TStateText("kind").Add("name", value).Line();
    const QString start("kind name=");
    return line.startsWith(start) ? line.mid(start.size()) : "not " + start + ": " + line;
}

/** One change of an item and the attributes of its line that are to tell of it. */
struct Change
{
    const char* name;
    std::function<TGraphicsItem*(Test::TestBoard&)> place;
    std::function<void(TGraphicsItem&)> change;
    QStringList fields;
};

template <class Item, class Call>
std::function<void(TGraphicsItem&)> On(Call call)
{
    return [call](TGraphicsItem& item) { call(static_cast<Item&>(item)); };
}

template <class Call>
std::function<void(TGraphicsItem&)> OnVia(Call call)
{
    return On<TGraphicsViaItem>(call);
}

template <class Call>
std::function<void(TGraphicsItem&)> OnPad(Call call)
{
    return On<TGraphicsPadItem>(call);
}

template <class Call>
std::function<void(TGraphicsItem&)> OnRectangle(Call call)
{
    return On<TGraphicsRectItem>(call);
}

template <class Call>
std::function<void(TGraphicsItem&)> OnPackage(Call call)
{
    return On<TGraphicsPackageItem>(call);
}

TGraphicsItem* Via(Test::TestBoard& board)
{
    return board.AddVia();
}

TGraphicsItem* Pad(Test::TestBoard& board)
{
    return board.AddSurfacePad();
}

TGraphicsItem* ThroughPad(Test::TestBoard& board)
{
    return board.AddThroughPad();
}

TGraphicsItem* PadOfPackage(Test::TestBoard& board)
{
    return board.AddSurfacePad(1, 1, board.AddPackage());
}

TGraphicsItem* Hole(Test::TestBoard& board)
{
    return board.AddHole();
}

TGraphicsItem* Rectangle(Test::TestBoard& board)
{
    auto rectangle = std::make_unique<TGraphicsRectItem>();
    TGraphicsItem* item = rectangle.get();
    board.Attach(std::move(rectangle));
    return item;
}

TGraphicsItem* Package(Test::TestBoard& board)
{
    return board.AddPackage();
}

const QList<Change>& Changes()
{
    using Via_ = TGraphicsViaItem;
    using Pad_ = TGraphicsPadItem;
    using Rect = TGraphicsRectItem;
    using Package_ = TGraphicsPackageItem;
    static const QPainterPath square = [] {
        QPainterPath path;
        path.addRect(0, 0, 3, 4);
        return path;
    }();
    static const QList<Change> changes{
        {"position", Via, [](TGraphicsItem& item) { item.setPos(1.5, -2); }, {"at"}},
        {"position of a package moves its pads",
         PadOfPackage,
         [](TGraphicsItem& item) { item.parentItem()->moveBy(1, 0); },
         {"at", "in.at"}},
        {"rotation", Pad, [](TGraphicsItem& item) { item.setRotation(-22.5); }, {"rotation"}},
        {"layer", Hole, [](TGraphicsItem& item) { item.SetLayer(Osmirel::Milling); }, {"layer"}},
        {"bypass flag", Via, [](TGraphicsItem& item) { item.SetTFlag(TGraphicsItem::UndoBypass, true); }, {"flags"}},
        {"lock flag", Package, [](TGraphicsItem& item) { item.SetTFlag(TGraphicsItem::Lock, true); }, {"flags"}},
        {"colour", Rectangle, [](TGraphicsItem& item) { item.SetAltColor(Qt::red); }, {"color"}},
        {"opacity of the colour",
         Rectangle,
         [](TGraphicsItem& item) { item.SetAltColor(QColor(0, 0, 0, 1)); },
         {"color"}},

        {"via size", Via, OnVia([](Via_& via) { via.SetSize(8, 9); }), {"width", "height"}},
        {"via width by a hair",
         Via,
         OnVia([](Via_& via) { via.SetSize(std::nextafter(via.Width(), 99), via.Height()); }),
         {"width"}},
        {"drill", Via, OnVia([](Via_& via) { via.SetDrill(2); }), {"drill"}},
        {"drill by a hair", Via, OnVia([](Via_& via) { via.SetDrill(std::nextafter(via.Drill(), 99.0F)); }), {"drill"}},
        {"thermal", Via, OnVia([](Via_& via) { via.SetThermal(Via_::ThermalNo); }), {"thermal"}},
        {"drill pair", Via, OnVia([](Via_& via) { via.SetViaGroup("Top - Inner 1"); }), {"drillPair", "end"}},
        {"mask", Via, OnVia([](Via_& via) { via.SetMaskEnabled(true); }), {"mask"}},
        {"mask clearance", Via, OnVia([](Via_& via) { via.SetMaskClearance(-0.5F); }), {"maskClearance"}},
        {"layers",
         Via,
         OnVia([](Via_& via) { via.SetLayers(Osmirel::Copper2, Osmirel::Copper3); }),
         {"layer", "start", "end"}},
        {"net", Via, OnVia([](Via_& via) { via.SetNet("GND"); }), {"net"}},

        {"pad width", Pad, OnPad([](Pad_& pad) { pad.SetWidth(3); }), {"width"}},
        {"pad height", Pad, OnPad([](Pad_& pad) { pad.SetHeight(3); }), {"height"}},
        {"number", Pad, OnPad([](Pad_& pad) { pad.SetNumber("1 a"); }), {"number"}},
        {"name", Pad, OnPad([](Pad_& pad) { pad.SetName("name=\""); }), {"name"}},
        {"shape", Pad, OnPad([](Pad_& pad) { pad.SetPadShape(Pad_::ShapeSquare); }), {"shape"}},
        {"side", Pad, OnPad([](Pad_& pad) { pad.SetPadSide(Osmirel::CopperBottom); }), {"layer", "start", "end"}},
        {"type to through", Pad, OnPad([](Pad_& pad) { pad.SetTypeSMD(false); }), {"end"}},
        {"type to surface", ThroughPad, OnPad([](Pad_& pad) { pad.SetTypeSMD(true); }), {"end"}},
        {"pad mask clearance", Pad, OnPad([](Pad_& pad) { pad.SetMaskClearance(1); }), {"maskClearance"}},
        {"paste", Pad, OnPad([](Pad_& pad) { pad.SetPasteEnabled(true); }), {"paste"}},
        {"paste clearance", Pad, OnPad([](Pad_& pad) { pad.SetPasteClearance(-1); }), {"pasteClearance"}},
        {"corner ratio", Pad, OnPad([](Pad_& pad) { pad.SetCornerRatio(0.25); }), {"cornerRatio"}},
        {"taper",
         Pad,
         OnPad([](Pad_& pad) {
             pad.SetTaper({0, 1});
         }),
         {"taper"}},
        {"copper offset",
         Pad,
         OnPad([](Pad_& pad) {
             pad.SetCopperOffset({0, 1});
         }),
         {"copperOffset"}},
        {"drill stretch",
         Pad,
         OnPad([](Pad_& pad) {
             pad.SetDrillStretch({0, 1});
         }),
         {"drillStretch"}},
        {"extra copper", Pad, OnPad([](Pad_& pad) { pad.SetExtraCopper(square); }), {"extraCopper"}},

        {"hole size", Hole, OnRectangle([](Rect& hole) { hole.SetSize(9, 9); }), {"size"}},
        {"rectangle size", Rectangle, OnRectangle([](Rect& rect) { rect.SetSize(0, 2); }), {"size"}},
        {"pen width", Rectangle, OnRectangle([](Rect& rect) { rect.SetPenWidth(0.1F); }), {"penWidth"}},
        {"pen style", Rectangle, OnRectangle([](Rect& rect) { rect.Pen().setStyle(Qt::DotLine); }), {"penStyle"}},
        {"brush style", Rectangle, OnRectangle([](Rect& rect) { rect.Brush().setStyle(Qt::CrossPattern); }), {"brush"}},

        {"designator", Package, OnPackage([](Package_& package) { package.SetRefDes("R1"); }), {"refDes"}},
        {"value", Package, OnPackage([](Package_& package) { package.SetValue("4k7 \xCE\xA9"); }), {"value"}},
        {"package name", Package, OnPackage([](Package_& package) { package.SetPackageName("0402@x"); }), {"package"}},
    };
    return changes;
}

} // namespace

class TestState : public QObject
{
    Q_OBJECT

private slots:
    void numbersAreTheShortestThatReadBack_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("written");
        QTest::newRow("zero") << 0.0 << "0";
        QTest::newRow("minus zero") << -0.0 << "0";
        QTest::newRow("whole") << 300.0 << "300";
        QTest::newRow("tenth") << 0.1 << "0.1";
        QTest::newRow("negative") << -22.5 << "-22.5";
        QTest::newRow("third") << 1.0 / 3 << "0.3333333333333333";
        QTest::newRow("sum") << 0.1 + 0.2 << "0.30000000000000004";
        QTest::newRow("scene units") << 0.8 * 11.811023622047244 << "9.448818897637796";
    }
    void numbersAreTheShortestThatReadBack()
    {
        QFETCH(double, value);
        QFETCH(QString, written);
        QCOMPARE(Written(value), written);
        QVERIFY(Written(value).toDouble() == value);
    }

    void everyNumberReadsBack_data()
    {
        using Limits = std::numeric_limits<double>;
        QTest::addColumn<double>("value");
        QTest::newRow("largest") << Limits::max();
        QTest::newRow("smallest") << Limits::denorm_min();
        QTest::newRow("least normal") << -Limits::min();
        QTest::newRow("after one") << std::nextafter(1.0, 2.0);
        QTest::newRow("before one") << std::nextafter(1.0, 0.0);
        QTest::newRow("beyond whole numbers") << 9007199254740993.0;
        QTest::newRow("large") << 123456789012345678.0;
    }
    void everyNumberReadsBack()
    {
        QFETCH(double, value);
        QVERIFY(Written(value).toDouble() == value);
    }

    void singlePrecisionIsWrittenWithAllItHolds()
    {
        for (const float value : {0.1F, 9.448819F, 1e-30F, 16777217.0F, -0.5F}) {
            QVERIFY(Written(value).toFloat() == value);
            QVERIFY(Written(value).toDouble() == static_cast<double>(value));
        }
        QCOMPARE(Written(-0.0F), QString("0"));
        QVERIFY(Written(0.1F) != Written(0.1));
    }

    void textsAreQuotedAndEscaped_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("written");
        QTest::newRow("empty") << ""
                               << "\"\"";
        QTest::newRow("null") << QString() << "\"\"";
        QTest::newRow("blanks") << " a  b "
                                << "\" a  b \"";
        QTest::newRow("quote") << "a\"b"
                               << "\"a\\\"b\"";
        QTest::newRow("backslash") << "a\\"
                                   << "\"a\\\\\"";
        QTest::newRow("line break") << "a\nb"
                                    << "\"a\\nb\"";
        QTest::newRow("written line break") << "a\\nb"
                                            << "\"a\\\\nb\"";
        QTest::newRow("percent") << "%1 %2"
                                 << "\"%1 %2\"";
        QTest::newRow("beyond Latin") << QString::fromUtf8("\xCE\xA9\xE2\x84\xA6")
                                      << QString::fromUtf8("\"\xCE\xA9\xE2\x84\xA6\"");
    }
    void textsAreQuotedAndEscaped()
    {
        QFETCH(QString, text);
        QFETCH(QString, written);
        QCOMPARE(Written(text), written);
    }

    void linesHaveNoLineBreak_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("line feed") << "a\nb";
        QTest::newRow("carriage return") << "a\rb";
        QTest::newRow("both") << "a\r\nb";
    }
    void linesHaveNoLineBreak()
    {
        QFETCH(QString, text);
        Test::TestBoard board;
        TGraphicsPadItem* pad = board.AddSurfacePad();
        pad->SetNumber(text);
        QVERIFY(!pad->StateLine().contains('\n'));
        QVERIFY(!pad->StateLine().contains('\r'));
    }

    void otherValuesAreWrittenOneWay()
    {
        QPainterPath path(QPointF(1, 2));
        path.lineTo(-0.0, 0.5);
        QCOMPARE(Written(true), QString("yes"));
        QCOMPARE(Written(false), QString("no"));
        QCOMPARE(Written(-7), QString("-7"));
        QCOMPARE(Written(QPointF(-0.0, 0.1)), QString("(0,0.1)"));
        QCOMPARE(Written(QSizeF(3, 0.25)), QString("(3,0.25)"));
        QCOMPARE(Written(QColor()), QString("default"));
        QCOMPARE(Written(QColor(1, 2, 255, 128)), QString("#800102ff"));
        QCOMPARE(Written("text"), QString("\"text\""));
        QCOMPARE(Written(path), QString("0(1,2)1(0,0.5)"));
        QCOMPARE(Written(QPainterPath()), QString());
    }

    void valuesFollowEachOtherInOrder()
    {
        QCOMPARE(TStateText("via").Add("a", 1).Add("b", "c d").Add("e", false).Line(),
                 QString("via a=1 b=\"c d\" e=no"));
        QCOMPARE(TStateText("via").Line(), QString("via"));
    }

    void everyAttributeChangesTheLine_data()
    {
        QTest::addColumn<int>("row");
        int row = 0;
        for (const Change& change : Changes()) {
            QTest::newRow(change.name) << row++;
        }
    }
    void everyAttributeChangesTheLine()
    {
        QFETCH(int, row);
        const Change& change = Changes().at(row);
        Test::TestBoard board;
        TGraphicsItem* item = change.place(board);
        const StateFields before(item->StateLine());
        QCOMPARE(before.Line(), item->StateLine());
        change.change(*item);
        QCOMPARE(before.Differences(StateFields(item->StateLine())), change.fields);
    }

    void everyFieldOfALineHasAChange()
    {
        Test::TestBoard board;
        QSet<QString> covered{"in"}; // the parent of a pad: see the next test
        for (const Change& change : Changes()) {
            for (const QString& field : change.fields) {
                covered.insert(field);
            }
        }
        for (const auto& place : {Via, PadOfPackage, Hole, Rectangle, Package}) {
            for (const QString& field : StateFields(place(board)->StateLine()).Names()) {
                QVERIFY2(covered.contains(field), qPrintable(field));
            }
        }
    }

    void packageAndHidingChangeTheLine()
    {
        Test::TestBoard board;
        TGraphicsPadItem* pad = board.AddSurfacePad();
        pad->setPos(10, 0);
        const QString alone = pad->StateLine();
        TGraphicsPackageItem* package = board.AddPackage();
        package->setPos(100, 0);
        pad->setPos(-90, 0);
        pad->setParentItem(package);
        const StateFields inside(pad->StateLine());
        QCOMPARE(inside.Text("at"), QString("(10,0)"));
        QCOMPARE(inside.Text("in"), QString("\"package\""));
        QCOMPARE(inside.Text("in.at"), QString("(100,0)"));
        QVERIFY(inside.Line() != alone);

        pad->setVisible(false);
        QVERIFY(pad->StateLine() != inside.Line());
        pad->setVisible(true);
        QCOMPARE(pad->StateLine(), inside.Line());
    }

    void linesAreStableWordForWord()
    {
        Test::TestBoard board;
        TGraphicsViaItem* via = board.AddVia();
        via->SetSize(12, 12);
        via->SetDrill(6);
        QCOMPARE(via->StateLine(),
                 QString("via at=(0,0) rotation=0 layer=68 flags=0 color=default net=\"\" width=12 height=12 drill=6 "
                         "thermal=0 drillPair=\"Top - Bottom\" start=68 end=75 mask=no maskClearance=0"));
    }

    void selectionIsNoPartOfTheLine()
    {
        Test::TestBoard board;
        for (TGraphicsItem* item : {Via(board), Pad(board), Hole(board), Rectangle(board)}) {
            const QString before = item->StateLine();
            item->setSelected(true);
            QVERIFY(item->isSelected());
            QVERIFY(item->HasTFlag(TGraphicsItem::Selected));
            QCOMPARE(item->StateLine(), before);
            item->setSelected(false);
            QVERIFY(!item->HasTFlag(TGraphicsItem::Selected));
        }
    }

    void flagsAreSetOneByOne()
    {
        Test::TestBoard board;
        TGraphicsItem* item = board.AddHole();
        item->SetTFlag(TGraphicsItem::Lock, true);
        item->SetTFlag(TGraphicsItem::UndoBypass, true);
        QCOMPARE(item->TFlags(), 513U);
        item->SetTFlag(TGraphicsItem::UndoBypass, true);
        QCOMPARE(item->TFlags(), 513U);
        item->SetTFlag(TGraphicsItem::UndoBypass, false);
        item->SetTFlag(TGraphicsItem::Routing, false);
        QCOMPARE(item->TFlags(), 512U);
        QVERIFY(item->HasTFlag(TGraphicsItem::Lock));
        QVERIFY(!item->HasTFlag(TGraphicsItem::UndoBypass));
    }

    void kindsHaveTheirNumbersAndNames()
    {
        Test::TestBoard board;
        const auto kind = [](const TGraphicsItem* item) { return qMakePair(item->type(), item->KindName()); };
        QCOMPARE(kind(Via(board)), qMakePair(0x10011, QString("via")));
        QCOMPARE(kind(Pad(board)), qMakePair(0x10012, QString("pad")));
        QCOMPARE(kind(Hole(board)), qMakePair(0x10015, QString("hole")));
        QCOMPARE(kind(Rectangle(board)), qMakePair(0x10003, QString("rectangle")));
        QCOMPARE(kind(Package(board)), qMakePair(0x1000b, QString("package")));
    }
};

PROPERTIES_TEST_MAIN(TestState)
#include "tst_state.moc"
