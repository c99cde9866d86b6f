#include "properties/commands/TCmdWire.h"
#include "tests/commands/Links.h"
#include "tests/support/TestProgram.h"

#include <QtTest>
#include <QUndoStack>

namespace {

using LinkEnd = TGraphicsItem::LinkEnd;

void FarEnds()
{
    QTest::addColumn<QByteArray>("kind");
    for (const char* kind : {"nothing", "wire", "via", "pad", "junction", "nettie"}) {
        QTest::newRow(kind) << QByteArray(kind);
    }
}

/** Links the last end of a wire with a new item of a kind. */
void LinkLast(Test::Network& board, TGraphicsWireItem* wire, const QByteArray& kind)
{
    const QPointF at = wire->ScenePoint(LinkEnd::Last);
    TGraphicsItem* item = kind == "wire"       ? static_cast<TGraphicsItem*>(board.Wire(at, at + QPointF(50, 0)))
                          : kind == "via"      ? static_cast<TGraphicsItem*>(board.Via(at))
                          : kind == "pad"      ? static_cast<TGraphicsItem*>(board.Pad(at, "PAD"))
                          : kind == "junction" ? static_cast<TGraphicsItem*>(board.Junction(at))
                          : kind == "nettie"   ? static_cast<TGraphicsItem*>(board.NetTie(at))
                                               : nullptr;
    wire->LinkToLast(item);
}

TGraphicsWireItem* NextOf(const TGraphicsWireItem* wire)
{
    return dynamic_cast<TGraphicsWireItem*>(wire->LastLink());
}

} // namespace

class TestNodes : public QObject
{
    Q_OBJECT

private slots:
    // A node is added.

    void nodeIsTheFootOfThePerpendicular_data()
    {
        QTest::addColumn<QPointF>("from");
        QTest::addColumn<QPointF>("to");
        QTest::addColumn<QPointF>("point");
        QTest::addColumn<QPointF>("node");
        QTest::newRow("on the wire") << QPointF(0, 0) << QPointF(100, 0) << QPointF(30, 0) << QPointF(30, 0);
        QTest::newRow("beside it") << QPointF(0, 0) << QPointF(100, 0) << QPointF(30, 40) << QPointF(30, 0);
        QTest::newRow("upright wire") << QPointF(5, 0) << QPointF(5, -80) << QPointF(0, -20) << QPointF(5, -20);
        QTest::newRow("slanted wire") << QPointF(0, 0) << QPointF(100, 100) << QPointF(60, 20) << QPointF(40, 40);
        QTest::newRow("at an end") << QPointF(0, 0) << QPointF(100, 0) << QPointF(100, 7) << QPointF(100, 0);
        QTest::newRow("beyond the end") << QPointF(0, 0) << QPointF(100, 0) << QPointF(130, 9) << QPointF(130, 0);
        QTest::newRow("a wire without length") << QPointF(8, 9) << QPointF(8, 9) << QPointF(30, 9) << QPointF(8, 9);
    }
    void nodeIsTheFootOfThePerpendicular()
    {
        QFETCH(QPointF, from);
        QFETCH(QPointF, to);
        QFETCH(QPointF, point);
        QFETCH(QPointF, node);
        Test::Network board;
        auto* wire = board.Wire(from, to);
        TCmdWireAddNode command(wire, point);
        Test::CheckBothWays(command, board);
        command.redo();
        QCOMPARE(wire->Point1(), from);
        QCOMPARE(wire->Point2(), node);
        QCOMPARE(NextOf(wire)->Point1(), node);
        QCOMPARE(NextOf(wire)->Point2(), to);
    }

    void nodeOfAPlacedAndTurnedWire()
    {
        Test::Network board;
        auto* wire = board.Wire({0, 0}, {100, 0});
        wire->setPos(10, 20);
        wire->setRotation(90); // goes down from there
        TCmdWireAddNode command(wire, {33, 60});
        Test::CheckBothWays(command, board);
        command.redo();
        QCOMPARE(wire->ScenePoint(LinkEnd::Last), QPointF(10, 60));
        QCOMPARE(NextOf(wire)->ScenePoint(LinkEnd::First), QPointF(10, 60));
        QCOMPARE(NextOf(wire)->ScenePoint(LinkEnd::Last), QPointF(10, 120));
    }

    void newWireIsACopy()
    {
        Test::Network board;
        auto* wire = board.Wire({0, 0}, {100, 0}, "N", Osmirel::Copper2);
        wire->SetPenWidth(3.25F);
        wire->SetCompositionMode(5);
        wire->SetAltColor(Qt::cyan);
        wire->SetTFlag(TGraphicsItem::Lock, true);
        TCmdWireAddNode command(wire, {40, 0});
        Test::CheckBothWays(command, board);
        command.redo();
        QCOMPARE(board.Items().size(), 2);
        const TGraphicsWireItem* added = NextOf(wire);
        QCOMPARE(added->Owner(), board.Scene());
        QCOMPARE(added->Layer(), Osmirel::Copper2);
        QCOMPARE(added->PenWidth(), 3.25F);
        QCOMPARE(added->CompositionMode(), 5);
        QCOMPARE(added->AltColor(), QColor(Qt::cyan));
        QCOMPARE(added->Net(), QString("N"));
        QVERIFY(added->HasTFlag(TGraphicsItem::Lock));
        QCOMPARE(added->FirstLink(), wire);
    }

    void newWireTakesTheLastLink_data() { FarEnds(); }
    void newWireTakesTheLastLink()
    {
        QFETCH(QByteArray, kind);
        Test::Network board;
        auto* wire = board.Wire({0, 0}, {100, 0});
        auto* before = board.Wire({-50, 0}, {0, 0});
        before->LinkToLast(wire);
        LinkLast(board, wire, kind);
        TGraphicsItem* last = wire->LastLink();
        TCmdWireAddNode command(wire, {40, 0});
        Test::CheckBothWays(command, board);
        command.redo();
        QCOMPARE(wire->FirstLink(), before);
        QCOMPARE(NextOf(wire)->LastLink(), last);
        QCOMPARE(NextOf(wire)->Net(), kind == "pad" ? QString("PAD") : QString());
        QVERIFY(!last || (last->Links().contains(NextOf(wire)) && !last->Links().contains(wire)));
    }

    // Without a last link of the new wire, undo does not look after the wire's own: it goes with the new wire.
    void undoLeavesTheLinkToTheNewWireToItsDeletion()
    {
        Test::Network board;
        auto* wire = board.Wire({0, 0}, {100, 0});
        TCmdWireAddNode command(wire, {40, 0});
        command.redo();
        command.undo();
        QCOMPARE(wire->LastLink(), nullptr);
        QCOMPARE(wire->Point2(), QPointF(100, 0));
        QCOMPARE(board.Items().size(), 1);
    }

    // Without a last link of the new wire, undo leaves the wire's own as it is.
    void undoLeavesALastLinkThatIsNotTheNewWire()
    {
        Test::Network board;
        auto* wire = board.Wire({0, 0}, {100, 0});
        auto* via = board.Via({40, 0});
        TCmdWireAddNode command(wire, {40, 0});
        command.redo();
        wire->LinkToLast(via);
        command.undo();
        QCOMPARE(wire->LastLink(), via);
        QCOMPARE(via->LinkedWires().size(), 1);
    }

    void loops_data()
    {
        QTest::addColumn<QByteArray>("kind");
        for (const char* kind : {"via", "junction", "itself", "another wire"}) {
            QTest::newRow(kind) << QByteArray(kind);
        }
    }
    void loops()
    {
        QFETCH(QByteArray, kind);
        Test::Network board;
        auto* wire = board.Wire({0, 0}, {100, 0});
        TGraphicsItem* point = wire;
        if (kind == "another wire") {
            point = board.Wire({100, 0}, {0, 0});
        } else if (kind != "itself") {
            point = kind == "via" ? static_cast<TGraphicsItem*>(board.Via({0, 0})) : board.Junction({0, 0});
        }
        wire->LinkToFirst(point);
        wire->LinkToLast(point);
        QCOMPARE(wire->Links().size(), 2);
        TCmdWireAddNode command(wire, {40, 0});
        Test::CheckBothWays(command, board);
        command.redo();
        TGraphicsWireItem* added = NextOf(wire);
        QVERIFY(added && added != wire);
        QCOMPARE(wire->FirstLink(), kind == "itself" ? added : point);
        QCOMPARE(added->LastLink(), point);
    }

    void severalNodesOnOneWire()
    {
        Test::Network board;
        auto* wire = board.Wire({0, 0}, {100, 0});
        LinkLast(board, wire, "pad");
        const QString before = board.Dump();
        QUndoStack stack;
        QStringList states;
        for (const double x : {80, 60, 20}) {
            stack.push(new TCmdWireAddNode(wire, {x, 5}));
            states.append(board.Dump());
            QCOMPARE(Test::LinkFault(board), QString());
        }
        QCOMPARE(board.Items().size(), 5);
        QCOMPARE(wire->Net(), QString("PAD"));
        stack.setIndex(0);
        QCOMPARE(board.Dump(), before);
        for (const QString& state : qAsConst(states)) {
            stack.redo();
            QCOMPARE(board.Dump(), state);
        }
    }

    void addedNodeOutlivesItsCommand_data()
    {
        QTest::addColumn<bool>("isDone");
        QTest::newRow("done") << true;
        QTest::newRow("undone") << false;
    }
    void addedNodeOutlivesItsCommand()
    {
        QFETCH(bool, isDone);
        Test::Network board;
        auto* wire = board.Wire({0, 0}, {100, 0});
        LinkLast(board, wire, "via");
        auto command = std::make_unique<TCmdWireAddNode>(wire, QPointF(40, 0));
        command->redo();
        if (!isDone) {
            command->undo();
        }
        const QString before = board.Dump();
        command.reset();
        QCOMPARE(board.Dump(), before);
        QCOMPARE(Test::LinkFault(board), QString());
        QCOMPARE(board.Items().size(), isDone ? 3 : 2);
    }

    // A node is deleted.

    void joinedWireReachesToTheFarEnd_data() { FarEnds(); }
    void joinedWireReachesToTheFarEnd()
    {
        QFETCH(QByteArray, kind);
        Test::Network board;
        auto* before = board.Via({0, 0});
        auto* kept = board.Wire({0, 0}, {40, 0});
        auto* removed = board.Wire({40, 0}, {100, 30});
        kept->LinkToFirst(before);
        kept->LinkToLast(removed);
        LinkLast(board, removed, kind);
        TGraphicsItem* last = removed->LastLink();
        TCmdWireDelNode command(kept, removed);
        Test::CheckBothWays(command, board);
        command.redo();
        QCOMPARE(kept->Point1(), QPointF(0, 0));
        QCOMPARE(kept->Point2(), QPointF(100, 30));
        QCOMPARE(kept->FirstLink(), before);
        QCOMPARE(kept->LastLink(), last);
        QCOMPARE(kept->Net(), kind == "pad" ? QString("PAD") : QString());
        QCOMPARE(removed->Owner(), nullptr);
        QVERIFY(removed->Links().isEmpty());
        QVERIFY(!last || (last->Links().contains(kept) && !last->Links().contains(removed)));
        command.undo();
        QCOMPARE(removed->Owner(), board.Scene());
        QCOMPARE(kept->LastLink(), removed);
        QCOMPARE(removed->FirstLink(), kept);
    }

    void joinOfPlacedAndTurnedWires()
    {
        Test::Network board;
        auto* kept = board.Wire({0, 0}, {40, 0});
        auto* removed = board.Wire({0, 0}, {60, 0});
        removed->setPos(40, 0);
        removed->setRotation(90);
        kept->LinkToLast(removed);
        TCmdWireDelNode command(kept, removed);
        Test::CheckBothWays(command, board);
        command.redo();
        QCOMPARE(kept->Point2(), QPointF(40, 60));
    }

    // Undo brings the node to where the kept wire ended.
    void nodeIsWhereTheKeptWireEnded()
    {
        Test::Network board;
        auto* kept = board.Wire({0, 0}, {40, 0});
        auto* removed = board.Wire({43, 4}, {100, 0});
        kept->LinkToLast(removed);
        TCmdWireDelNode command(kept, removed);
        command.redo();
        command.undo();
        QCOMPARE(kept->Point2(), QPointF(40, 0));
        QCOMPARE(removed->Point1(), QPointF(40, 0));
        QCOMPARE(removed->Point2(), QPointF(100, 0));
    }

    void joinOfALoop_data()
    {
        QTest::addColumn<int>("length");
        for (const int length : {2, 3, 4}) {
            QTest::addRow("of %d wires", length) << length;
        }
    }
    void joinOfALoop()
    {
        QFETCH(int, length);
        Test::Network board;
        QList<TGraphicsWireItem*> wires;
        for (int i = 0; i < length; ++i) {
            wires.append(board.Wire({10.0 * i, 0}, {10.0 * (i + 1), 0}));
        }
        for (int i = 0; i < length; ++i) {
            wires[i]->LinkToLast(wires[(i + 1) % length]);
        }
        TCmdWireDelNode command(wires[0], wires[1]);
        Test::CheckBothWays(command, board);
        command.redo();
        QCOMPARE(wires[0]->LastLink(), wires[2 % length]);
    }

    void joinOfWiresThatBeginAndEndAtOnePlace_data()
    {
        QTest::addColumn<bool>("isVia");
        QTest::newRow("a via") << true;
        QTest::newRow("a junction") << false;
    }
    void joinOfWiresThatBeginAndEndAtOnePlace()
    {
        QFETCH(bool, isVia);
        Test::Network board;
        TGraphicsItem* place = isVia ? static_cast<TGraphicsItem*>(board.Via({0, 0})) : board.Junction({0, 0});
        auto* kept = board.Wire({0, 0}, {40, 0});
        auto* removed = board.Wire({40, 0}, {0, 0});
        kept->LinkToFirst(place);
        kept->LinkToLast(removed);
        removed->LinkToLast(place);
        TCmdWireDelNode command(kept, removed);
        Test::CheckBothWays(command, board);
        command.redo();
        QCOMPARE(place->Links().count(kept), 2);
    }

    void aWireIsNotJoinedWithItself()
    {
        Test::Network board;
        auto* wire = board.Wire({0, 0}, {40, 0});
        wire->LinkToLast(wire);
        LinkLast(board, board.Wire({0, 50}, {40, 50}), "pad");
        TCmdWireDelNode command(wire, wire);
        const QString before = board.Dump();
        Test::CheckBothWays(command, board);
        command.redo();
        QCOMPARE(board.Dump(), before);
    }

    // Both.

    void addedNodeIsDeletedAgain()
    {
        Test::Network board;
        auto* wire = board.Wire({0, 0}, {100, 0}, "N");
        LinkLast(board, wire, "junction");
        QUndoStack stack;
        const QString before = board.Dump();
        stack.push(new TCmdWireAddNode(wire, {40, 10}));
        const QString split = board.Dump();
        stack.push(new TCmdWireDelNode(wire, NextOf(wire)));
        QCOMPARE(board.Dump(), before);
        QCOMPARE(Test::LinkFault(board), QString());
        stack.undo();
        QCOMPARE(board.Dump(), split);
        stack.undo();
        QCOMPARE(board.Dump(), before);
    }

    // Later steps hold the new wire: they find it again when all is undone and redone.
    void laterStepsFindTheNewWireAgain()
    {
        Test::Network board;
        auto* wire = board.Wire({0, 0}, {100, 0}, "N");
        LinkLast(board, wire, "junction");
        QUndoStack stack;
        QStringList states{board.Dump()};
        const auto push = [&](TUndoCommand* command) {
            stack.push(command);
            states.append(board.Dump());
        };
        push(new TCmdWireAddNode(wire, {40, 10}));
        push(new TCmdWireWidth(QList<TGraphicsWireItem*>{NextOf(wire)}, 7));
        push(new TCmdWireAddNode(NextOf(wire), {80, 10}));
        push(new TCmdWireDelNode(wire, NextOf(wire)));
        push(new TCmdWireDelNode(wire, NextOf(wire)));
        for (const int index : {0, 5, 3, 4, 1, 5, 0, 2, 5}) {
            stack.setIndex(index);
            QCOMPARE(board.Dump(), states[index]);
            QCOMPARE(Test::LinkFault(board), QString());
        }
    }

    // It comes back as a copy of the wire, whatever was done to it without an undo step.
    void newWireIsMadeAnewAtEveryRedo()
    {
        Test::Network board;
        auto* wire = board.Wire({0, 0}, {100, 0}, "N", Osmirel::Copper2);
        wire->SetTFlag(TGraphicsItem::Routing, true);
        TCmdWireAddNode command(wire, {40, 10});
        command.redo();
        const QString after = board.Dump();
        TGraphicsWireItem* added = NextOf(wire);
        command.undo();
        command.redo();
        QCOMPARE(NextOf(wire), added);
        added->SetLayer(Osmirel::CopperBottom);
        added->SetPoint2({1, 1});
        added->SetPenWidth(9);
        added->Pen().setStyle(Qt::DotLine);
        added->SetCompositionMode(9);
        added->SetNet("M");
        added->SetTFlag(TGraphicsItem::Routing, false);
        added->SetTFlag(TGraphicsItem::Lock, true);
        added->SetAltColor(Qt::red);
        added->setRotation(90);
        added->setVisible(false);
        command.undo();
        wire->SetPoint2({100, 0}); // which undo took from the new wire
        added->setPos(3, 4);
        command.redo();
        QCOMPARE(board.Dump(), after);
    }

    // What was written to the wire without an undo step shows in the copy that is made of it.
    void redoCopiesTheWireAsItIsThen()
    {
        Test::Network board;
        auto* wire = board.Wire({0, 0}, {100, 0});
        TCmdWireAddNode command(wire, {40, 10});
        command.redo();
        command.undo();
        wire->SetCompositionMode(7);
        command.redo();
        QCOMPARE(NextOf(wire)->CompositionMode(), 7);
        Test::CheckBothWays(*std::make_unique<TCmdWireAddNode>(wire, QPointF(20, 0)), board);
        command.undo();
        QCOMPARE(board.Items().size(), 1);
    }

    void newWireIsNotSelectedWhenItComesBack()
    {
        Test::Network board;
        auto* wire = board.Wire({0, 0}, {100, 0});
        TCmdWireAddNode command(wire, {40, 10});
        command.redo();
        NextOf(wire)->setSelected(true);
        command.undo();
        QCOMPARE(board.Scene()->selectedItems().size(), 0);
        command.redo();
        QCOMPARE(board.Scene()->selectedItems().size(), 0);
        QVERIFY(!NextOf(wire)->isSelected());
    }

    void nothingToDoWithoutAWire()
    {
        Test::Network board;
        auto* wire = board.Wire({0, 0}, {100, 0});
        const QString before = board.Dump();
        TCmdWireAddNode add(nullptr, {1, 2});
        TCmdWireDelNode withoutKept(nullptr, wire);
        TCmdWireDelNode withoutRemoved(wire, nullptr);
        for (TUndoCommand* command : std::initializer_list<TUndoCommand*>{&add, &withoutKept, &withoutRemoved}) {
            command->redo();
            QCOMPARE(board.Dump(), before);
            command->undo();
            QCOMPARE(board.Dump(), before);
            QCOMPARE(command->id(), -1);
        }
    }
};

PROPERTIES_TEST(TestNodes)
#include "tst_nodes.moc"
