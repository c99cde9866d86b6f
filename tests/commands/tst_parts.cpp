#include "properties/commands/TCmdPart.h"
#include "tests/commands/SheetDesign.h"
#include "tests/support/TestProgram.h"

#include <QUndoStack>

using Test::PinOf;
using Test::SheetDesign;
using Items = QVector<TGraphicsItem*>;

namespace {

/** Two parts whose pins touch, each with a wire that ends at it, and packages for both. */
struct Design : SheetDesign
{
    TGraphicsPartItem* one = sheet.Part({0, 0}, 4, {{0, 0}, {0, 50}});
    TGraphicsPartItem* other = sheet.Part({100, 50}, 5, {{-100, 0}, {0, 0}});
    TGraphicsNetItem* atOne = sheet.Wire({-50, 0}, {0, 0}, "A");
    TGraphicsNetItem* atOther = sheet.Wire({100, 50}, {150, 50}, "B");
    TGraphicsPackageItem* packageOfOne = Package(4);
    TGraphicsPackageItem* packageOfOther = Package(5);
};

} // namespace

class TestParts : public QObject
{
    Q_OBJECT

private slots:
    void connectLinksAndUndoCutsJustThose()
    {
        Design design;
        TGraphicsNetItem* before = design.WireFrom(PinOf(design.one, 2), "C", {-50, 0});
        TCmdPartConnect command({design.one, design.other, design.atOne}, nullptr);
        QCOMPARE(command.id(), -1);
        Test::CheckBothWays(command, design);
        command.redo();
        QCOMPARE(design.atOne->LastLink(), PinOf(design.one, 1));
        QCOMPARE(design.atOther->FirstLink(), PinOf(design.other, 2));
        QCOMPARE(PinOf(design.one, 2)->Links(), (Items{before, PinOf(design.other, 1)}));
        command.undo();
        QCOMPARE(PinOf(design.one, 2)->Links(), Items{before});
    }

    void disconnectCutsAndUndoLinksJustThose()
    {
        Design design;
        design.one->Connect({});
        design.other->Connect({});
        TGraphicsNetItem* late = design.sheet.Wire({0, 0}, {0, -50}, "C"); // Touches and is not linked.
        TCmdPartDisconnect command({design.one, design.other}, nullptr);
        QCOMPARE(command.id(), -1);
        Test::CheckBothWays(command, design);
        command.redo();
        for (const TGraphicsItem* item : Items{design.atOne, design.atOther, PinOf(design.one, 2)}) {
            QCOMPARE(item->Links(), Items());
        }
        command.undo();
        QCOMPARE(late->Links(), Items());
    }

    void everyDisconnectSavesAnew()
    {
        Design design;
        design.one->Connect({});
        TCmdPartDisconnect command({design.one}, nullptr);
        command.redo();
        command.undo();
        design.atOne->Unlink(TGraphicsItem::LinkEnd::Last);
        const QString before = design.Dump();
        command.redo();
        command.undo();
        QCOMPARE(design.Dump(), before);
        QCOMPARE(design.atOne->Links(), Items());
    }

    void partsAreConnectedInTheirOrder()
    {
        for (const bool otherFirst : {false, true}) {
            SheetDesign design;
            TGraphicsPartItem* one = design.sheet.Part({0, 0}, 4, {{0, 0}});
            TGraphicsPartItem* other = design.sheet.Part({0, 0}, 5, {{0, 0}});
            TGraphicsNetItem* wire = design.sheet.Wire({0, 0}, {50, 0});
            TCmdPartConnect command(otherFirst ? QList<TGraphicsItem*>{other, one} : QList<TGraphicsItem*>{one, other},
                                    nullptr);
            Test::CheckBothWays(command, design);
            command.redo();
            QCOMPARE(wire->FirstLink(), PinOf(otherFirst ? other : one, 1));
        }
    }

    // Intended: unlike packages, parts are not looked for before they are changed.
    void partsOffTheirPageAreChangedAllTheSame()
    {
        Design design;
        design.one->Connect({});
        TItemScene* page = design.sheet.CurrentPage()->Scene();
        TCmdPartDisconnect command({design.one}, nullptr);
        design.one->Detach();
        command.redo();
        QCOMPARE(design.atOne->Links(), Items());
        command.undo();
        QCOMPARE(design.atOne->LastLink(), PinOf(design.one, 1));
        design.one->AttachTo(page);
        QCOMPARE(design.Fault(), QString());
    }

    // An empty list would mean everything that touches.
    void whatWasNotChangedIsNotUndone_data()
    {
        QTest::addColumn<bool>("connect");
        QTest::newRow("connect") << true;
        QTest::newRow("disconnect") << false;
    }
    void whatWasNotChangedIsNotUndone()
    {
        QFETCH(bool, connect);
        Design design;
        if (connect) {
            design.one->Connect({});
            design.other->Connect({});
            TCmdPartConnect command({design.one, design.other}, nullptr);
            Test::CheckBothWays(command, design);
        } else {
            TCmdPartDisconnect command({design.one, design.other}, nullptr);
            Test::CheckBothWays(command, design);
            QCOMPARE(design.atOne->Links(), Items());
        }
    }

    void everyRedoSavesAnew()
    {
        Design design;
        TCmdPartConnect command({design.one}, nullptr);
        command.redo();
        command.undo();
        TGraphicsNetItem* late = design.sheet.Wire({0, 0}, {0, -50}, "C");
        const QString before = design.Dump();
        command.redo();
        QCOMPARE(late->FirstLink(), PinOf(design.one, 1));
        command.undo();
        QCOMPARE(design.Dump(), before);
        design.atOne->LinkToLast(PinOf(design.one, 1));
        const QString linked = design.Dump();
        command.redo();
        command.undo();
        QCOMPARE(design.Dump(), linked);
    }

    void partsGivenTwiceAreUndoneOnce()
    {
        Design design;
        TCmdPartConnect connect({design.one, design.one}, &design.project);
        connect.redo();
        connect.undo();
        QCOMPARE(design.atOne->Links(), Items());
        design.one->Connect({});
        TCmdPartDisconnect disconnect({design.one, design.one}, nullptr);
        Test::CheckBothWays(disconnect, design);
    }

    // Pins of one part in one place, which lie on those of another: wires and pins come back to the very pin.
    void pinsOnEachOtherKeepTheirOwn()
    {
        SheetDesign design;
        TGraphicsPartItem* one = design.sheet.Part({0, 0}, 4, {{0, 0}, {0, 0}, {0, 50}});
        TGraphicsPartItem* other = design.sheet.Part({0, 0}, 5, {{0, 0}, {0, 0}, {0, 50}});
        design.WireFrom(PinOf(one, 2), "A")->LinkToLast(PinOf(one, 2)); // Both ends at one pin.
        design.WireFrom(PinOf(one, 1), "B", {0, 50})->LinkToLast(PinOf(one, 3));
        design.WireFrom(PinOf(other, 2), "C");
        design.sheet.Wire({0, 0}, {0, 50});
        PinOf(one, 2)->LinkToPin(PinOf(other, 1));
        QUndoStack stack;
        QStringList states{design.Dump()};
        const auto push = [&](TUndoCommand* command) {
            stack.push(command);
            states.append(design.Dump());
        };
        const QList<TGraphicsItem*> both{one, other};
        push(new TCmdPartDisconnect(both, nullptr));
        push(new TCmdPartConnect({other}, nullptr));
        push(new TCmdPartDisconnect({one}, nullptr));
        push(new TCmdPartConnect(both, nullptr));
        push(new TCmdPartDisconnect({other, one}, nullptr));
        for (const int end : {0, 5, 1, 4, 0, 5, 0}) {
            while (stack.index() != end) {
                stack.index() < end ? stack.redo() : stack.undo();
                QCOMPARE(design.Dump(), states[stack.index()]);
                QCOMPARE(design.Fault(), QString());
            }
        }
        QCOMPARE(PinOf(other, 1)->LinkedPins(), QList<TGraphicsPinItem*>{PinOf(one, 2)});
    }

    void padsTakeTheNetsOfTheirPins()
    {
        Design design;
        TCmdPartConnect connect({design.one}, &design.project);
        connect.redo();
        QCOMPARE(SheetDesign::PadNets(design.packageOfOne), (QStringList{"A", ""}));
        QCOMPARE(SheetDesign::PadNets(design.packageOfOther), (QStringList{"stale", "stale"}));
        TCmdPartConnect connectOther({design.other}, &design.project);
        connectOther.redo();
        QCOMPARE(SheetDesign::PadNets(design.packageOfOther), (QStringList{"", "B"}));
        connect.undo();
        QCOMPARE(SheetDesign::PadNets(design.packageOfOne), (QStringList{"", ""}));
        connect.redo();
        TCmdPartDisconnect disconnect({design.one, design.other}, &design.project);
        disconnect.redo();
        QCOMPARE(SheetDesign::PadNets(design.packageOfOther), (QStringList{"", ""}));
        disconnect.undo();
        QCOMPARE(SheetDesign::PadNets(design.packageOfOne), (QStringList{"A", ""}));
        QCOMPARE(SheetDesign::PadNets(design.packageOfOther), (QStringList{"", "B"}));
    }

    void theBoardFollowsOnlyInStepAndSwitchedOn_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<bool>("switchedOn");
        QTest::addColumn<bool>("follows");
        QTest::newRow("in step") << 1 << true << true;
        QTest::newRow("separate") << 0 << true << false;
        QTest::newRow("switched off") << 1 << false << false;
    }
    void theBoardFollowsOnlyInStepAndSwitchedOn()
    {
        QFETCH(int, kind);
        QFETCH(bool, switchedOn);
        QFETCH(bool, follows);
        Design design;
        design.project.SetKind(kind);
        design.board.SetConnectivityEnabled(switchedOn);
        TCmdPartConnect command({design.one}, &design.project);
        command.redo();
        const QStringList stale{"stale", "stale"};
        QCOMPARE(SheetDesign::PadNets(design.packageOfOne), follows ? (QStringList{"A", ""}) : stale);
        command.undo();
        QCOMPARE(SheetDesign::PadNets(design.packageOfOne), follows ? (QStringList{"", ""}) : stale);
        command.UpdatePCB(); // Here the kind of project counts.
        QCOMPARE(SheetDesign::PadNets(design.packageOfOne), follows ? (QStringList{"", ""}) : stale);
        design.project.SetBoard(nullptr);
        command.redo();
        QCOMPARE(design.atOne->LastLink(), PinOf(design.one, 1));
    }

    void theBoardIsUpdatedDirectly()
    {
        Design design;
        TCmdPartConnect connect({design.one}, &design.project);
        connect.redo();
        const QVector<TGraphicsItem*> pads = design.packageOfOne->Pads();
        TCmdPartDisconnect disconnect({design.one}, &design.project);
        for (TCmdPartConnect* command : {&connect, static_cast<TCmdPartConnect*>(&disconnect)}) {
            static_cast<TGraphicsPadItem*>(pads.first())->SetNet("stale");
            command->UpdatePCB();
            QCOMPARE(SheetDesign::PadNets(design.packageOfOne), (QStringList{"A", ""}));
        }
    }

    // No component is updated then, and not all of them.
    void overNoPartsPadsKeepTheirNets()
    {
        Design design;
        TCmdPartConnect({design.one, design.other}, nullptr).redo(); // Without the board.
        const QString before = design.Dump();
        TCmdPartConnect connect({nullptr, design.atOne, design.packageOfOne}, &design.project);
        Test::CheckBothWays(connect, design);
        connect.redo();
        QCOMPARE(design.Dump(), before);
        TCmdPartDisconnect disconnect({}, &design.project);
        Test::CheckBothWays(disconnect, design);
        disconnect.redo();
        QCOMPARE(design.Dump(), before);
        for (const TGraphicsPackageItem* package : {design.packageOfOne, design.packageOfOther}) {
            QCOMPARE(SheetDesign::PadNets(package), (QStringList{"stale", "stale"}));
        }
        TCmdPartConnect({design.one}, &design.project).redo();
        QCOMPARE(SheetDesign::PadNets(design.packageOfOne), (QStringList{"A", ""})); // There was something to update.
    }

    void commandsInTurnAreUndoneInTurn()
    {
        Design design;
        TGraphicsPartItem* unit = design.sheet.Part({0, 50}, 4, {{0, 0}, {0, 0}}); // On a pin of both.
        QUndoStack stack;
        QStringList states{design.Dump()};
        const auto push = [&](TUndoCommand* command) {
            stack.push(command);
            states.append(design.Dump());
            QCOMPARE(design.Fault(), QString());
        };
        push(new TCmdPartConnect({unit, design.one}, nullptr));
        push(new TCmdPartDisconnect({design.other}, nullptr));
        push(new TCmdPartConnect({design.other}, nullptr));
        push(new TCmdPartDisconnect({design.one, unit, design.other}, nullptr));
        push(new TCmdPartConnect({design.other, unit}, nullptr));
        for (const int end : {0, 5, 2, 4, 0}) {
            while (stack.index() != end) {
                stack.index() < end ? stack.redo() : stack.undo();
                QCOMPARE(design.Dump(), states[stack.index()]);
                QCOMPARE(design.Fault(), QString());
            }
        }
    }
};

PROPERTIES_TEST(TestParts)
#include "tst_parts.moc"
