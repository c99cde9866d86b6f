#include "properties/commands/TCmdProjectTree.h"
#include "tests/support/TestProgram.h"

#include <application/TProjectTree.h>

#include <QtTest>
#include <QUndoStack>

namespace {

struct Tree : TProjectTree
{
    TSchPage* page = AddPage(1, "Supply");
    TSchPage* other = AddPage(2, "Output");
    TPart* part = AddPart(4, "U4", "74HC00");
    TPart* second = AddPart(5, "U5", "74HC04");
};

/** An entry that notes every column and role by which it is read or written. */
template <class Entry>
struct Watched : Entry
{
    using Entry::Entry;

    QVariant data(int column, int role) const override
    {
        asked.append({column, role});
        return Entry::data(column, role);
    }
    void setData(int column, int role, const QVariant& value) override
    {
        asked.append({column, role});
        Entry::setData(column, role, value);
    }

    mutable QList<QPair<int, int>> asked;
};

/** Redoes and undoes twice; the command is undone in the end. */
void CheckBothWays(TUndoCommand& command, const TProjectTree& tree)
{
    const QString before = tree.Dump();
    command.redo();
    const QString after = tree.Dump();
    QVERIFY(after != before);
    command.undo();
    QCOMPARE(tree.Dump(), before);
    command.redo();
    QCOMPARE(tree.Dump(), after);
    command.undo();
    QCOMPARE(tree.Dump(), before);
}

} // namespace

class TestProjectTree : public QObject
{
    Q_OBJECT

private slots:
    void aPartIsRenamedInItsSecondColumn()
    {
        Tree tree;
        TCmdPartRename command(tree.part, "74LS00");
        CheckBothWays(command, tree);
        command.redo();
        QCOMPARE(tree.part->data(1, 0).toString(), QString("74LS00"));
        QCOMPARE(tree.part->data(0, 0).toString(), QString("U4"));
        QCOMPARE(tree.second->Name(), QString("74HC04"));
        QCOMPARE(command.Categories(), 8U);
        QCOMPARE(command.id(), -1);
        QCOMPARE(command.PartToOpen(), nullptr);
    }

    void aPageIsRenamedInItsFirstColumn()
    {
        Tree tree;
        TCmdPageRename command(tree.page, "Power");
        CheckBothWays(command, tree);
        command.redo();
        QCOMPARE(tree.page->data(0, 0).toString(), QString("Power"));
        QCOMPARE(tree.page->data(1, 0).toString(), QString());
        QCOMPARE(tree.other->Name(), QString("Output"));
        QCOMPARE(command.Categories(), 0U);
        QCOMPARE(command.id(), -1);
    }

    void entriesAreAskedForTheirShownNameOnly()
    {
        const auto check = [](auto& entry, auto make, int column) {
            entry.asked.clear();
            const auto command = make();
            command->redo();
            command->undo();
            QVERIFY(entry.asked.size() >= 3); // The command reads it, writes it, and writes it back.
            for (const auto& asked : entry.asked) {
                QCOMPARE(asked, qMakePair(column, int(Qt::DisplayRole)));
            }
        };
        Watched<TPart> part(4, "U4", "74HC00");
        check(
            part, [&part] { return std::make_unique<TCmdPartRename>(&part, "A"); }, 1);
        Watched<TSchPage> page(1, "Supply");
        check(
            page, [&page] { return std::make_unique<TCmdPageRename>(&page, "A"); }, 0);
    }

    // The old name is that of the moment when the command was made.
    void oldNamesAreReadWhenMade()
    {
        Tree tree;
        TCmdPartRename early(tree.part, "A");
        TCmdPartRename late(tree.part, "B");
        late.redo();
        early.redo();
        early.undo();
        QCOMPARE(tree.part->Name(), QString("74HC00"));
    }

    void namesMayBeEmptyOrTheSame()
    {
        Tree tree;
        const QString before = tree.Dump();
        TCmdPageRename empty(tree.page, QString());
        CheckBothWays(empty, tree);
        TCmdPageRename same(tree.page, "Supply");
        same.redo();
        same.undo();
        QCOMPARE(tree.Dump(), before);
    }

    void renamesAreUndoneInTurn()
    {
        Tree tree;
        QUndoStack stack;
        QStringList states{tree.Dump()};
        for (int i = 0; i < 6; ++i) {
            const QString name = QString::number(i);
            stack.push(i % 2 == 0 ? static_cast<QUndoCommand*>(new TCmdPartRename(tree.part, name))
                                  : new TCmdPageRename(i == 3 ? tree.page : tree.other, name));
            states.append(tree.Dump());
        }
        for (const int index : {3, 0, 6, 1}) {
            stack.setIndex(index);
            QCOMPARE(tree.Dump(), states[index]);
        }
    }

    void withoutAnEntryNothingIsRenamed()
    {
        for (const auto& command : {std::shared_ptr<TUndoCommand>(new TCmdPartRename(nullptr, "A")),
                                    std::shared_ptr<TUndoCommand>(new TCmdPageRename(nullptr, "A"))}) {
            command->redo();
            command->undo();
        }
    }

    void aPartIsOpenedAndThePreviousOneAgain()
    {
        Tree tree;
        const QString before = tree.Dump();
        TCmdPartOpen command(tree.part, tree.second);
        QCOMPARE(command.Categories(), 24U);
        QCOMPARE(command.id(), -1);
        QCOMPARE(command.PartToOpen(), nullptr);
        for (int round = 0; round < 2; ++round) {
            command.redo();
            QCOMPARE(command.PartToOpen(), tree.second);
            command.undo();
            QCOMPARE(command.PartToOpen(), tree.part);
        }
        QCOMPARE(int{command.PageToOpen()}, 0);
        QCOMPARE(tree.Dump(), before);
    }

    void noPartMayBeOpened()
    {
        Tree tree;
        TCmdPartOpen command(nullptr, tree.part);
        command.redo();
        QCOMPARE(command.PartToOpen(), tree.part);
        command.undo();
        QCOMPARE(command.PartToOpen(), nullptr);
    }

    void aPageIsOpenedAndThePreviousOneAgain()
    {
        TCmdPageOpen command(2, 4);
        QCOMPARE(command.Categories(), 32U);
        QCOMPARE(command.id(), -1);
        for (int round = 0; round < 2; ++round) {
            command.redo();
            QCOMPARE(int{command.PageToOpen()}, 4);
            command.undo();
            QCOMPARE(int{command.PageToOpen()}, 2);
        }
        QCOMPARE(command.PartToOpen(), nullptr);
    }

    // Intended: the page is open already when the command is pushed.
    void theFirstAnswerIsNoPage()
    {
        QUndoStack stack;
        auto* command = new TCmdPageOpen(2, 4);
        stack.push(command);
        QCOMPARE(int{command->OpeningPageId()}, 0);
        QCOMPARE(int{command->OpeningPageId()}, 4); // Only the first.
        stack.undo();
        QCOMPARE(int{command->OpeningPageId()}, 2);
        QCOMPARE(int{command->OpeningPageId()}, 2);
        stack.redo();
        QCOMPARE(int{command->OpeningPageId()}, 4);
    }

    // Intended: it is the first query that counts, whenever it is made.
    void aLateFirstAnswerIsNoPageEither()
    {
        TCmdPageOpen command(2, 255);
        command.redo();
        command.undo();
        QCOMPARE(int{command.OpeningPageId()}, 0);
        QCOMPARE(int{command.OpeningPageId()}, 2);
        command.redo();
        QCOMPARE(int{command.OpeningPageId()}, 255);
    }

    void theQueryLeavesWhatIsToBeOpened()
    {
        TCmdPageOpen command(2, 4);
        command.redo();
        command.OpeningPageId();
        QCOMPARE(int{command.PageToOpen()}, 4);
    }
};

PROPERTIES_TEST(TestProjectTree)
#include "tst_projecttree.moc"
