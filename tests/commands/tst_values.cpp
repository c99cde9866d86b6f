#include "properties/commands/TCmdNetTie.h"
#include "properties/commands/TCmdPad.h"
#include "properties/commands/TCmdPin.h"
#include "properties/commands/TCmdPour.h"
#include "properties/commands/TCmdPrimitive.h"
#include "properties/commands/TCmdText.h"
#include "properties/commands/TCmdVia.h"
#include "tests/commands/SheetDesign.h"
#include "tests/support/TestProgram.h"

#include <graphics/TGraphicsPolygonItem.h>

#include <cmath>
#include <functional>
#include <limits>

namespace {

constexpr int mostNegative = std::numeric_limits<int>::min();
constexpr int mostPositive = std::numeric_limits<int>::max();

/** An item of each kind that has a choice, each with a value that the tests do not set. */
struct Design : Test::SheetDesign
{
    Design()
    {
        symbol->SetSymbol(1);
        pin->SetPinType(TGraphicsPinItem::TypeOutput);
        pin->SetSwap(17);
        via->SetThermal(TGraphicsViaItem::ThermalNo);
        pour->SetFillType(Qt::CrossPattern);
        drawing->Brush().setStyle(Qt::CrossPattern);
    }

    TGraphicsNetTieSchItem* symbol = sheet.NetTie({0, 0}, 4);
    TGraphicsPinItem* pin = Test::PinOf(sheet.Part({0, 100}, 1, {{0, 0}}), 1);
    TGraphicsViaItem* via = board.Via({0, 0});
    TGraphicsPadItem* pad = board.Pad({100, 0});
    TGraphicsPourItem* pour = board.Pour({0, 200, 50, 50}, "A");
    TGraphicsRectItem* drawing = board.Add<TGraphicsRectItem>({300, 0});
};

using Making = std::function<std::unique_ptr<TUndoCommand>(Design&, int)>;

/** A command over one item that takes a number. */
template <class Command, class Item>
Making Over(Item* Design::*item)
{
    return [item](Design& design, int value) {
        return std::make_unique<Command>(QList<TGraphicsItem*>{design.*item}, value);
    };
}

Making OverSymbol()
{
    return [](Design& design, int value) {
        return std::make_unique<TCmdNetTieSchSymbol>(QList<TGraphicsNetTieSchItem*>{design.symbol}, value,
                                                     &design.project);
    };
}

Making OverPour()
{
    return [](Design& design, int value) {
        return std::make_unique<TCmdPourFillType>(QList<TGraphicsPourItem*>{design.pour}, value);
    };
}

} // namespace

Q_DECLARE_METATYPE(Making)

/** What numbers commands take. */
class TestValues : public QObject
{
    Q_OBJECT

private slots:
    void takesItsValuesAndNoOthers_data()
    {
        QTest::addColumn<Making>("make");
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("last");
        QTest::newRow("pin type") << Over<TCmdPinType>(&Design::pin) << 0 << 7;
        QTest::newRow("pin style") << Over<TCmdPinStyle>(&Design::pin) << 0 << 1;
        QTest::newRow("pin length") << Over<TCmdPinLength>(&Design::pin) << 0 << 3;
        QTest::newRow("swap group") << Over<TCmdPinSwap>(&Design::pin) << 0 << 255;
        QTest::newRow("thermal of a via") << Over<TCmdViaTherm>(&Design::via) << 0 << 2;
        QTest::newRow("thermal of a pad") << Over<TCmdViaTherm>(&Design::pad) << 0 << 2;
        QTest::newRow("pad shape") << Over<TCmdPadShape>(&Design::pad) << 1 << 6;
        QTest::newRow("symbol of a net tie") << OverSymbol() << 0 << 2;
        QTest::newRow("filling of a drawing") << Over<TCmdBrushStyle>(&Design::drawing) << 0 << 14;
        QTest::newRow("filling of a pour") << OverPour() << 0 << 14;
    }
    void takesItsValuesAndNoOthers()
    {
        QFETCH(Making, make);
        QFETCH(int, first);
        QFETCH(int, last);
        Design design;
        const QString before = design.Dump();
        QSet<QString> states;
        for (int value = first; value <= last; ++value) {
            const auto command = make(design, value);
            command->redo();
            states.insert(design.Dump());
            command->undo();
            QCOMPARE(design.Dump(), before);
        }
        QCOMPARE(states.size(), last - first + 1); // Each is written as itself.
        for (const int value : {first - 1, last + 45, last + 256, 99 + 256, mostNegative, mostPositive}) {
            const auto command = make(design, value);
            command->redo();
            QCOMPARE(design.Dump(), before);
            command->undo();
            QCOMPARE(design.Dump(), before);
        }
    }

    void refusedValuesAreNotMerged()
    {
        Design design;
        const QList<TGraphicsItem*> pins{design.pin};
        const TCmdPinSwap refused(pins, 300);
        QVERIFY(!TCmdPinSwap(pins, 256).mergeWith(&refused));
        QVERIFY(!TCmdPinSwap(pins, 300).mergeWith(&refused));
        QVERIFY(!TCmdPinType({}, -1).mergeWith(std::make_unique<TCmdPinType>(pins, 99).get()));
    }

    void aRefusedValueIsNotMerged()
    {
        Design design;
        const QList<TGraphicsItem*> pins{design.pin};
        TCmdPinSwap taken(pins, 44);
        const TCmdPinSwap refused(pins, 300);
        QVERIFY(!taken.mergeWith(&refused));
        taken.redo();
        QCOMPARE(int(design.pin->Swap()), 44);
    }

    void numbersAreCutToWholeOnes_data()
    {
        QTest::addColumn<double>("number");
        QTest::addColumn<int>("whole");
        QTest::newRow("none") << 0.0 << 0;
        QTest::newRow("a fraction") << 89.999 << 89;
        QTest::newRow("a negative one") << -89.999 << -89;
        QTest::newRow("the greatest") << 2147483647.0 << mostPositive;
        QTest::newRow("just beyond") << 2147483648.0 << mostPositive;
        QTest::newRow("the least") << -2147483648.0 << mostNegative;
        QTest::newRow("a fraction beyond") << -2147483648.5 << mostNegative;
        QTest::newRow("just below") << -2147483649.0 << mostNegative;
        QTest::newRow("huge") << 1e300 << mostPositive;
        QTest::newRow("without end") << -std::numeric_limits<double>::infinity() << mostNegative;
        QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << 0;
    }
    void numbersAreCutToWholeOnes()
    {
        QFETCH(double, number);
        QFETCH(int, whole);
        QCOMPARE(Units::WholeFrom(number), whole);
    }

    void anglesThatAreNoneCanBeReplaced()
    {
        for (const double angle : {std::numeric_limits<double>::quiet_NaN(), 1e300, -1e300}) {
            TGraphicsTextItem text;
            text.setRotation(angle);
            TCmdTextAngle command({&text}, 90);
            command.redo();
            QCOMPARE(text.rotation(), 90.0);
            command.undo();
            QCOMPARE(text.rotation(), double(Units::WholeFrom(angle)));
        }
    }

    void fontSizesStayWithinTheirNumbers()
    {
        QCOMPARE(FontSize::PixelsFromPoints(mostPositive), mostPositive);
        QCOMPARE(FontSize::PixelsFromPoints(mostNegative), mostNegative);
        QCOMPARE(FontSize::PixelsFromPoints(12), 50);
        QVERIFY(FontSize::PointsFromPixels(mostPositive) > 0);
        QFont font;
        font.setPixelSize(20);
        FontSize::Write(font, mostNegative);
        QCOMPARE(font.pixelSize(), 20);
    }
};

PROPERTIES_TEST(TestValues)
#include "tst_values.moc"
