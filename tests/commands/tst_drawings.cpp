#include "properties/commands/TCmdOutline.h"
#include "properties/commands/TCmdPrimitive.h"
#include "tests/host/Network.h"
#include "tests/support/TestProgram.h"

#include <graphics/TGraphicsEllipseItem.h>
#include <graphics/TGraphicsLineItem.h>
#include <graphics/TGraphicsPolygonItem.h>
#include <objects/TGraphicsOutlineItem.h>

#include <QtTest>

namespace {

using Items = QList<TGraphicsItem*>;

} // namespace

class TestDrawings : public QObject
{
    Q_OBJECT

private slots:
    // What belongs to a package or symbol is changed by no command.
    void partsOfAPackageAreSkipped()
    {
        Test::Network board;
        auto* package = board.AddPackage();
        TGraphicsRectItem* part = board.Add<TGraphicsEllipseItem>({0, 0});
        part->setParentItem(package);
        part->SetSize(10, 10);
        const QString before = part->StateLine();
        const Items items{part};
        TCmdPenWidth(items, 1).redo();
        TCmdPenStyle(items, Qt::DotLine).redo();
        TCmdBrushStyle(items, 1).redo();
        TCmdLayerPrim(items, Osmirel::CopperBottom).redo();
        TCmdUserColor(items, Qt::red).redo();
        TCmdRectSize({part}, 30, 40).redo();
        QCOMPARE(part->StateLine(), before);

        part->setParentItem(nullptr);
        const QString free = part->StateLine();
        TCmdPenStyle(items, Qt::DotLine).redo();
        QVERIFY(part->StateLine() != free);
    }

    void layerCommandNeverMergesThoughItHasAnId()
    {
        Test::Network board;
        const Items items{board.Add<TGraphicsLineItem>({0, 0})};
        TCmdLayerPrim command(items, Osmirel::CopperBottom);
        const TCmdLayerPrim same(items, Osmirel::CopperBottom);
        QCOMPARE(command.id(), same.id());
        QVERIFY(!command.mergeWith(&same));
    }

    void colorsMergeOnlyWhenTheyAreEqual()
    {
        Test::Network board;
        const Items items{board.Add<TGraphicsLineItem>({0, 0}), board.Via({0, 0})};
        TCmdUserColor red(items, Qt::red);
        const TCmdUserColor again(items, Qt::red);
        const TCmdUserColor blue(items, Qt::blue);
        QVERIFY(red.mergeWith(&again));
        QVERIFY(!red.mergeWith(&blue));
        red.redo();
        QCOMPARE(items.last()->AltColor(), QColor(Qt::red));
    }

    void widthsAreTakenOver()
    {
        Test::Network board;
        auto* line = board.Add<TGraphicsLineItem>({0, 0});
        line->SetPenWidth(1);
        TCmdPenWidth first(Items{line}, 1);
        first.redo();
        const TCmdPenWidth later(Items{line}, 2);
        QVERIFY(first.mergeWith(&later));
        first.redo();
        QCOMPARE(line->PenWidth(), static_cast<float>(2 * Test::sceneUnitsPerMillimetre));
        first.undo();
        QCOMPARE(line->PenWidth(), 1.0F);
    }

    // Rectangles and polygons keep their brushes in different places; only the style is changed.
    void brushKeepsItsColor()
    {
        Test::Network board;
        auto* rectangle = board.Add<TGraphicsRectItem>({0, 0});
        auto* polygon = board.Add<TGraphicsPolygonItem>({0, 0});
        rectangle->Brush().setColor(Qt::red);
        polygon->Brush().setColor(Qt::blue);
        TCmdBrushStyle command(Items{rectangle, polygon}, Qt::CrossPattern);
        command.redo();
        QCOMPARE(rectangle->Brush(), QBrush(Qt::red, Qt::CrossPattern));
        QCOMPARE(polygon->Brush(), QBrush(Qt::blue, Qt::CrossPattern));
        command.undo();
        QCOMPARE(rectangle->Brush(), QBrush(Qt::red, Qt::NoBrush));
        QCOMPARE(polygon->Brush(), QBrush(Qt::blue, Qt::NoBrush));
    }

    // Placeholders, as long as nodes of outlines cannot be edited.
    void outlineNodeCommandsChangeNothing()
    {
        Test::Network board;
        auto* outline = board.Add<TGraphicsOutlineItem>({0, 0});
        outline->SetPoints({{0, 0, 0}, {50, 0, 0}, {50, 50, 0}});
        const QString before = board.Dump();
        TCmdOutlineAddNode add(outline, {25, 0});
        TCmdOutlineDelNode del(outline, {50, 0});
        for (TUndoCommand* command : std::initializer_list<TUndoCommand*>{&add, &del}) {
            command->redo();
            QCOMPARE(board.Dump(), before);
            command->undo();
            QCOMPARE(board.Dump(), before);
            QCOMPARE(command->id(), -1);
        }
        TCmdOutlineAddNode overNothing(nullptr, {25, 0});
        overNothing.redo();
        overNothing.undo();
    }
};

PROPERTIES_TEST(TestDrawings)
#include "tst_drawings.moc"
