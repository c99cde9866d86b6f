#include "properties/commands/TCmdPort.h"
#include "tests/commands/SheetDesign.h"
#include "tests/support/TestProgram.h"

#include <QUndoStack>

using Test::PinOf;
using Test::SheetDesign;
using Ports = QList<TGraphicsPortItem*>;

class TestPortName : public QObject
{
    Q_OBJECT

private slots:
    void theOnlyPortOfANetMovesToANewOne()
    {
        SheetDesign design;
        design.Model().AddNet("X", "Power", Qt::red, Qt::green, 3);
        design.Model().AddNet("A", "Power", {}, Qt::blue, 7);
        design.Model().AddNet("Y", {}, {}, {}, 0);
        TGraphicsPortItem* port = design.sheet.Port({0, 0}, "A");
        TCmdPortName command({port}, "B", &design.sheet);
        QCOMPARE(command.id(), -1);
        Test::CheckBothWays(command, design);
        command.redo();
        QCOMPARE(design.Nets(), (QStringList{"X", "Y", "B"}));
        QCOMPARE(port->Name(), QString("B"));
        const int row = design.Model().NetRow("B");
        QCOMPARE(design.Model().NetClass("B"), QString("Default"));
        QCOMPARE(design.Model().Priority("B"), QString("0"));
        QVERIFY(!design.Model().ColorSch(row).isValid() && !design.Model().ColorPcb(row).isValid());
        QCOMPARE(design.sheet.Items(), QList<TGraphicsItem*>{port}); // Taken over from the pages for the search.
        command.undo();
        QCOMPARE(design.Nets(), (QStringList{"X", "A", "Y"}));
        QCOMPARE(port->Name(), QString("A"));
        QCOMPARE(design.Model().ColorPcb(1), QColor(Qt::blue));
        QCOMPARE(design.Model().Priority("A"), QString("7"));
    }

    void whatIsWiredMovesAlong()
    {
        SheetDesign design;
        design.AddNets({"A"});
        TGraphicsPortItem* port = design.sheet.Port({0, 0}, "A");
        TGraphicsNetItem* wire = design.WireFrom(port->Pin(), "A");
        TGraphicsPortItem* other = design.sheet.Port({50, 0}, "A");
        wire->LinkToLast(other->Pin());
        TCmdPortName command({port}, "B", &design.sheet);
        Test::CheckBothWays(command, design);
        command.redo();
        QCOMPARE(wire->Net() + wire->OwnNet() + other->Name(), QString("BBB"));
        QCOMPARE(design.Nets(), QStringList{"B"});
    }

    void aWireOnAnyPageKeepsItsNet_data()
    {
        QTest::addColumn<bool>("onOtherPage");
        QTest::newRow("same page") << false;
        QTest::newRow("other page") << true;
    }
    void aWireOnAnyPageKeepsItsNet()
    {
        QFETCH(bool, onOtherPage);
        SheetDesign design;
        design.AddNets({"A"});
        TGraphicsPortItem* port = design.sheet.Port({0, 0}, "A");
        if (onOtherPage) {
            design.sheet.GoToPage(design.sheet.AddPage());
        }
        TGraphicsNetItem* wire = design.sheet.Wire({0, 90}, {50, 90}, "A");
        TCmdPortName command({port}, "B", &design.sheet);
        Test::CheckBothWays(command, design);
        command.redo();
        QCOMPARE(design.Nets(), (QStringList{"A", "B"}));
        QCOMPARE(wire->Net(), QString("A"));
        // What is used is asked anew with every redo.
        command.undo();
        delete wire;
        command.redo();
        QCOMPARE(design.Nets(), QStringList{"B"});
    }

    // Intended: only net wires keep a net in the model.
    void aPortAloneDoesNotKeepItsNet()
    {
        SheetDesign design;
        design.AddNets({"A"});
        TGraphicsPortItem* port = design.sheet.Port({0, 0}, "A");
        TGraphicsPortItem* other = design.sheet.Port({0, 50}, "A");
        design.sheet.Junction({0, 90}, "A");
        design.sheet.Bus({0, 200}, {90, 200})->SetNet("A"); // No net wire, though drawn like one.
        TCmdPortName command({port}, "B", &design.sheet);
        Test::CheckBothWays(command, design);
        command.redo();
        QCOMPARE(design.Nets(), QStringList{"B"});
        QCOMPARE(other->Name(), QString("A"));
    }

    void onlyTheNetOfTheWireIsKept()
    {
        SheetDesign design;
        design.AddNets({"A", "C"});
        const Ports ports{design.sheet.Port({0, 0}, "A"), design.sheet.Port({0, 50}, "C")};
        design.sheet.Wire({0, 90}, {50, 90}, "A");
        TCmdPortName command(ports, "B", &design.sheet);
        Test::CheckBothWays(command, design);
        command.redo();
        QCOMPARE(design.Nets(), (QStringList{"A", "B"}));
    }

    // The name to go back to is that of the moment it was made; the net to leave is that of the moment it is done.
    void namesAreReadWhenMadeAndNetsWhenDone()
    {
        SheetDesign design;
        design.AddNets({"A", "C"});
        TGraphicsPortItem* port = design.sheet.Port({0, 0}, "A");
        TCmdPortName command({port}, "B", &design.sheet);
        port->SetName("C", {});
        command.redo();
        QCOMPARE(design.Nets(), (QStringList{"A", "B"}));
        command.undo();
        QCOMPARE(port->Name(), QString("A"));
        QCOMPARE(design.Nets(), (QStringList{"A", "C"}));
    }

    void everyPortGetsTheColorOfItsOwnNetBack()
    {
        SheetDesign design;
        design.Model().AddNet("A", {}, Qt::red, {}, 0);
        design.Model().AddNet("C", {}, Qt::blue, {}, 0);
        const Ports ports{design.sheet.Port({0, 0}, "A"), design.sheet.Port({0, 50}, "C")};
        TCmdPortName command(ports, "B", &design.sheet);
        command.redo();
        QVERIFY(!ports[0]->AltColor().isValid() && !ports[1]->AltColor().isValid());
        command.undo();
        QCOMPARE(ports[0]->AltColor(), QColor(Qt::red));
        QCOMPARE(ports[1]->AltColor(), QColor(Qt::blue));
    }

    // Two ports that are wired together, and one apart.
    void padsOfAllPortsFollow()
    {
        SheetDesign design;
        design.AddNets({"A"});
        TGraphicsPortItem* port = design.sheet.Port({0, 0}, "A");
        TGraphicsPortItem* wired = design.sheet.Port({50, 0}, "A");
        TGraphicsPortItem* apart = design.sheet.Port({0, 300}, "A");
        design.WireFrom(port->Pin(), "A")->LinkToLast(wired->Pin());
        wired->Pin()->LinkToPin(PinOf(design.sheet.Part({50, 0}, 4, {{0, 0}}), 1));
        apart->Pin()->LinkToPin(PinOf(design.sheet.Part({0, 300}, 5, {{0, 0}}), 1));
        const TGraphicsPackageItem* packages[] = {design.Package(4, 1), design.Package(5, 1)};
        TCmdPortName command({port, wired, apart}, "B", &design.sheet);
        command.redo();
        for (const TGraphicsPackageItem* package : packages) {
            QCOMPARE(SheetDesign::PadNets(package), QStringList{"B"});
        }
        command.undo();
        for (const TGraphicsPackageItem* package : packages) {
            QCOMPARE(SheetDesign::PadNets(package), QStringList{"A"});
        }
    }

    void aKnownNetIsNotAdded()
    {
        SheetDesign design;
        design.AddNets({"B", "A"});
        design.Model().SetNetClass("B", "Power");
        TGraphicsPortItem* port = design.sheet.Port({0, 0}, "A");
        TCmdPortName command({port}, "B", &design.sheet);
        Test::CheckBothWays(command, design);
        command.redo();
        QCOMPARE(design.Nets(), QStringList{"B"});
        QCOMPARE(design.Model().NetClass("B"), QString("Power"));
        command.undo();
        QCOMPARE(design.Nets(), (QStringList{"B", "A"})); // Undo takes away what redo added, which was nothing.
    }

    void aNetThatTheModelDoesNotKnowIsNotDeleted()
    {
        SheetDesign design;
        TGraphicsPortItem* port = design.sheet.Port({0, 0}, "A");
        TCmdPortName command({port}, "B", &design.sheet);
        Test::CheckBothWays(command, design);
        command.redo();
        QCOMPARE(design.Nets(), QStringList{"B"});
        command.undo();
        QCOMPARE(design.Nets(), QStringList());
    }

    void theNewNetIsNeverDeleted_data()
    {
        QTest::addColumn<bool>("isWired");
        QTest::newRow("ports on their own") << false;
        QTest::newRow("ports that are wired together") << true;
    }
    void theNewNetIsNeverDeleted()
    {
        QFETCH(bool, isWired);
        SheetDesign design;
        design.AddNets({"A", "B"});
        TGraphicsPortItem* port = design.sheet.Port({0, 0}, "A");
        TGraphicsPortItem* second = design.sheet.Port({50, 0}, "A");
        TGraphicsPortItem* third = design.sheet.Port({90, 0}, "B");
        if (isWired) {
            TGraphicsJunctionItem* junction = design.sheet.Junction({0, 0}, "A"); // No net wire.
            Q_UNUSED(junction)
            port->Pin()->LinkToPin(second->Pin());
        }
        TCmdPortName command({port, second, third}, "B", &design.sheet);
        Test::CheckBothWays(command, design);
        command.redo();
        QCOMPARE(design.Nets(), QStringList{"B"});
        command.undo();
        QCOMPARE(design.Nets(), (QStringList{"A", "B"}));
    }

    void aPortsOwnNameChangesNothing()
    {
        SheetDesign design;
        design.AddNets({"A"});
        TGraphicsPortItem* port = design.sheet.Port({0, 0}, "A");
        const QString before = design.Dump();
        TCmdPortName command({port}, "A", &design.sheet);
        Test::CheckBothWays(command, design);
        command.redo();
        QCOMPARE(design.Dump(), before);
    }

    // Only their places are held: the model finds them in whatever order the rows are added again.
    void deletedNetsComeBackToTheirPlaces()
    {
        SheetDesign design;
        design.AddNets({"A", "X", "B", "Y", "C"});
        design.Model().SetNetClass("C", "Power");
        Ports ports;
        for (const char* name : {"C", "A", "B", "A"}) {
            ports.append(design.sheet.Port({0, 50.0 * ports.size()}, name));
        }
        TCmdPortName command(ports, "N", &design.sheet);
        Test::CheckBothWays(command, design);
        command.redo();
        QCOMPARE(design.Nets(), (QStringList{"X", "Y", "N"}));
        command.undo();
        QCOMPARE(design.Nets(), (QStringList{"A", "X", "B", "Y", "C"}));
        QCOMPARE(design.Model().NetClass("C"), QString("Power"));
        for (int i = 0; i < ports.size(); ++i) {
            QCOMPARE(ports[i]->Name(), QString(QList<const char*>{"C", "A", "B", "A"}[i]));
        }
    }

    // The net of a port is that of its first wire, which may be of another name where several meet.
    void theOldNetIsThatOfTheWire()
    {
        SheetDesign design;
        design.AddNets({"A", "C", "W"});
        TGraphicsPortItem* port = design.sheet.Port({0, 0}, "A");
        TGraphicsPortItem* other = design.sheet.Port({50, 0}, "C");
        TGraphicsNetItem* wire = design.WireFrom(port->Pin(), "W");
        wire->LinkToLast(other->Pin());
        QCOMPARE(port->Net(), QString("W"));
        TCmdPortName command({port}, "B", &design.sheet);
        Test::CheckBothWays(command, design);
        command.redo();
        QCOMPARE(wire->Net() + other->Name(), QString("BB"));
        QCOMPARE(design.Nets(), (QStringList{"A", "C", "B"})); // Nobody asks for the ports' own names.
    }

    // Three commands in turn, each over one or both of two ports that are wired together and renamed to one of three
    // names: every such sequence.
    void portsOfSeveralNamesThatAreWiredTogether()
    {
        SheetDesign design;
        design.AddNets({"C", "W", "A"});
        TGraphicsPortItem* one = design.sheet.Port({0, 0}, "A");
        TGraphicsPortItem* other = design.sheet.Port({50, 0}, "C");
        design.WireFrom(one->Pin(), "W")->LinkToLast(other->Pin());
        const QList<Ports> lists{{one}, {other}, {one, other}, {other, one}};
        const QStringList names{"A", "C", "N"};
        const int edits = lists.size() * names.size();
        for (int sequence = 0; sequence < edits * edits * edits; ++sequence) {
            QUndoStack stack;
            QStringList states{design.Dump()};
            for (int i = 0, rest = sequence; i < 3; ++i, rest /= edits) {
                const int edit = rest % edits;
                stack.push(new TCmdPortName(lists[edit % lists.size()], names[edit / lists.size()], &design.sheet));
                states.append(design.Dump());
            }
            for (const int end : {0, 3, 0}) {
                while (stack.index() != end) {
                    stack.index() < end ? stack.redo() : stack.undo();
                    QCOMPARE(design.Dump(), states[stack.index()]);
                }
            }
        }
    }

    void namesAreSwappedAndSwappedBack()
    {
        SheetDesign design;
        design.AddNets({"A", "B"});
        TGraphicsPortItem* one = design.sheet.Port({0, 0}, "A");
        TGraphicsPortItem* other = design.sheet.Port({0, 50}, "B");
        TGraphicsNetItem* ofOne = design.WireFrom(one->Pin(), "A");
        TGraphicsNetItem* ofOther = design.WireFrom(other->Pin(), "B");
        QUndoStack stack;
        QStringList states{design.Dump()};
        const auto rename = [&](TGraphicsPortItem* port, const char* name) {
            stack.push(new TCmdPortName({port}, name, &design.sheet));
            states.append(design.Dump());
        };
        rename(one, "T");
        rename(other, "A");
        rename(one, "B");
        QCOMPARE(ofOne->Net() + ofOther->Net(), QString("BA"));
        QCOMPARE(design.Nets(), (QStringList{"A", "B"}));
        for (const int index : {2, 1, 0, 3, 0}) {
            stack.setIndex(index);
            QCOMPARE(design.Dump(), states[index]);
        }
    }

    void renamesAfterRenamesAreUndoneInTurn()
    {
        SheetDesign design;
        design.AddNets({"A", "C"});
        TGraphicsPortItem* port = design.sheet.Port({0, 0}, "A");
        TGraphicsPortItem* other = design.sheet.Port({50, 0}, "C");
        TGraphicsNetItem* wire = design.WireFrom(port->Pin(), "A");
        wire->LinkToLast(other->Pin());
        QUndoStack stack;
        QStringList states{design.Dump()};
        const QList<QPair<Ports, QString>> steps{{{port}, "B"},  {{port}, "A"},  {{other, port}, "B"},
                                                 {{other}, "A"}, {{other}, "C"}, {{port, other}, "C"},
                                                 {{port}, "A"},  {{port}, "A"},  {{}, "Z"}};
        for (const auto& step : steps) {
            stack.push(new TCmdPortName(step.first, step.second, &design.sheet));
            states.append(design.Dump());
        }
        for (const int end : {0, steps.size(), 0}) {
            while (stack.index() != end) {
                stack.index() < end ? stack.redo() : stack.undo();
                QCOMPARE(design.Dump(), states[stack.index()]);
            }
        }
    }

    void withoutPortsNoNetIsAdded()
    {
        SheetDesign design;
        design.Package(4);
        const QString before = design.Dump();
        TCmdPortName command({nullptr}, "B", &design.sheet);
        command.redo();
        QCOMPARE(design.Dump(), before);
        QCOMPARE(design.Nets(), QStringList());
        design.Model().AddNet("B", {}, {}, {}, 0);
        command.undo();
        QCOMPARE(design.Nets(), QStringList{"B"}); // Another's.
    }

    void theEmptyNameIsNoNet()
    {
        SheetDesign design;
        design.AddNets({"A"});
        TGraphicsPortItem* port = design.sheet.Port({0, 0}, "A");
        TCmdPortName command({port, nullptr}, QString(), &design.sheet);
        Test::CheckBothWays(command, design);
        command.redo();
        QCOMPARE(design.Nets(), QStringList());
        QCOMPARE(port->Name(), QString());
    }

    void namesAreColouredLikeTheirNets()
    {
        SheetDesign design;
        design.Model().AddNet("A", {}, Qt::red, {}, 0);
        design.Model().AddNet("B", {}, Qt::blue, {}, 0);
        TGraphicsPortItem* port = design.sheet.Port({0, 0}, "A");
        TGraphicsNetItem* wire = design.WireFrom(port->Pin(), "A");
        TCmdPortName command({port}, "B", &design.sheet);
        command.redo();
        QCOMPARE(port->AltColor(), QColor(Qt::blue));
        QCOMPARE(wire->AltColor(), QColor(Qt::blue));
        design.sheet.SetNetColor("B", Qt::green);
        command.undo();
        QCOMPARE(port->AltColor(), QColor(Qt::red)); // That of the row that came back, whatever the port had.
        QCOMPARE(wire->AltColor(), QColor(Qt::red));
        command.redo();
        QCOMPARE(port->AltColor(), QColor(Qt::green));
    }

    void withoutASchematicNothingHappens()
    {
        TGraphicsPortItem port;
        port.SetName("A", {});
        TCmdPortName command({&port}, "B", nullptr);
        command.redo();
        command.UpdatePCB();
        command.undo();
        QCOMPARE(port.Name(), QString("A"));
    }

    // The board.

    void padsOfConnectedComponentsFollow()
    {
        SheetDesign design;
        design.AddNets({"A"});
        TGraphicsPortItem* port = design.sheet.Port({0, 0}, "A");
        TGraphicsPartItem* part = design.sheet.Part({50, 0}, 4, {{0, 0}, {0, 50}});
        TGraphicsPartItem* far = design.sheet.Part({100, 0}, 5, {{-50, 50}, {0, 0}});
        design.WireFrom(port->Pin());
        part->Connect({});
        design.WireFrom(PinOf(far, 2), "far away");
        far->Connect({});
        TGraphicsPackageItem* package = design.Package(4);
        TGraphicsPackageItem* unconnected = design.Package(5);
        TCmdPortName command({port}, "B", &design.sheet);
        command.redo();
        // All pins of the components that the port is connected with, of those that it is not none.
        QCOMPARE(SheetDesign::PadNets(package), (QStringList{"B", ""}));
        QCOMPARE(SheetDesign::PadNets(unconnected), (QStringList{"stale", "stale"}));
        command.undo();
        QCOMPARE(SheetDesign::PadNets(package), (QStringList{"A", ""}));
        command.redo();
        QCOMPARE(SheetDesign::PadNets(package), (QStringList{"B", ""}));
    }

    void theBoardFollowsOnlyInStepAndSwitchedOn_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<bool>("switchedOn");
        QTest::addColumn<bool>("withBoard");
        QTest::addColumn<bool>("follows");
        QTest::newRow("in step") << 1 << true << true << true;
        QTest::newRow("separate") << 0 << true << true << false;
        QTest::newRow("of another kind") << 2 << true << true << false;
        QTest::newRow("switched off") << 1 << false << true << false;
        QTest::newRow("no board") << 1 << true << false << false;
    }
    void theBoardFollowsOnlyInStepAndSwitchedOn()
    {
        QFETCH(int, kind);
        QFETCH(bool, switchedOn);
        QFETCH(bool, withBoard);
        QFETCH(bool, follows);
        SheetDesign design;
        design.project.SetKind(kind);
        design.board.SetConnectivityEnabled(switchedOn);
        TGraphicsPortItem* port = design.sheet.Port({0, 0}, "A");
        design.WireFrom(port->Pin());
        design.sheet.Part({50, 0}, 4, {{0, 0}})->Connect({});
        TGraphicsPackageItem* package = design.Package(4, 1);
        if (!withBoard) {
            design.project.SetBoard(nullptr);
        }
        TCmdPortName command({port}, "B", &design.sheet);
        command.redo();
        QCOMPARE(SheetDesign::PadNets(package), QStringList(follows ? "B" : "stale"));
        command.undo();
        QCOMPARE(SheetDesign::PadNets(package), QStringList(follows ? "A" : "stale"));
        QCOMPARE(port->Name(), QString("A"));
        // Asked for directly, the kind of project does not count.
        command.UpdatePCB();
        QCOMPARE(SheetDesign::PadNets(package), QStringList(withBoard && switchedOn ? "A" : "stale"));
    }

    // Intended: components and net ties are numbered apart, and told in one list.
    void theNumberOfANetTieIsTakenForAComponents()
    {
        SheetDesign design;
        TGraphicsPortItem* port = design.sheet.Port({0, 0}, "A");
        TGraphicsNetTieSchItem* tie = design.sheet.NetTie({65, 0}, 7);
        design.WireFrom(port->Pin())->LinkToLast(PinOf(tie, 1));
        TGraphicsPartItem* part = design.sheet.Part({300, 0}, 7, {{0, 0}});
        design.WireFrom(PinOf(part, 1), "elsewhere");
        TGraphicsPackageItem* package = design.Package(7, 1);
        TCmdPortName command({port}, "B", &design.sheet);
        command.redo();
        QCOMPARE(SheetDesign::PadNets(package), QStringList{"elsewhere"});
    }

    // A loose pin, and that of another port, belong to no component.
    void otherPinsTellNoNumber()
    {
        SheetDesign design;
        TGraphicsPortItem* port = design.sheet.Port({0, 0}, "A");
        TGraphicsNetItem* wire = design.WireFrom(port->Pin());
        wire->LinkToLast(design.sheet.Port({50, 0}, "A")->Pin());
        design.sheet.Add<TGraphicsPinItem>({0, 0})->LinkToPin(port->Pin());
        TGraphicsPackageItem* package = design.Package(0, 1);
        TCmdPortName command({port}, "B", &design.sheet);
        command.redo();
        QCOMPARE(SheetDesign::PadNets(package), QStringList{"stale"});
    }

    void aPortWithoutItsPinIsRenamedAlone()
    {
        SheetDesign design;
        TGraphicsPortItem* port = design.sheet.Port({0, 0}, "A");
        delete port->Pin();
        TCmdPortName command({port}, "B", &design.sheet);
        Test::CheckBothWays(command, design);
    }
};

PROPERTIES_TEST(TestPortName)
#include "tst_portname.moc"
