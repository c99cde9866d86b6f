#include "tests/commands/LawRows.h"
#include "tests/commands/MixedBoard.h"
#include "tests/laws/LawTable.h"
#include "tests/support/Observers.h"
#include "tests/support/TestProgram.h"

#include <QSet>
#include <QtTest>
#include <QUndoStack>

#include <algorithm>

using Test::CommandLaw;
using Test::Merging;
using Test::StateFields;

namespace {

using Items = QList<TGraphicsItem*>;

/** Two commands of a law, one after the other, over possibly different items, and what they are about. */
class Session
{
public:
    explicit Session(const CommandLaw& tested) : law(tested), all(board.Items()), before(board.Lines())
    {
        std::copy_if(all.cbegin(), all.cend(), std::back_inserter(kept),
                     [this](const TGraphicsItem* item) { return law.accepts(*item); });
    }

    std::unique_ptr<TUndoCommand> Make(const Items& items, int value) const { return law.make(items, value); }

    /** The lines that the text promises once the command with that value is done over the kept items. */
    QStringList Redone(int value) const
    {
        return Changed(before, [this, value](StateFields& fields) { law.redone(fields, value); });
    }
    /** The lines that the text promises once it is undone. */
    QStringList Undone() const { return UndoneTo(before); }
    /** The same for a command that was made when the items had these lines. */
    QStringList UndoneTo(const QStringList& lines) const { return Changed(lines, law.undone); }

    /** What the kept items have in the attributes that the command writes. */
    QSet<QString> OldValues() const
    {
        QSet<QString> values;
        for (const TGraphicsItem* item : kept) {
            const StateFields fields(item->StateLine());
            StateFields written = fields;
            for (const int value : {0, 1}) {
                law.redone(written, value);
                for (const QString& name : fields.Differences(written)) {
                    values.insert(name + fields.Text(name));
                }
            }
        }
        return values;
    }

    const CommandLaw& law;
    Test::MixedBoard board;
    const Items all;
    Items kept;
    const QStringList before;

private:
    template <class Change>
    QStringList Changed(QStringList lines, Change change) const
    {
        for (int i = 0; i < all.size(); ++i) {
            if (law.accepts(*all[i])) {
                StateFields fields(lines[i]);
                change(fields);
                lines[i] = fields.Line();
            }
        }
        return lines;
    }
};

const CommandLaw& CurrentLaw()
{
    return Test::CurrentRowOf(Test::LawTable());
}

void EachCommand()
{
    Test::AddRowForEach(Test::LawTable());
}

Items Reversed(Items items)
{
    std::reverse(items.begin(), items.end());
    return items;
}

} // namespace

class TestLaws : public QObject
{
    Q_OBJECT

private slots:
    void tableHasNoCommandTwice()
    {
        QSet<QString> names;
        QSet<int> ids;
        int withId = 0;
        for (const CommandLaw& law : Test::LawTable()) {
            names.insert(law.name);
            if (law.id != -1) {
                ids.insert(law.id);
                ++withId;
            }
        }
        QCOMPARE(names.size(), static_cast<int>(Test::LawTable().size()));
        QCOMPARE(ids.size(), withId);
    }

    void tableTriesEveryCommand_data() { EachCommand(); }
    void tableTriesEveryCommand()
    {
        const Session session(CurrentLaw());
        QVERIFY2(session.kept.size() >= 2, "too few items to tell one from many");
        QVERIFY2(session.kept.size() < session.all.size(), "nothing to skip");
        QVERIFY2(session.Redone(0) != session.before, "the first value changes nothing");
        QVERIFY2(session.Redone(1) != session.Redone(0), "the second value is no other one");
        QVERIFY2(session.OldValues().size() >= 2, "every kept item has the same old value");
    }

    void hasItsIdAndNothingElse_data() { EachCommand(); }
    void hasItsIdAndNothingElse()
    {
        const Session session(CurrentLaw());
        for (const Items& items : {Items(), session.all}) {
            const auto command = session.Make(items, 0);
            QCOMPARE(command->id(), session.law.id);
            QCOMPARE(command->text(), QString());
            QCOMPARE(command->actionText(), QString());
            QCOMPARE(command->childCount(), 0);
            QCOMPARE(command->Categories(), session.law.categories);
            QVERIFY(!command->isObsolete());
        }
    }

    void makingItWritesNothing_data() { EachCommand(); }
    void makingItWritesNothing()
    {
        Session session(CurrentLaw());
        Test::RepaintLog repaints(*session.board.Scene());
        const auto command = session.Make(session.all, 0);
        QCOMPARE(session.board.Lines(), session.before);
        QVERIFY(repaints.Take().isEmpty());
    }

    void redoWritesKeptItemsAndUndoGivesEachItsOwn_data() { EachCommand(); }
    void redoWritesKeptItemsAndUndoGivesEachItsOwn()
    {
        for (const int value : {0, 1}) {
            const Session session(CurrentLaw());
            const auto command = session.Make(session.all, value);
            command->redo();
            QCOMPARE(session.board.Lines(), session.Redone(value));
            command->undo();
            QCOMPARE(session.board.Lines(), session.Undone());
            command->redo();
            QCOMPARE(session.board.Lines(), session.Redone(value));
            command->undo();
            QCOMPARE(session.board.Lines(), session.Undone());
        }
    }

    void orderOfTheListDoesNotMatter_data() { EachCommand(); }
    void orderOfTheListDoesNotMatter()
    {
        const Session session(CurrentLaw());
        const auto command = session.Make(Reversed(session.all), 0);
        command->redo();
        QCOMPARE(session.board.Lines(), session.Redone(0));
        command->undo();
        QCOMPARE(session.board.Lines(), session.Undone());
    }

    void changesOnlyItemsThatItWasGiven_data() { EachCommand(); }
    void changesOnlyItemsThatItWasGiven()
    {
        const Session session(CurrentLaw());
        for (TGraphicsItem* item : session.kept) {
            const QStringList before = session.board.Lines();
            const auto command = session.Make({item}, 1);
            command->redo();
            const QStringList after = session.board.Lines();
            command->undo();
            const QStringList undone = session.board.Lines();
            const int position = session.all.indexOf(item);
            QCOMPARE(after[position], session.Redone(1)[position]);
            QCOMPARE(undone[position], session.Undone()[position]);
            for (int other = 0; other < before.size(); ++other) {
                QVERIFY(other == position || (after[other] == before[other] && undone[other] == before[other]));
            }
        }
    }

    void skipsForeignKinds_data() { EachCommand(); }
    void skipsForeignKinds()
    {
        Session session(CurrentLaw());
        Items foreign;
        std::copy_if(session.all.cbegin(), session.all.cend(), std::back_inserter(foreign),
                     [&](TGraphicsItem* item) { return !session.law.accepts(*item); });
        QVERIFY(!foreign.isEmpty());
        Test::RepaintLog repaints(*session.board.Scene());
        for (const Items& items : {Items(), foreign}) {
            const auto command = session.Make(items, 0);
            command->redo();
            command->undo();
            command->redo();
            QCOMPARE(session.board.Lines(), session.before);
        }
        QVERIFY(repaints.Take().isEmpty());
    }

    void skipsNull_data() { EachCommand(); }
    void skipsNull()
    {
        const Session session(CurrentLaw());
        Items holey = session.all;
        holey.prepend(nullptr);
        holey.insert(4, nullptr);
        const auto command = session.Make(holey, 0);
        command->redo();
        QCOMPARE(session.board.Lines(), session.Redone(0));
        command->undo();
        QCOMPARE(session.board.Lines(), session.Undone());
        const auto overNull = session.Make({nullptr}, 0);
        overNull->redo();
        overNull->undo();
        QCOMPARE(session.board.Lines(), session.Undone());
    }

    // Old values are those of the moment when the command was made, not of the moment when it is done.
    void readsOldValuesWhenMade_data() { EachCommand(); }
    void readsOldValuesWhenMade()
    {
        const Session session(CurrentLaw());
        const auto early = session.Make(session.all, 0);
        session.Make(session.all, 1)->redo();
        early->redo();
        QCOMPARE(session.board.Lines(), session.Redone(0));
        early->undo();
        QCOMPARE(session.board.Lines(), session.Undone());
    }

    void undoBeforeRedoDoesNothing_data() { EachCommand(); }
    void undoBeforeRedoDoesNothing()
    {
        const Session session(CurrentLaw());
        session.Make(session.all, 0)->undo();
        QCOMPARE(session.board.Lines(), session.before);
    }

    void repaintsWhatItWritesOrNothing_data() { EachCommand(); }
    void repaintsWhatItWritesOrNothing()
    {
        Session session(CurrentLaw());
        Test::RepaintLog repaints(*session.board.Scene());
        int changes = 0;
        for (TGraphicsItem* item : qAsConst(session.kept)) {
            const auto command = session.Make({item}, 0);
            for (const bool redo : {true, false}) {
                const QString before = item->StateLine();
                redo ? command->redo() : command->undo();
                const QRectF repainted = repaints.Take();
                if (!session.law.repaints) {
                    QVERIFY(repainted.isEmpty());
                } else if (item->StateLine() != before && !session.law.repainted(*item)->boundingRect().isEmpty()) {
                    const QRectF drawn = session.law.repainted(*item)->sceneBoundingRect();
                    QVERIFY2(repainted.contains(drawn.center()), qPrintable(before));
                    ++changes;
                }
            }
        }
        QVERIFY(changes >= (session.law.repaints ? 2 : 0));
    }

    void hasAMergeRuleOrNone_data() { EachCommand(); }
    void hasAMergeRuleOrNone()
    {
        const CommandLaw& law = CurrentLaw();
        QCOMPARE(law.hasMergeRule, law.merging != Merging::Never);
    }

    void mergesWithAnotherValueOverTheSameItems_data() { EachCommand(); }
    void mergesWithAnotherValueOverTheSameItems()
    {
        const Session session(CurrentLaw());
        const auto first = session.Make(session.all, 0);
        first->redo();
        const auto second = session.Make(session.kept, 1); // what is skipped does not count
        second->redo();
        const bool takesOver = session.law.merging == Merging::TakeOver;
        QCOMPARE(session.law.mergeWith(*first, second.get()), takesOver);
        QCOMPARE(session.board.Lines(), session.Redone(1)); // merging itself writes nothing
        first->undo();
        QCOMPARE(session.board.Lines(), session.Undone()); // the values before the first one
        first->redo();
        QCOMPARE(session.board.Lines(), session.Redone(takesOver ? 1 : 0));
        first->undo();
        QCOMPARE(session.board.Lines(), session.Undone());
    }

    void mergesWithARepetition_data() { EachCommand(); }
    void mergesWithARepetition()
    {
        const Session session(CurrentLaw());
        const auto first = session.Make(session.all, 1);
        first->redo();
        const auto second = session.Make(session.all, 1);
        second->redo();
        QCOMPARE(session.law.mergeWith(*first, second.get()), session.law.merging != Merging::Never);
        first->undo();
        QCOMPARE(session.board.Lines(), session.Undone());
        first->redo();
        QCOMPARE(session.board.Lines(), session.Redone(1));
    }

    void mergesOverNoItems_data() { EachCommand(); }
    void mergesOverNoItems()
    {
        const Session session(CurrentLaw());
        const auto first = session.Make({}, 0);
        const auto same = session.Make({}, 0);
        const auto other = session.Make({}, 1);
        const auto overItems = session.Make(session.all, 0);
        QCOMPARE(session.law.mergeWith(*first, same.get()), session.law.merging != Merging::Never);
        QCOMPARE(session.law.mergeWith(*first, other.get()), session.law.merging == Merging::TakeOver);
        QVERIFY(!session.law.mergeWith(*first, overItems.get()));
        QVERIFY(!session.law.mergeWith(*overItems, first.get()));
        first->redo();
        QCOMPARE(session.board.Lines(), session.before);
    }

    void refusesOtherItems_data() { EachCommand(); }
    void refusesOtherItems()
    {
        const Session session(CurrentLaw());
        Items other = session.kept;
        other.replace(other.size() - 1, other.first());
        for (const Items& items : {Reversed(session.all), session.kept.mid(1), session.kept.mid(0, 1),
                                   session.kept + session.kept.mid(0, 1), other}) {
            for (const int value : {0, 1}) {
                const auto first = session.Make(session.all, 0);
                const auto second = session.Make(items, value);
                QVERIFY(!session.law.mergeWith(*first, second.get()));
                QVERIFY(!session.law.mergeWith(*second, first.get()));
                first->redo();
                QCOMPARE(session.board.Lines(), session.Redone(0)); // a refusal changes nothing
                first->undo();
                QCOMPARE(session.board.Lines(), session.Undone());
            }
        }
    }

    void refusesOtherClassesAndNull_data() { EachCommand(); }
    void refusesOtherClassesAndNull()
    {
        const Session session(CurrentLaw());
        const auto first = session.Make(session.kept, 0);
        first->redo();
        QVERIFY(!session.law.mergeWith(*first, nullptr));
        for (const CommandLaw& other : Test::LawTable()) {
            if (other.name != session.law.name) {
                const auto foreign = other.make(session.kept, 0);
                QVERIFY2(!session.law.mergeWith(*first, foreign.get()), qPrintable(other.name));
            }
        }
        const TUndoCommand plain;
        QVERIFY(!session.law.mergeWith(*first, &plain));
        first->undo();
        first->redo();
        QCOMPARE(session.board.Lines(), session.Redone(0));
    }

    void undoStackRefusesToMerge_data() { EachCommand(); }
    void undoStackRefusesToMerge()
    {
        const Session session(CurrentLaw());
        QUndoStack stack;
        for (const int value : {0, 1, 1}) {
            stack.push(session.Make(session.all, value).release());
        }
        QCOMPARE(stack.count(), 3);
        QCOMPARE(stack.index(), 3);
        const auto again = session.Make(session.all, 1);
        const auto same = session.Make(session.all, 1);
        QVERIFY(!static_cast<QUndoCommand&>(*again).mergeWith(same.get()));

        stack.setIndex(2);
        QCOMPARE(session.board.Lines(), session.UndoneTo(session.Redone(1)));
        stack.setIndex(0);
        QCOMPARE(session.board.Lines(), session.Undone());
        stack.setIndex(3);
        QCOMPARE(session.board.Lines(), session.Redone(1));
    }
};

PROPERTIES_TEST(TestLaws)
#include "tst_laws.moc"
