#include "properties/commands/TCmdNetTie.h"
#include "tests/host/Network.h"
#include "tests/support/Observers.h"
#include "tests/support/TestProgram.h"

#include <application/TProject.h>
#include <application/TSchematic.h>
#include <objects/TGraphicsNetTieSchItem.h>

#include <QGraphicsView>
#include <QtTest>

namespace {

using BoardTies = QList<TGraphicsNetTiePcbItem*>;
using PageTies = QList<TGraphicsNetTieSchItem*>;

/** Ties of the numbers 1, 2 and 3 on a board and on the page of its schematic, no two alike. */
struct Design
{
    Design()
    {
        view.setScene(board.Scene());
        board.SetView(&view);
        project.SetBoard(&board);
        project.SetSchematic(&schematic);
        for (quint16 number = 1; number <= 3; ++number) {
            AddToBoard(number);
            AddToPage(number);
        }
    }

    TGraphicsNetTiePcbItem* AddToBoard(quint16 number)
    {
        auto* tie = board.NetTie({100.0 * number, 0});
        tie->SetNumber(number);
        tie->SetName(QString("board %1").arg(number));
        tie->SetNameVisible(number != 2);
        tie->SetPadSize(4 + number);
        tie->Pen().setWidthF(0.5 + number);
        tie->SetLayer(number == 3 ? Osmirel::CopperBottom : Osmirel::CopperTop);
        boardTies.append(tie);
        return tie;
    }

    TGraphicsNetTieSchItem* AddToPage(quint16 number)
    {
        auto tie = std::make_unique<TGraphicsNetTieSchItem>();
        tie->SetNumber(number);
        tie->SetName(QString("page %1").arg(number));
        tie->SetNameVisible(number == 2);
        tie->SetSymbol(number - 1);
        tie->setPos(100.0 * number, 0);
        pageTies.append(tie.get());
        page->Attach(std::move(tie));
        return pageTies.last();
    }

    QStringList BoardNames() const { return Names(boardTies); }
    QStringList PageNames() const { return Names(pageTies); }

    QStringList Lines() const
    {
        QStringList lines;
        for (const TGraphicsItem* tie : boardTies) {
            lines.append(tie->StateLine());
        }
        for (const TGraphicsItem* tie : pageTies) {
            lines.append(tie->StateLine());
        }
        return lines;
    }

    QGraphicsView view;
    Test::Network board;
    TSchematic schematic;
    TSchematicPage* page = schematic.AddPage();
    TProject project;
    BoardTies boardTies;
    PageTies pageTies;

private:
    template <class Tie>
    static QStringList Names(const QList<Tie*>& ties)
    {
        QStringList names;
        for (const Tie* tie : ties) {
            names.append(tie->Name());
        }
        return names;
    }
};

/** Redo changes ties, undo brings all back, redo does the same again. */
template <class Command>
void CheckBothWays(Command& command, const Design& design)
{
    const QStringList before = design.Lines();
    command.redo();
    const QStringList after = design.Lines();
    QVERIFY(after != before);
    command.undo();
    QCOMPARE(design.Lines(), before);
    command.redo();
    QCOMPARE(design.Lines(), after);
    QCOMPARE(command.id(), -1);
}

} // namespace

class TestNetTies : public QObject
{
    Q_OBJECT

private slots:
    void baseChangesNothing()
    {
        Design design;
        const QStringList before = design.Lines();
        TCmdNetTieBase command(&design.project);
        command.redo();
        command.undo();
        QCOMPARE(design.Lines(), before);
        QCOMPARE(command.id(), -1);
    }

    void baseFindsTheTiesThatThereAreNow()
    {
        Design design;
        design.board.Via({0, 90});
        const TCmdNetTieBase command(&design.project);
        QCOMPARE(command.GetNetTiesOnSch(), design.pageTies);
        QCOMPARE(command.GetNetTiesOnPcb().size(), 3);
        auto* tie = design.AddToBoard(7);
        design.AddToPage(7);
        delete design.pageTies.takeFirst();
        QCOMPARE(command.GetNetTiesOnSch(), design.pageTies);
        QVERIFY(command.GetNetTiesOnPcb().contains(tie));
    }

    void nameReachesTheOtherSideOfAProjectInStep_data()
    {
        QTest::addColumn<bool>("onBoard");
        QTest::addColumn<int>("kind");
        QTest::newRow("board, separate") << true << 0;
        QTest::newRow("board, in step") << true << 1;
        QTest::newRow("board, of another kind") << true << 2;
        QTest::newRow("page, separate") << false << 0;
        QTest::newRow("page, in step") << false << 1;
    }
    void nameReachesTheOtherSideOfAProjectInStep()
    {
        QFETCH(bool, onBoard);
        QFETCH(int, kind);
        Design design;
        design.project.SetKind(kind);
        const BoardTies ofBoard{design.boardTies[0], design.boardTies[2]};
        const PageTies ofPage{design.pageTies[0], design.pageTies[2]};
        auto command =
            onBoard ? TCmdNetTieName(ofBoard, "X", &design.project) : TCmdNetTieName(ofPage, "X", &design.project);
        command.redo();
        const bool reachesBoard = onBoard || kind == 1;
        const bool reachesPage = !onBoard || kind == 1;
        const QStringList board{"board 1", "board 2", "board 3"};
        const QStringList page{"page 1", "page 2", "page 3"};
        QCOMPARE(design.BoardNames(), reachesBoard ? QStringList({"X", "board 2", "X"}) : board);
        QCOMPARE(design.PageNames(), reachesPage ? QStringList({"X", "page 2", "X"}) : page);

        // The other side gets back what the side of the edit had.
        command.undo();
        const QStringList& former = onBoard ? board : page;
        QCOMPARE(design.BoardNames(), reachesBoard ? QStringList({former[0], "board 2", former[2]}) : board);
        QCOMPARE(design.PageNames(), reachesPage ? QStringList({former[0], "page 2", former[2]}) : page);
    }

    void nameVisibilityReachesTheOtherSideOfAProjectInStep_data() { nameReachesTheOtherSideOfAProjectInStep_data(); }
    void nameVisibilityReachesTheOtherSideOfAProjectInStep()
    {
        QFETCH(bool, onBoard);
        QFETCH(int, kind);
        Design design;
        design.project.SetKind(kind);
        auto* ofBoard = design.boardTies[1]; // not shown
        auto* ofPage = design.pageTies[1];   // shown
        const bool value = onBoard;
        auto command = onBoard ? TCmdNetTieNameVis(BoardTies{ofBoard}, value, &design.project)
                               : TCmdNetTieNameVis(PageTies{ofPage}, value, &design.project);
        const QStringList before = design.Lines();
        command.redo();
        QCOMPARE(ofBoard->NameVisible(), onBoard || kind == 1 ? value : false);
        QCOMPARE(ofPage->NameVisible(), !onBoard || kind == 1 ? value : true);
        command.undo();
        QCOMPARE(ofBoard->NameVisible(), onBoard || kind == 1 ? !value : false);
        QCOMPARE(ofPage->NameVisible(), !onBoard || kind == 1 ? !value : true);
        QCOMPARE(design.Lines() == before, kind != 1);
    }

    void everyTieGetsItsOwnVisibilityBack()
    {
        Design design;
        const QStringList before = design.Lines();
        for (const bool visible : {false, true}) {
            TCmdNetTieNameVis ofBoard(design.boardTies, visible, &design.project);
            TCmdNetTieNameVis ofPage(design.pageTies, visible, &design.project);
            for (TUndoCommand* command : std::initializer_list<TUndoCommand*>{&ofBoard, &ofPage}) {
                CheckBothWays(*command, design);
                command->undo();
                QCOMPARE(design.Lines(), before);
            }
        }
    }

    void modeIsReadAnewEachTime()
    {
        Design design;
        TCmdNetTieName command(BoardTies{design.boardTies[0]}, "X", &design.project);
        command.redo();
        QCOMPARE(design.pageTies[0]->Name(), QString("page 1"));
        design.project.SetKind(TProject::InStep);
        command.undo();
        QCOMPARE(design.pageTies[0]->Name(), QString("board 1"));
    }

    void everyCommandBothWays()
    {
        Design design;
        const BoardTies board{design.boardTies[2], design.boardTies[0]};
        const PageTies page{design.pageTies[2], design.pageTies[0]};
        TProject* project = &design.project;
        const auto check = [&design](auto command) { CheckBothWays(command, design); };
        check(TCmdNetTieName(board, "X", project));
        check(TCmdNetTieName(page, "X", project));
        check(TCmdNetTieNameVis(board, false, project));
        check(TCmdNetTieNameVis(page, true, project));
        check(TCmdNetTiePcbLayer(board, Osmirel::Copper2, project));
        check(TCmdNetTiePadSz(board, 23.6, project));
        check(TCmdNetTieWireWidth(board, 3.3, project));
        check(TCmdNetTieSchSymbol(page, 1, project));
    }

    void writesOneAttribute()
    {
        Design design;
        design.project.SetKind(TProject::InStep);
        const auto* tie = design.boardTies[0];
        const BoardTies board{design.boardTies[0]};
        TCmdNetTiePcbLayer(board, Osmirel::Copper3, &design.project).redo();
        QCOMPARE(tie->Layer(), Osmirel::Copper3);
        TCmdNetTiePadSz(board, 23.6, &design.project).redo();
        QCOMPARE(tie->PadSize(), 23.6);
        QCOMPARE(tie->Pen().widthF(), 1.5);
        TCmdNetTieWireWidth(board, 3.3, &design.project).redo();
        QCOMPARE(tie->Pen().widthF(), 3.3);
        QCOMPARE(tie->PadSize(), 23.6);
        TCmdNetTieSchSymbol(PageTies{design.pageTies[0]}, 2, &design.project).redo();
        QCOMPARE(design.pageTies[0]->Symbol(), 2);
        QCOMPARE(design.BoardNames(), QStringList({"board 1", "board 2", "board 3"}));
        QCOMPARE(design.PageNames(), QStringList({"page 1", "page 2", "page 3"}));
    }

    void repaintsWhatItWrites()
    {
        Design design;
        Test::RepaintLog ofBoard(*design.board.Scene());
        Test::RepaintLog ofPage(*design.page->Scene());
        TCmdNetTieWireWidth width(BoardTies{design.boardTies[0]}, 3.3, &design.project);
        TCmdNetTieSchSymbol symbol(PageTies{design.pageTies[0]}, 2, &design.project);
        for (const bool redo : {true, false}) {
            redo ? width.redo() : width.undo();
            QVERIFY(ofBoard.Take().contains(design.boardTies[0]->scenePos()));
            redo ? symbol.redo() : symbol.undo();
            QVERIFY(ofPage.Take().contains(design.pageTies[0]->scenePos()));
        }
    }

    // Numbers are kept, not items.
    void tiesThatWereMadeAnewAreChangedToo()
    {
        Design design;
        design.project.SetKind(TProject::InStep);
        TCmdNetTieName command(BoardTies{design.boardTies[1]}, "X", &design.project);
        command.redo();
        delete design.boardTies.takeAt(1);
        delete design.pageTies.takeAt(1);
        auto* newTie = design.AddToBoard(2);
        auto* newSymbol = design.AddToPage(2);
        command.undo();
        QCOMPARE(newTie->Name(), QString("board 2"));
        QCOMPARE(newSymbol->Name(), QString("board 2"));
        command.redo();
        QCOMPARE(newTie->Name(), QString("X"));
        QCOMPARE(newSymbol->Name(), QString("X"));
    }

    void tiesMadeAnewAreChangedByEveryCommand_data()
    {
        QTest::addColumn<int>("index");
        QTest::newRow("name") << 0;
        QTest::newRow("visibility") << 1;
        QTest::newRow("layer") << 2;
        QTest::newRow("pad size") << 3;
        QTest::newRow("wire width") << 4;
        QTest::newRow("symbol") << 5;
    }
    void tiesMadeAnewAreChangedByEveryCommand()
    {
        QFETCH(int, index);
        Design design;
        TProject* project = &design.project;
        const BoardTies board{design.boardTies[1]};
        const PageTies page{design.pageTies[1]};
        const std::unique_ptr<TUndoCommand> commands[] = {
            std::make_unique<TCmdNetTieName>(page, "X", project),
            std::make_unique<TCmdNetTieNameVis>(board, true, project),
            std::make_unique<TCmdNetTiePcbLayer>(board, Osmirel::Copper2, project),
            std::make_unique<TCmdNetTiePadSz>(board, 23.6, project),
            std::make_unique<TCmdNetTieWireWidth>(board, 3.3, project),
            std::make_unique<TCmdNetTieSchSymbol>(page, 2, project),
        };
        TUndoCommand& command = *commands[index];
        const auto renew = [&design] {
            delete design.boardTies.takeAt(1);
            delete design.pageTies.takeAt(1);
            design.AddToBoard(2);
            design.AddToPage(2);
            design.boardTies.move(2, 1);
            design.pageTies.move(2, 1);
        };
        const QStringList before = design.Lines();
        command.redo();
        const QStringList after = design.Lines();
        QVERIFY(after != before);
        renew();
        QCOMPARE(design.Lines(), before); // They are as they were first made.
        command.redo();
        QCOMPARE(design.Lines(), after);
        command.undo();
        QCOMPARE(design.Lines(), before);
        renew();
        command.redo();
        QCOMPARE(design.Lines(), after);
    }

    void deletedTiesAreNotMissed()
    {
        Design design;
        design.project.SetKind(TProject::InStep);
        TCmdNetTieName command(design.pageTies, "X", &design.project);
        delete design.pageTies.takeAt(0);
        delete design.boardTies.takeAt(2);
        command.redo();
        QCOMPARE(design.PageNames(), QStringList({"X", "X"}));
        command.undo();
        QCOMPARE(design.PageNames(), QStringList({"page 2", "page 3"}));
        QCOMPARE(design.BoardNames(), QStringList({"page 1", "page 2"}));
    }

    // Each number is kept once, with the value of the first tie that bears it.
    void tiesOfOneNumberShareTheFirstOnesValue()
    {
        Design design;
        auto* twin = design.AddToBoard(2);
        twin->SetName("twin");
        TCmdNetTieName command(BoardTies{twin, design.boardTies[1]}, "X", &design.project);
        command.redo();
        QCOMPARE(design.BoardNames(), QStringList({"board 1", "X", "board 3", "X"}));
        command.undo();
        QCOMPARE(design.BoardNames(), QStringList({"board 1", "twin", "board 3", "twin"}));
    }

    void missingPartsOfAProject()
    {
        Design design;
        const QStringList before = design.Lines();
        TProject empty;
        empty.SetKind(TProject::InStep);
        for (TProject* project : {static_cast<TProject*>(nullptr), &empty}) {
            TCmdNetTieName ofBoard(design.boardTies, "X", project);
            TCmdNetTieSchSymbol ofPage(PageTies{nullptr, design.pageTies[0]}, 2, project);
            for (TUndoCommand* command : std::initializer_list<TUndoCommand*>{&ofBoard, &ofPage}) {
                command->redo();
                command->undo();
            }
        }
        design.board.SetView(nullptr);
        TCmdNetTiePadSz(design.boardTies, 9, &design.project).redo();
        QCOMPARE(design.Lines(), before);
    }
};

PROPERTIES_TEST(TestNetTies)
#include "tst_netties.moc"
