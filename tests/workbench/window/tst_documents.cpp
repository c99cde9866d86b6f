#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyText.h"
#include "properties/TPropertySet.h"
#include "properties/TPropertyWidget.h"
#include "tests/support/TestProgram.h"
#include "tests/workbench/support/ShownWorkbench.h"
#include "tests/workbench/support/SmallProject.h"
#include "workbench/editing/Kinds.h"
#include "workbench/editing/TSelection.h"
#include "workbench/window/TCanvas.h"
#include "workbench/window/TDocumentTabs.h"
#include "workbench/window/TLayerList.h"

#include <objects/TGraphicsPartItem.h>
#include <objects/TGraphicsPinItem.h>
#include <objects/TGraphicsPortItem.h>

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QTabBar>
#include <QtTest>
#include <QUndoStack>

namespace {

using TItems = QList<TGraphicsItem*>;

QStringList TabTexts(const Test::ShownWorkbench& workbench)
{
    QStringList texts;
    for (int i = 0; i < workbench.window->Tabs().count(); ++i) {
        texts.append(workbench.window->Tabs().tabText(i));
    }
    return texts;
}

} // namespace

class TestDocuments : public QObject
{
    Q_OBJECT

private slots:
    void aTabForTheBoardAndForEachPage();
    void aBoardAloneHasNoTabBar();
    void aSchematicAloneHasNoBoard();
    void theProjectIsInStepOnlyWithABoard();
    void aTabKeepsItsSelectionAndItsOrder();
    void aTabKeepsItsZoom();
    void layersFollowTheTab();
    void theEditMenuOffersTheKindsThatAreThere();
    void aHiddenLayerOfOnePageIsDeselectedOnTheOther();
    void anEditOfTextEndsWithTheTab();
    void boardCommandsFindTheirBoardBehindAPage();
    void anotherDesignTakesTheTabsAway();
    void everyKindOfAPageHasItsWordAndSet();
    void aTextOfAPageHasNoLayerRow();
    void aClickTakes_data();
    void aClickTakes();
    void drawingsOfAnOpenSymbolArePicked();
    void everyRowOfAPageComesBackAfterUndo_data();
    void everyRowOfAPageComesBackAfterUndo();
};

void TestDocuments::aTabForTheBoardAndForEachPage()
{
    Test::ShownWorkbench workbench(Test::MakeProject());
    QCOMPARE(TabTexts(workbench), (QStringList{"Board", "Front", "Back"}));
    QVERIFY(workbench.window->Tabs().tabBar()->isVisible());
    QVERIFY(workbench.window->Tabs().Document().IsBoard());
    QCOMPARE(workbench.Items(ItemType::Via).size(), 3);
    workbench.window->Tabs().setCurrentIndex(2);
    QCOMPARE(workbench.Items(ItemType::Via).size(), 0);
    QCOMPARE(workbench.Items(ItemType::Port).size(), 1);
    QCOMPARE(workbench.window->Canvas().scene(), workbench.Items(ItemType::Port).first()->scene());
    const QString dump = workbench.Dump();
    for (const char* line : {"\nvia ", "\npage 1\n", "\npage 2\n", "\nport ", "\ntreepage ", "\ntreepart ",
                             "\ntagvalue name=\"TITLE\" value=\"Amplifier\"\n"}) {
        QVERIFY2(('\n' + dump).contains(line), line);
    }
}

void TestDocuments::aBoardAloneHasNoTabBar()
{
    Test::ShownWorkbench workbench;
    QCOMPARE(TabTexts(workbench), QStringList{"Board"});
    QVERIFY(!workbench.window->Tabs().tabBar()->isVisible());
    QVERIFY(workbench.Run({"--page", "1"}).messages.contains("there is no page \"1\"; the project has none"));
}

void TestDocuments::aSchematicAloneHasNoBoard()
{
    Test::ShownWorkbench workbench(Test::MakeSchematic());
    QCOMPARE(TabTexts(workbench), (QStringList{"Front", "Back"}));
    QVERIFY(!workbench.window->Board());
    const QString before = workbench.Dump();
    QVERIFY(before.startsWith("page 1\n"));
    QVERIFY(workbench.Run({"--board"}).messages.contains("there is no board"));
    QVERIFY(workbench.Run({"--select", "via"}).messages.contains("page 1 has no via; it has part, pin"));
    workbench.Results({"--designators", "off", "--values", "off"});
    workbench.Results({"--select", "part",    "--revalue",  "2k",       "--connect", "--disconnect",
                       "--lock",   "--page",  "Back",       "--select", "busentry",  "--disconnect-entries",
                       "--select", "netwire", "--priority", "3",        "--select",  "port",
                       "--set",    "Name:=B", "--select",   "tag",      "--set",     "Name:=C"});
    QVERIFY(workbench.Dump() != before);
    workbench.Results({"--undo", "99"});
    QCOMPARE(workbench.Dump(), before);
}

void TestDocuments::theProjectIsInStepOnlyWithABoard()
{
    Test::ShownWorkbench project(Test::MakeProject());
    QCOMPARE(project.window->Design()->Project().Kind(), static_cast<int>(TProject::InStep));
    QVERIFY(project.window->Board()->ConnectivityEnabled());
    Test::ShownWorkbench schematic(Test::MakeSchematic());
    QCOMPARE(schematic.window->Design()->Project().Kind(), static_cast<int>(TProject::Separate));
    Test::ShownWorkbench board;
    QVERIFY(!board.window->Board()->ConnectivityEnabled()); // There is nothing to be in step with.
}

void TestDocuments::aTabKeepsItsSelectionAndItsOrder()
{
    Test::ShownWorkbench workbench(Test::MakeProject());
    workbench.Results({"--page", "Back", "--select", "tag,port"});
    const TItems chosen = workbench.window->Selection().Items();
    QCOMPARE(chosen.size(), 2);
    QCOMPARE(chosen.first()->type(), static_cast<int>(ItemType::Tag));
    workbench.Results({"--board"});
    QVERIFY(workbench.window->Selection().Items().isEmpty());
    QCOMPARE(workbench.Title(), QString("Properties"));
    workbench.Results({"--select", "via", "--page", "2"});
    QCOMPARE(workbench.window->Selection().Items(), chosen);
    QCOMPARE(workbench.Title(), QString("Properties - Tags"));
    workbench.Results({"--board"});
    QCOMPARE(workbench.window->Selection().Items(), workbench.Items(ItemType::Via));
    QCOMPARE(workbench.Title(), QString("Properties - Vias"));
}

void TestDocuments::aTabKeepsItsZoom()
{
    Test::ShownWorkbench workbench(Test::MakeProject());
    workbench.Results({"--page", "1", "--select", "part[0]", "--zoom", "selection"});
    const QTransform zoom = workbench.window->Canvas().transform();
    workbench.Results({"--board"});
    QVERIFY(workbench.window->Canvas().transform() != zoom);
    workbench.Results({"--page", "1"});
    QCOMPARE(workbench.window->Canvas().transform(), zoom);
}

void TestDocuments::layersFollowTheTab()
{
    Test::ShownWorkbench workbench(Test::MakeProject());
    QCOMPARE(workbench.window->Layers().Names().first(), QString("Top"));
    workbench.Results({"--page", "1"});
    QCOMPARE(workbench.window->Layers().Names(), (QStringList{"Nets", "Buses", "Symbols", "Texts"}));
    QVERIFY(workbench.Run({"--hide-layers", "Top"}).messages.contains("there is no layer \"Top\"; page 1 has Nets, "));
    workbench.Results({"--select", "netwire", "--hide-layers", "Nets"});
    QVERIFY(workbench.window->Selection().Items().isEmpty());
}

void TestDocuments::theEditMenuOffersTheKindsThatAreThere()
{
    Test::ShownWorkbench workbench(Test::MakeProject());
    const auto offered = [&workbench] {
        const QList<QMenu*> menus = workbench.window->menuBar()->findChildren<QMenu*>();
        QStringList texts;
        for (QMenu* menu : menus) {
            if (menu->title() == "&Edit") {
                emit menu->aboutToShow();
                for (const QAction* action : menu->actions()) {
                    if (action->isVisible() && action->text().startsWith("Select all ")) {
                        texts.append(action->text().mid(11));
                    }
                }
            }
        }
        return texts;
    };
    QCOMPARE(offered(), (QStringList{"vias", "pads", "holes", "packages"}));
    workbench.Results({"--page", "1"});
    QCOMPARE(offered(), (QStringList{"parts", "pins", "net wires", "texts", "rectangles"}));
    workbench.Results({"--page", "2"}); // The only rectangle is a part's.
    QCOMPARE(offered(), (QStringList{"parts", "pins", "net wires", "ports", "buses", "bus entries", "net tie symbols",
                                     "tags", "junctions", "texts"}));
}

void TestDocuments::aHiddenLayerOfOnePageIsDeselectedOnTheOther()
{
    Test::ShownWorkbench workbench(Test::MakeProject());
    workbench.Results(
        {"--page", "2", "--select", "netwire,part", "--page", "1", "--hide-layers", "Nets", "--page", "2"});
    QCOMPARE(workbench.window->Selection().Items(), workbench.Items(ItemType::Part));
}

void TestDocuments::anEditOfTextEndsWithTheTab()
{
    Test::ShownWorkbench workbench(Test::MakeProject());
    workbench.Results({"--page", "2", "--select", "port"});
    const auto* port = static_cast<TGraphicsPortItem*>(workbench.Items(ItemType::Port).first());
    TLineEdit* line = qobject_cast<TPropertyText*>(workbench.Row("Name:"))->line;
    QTest::mouseDClick(line->label, Qt::LeftButton);
    QTest::keyClicks(line->edit, "IN");
    workbench.window->Tabs().setCurrentIndex(0);
    QCOMPARE(port->Name(), QString("IN"));
    QVERIFY(workbench.window->UndoStack().count() > 0);
    QCOMPARE(workbench.Title(), QString("Properties"));
}

void TestDocuments::boardCommandsFindTheirBoardBehindAPage()
{
    Test::ShownWorkbench workbench(Test::MakeProject());
    const QString before = workbench.Dump();
    workbench.Results({"--page", "1", "--select", "part[0]", "--revalue", "47k"});
    workbench.Results({"--board"});
    QCOMPARE(static_cast<TGraphicsComponentItem*>(workbench.Items(ItemType::Package).first())->Value(), QString("47k"));
    workbench.Results({"--page", "2", "--undo"});
    QCOMPARE(workbench.Dump(), before);
}

void TestDocuments::anotherDesignTakesTheTabsAway()
{
    Test::ShownWorkbench workbench(Test::MakeProject());
    workbench.Results({"--page", "2", "--select", "all", "--open-part", "R2", "--rename-page", "2=Rear"});
    workbench.window->ShowDesign(Test::MakeSchematic(), "other");
    Test::SettleWorkbench();
    QCOMPARE(TabTexts(workbench), (QStringList{"Front", "Back"}));
    QCOMPARE(workbench.window->UndoStack().count(), 0);
    QVERIFY(workbench.window->Selection().Items().isEmpty());
    QVERIFY(!workbench.window->Design()->OpenPart());
    workbench.Results({"--open-page", "2", "--undo"});
}

void TestDocuments::everyKindOfAPageHasItsWordAndSet()
{
    Test::ShownWorkbench workbench(Test::MakeProject());
    QSet<QString> words;
    for (const TKind& kind : Kinds::All()) {
        const QString word = QString(kind.one).remove(' ');
        QVERIFY2(!words.contains(word), kind.one);
        words.insert(word);
        if (!kind.isOfPages) {
            continue;
        }
        int found = 0;
        for (const char* page : {"1", "2"}) {
            workbench.Results({"--page", page});
            if (workbench.Items(kind.type).isEmpty()) {
                continue;
            }
            ++found;
            workbench.Results({"--select", word});
            QCOMPARE(Kinds::Of(*workbench.window->Selection().Items().first()), &kind);
            const TPropertySet* set = workbench.window->Panel().PropertySet();
            QCOMPARE(set != nullptr, kind.makeSet != nullptr);
            QVERIFY(!set || !set->Properties().isEmpty());
        }
        QVERIFY2(found > 0, kind.one);
    }
}

void TestDocuments::aTextOfAPageHasNoLayerRow()
{
    Test::ShownWorkbench workbench(Test::MakeProject());
    const QString text = workbench.Results({"--page", "Back", "--select", "text", "--panel"});
    QVERIFY2(text.contains("Font size:") && !text.contains("Layer:"), qPrintable(text));
    const QString frame = workbench.Results({"--page", "Front", "--select", "rectangle", "--panel"});
    QVERIFY2(frame.contains("Line width:") && !frame.contains("Layer:"), qPrintable(frame));
}

void TestDocuments::aClickTakes_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QPointF>("point");
    QTest::addColumn<QString>("word");

    QTest::newRow("the part at its drawing") << "1" << QPointF(60, 0) << "part";
    QTest::newRow("the part within its drawing") << "1" << QPointF(0, 5) << "part";
    QTest::newRow("the pin at its line") << "1" << QPointF(-90, 0) << "pin";
    QTest::newRow("the designator") << "1" << QPointF(0, -60) << "text";
    QTest::newRow("the net wire") << "1" << QPointF(250, 0) << "netwire";
    QTest::newRow("the port beside its pin") << "2" << QPointF(308, 0) << "port";
    QTest::newRow("the net tie") << "2" << QPointF(-300, 0) << "nettiesymbol";
    QTest::newRow("the net tie's pin") << "2" << QPointF(-340, 0) << "pin";
    QTest::newRow("the bus entry") << "2" << QPointF(215, 315) << "busentry";
    QTest::newRow("the junction") << "2" << QPointF(-200, 300) << "junction";
    QTest::newRow("the tag") << "2" << QPointF(0, 500) << "tag";
}

void TestDocuments::aClickTakes()
{
    QFETCH(QString, page);
    QFETCH(QPointF, point);
    QFETCH(QString, word);
    Test::ShownWorkbench workbench(Test::MakeProject());
    workbench.Results({"--page", page});
    workbench.ClickAt(point);
    Test::SettleWorkbench();
    const TItems selected = workbench.window->Selection().Items();
    QCOMPARE(selected.size(), 1);
    QCOMPARE(Kinds::Word(*selected.first()), word);
}

void TestDocuments::drawingsOfAnOpenSymbolArePicked()
{
    Test::ShownWorkbench workbench(Test::MakeProject());
    workbench.Results({"--page", "1", "--open-part", "R1"});
    workbench.ClickAt({60, 0});
    QCOMPARE(workbench.window->Selection().Items().size(), 1);
    QCOMPARE(Kinds::Word(*workbench.window->Selection().Items().first()), QString("rectangle"));
    workbench.Results({"--undo"}); // A closed symbol has no drawing that could stay selected.
    QVERIFY(workbench.window->Selection().Items().isEmpty());
    workbench.ClickAt({60, 0});
    QCOMPARE(Kinds::Word(*workbench.window->Selection().Items().first()), QString("part"));
}

void TestDocuments::everyRowOfAPageComesBackAfterUndo_data()
{
    QTest::addColumn<QStringList>("steps");

    const auto row = [](const char* page, const char* items, const char* assignment) {
        QTest::addRow("%s %s", items, assignment)
            << QStringList{"--page", page, "--select", items, "--set", assignment};
    };
    row("1", "pin", "Type:=Power");
    row("1", "pin", "Style:=Inverse");
    row("1", "netwire", "Level:=4");
    row("1", "netwire", "Color:=#FF0000");
    row("2", "port", "Name:=NEW");
    row("2", "port", "Name:.show=off");
    row("2", "nettiesymbol", "Name:=NT9");
    row("2", "nettiesymbol", "Symbol:=Symbol 3");
    row("2", "tag", "Name:=DATE");
    row("2", "tag", "Font size:=36");
    row("2", "text", "Font size:=36");
    row("1", "rectangle", "Line width:=1.5");
}

void TestDocuments::everyRowOfAPageComesBackAfterUndo()
{
    QFETCH(QStringList, steps);
    Test::ShownWorkbench workbench(Test::MakeProject());
    const QString before = workbench.Dump();
    workbench.Results(steps);
    const QString after = workbench.Dump();
    QVERIFY(after != before);
    workbench.Results({"--undo", "9"});
    QCOMPARE(workbench.Dump(), before);
    workbench.Results({"--redo", "9"});
    QCOMPARE(workbench.Dump(), after);
}

PROPERTIES_TEST(TestDocuments)

#include "tst_documents.moc"
