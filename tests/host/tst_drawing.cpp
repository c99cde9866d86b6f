#include "tests/support/TestBoard.h"
#include "tests/support/TestProgram.h"

#include <graphics/TGraphicsTextItem.h>
#include <objects/engine/DrawingStyle.h>

#include <QImage>
#include <QPainter>
#include <QtTest>

#include <functional>

using Pad = TGraphicsPadItem;

using Place = std::function<TGraphicsItem*(Test::TestBoard&)>;
Q_DECLARE_METATYPE(Place)

namespace {

const QColor background(1, 2, 3);

/** The surroundings of the board's only item at ten pixels to the scene unit, its position in the middle. */
class Picture
{
public:
    Picture(TBoard& board, const TGraphicsItem& item, double side = 40)
    {
        image.fill(background);
        QPainter painter(&image);
        const QPointF centre = item.scenePos();
        board.Scene()->render(&painter, image.rect(), QRectF(centre.x() - side / 2, centre.y() - side / 2, side, side));
    }

    /** The colour at a distance from the item's position, in scene units. */
    QColor At(double x, double y) const { return image.pixelColor(qRound(200 + 10 * x), qRound(200 + 10 * y)); }

    bool IsEmpty() const { return IsOnly(background); }
    bool IsOnly(const QColor& color) const
    {
        QImage plain = image;
        plain.fill(color);
        return image == plain;
    }
    bool Has(const QColor& color) const { return Count(color) > 0; }
    int Count(const QColor& color) const
    {
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                count += image.pixelColor(x, y) == color ? 1 : 0;
            }
        }
        return count;
    }

private:
    QImage image{400, 400, QImage::Format_RGB32};
};

TGraphicsRectItem* AddRectangle(TBoard& board)
{
    auto owned = std::make_unique<TGraphicsRectItem>();
    TGraphicsRectItem* rectangle = owned.get();
    board.Attach(std::move(owned));
    rectangle->SetSize(20, 10);
    rectangle->SetPenWidth(2);
    rectangle->SetLayer(Osmirel::CopperTop);
    return rectangle;
}

QColor ColorOf(TBoard& board, Osmirel::Layer layer)
{
    return board.LayerManager()->Color(layer);
}

} // namespace

class TestDrawing : public QObject
{
    Q_OBJECT

private slots:
    void surfacePadHasTheColourOfItsLayer()
    {
        Test::TestBoard board;
        Pad* pad = board.AddSurfacePad();
        pad->SetSize(20, 10);
        for (const Osmirel::Layer side : {Osmirel::CopperTop, Osmirel::CopperBottom, Osmirel::Copper2}) {
            pad->SetPadSide(side);
            const Picture picture(board, *pad);
            QCOMPARE(picture.At(0, 0), ColorOf(board, side));
            QCOMPARE(picture.At(9.5, 4.5), ColorOf(board, side));
            QCOMPARE(picture.At(10.5, 0), background);
            QCOMPARE(picture.At(0, 5.5), background);
        }
        pad->SetAltColor(Qt::magenta);
        QCOMPARE(Picture(board, *pad).At(0, 0), QColor(Qt::magenta));
    }

    void shapesDiffer_data()
    {
        // Whether there is copper near the middle of the right side, of the corner, and above the copper's box.
        QTest::addColumn<int>("shape");
        QTest::addColumn<QPointF>("inside");
        QTest::addColumn<QPointF>("outside");
        QTest::newRow("round") << int(Pad::ShapeRound) << QPointF(9.8, 0) << QPointF(8.5, 3.5);
        QTest::newRow("square") << int(Pad::ShapeSquare) << QPointF(9.8, 9.8) << QPointF(10.2, 0);
        QTest::newRow("octagon, in its corner") << int(Pad::ShapeOctagon) << QPointF(9.8, 1) << QPointF(9.5, 4.5);
        QTest::newRow("octagon, along its cut") << int(Pad::ShapeOctagon) << QPointF(8.3, 3.3) << QPointF(8.9, 3.9);
        QTest::newRow("obround") << int(Pad::ShapeObround) << QPointF(8.4, 3.4) << QPointF(9.5, 3.5);
        QTest::newRow("rectangle") << int(Pad::ShapeRectangle) << QPointF(9.8, 4.8) << QPointF(0, 5.2);
        QTest::newRow("long octagon") << int(Pad::ShapeLongOctagon) << QPointF(6.5, 4.8) << QPointF(9.5, 4.5);
    }
    void shapesDiffer()
    {
        QFETCH(int, shape);
        QFETCH(QPointF, inside);
        QFETCH(QPointF, outside);
        Test::TestBoard board;
        Pad* pad = board.AddSurfacePad();
        pad->SetSize(20, 10);
        pad->SetPadShape(static_cast<Pad::TypePadShape>(shape));
        const Picture picture(board, *pad);
        for (const QPointF sign : {QPointF(1, 1), QPointF(-1, 1), QPointF(1, -1), QPointF(-1, -1)}) {
            QCOMPARE(picture.At(sign.x() * inside.x(), sign.y() * inside.y()), ColorOf(board, Osmirel::CopperTop));
            QCOMPARE(picture.At(sign.x() * outside.x(), sign.y() * outside.y()), background);
        }
    }

    void padsAreDrawnRotated()
    {
        Test::TestBoard board;
        Pad* pad = board.AddSurfacePad();
        pad->SetSize(20, 4);
        pad->setRotation(90);
        const Picture upright(board, *pad);
        QCOMPARE(upright.At(0, 9), ColorOf(board, Osmirel::CopperTop));
        QCOMPARE(upright.At(9, 0), background);
        pad->setRotation(45); // clockwise as seen: the right end goes down
        const Picture slanting(board, *pad);
        QCOMPARE(slanting.At(6, 6), ColorOf(board, Osmirel::CopperTop));
        QCOMPARE(slanting.At(6, -6), background);
    }

    void padsTurnWithTheirPackage()
    {
        Test::TestBoard board;
        TGraphicsPackageItem* package = board.AddPackage();
        Pad* pad = board.AddSurfacePad(1, 1, package);
        pad->SetSize(20, 4);
        pad->setPos(0, 0);
        package->setRotation(90);
        QCOMPARE(Picture(board, *pad).At(0, 9), ColorOf(board, Osmirel::CopperTop));
        package->moveBy(100, 0);
        QCOMPARE(Picture(board, *package).At(0, 9), ColorOf(board, Osmirel::CopperTop));
    }

    void drillShowsAsAHole()
    {
        Test::TestBoard board;
        Pad* pad = board.AddThroughPad();
        pad->SetSize(30, 30);
        pad->SetDrill(10);
        const Picture drilled(board, *pad);
        QCOMPARE(drilled.At(0, 0), DrawingStyle::hole);
        QCOMPARE(drilled.At(4.5, 0), DrawingStyle::hole);
        QCOMPARE(drilled.At(5.5, 0), DrawingStyle::plating);
        QCOMPARE(drilled.At(14.5, 0), DrawingStyle::plating);
        pad->SetDrillStretch({8, 0});
        const Picture oblong(board, *pad);
        QCOMPARE(oblong.At(8.5, 0), DrawingStyle::hole);
        QCOMPARE(oblong.At(0, 5.5), DrawingStyle::plating);
        pad->SetTypeSMD(true); // no hole in a surface pad
        QCOMPARE(Picture(board, *pad).At(0, 0), ColorOf(board, Osmirel::CopperTop));
    }

    void viasShowTheirDrill()
    {
        Test::TestBoard board;
        TGraphicsViaItem* via = board.AddVia();
        via->SetSize(20, 20);
        via->SetDrill(8);
        const Picture through(board, *via);
        QCOMPARE(through.At(0, 0), DrawingStyle::hole);
        QCOMPARE(through.At(0, 3.5), DrawingStyle::hole);
        QCOMPARE(through.At(0, 4.5), DrawingStyle::plating);
        QCOMPARE(through.At(0, -9.5), DrawingStyle::plating);
        QCOMPARE(through.At(9, 9), background);
        via->SetViaGroup("Top - Inner 1");
        QVERIFY(Picture(board, *via).At(0, 9) != DrawingStyle::plating);
        via->SetAltColor(Qt::green);
        QCOMPARE(Picture(board, *via).At(0, 9), QColor(Qt::green));
    }

    void holesAndRectanglesAreDrawn()
    {
        Test::TestBoard board;
        TGraphicsHoleItem* hole = board.AddHole();
        hole->SetSize(20, 20);
        const Picture round(board, *hole);
        QCOMPARE(round.At(0, 0), DrawingStyle::hole);
        QCOMPARE(round.At(9, 0), DrawingStyle::hole);
        QCOMPARE(round.At(9, 9), background);

        Test::TestBoard other;
        TGraphicsRectItem* rectangle = AddRectangle(other);
        const Picture outlined(other, *rectangle);
        QCOMPARE(outlined.At(10, 0), ColorOf(other, Osmirel::CopperTop));
        QCOMPARE(outlined.At(0, -5), ColorOf(other, Osmirel::CopperTop));
        QCOMPARE(outlined.At(0, 0), background);
    }

    void packageDrawsNothingOfItsOwn()
    {
        Test::TestBoard board;
        QVERIFY(Picture(board, *board.AddPackage()).IsEmpty());
    }

    void maskAndPasteAreDrawnWhereTheirLayersAre()
    {
        Test::TestBoard board;
        board.LayerManager()->AddLayer({Osmirel::MaskTop, "Mask", QColor(200, 0, 200), ""});
        board.LayerManager()->AddLayer({Osmirel::PasteTop, "Paste", QColor(0, 200, 200), ""});
        Pad* pad = board.AddSurfacePad();
        pad->SetSize(20, 10);
        QVERIFY(!Picture(board, *pad).Has(QColor(200, 0, 200)));
        pad->SetMaskEnabled(true);
        pad->SetMaskClearance(3);
        const Picture masked(board, *pad);
        QVERIFY(masked.Has(QColor(200, 0, 200)));
        QVERIFY(!masked.Has(QColor(0, 200, 200)));
        pad->SetPasteEnabled(true);
        pad->SetPasteClearance(-2);
        QVERIFY(Picture(board, *pad).Has(QColor(0, 200, 200)));
        board.LayerManager()->SetVisible(Osmirel::MaskTop, false);
        QVERIFY(!Picture(board, *pad).Has(QColor(200, 0, 200)));
        pad->SetPadSide(Osmirel::CopperBottom);
        QVERIFY(!Picture(board, *pad).Has(QColor(0, 200, 200))); // the paste is on the other side
    }

    void hiddenWithTheLayer_data()
    {
        QTest::addColumn<Place>("place");
        QTest::newRow("surface pad") << Place([](Test::TestBoard& board) { return board.AddSurfacePad(); });
        QTest::newRow("through pad") << Place([](Test::TestBoard& board) { return board.AddThroughPad(); });
        QTest::newRow("via") << Place([](Test::TestBoard& board) { return board.AddVia(); });
        QTest::newRow("rectangle") << Place([](Test::TestBoard& board) { return AddRectangle(board); });
        QTest::newRow("hole") << Place([](Test::TestBoard& board) {
            TGraphicsHoleItem* hole = board.AddHole();
            hole->SetLayer(Osmirel::CopperTop);
            return hole;
        });
    }
    void hiddenWithTheLayer()
    {
        QFETCH(Place, place);
        Test::TestBoard board;
        TGraphicsItem* item = place(board);
        item->setSelected(true);
        QVERIFY(!Picture(board, *item).IsEmpty());
        for (const Osmirel::Layer layer : board.LayerManager()->CopperLayers()) {
            board.LayerManager()->SetVisible(layer, false);
        }
        QVERIFY(!item->IsOnVisibleLayer());
        QVERIFY(Picture(board, *item).IsEmpty());
        for (const Osmirel::Layer layer : board.LayerManager()->CopperLayers()) {
            board.LayerManager()->SetVisible(layer, true);
        }
        QVERIFY(!Picture(board, *item).IsEmpty());
    }

    void topLiesAboveBottom()
    {
        Test::TestBoard board;
        Pad* top = board.AddSurfacePad();
        Pad* bottom = board.AddSurfacePad();
        for (Pad* pad : {top, bottom}) {
            pad->SetSize(20, 20);
            pad->setPos(0, 0);
        }
        bottom->SetPadSide(Osmirel::CopperBottom);
        QCOMPARE(Picture(board, *top).At(0, 0), ColorOf(board, Osmirel::CopperTop));
        top->SetPadSide(Osmirel::CopperBottom);
        bottom->SetPadSide(Osmirel::CopperTop);
        QCOMPARE(Picture(board, *top).At(0, 0), ColorOf(board, Osmirel::CopperTop));
        bottom->SetPadSide(Osmirel::Copper2);
        QCOMPARE(Picture(board, *top).At(0, 0), ColorOf(board, Osmirel::Copper2));
    }

    void numberIsDrawnWhereItCanBeRead()
    {
        Test::TestBoard board;
        Pad* pad = board.AddSurfacePad();
        pad->SetSize(30, 30);
        const Picture plain(board, *pad);
        QVERIFY(!plain.Has(DrawingStyle::textOnCopper));
        pad->SetNumber("8");
        QVERIFY(Picture(board, *pad).Has(DrawingStyle::textOnCopper));
        QVERIFY(!Picture(board, *pad, 4000).Has(DrawingStyle::textOnCopper)); // too small from afar
    }

    // The strokes of a text are as wide as its line width, but never thinner than its font draws them.
    void strokesOfATextAreWidenedToTheLineWidth()
    {
        Test::TestBoard board;
        auto owned = std::make_unique<TGraphicsTextItem>();
        TGraphicsTextItem* text = owned.get();
        board.Attach(std::move(owned));
        text->SetText("H");
        text->SetLayer(Osmirel::SilkTop);
        text->Font().setPixelSize(30);
        const auto inked = [&](bool vector, float width) {
            text->SetVector(vector);
            text->SetLineWidth(width);
            text->UpdatePath(false);
            return Picture(board, *text).Count(ColorOf(board, Osmirel::SilkTop));
        };
        const int filled = inked(false, 6);
        QVERIFY(filled > 0);
        QCOMPARE(inked(true, 0), filled);
        QCOMPARE(inked(true, 2), filled);
        const int wider = inked(true, 4);
        QVERIFY(wider > filled);
        QVERIFY(inked(true, 6) > wider);
    }

    void itemsOfNoBoardCanBeDrawn()
    {
        QGraphicsScene scene;
        auto* pad = new TGraphicsPadItem;
        scene.addItem(pad);
        pad->SetSize(20, 20);
        pad->SetMaskEnabled(true);
        QImage image(20, 20, QImage::Format_RGB32);
        image.fill(background);
        QPainter painter(&image);
        scene.render(&painter, image.rect(), pad->sceneBoundingRect());
        QVERIFY(image.pixelColor(10, 10) != background);
    }
};

PROPERTIES_TEST(TestDrawing)
#include "tst_drawing.moc"
