#include "properties/commands/TCmdVia.h"
#include "tests/commands/LawRows.h"
#include "tests/commands/MixedBoard.h"
#include "tests/laws/LawTable.h"
#include "tests/support/TestProgram.h"

#include <QtTest>
#include <QUndoStack>

using Test::CommandLaw;

namespace {

const CommandLaw& CurrentLaw()
{
    return Test::CurrentRowOf(Test::LawTable());
}

void EachCommand()
{
    Test::AddRowForEach(Test::LawTable());
}

/** A board with three commands of a kind on its undo stack, all done. */
struct Edited
{
    explicit Edited(const CommandLaw& law)
    {
        for (const int value : {0, 1, 0}) {
            states.append(board.Dump());
            stack.push(law.make(board.Items(), value).release());
        }
        states.append(board.Dump());
    }

    Test::MixedBoard board;
    QUndoStack stack;
    QStringList states; ///< The dump at each index of the stack as it was filled.
};

} // namespace

// What a command may touch when it goes away: nothing. The address sanitizer watches.
class TestLifetime : public QObject
{
    Q_OBJECT

private slots:
    void destroyedWhenDoneOrUndone_data() { EachCommand(); }
    void destroyedWhenDoneOrUndone()
    {
        Test::MixedBoard board;
        const int items = board.Items().size();
        for (int steps = 0; steps <= 3; ++steps) { // never done, done, undone, done again
            auto command = CurrentLaw().make(board.Items(), 0);
            for (int step = 0; step < steps; ++step) {
                step == 1 ? command->undo() : command->redo();
            }
            const QString before = board.Dump();
            command.reset();
            QCOMPARE(board.Dump(), before);
            QCOMPARE(board.Items().size(), items);
        }
    }

    void stackIsClearedAtAnyIndex_data() { EachCommand(); }
    void stackIsClearedAtAnyIndex()
    {
        for (int index = 0; index <= 3; ++index) {
            Edited edited(CurrentLaw());
            QCOMPARE(edited.board.Dump(), edited.states.last());
            edited.stack.setIndex(index);
            const QString before = edited.board.Dump();
            edited.stack.clear();
            QCOMPARE(edited.board.Dump(), before);
        }
    }

    void undoneCommandsAreDroppedByAPush_data() { EachCommand(); }
    void undoneCommandsAreDroppedByAPush()
    {
        Edited edited(CurrentLaw());
        edited.stack.setIndex(1);
        edited.stack.push(CurrentLaw().make(edited.board.Items(), 1).release());
        QCOMPARE(edited.stack.count(), 2);
        QCOMPARE(edited.board.Dump(), edited.states[2]);
    }

    void undoLimitDropsTheOldest_data() { EachCommand(); }
    void undoLimitDropsTheOldest()
    {
        const CommandLaw& law = CurrentLaw();
        Test::MixedBoard board;
        QUndoStack stack;
        stack.setUndoLimit(1);
        for (const int value : {0, 1}) {
            stack.push(law.make(board.Items(), value).release());
        }
        QCOMPARE(stack.count(), 1);
        const QString after = board.Dump();
        stack.undo();
        QVERIFY(board.Dump() != after);
        QVERIFY(!stack.canUndo());
        stack.redo();
        QCOMPARE(board.Dump(), after);
    }

    // The list that a command was made of, and the panel that made it, may be long gone.
    void outlivesTheListItWasMadeOf()
    {
        Test::TestBoard board;
        auto items = std::make_unique<QList<TGraphicsItem*>>(QList<TGraphicsItem*>{board.AddVia(), board.AddVia()});
        const QString before = board.Dump();
        TCmdViaDiam command(*items, 1.0);
        items->clear();
        items.reset();
        command.redo();
        QVERIFY(board.Dump() != before);
        command.undo();
        QCOMPARE(board.Dump(), before);
    }

    void isDestroyedAfterItsItems_data() { EachCommand(); }
    void isDestroyedAfterItsItems()
    {
        const CommandLaw& law = CurrentLaw();
        QList<TUndoCommand*> alive;
        std::unique_ptr<TUndoCommand> done;
        std::unique_ptr<TUndoCommand> undone;
        {
            Test::MixedBoard board;
            done = law.make(board.Items(), 0);
            undone = law.make(board.Items(), 1);
            undone->redo();
            undone->undo();
            done->redo();
            alive = {done.get(), undone.get()};
        }
        QCOMPARE(alive.first()->id(), law.id); // what is left can still be asked, and destroyed
        done.reset();
        undone.reset();
    }
};

PROPERTIES_TEST(TestLifetime)
#include "tst_lifetime.moc"
