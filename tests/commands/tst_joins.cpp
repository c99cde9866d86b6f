#include "properties/commands/TCmdWire.h"
#include "tests/commands/Links.h"
#include "tests/support/TestProgram.h"

#include <QtTest>

/** Who owns the wire that is removed when two wires are joined, and where it comes back. */
class TestJoins : public QObject
{
    Q_OBJECT

private slots:
    void removedWireIsDeletedOnlyWhileItIsOffTheBoard_data()
    {
        QTest::addColumn<int>("steps");
        QTest::newRow("never done") << 0;
        QTest::newRow("done") << 1;
        QTest::newRow("undone") << 2;
        QTest::newRow("done again") << 3;
    }
    void removedWireIsDeletedOnlyWhileItIsOffTheBoard()
    {
        QFETCH(int, steps);
        int gone = 0;
        {
            Test::Network board;
            auto* kept = board.Wire({0, 0}, {40, 0});
            auto* removed = board.Add<Test::Mortal<TGraphicsWireItem>>({});
            removed->gone = &gone;
            removed->SetPoint1({40, 0});
            removed->SetPoint2({80, 0});
            kept->LinkToLast(removed);
            removed->LinkToLast(board.Pad({80, 0}, "PAD"));
            auto command = std::make_unique<TCmdWireDelNode>(kept, removed);
            for (int i = 0; i < steps; ++i) {
                i % 2 == 0 ? command->redo() : command->undo();
            }
            QCOMPARE(gone, 0);
            const QString before = board.Dump();
            command.reset();
            QCOMPARE(gone, steps % 2);
            QCOMPARE(board.Dump(), before);
            QCOMPARE(Test::LinkFault(board), QString());
        }
        QCOMPARE(gone, 1);
    }

    // It goes where the kept wire is, and not where it came from.
    void removedWireComesBackToTheBoardOfTheKeptOne()
    {
        Test::Network board;
        Test::Network other;
        auto* kept = board.Wire({0, 0}, {40, 0});
        auto* removed = other.Wire({40, 0}, {80, 0});
        kept->LinkToLast(removed);
        TCmdWireDelNode command(kept, removed);
        command.redo();
        QCOMPARE(removed->Owner(), nullptr);
        command.undo();
        QCOMPARE(removed->Owner(), board.Scene());
        QCOMPARE(removed->FirstLink(), kept);
    }

    void removedWireOfNoBoard_data()
    {
        QTest::addColumn<bool>("keptIsOnABoard");
        QTest::newRow("joined with one on a board") << true;
        QTest::newRow("joined with one of no board") << false;
    }
    // While the join is in force it is the command's; after undo it is on the board of the other, if that is on one.
    void removedWireOfNoBoard()
    {
        QFETCH(bool, keptIsOnABoard);
        int gone = 0;
        Test::Network board;
        std::unique_ptr<TGraphicsWireItem> loose = std::make_unique<TGraphicsWireItem>();
        auto* kept = keptIsOnABoard ? board.Wire({0, 0}, {40, 0}) : loose.get();
        const auto makeRemoved = [&] {
            auto* removed = new Test::Mortal<TGraphicsWireItem>;
            removed->gone = &gone;
            removed->SetPoint1({40, 0});
            removed->SetPoint2({80, 0});
            kept->LinkToLast(removed);
            return removed;
        };
        auto* removed = makeRemoved();
        {
            TCmdWireDelNode command(kept, removed);
            command.redo();
            command.undo();
        }
        QCOMPARE(gone, 0);
        QCOMPARE(kept->LastLink(), removed);
        QCOMPARE(removed->Owner(), kept->Owner());
        delete removed;
        gone = 0;
        {
            TCmdWireDelNode command(kept, makeRemoved());
            command.redo();
            QCOMPARE(gone, 0);
        }
        QCOMPARE(gone, 1);
    }

    // Nobody would own it otherwise.
    void removedWireComesBackToItsOwnBoardIfTheKeptOneIsOnNone()
    {
        Test::Network board;
        const std::unique_ptr<TGraphicsWireItem> kept(new TGraphicsWireItem);
        auto* removed = board.Wire({40, 0}, {80, 0});
        kept->LinkToLast(removed);
        TCmdWireDelNode command(kept.get(), removed);
        command.redo();
        command.undo();
        QCOMPARE(removed->Owner(), board.Scene());
    }

    void joinOutlivesItsBoard()
    {
        int gone = 0;
        std::unique_ptr<TCmdWireDelNode> command;
        {
            Test::Network board;
            auto* removed = board.Add<Test::Mortal<TGraphicsWireItem>>({});
            removed->gone = &gone;
            command = std::make_unique<TCmdWireDelNode>(board.Wire({0, 0}, {40, 0}), removed);
            command->redo();
        }
        QCOMPARE(gone, 0);
        command.reset();
        QCOMPARE(gone, 1);
    }
};

PROPERTIES_TEST(TestJoins)
#include "tst_joins.moc"
