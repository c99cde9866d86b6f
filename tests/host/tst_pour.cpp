#include "tests/host/Network.h"
#include "tests/support/TestProgram.h"

#include <graphics/TGraphicsTextItem.h>
#include <objects/engine/TPourFill.h>
#include <objects/TGraphicsKeepoutItem.h>
#include <objects/TGraphicsOutlineItem.h>

#include <QImage>
#include <QPainter>

#include <cmath>

namespace {

constexpr double squareMillimetre = Test::sceneUnitsPerMillimetre * Test::sceneUnitsPerMillimetre;

QPointF OnCircle(double radius, double degrees)
{
    const double angle = degrees * 3.14159265358979323846 / 180;
    return radius * QPointF(std::cos(angle), std::sin(angle));
}

} // namespace

class TestPour : public QObject
{
    Q_OBJECT

private slots:
    void anEmptyPourIsFilledOnlyWhenAsked()
    {
        Test::Network board;
        auto* pour = board.Add<TGraphicsPourItem>({});
        pour->SetArea(QPolygonF(QRectF(0, 0, 100, 50)));
        QVERIFY(pour->FilledPath().isEmpty());
        QVERIFY(!pour->IsFilledAt({50, 25}));
        pour->Fill();
        QVERIFY(pour->IsFilledAt({50, 25}));
        QVERIFY(!pour->IsFilledAt({101, 25}));
    }

    // Filled just outside the clearance all around, and nowhere inside it.
    void otherNetsAreKeptClear_data()
    {
        QTest::addColumn<double>("clearance");
        QTest::addColumn<double>("lineWidth");
        for (const double clearance : {0.0, 3.0, 12.5}) {
            for (const double lineWidth : {0.0, 2.0, 6.0}) {
                QTest::addRow("clearance %g, line width %g", clearance, lineWidth) << clearance << lineWidth;
            }
        }
    }
    void otherNetsAreKeptClear()
    {
        QFETCH(double, clearance);
        QFETCH(double, lineWidth);
        Test::Network board;
        board.Via({0, 0}, "A")->SetSize(20, 20);
        TGraphicsWireItem* wire = board.Wire({60, -30}, {60, 30}, "A");
        wire->SetPenWidth(8);
        TGraphicsPourItem* pour = board.Pour({-100, -100, 250, 200}, "N");
        pour->SetClearanceToEtch(clearance);
        pour->SetLineWidth(lineWidth);
        pour->Fill();
        constexpr double tolerance = 0.25;
        for (int degrees = 0; degrees < 360; degrees += 5) {
            QVERIFY(pour->IsFilledAt(OnCircle(10 + clearance + tolerance, degrees)));
            // Without clearance a circle is kept clear to within the corners that stand for it.
            const double inside = clearance > 0 ? 1e-3 : 0.06;
            QVERIFY(!pour->IsFilledAt(OnCircle(10 + clearance - inside, degrees)));
        }
        for (double y = -30; y <= 30; y += 4) {
            QVERIFY(pour->IsFilledAt({60 + 4 + clearance + tolerance, y}));
            QVERIFY(!pour->IsFilledAt({60 + 4 + clearance - 1e-3, y}));
        }
        QVERIFY(!pour->IsFilledAt({60, 30 + 4 + clearance - 1e-3}));
        QVERIFY(pour->IsFilledAt({60, 30 + 4 + clearance + tolerance}));
        // The copper ends where the area ends, whatever the lines are that draw it.
        QVERIFY(pour->IsFilledAt({-99.9, 0}));
        QVERIFY(!pour->IsFilledAt({-100.1, 0}));
    }

    void ownNetAndOtherLayersAreCovered()
    {
        Test::Network board;
        board.Wire({-30, 0}, {30, 0}, "N");
        board.Wire({-30, 20}, {30, 20}, "A", Osmirel::CopperBottom);
        board.Via({0, 40}, "A")->SetLayers(Osmirel::Copper2, Osmirel::CopperBottom);
        TGraphicsPourItem* pour = board.Pour({-100, -100, 200, 200}, "N");
        pour->SetClearanceToEtch(5);
        pour->Fill();
        for (const QPointF& point : {QPointF(0, 0), QPointF(0, 20), QPointF(0, 40)}) {
            QVERIFY(pour->IsFilledAt(point));
        }
        pour->SetNet("A"); // Stores and refills.
        QVERIFY(!pour->IsFilledAt({0, 0}));
    }

    void copperWithoutNetIsKeptClearToo()
    {
        Test::Network board;
        auto* text = board.Add<TGraphicsTextItem>({0, 0});
        text->SetText("REV");
        text->SetLayer(Osmirel::CopperTop);
        board.AddHole(1)->setPos(50, 50);
        TGraphicsPourItem* pour = board.Pour({-100, -100, 200, 200}, QString());
        pour->SetClearanceToEtch(2);
        pour->Fill();
        QVERIFY(!pour->IsFilledAt({0, 0}));
        QVERIFY(!pour->IsFilledAt({50, 50}));
        QVERIFY(pour->IsFilledAt({-50, 0}));
    }

    void thermalSpokesBridgeTheIsolation_data()
    {
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<int>("choice");
        QTest::addColumn<bool>("spokes");
        QTest::newRow("by the pour, on") << true << int(TGraphicsViaItem::ThermalAuto) << true;
        QTest::newRow("by the pour, off") << false << int(TGraphicsViaItem::ThermalAuto) << false;
        QTest::newRow("the pad says yes") << false << int(TGraphicsViaItem::ThermalYes) << true;
        QTest::newRow("the pad says no") << true << int(TGraphicsViaItem::ThermalNo) << false;
    }
    void thermalSpokesBridgeTheIsolation()
    {
        QFETCH(bool, enabled);
        QFETCH(int, choice);
        QFETCH(bool, spokes);
        Test::Network board;
        TGraphicsPadItem* pad = board.Pad({0, 0}, "N");
        pad->SetSize(20, 20);
        pad->SetThermal(static_cast<TGraphicsViaItem::TypeThermal>(choice));
        TGraphicsPourItem* pour = board.Pour({-100, -100, 200, 200}, "N");
        pour->SetThermalEnable(enabled);
        pour->SetThermalIsolation(6);
        pour->SetThermalLine(4);
        pour->SetLineWidth(1);
        pour->Fill();
        for (int degrees = 0; degrees < 360; degrees += 45) {
            const bool onSpoke = degrees % 90 == 0;
            QCOMPARE(pour->IsFilledAt(OnCircle(13, degrees)), onSpoke || !spokes);
            QVERIFY(pour->IsFilledAt(OnCircle(16.5, degrees)));
        }
        // A spoke is as wide as the thermal line.
        QCOMPARE(pour->IsFilledAt({13, 1.9}), true);
        QCOMPARE(pour->IsFilledAt({13, 2.1}), !spokes);
    }

    void spokesTurnWithThePad()
    {
        Test::Network board;
        TGraphicsPadItem* pad = board.Pad({0, 0}, "N");
        pad->SetSize(20, 20);
        pad->setRotation(45);
        TGraphicsPourItem* pour = board.Pour({-100, -100, 200, 200}, "N");
        pour->SetThermalEnable(true);
        pour->SetThermalIsolation(6);
        pour->SetThermalLine(4);
        pour->Fill();
        QVERIFY(pour->IsFilledAt(OnCircle(13, 45)));
        QVERIFY(!pour->IsFilledAt(OnCircle(13, 0)));
    }

    void spokesThatReachNoCopperAreLeftOut()
    {
        Test::Network board;
        board.Pad({0, 0}, "N")->SetSize(20, 20);
        TGraphicsPadItem* around = board.Pad({0, 0}, "A");
        around->SetSize(20, 20);
        TGraphicsPourItem* pour = board.Pour({-100, -100, 200, 200}, "N");
        pour->SetThermalEnable(true);
        pour->SetThermalIsolation(6);
        pour->SetThermalLine(4);
        pour->SetClearanceToEtch(8);
        pour->Fill();
        QVERIFY(!pour->IsFilledAt({13, 0}));
        QVERIFY(!pour->IsFilledAt({0, 0}));
    }

    void smallPiecesAreLeftOut()
    {
        Test::Network board;
        TGraphicsWireItem* wall = board.Wire({20, -200}, {20, 200}, "A");
        wall->SetPenWidth(4);
        TGraphicsPourItem* pour = board.Pour({0, 0, 100, 50}, "N");
        const double smallPiece = 18 * 50 / squareMillimetre;
        pour->SetMinimumArea(smallPiece - 0.1);
        pour->Fill();
        QVERIFY(pour->IsFilledAt({10, 25}));
        QVERIFY(pour->IsFilledAt({60, 25}));
        pour->SetMinimumArea(smallPiece + 0.1);
        pour->Fill();
        QVERIFY(!pour->IsFilledAt({10, 25}));
        QVERIFY(pour->IsFilledAt({60, 25}));
    }

    void piecesWithoutConnectionAreLeftOutOnDemand()
    {
        Test::Network board;
        board.Wire({50, -200}, {50, 200}, "A");
        board.Via({80, 25}, "N");
        TGraphicsPourItem* pour = board.Pour({0, 0, 100, 50}, "N");
        pour->Fill();
        QVERIFY(pour->IsFilledAt({25, 25}));
        pour->SetOnlyConnected(true);
        pour->Fill();
        QVERIFY(!pour->IsFilledAt({25, 25}));
        QVERIFY(pour->IsFilledAt({70, 25}));
        board.Wire({25, 25}, {30, 25}, "N");
        pour->Fill();
        QVERIFY(pour->IsFilledAt({10, 25}));
    }

    void theStrongerPourFillsWhereTwoOverlap()
    {
        Test::Network board;
        TGraphicsPourItem* wide = board.Pour({0, 0, 100, 100}, "N");
        TGraphicsPourItem* inside = board.Pour({40, 40, 20, 20}, "M");
        wide->SetClearanceToPour(5);
        inside->SetClearanceToPour(7);
        const auto fillBoth = [&] {
            wide->Fill();
            inside->Fill();
        };
        fillBoth(); // Equals: the one that was there first.
        QVERIFY(wide->IsFilledAt({50, 50}));
        QVERIFY(!inside->IsFilledAt({50, 50}));

        inside->SetPriority(3);
        fillBoth();
        QVERIFY(inside->IsFilledAt({50, 50}));
        QVERIFY(!wide->IsFilledAt({50, 50}));
        QVERIFY(!wide->IsFilledAt({35.1, 50}));
        QVERIFY(wide->IsFilledAt({34.8, 50}));

        inside->SetNet("N");
        wide->Fill();
        QVERIFY(wide->IsFilledAt({50, 50}));
    }

    void keepoutsActOnTheirLayersOnly()
    {
        Test::Network board;
        auto* keepout = board.Add<TGraphicsKeepoutItem>({});
        keepout->SetArea(QPolygonF(QRectF(40, 40, 20, 20)));
        keepout->SetLayerEnable(Osmirel::CopperBottom, true);
        TGraphicsPourItem* pour = board.Pour({0, 0, 100, 100}, "N");
        pour->Fill();
        QVERIFY(pour->IsFilledAt({50, 50}));
        keepout->SetLayerEnable(Osmirel::CopperTop, true);
        QVERIFY(pour->IsFilledAt({50, 50})); // Not before the next fill.
        pour->Fill();
        QVERIFY(!pour->IsFilledAt({50, 50}));
        QVERIFY(!pour->IsFilledAt({40.1, 50}));
        QVERIFY(pour->IsFilledAt({39.9, 50}));
    }

    void theBoardsEdgeIsKeptClear()
    {
        Test::Network board;
        auto* outline = board.Add<TGraphicsOutlineItem>({});
        outline->SetPoints({{0, 0, 0}, {200, 0, 0}, {200, 100, 0}, {0, 100, 0}});
        QPainterPath slot;
        slot.addRect(90, 40, 20, 20);
        outline->SetCutOuts(slot);
        TGraphicsPourItem* pour = board.Pour({-50, -50, 300, 300}, "N");
        pour->SetClearanceToBorder(6);
        pour->SetLineWidth(2);
        pour->Fill();
        QVERIFY(!pour->IsFilledAt({5.9, 50}));
        QVERIFY(pour->IsFilledAt({6.2, 50}));
        QVERIFY(!pour->IsFilledAt({100, 50}));
        QVERIFY(!pour->IsFilledAt({84.1, 50}));
        QVERIFY(pour->IsFilledAt({83.8, 50}));
        QVERIFY(!pour->IsFilledAt({220, 50}));
    }

    void hatchesAreLinesOfTheLineWidth_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("horizontal");
        QTest::addColumn<bool>("vertical");
        QTest::newRow("no fill") << int(Qt::NoBrush) << false << false;
        QTest::newRow("horizontal") << int(Qt::HorPattern) << true << false;
        QTest::newRow("vertical") << int(Qt::VerPattern) << false << true;
        QTest::newRow("cross") << int(Qt::CrossPattern) << true << true;
    }
    void hatchesAreLinesOfTheLineWidth()
    {
        QFETCH(int, type);
        QFETCH(bool, horizontal);
        QFETCH(bool, vertical);
        Test::Network board;
        board.Via({60, 60}, "A")->SetSize(20, 20);
        TGraphicsPourItem* pour = board.Pour({0, 0, 120, 120}, "N");
        pour->SetClearanceToEtch(4);
        pour->SetLineWidth(2);
        pour->SetFillType(type);
        pour->Fill();
        const auto copperAlong = [&](const QPointF& from, const QPointF& step) {
            int filled = 0;
            for (int i = 0; i < 200; ++i) {
                filled += pour->IsFilledAt(from + i * step) ? 1 : 0;
            }
            return filled;
        };
        // In a gap of the one direction, across the lines of the other: copper and gaps in turn, or nothing.
        const int down = copperAlong({20, 10}, {0, 0.15});
        const int across = copperAlong({10, 20}, {0.15, 0});
        QCOMPARE(down > 0, horizontal);
        QCOMPARE(across > 0, vertical);
        QVERIFY(down < 100 && across < 100);
        QCOMPARE(pour->FilledPath().isEmpty(), type == Qt::NoBrush);
        QVERIFY(!pour->IsFilledAt({60, 60}));
        QVERIFY(!pour->IsFilledAt({60, 60 - 10 - 3.9}));
    }

    void movingToAnotherLayerKeepsTheCopper()
    {
        Test::Network board;
        board.Via({50, 50}, "A")->SetLayers(Osmirel::CopperTop, Osmirel::Copper2);
        TGraphicsPourItem* pour = board.Pour({0, 0, 100, 100}, "N");
        pour->Fill();
        pour->SetLayer(Osmirel::CopperBottom);
        QVERIFY(!pour->IsFilledAt({50, 50}));
        pour->Fill();
        QVERIFY(pour->IsFilledAt({50, 50}));
    }

    void narrowPlacesThatTheLineDoesNotFitAreLeftFree()
    {
        Test::Network board;
        board.Wire({-100, 0}, {200, 0}, "A")->SetPenWidth(2);
        board.Wire({-100, 8}, {200, 8}, "A")->SetPenWidth(2);
        TGraphicsPourItem* pour = board.Pour({0, -50, 100, 100}, "N");
        pour->SetLineWidth(5.8); // The gap of 6 has room for it.
        pour->Fill();
        QVERIFY(pour->IsFilledAt({50, 4}));
        pour->SetLineWidth(6.4);
        pour->Fill();
        QVERIFY(!pour->IsFilledAt({50, 4}));
    }

    void aMovedAndTurnedPourFillsWhereItIs()
    {
        Test::Network board;
        board.Via({500, 40}, "A");
        TGraphicsPourItem* pour = board.Pour({0, -50, 100, 100}, "N");
        pour->setPos(500, 0);
        pour->setRotation(90);
        pour->SetClearanceToEtch(2);
        pour->Fill();
        QVERIFY(pour->IsFilledAt({500, 80}));
        QVERIFY(!pour->IsFilledAt({500, 40}));
        QVERIFY(!pour->IsFilledAt({500, -10}));
    }

    void theCopperIsNoPartOfTheState()
    {
        Test::Network board;
        TGraphicsPourItem* pour = board.Pour({0, 0, 100, 100}, "N");
        const QString before = pour->StateLine();
        board.Via({50, 50}, "A");
        pour->Fill();
        QVERIFY(!pour->IsFilledAt({50, 50}));
        QCOMPARE(pour->StateLine(), before);
    }

    void theCopperIsDrawn()
    {
        Test::Network board;
        board.Via({50, 50}, "A");
        TGraphicsPourItem* pour = board.Pour({0, 0, 100, 100}, "N");
        pour->SetClearanceToEtch(10);
        pour->SetAltColor(Qt::green);
        pour->SetAlpha(255);
        pour->Fill();
        for (const double scale : {0.4, 1.0, 5.0}) {
            const int side = static_cast<int>(100 * scale);
            QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::black);
            QPainter painter(&image);
            board.Scene()->render(&painter, {}, {0, 0, 100, 100});
            painter.end();
            QCOMPARE(image.pixelColor(side / 5, side / 5), QColor(Qt::green));
            QCOMPARE(image.pixelColor(side / 2 + static_cast<int>(9 * scale), side / 2), QColor(Qt::black));
        }
    }
};

PROPERTIES_TEST(TestPour)
#include "tst_pour.moc"
