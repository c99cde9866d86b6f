#include "properties/commands/TCmdMask.h"
#include "properties/commands/TCmdPad.h"
#include "properties/commands/TCmdPrimitive.h"
#include "properties/commands/TCmdVia.h"
#include "tests/commands/MixedBoard.h"
#include "tests/support/Observers.h"
#include "tests/support/TestProgram.h"

#include <QImage>
#include <QPainter>
#include <QtTest>
#include <QUndoStack>

using Test::Single;

namespace {

using Layer = Osmirel::Layer;

double Scene(double millimetres)
{
    return millimetres * Test::sceneUnitsPerMillimetre;
}

/** Counts how often an item is told to bring its drawing up to date, and keeps what it held at that moment. */
template <class Item>
class Refreshed : public Test::Counting<Item>
{
public:
    void Refresh() override
    {
        maskWhenRefreshed = this->MaskEnabled();
        Test::Counting<Item>::Refresh();
    }

    bool maskWhenRefreshed = false;
};

template <class Item>
Item* Attached(TBoard& board)
{
    auto owned = std::make_unique<Item>();
    Item* item = owned.get();
    board.Attach(std::move(owned));
    return item;
}

QImage Picture(QGraphicsScene& scene, const TGraphicsItem& item)
{
    QImage image(200, 200, QImage::Format_ARGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    scene.render(&painter, image.rect(), item.sceneBoundingRect());
    return image;
}

} // namespace

class TestQuirks : public QObject
{
    Q_OBJECT

private slots:
    void lengthsAreMillimetresTimesOneFactor_data()
    {
        QTest::addColumn<double>("millimetres");
        QTest::addColumn<double>("scene");
        QTest::addColumn<float>("single");
        QTest::newRow("smallest of a row") << 0.1 << 1.1811023622047245 << 1.1811023950576782F;
        QTest::newRow("a via") << 0.8 << 9.448818897637796 << 9.448819160461426F;
        QTest::newRow("a tenth of an inch") << 2.54 << 30.0 << 30.0F;
        QTest::newRow("an inch") << 25.4 << 300.0 << 300.0F;
        QTest::newRow("large") << 9.9 << 116.92913385826772 << 116.92913055419922F;
        QTest::newRow("nothing") << 0.0 << 0.0 << 0.0F;
    }
    void lengthsAreMillimetresTimesOneFactor()
    {
        QFETCH(double, millimetres);
        QFETCH(double, scene);
        QFETCH(float, single);
        Test::TestBoard board;
        TGraphicsPadItem* pad = board.AddThroughPad();
        TGraphicsViaItem* via = board.AddVia();
        const QList<TGraphicsItem*> items{pad, via};
        TCmdPadWidth(items, millimetres).redo();
        TCmdPadHeight(items, millimetres).redo();
        TCmdViaDiam(items, millimetres).redo();
        TCmdViaDrill(items, millimetres).redo();
        TCmdMaskClearance(items, millimetres).redo();
        TCmdPasteClearance(items, millimetres).redo();

        // Exact comparisons: pad sizes keep all digits, everything else those of a float.
        QVERIFY(pad->Width() == scene);
        QVERIFY(pad->Height() == scene);
        QVERIFY(pad->Drill() == single);
        QVERIFY(pad->MaskClearance() == single);
        QVERIFY(pad->PasteClearance() == single);
        QVERIFY(via->Width() == static_cast<double>(single));
        QVERIFY(via->Height() == static_cast<double>(single));
        QVERIFY(via->Drill() == single);
        QVERIFY(via->MaskClearance() == single);
    }

    void rectangleSizeIsGivenInSceneUnits()
    {
        Test::TestBoard board;
        TGraphicsHoleItem* hole = board.AddHole();
        TCmdRectSize({hole}, 40.3, 12.25).redo();
        QVERIFY(hole->Size().width() == static_cast<double>(40.3F));
        QVERIFY(hole->Size().height() == 12.25);
    }

    void undoOfPadHeightRestoresWidthAsHeight()
    {
        Test::TestBoard board;
        TGraphicsPadItem* pad = board.AddSurfacePad(1.5, 0.7);
        TCmdPadHeight command({pad}, 2.0);
        command.redo();
        QVERIFY(pad->Height() == Scene(2.0));
        command.undo();
        QVERIFY(pad->Height() == Scene(1.5));
        QVERIFY(pad->Width() == Scene(1.5));
    }

    void undoOfPadHeightRestoresTheFormerWidth()
    {
        Test::TestBoard board;
        TGraphicsPadItem* pad = board.AddSurfacePad(1.5, 0.7);
        TCmdPadHeight height({pad}, 2.0);
        height.redo();
        TCmdPadWidth({pad}, 3.0).redo();
        height.undo();
        QVERIFY(pad->Height() == Scene(1.5));
        QVERIFY(pad->Width() == Scene(3.0));
    }

    void drillSkipsSurfacePads()
    {
        Test::TestBoard board;
        TGraphicsViaItem* via = board.AddVia();
        TGraphicsPadItem* through = board.AddThroughPad();
        TGraphicsPadItem* surface = board.AddSurfacePad();
        surface->SetDrill(5);
        TCmdViaDrill command({surface, through, via}, 0.5);
        command.redo();
        QVERIFY(via->Drill() == static_cast<float>(Scene(0.5)));
        QVERIFY(through->Drill() == static_cast<float>(Scene(0.5)));
        QVERIFY(surface->Drill() == 5);
        surface->SetDrill(6);
        command.undo();
        QVERIFY(via->Drill() == static_cast<float>(Scene(0.3)));
        QVERIFY(through->Drill() == static_cast<float>(Scene(0.8)));
        QVERIFY(surface->Drill() == 6);
    }

    // What a pad is when the command is made decides.
    void drillKeepsAPadThatBecomesASurfacePad()
    {
        Test::TestBoard board;
        TGraphicsPadItem* pad = board.AddThroughPad(1.6, 0.8);
        TCmdViaDrill command({pad}, 0.5);
        pad->SetTypeSMD(true);
        command.redo();
        QVERIFY(pad->Drill() == static_cast<float>(Scene(0.5)));
        command.undo();
        QVERIFY(pad->Drill() == static_cast<float>(Scene(0.8)));
    }

    void thermalTakesAllPads()
    {
        Test::TestBoard board;
        TGraphicsPadItem* surface = board.AddSurfacePad();
        TGraphicsPadItem* through = board.AddThroughPad();
        TCmdViaTherm command({surface, through, board.AddVia()}, 2);
        command.redo();
        QCOMPARE(surface->Thermal(), TGraphicsViaItem::ThermalNo);
        QCOMPARE(through->Thermal(), TGraphicsViaItem::ThermalNo);
        command.undo();
        QCOMPARE(surface->Thermal(), TGraphicsViaItem::ThermalAuto);
    }

    void thermalRepaintsNothing()
    {
        Test::TestBoard board;
        const QList<TGraphicsItem*> items{board.AddSurfacePad(), board.AddVia()};
        Test::RepaintLog repaints(*board.Scene());
        TCmdViaTherm thermal(items, 2);
        thermal.redo();
        thermal.undo();
        QVERIFY(repaints.Take().isEmpty());
        TCmdMaskEn(items, true).redo();
        QVERIFY(!repaints.Take().isEmpty());
    }

    void viaDiameterIsTheSmallerMeasureInSinglePrecision()
    {
        Test::TestBoard board;
        TGraphicsViaItem* wide = board.AddVia();
        TGraphicsViaItem* high = board.AddVia();
        wide->SetSize(12.3, 10.1);
        high->SetSize(7.7, 20);
        TCmdViaDiam command({wide, high}, 0.8);
        command.redo();
        for (const TGraphicsViaItem* via : {wide, high}) {
            QVERIFY(via->Width() == static_cast<double>(9.448819160461426F));
            QVERIFY(via->Height() == via->Width());
        }
        command.undo();
        QVERIFY(wide->Width() == static_cast<double>(10.1F));
        QVERIFY(wide->Height() == static_cast<double>(10.1F));
        QVERIFY(high->Width() == static_cast<double>(7.7F));
        QVERIFY(high->Height() == static_cast<double>(7.7F));
    }

    void maskClearanceOfPadsGoesThroughTheViasSetter()
    {
        Test::TestBoard board;
        TGraphicsPadItem* pad = board.AddSurfacePad(1.0, 0.5);
        TCmdMaskClearance command({pad}, -3.0);
        command.redo();
        QVERIFY(pad->MaskClearance() == static_cast<float>(Scene(-3.0)));
        // The pad's own setter stops where the opening is closed.
        pad->SetMaskClearance(static_cast<float>(Scene(-3.0)));
        QVERIFY(pad->MaskClearance() == static_cast<float>(Scene(-0.25)));
        pad->TGraphicsViaItem::SetMaskClearance(-30);
        TCmdMaskClearance back({pad}, 0.1);
        back.redo();
        back.undo();
        QVERIFY(pad->MaskClearance() == -30);
    }

    void numberAndNameAreSetOnEveryPadWhateverItsType()
    {
        TBoard board;
        auto* odd = Attached<Test::OddPad>(board);
        QVERIFY(odd->type() != ItemType::Pad);
        TCmdPadNumber number({odd}, "12");
        TCmdPadName name({odd}, "CLK");
        TCmdPadShape shape({odd}, TGraphicsPadItem::ShapeOctagon);
        number.redo();
        name.redo();
        shape.redo();
        QCOMPARE(odd->Number(), QString("12"));
        QCOMPARE(odd->Name(), QString("CLK"));
        QCOMPARE(odd->PadShape(), TGraphicsPadItem::ShapeRound); // all else goes by the type
        number.undo();
        name.undo();
        QCOMPARE(odd->Number(), QString());
        QCOMPARE(odd->Name(), QString());
    }

    void numberIsDrawnAnew()
    {
        Test::TestBoard board;
        TGraphicsPadItem* pad = board.AddSurfacePad(4, 4);
        pad->SetNumber("1");
        const QImage one = Picture(*board.Scene(), *pad);
        TCmdPadNumber command({pad}, "888");
        command.redo();
        const QImage three = Picture(*board.Scene(), *pad);
        QVERIFY(three != one);
        command.undo();
        QCOMPARE(Picture(*board.Scene(), *pad), one);

        TGraphicsPadItem* fresh = board.AddSurfacePad(4, 4);
        fresh->SetNumber("888");
        QCOMPARE(Picture(*board.Scene(), *fresh), three);
    }

    void padSideOldValueIsTheEndLayer()
    {
        Test::TestBoard board;
        TGraphicsPadItem* pad = board.AddThroughPad();
        pad->SetLayers(Osmirel::CopperTop, Osmirel::CopperBottom);
        TCmdPadSide command({pad}, Osmirel::CopperTop);
        command.redo(); // a pad through the board has no side: nothing happens, but it may get one later
        pad->SetLayers(Osmirel::Copper2, Osmirel::Copper2);
        command.undo();
        QCOMPARE(pad->StartLayer(), Osmirel::CopperBottom);
        QCOMPARE(pad->EndLayer(), Osmirel::CopperBottom);
    }

    void padTypeIsReversible_data()
    {
        QTest::addColumn<Layer>("start");
        QTest::addColumn<Layer>("end");
        const auto surface = [](const char* name, Layer layer) { QTest::newRow(name) << layer << layer; };
        surface("top", Osmirel::CopperTop);
        surface("inner", Osmirel::Copper3);
        surface("bottom", Osmirel::CopperBottom);
        surface("paste", Osmirel::PasteTop);
        surface("mask", Osmirel::MaskBottom);
        surface("silk", Osmirel::SilkBottom);
        surface("none", Osmirel::NoLayer);
        QTest::newRow("through") << Osmirel::CopperTop << Osmirel::CopperBottom;
        QTest::newRow("through, upward") << Osmirel::CopperBottom << Osmirel::CopperTop;
    }
    void padTypeIsReversible()
    {
        QFETCH(Layer, start);
        QFETCH(Layer, end);
        Test::TestBoard board;
        TGraphicsPadItem* pad = board.AddThroughPad();
        pad->SetLayers(start, end);
        const QString before = pad->StateLine();
        for (const bool smd : {true, false}) {
            TCmdPadType command({pad}, smd);
            for (int round = 0; round < 2; ++round) {
                command.redo();
                QCOMPARE(pad->IsSMD(), smd);
                QCOMPARE(pad->StartLayer(), start);
                command.undo();
                QCOMPARE(pad->StateLine(), before);
            }
        }
    }

    // From any type of the pad back over a change of its side in between.
    void padSideIsReversible_data() { padTypeIsReversible_data(); }
    void padSideIsReversible()
    {
        QFETCH(Layer, start);
        QFETCH(Layer, end);
        Test::TestBoard board;
        TGraphicsPadItem* pad = board.AddThroughPad();
        pad->SetLayers(start, end);
        const QString before = pad->StateLine();
        QUndoStack stack;
        stack.push(new TCmdPadSide({pad}, Osmirel::CopperBottom));
        stack.push(new TCmdPadType({pad}, true));
        stack.push(new TCmdPadSide({pad}, Osmirel::CopperTop));
        stack.push(new TCmdPadType({pad}, false));
        const QString after = pad->StateLine();
        QVERIFY(!pad->IsSMD());
        for (int round = 0; round < 2; ++round) {
            stack.setIndex(0);
            QCOMPARE(pad->StateLine(), before);
            stack.setIndex(stack.count());
            QCOMPARE(pad->StateLine(), after);
        }
    }

    void rectSizeNeverMergesThoughItHasAnId()
    {
        Test::TestBoard board;
        const QList<TGraphicsRectItem*> holes{board.AddHole(), board.AddHole()};
        TCmdRectSize first(holes, 20, 20);
        const TCmdRectSize same(holes, 20, 20);
        QCOMPARE(first.id(), 1282);
        QVERIFY(!first.mergeWith(&same));
        QVERIFY(!static_cast<QUndoCommand&>(first).mergeWith(&same));
    }

    void maskEnableCallsTheVirtualRefresh()
    {
        TBoard board;
        auto* via = Attached<Refreshed<TGraphicsViaItem>>(board);
        auto* pad = Attached<Refreshed<TGraphicsPadItem>>(board);
        TCmdMaskEn command({via, pad}, true);
        QCOMPARE(via->refreshes, 0);
        command.redo();
        QCOMPARE(via->refreshes, 1);
        QCOMPARE(pad->refreshes, 1);
        QVERIFY(via->maskWhenRefreshed);
        QVERIFY(pad->maskWhenRefreshed);
        command.undo();
        QCOMPARE(via->refreshes, 2);
        QCOMPARE(pad->refreshes, 2);
        QVERIFY(!via->maskWhenRefreshed);
        QVERIFY(!pad->maskWhenRefreshed);
    }

    void pasteEnableCallsTheVirtualRefresh()
    {
        TBoard board;
        auto* pad = Attached<Refreshed<TGraphicsPadItem>>(board);
        TCmdPasteEn command({pad}, true);
        command.redo();
        QCOMPARE(pad->refreshes, 1);
        command.undo();
        QCOMPARE(pad->refreshes, 2);
    }

    void thermalCallsNoRefresh()
    {
        TBoard board;
        auto* pad = Attached<Refreshed<TGraphicsPadItem>>(board);
        TCmdViaTherm command({pad}, 1);
        command.redo();
        command.undo();
        QCOMPARE(pad->refreshes, 0);
    }
};

PROPERTIES_TEST(TestQuirks)
#include "tst_quirks.moc"
