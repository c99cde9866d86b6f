#include "tests/support/LineDifferences.h"
#include "tests/support/Places.h"
#include "tests/support/TestProgram.h"
#include "tests/workbench/support/RealDesigns.h"
#include "tests/workbench/support/ShownWorkbench.h"
#include "workbench/design/LoadDesign.h"
#include "workbench/design/Picking.h"
#include "workbench/editing/Kinds.h"
#include "workbench/importer/ProjectImporter.h"

#include <QtTest>
#include <QUndoStack>

namespace {

/** How items of a kind are edited on the command line. */
struct Script
{
    const char* kind;
    QStringList steps;
};

const QVector<Script>& Scripts()
{
    static const QVector<Script> scripts{
        {"wire", {"--set", "Width:=0.35", "--set", "Width:=0.41"}},
        {"via", {"--set", "Diameter:=0.9", "--set", "Diameter:=1.3"}},
        {"pad", {"--set", "Thermal:=Yes", "--set", "Thermal:=No"}},
        {"hole", {"--set", "Diameter:=2.1", "--set", "Diameter:=2.3"}},
        {"package", {"--lock", "--unlock"}},
        {"package", {"--disconnect"}},
        {"nettie", {"--set", "Name:=JOIN"}},
        {"pour", {"--set", "Minimum area:=2", "--set", "Minimum area:=3"}},
        {"keepout", {"--set", "%1=on", "--set", "%1=off"}},
        {"milling", {"--set", "Line width:=0.45", "--set", "Line width:=0.55"}},
        {"text", {"--set", "Alignment:=Right", "--set", "Alignment:=Left"}},
        {"line", {"--set", "Line width:=0.33", "--set", "Line width:=0.44"}},
        {"rectangle", {"--set", "Fill style:=Cross", "--set", "Fill style:=Points"}},
        {"ellipse", {"--set", "Line style:=Dash dot", "--set", "Line style:=Dot"}},
        {"polygon", {"--set", "Fill style:=Points", "--set", "Fill style:=Cross"}},
        {"arc", {"--set", "Line width:=0.33", "--set", "Line width:=0.44"}},
        {"part", {"--lock", "--unlock"}},
        {"part", {"--disconnect"}},
        {"part", {"--revalue", "Changed"}},
        {"pin", {"--set", "Type:=Hi-Z", "--set", "Type:=Input"}},
        {"netwire", {"--set", "Level:=2", "--set", "Level:=7"}},
        {"port", {"--set", "Name:=MOVED"}},
        {"busentry", {"--disconnect-entries"}},
        {"nettiesymbol", {"--set", "Symbol:=Symbol 3", "--set", "Symbol:=Symbol 2"}},
        {"tag", {"--set", "Alignment:=Right", "--set", "Alignment:=Left"}},
    };
    return scripts;
}

/** Kinds without a step: outlines show only, polylines show nothing, names of buses are written at once, and junctions
 * have no set. */
const QStringList& KindsWithoutSteps()
{
    static const QStringList kinds{"outline", "polyline", "bus", "junction"};
    return kinds;
}

} // namespace

/** One long session over a whole project: every kind that it has, on the board and on each page. */
class TestWholeProjects : public QObject
{
    Q_OBJECT

private slots:
    void everyKindIsEditedUndoneAndRedone_data()
    {
        QTest::addColumn<QString>("file");
        QTest::newRow("sample") << SampleProjectFile();
        const QString folder = Test::DesignsFolder();
        const QStringList projects = Test::RealProjects();
        for (const QString& file : projects) {
            QTest::newRow(qPrintable(file.mid(folder.size() + 1))) << file;
        }
    }
    void everyKindIsEditedUndoneAndRedone()
    {
        QFETCH(QString, file);
        Test::ShownWorkbench workbench(file);
        QVERIFY(workbench.window->Design());
        const QString before = workbench.Dump();
        QSet<QString> edited;
        for (const TDocument& document : workbench.window->Design()->Documents()) {
            EditDocument(workbench, document, edited);
        }
        EditTree(workbench);
        const QString after = workbench.Dump();
        QVERIFY(after != before);
        QUndoStack& stack = workbench.window->UndoStack();
        const int steps = stack.count();
        for (int times = 0; times < 2; ++times) {
            stack.setIndex(0);
            ExpectEqual("undone", workbench.Dump(), before);
            stack.setIndex(steps);
            ExpectEqual("redone", workbench.Dump(), after);
        }
        qInfo("%d kinds, %d undo steps", edited.size(), steps);
        QVERIFY(edited.size() >= 10 || !(Test::IsAtHand(file) || file == SampleProjectFile()));
    }

private:
    static QSet<QString> KindsIn(const Test::ShownWorkbench& workbench, const TDocument& document)
    {
        QSet<QString> kinds;
        const QList<TGraphicsItem*> items = Picking::Selectable(workbench.window->Design()->ItemsOf(document));
        for (const TGraphicsItem* item : items) {
            if (Kinds::Of(*item)) {
                kinds.insert(Kinds::Word(*item));
            }
        }
        return kinds;
    }

    static void EditDocument(Test::ShownWorkbench& workbench, const TDocument& document, QSet<QString>& edited)
    {
        const QStringList show =
            document.IsBoard() ? QStringList{"--board"} : QStringList{"--page", QString::number(document.page)};
        QVERIFY(!workbench.Results(show).isEmpty());
        const QSet<QString> kinds = KindsIn(workbench, document);
        QSet<QString> left = kinds - QSet<QString>(KindsWithoutSteps().cbegin(), KindsWithoutSteps().cend());
        for (const Script& script : Scripts()) {
            if (!kinds.contains(script.kind)) {
                continue;
            }
            const int stepsBefore = workbench.window->UndoStack().count();
            const Test::Outcome outcome = workbench.Run(QStringList{"--select", script.kind}
                                                        + Resolved(script.steps, *workbench.window->Design()));
            QVERIFY2(outcome.code == 0, qPrintable(QString(script.kind) + ": " + outcome.messages));
            QVERIFY2(workbench.window->UndoStack().count() > stepsBefore, script.kind);
            left.remove(script.kind);
            edited.insert(script.kind);
        }
        QVERIFY2(left.isEmpty(), qPrintable(QStringList(left.cbegin(), left.cend()).join(", ")));
    }

    /** The steps with the name of the board's first layer in place of %1. */
    static QStringList Resolved(QStringList steps, const TDesign& design)
    {
        const QList<Osmirel::Layer> copper =
            design.Board() ? design.Board()->LayerManager()->CopperLayers() : QList<Osmirel::Layer>();
        if (!copper.isEmpty()) {
            steps.replaceInStrings("%1", design.Board()->LayerManager()->Layer(copper.first())->name);
        }
        return steps;
    }

    static void EditTree(Test::ShownWorkbench& workbench)
    {
        const TProjectTree& tree = workbench.window->Design()->Tree();
        if (tree.Parts().isEmpty()) {
            return;
        }
        const int stepsBefore = workbench.window->UndoStack().count();
        const QString part = QString::number(tree.Parts().first()->ComponentNumber());
        const QString page = QString::number(tree.Pages().last()->Number());
        const Test::Outcome outcome = workbench.Run({"--open-part", part, "--rename-part", part + "=Renamed",
                                                     "--open-page", page, "--rename-page", page + "=Last page"});
        QVERIFY2(outcome.code == 0, qPrintable(outcome.messages));
        QVERIFY(workbench.window->UndoStack().count() >= stepsBefore + 3);
    }

    static void ExpectEqual(const char* what, const QString& actual, const QString& expected)
    {
        const QString differences = Test::LineDifferences(actual, expected);
        QVERIFY2(differences.isEmpty(), qPrintable(QString("%1: %2").arg(what, differences)));
    }
};

PROPERTIES_TEST(TestWholeProjects)
#include "tst_whole_projects.moc"
