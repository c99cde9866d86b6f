#include "tests/support/Observers.h"
#include "tests/support/TestBoard.h"
#include "tests/support/TestProgram.h"

#include <QtTest>

#include <functional>

#include <functional>

using Layer = Osmirel::Layer;
using Layers = QList<Osmirel::Layer>;
using Pad = TGraphicsPadItem;
using Via = TGraphicsViaItem;

using PadChange = std::function<void(TGraphicsPadItem&)>;
Q_DECLARE_METATYPE(PadChange)

namespace {

/** A rectangle that encloses the other up to rounding. */
bool Encloses(const QRectF& outer, const QRectF& inner)
{
    constexpr double slack = 1e-9;
    return outer.adjusted(-slack, -slack, slack, slack).contains(inner);
}

} // namespace

class TestPads : public QObject
{
    Q_OBJECT

private slots:
    void sizesAreSetOneByOne()
    {
        Test::TestBoard board;
        Pad* pad = board.AddSurfacePad();
        pad->SetWidth(0.1);
        pad->SetHeight(1.0 / 3);
        QVERIFY(pad->Width() == 0.1);
        QVERIFY(pad->Height() == 1.0 / 3);
        pad->SetPadShape(Pad::ShapeSquare);
        pad->SetPadShape(Pad::ShapeRound);
        QVERIFY(pad->Width() == 0.1);
        QVERIFY(pad->Height() == 1.0 / 3);
    }

    void surfacePadsLieOnOneLayer_data()
    {
        QTest::addColumn<Layer>("start");
        QTest::addColumn<Layer>("through");
        for (int layer = Osmirel::NoLayer; layer <= Osmirel::Milling; ++layer) {
            const auto start = static_cast<Layer>(layer);
            QTest::addRow("layer %d", layer)
                << start << (start == Osmirel::CopperBottom ? Osmirel::CopperTop : Osmirel::CopperBottom);
        }
    }
    void surfacePadsLieOnOneLayer()
    {
        QFETCH(Layer, start);
        QFETCH(Layer, through);
        Test::TestBoard board;
        Pad* pad = board.AddSurfacePad();
        pad->SetPadSide(start);
        QVERIFY(pad->IsSMD());
        QCOMPARE(pad->StartLayer(), start);
        QCOMPARE(pad->EndLayer(), start);
        QCOMPARE(pad->Layer(), start);
        const QString surface = pad->StateLine();

        pad->SetTypeSMD(false);
        QVERIFY(!pad->IsSMD());
        QCOMPARE(pad->StartLayer(), start);
        QCOMPARE(pad->EndLayer(), through);
        const QString drilled = pad->StateLine();

        for (int round = 0; round < 2; ++round) {
            pad->SetTypeSMD(true);
            QCOMPARE(pad->StateLine(), surface);
            pad->SetTypeSMD(true);
            QCOMPARE(pad->StateLine(), surface);
            pad->SetTypeSMD(false);
            QCOMPARE(pad->StateLine(), drilled);
            pad->SetTypeSMD(false);
            QCOMPARE(pad->StateLine(), drilled);
            pad->SetPadSide(Osmirel::CopperTop); // a pad through the board has no side
            QCOMPARE(pad->StateLine(), drilled);
        }
    }

    void sideOfASurfacePadComesBack()
    {
        Test::TestBoard board;
        Pad* pad = board.AddSurfacePad();
        for (const Layer side : {Osmirel::CopperTop, Osmirel::CopperBottom, Osmirel::PasteBottom, Osmirel::Copper2}) {
            pad->SetPadSide(side);
            const QString before = pad->StateLine();
            pad->SetPadSide(Osmirel::Copper3);
            QVERIFY(pad->StateLine() != before);
            pad->SetPadSide(side);
            QCOMPARE(pad->StateLine(), before);
        }
    }

    void ownMaskSetterStopsWhereTheOpeningIsClosed_data()
    {
        QTest::addColumn<float>("asked");
        QTest::addColumn<float>("kept");
        QTest::newRow("wider") << 3.0F << 3.0F;
        QTest::newRow("none") << 0.0F << 0.0F;
        QTest::newRow("narrower") << -2.0F << -2.0F;
        QTest::newRow("to a point") << -4.0F << -4.0F;
        QTest::newRow("beyond") << -4.5F << -4.0F;
    }
    void ownMaskSetterStopsWhereTheOpeningIsClosed()
    {
        QFETCH(float, asked);
        QFETCH(float, kept);
        Test::TestBoard board;
        Pad* pad = board.AddSurfacePad();
        pad->SetSize(20, 8);
        pad->SetMaskClearance(asked);
        QVERIFY(pad->MaskClearance() == kept);
        pad->Via::SetMaskClearance(asked);
        QVERIFY(pad->MaskClearance() == asked);
    }

    void drillPairsTellTheLayers()
    {
        Test::TestBoard board;
        Via* via = board.AddVia();
        QCOMPARE(via->StartLayer(), Osmirel::CopperTop);
        QCOMPARE(via->EndLayer(), Osmirel::CopperBottom);
        QCOMPARE(via->EtchLayers(),
                 Layers({Osmirel::CopperTop, Osmirel::Copper2, Osmirel::Copper3, Osmirel::CopperBottom}));
        via->SetViaGroup("Top - Inner 1");
        QCOMPARE(via->ViaGroup(), QString("Top - Inner 1"));
        QCOMPARE(via->EndLayer(), Osmirel::Copper2);
        QCOMPARE(via->EtchLayers(), Layers({Osmirel::CopperTop, Osmirel::Copper2}));
        via->SetViaGroup("no such pair");
        QCOMPARE(via->ViaGroup(), QString("no such pair"));
        QCOMPARE(via->EndLayer(), Osmirel::CopperBottom); // an unknown pair goes through the whole board
    }

    // Setting a drill pair and setting back the one before is how a change of it is undone.
    void drillPairComesBack_data()
    {
        QTest::addColumn<QString>("pair");
        QTest::newRow("known") << "Top - Bottom";
        QTest::newRow("unknown") << "as drilled";
        QTest::newRow("none") << "";
    }
    void drillPairComesBack()
    {
        QFETCH(QString, pair);
        Test::TestBoard board;
        Via* via = board.AddVia(0.6, 0.3, pair);
        const QString before = via->StateLine();
        via->SetViaGroup("Top - Inner 1");
        QVERIFY(via->StateLine() != before);
        via->SetViaGroup(pair);
        QCOMPARE(via->StateLine(), before);
    }

    // Layers that are none of a drill pair's come back with the name that they went with, through any other names.
    void layersOfNoDrillPairComeBack_data()
    {
        QTest::addColumn<QString>("pair");
        QTest::newRow("of a known one") << "Top - Bottom";
        QTest::newRow("of an unknown one") << "as drilled";
        QTest::newRow("of none") << "";
    }
    void layersOfNoDrillPairComeBack()
    {
        QFETCH(QString, pair);
        Test::TestBoard board;
        Via* via = board.AddVia(0.6, 0.3, pair);
        via->SetLayers(Osmirel::Copper2, Osmirel::Copper3);
        QStringList states{via->StateLine()};
        const QStringList names{pair, "Top - Inner 1", "no such pair", "Top - Inner 1", "Top - Bottom"};
        for (int i = 1; i < names.size(); ++i) {
            via->SetViaGroup(names[i]);
            states.append(via->StateLine());
        }
        via->SetViaGroup(names.last()); // The same again.
        QCOMPARE(via->StateLine(), states.last());
        for (int i = names.size() - 1; i > 0; --i) {
            via->SetViaGroup(names[i - 1]);
            QCOMPARE(via->StateLine(), states[i - 1]);
        }
        via->SetViaGroup(pair);
        QCOMPARE(via->StateLine(), states.first());
    }

    void padsOfSomeLayersComeBack_data()
    {
        QTest::addColumn<Layer>("start");
        QTest::addColumn<Layer>("end");
        for (const Layer start : {Osmirel::CopperTop, Osmirel::Copper2, Osmirel::Copper3, Osmirel::CopperBottom}) {
            for (const Layer end : {Osmirel::CopperTop, Osmirel::Copper2, Osmirel::Copper3, Osmirel::CopperBottom}) {
                QTest::addRow("%d to %d", start, end) << start << end;
            }
        }
    }
    // Changes of type and side, taken back one after the other.
    void padsOfSomeLayersComeBack()
    {
        QFETCH(Layer, start);
        QFETCH(Layer, end);
        Test::TestBoard board;
        Pad* pad = board.AddThroughPad();
        pad->SetLayers(start, end);
        QVector<std::function<void()>> takeBack;
        QStringList states;
        const auto becomes = [&](bool smd) {
            states.append(pad->StateLine());
            takeBack.append([pad, former = pad->IsSMD()] { pad->SetTypeSMD(former); });
            pad->SetTypeSMD(smd);
            QCOMPARE(pad->IsSMD(), smd);
        };
        const auto goesTo = [&](Layer side) {
            states.append(pad->StateLine());
            takeBack.append([pad, former = pad->EndLayer()] { pad->SetPadSide(former); });
            pad->SetPadSide(side);
        };
        for (const Layer side : {Osmirel::Copper3, Osmirel::CopperBottom, Osmirel::Copper2}) {
            becomes(false);
            becomes(true);
            goesTo(side);
            becomes(true);
            becomes(false);
            goesTo(Osmirel::CopperTop);
        }
        pad->Flip();
        pad->Flip();
        while (!states.isEmpty()) {
            takeBack.takeLast()();
            QCOMPARE(pad->StateLine(), states.takeLast());
        }
        QCOMPARE(pad->StartLayer(), start);
        QCOMPARE(pad->EndLayer(), end);
    }

    // On the other side it is the opposite layer that it comes back to.
    void theFormerLayersTurnOverWithThePad()
    {
        Test::TestBoard board;
        Pad* pad = board.AddThroughPad();
        pad->SetLayers(Osmirel::CopperTop, Osmirel::Copper2);
        pad->SetTypeSMD(true);
        pad->Flip();
        pad->SetTypeSMD(false);
        QCOMPARE(pad->StartLayer(), Osmirel::CopperBottom);
        QCOMPARE(pad->EndLayer(), Osmirel::OppositeLayer(Osmirel::Copper2));
    }

    void etchLayersAreThoseOfTheBoard()
    {
        Test::TestBoard board;
        Pad* pad = board.AddSurfacePad();
        QCOMPARE(pad->EtchLayers(), Layers({Osmirel::CopperTop}));
        pad->SetPadSide(Osmirel::CopperBottom);
        QCOMPARE(pad->EtchLayers(), Layers({Osmirel::CopperBottom}));
        pad->SetPadSide(Osmirel::PasteTop);
        QCOMPARE(pad->EtchLayers(), Layers());
        pad->SetPadSide(Osmirel::Copper7); // which this board lacks
        QCOMPARE(pad->EtchLayers(), Layers());
        pad->SetLayers(Osmirel::CopperBottom, Osmirel::Copper2);
        QCOMPARE(pad->EtchLayers(), Layers({Osmirel::Copper2, Osmirel::Copper3, Osmirel::CopperBottom}));
        QCOMPARE(TGraphicsPadItem().EtchLayers(), Layers()); // of no board
    }

    void plainSettersDoNotRepaint_data()
    {
        QTest::addColumn<int>("call");
        int call = 0;
        for (const char* name : {"drill", "thermal", "mask", "paste", "number", "name"}) {
            QTest::newRow(name) << call++;
        }
    }
    void plainSettersDoNotRepaint()
    {
        QFETCH(int, call);
        const QList<PadChange> calls{
            [](Pad& pad) { pad.SetDrill(9); },          [](Pad& pad) { pad.SetThermal(Via::ThermalNo); },
            [](Pad& pad) { pad.SetMaskEnabled(true); }, [](Pad& pad) { pad.SetPasteEnabled(true); },
            [](Pad& pad) { pad.SetNumber("7"); },       [](Pad& pad) { pad.SetName("A"); },
        };
        Test::TestBoard board;
        Pad* pad = board.AddThroughPad();
        Test::RepaintLog repaints(*board.Scene());
        const QString before = pad->StateLine();
        calls.at(call)(*pad);
        QVERIFY(pad->StateLine() != before);
        QVERIFY(repaints.Take().isEmpty());
        pad->Refresh();
        QVERIFY(!repaints.Take().isEmpty());
    }

    void outlineLiesInsideTheBoundingRect_data()
    {
        static const QList<QPair<const char*, PadChange>> changes{
            {"round", [](Pad& pad) { pad.SetPadShape(Pad::ShapeRound); }},
            {"square, wide", [](Pad& pad) { pad.SetPadShape(Pad::ShapeSquare); }},
            {"octagon", [](Pad& pad) { pad.SetPadShape(Pad::ShapeOctagon); }},
            {"obround", [](Pad& pad) { pad.SetPadShape(Pad::ShapeObround); }},
            {"rectangle", [](Pad& pad) { pad.SetPadShape(Pad::ShapeRectangle); }},
            {"long octagon", [](Pad& pad) { pad.SetPadShape(Pad::ShapeLongOctagon); }},
            {"offset",
             [](Pad& pad) {
                 pad.SetCopperOffset({7, -9});
             }},
            {"offset square",
             [](Pad& pad) {
                 pad.SetCopperOffset({7, -9}), pad.SetPadShape(Pad::ShapeSquare);
             }},
            {"taper in width",
             [](Pad& pad) {
                 pad.SetTaper({5, 0});
             }},
            {"taper in height",
             [](Pad& pad) {
                 pad.SetTaper({0, 5});
             }},
            {"negative taper",
             [](Pad& pad) {
                 pad.SetTaper({0, -5});
             }},
            {"both tapers",
             [](Pad& pad) {
                 pad.SetTaper({-4, 3});
             }},
            {"extra copper",
             [](Pad& pad) {
                 QPainterPath path;
                 path.addEllipse(QPointF(-30, 20), 10, 4);
                 pad.SetExtraCopper(path);
             }},
        };
        QTest::addColumn<PadChange>("change");
        for (const auto& change : changes) {
            QTest::newRow(change.first) << change.second;
        }
    }
    void outlineLiesInsideTheBoundingRect()
    {
        QFETCH(PadChange, change);
        Test::TestBoard board;
        Pad* pad = board.AddSurfacePad();
        pad->SetSize(20, 8);
        change(*pad);
        QVERIFY(!pad->Outline().isEmpty());
        QVERIFY(Encloses(pad->boundingRect(), pad->Outline().boundingRect()));
        const QRectF plain = pad->boundingRect();
        pad->SetPasteEnabled(true);
        pad->SetPasteClearance(3);
        QVERIFY(Encloses(pad->boundingRect(), plain));
    }

    void unpickableWhenNoLayerIsVisible()
    {
        Test::TestBoard board;
        Via* via = board.AddVia();
        Pad* pad = board.AddSurfacePad();
        const auto isPicked = [&board](TGraphicsItem* item) {
            return board.Scene()->items(item->scenePos()).contains(item);
        };
        QVERIFY(isPicked(via) && isPicked(pad));
        board.LayerManager()->SetVisible(Osmirel::CopperTop, false);
        QVERIFY(isPicked(via)); // there is copper on other layers
        QVERIFY(!isPicked(pad));
        for (const Layer layer : board.LayerManager()->CopperLayers()) {
            board.LayerManager()->SetVisible(layer, false);
        }
        QVERIFY(!isPicked(via));
        board.LayerManager()->SetVisible(Osmirel::CopperTop, true);
        QVERIFY(isPicked(via) && isPicked(pad));
    }
};

PROPERTIES_TEST(TestPads)
#include "tst_pads.moc"
