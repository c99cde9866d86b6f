#include "properties/commands/TCmdPackage.h"
#include "tests/commands/PackageDesign.h"
#include "tests/support/TestProgram.h"

#include <QtTest>
#include <QUndoStack>

namespace {

using Design = Test::PackageDesign;
using Packages = QList<TGraphicsPackageItem*>;

constexpr Osmirel::Layer topSide = Osmirel::PackagesTop;
constexpr Osmirel::Layer bottomSide = Osmirel::PackagesBottom;

} // namespace

class TestPackageSide : public QObject
{
    Q_OBJECT

private slots:
    void movesToTheOtherSideAndBack()
    {
        Design design;
        auto* first = design.Package("A", {0, 0}, 1);
        auto* second = design.Package("B", {300, 0}, 2);
        TCmdPkgSide command({first, second}, bottomSide, &design.board);
        Test::CheckBothWays(command, design.board);
        command.redo();
        QCOMPARE(first->Layer(), bottomSide);
        QCOMPARE(second->Layer(), bottomSide);
        QCOMPARE(static_cast<TGraphicsPadItem*>(first->Pads().first())->StartLayer(), Osmirel::CopperBottom);
        QCOMPARE(Design::Linked(first), QVector<TGraphicsItem*>()); // the wire is on the top
        QCOMPARE(command.id(), -1);
    }

    void packagesOnTheSideAlreadyAreLeftOut()
    {
        Design design;
        auto* there = design.Package("A", {0, 0}, 1);
        there->SetLayer(bottomSide);
        auto* moved = design.Package("B", {300, 0}, 2);
        const QString untouched = there->StateLine();
        TCmdPkgSide command({there, moved}, bottomSide, &design.board);
        Test::CheckBothWays(command, design.board);
        command.redo();
        QCOMPARE(there->StateLine(), untouched);
        QCOMPARE(Design::Linked(there).size(), 1); // not even cut
        QCOMPARE(moved->Layer(), bottomSide);
    }

    void allOnTheSideAlreadyChangesNothing()
    {
        Design design;
        auto* package = design.Package("A", {0, 0}, 1);
        const QString before = design.board.Dump();
        TCmdPkgSide command({package}, topSide, &design.board);
        command.redo();
        QCOMPARE(design.board.AskedRats(), QStringList());
        QCOMPARE(design.board.Dump(), before);
        command.undo();
        QCOMPARE(design.board.AskedRats(), QStringList());
        QCOMPARE(design.board.Dump(), before);
    }

    // What lies under the pads on the new side is connected, and cut again by undo.
    void connectsToWhatItTouchesThere()
    {
        Design design;
        auto* package = design.Package("A", {0, 0}, 1);
        auto* formerWire = Design::Linked(package).first();
        auto* below = design.board.Wire({50, 0}, {50, 80}, {}, Osmirel::CopperBottom);
        TCmdPkgSide command({package}, bottomSide, &design.board);
        Test::CheckBothWays(command, design.board);
        command.redo();
        QCOMPARE(Design::Linked(package), QVector<TGraphicsItem*>{below});
        QCOMPARE(below->Net(), QString("A1")); // the package is mirrored
        command.undo();
        QCOMPARE(below->Net(), QString());
        QCOMPARE(Design::Linked(package), QVector<TGraphicsItem*>{formerWire});
    }

    // Undo connects exactly what redo had cut, even where the pads touch more.
    void undoConnectsNothingWhereNothingWasCut()
    {
        Design design;
        auto* package = design.Package("A", {0, 0}, 1);
        package->Disconnect({}); // the wire still ends on the pad
        TCmdPkgSide command({package}, bottomSide, &design.board);
        Test::CheckBothWays(command, design.board);
        QCOMPARE(Design::Linked(package), QVector<TGraphicsItem*>());
    }

    void undoCutsWhatWasConnectedSince()
    {
        Design design;
        auto* package = design.Package("A", {0, 0}, 1);
        const QString before = design.board.Dump();
        TCmdPkgSide command({package}, bottomSide, &design.board);
        command.redo();
        auto* since = design.board.Wire({50, 0}, {50, 80}, {}, Osmirel::CopperBottom);
        since->LinkToFirst(package->Pads().first());
        command.undo();
        QVERIFY(!since->FirstLink());
        delete since;
        QCOMPARE(design.board.Dump(), before);
    }

    void textsFollowTheSwitchesOfTheBoard_data()
    {
        QTest::addColumn<bool>("showsRefDes");
        QTest::addColumn<bool>("showsValues");
        for (const bool refDes : {true, false}) {
            for (const bool values : {true, false}) {
                QTest::addRow("%s, %s", refDes ? "designators" : "no designators", values ? "values" : "no values")
                    << refDes << values;
            }
        }
    }
    void textsFollowTheSwitchesOfTheBoard()
    {
        QFETCH(bool, showsRefDes);
        QFETCH(bool, showsValues);
        Design design;
        auto* package = design.Package("A", {0, 0}, 1);
        package->RefDesText()->setVisible(!showsRefDes);
        package->ValueText()->setVisible(!showsValues);
        design.board.SetRefDesVisible(showsRefDes);
        design.board.SetValuesVisible(showsValues);
        TCmdPkgSide command({package}, bottomSide, &design.board);
        command.redo();
        QCOMPARE(package->RefDesText()->isVisible(), showsRefDes);
        QCOMPARE(package->ValueText()->isVisible(), showsValues);
        // Undo applies the switches as they are then, and brings back no former state.
        design.board.SetRefDesVisible(!showsRefDes);
        design.board.SetValuesVisible(!showsValues);
        command.undo();
        QCOMPARE(package->RefDesText()->isVisible(), !showsRefDes);
        QCOMPARE(package->ValueText()->isVisible(), !showsValues);
    }

    void packageWithoutTexts()
    {
        Design design;
        auto* package = design.Package("A", {0, 0}, 1);
        delete package->RefDesText();
        delete package->ValueText();
        TCmdPkgSide command({package}, bottomSide, &design.board);
        Test::CheckBothWays(command, design.board);
    }

    void oneLayerForOnePackage()
    {
        Design design;
        auto* package = design.Package("A", {0, 0}, 1);
        design.board.SetValuesVisible(false);
        TCmdPkgSide command({}, bottomSide, &design.board);
        command.SetLayer(package, bottomSide);
        QCOMPARE(package->Layer(), bottomSide);
        QVERIFY(package->RefDesText()->isVisible());
        QVERIFY(!package->ValueText()->isVisible());
        command.SetLayer(nullptr, bottomSide);
    }

    // Rat lines of packages that belong to no component are not asked for.
    void asksForTheRatLinesOfComponents()
    {
        Design design;
        auto* first = design.Package("A", {0, 0}, 1);
        auto* second = design.Package("B", {300, 0}, 0);
        auto* third = design.Package("C", {600, 0}, 1);
        design.Package("D", {900, 0}, 4);
        TCmdPkgSide command({first, second, third}, bottomSide, &design.board);
        for (const bool redo : {true, false, true}) {
            design.board.Dump(); // works out what was asked for
            redo ? command.redo() : command.undo();
            QCOMPARE(design.board.AskedRats(), QStringList({"A1", "A2", "C1", "C2"}));
        }
    }

    // Undo would cut for the second time what it had just linked again.
    void aPackageGivenTwiceIsMovedOnce()
    {
        Design design;
        auto* package = design.Package("A", {0, 0}, 1);
        auto* other = design.Package("B", {300, 0}, 2);
        design.board.Wire({50, 0}, {50, 80}, {}, Osmirel::CopperBottom);
        TCmdPkgSide command({package, other, package, package}, bottomSide, &design.board);
        Test::CheckBothWays(command, design.board);
        QCOMPARE(Design::Linked(package).size(), 1);
    }

    void deletedPackagesAreDropped_data()
    {
        QTest::addColumn<int>("deleted");
        QTest::addColumn<bool>("wasDone");
        for (const int deleted : {0, 1, 2}) {
            QTest::addRow("package %d before redo", deleted) << deleted << false;
            QTest::addRow("package %d before undo", deleted) << deleted << true;
        }
    }
    void deletedPackagesAreDropped()
    {
        QFETCH(int, deleted);
        QFETCH(bool, wasDone);
        Design design;
        Packages packages{design.Package("A", {0, 0}, 1), design.Package("B", {300, 0}, 2),
                          design.Package("C", {600, 0}, 3)};
        // Each has an old layer of its own.
        packages[1]->SetLayer(Osmirel::SilkTop);
        packages[2]->SetLayer(Osmirel::DrawingsTop);
        TCmdPkgSide command(packages, bottomSide, &design.board);
        QList<QPair<TGraphicsPackageItem*, QString>> expected;
        for (int i = 0; i < 3; ++i) {
            if (i != deleted) {
                expected.append({packages[i], packages[i]->StateLine()});
            }
        }
        if (wasDone) {
            command.redo();
        }
        delete packages.takeAt(deleted);
        if (!wasDone) {
            command.redo();
        }
        for (const TGraphicsPackageItem* package : qAsConst(packages)) {
            QCOMPARE(package->Layer(), bottomSide);
        }
        command.undo();
        for (const auto& [package, line] : qAsConst(expected)) {
            QCOMPARE(package->StateLine(), line);
            QCOMPARE(Design::Linked(package).size(), 1);
        }
        command.redo();
        command.undo();
        for (const auto& [package, line] : qAsConst(expected)) {
            QCOMPARE(package->StateLine(), line);
        }
        QCOMPARE(Test::LinkFault(design.board), QString());
    }

    void packageTakenOffTheBoardIsDropped()
    {
        Design design;
        auto* away = design.Package("A", {0, 0}, 1);
        auto* stays = design.Package("B", {300, 0}, 2);
        TCmdPkgSide command({away, stays}, bottomSide, &design.board);
        away->Detach();
        const QString line = away->StateLine();
        command.redo();
        QCOMPARE(away->StateLine(), line);
        QCOMPARE(stays->Layer(), bottomSide);
        away->AttachTo(design.board.Scene());
        command.undo(); // what was dropped stays dropped
        QCOMPARE(away->StateLine(), line);
    }

    void flippedTwiceAndUndone()
    {
        Design design;
        auto* package = design.Package("A", {0, 0}, 1);
        design.board.Wire({-50, 0}, {0, 90}, {}, Osmirel::CopperBottom);
        QStringList states{design.board.Dump()};
        QUndoStack stack;
        for (const auto side : {bottomSide, topSide, bottomSide}) {
            stack.push(new TCmdPkgSide({package}, side, &design.board));
            states.append(design.board.Dump());
            QCOMPARE(Test::LinkFault(design.board), QString());
        }
        for (const int index : {0, 1, 2, 3, 0, 3}) {
            stack.setIndex(index);
            QCOMPARE(design.board.Dump(), states[index]);
        }
    }

    void withoutAViewNothingHappens()
    {
        Design design;
        auto* package = design.Package("A", {0, 0}, 1);
        design.board.SetView(nullptr);
        const QString before = design.board.Dump();
        TCmdPkgSide command({package, nullptr}, bottomSide, &design.board);
        TCmdPkgSide withoutBoard({package}, bottomSide, nullptr);
        for (TUndoCommand* tested : std::initializer_list<TUndoCommand*>{&command, &withoutBoard}) {
            tested->redo();
            QCOMPARE(design.board.Dump(), before);
            tested->undo();
            QCOMPARE(design.board.Dump(), before);
        }
    }

    // Undo would cut the wires, and has none to link again.
    void aRedoWithoutAViewIsNotUndone()
    {
        Design design;
        auto* package = design.Package("A", {0, 0}, 1);
        const QString before = design.board.Dump();
        TCmdPkgSide command({package}, bottomSide, &design.board);
        design.board.SetView(nullptr);
        command.redo();
        design.board.SetView(&design.view);
        command.undo();
        QCOMPARE(design.board.Dump(), before);
        Test::CheckBothWays(command, design.board);
    }

    // A second redo would find the wires cut, and forget them.
    void anUndoWithoutAViewLeavesTheCommandDone()
    {
        Design design;
        auto* package = design.Package("A", {0, 0}, 1);
        const QString before = design.board.Dump();
        TCmdPkgSide command({package}, bottomSide, &design.board);
        command.redo();
        const QString redone = design.board.Dump();
        design.board.SetView(nullptr);
        command.undo();
        QCOMPARE(design.board.Dump(), redone);
        design.board.SetView(&design.view);
        command.redo();
        QCOMPARE(design.board.Dump(), redone);
        command.undo();
        QCOMPARE(design.board.Dump(), before);
    }
};

PROPERTIES_TEST(TestPackageSide)
#include "tst_packageside.moc"
