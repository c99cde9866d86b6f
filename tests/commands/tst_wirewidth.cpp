#include "properties/commands/TCmdWire.h"
#include "tests/commands/Links.h"
#include "tests/support/TestProgram.h"

#include <QtTest>

namespace {

using Wires = QList<TGraphicsWireItem*>;

/** Wires of the widths given that end at one junction. */
Wires Star(Test::Network& board, TGraphicsJunctionItem* junction, const QVector<float>& widths)
{
    Wires wires;
    for (const float width : widths) {
        wires.append(board.Wire({0, 0}, {100, 10.0 * wires.size()}));
        wires.last()->SetPenWidth(width);
        wires.last()->LinkToFirst(junction);
    }
    return wires;
}

} // namespace

class TestWireWidth : public QObject
{
    Q_OBJECT

private slots:
    void junctionIsAsLargeAsItsWidestWire_data()
    {
        QTest::addColumn<int>("changed");
        QTest::addColumn<double>("width");
        QTest::addColumn<double>("size");
        QTest::newRow("wider than all") << 0 << 9.0 << 9.0;
        QTest::newRow("narrower than the widest") << 0 << 1.0 << 5.0;
        QTest::newRow("the widest becomes narrower") << 2 << 1.0 << 3.0;
        QTest::newRow("no width") << 2 << 0.0 << 3.0;
    }
    void junctionIsAsLargeAsItsWidestWire()
    {
        QFETCH(int, changed);
        QFETCH(double, width);
        QFETCH(double, size);
        Test::Network board;
        auto* junction = board.Junction({0, 0});
        junction->SetSize(5, 5);
        const Wires wires = Star(board, junction, {2, 3, 5});
        TCmdWireWidth command({wires[changed]}, width);
        Test::CheckBothWays(command, board);
        command.redo();
        QCOMPARE(junction->Size(), QSizeF(size, size));
        command.undo();
        QCOMPARE(junction->Size(), QSizeF(5, 5));
    }

    void junctionsOfBothEndsAreFitted()
    {
        Test::Network board;
        auto* first = board.Junction({0, 0});
        auto* last = board.Junction({100, 0});
        auto* wire = board.Wire({0, 0}, {100, 0});
        wire->LinkToFirst(first);
        wire->LinkToLast(last);
        TCmdWireWidth command({wire}, 7);
        Test::CheckBothWays(command, board);
        command.redo();
        QCOMPARE(first->Size(), QSizeF(7, 7));
        QCOMPARE(last->Size(), QSizeF(7, 7));
    }

    void allWiresOfAJunction()
    {
        Test::Network board;
        auto* junction = board.Junction({0, 0});
        junction->SetSize(5, 5);
        TCmdWireWidth command(Star(board, junction, {2, 3, 5}), 1.5);
        Test::CheckBothWays(command, board);
        command.redo();
        QCOMPARE(junction->Size(), QSizeF(1.5, 1.5));
    }

    void otherEndsKeepTheirSize()
    {
        Test::Network board;
        auto* wire = board.Wire({0, 0}, {100, 0});
        wire->LinkToFirst(board.Via({0, 0}));
        wire->LinkToLast(board.Pad({100, 0}));
        QStringList others;
        for (TGraphicsItem* item : {wire->FirstLink(), wire->LastLink()}) {
            others.append(item->StateLine());
        }
        TCmdWireWidth command({wire}, 7);
        Test::CheckBothWays(command, board);
        command.redo();
        QCOMPARE(QStringList({wire->FirstLink()->StateLine(), wire->LastLink()->StateLine()}), others);
    }

    // A junction is not remembered: undo fits it to its wires, as redo does.
    void undoFitsAJunctionThatDidNotFitBefore()
    {
        Test::Network board;
        auto* junction = board.Junction({0, 0});
        junction->SetSize(40, 50);
        TCmdWireWidth command(Star(board, junction, {2, 3}), 6);
        command.redo();
        QCOMPARE(junction->Size(), QSizeF(6, 6));
        command.undo();
        QCOMPARE(junction->Size(), QSizeF(3, 3));
    }

    void oneWireByItself()
    {
        Test::Network board;
        auto* junction = board.Junction({0, 0});
        const Wires wires = Star(board, junction, {2, 3});
        TCmdWireWidth command({}, 1);
        command.SetWireWidth(wires[0], 8.1);
        QCOMPARE(wires[0]->PenWidth(), 8.1F);
        QCOMPARE(junction->Size(), QSizeF(Test::Single(8.1), Test::Single(8.1)));
        command.SetWireWidth(nullptr, 8);
    }

    void widthIsGivenInSceneUnits()
    {
        Test::Network board;
        auto* wire = board.Wire({0, 0}, {100, 0});
        TCmdWireWidth(QList<TGraphicsWireItem*>{wire}, 2.5).redo();
        QCOMPARE(wire->PenWidth(), 2.5F);
    }
};

PROPERTIES_TEST(TestWireWidth)
#include "tst_wirewidth.moc"
