#include "tests/support/TestProgram.h"
#include "tests/workbench/support/ShownWorkbench.h"
#include "workbench/design/LoadDesign.h"
#include "workbench/editing/TSelection.h"
#include "workbench/session/CommandLine.h"
#include "workbench/session/TSessionError.h"

#include <QtTest>
#include <QUndoStack>

namespace {

QStringList Words(const char* text)
{
    return QString::fromUtf8(text).split(' ', Qt::SkipEmptyParts);
}

} // namespace

class TestCommandLine : public QObject
{
    Q_OBJECT

private slots:
    void isUnderstood_data();
    void isUnderstood();
    void saysWhatItDoesNotUnderstand_data();
    void saysWhatItDoesNotUnderstand();
    void tellsEveryOption();
    void nodesOfAWire();
    void stepsSayTheirResults_data();
    void stepsSayTheirResults();
    void aStepThatFailsEndsTheRun_data();
    void aStepThatFailsEndsTheRun();
    void positionsAreThoseOfTheDesignsOrder();
    void anEditOfTextIsTyped();
    void aBypassedEditIsWrittenAtOnce();
    void timingFollowsEachStep();
    void everyRowOfTheSampleCanBeUndone_data();
    void everyRowOfTheSampleCanBeUndone();
};

void TestCommandLine::isUnderstood_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<bool>("isScript");

    const auto row = [](const char* name, const QStringList& arguments, const char* file, const QStringList& steps,
                        bool isScript) { QTest::newRow(name) << arguments << file << steps << isScript; };
    row("nothing", {}, "", {}, false);
    row("a file", {"a.kicad_pcb"}, "a.kicad_pcb", {}, false);
    row("a step", {"--panel"}, "", {"--panel"}, true);
    row("a file and steps", {"a", "--select", "via", "--panel"}, "a", {"--select via", "--panel"}, true);
    row("timing alone", {"--timing"}, "", {}, true);
    row("timing before the file", {"--timing", "a"}, "a", {}, true);
    row("the same step twice", {"--panel", "--panel"}, "", {"--panel", "--panel"}, true);
    row("undo without a count", {"--undo", "--redo", "--history"}, "", {"--undo", "--redo", "--history"}, true);
    row("undo with a count", {"--undo", "3", "--redo", "2"}, "", {"--undo 3", "--redo 2"}, true);
    row("positions", {"--select", "pad[0..9],via[3]"}, "", {"--select 'pad[0..9],via[3]'"}, true);
    row("a value with an equals sign", {"--set", "Number:=a=b"}, "", {"--set Number:=a=b"}, true);
    row("an empty value", {"--set", "Number:="}, "", {"--set Number:="}, true);
    row("a label with blanks", {"--set", "Size (W x H).width=1"}, "", {"--set 'Size (W x H).width=1'"}, true);
    row("a key with a modifier", {"--key", "Ctrl+R"}, "", {"--key Ctrl+R"}, true);
    row("a dump to the results", {"--dump", "-"}, "", {"--dump -"}, true);
}

void TestCommandLine::isUnderstood()
{
    QFETCH(QStringList, arguments);
    const TCommandLine line = TCommandLine::Parse(arguments);
    QStringList steps;
    for (const TStep& step : line.steps) {
        steps.append(step.text);
    }
    QTEST(line.file, "file");
    QTEST(steps, "steps");
    QTEST(line.IsScript(), "isScript");
    QVERIFY(!line.help);
}

void TestCommandLine::saysWhatItDoesNotUnderstand_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("cause");

    const auto row = [](const QStringList& arguments, const char* cause) {
        QTest::newRow(qPrintable(arguments.join(' '))) << arguments << QString(cause);
    };
    row({"--frobnicate"}, "unknown option --frobnicate");
    row({"-x"}, "unknown option -x");
    row({"--platform", "xcb"}, "unknown option --platform");
    row({"a", "b"}, "unexpected argument \"b\": a is the file to open");
    row({"--panel", "a"}, "unexpected argument \"a\": the file must come before the steps");
    row({""}, "the name of the file to open is empty");
    row({"--undo", "some"}, "unexpected argument \"some\": the file must come before the steps");
    row({"--undo", "-1"}, "unknown option -1");
    row({"--select"}, "--select needs WHAT");
    row({"--select", "--panel"}, "--select needs WHAT");
    row({"--set"}, "--set needs LABEL=VALUE");
    row({"--dump"}, "--dump needs FILE");
    row({"--screenshot", "--timing"}, "--screenshot needs FILE");
    row({"--select", ""}, "--select: \"\" is not a valid selection");
    row({"--select", "via,"}, "--select: \"\" is not a valid selection");
    row({"--select", "via[]"}, "--select: \"via[]\" is not a valid selection");
    row({"--select", "via[-1]"}, "--select: \"via[-1]\" is not a valid selection");
    row({"--select", "via[x]"}, "--select: \"via[x]\" is not a valid selection");
    row({"--select", "via[1..]"}, "--select: \"via[1..]\" is not a valid selection");
    row({"--select", "via[5..2]"}, "--select: \"via[5..2]\" ends before it begins");
    row({"--select", "7"}, "--select: \"7\" is not a valid selection");
    row({"--set", "Diameter"}, "--set: \"Diameter\" is not a valid edit");
    row({"--key", "Bogus"}, "--key: \"Bogus\" is not a valid key");
    row({"--key", ""}, "--key: \"\" is not a valid key");
    row({"--key", "Ctrl+K, Ctrl+D"}, "--key: \"Ctrl+K, Ctrl+D\" is not a valid key");
    row({"--add-node", "1"}, "--add-node: \"1\" is not a valid position: x,y in millimetres");
    row({"--add-node", "1,2,3"}, "--add-node: \"1,2,3\" is not a valid position");
    row({"--add-node", "a,b"}, "--add-node: \"a,b\" is not a valid position");
    row({"--add-node", "inf,0"}, "--add-node: \"inf,0\" is not a valid position");
    row({"--zoom", "out"}, "--zoom: takes all or selection, not \"out\"");
    row({"--rename"}, "--rename needs TEXT");
    row({"--values", "1"}, "--values: takes on or off, not \"1\"");
    row({"--bypass", "yes"}, "--bypass: takes on or off, not \"yes\"");
    row({"--priority", "10"}, "--priority: takes Default, 1, 2, 3, 4, 5, 6, 7, 8, 9, not \"10\"");
    row({"--priority", "default"}, "--priority: takes Default, ");
    row({"--tie-width", "1,2"}, "--tie-width: \"1,2\" is not a valid length in millimetres");
    row({"--tie-width", "0"}, "--tie-width: \"0\" is not a valid length");
    row({"--tie-width", "nan"}, "--tie-width: \"nan\" is not a valid length");
    row({"--resize", "3"}, "--resize: \"3\" is not a valid size: width,height in millimetres");
    row({"--resize", "3,-1"}, "--resize: \"3,-1\" is not a valid size");
    row({"--rename-page", "Front"}, "--rename-page: \"Front\" is not a valid renaming: what=name");
    row({"--rename-page", "=Front"}, "--rename-page: \"=Front\" is not a valid renaming");
    row({"--rename-part", "R1="}, "--rename-part: \"R1=\" is not a valid renaming");
    row({"--page"}, "--page needs PAGE");
    row({"--open-part"}, "--open-part needs PART");
}

void TestCommandLine::saysWhatItDoesNotUnderstand()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, cause);
    try {
        TCommandLine::Parse(arguments);
        QFAIL("The command line was understood");
    } catch (const TSessionError& error) {
        QVERIFY2(error.Cause().startsWith(cause), qPrintable(error.Cause()));
    }
}

void TestCommandLine::tellsEveryOption()
{
    QVERIFY(TCommandLine::Parse({"--help"}).help);
    const QString usage = TCommandLine::Usage();
    for (
        const QString& option : Words(
            "--select --panel --set --key --bypass --rename --revalue --lock --unlock --connect --disconnect "
            "--disconnect-entries --add-node --remove-node --priority --tie-width --resize --page --board --tree "
            "--open-page --open-part --close-symbol --rename-page --rename-part --designators --values --show-layers --hide-layers --zoom "
            "--undo --redo --history --dump --screenshot --timing --help")) {
        QVERIFY2(usage.contains("  " + option + ' '), qPrintable(option));
    }
}

void TestCommandLine::stepsSayTheirResults_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("results");

    const auto row = [](const char* name, const QStringList& arguments, const QStringList& results) {
        QTest::newRow(name) << arguments << results.join('\n') + '\n';
    };
    row("no selection", {"--panel"}, {"Properties"});
    row("one via", {"--select", "via[0]", "--panel"},
        {"selected: 1 via", "Properties - Vias", "Diameter: 0.6 mm", "Drill: 0.3 mm", "Thermal: Auto",
         "Drill pair: Top - Bottom", "Mask: [ ] En 0.1mm"});
    row("vias of different drill pairs",
        {"--select", "via[1]", "--set", "Drill pair=Top - Inner 1", "--select", "via", "--panel"},
        {"selected: 1 via", "Drill pair: Top - Inner 1 (Change drill pair of 1 via)", "selected: 3 vias",
         "Properties - Vias", "Diameter: 0.6 mm", "Drill: 0.3 mm", "Thermal: (mixed)", "Drill pair: (mixed)",
         "Mask: [ ] En 0.1mm"});
    row("a pad of no package", {"--select", "pad[0]", "--panel"},
        {"selected: 1 pad", "Properties - Pad", "Number: \"1\"", "Size (W x H): 1.50 mm x 1.00 mm", "Type: SMT",
         "Side: Top", "Shape: Rectangle", "Thermal: By pour", "Mask: [x] En 0.00 mm", "Paste: [ ] En 0.00 mm"});
    row("a pad of a package", {"--select", "pad[2]", "--panel"},
        {"selected: 1 pad", "Properties - Pad", "Number: \"A\" (read-only)", "Name: \"\" (read-only)",
         "Size (W x H): 2.00 mm x 2.00 mm (height disabled)", "Type: THT (disabled)", "Drill: 0.8 mm", "Shape: Round",
         "Thermal: By pour", "Mask: [ ] En 0.00 mm (disabled)", "Paste: [ ] En 0.00 mm (disabled)"});
    row("pads that differ", {"--select", "pad[0..1]", "--panel"},
        {"selected: 2 pads", "Properties - Pads", "Number: \"\" (mixed)", "Size (W x H): 1.50 mm x 1.00 mm",
         "Type: SMT", "Side: Top", "Shape: Rectangle", "Thermal: By pour", "Mask: [x] En 0.00 mm",
         "Paste: [ ] En 0.00 mm"});
    row("the kind that was named first", {"--select", "hole,via", "--panel"},
        {"selected: 3 vias, 2 holes", "Properties - Hole", "Diameter: 2.00 mm"});
    row("the same item twice", {"--select", "hole[1],hole"}, {"selected: 2 holes"});
    row("everything", {"--select", "all", "--panel", "--undo"},
        {"selected: 3 vias, 3 pads, 2 holes, 1 package", "Properties - Vias", "Diameter: 0.6 mm", "Drill: 0.3 mm",
         "Thermal: Auto", "Drill pair: Top - Bottom", "Mask: [ ] En 0.1mm", "nothing to undo"});
    row("an edit, undone and done again",
        {"--select", "via", "--set", "Diameter:=1.2", "--undo", "--history", "--redo", "--history", "--redo"},
        {"selected: 3 vias", "Diameter: 1.2 mm (Change diameter of 3 vias)", "undone: Change diameter of 3 vias",
         "history: 0 of 1 done", "  1 Change diameter of 3 vias (undone)", "redone: Change diameter of 3 vias",
         "history: 1 of 1 done", "  1 Change diameter of 3 vias", "nothing to redo"});
    row("more undone than was done", {"--select", "via", "--set", "Drill=0.5", "--undo", "7"},
        {"selected: 3 vias", "Drill: 0.5 mm (Change drill of 3 vias)", "undone: Change drill of 3 vias",
         "nothing to undo"});
    row("an edit that changes nothing", {"--select", "via[0]", "--set", "Diameter:=0.60"},
        {"selected: 1 via", "Diameter: 0.6 mm (unchanged)"});
    row("a number with its unit", {"--select", "hole[0]", "--set", "Diameter:=2.5 mm"},
        {"selected: 1 hole", "Diameter: 2.50 mm (Change size of 1 hole)"});
    row("parts of a row",
        {"--select", "pad[0]", "--set", "Mask:.check=off", "--set", "Mask.check=off", "--set",
         "Size (W x H):.height=2"},
        {"selected: 1 pad", "Mask: [ ] En 0.00 mm (Switch mask opening of 1 pad)", "Mask: [ ] En 0.00 mm (unchanged)",
         "Size (W x H): 1.50 mm x 2.00 mm (Change height of 1 pad)"});
    row("a key that the set does not know", {"--select", "via", "--key", "O"},
        {"selected: 3 vias", "pressed: O (no edit)"});
    row("a package renamed and given a value",
        {"--select", "package", "--rename", "U7", "--revalue", "10k", "--undo", "2"},
        {"selected: 1 package", "Rename 1 package", "Change value of 1 package", "undone: Change value of 1 package",
         "undone: Rename 1 package"});
    row("a package locked and unlocked", {"--select", "package", "--lock", "--unlock", "--history"},
        {"selected: 1 package", "Change lock of 1 package", "Change lock of 1 package", "history: 2 of 2 done",
         "  1 Change lock of 1 package", "  2 Change lock of 1 package"});
    row("a package connected and disconnected", {"--select", "package", "--disconnect", "--connect"},
        {"selected: 1 package", "Disconnect 1 package", "Connect 1 package"});
    row("texts of packages shown and hidden", {"--designators", "off", "--values", "on"},
        {"designators: hidden", "values: shown"});
    row("layers hidden and shown", {"--hide-layers", "Top,Inner 1", "--show-layers", "all", "--zoom", "all"},
        {"layers hidden: Top,Inner 1", "layers shown: all", "zoomed: all"});
    row("bypass", {"--select", "via,hole", "--bypass", "on", "--bypass", "off"},
        {"selected: 3 vias, 2 holes", "bypass on: 3 vias, 2 holes", "bypass off: 3 vias, 2 holes"});
}

void TestCommandLine::stepsSayTheirResults()
{
    QFETCH(QStringList, arguments);
    Test::ShownWorkbench workbench;
    const Test::Outcome outcome = workbench.Run(arguments);
    QTEST(outcome.results, "results");
    QCOMPARE(outcome.messages, QString());
    QCOMPARE(outcome.code, 0);
}

void TestCommandLine::aStepThatFailsEndsTheRun_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("beginning");
    QTest::addColumn<QString>("cause");

    // The step fails as the second of three.
    const auto row = [](const char* name, const QStringList& before, const QStringList& step, const char* cause) {
        QTest::newRow(name) << before + step + QStringList{"--history"}
                            << "workbench: step 2 (" + step.first() + (step.size() > 1 ? ' ' : ')')
                            << QString("): %1\n").arg(cause);
    };
    const QStringList via{"--select", "via"};
    const QStringList pad{"--select", "pad[0]"};
    const QStringList packagePad{"--select", "pad[2]"};
    row("an edit of nothing", {"--panel"}, {"--set", "Diameter:=1"}, "nothing is selected");
    row("a key for nothing", {"--panel"}, {"--key", "O"}, "nothing is selected");
    row("bypass for nothing", {"--panel"}, {"--bypass", "on"}, "nothing is selected");
    row("an unknown kind", {"--panel"}, {"--select", "wire"}, "the board has no wire; it has via, pad, package, hole");
    row("a kind that is not selected", {"--panel"}, {"--select", "pour"},
        "the board has no pour; it has via, pad, package, hole");
    row("an unknown layer", {"--panel"}, {"--hide-layers", "Top,Middle"},
        "there is no layer \"Middle\"; the board has Top, Inner 1, Inner 2, Bottom");
    row("zoom to nothing", {"--panel"}, {"--zoom", "selection"}, "nothing is selected");
    row("a name for vias", via, {"--rename", "U7"}, "select packages that are not named on the schematic first");
    row("a lock for vias", via, {"--lock"}, "select packages or parts first");
    row("a node in a via", via, {"--add-node", "1,2"}, "select one wire first");
    row("a node between vias", via, {"--remove-node"},
        "select a wire that ends where the next one begins, or those two first");
    row("a position behind the last", via, {"--select", "hole[2]"}, "there is no hole[2]: positions go from 0 to 1");
    row("a range that ends behind the last", via, {"--select", "all[0..9]"},
        "there is no all[9]: positions go from 0 to 8");
    row("an unknown label", via, {"--set", "Width:=1"},
        "there is no row \"Width:\"; the panel has \"Diameter:\", \"Drill:\", \"Thermal:\", \"Drill pair:\", \"Mask:\"");
    row("a beginning of a label", via, {"--set", "Diam=1"},
        "there is no row \"Diam\"; the panel has \"Diameter:\", \"Drill:\", \"Thermal:\", \"Drill pair:\", \"Mask:\"");
    row("a hidden row", pad, {"--set", "Drill:=1"}, "row \"Drill:\" is hidden");
    row("a disabled row", packagePad, {"--set", "Type:=SMT"}, "row \"Type:\" is disabled");
    row("a disabled box", packagePad, {"--set", "Mask:.check=on"}, "row \"Mask:\" is disabled");
    row("a disabled height", packagePad, {"--set", "Size (W x H):.height=1"}, "row \"Size (W x H):\" is disabled");
    row("a text that is only shown", packagePad, {"--set", "Number:=B"}, "row \"Number:\" is read-only");
    row("an item that is not offered", via, {"--set", "Thermal:=Maybe"},
        "row \"Thermal:\" does not offer \"Maybe\"; it offers \"Auto\", \"Yes\", \"No\"");
    row("an item in other letters", via, {"--set", "Thermal:=yes"},
        "row \"Thermal:\" does not offer \"yes\"; it offers \"Auto\", \"Yes\", \"No\"");
    row("a text for a number", via, {"--set", "Diameter:=wide"}, "row \"Diameter:\" takes a number, not \"wide\"");
    row("nothing for a number", via, {"--set", "Diameter:="}, "row \"Diameter:\" takes a number, not \"\"");
    row("a number in another notation", via, {"--set", "Diameter:=8e-1"},
        "row \"Diameter:\" takes a number, not \"8e-1\"");
    row("a number too small", via, {"--set", "Diameter:=0"}, "row \"Diameter:\" takes 0.1 to 10.0, not 0");
    row("a number too large", via, {"--set", "Diameter:=10.1"}, "row \"Diameter:\" takes 0.1 to 10.0, not 10.1");
    row("too many decimals", via, {"--set", "Diameter:=0.85"},
        "row \"Diameter:\" takes no more than 1 decimal, not 0.85");
    row("a state that is none", via, {"--set", "Mask:.check=yes"}, "row \"Mask:\" takes on or off here, not \"yes\"");
    row("a part that is not shown", via, {"--set", "Diameter:.check=on"},
        "row \"Diameter:\" has no such part; it has the value itself");
    row("a size without a part", pad, {"--set", "Size (W x H):=1"},
        "row \"Size (W x H):\" has no such part; it has .width, .height");
    row("a dump nowhere", via, {"--dump", "/nowhere/dump"},
        "/nowhere/dump cannot be written: No such file or directory");
    row("a picture nowhere", via, {"--screenshot", "/nowhere/picture.png"},
        "/nowhere/picture.png cannot be written: No such file or directory");
}

void TestCommandLine::aStepThatFailsEndsTheRun()
{
    QFETCH(QStringList, arguments);
    Test::ShownWorkbench workbench;
    const QString before = workbench.Dump();
    const Test::Outcome outcome = workbench.Run(arguments);
    QFETCH(QString, beginning);
    QFETCH(QString, cause);
    QVERIFY2(outcome.messages.startsWith(beginning), qPrintable(outcome.messages));
    QCOMPARE(outcome.messages.mid(outcome.messages.indexOf("): ")), cause);
    QCOMPARE(outcome.code, 2);
    QVERIFY(!outcome.results.isEmpty());           // The first step's,
    QVERIFY(!outcome.results.contains("history")); // but not the third's.
    QCOMPARE(workbench.Dump(), before);
}

void TestCommandLine::positionsAreThoseOfTheDesignsOrder()
{
    Test::ShownWorkbench workbench;
    const QStringList all = workbench.Dump().split('\n', Qt::SkipEmptyParts).filter(QRegularExpression("^pad "));
    QCOMPARE(all.size(), 3);
    for (int i = 0; i < all.size(); ++i) {
        workbench.Results({"--select", QString("pad[%1]").arg(i)});
        QCOMPARE(workbench.window->Selection().Items().size(), 1);
        QCOMPARE(workbench.window->Selection().Items().first()->StateLine(), all[i]);
    }
}

void TestCommandLine::anEditOfTextIsTyped()
{
    Test::ShownWorkbench workbench;
    const QString before = workbench.Dump();
    const QString results = workbench.Results({"--select", "pad[0..1]", "--set", "Number:=Ä 7"});
    QVERIFY2(results.startsWith("selected: 2 pads\nNumber: \"Ä 7\" (Renumber 2 pads"), qPrintable(results));
    QCOMPARE(workbench.Dump().count("number=\"Ä 7\""), 2);
    workbench.Results({"--set", "Number:="});
    QCOMPARE(workbench.Dump().count("number=\"\""), 2);
    workbench.Results({"--undo", "99"});
    QCOMPARE(workbench.Dump(), before);
}

void TestCommandLine::aBypassedEditIsWrittenAtOnce()
{
    Test::ShownWorkbench workbench;
    QCOMPARE(workbench.Results(
                 {"--select", "via[2]", "--bypass", "on", "--set", "Drill:=0.7", "--set", "Drill:=0.7", "--history"}),
             QString("selected: 1 via\nbypass on: 1 via\nDrill: 0.7 mm (written, no undo step)\n"
                     "Drill: 0.7 mm (unchanged)\nhistory: 0 of 0 done\n"));
    const auto* via = static_cast<TGraphicsViaItem*>(workbench.Items(ItemType::Via)[2]);
    QCOMPARE(via->Drill(), static_cast<float>(0.7 * 300 / 25.4));
    QVERIFY(via->HasTFlag(TGraphicsItem::UndoBypass));
}

void TestCommandLine::timingFollowsEachStep()
{
    Test::ShownWorkbench workbench;
    const QStringList lines = workbench.Results({"--timing", "--select", "via", "--undo"}).split('\n');
    QCOMPARE(lines.size(), 5);
    const QRegularExpression time(R"(^time: (--[\w ]+) \d+\.\d ms$)");
    QCOMPARE(time.match(lines[1]).captured(1), QString("--select via"));
    QCOMPARE(time.match(lines[3]).captured(1), QString("--undo"));
}

void TestCommandLine::everyRowOfTheSampleCanBeUndone_data()
{
    QTest::addColumn<QStringList>("edit");

    const auto row = [](const char* kind, const char* assignment) {
        QTest::addRow("%s %s", kind, assignment) << QStringList{"--select", kind, "--set", assignment};
    };
    row("via", "Diameter:=1.7");
    row("via", "Drill:=0.9");
    row("via", "Thermal:=No");
    row("via", "Drill pair:=F.Cu - B.Cu");
    row("via", "Mask:=0.7");
    row("via", "Mask:.check=on");
    row("pad", "Size (W x H):.width=1.7");
    row("pad", "Shape:=Rectangle"); // Others lock the height, which is undone in a way of its own.
    row("pad", "Thermal:=Yes");
    row("hole", "Diameter:=4.25");
    row("via,pad", "Drill:=1.1");
}

void TestCommandLine::everyRowOfTheSampleCanBeUndone()
{
    QFETCH(QStringList, edit);
    Test::ShownWorkbench workbench(SampleBoardFile());
    const QString before = workbench.Dump();
    workbench.Results(edit);
    const QString after = workbench.Dump();
    QVERIFY(after != before);
    QVERIFY(!workbench.window->UndoStack().undoText().contains("TCmd"));
    workbench.Results({"--undo", "99"});
    QCOMPARE(workbench.Dump(), before);
    workbench.Results({"--redo", "99"});
    QCOMPARE(workbench.Dump(), after);
}

void TestCommandLine::nodesOfAWire()
{
    Test::ShownWorkbench workbench(SampleBoardFile());
    const QString before = workbench.Dump();
    const int wires = workbench.Items(ItemType::Wire).size();
    QCOMPARE(workbench.Results({"--select", "wire[0]", "--add-node", "0,0"}),
             QString("selected: 1 wire\nAdd a node to 1 wire\n"));
    QCOMPARE(workbench.Items(ItemType::Wire).size(), wires + 1);
    QCOMPARE(workbench.Results({"--remove-node"}), QString("Remove a node from 1 wire\n"));
    QCOMPARE(workbench.Dump(), before);
    workbench.Results({"--undo", "2"});
    QCOMPARE(workbench.Dump(), before);
}

PROPERTIES_TEST(TestCommandLine)

#include "tst_command_line.moc"
