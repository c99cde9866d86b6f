#include "tests/support/TestProgram.h"

#include <workspace/TDoubleSpinBox.h>
#include <workspace/TWorkspace.h>

#include <QtTest>

using Layers = QList<Osmirel::Layer>;

class TestWorkspace : public QObject
{
    Q_OBJECT

private slots:
    void lengthsAreShownInTheCurrentUnit_data()
    {
        QTest::addColumn<int>("unit");
        QTest::addColumn<QString>("name");
        QTest::addColumn<double>("inch");
        QTest::newRow("millimetres") << static_cast<int>(TWorkspace::Unit::Millimetre) << "mm" << 25.4;
        QTest::newRow("mils") << static_cast<int>(TWorkspace::Unit::Mil) << "mil" << 1000.0;
        QTest::newRow("inches") << static_cast<int>(TWorkspace::Unit::Inch) << "in" << 1.0;
    }
    void lengthsAreShownInTheCurrentUnit()
    {
        QFETCH(int, unit);
        QFETCH(QString, name);
        QFETCH(double, inch);
        TWorkspace workspace;
        workspace.SetCurrentUnit(static_cast<TWorkspace::Unit>(unit));
        QCOMPARE(static_cast<int>(workspace.CurrentUnit()), unit);
        QCOMPARE(workspace.CurrentUnitStr(), name);
        QCOMPARE(workspace.ValueFromScene(300.0), inch);
        QCOMPARE(workspace.ValueFromScene(-75.0), -inch / 4);
        QCOMPARE(workspace.ValueFromScene(0.0), 0.0);
    }

    void newWorkspaceIsInMillimetres()
    {
        const TWorkspace workspace;
        QCOMPARE(workspace.CurrentUnitStr(), QString("mm"));
        QCOMPARE(workspace.ValueFromScene(11.811023622047244), 1.0);
        QVERIFY(workspace.Layers().Layers().isEmpty());
        QVERIFY(workspace.Layers().DrillPairs().isEmpty());
    }

    void millimetresComeBack()
    {
        const TWorkspace workspace;
        for (int hundredths = 1; hundredths <= 10000; ++hundredths) {
            const double millimetres = hundredths / 100.0;
            const double shown = workspace.ValueFromScene(millimetres * 11.811023622047244);
            QCOMPARE(QString::number(shown, 'f', 9), QString::number(millimetres, 'f', 9));
        }
    }

    void layersAreKeptInOrder()
    {
        TLayerManager layers;
        layers.AddLayer({Osmirel::CopperBottom, "Bottom", Qt::blue, "Top"});
        layers.AddLayer({Osmirel::SilkTop, "Silk", Qt::white, ""});
        layers.AddLayer({Osmirel::CopperTop, "Top", Qt::red, "Bottom"});
        layers.AddLayer({Osmirel::Copper3, "Inner", Qt::green, ""});
        QCOMPARE(layers.Layers(),
                 Layers({Osmirel::SilkTop, Osmirel::CopperTop, Osmirel::Copper3, Osmirel::CopperBottom}));
        QCOMPARE(layers.CopperLayers(), Layers({Osmirel::CopperTop, Osmirel::Copper3, Osmirel::CopperBottom}));
    }

    void layersAreFoundByIdAndByName()
    {
        TLayerManager layers;
        layers.AddLayer({Osmirel::CopperTop, "Top", Qt::red, "Bottom"});
        QVERIFY(layers.HasLayer(Osmirel::CopperTop));
        QVERIFY(!layers.HasLayer(Osmirel::CopperBottom));
        const TLayer* top = layers.Layer(Osmirel::CopperTop);
        QVERIFY(top);
        QCOMPARE(top->id, Osmirel::CopperTop);
        QCOMPARE(top->name, QString("Top"));
        QCOMPARE(top->pairedLayer, QString("Bottom"));
        QVERIFY(top->visible);
        QVERIFY(!top->keepoutFixed);
        QVERIFY(!layers.Layer(Osmirel::CopperBottom));
        QCOMPARE(layers.LayerId("Top"), Osmirel::CopperTop);
        QCOMPARE(layers.LayerId("top"), Osmirel::NoLayer);
        QCOMPARE(layers.LayerId("Bottom"), Osmirel::NoLayer); // the name of a counterpart is no layer yet
        QCOMPARE(layers.Color(Osmirel::CopperTop), QColor(Qt::red));
        QCOMPARE(layers.Color(Osmirel::CopperBottom), QColor(Qt::gray));
    }

    void addingALayerAgainReplacesIt()
    {
        TLayerManager layers;
        layers.AddLayer({Osmirel::CopperTop, "Top", Qt::red, ""});
        layers.AddLayer({Osmirel::CopperTop, "Front", Qt::blue, ""});
        QCOMPARE(layers.Layers().size(), 1);
        QCOMPARE(layers.LayerId("Top"), Osmirel::NoLayer);
        QCOMPARE(layers.LayerId("Front"), Osmirel::CopperTop);
        QCOMPARE(layers.Color(Osmirel::CopperTop), QColor(Qt::blue));
    }

    void visibilityIsAMatterOfKnownLayers()
    {
        TLayerManager layers;
        layers.AddLayer({Osmirel::CopperTop, "Top", Qt::red, ""});
        QVERIFY(layers.IsVisible(Osmirel::CopperTop));
        layers.SetVisible(Osmirel::CopperTop, false);
        QVERIFY(!layers.IsVisible(Osmirel::CopperTop));
        QVERIFY(!layers.Layer(Osmirel::CopperTop)->visible);
        layers.SetVisible(Osmirel::CopperTop, true);
        QVERIFY(layers.IsVisible(Osmirel::CopperTop));
        layers.SetVisible(Osmirel::SilkTop, false);
        QVERIFY(layers.IsVisible(Osmirel::SilkTop));
        QVERIFY(!layers.HasLayer(Osmirel::SilkTop));
    }

    void copperLayersBetweenTwo_data()
    {
        QTest::addColumn<Osmirel::Layer>("from");
        QTest::addColumn<Osmirel::Layer>("to");
        QTest::addColumn<Layers>("between");
        QTest::newRow("all") << Osmirel::CopperTop << Osmirel::CopperBottom
                             << Layers({Osmirel::CopperTop, Osmirel::Copper2, Osmirel::Copper5, Osmirel::CopperBottom});
        QTest::newRow("upward") << Osmirel::CopperBottom << Osmirel::Copper2
                                << Layers({Osmirel::Copper2, Osmirel::Copper5, Osmirel::CopperBottom});
        QTest::newRow("one") << Osmirel::Copper5 << Osmirel::Copper5 << Layers({Osmirel::Copper5});
        QTest::newRow("one that is missing") << Osmirel::Copper3 << Osmirel::Copper3 << Layers();
        QTest::newRow("ends that are missing") << Osmirel::Copper3 << Osmirel::Copper7 << Layers({Osmirel::Copper5});
        QTest::newRow("no copper") << Osmirel::MaskTop << Osmirel::MaskTop << Layers();
    }
    void copperLayersBetweenTwo()
    {
        QFETCH(Osmirel::Layer, from);
        QFETCH(Osmirel::Layer, to);
        QFETCH(Layers, between);
        TLayerManager layers;
        for (const Osmirel::Layer layer : {Osmirel::CopperBottom, Osmirel::Copper5, Osmirel::Copper2,
                                           Osmirel::CopperTop, Osmirel::MaskTop, Osmirel::MaskBottom}) {
            layers.AddLayer({layer, QString::number(layer), Qt::red, ""});
        }
        QCOMPARE(layers.CopperLayers(from, to), between);
    }

    // From the paste of one side to that of the other lies all copper, and yet neither end is copper.
    void betweenLayersThatAreNoCopperIsNone()
    {
        TLayerManager layers;
        layers.AddLayer({Osmirel::CopperTop, "Top", Qt::red, ""});
        QCOMPARE(layers.CopperLayers(Osmirel::PasteTop, Osmirel::PasteBottom), Layers());
    }

    void drillPairsKeepTheirOrder()
    {
        TLayerManager layers;
        layers.AddDrillPair({"b", Osmirel::CopperTop, Osmirel::CopperBottom});
        layers.AddDrillPair({"a", Osmirel::CopperTop, Osmirel::Copper2});
        layers.AddDrillPair({"b", Osmirel::Copper2, Osmirel::Copper3});
        QCOMPARE(layers.DrillPairs().size(), 2);
        QCOMPARE(layers.DrillPairs()[0].name, QString("b"));
        QCOMPARE(layers.DrillPairs()[0].first, Osmirel::Copper2);
        QCOMPARE(layers.DrillPairs()[1].name, QString("a"));
        QVERIFY(layers.DrillPair("a"));
        QCOMPARE(layers.DrillPair("a")->last, Osmirel::Copper2);
        QVERIFY(!layers.DrillPair("A"));
        QVERIFY(!layers.DrillPair(""));
    }

    void layerNumbersAreThoseOfTheApplication()
    {
        QCOMPARE(static_cast<int>(Osmirel::CopperTop), 68);
        QCOMPARE(static_cast<int>(Osmirel::CopperBottom), 75);
        QCOMPARE(static_cast<int>(Osmirel::SchematicBuses), 21);
        QCOMPARE(static_cast<int>(Osmirel::PackagesTop), 59);
        QCOMPARE(static_cast<int>(Osmirel::PackagesBottom), 84);
        QCOMPARE(static_cast<int>(Osmirel::Milling), 96);
        QCOMPARE(Osmirel::maxCopperLayers, 8);
    }

    void oppositeLayersChangeSides()
    {
        QCOMPARE(Osmirel::OppositeLayer(Osmirel::CopperTop), Osmirel::CopperBottom);
        QCOMPARE(Osmirel::OppositeLayer(Osmirel::CopperBottom), Osmirel::CopperTop);
        QCOMPARE(Osmirel::OppositeLayer(Osmirel::Copper2), Osmirel::Copper7);
        QCOMPARE(Osmirel::OppositeLayer(Osmirel::PasteTop), Osmirel::PasteBottom);
        QCOMPARE(Osmirel::OppositeLayer(Osmirel::MaskTop), Osmirel::MaskBottom);
        QCOMPARE(Osmirel::OppositeLayer(Osmirel::SilkBottom), Osmirel::SilkTop);
        QCOMPARE(Osmirel::OppositeLayer(Osmirel::PackagesTop), Osmirel::PackagesBottom);
        QCOMPARE(Osmirel::OppositeLayer(Osmirel::DrawingsTop), Osmirel::DrawingsBottom);
        for (const Osmirel::Layer layer :
             {Osmirel::NoLayer, Osmirel::SchematicBuses, Osmirel::BoardOutline, Osmirel::Milling}) {
            QCOMPARE(Osmirel::OppositeLayer(layer), layer);
        }
    }

    void copperIsFromTopToBottom()
    {
        for (int layer = 0; layer < 100; ++layer) {
            QCOMPARE(Osmirel::IsCopper(static_cast<Osmirel::Layer>(layer)), layer >= 68 && layer <= 75);
        }
    }

    void spinBoxHasItsDefaults()
    {
        const TDoubleSpinBox spin;
        QCOMPARE(spin.decimals(), 2);
        QCOMPARE(spin.singleStep(), 0.05);
        QCOMPARE(spin.suffix(), QString(" mm"));
    }
};

PROPERTIES_TEST(TestWorkspace)
#include "tst_workspace.moc"
