#include "properties/commands/TCmdBusEntry.h"
#include "tests/commands/Links.h"
#include "tests/commands/SheetDesign.h"
#include "tests/support/Observers.h"
#include "tests/support/TestProgram.h"

#include <QUndoStack>

using Test::SheetDesign;
using Items = QVector<TGraphicsItem*>;

namespace {

/** A bus with three entries: one whose net wire starts at it, one whose net wire ends at it, and one without. */
struct Design : SheetDesign
{
    Design()
    {
        for (TGraphicsBusEntryItem* entry : {starting, ending, bare}) {
            entry->LinkToBus(bus);
        }
        away->LinkToFirst(starting);
        towards->LinkToLast(ending);
    }

    TGraphicsBusItem* bus = sheet.Bus({0, 0}, {300, 0}, "D[0..2]");
    TGraphicsBusEntryItem* starting = sheet.Entry({0, 0});
    TGraphicsBusEntryItem* ending = sheet.Entry({100, 0});
    TGraphicsBusEntryItem* bare = sheet.Entry({200, 0});
    TGraphicsNetItem* away = sheet.Wire({10, 10}, {10, 90}, "D0");
    TGraphicsNetItem* towards = sheet.Wire({110, 90}, {110, 10}, "D1");
};

} // namespace

class TestBusEntries : public QObject
{
    Q_OBJECT

private slots:
    void entriesLeaveThePageAndComeBack()
    {
        Design design;
        TCmdBusEntryDisconnect command({design.starting, design.bus, design.ending, nullptr, design.away, design.bare});
        QCOMPARE(command.id(), 1262);
        Test::CheckBothWays(command, design);
        command.redo();
        QCOMPARE(design.bus->Links() + design.away->Links() + design.towards->Links(), Items());
        for (const TGraphicsBusEntryItem* entry : {design.starting, design.ending, design.bare}) {
            QCOMPARE(entry->Links(), Items());
            QCOMPARE(entry->Owner(), nullptr);
            QCOMPARE(entry->scene(), nullptr);
        }
        command.undo();
        QCOMPARE(design.away->FirstLink(), design.starting);
        QCOMPARE(design.towards->LastLink(), design.ending);
        QCOMPARE(design.bare->NetLink(), nullptr);
        for (TGraphicsBusEntryItem* entry : {design.starting, design.ending, design.bare}) {
            QCOMPARE(entry->BusLink(), design.bus);
            QVERIFY(design.bus->LinkedBusEntries().contains(entry));
            QCOMPARE(entry->Owner(), design.sheet.CurrentPage()->Scene());
        }
    }

    void entriesComeBackInTheOrderGiven()
    {
        Design design;
        TCmdBusEntryDisconnect command({design.bare, design.starting});
        command.redo();
        QCOMPARE(design.bus->LinkedBusEntries(), QList<TGraphicsBusEntryItem*>{design.ending});
        command.undo();
        QCOMPARE(design.bus->LinkedBusEntries(),
                 (QList<TGraphicsBusEntryItem*>{design.ending, design.bare, design.starting}));
    }

    void otherEntriesStay()
    {
        Design design;
        const QString before = design.ending->StateLine();
        TCmdBusEntryDisconnect command({design.starting});
        Test::CheckBothWays(command, design);
        command.redo();
        QCOMPARE(design.ending->StateLine(), before);
        QCOMPARE(design.towards->LastLink(), design.ending);
    }

    // What the entries were linked to is that of the moment when the command was made.
    void linksAreThoseOfWhenTheCommandWasMade()
    {
        Design design;
        TCmdBusEntryDisconnect command({design.bare});
        design.sheet.Wire({210, 10}, {210, 90})->LinkToFirst(design.bare);
        command.redo();
        command.undo();
        QCOMPARE(design.bare->NetLink(), nullptr);
        QCOMPARE(design.bare->BusLink(), design.bus);
    }

    void anEntryWithoutBusComesBackWithoutOne()
    {
        Design design;
        design.starting->UnlinkFromBus();
        TGraphicsBusEntryItem* loose = design.sheet.Entry({250, 0});
        TCmdBusEntryDisconnect command({design.starting, loose});
        Test::CheckBothWays(command, design);
        QCOMPARE(design.starting->BusLink(), nullptr);
        QCOMPARE(design.away->FirstLink(), design.starting);
    }

    void anEntryGivenTwiceIsTakenOnce()
    {
        Design design;
        TCmdBusEntryDisconnect command({design.starting, design.starting});
        Test::CheckBothWays(command, design);
        QCOMPARE(design.bus->LinkedBusEntries().count(design.starting), 1);
    }

    // Intended: an entry is noted as a wire's first link or else as its last, not as both.
    void aWireWithBothEndsOnAnEntryGetsItsFirstEndBack()
    {
        Design design;
        TGraphicsNetItem* loop = design.sheet.Wire({210, 10}, {210, 10});
        loop->LinkToFirst(design.bare);
        loop->LinkToLast(design.bare);
        TCmdBusEntryDisconnect command({design.bare});
        command.redo();
        QCOMPARE(loop->Links(), Items());
        command.undo();
        QCOMPARE(loop->FirstLink(), design.bare);
        QCOMPARE(loop->LastLink(), nullptr);
        QCOMPARE(design.Fault(), QString());
    }

    void entriesComeBackToTheirOwnPage()
    {
        Design design;
        TItemScene* first = design.sheet.CurrentPage()->Scene();
        design.sheet.GoToPage(design.sheet.AddPage());
        TGraphicsBusEntryItem* second = design.sheet.Entry({0, 0});
        TItemScene* last = design.sheet.CurrentPage()->Scene();
        TCmdBusEntryDisconnect command({second, design.starting});
        Test::CheckBothWays(command, design);
        QCOMPARE(second->Owner(), last);
        QCOMPARE(design.starting->Owner(), first);
    }

    void repaintsWhatGoesAndWhatComesBack()
    {
        Design design;
        TItemScene* page = design.sheet.CurrentPage()->Scene();
        const QRectF place = design.starting->sceneBoundingRect();
        TCmdBusEntryDisconnect command({design.starting});
        Test::RepaintLog repaints(*page);
        QCOMPARE(repaints.Take(), QRectF());
        command.redo();
        QVERIFY(!page->items().contains(design.starting));
        QVERIFY(repaints.Take().contains(place));
        command.undo();
        QVERIFY(page->items().contains(design.starting));
        QVERIFY(repaints.Take().contains(place));
    }

    void netsFollowTheLinks()
    {
        Design design;
        QCOMPARE(design.starting->Net(), QString("D0"));
        TCmdBusEntryDisconnect command({design.starting});
        command.redo();
        QCOMPARE(design.starting->Net(), QString());
        QCOMPARE(design.away->Net(), QString("D0"));
        command.undo();
        QCOMPARE(design.starting->Net(), QString("D0"));
    }

    // Merging.

    void absorbsOnlyACommandWithoutEntries()
    {
        Design design;
        TCmdBusEntryDisconnect command({design.starting});
        TCmdBusEntryDisconnect other({design.bare});
        TCmdBusEntryDisconnect same({design.starting});
        TCmdBusEntryDisconnect empty({});
        TCmdBusEntryDisconnect foreign({design.bus});
        const TUndoCommand plain;
        const QString before = design.Dump();
        command.redo();
        const QString after = design.Dump();
        QVERIFY(command.mergeWith(&empty));
        QVERIFY(command.mergeWith(&foreign)); // Holds no entry either.
        QVERIFY(empty.mergeWith(&foreign));
        QVERIFY(!command.mergeWith(&other));
        QVERIFY(!command.mergeWith(&same));
        QVERIFY(!empty.mergeWith(&command));
        QVERIFY(!command.mergeWith(static_cast<const TUndoCommand*>(nullptr)));
        QVERIFY(!command.mergeWith(static_cast<const TUndoCommand*>(&plain)));
        QCOMPARE(design.Dump(), after);
        command.undo();
        QCOMPARE(design.Dump(), before);
        command.redo();
        QCOMPARE(design.Dump(), after);
        command.undo();
    }

    void theUndoStackNeverMerges()
    {
        Design design;
        const QString before = design.Dump();
        QUndoStack stack;
        stack.push(new TCmdBusEntryDisconnect({design.starting}));
        stack.push(new TCmdBusEntryDisconnect({}));
        QCOMPARE(stack.count(), 2);
        TCmdBusEntryDisconnect empty({});
        QVERIFY(!static_cast<QUndoCommand&>(empty).mergeWith(stack.command(1)));
        stack.setIndex(0);
        QCOMPARE(design.Dump(), before);
    }

    // Lifetime.

    void entriesGoWithTheCommandExactlyWhileTheyAreAway_data()
    {
        QTest::addColumn<int>("steps");
        QTest::addColumn<int>("gone");
        QTest::newRow("never done") << 0 << 0;
        QTest::newRow("done") << 1 << 1;
        QTest::newRow("undone") << 2 << 0;
        QTest::newRow("done again") << 3 << 1;
    }
    void entriesGoWithTheCommandExactlyWhileTheyAreAway()
    {
        QFETCH(int, steps);
        QFETCH(int, gone);
        Design design;
        int destroyed = 0;
        auto* entry = design.sheet.Add<Test::Mortal<TGraphicsBusEntryItem>>({250, 0});
        entry->gone = &destroyed;
        entry->LinkToBus(design.bus);
        {
            TCmdBusEntryDisconnect command({entry});
            for (int step = 0; step < steps; ++step) {
                step == 1 ? command.undo() : command.redo();
            }
            QCOMPARE(destroyed, 0);
        }
        QCOMPARE(destroyed, gone);
        QCOMPARE(design.bus->LinkedBusEntries().size(), 4 - gone);
        QCOMPARE(design.Fault(), QString());
    }

    // It was never taken off anything, and stays with whoever has made it.
    void anEntryOfNoPageIsCutAndLinkedAgain()
    {
        Design design;
        int destroyed = 0;
        Test::Mortal<TGraphicsBusEntryItem> entry;
        entry.gone = &destroyed;
        entry.LinkToBus(design.bus);
        {
            TCmdBusEntryDisconnect command({&entry});
            command.redo();
            QCOMPARE(entry.BusLink(), nullptr);
            command.undo();
            QCOMPARE(entry.BusLink(), design.bus);
            QCOMPARE(entry.Owner(), nullptr);
            command.redo();
        }
        QCOMPARE(destroyed, 0);
        QCOMPARE(entry.BusLink(), nullptr);
    }

    void theDesignMayGoBeforeTheCommand()
    {
        int destroyed = 0;
        auto design = std::make_unique<Design>();
        auto* away = design->sheet.Add<Test::Mortal<TGraphicsBusEntryItem>>({250, 0});
        auto* back = design->sheet.Add<Test::Mortal<TGraphicsBusEntryItem>>({260, 0});
        away->gone = back->gone = &destroyed;
        auto done = std::make_unique<TCmdBusEntryDisconnect>(QList<TGraphicsItem*>{away});
        auto undone = std::make_unique<TCmdBusEntryDisconnect>(QList<TGraphicsItem*>{back});
        undone->redo();
        undone->undo();
        done->redo();
        design.reset();
        QCOMPARE(destroyed, 1);
        undone.reset();
        QCOMPARE(destroyed, 1);
        done.reset();
        QCOMPARE(destroyed, 2);
    }
};

PROPERTIES_TEST(TestBusEntries)
#include "tst_busentries.moc"
