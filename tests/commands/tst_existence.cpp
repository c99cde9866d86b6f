#include "properties/commands/TCmdPackage.h"
#include "properties/commands/TExistingItems.h"
#include "properties/commands/TUniqueNumbers.h"
#include "tests/commands/PackageDesign.h"
#include "tests/support/TestProgram.h"

#include <objects/TGraphicsNetItem.h>

#include <QtTest>

namespace {

using Design = Test::PackageDesign;

} // namespace

/** What package commands do about items that were deleted since. */
class TestExistence : public QObject
{
    Q_OBJECT

private slots:
    void numbersAreListedOnceInTheirOrder()
    {
        TUniqueNumbers numbers;
        for (const quint16 number : QList<quint16>{7, 3, 7, 0, 3, 0, 9}) {
            numbers.Add(number);
        }
        QCOMPARE(numbers.List(), (QList<unsigned short>{7, 3, 0, 9}));
    }

    void neighboursThatWereDeletedAreDroppedWithTheirValues_data()
    {
        QTest::addColumn<QVector<int>>("deleted");
        QTest::newRow("the first two") << QVector<int>{0, 1};
        QTest::newRow("two in the middle") << QVector<int>{1, 2};
        QTest::newRow("the last two") << QVector<int>{2, 3};
        QTest::newRow("all but the last") << QVector<int>{0, 1, 2};
        QTest::newRow("every other one") << QVector<int>{0, 2};
        QTest::newRow("all") << QVector<int>{0, 1, 2, 3};
    }
    void neighboursThatWereDeletedAreDroppedWithTheirValues()
    {
        QFETCH(QVector<int>, deleted);
        Design design;
        QVector<TGraphicsPackageItem*> packages;
        for (const char* name : {"A", "B", "C", "D"}) {
            packages.append(design.Package(name, {300.0 * packages.size(), 0}));
            packages.last()->setSelected(true);
        }
        TCmdPackageRefDes command(QStringLiteral("X"), &design.project);
        command.redo();
        for (const int index : deleted) {
            delete std::exchange(packages[index], nullptr);
        }
        command.undo();
        for (int i = 0; i < packages.size(); ++i) {
            QVERIFY(!packages[i] || packages[i]->RefDes() == QString("ABCD").mid(i, 1));
        }
        command.redo();
        for (const auto* package : qAsConst(packages)) {
            QVERIFY(!package || package->RefDes() == "X");
        }
    }

    void wiresThatWereDeletedAreNotConnectedAgain_data()
    {
        QTest::addColumn<QByteArray>("kind");
        for (const char* kind : {"side", "connect", "disconnect"}) {
            QTest::newRow(kind) << QByteArray(kind);
        }
    }
    void wiresThatWereDeletedAreNotConnectedAgain()
    {
        QFETCH(QByteArray, kind);
        Design design;
        auto* first = design.Package("A", {0, 0});
        auto* second = design.Package("B", {300, 0});
        const auto* wireOfFirst = Design::Linked(first).first();
        const auto* wireOfSecond = static_cast<const TGraphicsWireItem*>(Design::Linked(second).first());
        const QList<TGraphicsPackageItem*> packages{first, second};
        const QList<TGraphicsItem*> items{first, second};
        std::unique_ptr<TUndoCommand> command;
        if (kind == "side") {
            command = std::make_unique<TCmdPkgSide>(packages, Osmirel::PackagesBottom, &design.board);
        } else if (kind == "disconnect") {
            command = std::make_unique<TCmdPkgDisconnect>(items, &design.board);
        } else {
            first->Disconnect({});
            second->Disconnect({});
            command = std::make_unique<TCmdPkgConnect>(items, &design.board);
        }
        command->redo();
        delete wireOfFirst;
        command->undo();
        QCOMPARE(wireOfSecond->FirstLink() != nullptr, kind != "connect");
        QVERIFY(Design::Linked(first).isEmpty());
    }

    // The host decides what packages are connected with: whatever it is, it is asked for before it is given back.
    void connectionsOfAllKindsAreKept()
    {
        Design design;
        TGraphicsItem* via = design.board.Via({0, 0});
        TGraphicsItem* junction = design.board.Junction({0, 50});
        TGraphicsItem* pad = design.board.Pad({0, 100});
        TGraphicsItem* tie = design.board.NetTie({0, 150});
        TGraphicsItem* wire = design.board.Wire({0, 200}, {50, 200});
        TGraphicsItem* gone = design.board.Via({0, 250});
        TExistingItems::Lists lists{{via, gone, junction}, {pad, tie}, {}, {gone}, {wire}};
        delete gone;
        const QVector<TGraphicsItem*> unchanged = lists[1];
        TExistingItems(&design.view).KeepOnlyExisting(lists);
        QCOMPARE(lists, (TExistingItems::Lists{{via, junction}, {pad, tie}, {}, {}, {wire}}));
        QCOMPARE(lists.at(1).constData(), unchanged.constData()); // The host may know it again by that.
    }

    void whatIsNoWireIsConnectedAgain_data()
    {
        QTest::addColumn<bool>("side");
        QTest::newRow("side") << true;
        QTest::newRow("disconnect") << false;
    }
    void whatIsNoWireIsConnectedAgain()
    {
        QFETCH(bool, side);
        Design design;
        auto* package = design.Package("A", {0, 0});
        auto* line = design.board.Add<TGraphicsNetItem>({});
        line->SetLayer(Osmirel::CopperTop);
        line->LinkToFirst(package->Pads().last());
        std::unique_ptr<TUndoCommand> command;
        if (side) {
            command = std::make_unique<TCmdPkgSide>(QList<TGraphicsPackageItem*>{package}, Osmirel::PackagesBottom,
                                                    &design.board);
        } else {
            command = std::make_unique<TCmdPkgDisconnect>(QList<TGraphicsItem*>{package}, &design.board);
        }
        Test::CheckBothWays(*command, design.board);
        QCOMPARE(line->FirstLink(), package->Pads().last());
    }

    // What stands at its address now is none of the command's.
    void anotherKindOfItemIsNotTakenForAPackage()
    {
        Design design;
        TGraphicsItem* package = design.Package("A", {0, 0});
        TGraphicsItem* wire = design.board.Wire({0, 200}, {50, 200});
        QVector<TGraphicsItem*> items{wire, package};
        QVector<int> parallel{1, 2};
        TExistingItems(&design.view).KeepOnlyExisting({ItemType::Package}, items, parallel);
        QCOMPARE(items, QVector<TGraphicsItem*>{package});
        QCOMPARE(parallel, QVector<int>{2});
    }

    // Nobody knows then what is still there.
    void withoutAViewNothingIsForgotten()
    {
        Design design;
        auto* package = design.Package("A", {0, 0});
        package->setSelected(true);
        TCmdPkgSide side({package}, Osmirel::PackagesBottom, &design.board);
        TCmdPackageRefDes name(QStringLiteral("X"), &design.project);
        TCmdPkgDisconnect disconnect({package}, &design.board);
        design.board.SetView(nullptr);
        side.ExistItems();
        name.ExistItems();
        disconnect.ExistItems();
        design.board.SetView(&design.view);
        disconnect.redo();
        name.redo();
        side.redo();
        QVERIFY(Design::Linked(package).isEmpty());
        QCOMPARE(package->RefDes(), QString("X"));
        QCOMPARE(package->Layer(), Osmirel::PackagesBottom);
    }
};

PROPERTIES_TEST(TestExistence)
#include "tst_existence.moc"
