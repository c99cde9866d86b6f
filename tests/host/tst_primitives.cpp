#include "tests/host/Network.h"
#include "tests/support/TestProgram.h"

#include <graphics/engine/Shapes.h>
#include <graphics/TGraphicsArcItem.h>
#include <graphics/TGraphicsEllipseItem.h>
#include <graphics/TGraphicsLineItem.h>
#include <graphics/TGraphicsPolygonItem.h>
#include <graphics/TGraphicsPolylineItem.h>
#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsKeepoutItem.h>
#include <objects/TGraphicsNetTieSchItem.h>
#include <objects/TGraphicsOutlineItem.h>
#include <objects/TGraphicsRatLineItem.h>

#include <QImage>
#include <QPainter>

#include <functional>

namespace {

using MakeItem = std::function<TGraphicsItem*(Test::Network&)>;

/** An item of every kind of a board, with no attribute at its default where that can be told. */
const QVector<QPair<const char*, MakeItem>>& EveryKind()
{
    static const QVector<QPair<const char*, MakeItem>> kinds{
        {"line",
         [](Test::Network& board) {
             auto* line = board.Add<TGraphicsLineItem>({30, 40});
             line->SetLine({-10, -5, 20, 15});
             line->SetPenWidth(3);
             line->Pen().setStyle(Qt::DashLine);
             return line;
         }},
        {"rectangle",
         [](Test::Network& board) {
             auto* rectangle = board.Add<TGraphicsRectItem>({30, 40});
             rectangle->SetSize(30, 20);
             rectangle->SetPenWidth(2);
             rectangle->Brush().setStyle(Qt::SolidPattern);
             return rectangle;
         }},
        {"ellipse",
         [](Test::Network& board) {
             auto* ellipse = board.Add<TGraphicsEllipseItem>({30, 40});
             ellipse->SetSize(30, 20);
             ellipse->Brush().setStyle(Qt::SolidPattern);
             return ellipse;
         }},
        {"polyline",
         [](Test::Network& board) {
             auto* polyline = board.Add<TGraphicsPolylineItem>({30, 40});
             polyline->SetPoints(QVector<QPointF>{{0, 0}, {20, 0}, {20, 15}});
             polyline->SetPenWidth(4);
             return polyline;
         }},
        {"polygon",
         [](Test::Network& board) {
             auto* polygon = board.Add<TGraphicsPolygonItem>({30, 40});
             polygon->SetPoints(QVector<QPointF>{{0, 0}, {30, 0}, {20, 25}});
             polygon->Brush().setStyle(Qt::SolidPattern);
             polygon->SetPenWidth(1);
             return polygon;
         }},
        {"arc",
         [](Test::Network& board) {
             auto* arc = board.Add<TGraphicsArcItem>({30, 40});
             arc->SetArc(25, 0.1, 123.456);
             arc->SetPenWidth(3);
             return arc;
         }},
        {"text",
         [](Test::Network& board) {
             auto* text = board.Add<TGraphicsTextItem>({30, 40});
             text->SetText("Two\nlines");
             text->Font().setPixelSize(20);
             text->Font().setItalic(true);
             text->SetVector(false);
             text->SetLineWidth(2);
             text->SetAlignment(Qt::AlignRight);
             text->SetMirrorV(true);
             return text;
         }},
        {"wire",
         [](Test::Network& board) {
             TGraphicsWireItem* wire = board.Wire({10, 20}, {60, 50}, "N", Osmirel::CopperBottom);
             wire->SetPenWidth(5);
             wire->SetCompositionMode(5);
             return wire;
         }},
        {"junction",
         [](Test::Network& board) {
             return board.Junction({30, 40});
         }},
        {"via",
         [](Test::Network& board) {
             TGraphicsViaItem* via = board.Via({30, 40}, "N");
             via->SetViaGroup("Top - Inner 1");
             via->SetThermal(TGraphicsViaItem::ThermalNo);
             via->SetMaskEnabled(true);
             via->SetMaskClearance(2);
             return via;
         }},
        {"pad",
         [](Test::Network& board) {
             TGraphicsPadItem* pad = board.Pad({30, 40}, "N");
             pad->SetNumber("4");
             pad->SetName("SDA");
             pad->SetPadShape(TGraphicsPadItem::ShapeRectangle);
             pad->SetSize(30, 20);
             pad->SetTaper({2, 3});
             pad->SetCopperOffset({4, 1});
             QPainterPath extra;
             extra.addRect(10, -3, 12, 6);
             pad->SetExtraCopper(extra);
             pad->SetPasteEnabled(true);
             pad->SetPasteClearance(-1);
             return pad;
         }},
        {"hole",
         [](Test::Network& board) {
             TGraphicsHoleItem* hole = board.AddHole(3);
             hole->setPos(30, 40);
             return hole;
         }},
        {"pour",
         [](Test::Network& board) {
             TGraphicsPourItem* pour = board.Pour({5, 10, 60, 50}, "N");
             pour->SetClearanceToEtch(1);
             pour->SetClearanceToBorder(2);
             pour->SetClearanceToPour(3);
             pour->SetFillType(Qt::CrossPattern);
             pour->SetLineWidth(4);
             pour->SetMinimumArea(5);
             pour->SetOnlyConnected(false);
             pour->SetPriority(6);
             pour->SetThermalEnable(true);
             pour->SetThermalLine(7);
             pour->SetThermalIsolation(8);
             pour->SetCompositionMode(0);
             pour->SetAlpha(200);
             pour->Fill();
             return pour;
         }},
        {"keepout",
         [](Test::Network& board) {
             auto* keepout = board.Add<TGraphicsKeepoutItem>({10, 10});
             keepout->SetArea(QPolygonF(QRectF(0, 0, 40, 30)));
             keepout->SetLayerEnable(Osmirel::Copper2, true);
             return keepout;
         }},
        {"outline",
         [](Test::Network& board) {
             auto* outline = board.Add<TGraphicsOutlineItem>({10, 10});
             outline->SetPoints({{0, 0, 0}, {40, 0, 0}, {55, 15, 1}, {40, 30, 0}, {0, 30, 0}});
             outline->SetPenWidth(2);
             QPainterPath slot;
             slot.addRect(10, 10, 5, 5);
             outline->SetCutOuts(slot);
             return outline;
         }},
        {"nettie",
         [](Test::Network& board) {
             TGraphicsNetTiePcbItem* tie = board.NetTie({30, 40});
             tie->SetNumber(12);
             tie->SetName("NT12");
             tie->SetNameVisible(false);
             tie->Pen().setWidthF(3);
             return tie;
         }},
        {"nettiesymbol",
         [](Test::Network& board) {
             auto* tie = board.Add<TGraphicsNetTieSchItem>({30, 40});
             tie->SetNumber(12);
             tie->SetName("NT12");
             tie->SetSymbol(2);
             return tie;
         }},
        {"package",
         [](Test::Network& board) {
             TGraphicsPackageItem* package = board.AddPackage("U7");
             package->setPos(30, 40);
             package->setRotation(30);
             package->SetValue("10k");
             package->SetPackageName("SO8@wide");
             package->SetComponentNumber(9);
             package->SetLockValue(true);
             for (const double x : {-12.0, 12.0}) {
                 TGraphicsPadItem* pad = board.AddSurfacePad(0.8, 0.6, package);
                 pad->setPos(x, 3);
                 pad->setRotation(10);
             }
             auto text = std::make_unique<TGraphicsTextItem>();
             text->SetLayer(Osmirel::SilkTop);
             text->setPos(2, -15);
             package->SetRefDesText(text.release());
             return package;
         }},
        {"ratline",
         [](Test::Network& board) {
             auto* rat = board.Add<TGraphicsRatLineItem>({});
             rat->SetLine({5, 5, 60, 50}, "N");
             rat->SetPriority("4");
             rat->Refresh();
             return rat;
         }},
    };
    return kinds;
}

void Kinds()
{
    QTest::addColumn<int>("kind");
    for (int i = 0; i < EveryKind().size(); ++i) {
        QTest::newRow(EveryKind()[i].first) << i;
    }
}

TGraphicsItem* Make(Test::Network& board, int kind)
{
    TGraphicsItem* item = EveryKind()[kind].second(board);
    item->setRotation(item->rotation() + 15);
    item->SetAltColor(Qt::green);
    item->SetTFlag(TGraphicsItem::Lock, true);
    return item;
}

/** The lines of an item and its children. */
QString State(const TGraphicsItem* item)
{
    QString state = item->StateLine();
    const QList<QGraphicsItem*> children = item->childItems();
    for (const QGraphicsItem* child : children) {
        state += '\n' + dynamic_cast<const TGraphicsItem*>(child)->StateLine();
    }
    return state;
}

QImage Picture(QGraphicsScene* scene, const QRectF& area)
{
    QImage image(200, 200, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter painter(&image);
    scene->render(&painter, {}, area, Qt::IgnoreAspectRatio);
    return image;
}

} // namespace

class TestPrimitives : public QObject
{
    Q_OBJECT

private slots:
    void theKindIsNamedLikeItsType_data() { Kinds(); }
    void theKindIsNamedLikeItsType()
    {
        QFETCH(int, kind);
        Test::Network board;
        QCOMPARE(Make(board, kind)->KindName(), QString(EveryKind()[kind].first));
    }

    void aCopyHasAllAttributesAndNoLinks_data() { Kinds(); }
    void aCopyHasAllAttributesAndNoLinks()
    {
        QFETCH(int, kind);
        Test::Network board;
        TGraphicsItem* item = Make(board, kind);
        const QString unlinked = State(item);
        item->setSelected(true);
        if (auto* wire = dynamic_cast<TGraphicsWireItem*>(item)) {
            wire->LinkToFirst(board.Via({10, 20}));
        } else if (item->CanBeLinkedTo()) {
            board.Wire({30, 40}, {0, 0})->LinkToFirst(item);
        }

        const std::unique_ptr<TGraphicsItem> copy(item->CreateCopy());
        QCOMPARE(copy->type(), item->type());
        QCOMPARE(State(copy.get()), unlinked);
        QVERIFY(!copy->Owner() && !copy->isSelected() && copy->DesignOrder() == 0);
        QCOMPARE(copy->Workspace(), item->Workspace());
        QCOMPARE(copy->Links(), QVector<TGraphicsItem*>());
        QCOMPARE(copy->zValue(), item->zValue());
        QCOMPARE(copy->boundingRect(), item->boundingRect());
    }

    void flippingTwiceRestoresTheItem_data() { Kinds(); }
    void flippingTwiceRestoresTheItem()
    {
        QFETCH(int, kind);
        Test::Network board;
        TGraphicsItem* item = Make(board, kind);
        const QString before = State(item);
        const double height = item->zValue();
        item->Flip();
        QVERIFY(State(item) != before || item->type() == ItemType::RatLine);
        item->Flip();
        QCOMPARE(State(item), before);
        QCOMPARE(item->zValue(), height);
    }

    // What is drawn lies within the bounding rectangle, and some of it within the outline: seen, picked and repainted.
    void theItemIsDrawnWithinItsBounds_data() { Kinds(); }
    void theItemIsDrawnWithinItsBounds()
    {
        QFETCH(int, kind);
        Test::Network board;
        TGraphicsItem* item = Make(board, kind);
        const QRectF area = item->sceneBoundingRect().adjusted(-20, -20, 20, 20);
        const QPolygonF bounds = item->mapToScene(item->boundingRect().adjusted(-1, -1, 1, 1));
        QRectF texts;
        const QList<QGraphicsItem*> children = item->childItems();
        for (const QGraphicsItem* child : children) {
            texts |= child->sceneBoundingRect().adjusted(-1, -1, 1, 1);
        }
        const QImage image = Picture(board.Scene(), area);
        int seen = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) != QColor(Qt::black)) {
                    const QPointF place(area.left() + (x + 0.5) * area.width() / image.width(),
                                        area.top() + (y + 0.5) * area.height() / image.height());
                    QVERIFY(bounds.containsPoint(place, Qt::OddEvenFill) || texts.contains(place));
                    ++seen;
                }
            }
        }
        QVERIFY(seen > 20);
    }

    void selectionIsDrawnAndPicksTheOutline_data() { Kinds(); }
    void selectionIsDrawnAndPicksTheOutline()
    {
        QFETCH(int, kind);
        Test::Network board;
        TGraphicsItem* item = Make(board, kind);
        if (item->type() == ItemType::RatLine) {
            item->setSelected(true);
            QVERIFY(!item->isSelected());
            QVERIFY(item->shape().isEmpty());
            return;
        }
        const QRectF area = item->sceneBoundingRect().adjusted(-20, -20, 20, 20);
        const QImage before = Picture(board.Scene(), area);
        item->setSelected(true);
        QVERIFY(Picture(board.Scene(), area) != before);
        QVERIFY(item->HasTFlag(TGraphicsItem::Selected));

        QPointF inside;
        const QRectF extent = item->Outline().boundingRect();
        for (int i = 0; i < 400; ++i) {
            const QPointF step(extent.width() / 20, extent.height() / 20);
            const QPointF point = extent.topLeft() + QPointF((i % 20 + 0.5) * step.x(), (i / 20 + 0.5) * step.y());
            if (item->Outline().contains(point)) {
                inside = item->mapToScene(point);
                break;
            }
        }
        QVERIFY(board.Scene()->items(inside).contains(item));
    }

    void aBoardOutlineGoesThroughItsPoints()
    {
        TGraphicsOutlineItem outline;
        outline.SetPoints({{0, 0, 0}, {40, 0, 0}, {55, 15, 1}, {40, 30, 0}, {0, 30, 0}});
        const QRectF extent = outline.Path().boundingRect();
        QVERIFY(std::abs(extent.width() - 55) < 0.05 && std::abs(extent.height() - 30) < 0.05);
        QVERIFY(outline.Path().contains({54, 15}));
        QVERIFY(!outline.Path().contains({54, 3}));
    }

    void anArcTurnsTowardsItsMiddle_data()
    {
        QTest::addColumn<QPointF>("middle");
        QTest::addColumn<QRectF>("extent");
        QTest::newRow("above") << QPointF(10, -10) << QRectF(0, -10, 20, 10);
        QTest::newRow("below") << QPointF(10, 10) << QRectF(0, 0, 20, 10);
        QTest::newRow("flat") << QPointF(10, 0) << QRectF(0, 0, 20, 0);
        QTest::newRow("large") << QPointF(10, -40) << QRectF(-11.25, -40, 42.5, 40);
    }
    void anArcTurnsTowardsItsMiddle()
    {
        QFETCH(QPointF, middle);
        QFETCH(QRectF, extent);
        QPainterPath path(QPointF(0, 0));
        Shapes::ArcThrough(path, middle, {20, 0});
        const QRectF found = path.boundingRect();
        const double error =
            std::max({std::abs(found.left() - extent.left()), std::abs(found.right() - extent.right()),
                      std::abs(found.top() - extent.top()), std::abs(found.bottom() - extent.bottom())});
        QVERIFY2(error < 0.05, qPrintable(QString::number(error)));
    }

    void aPolylineOnTheMillingLayerIsAMillingPath()
    {
        TGraphicsPolylineItem path;
        QCOMPARE(path.KindName(), QString("polyline"));
        path.SetLayer(Osmirel::Milling);
        QCOMPARE(path.KindName(), QString("milling"));
    }

    void keepoutsActOnCopperLayersOnly()
    {
        TGraphicsKeepoutItem keepout;
        QCOMPARE(keepout.LayerEnables(), QVector<bool>(8, false));
        keepout.SetLayerEnable(Osmirel::Copper3, true);
        keepout.SetLayerEnable(Osmirel::SilkTop, true);
        QVERIFY(keepout.IsLayerEnable(Osmirel::Copper3));
        QVERIFY(!keepout.IsLayerEnable(Osmirel::SilkTop));
        QCOMPARE(keepout.LayerEnables().count(true), 1);
        QVERIFY(keepout.LayerEnables().at(2));
    }
};

PROPERTIES_TEST(TestPrimitives)
#include "tst_primitives.moc"
