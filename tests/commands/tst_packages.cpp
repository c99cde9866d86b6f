#include "properties/commands/TCmdLock.h"
#include "properties/commands/TCmdPackage.h"
#include "tests/commands/PackageDesign.h"
#include "tests/support/TestProgram.h"

#include <QtTest>

namespace {

using Design = Test::PackageDesign;
using Items = QVector<TGraphicsItem*>;

enum Text { RefDes, Value };

std::unique_ptr<TCmdPackageRefDes> Renaming(Text text, const QString& name, TProject* project)
{
    return text == RefDes ? std::make_unique<TCmdPackageRefDes>(name, project)
                          : std::make_unique<TCmdPackageValue>(name, project);
}

QString TextOf(Text text, const TGraphicsPackageItem* package)
{
    return text == RefDes ? package->RefDes() : package->Value();
}

void BothTexts()
{
    QTest::addColumn<int>("text");
    QTest::newRow("designator") << static_cast<int>(RefDes);
    QTest::newRow("value") << static_cast<int>(Value);
}

Text CurrentText()
{
    QFETCH(int, text);
    return static_cast<Text>(text);
}

} // namespace

class TestPackages : public QObject
{
    Q_OBJECT

private slots:
    // Designators and values.

    void renamesTheSelectedPackages_data() { BothTexts(); }
    void renamesTheSelectedPackages()
    {
        const Text text = CurrentText();
        Design design;
        auto* first = design.Package("A", {0, 0});
        auto* second = design.Package("B", {300, 0});
        auto* other = design.Package("C", {600, 0});
        auto* via = design.board.Via({0, 300});
        first->setSelected(true);
        second->SetTFlag(TGraphicsItem::Selected, true);
        via->setSelected(true);
        const QString untouched = other->StateLine();
        const auto command = Renaming(text, "X", &design.project);
        Test::CheckBothWays(*command, design.board);
        command->redo();
        for (const auto* package : {first, second}) {
            QCOMPARE(TextOf(text, package), QString("X"));
            QVERIFY(TextOf(text == RefDes ? Value : RefDes, package) != "X");
            const auto* shown = text == RefDes ? package->RefDesText() : package->ValueText();
            QCOMPARE(static_cast<const TGraphicsTextItem*>(shown)->Text(), QString("X"));
        }
        QCOMPARE(other->StateLine(), untouched);
        QCOMPARE(command->id(), -1);
    }

    // Which packages are meant is asked when the command is made.
    void laterSelectionDoesNotMatter_data() { BothTexts(); }
    void laterSelectionDoesNotMatter()
    {
        const Text text = CurrentText();
        Design design;
        auto* first = design.Package("A", {0, 0});
        auto* second = design.Package("B", {300, 0});
        first->setSelected(true);
        const auto command = Renaming(text, "X", &design.project);
        first->setSelected(false);
        second->setSelected(true);
        command->redo();
        QCOMPARE(TextOf(text, first), QString("X"));
        QVERIFY(TextOf(text, second) != "X");
    }

    void componentsKeepTheirTextsInAProjectInStep_data() { BothTexts(); }
    void componentsKeepTheirTextsInAProjectInStep()
    {
        const Text text = CurrentText();
        Design design;
        design.project.SetKind(TProject::InStep);
        auto* component = design.Package("A", {0, 0}, 12);
        auto* loose = design.Package("B", {300, 0}, 0);
        component->setSelected(true);
        loose->setSelected(true);
        const QString before = component->StateLine();
        const auto command = Renaming(text, "X", &design.project);
        Test::CheckBothWays(*command, design.board);
        command->redo();
        QCOMPARE(component->StateLine(), before);
        QCOMPARE(TextOf(text, loose), QString("X"));
        // What was skipped when the command was made is none of it, whatever the project becomes.
        design.project.SetKind(TProject::Separate);
        command->redo();
        QCOMPARE(component->StateLine(), before);
    }

    void modeIsReadAnewEachTime_data() { BothTexts(); }
    void modeIsReadAnewEachTime()
    {
        const Text text = CurrentText();
        Design design;
        auto* component = design.Package("A", {0, 0}, 12);
        component->setSelected(true);
        const QString former = TextOf(text, component);
        const auto command = Renaming(text, "X", &design.project);
        design.project.SetKind(TProject::InStep);
        command->redo();
        QCOMPARE(TextOf(text, component), former);
        design.project.SetKind(TProject::Separate);
        command->redo();
        QCOMPARE(TextOf(text, component), QString("X"));
        design.project.SetKind(TProject::InStep);
        command->undo();
        QCOMPARE(TextOf(text, component), QString("X"));
    }

    void deletedPackagesAreDropped_data()
    {
        QTest::addColumn<int>("text");
        QTest::addColumn<int>("deleted");
        QTest::addColumn<bool>("wasDone");
        for (const int text : {RefDes, Value}) {
            for (const int deleted : {0, 1, 2}) {
                for (const bool wasDone : {false, true}) {
                    QTest::addRow("%s, package %d before %s", text == RefDes ? "designator" : "value", deleted,
                                  wasDone ? "undo" : "redo")
                        << text << deleted << wasDone;
                }
            }
        }
    }
    void deletedPackagesAreDropped()
    {
        QFETCH(int, deleted);
        QFETCH(bool, wasDone);
        const Text text = CurrentText();
        Design design;
        QList<TGraphicsPackageItem*> packages;
        QStringList former;
        for (const char* name : {"A", "B", "C"}) {
            packages.append(design.Package(name, {300.0 * packages.size(), 0}));
            packages.last()->setSelected(true);
            former.append(TextOf(text, packages.last()));
        }
        const auto command = Renaming(text, "X", &design.project);
        if (wasDone) {
            command->redo();
        }
        delete packages.takeAt(deleted);
        former.removeAt(deleted);
        if (!wasDone) {
            command->redo();
        }
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(TextOf(text, packages[i]), QString("X"));
        }
        command->undo();
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(TextOf(text, packages[i]), former[i]);
        }
    }

    void withoutABoardNobodyIsRenamed_data() { BothTexts(); }
    void withoutABoardNobodyIsRenamed()
    {
        const Text text = CurrentText();
        TProject empty;
        for (TProject* project : {static_cast<TProject*>(nullptr), &empty}) {
            const auto command = Renaming(text, "X", project);
            command->redo();
            command->undo();
        }
    }

    void whatWasTypedSinceARedoWithoutAViewStays_data() { BothTexts(); }
    void whatWasTypedSinceARedoWithoutAViewStays()
    {
        const Text text = CurrentText();
        Design design;
        auto* package = design.Package("A", {0, 0});
        package->setSelected(true);
        const auto command = Renaming(text, "X", &design.project);
        design.board.SetView(nullptr);
        command->redo();
        design.board.SetView(&design.view);
        package->SetRefDes("typed");
        package->SetValue("typed");
        command->undo();
        QCOMPARE(TextOf(text, package), QString("typed"));
    }

    // Connect and disconnect.

    void connectsWhatThePadsTouch()
    {
        Design design;
        auto* package = design.Package("A", {0, 0}, 1);
        auto* linked = Design::Linked(package).first();
        auto* touching = design.board.Wire({50, 0}, {50, 80});
        auto* away = design.board.Wire({70, 0}, {70, 80});
        TCmdPkgConnect command({package}, &design.board);
        Test::CheckBothWays(command, design.board);
        command.redo();
        QCOMPARE(Design::Linked(package), (Items{linked, touching}));
        QCOMPARE(touching->Net(), QString("A2"));
        QVERIFY(away->Links().isEmpty());
        command.undo();
        QCOMPARE(Design::Linked(package), Items{linked}); // what was linked before stays linked
        QCOMPARE(command.id(), -1);
    }

    void undoOfAConnectThatFoundNothingCutsNothing()
    {
        Design design;
        auto* package = design.Package("A", {0, 0}, 1);
        TCmdPkgConnect command({package}, &design.board);
        Test::CheckBothWays(command, design.board);
        QCOMPARE(Design::Linked(package).size(), 1);
    }

    void disconnectsWhatIsLinked()
    {
        Design design;
        auto* package = design.Package("A", {0, 0}, 1);
        auto* second = design.board.Wire({50, 0}, {50, 80});
        second->LinkToFirst(package->Pads().last());
        const Items linked = Design::Linked(package);
        TCmdPkgDisconnect command({package}, &design.board);
        Test::CheckBothWays(command, design.board);
        command.redo();
        QCOMPARE(Design::Linked(package), Items());
        QCOMPARE(second->Net(), QString());
        command.undo();
        QCOMPARE(Design::Linked(package), linked);
        QCOMPARE(command.id(), -1);
    }

    void undoOfADisconnectThatFoundNothingConnectsNothing()
    {
        Design design;
        auto* package = design.Package("A", {0, 0}, 1);
        package->Disconnect({});
        TCmdPkgDisconnect command({package}, &design.board);
        Test::CheckBothWays(command, design.board);
        QCOMPARE(Design::Linked(package), Items());
    }

    void wireWithBothEndsOnOnePackage()
    {
        Design design;
        auto* package = design.Package("A", {0, 0}, 1);
        auto* bridge = design.board.Wire({-50, 0}, {50, 0});
        TCmdPkgConnect connect({package}, &design.board);
        Test::CheckBothWays(connect, design.board);
        connect.redo();
        QCOMPARE(bridge->Links(), package->Pads());
        TCmdPkgDisconnect disconnect({package}, &design.board);
        Test::CheckBothWays(disconnect, design.board);
        disconnect.redo();
        QVERIFY(bridge->Links().isEmpty());
    }

    void netTiesAreConnectedToo()
    {
        Design design;
        auto* tie = design.board.NetTie({0, 200});
        auto* wire = design.board.Wire({10, 200}, {80, 200}, "N");
        auto* via = design.board.Via({400, 400});
        TCmdPkgConnect connect({via, tie}, &design.board);
        Test::CheckBothWays(connect, design.board);
        connect.redo();
        QCOMPARE(tie->Links(), Items{wire});
        TCmdPkgDisconnect disconnect({tie, via}, &design.board);
        Test::CheckBothWays(disconnect, design.board);
        disconnect.redo();
        QCOMPARE(tie->Links(), Items());
    }

    void connectedItemsThatWereDeletedAreDropped_data()
    {
        QTest::addColumn<bool>("connects");
        QTest::addColumn<int>("deleted");
        QTest::addColumn<bool>("wasDone");
        for (const bool connects : {true, false}) {
            for (const int deleted : {0, 1, 2}) {
                for (const bool wasDone : {false, true}) {
                    QTest::addRow("%s, item %d before %s", connects ? "connect" : "disconnect", deleted,
                                  wasDone ? "undo" : "redo")
                        << connects << deleted << wasDone;
                }
            }
        }
    }
    void connectedItemsThatWereDeletedAreDropped()
    {
        QFETCH(bool, connects);
        QFETCH(int, deleted);
        QFETCH(bool, wasDone);
        Design design;
        auto* tie = design.board.NetTie({150, 0});
        auto* wireOfTie = design.board.Wire({160, 0}, {160, 90});
        wireOfTie->LinkToFirst(tie);
        auto* first = design.Package("A", {0, 0}, 1);
        auto* last = design.Package("C", {300, 0}, 3);
        if (connects) {
            first->Disconnect({});
            last->Disconnect({});
            tie->Disconnect({});
        }
        QList<TGraphicsItem*> items{first, tie, last};
        const auto linksOf = [](TGraphicsItem* item) {
            return item->type() == ItemType::Package ? Design::Linked(static_cast<TGraphicsPackageItem*>(item)).size()
                                                     : item->Links().size();
        };
        std::unique_ptr<TCmdPkgConnect> command = connects ? std::make_unique<TCmdPkgConnect>(items, &design.board)
                                                           : std::make_unique<TCmdPkgDisconnect>(items, &design.board);
        if (wasDone) {
            command->redo();
        }
        delete items.takeAt(deleted);
        if (!wasDone) {
            command->redo();
        }
        for (TGraphicsItem* item : qAsConst(items)) {
            QCOMPARE(linksOf(item), connects ? 1 : 0);
        }
        command->undo();
        for (TGraphicsItem* item : qAsConst(items)) {
            QCOMPARE(linksOf(item), connects ? 0 : 1);
        }
        QCOMPARE(Test::LinkFault(design.board), QString());
    }

    // Unlike a change of side, packages without a component count as well.
    void asksForTheRatLinesOfAllPackages_data()
    {
        QTest::addColumn<bool>("connects");
        QTest::newRow("connect") << true;
        QTest::newRow("disconnect") << false;
    }
    void asksForTheRatLinesOfAllPackages()
    {
        QFETCH(bool, connects);
        Design design;
        const QList<TGraphicsItem*> items{design.Package("A", {0, 0}, 1), design.Package("B", {300, 0}, 0)};
        design.Package("C", {600, 0}, 3);
        std::unique_ptr<TCmdPkgConnect> command = connects ? std::make_unique<TCmdPkgConnect>(items, &design.board)
                                                           : std::make_unique<TCmdPkgDisconnect>(items, &design.board);
        for (const bool redo : {true, false, true}) {
            design.board.Dump(); // works out what was asked for
            redo ? command->redo() : command->undo();
            QCOMPARE(design.board.AskedRats(), QStringList({"A1", "A2", "B1", "B2"}));
        }
    }

    void itemsGivenTwiceAreTakenOnce()
    {
        Design design;
        auto* package = design.Package("A", {0, 0}, 1);
        design.board.Wire({50, 0}, {50, 80});
        auto* tie = design.board.NetTie({300, 0});
        design.board.Wire({300, 0}, {300, 80});
        const QList<TGraphicsItem*> items{package, tie, package, tie};
        TCmdPkgConnect connect(items, &design.board);
        Test::CheckBothWays(connect, design.board);
        connect.redo();
        QCOMPARE(Design::Linked(package).size(), 2);
        TCmdPkgDisconnect disconnect(items, &design.board);
        Test::CheckBothWays(disconnect, design.board);
    }

    void connectWithoutAViewDoesNothing()
    {
        Design design;
        auto* package = design.Package("A", {0, 0}, 1);
        design.board.SetView(nullptr);
        const QString before = design.board.Dump();
        TCmdPkgDisconnect command({package, nullptr}, &design.board);
        command.redo();
        command.undo();
        TCmdPkgDisconnect withoutBoard({package}, nullptr);
        withoutBoard.redo();
        withoutBoard.undo();
        QCOMPARE(design.board.Dump(), before);
    }

    // Lock.

    void lockingTwiceMergesLockAndUnlockDoNot()
    {
        Design design;
        const QList<TGraphicsItem*> items{design.Package("A", {0, 0})};
        TCmdLock lock(items, true);
        const TCmdLock again(items, true);
        const TCmdLock unlock(items, false);
        QVERIFY(lock.mergeWith(&again));
        QVERIFY(!lock.mergeWith(&unlock));
        lock.redo();
        QVERIFY(items.first()->HasTFlag(TGraphicsItem::Lock));
    }
};

PROPERTIES_TEST(TestPackages)
#include "tst_packages.moc"
