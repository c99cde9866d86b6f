#include "properties/commands/TCmdNet.h"
#include "tests/commands/SheetDesign.h"
#include "tests/support/TestProgram.h"

#include <objects/TGraphicsRatLineItem.h>

#include <QUndoStack>

namespace {

/** A project with the nets "A" (priority 1), "B" (2) and "C" (3), each with two pads and a rat line. */
struct Design
{
    Design()
    {
        schematic.AddNetClass("Power");
        schematic.AddNetClass("Signal");
        Model().AddNet("A", "Power", Qt::red, Qt::green, 1);
        Model().AddNet("B", "", QColor(), QColor(), 2);
        Model().AddNet("C", "Default", Qt::blue, Qt::yellow, 3);
        view.setScene(board.Scene());
        board.SetView(&view);
        project.SetBoard(&board);
        project.SetSchematic(&schematic);
        double y = 0;
        for (const char* net : {"A", "B", "C"}) {
            board.Pad({0, y}, net);
            board.Pad({100, y}, net);
            y += 50;
        }
    }

    TNetModel& Model() { return *schematic.NetModel(); }

    /** The level of each net, in the model and on its rat line. */
    QStringList Levels()
    {
        QStringList levels;
        for (TGraphicsItem* item : board.Items()) {
            if (const auto* rat = dynamic_cast<TGraphicsRatLineItem*>(item)) {
                levels.append(rat->Net() + ' ' + Model().Priority(rat->Net()) + ' ' + rat->Priority());
            }
        }
        return levels;
    }

    QGraphicsView view;
    Test::Network board;
    TSchematic schematic;
    TProject project;
};

} // namespace

class TestNetAttributes : public QObject
{
    Q_OBJECT

private slots:
    // Class.

    void classIsWrittenAndBroughtBack()
    {
        Design design;
        TCmdNetClass command("A", "Signal", &design.project);
        for (int i = 0; i < 2; ++i) {
            command.redo();
            QCOMPARE(design.Model().NetClass("A"), QString("Signal"));
            QCOMPARE(design.Model().NetClass("C"), QString("Default"));
            command.undo();
            QCOMPARE(design.Model().NetClass("A"), QString("Power"));
        }
        QCOMPARE(command.id(), -1);
    }

    void unknownClassChangesNothing()
    {
        Design design;
        TCmdNetClass command("A", "of no schematic", &design.project);
        command.redo();
        QCOMPARE(design.Model().NetClass("A"), QString("Power"));
        command.undo();
        QCOMPARE(design.Model().NetClass("A"), QString("Power"));
    }

    // The empty name stands for the default class.
    void undoTakesAClassAway()
    {
        Design design;
        TCmdNetClass command("B", "Signal", &design.project);
        command.redo();
        QCOMPARE(design.Model().NetClass("B"), QString("Signal"));
        command.undo();
        QCOMPARE(design.Model().NetClass("B"), QString());
    }

    // Undo is held to the same rule as redo.
    void anOldClassThatNobodyKnowsAnyMoreDoesNotComeBack()
    {
        Design design;
        design.Model().SetNetClass("A", "of no schematic");
        TCmdNetClass command("A", "Signal", &design.project);
        command.redo();
        command.undo();
        QCOMPARE(design.Model().NetClass("A"), QString("Signal"));
    }

    void oldClassIsThatOfTheMomentItWasMade()
    {
        Design design;
        TCmdNetClass command("A", "Signal", &design.project);
        design.Model().SetNetClass("A", "Default");
        command.redo();
        command.undo();
        QCOMPARE(design.Model().NetClass("A"), QString("Power"));
    }

    void classIsSetDirectly()
    {
        Design design;
        TCmdNetClass command("A", "Signal", &design.project);
        command.SetClass("C", "Power");
        QCOMPARE(design.Model().NetClass("C"), QString("Power"));
        command.SetClass("C", "?");
        QCOMPARE(design.Model().NetClass("C"), QString("Power"));
        QCOMPARE(design.Model().NetClass("A"), QString("Power"));
    }

    // Colour.

    void colorIsWrittenToTheModelAndTheItemsOfTheNet()
    {
        Design design;
        auto* wire = design.board.Wire({0, 0}, {20, 0}, "A");
        auto* pour = design.board.Pour({0, 0, 9, 9}, "A");
        auto* other = design.board.Wire({0, 200}, {20, 200}, "B");
        other->SetAltColor(Qt::cyan);
        TCmdNetColorPcb command("A", Qt::magenta, &design.project);
        for (int i = 0; i < 2; ++i) {
            command.redo();
            QCOMPARE(design.Model().ColorPcb(0), QColor(Qt::magenta));
            command.undo();
            QCOMPARE(design.Model().ColorPcb(0), QColor(Qt::green));
        }
        command.redo();
        int colored = 0;
        for (const TGraphicsItem* item : design.board.Items()) {
            QCOMPARE(item->AltColor() == QColor(Qt::magenta), item->Net() == "A");
            colored += item->Net() == "A" ? 1 : 0;
        }
        QVERIFY(colored >= 5); // pads, wire, pour, rat line
        QCOMPARE(other->AltColor(), QColor(Qt::cyan));
        QCOMPARE(design.Model().ColorSch(0), QColor(Qt::red));
        command.undo();
        QCOMPARE(wire->AltColor(), QColor(Qt::green));
        QCOMPARE(pour->AltColor(), QColor(Qt::green));
        QCOMPARE(command.id(), -1);
    }

    // A net has one colour: undo gives it to every item of the net, whatever each had.
    void undoGivesAllItemsTheColorOfTheNet()
    {
        Design design;
        auto* wire = design.board.Wire({0, 0}, {20, 0}, "B");
        wire->SetAltColor(Qt::cyan);
        TCmdNetColorPcb command("B", Qt::magenta, &design.project);
        command.redo();
        command.undo();
        QVERIFY(!wire->AltColor().isValid());
    }

    void oldColorIsThatOfTheMomentItWasMade()
    {
        Design design;
        TCmdNetColorPcb command("A", Qt::magenta, &design.project);
        design.Model().SetColorPcb("A", Qt::cyan);
        command.redo();
        command.undo();
        QCOMPARE(design.Model().ColorPcb(0), QColor(Qt::green));
    }

    void colorIsSetDirectly()
    {
        Design design;
        auto* wire = design.board.Wire({0, 0}, {20, 0}, "A");
        auto* other = design.board.Wire({0, 200}, {20, 200}, "B");
        TCmdNetColorPcb command("A", Qt::magenta, &design.project);
        command.SetColor("B", Qt::cyan);
        QCOMPARE(design.Model().ColorPcb(1), QColor(Qt::cyan));
        QCOMPARE(other->AltColor(), QColor(Qt::cyan));
        QCOMPARE(design.Model().ColorPcb(0), QColor(Qt::green));
        QVERIFY(!wire->AltColor().isValid());
    }

    void colorWithoutABoard()
    {
        Design design;
        design.project.SetBoard(nullptr);
        TCmdNetColorPcb command("A", Qt::magenta, &design.project);
        command.redo();
        QCOMPARE(design.Model().ColorPcb(0), QColor(Qt::magenta));
        command.undo();
        QCOMPARE(design.Model().ColorPcb(0), QColor(Qt::green));
    }

    // What is on no net has no colour in common.
    void theEmptyNameIsNoNet()
    {
        Design design;
        auto* wire = design.board.Wire({0, 300}, {20, 300});
        auto* line = design.board.Wire({0, 310}, {20, 310});
        line->SetAltColor(Qt::cyan);
        const QString before = design.board.Dump() + design.Model().Dump();
        TCmdNetColorPcb command("", Qt::magenta, &design.project);
        command.redo();
        QCOMPARE(design.board.Dump() + design.Model().Dump(), before);
        command.SetColor("", Qt::magenta);
        command.undo();
        QCOMPARE(design.board.Dump() + design.Model().Dump(), before);
        QVERIFY(!wire->AltColor().isValid());
        auto* rat = design.board.Add<TGraphicsRatLineItem>({});
        rat->SetLine({0, 0, 9, 9}, "");
        TCmdNetPrio({"", "A"}, "7", &design.project).redo();
        QCOMPARE(rat->Priority(), QString());
        QCOMPARE(design.Model().Priority("A"), QString("7"));
    }

    void colorIsTakenAway()
    {
        Design design;
        auto* wire = design.board.Wire({0, 0}, {20, 0}, "A");
        TCmdNetColorPcb command("A", QColor(), &design.project);
        command.redo();
        QVERIFY(!design.Model().ColorPcb(0).isValid());
        QVERIFY(!wire->AltColor().isValid());
        command.undo();
        QCOMPARE(wire->AltColor(), QColor(Qt::green));
    }

    void colorWithoutASchematicOrAView()
    {
        Design design;
        auto* wire = design.board.Wire({0, 0}, {20, 0}, "A");
        TCmdNetColorPcb withoutView("A", Qt::magenta, &design.project);
        design.board.SetView(nullptr);
        withoutView.redo();
        QCOMPARE(design.Model().ColorPcb(0), QColor(Qt::magenta));
        QVERIFY(!wire->AltColor().isValid());

        design.board.SetView(&design.view);
        design.project.SetSchematic(nullptr);
        TCmdNetColorPcb withoutSchematic("A", Qt::cyan, &design.project);
        withoutSchematic.redo();
        withoutSchematic.undo();
        QVERIFY(!wire->AltColor().isValid());
        QCOMPARE(design.Model().ColorPcb(0), QColor(Qt::magenta));
    }

    // Priority.

    void levelIsWrittenToTheModelAndTheRatLines_data()
    {
        QTest::addColumn<QString>("level");
        QTest::newRow("a digit") << QString("7");
        QTest::newRow("the word for none") << QString("Default");
    }
    void levelIsWrittenToTheModelAndTheRatLines()
    {
        QFETCH(QString, level);
        Design design;
        const QStringList before = design.Levels();
        QCOMPARE(before, QStringList({"A 1 1", "B 2 2", "C 3 3"}));
        TCmdNetPrio command({"C", "A"}, level, &design.project);
        for (int i = 0; i < 2; ++i) {
            command.redo();
            QCOMPARE(design.Levels(), QStringList({"A " + level + ' ' + level, "B 2 2", "C " + level + ' ' + level}));
            command.undo();
            QCOMPARE(design.Levels(), before); // each net its own
        }
        QCOMPARE(command.id(), -1);
    }

    void ratLinesOfAllNetsAreBroughtUpToDate()
    {
        Design design;
        design.Levels(); // works out the lines
        design.Model().SetPriority("B", "9");
        TCmdNetPrio command({"A"}, "4", &design.project);
        command.redo();
        QCOMPARE(design.Levels(), QStringList({"A 4 4", "B 9 9", "C 3 3"}));
        design.Model().SetPriority("B", "8");
        command.undo();
        QCOMPARE(design.Levels(), QStringList({"A 1 1", "B 8 8", "C 3 3"}));
    }

    // Those that the board's own nest does not keep, too.
    void levelIsWrittenToEveryRatLineOfTheView()
    {
        Design design;
        auto* rat = design.board.Add<TGraphicsRatLineItem>({});
        rat->SetLine({0, 0, 9, 9}, "C");
        TCmdNetPrio command({"A", "C"}, "7", &design.project);
        command.redo();
        QCOMPARE(rat->Priority(), QString("7"));
        command.undo();
        QCOMPARE(rat->Priority(), QString("3")); // that of its own net
        design.board.SetView(nullptr);
        command.redo();
        QCOMPARE(rat->Priority(), QString("3"));
    }

    void ratLinesAreBroughtUpToDateWithoutAView()
    {
        Design design;
        design.Levels(); // works out the lines
        design.board.SetView(nullptr);
        TCmdNetPrio command({"A"}, "7", &design.project);
        command.redo();
        QCOMPARE(design.Levels(), QStringList({"A 7 7", "B 2 2", "C 3 3"}));
        command.undo();
        QCOMPARE(design.Levels(), QStringList({"A 1 1", "B 2 2", "C 3 3"}));
    }

    void oldLevelsAreThoseOfTheMomentItWasMade()
    {
        Design design;
        TCmdNetPrio command({"A"}, "5", &design.project);
        design.Model().SetPriority("A", "6");
        command.redo();
        command.undo();
        QCOMPARE(design.Model().Priority("A"), QString("1"));
    }

    void netsThatAreUnknownOrListedTwice()
    {
        Design design;
        TCmdNetPrio command({"A", "?", "A", ""}, "5", &design.project);
        command.redo();
        QCOMPARE(design.Levels(), QStringList({"A 5 5", "B 2 2", "C 3 3"}));
        command.undo();
        QCOMPARE(design.Levels(), QStringList({"A 1 1", "B 2 2", "C 3 3"}));
    }

    void levelsWithoutABoard()
    {
        Design design;
        design.project.SetBoard(nullptr);
        TCmdNetPrio command({"A"}, "5", &design.project);
        command.redo();
        QCOMPARE(design.Model().Priority("A"), QString("5"));
        command.undo();
        QCOMPARE(design.Model().Priority("A"), QString("1"));
    }

    void withoutAProjectNothingHappens()
    {
        Design design;
        design.project.SetSchematic(nullptr);
        for (TProject* project : {static_cast<TProject*>(nullptr), &design.project}) {
            TCmdNetClass ofClass("A", "Signal", project);
            TCmdNetColorPcb ofColor("A", Qt::magenta, project);
            TCmdNetPrio ofLevel({"A"}, "5", project);
            for (TUndoCommand* command : std::initializer_list<TUndoCommand*>{&ofClass, &ofColor, &ofLevel}) {
                command->redo();
                command->undo();
            }
        }
        QCOMPARE(design.Model().NetClass("A"), QString("Power"));
        QCOMPARE(design.Model().Priority("A"), QString("1"));
    }

    // What nobody could read when the command was made is read when it can act first.
    void whatWasNotReadWhenItWasMadeIsReadByTheFirstRedo()
    {
        Design design;
        design.project.SetSchematic(nullptr);
        TCmdNetClass ofClass("A", "Signal", &design.project);
        TCmdNetColorPcb ofColor("A", Qt::magenta, &design.project);
        TCmdNetPrio ofLevel({"A", "B"}, "5", &design.project);
        const QList<TUndoCommand*> commands{&ofClass, &ofColor, &ofLevel};
        const QString before = design.Model().Dump();
        for (const bool isThere : {false, true, true}) {
            design.project.SetSchematic(isThere ? &design.schematic : nullptr);
            for (TUndoCommand* command : commands) {
                command->redo();
            }
            QCOMPARE(design.Model().Dump() != before, isThere);
            for (TUndoCommand* command : commands) {
                command->undo();
            }
            QCOMPARE(design.Model().Dump(), before);
        }
    }

    // Colour in the schematic.

    void colorInTheSchematicReachesModelAndPages()
    {
        Test::SheetDesign design;
        design.Model().AddNet("A", {}, Qt::red, Qt::green, 0);
        design.AddNets({"B"});
        TGraphicsNetItem* wire = design.sheet.Wire({0, 0}, {50, 0}, "A");
        TGraphicsNetItem* other = design.sheet.Wire({0, 50}, {50, 50}, "B");
        design.sheet.GoToPage(design.sheet.AddPage());
        TGraphicsPortItem* port = design.sheet.Port({0, 0}, "A");
        for (TGraphicsItem* item : QList<TGraphicsItem*>{wire, port}) {
            item->SetAltColor(Qt::red);
        }
        for (const QColor& color : {QColor(Qt::blue), QColor()}) {
            TCmdNetColorSch command("A", color, &design.sheet);
            QCOMPARE(command.id(), -1);
            Test::CheckBothWays(command, design);
            command.redo();
            QCOMPARE(design.Model().ColorSch(0), color);
            QCOMPARE(design.Model().ColorPcb(0), QColor(Qt::green));
            QCOMPARE(wire->AltColor(), color);
            QCOMPARE(port->AltColor(), color);
            QVERIFY(!other->AltColor().isValid());
            command.undo();
            QCOMPARE(wire->AltColor(), QColor(Qt::red));
        }
    }

    void undoGivesAllOnThePagesTheColorOfTheNet()
    {
        Test::SheetDesign design;
        design.AddNets({"A"});
        TGraphicsNetItem* wire = design.sheet.Wire({0, 0}, {50, 0}, "A");
        wire->SetAltColor(Qt::yellow);
        TCmdNetColorSch command("A", Qt::blue, &design.sheet);
        design.Model().SetColorSch("A", Qt::cyan); // The old colour is read when the command is made.
        command.redo();
        command.undo();
        QVERIFY(!wire->AltColor().isValid());
        QVERIFY(!design.Model().ColorSch(0).isValid());
    }

    void aNetUnknownToTheModelIsColouredOnThePages()
    {
        Test::SheetDesign design;
        TGraphicsNetItem* wire = design.sheet.Wire({0, 0}, {50, 0}, "A");
        TCmdNetColorSch command("A", Qt::blue, &design.sheet);
        command.redo();
        QCOMPARE(wire->AltColor(), QColor(Qt::blue));
        QCOMPARE(design.Nets(), QStringList());
        command.undo();
        QVERIFY(!wire->AltColor().isValid());
        TCmdNetColorSch withoutSchematic("A", Qt::blue, nullptr);
        withoutSchematic.redo();
        withoutSchematic.undo();
        QVERIFY(!wire->AltColor().isValid());
    }

    // Names.

    // Intended: both hold the place of commands to come.
    void nameCommandsChangeNothing_data()
    {
        QTest::addColumn<int>("mode");
        QTest::newRow("on the schematic") << static_cast<int>(TWorkspace::SchematicMode);
        QTest::newRow("on the board") << static_cast<int>(TWorkspace::BoardMode);
        QTest::newRow("without a workspace") << -1;
    }
    void nameCommandsChangeNothing()
    {
        QFETCH(int, mode);
        Test::SheetDesign design;
        design.AddNets({"A"});
        TGraphicsNetItem* wire = design.sheet.Wire({0, 0}, {50, 0}, "A");
        design.board.Wire({0, 0}, {50, 0}, "A");
        design.sheet.Port({0, 50}, "A");
        TWorkspace workspace;
        workspace.SetMode(static_cast<TWorkspace::DocumentMode>(mode));
        TWorkspace* used = mode < 0 ? nullptr : &workspace;
        TCmdNetName name(wire, "B", used, &design.project);
        TCmdFragmName fragment(wire, "B", used, &design.project);
        const QString before = design.Dump();
        for (TCmdNetName* command : {&name, static_cast<TCmdNetName*>(&fragment)}) {
            QCOMPARE(command->id(), -1);
            command->redo();
            QCOMPARE(design.Dump(), before);
            command->SetNetNameOnSch("C");
            command->SetNetNameOnPcb("C");
            command->undo();
            QCOMPARE(design.Dump(), before);
        }
        struct Fields : TCmdNetName
        {
            using TCmdNetName::items;
            using TCmdNetName::newName;
            using TCmdNetName::oldName;
            using TCmdNetName::TCmdNetName;
        };
        const Fields fields(wire, "B", used, &design.project);
        QVERIFY(fields.items.isEmpty());
        QCOMPARE(fields.oldName, QString());
        QCOMPARE(fields.newName, QString("B"));
        QUndoStack stack;
        stack.push(new TCmdNetName(nullptr, "B", used, nullptr));
        QCOMPARE(stack.count(), 1); // The undo step is there all the same.
    }
};

PROPERTIES_TEST(TestNetAttributes)
#include "tst_netattributes.moc"
