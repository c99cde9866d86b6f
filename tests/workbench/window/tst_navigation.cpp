#include "properties/commands/TCmdProjectTree.h"
#include "tests/support/TestProgram.h"
#include "tests/workbench/support/ShownWorkbench.h"
#include "tests/workbench/support/SmallProject.h"
#include "workbench/editing/TSelection.h"
#include "workbench/window/TCanvas.h"
#include "workbench/window/TDocumentTabs.h"
#include "workbench/window/TNavigation.h"

#include <objects/TGraphicsPartItem.h>

#include <QLineEdit>
#include <QtTest>
#include <QUndoStack>

namespace {

/** A shown project, and what a user sees and does with its tree. */
class Project : public Test::ShownWorkbench
{
public:
    Project() : ShownWorkbench(Test::MakeProject()) {}

    TProjectTree& Tree() const { return window->Design()->Tree(); }
    QUndoStack& Stack() const { return window->UndoStack(); }
    /** The page that is shown, 0 for the board. */
    int Page() const { return window->Tabs().Document().page; }
    /** The designator of the part whose symbol is open, by what its items say. */
    QString OpenSymbols() const
    {
        QStringList open;
        const QList<TGraphicsPartItem*> parts = window->Design()->Schematic().PartItems(0);
        for (const TGraphicsPartItem* part : parts) {
            if (part->IsSymbolOpen()) {
                open.append(part->RefDes());
            }
        }
        return open.join(',');
    }

    void DoubleClick(QTreeWidgetItem* row) const
    {
        Tree().scrollToItem(row);
        const QPoint place = Tree().visualItemRect(row).center();
        QTest::mouseClick(Tree().viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(Tree().viewport(), Qt::LeftButton, {}, place);
    }

    /** Types into the name of a row. */
    QLineEdit* Type(QTreeWidgetItem* row, const QString& name) const
    {
        Tree().setCurrentItem(row);
        Tree().setFocus();
        QTest::keyClick(&Tree(), Qt::Key_F2);
        auto* edit = Tree().viewport()->findChild<QLineEdit*>();
        if (!edit) {
            qFatal("The name cannot be edited");
        }
        edit->selectAll();
        QTest::keyClicks(edit, name);
        return edit;
    }

    /** Types into the name of a row and ends that with a key. */
    void Retype(QTreeWidgetItem* row, const QString& name, Qt::Key end) const
    {
        QTest::keyClick(Type(row, name), end);
        Test::SettleWorkbench();
    }
};

} // namespace

class TestNavigation : public QObject
{
    Q_OBJECT

private slots:
    void aDoubleClickOpensAPage();
    void aPageThatIsOpenIsOpenedWithoutAStep();
    void aTabLeavesNoStep();
    void undoAndRedoReturnToThePage();
    void aPageOpenedFromTheBoardIsUndoneToThePageBefore();
    void aDoubleClickOpensASymbol();
    void anotherSymbolClosesTheOne();
    void aSymbolThatIsOpenIsOnlyShown();
    void aSymbolIsSeenWhole_data();
    void aSymbolIsSeenWhole();
    void aSymbolIsClosed();
    void pinsOfAnOpenSymbolHaveALength();
    void aJumpInTheHistoryOpensWhatTheLastCommandDid_data();
    void aJumpInTheHistoryOpensWhatTheLastCommandDid();
    void stepsThatWereThrownAwayOpenNothing();
    void anEditIsUndoneWhereItWasMade();
    void commandsOfOthersAreFollowed();
    void aPageIsRenamedInItsRow();
    void aPartIsRenamedInItsRow();
    void anEscapedOrEmptyNameChangesNothing();
    void anotherDesignIsShownWhileANameIsEdited();
    void theWindowIsClosedWhileANameIsEdited();
    void stepsOfACommandLine_data();
    void stepsOfACommandLine();
    void aNameOfSeveralPagesIsAskedFor();
    void aNameOfDigitsIsANumber();
};

void TestNavigation::aDoubleClickOpensAPage()
{
    Project project;
    project.DoubleClick(project.Tree().Page(2));
    QCOMPARE(project.Page(), 2);
    QCOMPARE(project.Stack().count(), 1);
    QCOMPARE(project.Stack().undoText(), QString("Open page Back"));
    QVERIFY(project.Tree().Page(2)->font(0).bold());
    QVERIFY(!project.Tree().Page(1)->font(0).bold());
}

void TestNavigation::aPageThatIsOpenIsOpenedWithoutAStep()
{
    Project project;
    project.DoubleClick(project.Tree().Page(1)); // The board stood in front of it.
    QCOMPARE(project.Page(), 1);
    project.DoubleClick(project.Tree().Page(1));
    QCOMPARE(project.Stack().count(), 0);
}

void TestNavigation::aTabLeavesNoStep()
{
    Project project;
    project.window->Tabs().setCurrentIndex(2);
    QCOMPARE(project.Page(), 2);
    QCOMPARE(project.Stack().count(), 0);
    QVERIFY(project.Tree().Page(2)->font(0).bold());
}

void TestNavigation::undoAndRedoReturnToThePage()
{
    Project project;
    project.Results({"--page", "1"});
    const QString before = project.Dump();
    project.DoubleClick(project.Tree().Page(2));
    project.Results({"--board", "--undo"});
    QCOMPARE(project.Page(), 1);
    QCOMPARE(project.Dump(), before);
    project.Results({"--board", "--redo"});
    QCOMPARE(project.Page(), 2);
}

void TestNavigation::aPageOpenedFromTheBoardIsUndoneToThePageBefore()
{
    Project project;
    project.DoubleClick(project.Tree().Page(2));
    project.Results({"--undo"});
    QCOMPARE(project.Page(), 1); // A command names pages only.
}

void TestNavigation::aDoubleClickOpensASymbol()
{
    Project project;
    const QString before = project.Dump();
    project.DoubleClick(project.Tree().Part(3));
    QCOMPARE(project.Page(), 2); // Where the part is.
    QCOMPARE(project.OpenSymbols(), QString("R2"));
    QCOMPARE(project.Stack().undoText(), QString("Open symbol of R2"));
    QVERIFY(project.Tree().Part(3)->font(0).bold());
    project.Results({"--undo"});
    QCOMPARE(project.OpenSymbols(), QString());
    QCOMPARE(project.Dump(), before);
    project.Results({"--page", "1", "--redo"});
    QCOMPARE(project.Page(), 2);
    QCOMPARE(project.OpenSymbols(), QString("R2"));
}

void TestNavigation::anotherSymbolClosesTheOne()
{
    Project project;
    project.Results({"--open-part", "R1", "--open-part", "R10"});
    QCOMPARE(project.OpenSymbols(), QString("R10"));
    project.Results({"--undo"});
    QCOMPARE(project.OpenSymbols(), QString("R1"));
}

void TestNavigation::aSymbolThatIsOpenIsOnlyShown()
{
    Project project;
    project.Results({"--open-part", "R2", "--board"});
    QCOMPARE(project.Results({"--open-part", "R2"}), QString("symbol open already\n"));
    QCOMPARE(project.Page(), 2);
    QCOMPARE(project.Stack().count(), 1);
}

void TestNavigation::aSymbolIsSeenWhole_data()
{
    QTest::addColumn<double>("zoom");

    QTest::newRow("from far away") << 0.02;
    QTest::newRow("from anywhere") << 1.0;
    QTest::newRow("from too near") << 100.0;
}

void TestNavigation::aSymbolIsSeenWhole()
{
    QFETCH(double, zoom);
    Project project;
    project.Results({"--page", "1"});
    TCanvas& canvas = project.window->Canvas();
    canvas.setTransform(QTransform::fromScale(zoom, zoom));
    canvas.centerOn(500, 300);
    project.Results({"--open-part", "R1"});
    const QRectF part = project.window->Design()->Schematic().PartItems(1).first()->sceneBoundingRect();
    QVERIFY(canvas.mapToScene(canvas.viewport()->rect()).boundingRect().contains(part));
    QVERIFY(canvas.mapFromScene(part).boundingRect().width() >= 60);
}

void TestNavigation::aSymbolIsClosed()
{
    Project project;
    QCOMPARE(project.Results({"--close-symbol"}), QString("no symbol is open\n"));
    project.Results({"--open-part", "R2", "--page", "1"});
    QCOMPARE(project.Results({"--close-symbol"}), QString("Close symbol of R2\n"));
    QCOMPARE(project.OpenSymbols(), QString());
    QCOMPARE(project.Page(), 1); // There is nothing to be shown.
    project.Results({"--undo"});
    QCOMPARE(project.OpenSymbols(), QString("R2"));
    QCOMPARE(project.Page(), 2);
}

void TestNavigation::pinsOfAnOpenSymbolHaveALength()
{
    Project project;
    project.Results({"--page", "1", "--select", "pin[0]"});
    QVERIFY(!project.Row("Length:"));
    project.Results({"--open-part", "R1"});
    const QString edited = project.Results({"--set", "Length:=Long"});
    QVERIFY2(edited.contains("Change length of 1 pin"), qPrintable(edited));
    project.Results({"--undo", "2"});
    QVERIFY(project.Run({"--set", "Length:=Short"}).code != 0);
}

void TestNavigation::aJumpInTheHistoryOpensWhatTheLastCommandDid_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("symbols");

    // The steps: 1 opens page 2, 2 an edit, 3 opens R1 on page 1, 4 an edit, 5 opens page 2, 6 an edit.
    QTest::newRow("over a page to an edit behind it") << 0 << 2 << 2 << "";
    QTest::newRow("to a symbol, over a page") << 0 << 3 << 1 << "R1";
    QTest::newRow("to the end") << 0 << 6 << 2 << "R1";
    QTest::newRow("over edits only") << 3 << 4 << 0 << "R1";
    QTest::newRow("back over the last page") << 6 << 4 << 1 << "R1";
    QTest::newRow("back over page and symbol") << 6 << 2 << 1 << "";
    QTest::newRow("back to the beginning") << 6 << 0 << 1 << "";
}

void TestNavigation::aJumpInTheHistoryOpensWhatTheLastCommandDid()
{
    QFETCH(int, from);
    QFETCH(int, to);
    Project project;
    project.Results({"--page", "1"});
    project.Results({"--open-page", "2", "--rename-page", "1=One", "--open-part", "R1", "--rename-part", "R1=X",
                     "--open-page", "2", "--rename-page", "2=Two"});
    QCOMPARE(project.Stack().count(), 6);
    project.Stack().setIndex(0);
    project.Stack().setIndex(from);
    project.Results({"--board"});
    project.Stack().setIndex(to);
    QTEST(project.OpenSymbols(), "symbols");
    QTEST(project.Page(), "page");
}

void TestNavigation::stepsThatWereThrownAwayOpenNothing()
{
    Project project;
    project.Results({"--page", "1", "--open-page", "2", "--open-part", "R1", "--open-part", "R2", "--undo", "3"});
    QCOMPARE(project.Page(), 1);
    project.Results({"--board", "--rename-page", "1=One"}); // Takes the place of three others.
    QCOMPARE(project.Stack().count(), 1);
    QCOMPARE(project.Page(), 0);
    QCOMPARE(project.OpenSymbols(), QString());
    project.Results({"--undo", "--redo"});
    QCOMPARE(project.Page(), 0);
}

void TestNavigation::anEditIsUndoneWhereItWasMade()
{
    Project project;
    project.Results({"--page", "1", "--select", "part[0]", "--revalue", "47k"});
    project.Results({"--page", "2", "--select", "part[0]", "--revalue", "1n", "--open-page", "1"});
    project.Results({"--board", "--select", "package[0]", "--lock", "--rename-page", "1=One"});
    QCOMPARE(project.Stack().count(), 5);
    project.Results({"--page", "2"});
    project.Stack().undo(); // The page's name
    QCOMPARE(project.Page(), 2);
    for (const int page : {0, 2, 2, 1}) { // The lock, the open page, and both values
        project.Stack().undo();
        QCOMPARE(project.Page(), page);
    }
    for (const int page : {1, 2, 1, 0}) {
        project.Stack().redo();
        QCOMPARE(project.Page(), page);
    }
    project.Stack().setIndex(1); // Undone last: the value on the second page.
    QCOMPARE(project.Page(), 2);
    project.Results({"--page", "1", "--select", "part[0]", "--revalue", "10k"}); // Takes the place of all the others.
    QCOMPARE(project.Stack().count(), 2);
    project.Results({"--board"});
    project.Stack().undo();
    QCOMPARE(project.Page(), 1);
}

void TestNavigation::commandsOfOthersAreFollowed()
{
    Project project;
    project.Results({"--page", "1"});
    auto* command = new TCmdPageOpen(1, 2); // Whoever pushes it has opened the page: nothing is opened now.
    project.Stack().push(command);
    QCOMPARE(project.Page(), 1);
    project.Stack().undo();
    project.Stack().redo();
    QCOMPARE(project.Page(), 2);
    QCOMPARE(static_cast<int>(command->OpeningPageId()), 2);
    project.Stack().push(new TCmdPartOpen(nullptr, project.Tree().Part(1)));
    QCOMPARE(project.OpenSymbols(), QString("R1"));
    QCOMPARE(project.Page(), 1);
}

void TestNavigation::aPageIsRenamedInItsRow()
{
    Project project;
    const QString before = project.Dump();
    project.Retype(project.Tree().Page(2), "Rear & side", Qt::Key_Return);
    QCOMPARE(project.Tree().Page(2)->Name(), QString("Rear & side"));
    QCOMPARE(project.Stack().count(), 1);
    QCOMPARE(project.Stack().undoText(), QString("Rename page Back"));
    QCOMPARE(project.window->Tabs().tabText(2), QString("Rear && side")); // No key of the keyboard's.
    project.Results({"--undo"});
    QCOMPARE(project.window->Tabs().tabText(2), QString("Back"));
    QCOMPARE(project.Dump(), before);
}

void TestNavigation::aPartIsRenamedInItsRow()
{
    Project project;
    project.Retype(project.Tree().Part(1), "LOAD", Qt::Key_Return);
    QCOMPARE(project.Tree().Part(1)->Name(), QString("LOAD"));
    QCOMPARE(project.Tree().Part(1)->text(0), QString("R1")); // The designator is not the name.
    QCOMPARE(project.Stack().undoText(), QString("Rename part R1"));
    project.Results({"--undo"});
    QCOMPARE(project.Tree().Part(1)->Name(), QString("RESISTOR"));
}

void TestNavigation::anEscapedOrEmptyNameChangesNothing()
{
    Project project;
    project.Retype(project.Tree().Page(1), "Other", Qt::Key_Escape);
    project.Retype(project.Tree().Page(1), "Front", Qt::Key_Return);
    project.window->Navigation().RenamePage(*project.Tree().Page(1), QString());
    QCOMPARE(project.Tree().Page(1)->Name(), QString("Front"));
    QCOMPARE(project.Stack().count(), 0);
}

void TestNavigation::anotherDesignIsShownWhileANameIsEdited()
{
    Project project;
    project.Results({"--rename-part", "R1=X"});
    project.Type(project.Tree().Page(1), "half");
    TImportResult other = Test::MakeProject();
    project.window->ShowDesign(std::move(other), "other");
    Test::SettleWorkbench();
    QCOMPARE(project.Tree().Page(1)->Name(), QString("Front"));
    QCOMPARE(project.Stack().count(), 0);
    project.Retype(project.Tree().Page(1), "First", Qt::Key_Return);
    QCOMPARE(project.window->Tabs().tabText(1), QString("First"));
}

void TestNavigation::theWindowIsClosedWhileANameIsEdited()
{
    Project project;
    const QPointer<QLineEdit> edit = project.Type(project.Tree().Part(1), "half");
    project.window.reset();
    Test::SettleWorkbench();
    QVERIFY(!edit);
}

void TestNavigation::stepsOfACommandLine_data()
{
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<QString>("results");
    QTest::addColumn<QString>("message");

    const auto row = [](const char* name, const QStringList& steps, const char* results, const char* message = "") {
        QTest::newRow(name) << steps << QString(results) << QString(message);
    };
    row("a page by its number", {"--page", "2"}, "shown: page 2 \"Back\"\n");
    row("a page by its name", {"--page", "Back"}, "shown: page 2 \"Back\"\n");
    row("the board", {"--page", "2", "--board"}, "shown: page 2 \"Back\"\nshown: the board\n");
    row("a page that is none", {"--page", "Side"}, "",
        R"(there is no page "Side"; the project has 1 "Front", 2 "Back")");
    row("a number that is none", {"--page", "0"}, "", "there is no page \"0\"");
    row("open a page", {"--open-page", "Back"}, "Open page Back\n");
    row("open the page that is open", {"--open-page", "Front"}, "page open already\n");
    row("open a part by its component's number", {"--open-part", "3"}, "Open symbol of R2\n");
    row("open a part that is none", {"--open-part", "R3"}, "",
        R"(there is no part "R3"; the project has 1 "R1", 3 "R2", 2 "R10")");
    row("rename a page", {"--rename-page", "Back=Rear=side", "--tree"},
        "Rename page Back\ntreepage number=1 name=\"Front\"\ntreepage number=2 name=\"Rear=side\"\n"
        "treepart number=1 refDes=\"R1\" name=\"RESISTOR\"\ntreepart number=3 refDes=\"R2\" name=\"RESISTOR\"\n"
        "treepart number=2 refDes=\"R10\" name=\"RESISTOR\"\n");
    row("rename a page to what it is called", {"--rename-page", "Back=Back"}, "unchanged\n");
    row("rename a part", {"--rename-part", "R10=LOAD", "--undo"}, "Rename part R10\nundone: Rename part R10\n");
    row("what a page has not", {"--page", "1", "--select", "port"}, "shown: page 1 \"Front\"\n",
        "page 1 has no port; it has part, pin, text, netwire, rectangle");
    row("a place of its own", {"--page", "1", "--select", "part[1]", "--page", "2", "--select", "part[0]"},
        "shown: page 1 \"Front\"\nselected: 1 part\nshown: page 2 \"Back\"\nselected: 1 part\n");
}

void TestNavigation::stepsOfACommandLine()
{
    QFETCH(QStringList, steps);
    QFETCH(QString, message);
    Project project;
    const Test::Outcome outcome = project.Run(steps);
    QTEST(outcome.results, "results");
    QVERIFY2(message.isEmpty() ? outcome.messages.isEmpty() : outcome.messages.contains("): " + message),
             qPrintable(outcome.messages));
    QCOMPARE(outcome.code, message.isEmpty() ? 0 : 2);
}

void TestNavigation::aNameOfSeveralPagesIsAskedFor()
{
    Project project;
    project.Results({"--rename-page", "2=Front"});
    const Test::Outcome outcome = project.Run({"--page", "Front"});
    QVERIFY2(outcome.messages.contains("there are 2 pages \"Front\": give the number, 1 or 2"),
             qPrintable(outcome.messages));
    project.Results({"--page", "2"});
    QCOMPARE(project.Page(), 2);
}

void TestNavigation::aNameOfDigitsIsANumber()
{
    Project project;
    project.Results({"--rename-page", "1=2", "--page", "2"});
    QCOMPARE(project.Page(), 2);
    project.Results({"--page", "1"});
    QCOMPARE(project.Page(), 1);
}

PROPERTIES_TEST(TestNavigation)

#include "tst_navigation.moc"
