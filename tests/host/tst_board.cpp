#include "tests/support/TestBoard.h"
#include "tests/support/TestProgram.h"

#include <QGraphicsView>
#include <QtTest>

namespace {

using Items = QList<TGraphicsItem*>;

} // namespace

class TestBoardItems : public QObject
{
    Q_OBJECT

private slots:
    void itemsKeepTheOrderInWhichTheyCame()
    {
        Test::TestBoard board;
        QVERIFY(board.Items().isEmpty());
        QCOMPARE(board.Dump(), QString());
        const Items placed{board.AddHole(), board.AddVia(), board.AddThroughPad(), board.AddVia(), board.AddPackage()};
        QCOMPARE(board.Items(), placed);
        for (int i = 1; i < placed.size(); ++i) {
            QVERIFY(placed[i - 1]->DesignOrder() < placed[i]->DesignOrder());
        }
    }

    void orderDoesNotFollowWhatIsDrawnOrSelected()
    {
        Test::TestBoard board;
        TGraphicsItem* first = board.AddVia();
        TGraphicsItem* second = board.AddHole();
        TGraphicsItem* third = board.AddSurfacePad();
        first->setZValue(100);
        third->setPos(-1000, -1000);
        third->setSelected(true);
        second->SetLayer(Osmirel::Milling);
        QCOMPARE(board.Items(), Items({first, second, third}));
    }

    void dumpHasALineForEachItem()
    {
        Test::TestBoard board;
        TGraphicsPackageItem* package = board.AddPackage();
        const Items items{package, board.AddSurfacePad(1, 1, package), board.AddVia(), board.AddHole()};
        QString expected;
        for (const TGraphicsItem* item : items) {
            expected += item->StateLine() + '\n';
        }
        QCOMPARE(board.Dump(), expected);
        QCOMPARE(board.Dump(), expected); // asking changes nothing
    }

    void equalBoardsHaveEqualDumps()
    {
        const auto fill = [](Test::TestBoard& board) {
            board.AddVia(0.7, 0.3);
            board.AddSurfacePad(1, 2, board.AddPackage("R1"));
            board.AddHole();
        };
        Test::TestBoard one;
        Test::TestBoard other;
        fill(one);
        fill(other);
        QCOMPARE(one.Dump(), other.Dump());
        other.AddVia();
        QVERIFY(one.Dump() != other.Dump());
    }

    void packageComesBeforeItsPads()
    {
        TBoard board;
        auto package = std::make_unique<TGraphicsPackageItem>();
        auto* firstPad = new TGraphicsPadItem(package.get());
        auto* secondPad = new TGraphicsPadItem(package.get());
        TGraphicsPackageItem* owner = package.get();
        board.Attach(std::move(package));
        auto via = std::make_unique<TGraphicsViaItem>();
        TGraphicsViaItem* last = via.get();
        board.Attach(std::move(via));
        QCOMPARE(board.Items(), Items({owner, firstPad, secondPad, last}));
    }

    void attachedItemsJoinTheBoard()
    {
        TBoard board;
        auto package = std::make_unique<TGraphicsPackageItem>();
        auto* pad = new TGraphicsPadItem(package.get());
        TGraphicsPackageItem* owner = package.get();
        QVERIFY(!pad->Workspace());
        QCOMPARE(pad->DesignOrder(), 0);
        board.Attach(std::move(package));
        QCOMPARE(owner->Workspace(), board.Workspace());
        QCOMPARE(pad->Workspace(), board.Workspace());
        QCOMPARE(pad->scene(), board.Scene());
        QCOMPARE(board.LayerManager(), &board.Workspace()->Layers());

        // A child that is made later takes the workspace from its parent.
        const auto* late = new TGraphicsPadItem(owner);
        QCOMPARE(late->Workspace(), board.Workspace());
        board.Attach(nullptr);
        QCOMPARE(board.Items().size(), 3);
    }

    void detachedItemComesBackToItsPlace()
    {
        Test::TestBoard board;
        board.AddVia();
        TGraphicsItem* middle = board.AddHole();
        board.AddVia();
        const QString before = board.Dump();
        board.Scene()->removeItem(middle);
        std::unique_ptr<TGraphicsItem> detached(middle);
        QCOMPARE(board.Items().size(), 2);
        QVERIFY(board.Dump() != before);
        board.AddVia(); // one that came in between stays behind
        const QString withNew = board.Dump();
        board.Attach(std::move(detached));
        QVERIFY(board.Dump().startsWith(before));
        QCOMPARE(board.Dump().count('\n'), withNew.count('\n') + 1);
    }

    void destroyedItemIsGone()
    {
        Test::TestBoard board;
        TGraphicsItem* first = board.AddVia();
        TGraphicsPackageItem* package = board.AddPackage();
        board.AddSurfacePad(1, 1, package);
        TGraphicsPadItem* second = board.AddThroughPad(1, 0.5, package);
        TGraphicsItem* last = board.AddHole();
        delete second;
        QCOMPARE(board.Items().size(), 4);
        delete package; // takes its pads along
        QCOMPARE(board.Items(), Items({first, last}));
        QCOMPARE(board.Dump(), first->StateLine() + '\n' + last->StateLine() + '\n');
        board.Scene()->clear();
        QVERIFY(board.Items().isEmpty());
    }

    void viaGroupsAreTheDrillPairs()
    {
        Test::TestBoard board;
        QCOMPARE(board.ViaGroups(), QStringList({"Top - Bottom", "Top - Inner 1"}));
        board.LayerManager()->AddDrillPair({"A", Osmirel::Copper2, Osmirel::Copper3});
        QCOMPARE(board.ViaGroups(), QStringList({"Top - Bottom", "Top - Inner 1", "A"}));
        QCOMPARE(TBoard().ViaGroups(), QStringList());
    }

    void viewIsForgottenWhenItGoes()
    {
        Test::TestBoard board;
        QVERIFY(!board.View());
        {
            QGraphicsView view(board.Scene());
            board.SetView(&view);
            QCOMPARE(board.View(), &view);
        }
        QVERIFY(!board.View());
        board.SetView(nullptr);
        QVERIFY(!board.View());
    }

    void boardGoesWithSelectedItems()
    {
        auto board = std::make_unique<Test::TestBoard>();
        TGraphicsItem* item = board->AddSurfacePad(1, 1, board->AddPackage());
        item->setSelected(true);
        QCOMPARE(board->Scene()->selectedItems().size(), 1);
        board.reset(); // the sanitizer watches
    }
};

PROPERTIES_TEST(TestBoardItems)
#include "tst_board.moc"
