#include "properties/rows/TLineEdit.h"
#include "properties/rows/TPropertyText.h"
#include "properties/TPropertySet.h"
#include "properties/TPropertyWidget.h"
#include "tests/support/TestProgram.h"
#include "tests/workbench/support/ShownWorkbench.h"
#include "workbench/design/LoadDesign.h"
#include "workbench/editing/Kinds.h"
#include "workbench/editing/TPropertyEditing.h"
#include "workbench/editing/TSelection.h"
#include "workbench/window/TCanvas.h"
#include "workbench/window/TLanguages.h"
#include "workbench/window/TLayerList.h"

#include <application/TUndoCommand.h>
#include <objects/TGraphicsJunctionItem.h>
#include <workspace/TDoubleSpinBox.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>
#include <QUndoStack>

namespace {

using TItems = QList<TGraphicsItem*>;

/** Chooses a menu entry. */
void Trigger(const TMainWindow& window, const QString& text)
{
    const QList<QAction*> actions = window.findChildren<QAction*>();
    const auto found = std::find_if(actions.cbegin(), actions.cend(),
                                    [&text](const QAction* action) { return action->text() == text; });
    QVERIFY2(found != actions.cend(), qPrintable(text));
    (*found)->trigger();
}

/** Answers the next message box and keeps its text. */
class MessageReader : public QObject
{
public:
    MessageReader()
    {
        connect(&timer, &QTimer::timeout, this, [this] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                texts.append(box->text());
                box->accept();
            }
        });
        timer.start(10);
    }

    QStringList texts;

private:
    QTimer timer;
};

} // namespace

class TestWorkbench : public QObject
{
    Q_OBJECT

private slots:
    void theFirstKindIsEdited();
    void aKindWithoutASetShowsNothing();
    void selectAllOfAKindTakesVisibleItems();
    void aHiddenLayerTakesItsItemsAlong();
    void anEditIsPushedAndTheSetStays();
    void undoAndRedoShowThePresentValues();
    void undoKeepsTheFocusInItsRow();
    void undoKeyInANumberUndoesTheDesign();
    void undoKeyInATextStaysThere();
    void historyJumpsShowOneSet();
    void theSetIsReplacedFromItsOwnCommand();
    void anotherBoardIsShownWhileATextIsEdited();
    void theWindowIsClosedWhileATextIsEdited();
    void theWindowIsClosedDuringAGesture();
    void theWindowIsClosedFromACommand();
    void aBadFileLeavesTheDesignAndSaysWhyOnce();
    void aGoodFileReplacesTheDesign();
    void languages();
    void commandsAreNamedInUsersWords_data();
    void commandsAreNamedInUsersWords();
    void namesOfKinds();
};

void TestWorkbench::theFirstKindIsEdited()
{
    Test::ShownWorkbench workbench;
    const TItems pads = workbench.Items(ItemType::Pad);
    const TItems holes = workbench.Items(ItemType::Hole);
    workbench.window->Selection().Select(TItems{pads[2]} + holes);
    QCOMPARE(workbench.Title(), QString("Properties - Pads")); // It counts all that is selected: it was handed over.
    workbench.window->Selection().Select(holes + TItems{pads[2]});
    QCOMPARE(workbench.Title(), QString("Properties - Hole"));
    workbench.window->Selection().Select({});
    QCOMPARE(workbench.Title(), QString("Properties"));
    QVERIFY(!workbench.window->Panel().PropertySet());
}

void TestWorkbench::aKindWithoutASetShowsNothing()
{
    Test::ShownWorkbench workbench;
    auto junction = std::make_unique<TGraphicsJunctionItem>();
    TGraphicsItem* item = junction.get();
    workbench.window->Board()->Attach(std::move(junction));
    workbench.window->Selection().Select(workbench.Items(ItemType::Via));
    workbench.window->Selection().Select(TItems{item} + workbench.Items(ItemType::Via));
    QCOMPARE(workbench.Title(), QString("Properties"));
    QVERIFY(!workbench.window->Panel().PropertySet());
    QVERIFY(workbench.Run({"--set", "Diameter:=1"}).messages.contains("the panel is empty"));
}

void TestWorkbench::selectAllOfAKindTakesVisibleItems()
{
    Test::ShownWorkbench workbench;
    Trigger(*workbench.window, "Select all pads");
    QCOMPARE(workbench.TakeSetsShown(), 1);
    QCOMPARE(workbench.window->Selection().Items(), workbench.Items(ItemType::Pad));

    workbench.window->Board()->LayerManager()->SetVisible(Osmirel::CopperTop, false);
    Trigger(*workbench.window, "Select all pads");
    QCOMPARE(workbench.window->Selection().Items(), TItems{workbench.Items(ItemType::Pad)[2]});
    Trigger(*workbench.window, "Select &all");
    TItems visible = workbench.window->Board()->Items();
    visible.removeOne(workbench.Items(ItemType::Pad)[0]);
    visible.removeOne(workbench.Items(ItemType::Pad)[1]);
    QCOMPARE(workbench.window->Selection().Items(), visible);
}

void TestWorkbench::aHiddenLayerTakesItsItemsAlong()
{
    Test::ShownWorkbench workbench;
    const TItems pads = workbench.Items(ItemType::Pad);
    workbench.window->Selection().Select(pads);
    workbench.TakeSetsShown();
    auto* list = workbench.window->findChild<TLayerList*>();
    QCOMPARE(list->count(), 4);
    QCOMPARE(list->item(0)->text(), QString("Top"));
    list->item(0)->setCheckState(Qt::Unchecked);
    QCOMPARE(workbench.TakeSetsShown(), 1);
    QCOMPARE(workbench.window->Selection().Items(), TItems{pads[2]}); // It is on the bottom, too.

    workbench.Click(pads[0]);
    QVERIFY(!pads[0]->isSelected());
    list->item(0)->setCheckState(Qt::Checked);
    workbench.Click(pads[0]);
    QVERIFY(pads[0]->isSelected());
}

void TestWorkbench::anEditIsPushedAndTheSetStays()
{
    Test::ShownWorkbench workbench;
    workbench.window->Selection().Select(workbench.Items(ItemType::Via));
    workbench.TakeSetsShown();
    const TPropertySet* set = workbench.window->Panel().PropertySet();
    workbench.Number("Diameter:")->stepUp();
    QCOMPARE(workbench.TakeSetsShown(), 0);
    QCOMPARE(workbench.window->Panel().PropertySet(), set);
    QCOMPARE(workbench.window->UndoStack().undoText(), QString("Change diameter of 3 vias"));
}

void TestWorkbench::undoAndRedoShowThePresentValues()
{
    Test::ShownWorkbench workbench;
    workbench.window->Selection().Select(workbench.Items(ItemType::Via));
    workbench.Number("Diameter:")->setValue(2.0);
    workbench.TakeSetsShown();
    workbench.window->UndoStack().undo();
    QCOMPARE(workbench.TakeSetsShown(), 1);
    QCOMPARE(workbench.Number("Diameter:")->value(), 0.6);
    workbench.window->UndoStack().redo();
    QCOMPARE(workbench.Number("Diameter:")->value(), 2.0);
    QCOMPARE(workbench.window->Selection().Items(), workbench.Items(ItemType::Via));
}

void TestWorkbench::undoKeepsTheFocusInItsRow()
{
    Test::ShownWorkbench workbench;
    workbench.window->Selection().Select(workbench.Items(ItemType::Via));
    workbench.Number("Drill:")->setFocus();
    workbench.Number("Drill:")->setValue(0.5);
    workbench.window->UndoStack().undo();
    QCOMPARE(QApplication::focusWidget(), workbench.Number("Drill:"));
}

void TestWorkbench::undoKeyInANumberUndoesTheDesign()
{
    Test::ShownWorkbench workbench;
    const QString before = workbench.Dump();
    workbench.window->Selection().Select(workbench.Items(ItemType::Via));
    TDoubleSpinBox* spin = workbench.Number("Drill:");
    spin->setFocus();
    spin->selectAll();
    QTest::keyClicks(spin, "0.9");
    QVERIFY(workbench.Dump() != before);
    while (workbench.window->UndoStack().canUndo()) {
        const int index = workbench.window->UndoStack().index();
        QTest::keySequence(QApplication::focusWidget(), QKeySequence::Undo);
        QCOMPARE(workbench.window->UndoStack().index(), index - 1);
    }
    QCOMPARE(workbench.Dump(), before);
    QTest::keySequence(QApplication::focusWidget(), QKeySequence::Redo);
    QCOMPARE(workbench.window->UndoStack().index(), 1);
}

void TestWorkbench::undoKeyInATextStaysThere()
{
    Test::ShownWorkbench workbench;
    workbench.window->Selection().Select({workbench.Items(ItemType::Via)[0]});
    workbench.Number("Drill:")->setValue(0.5);
    workbench.window->Selection().Select({workbench.Items(ItemType::Pad)[0]});
    TLineEdit* line = qobject_cast<TPropertyText*>(workbench.Row("Number:"))->line;
    QTest::mouseDClick(line->label, Qt::LeftButton);
    QTest::keyClicks(line->edit, "77");
    QTest::keySequence(line->edit, QKeySequence::Undo);
    QCOMPARE(line->edit->text(), QString("1"));
    QCOMPARE(workbench.window->UndoStack().index(), 1);
}

void TestWorkbench::historyJumpsShowOneSet()
{
    Test::ShownWorkbench workbench;
    workbench.window->Selection().Select(workbench.Items(ItemType::Via));
    for (const double diameter : {2.0, 3.0, 4.0}) {
        workbench.Number("Diameter:")->setValue(diameter);
    }
    workbench.TakeSetsShown();
    workbench.window->UndoStack().setIndex(0);
    QCOMPARE(workbench.TakeSetsShown(), 1);
    QCOMPARE(workbench.Number("Diameter:")->value(), 0.6);
}

void TestWorkbench::theSetIsReplacedFromItsOwnCommand()
{
    Test::ShownWorkbench workbench;
    const TItems holes = workbench.Items(ItemType::Hole);
    workbench.window->Selection().Select(workbench.Items(ItemType::Via));
    connect(workbench.window->Panel().PropertySet(), &TPropertySet::sigCmd, this,
            [&] { workbench.window->Selection().Select(holes); });
    workbench.Number("Diameter:")->setFocus();
    workbench.Number("Diameter:")->setValue(3.0);
    Test::SettleWorkbench();
    QCOMPARE(workbench.Title(), QString("Properties - Hole"));
    QCOMPARE(workbench.window->UndoStack().count(), 1);
    QCOMPARE(static_cast<TGraphicsViaItem*>(workbench.Items(ItemType::Via)[2])->Width(),
             static_cast<double>(static_cast<float>(3.0 * 300 / 25.4)));
}

void TestWorkbench::anotherBoardIsShownWhileATextIsEdited()
{
    Test::ShownWorkbench workbench;
    workbench.window->Selection().Select({workbench.Items(ItemType::Pad)[0]});
    workbench.Results({"--set", "Thermal:=No"});
    TLineEdit* line = qobject_cast<TPropertyText*>(workbench.Row("Number:"))->line;
    QTest::mouseDClick(line->label, Qt::LeftButton);
    QTest::keyClicks(line->edit, "half");

    TImportResult other;
    other.board = Test::MakeBoard();
    const QString untouched = other.board->Dump();
    workbench.window->ShowDesign(std::move(other), "other");
    Test::SettleWorkbench();
    QCOMPARE(workbench.Dump(), untouched);
    QCOMPARE(workbench.window->UndoStack().count(), 0);
    QCOMPARE(workbench.Title(), QString("Properties"));
    QVERIFY(workbench.window->Selection().Items().isEmpty());
    workbench.Click(workbench.Items(ItemType::Via)[0]);
    QCOMPARE(workbench.TakeSetsShown() > 0, true);
    QCOMPARE(workbench.Title(), QString("Properties - Vias"));
}

void TestWorkbench::theWindowIsClosedWhileATextIsEdited()
{
    Test::ShownWorkbench workbench;
    workbench.window->Selection().Select({workbench.Items(ItemType::Pad)[0]});
    TLineEdit* line = qobject_cast<TPropertyText*>(workbench.Row("Number:"))->line;
    int commands = 0;
    connect(workbench.window->Panel().PropertySet(), &TPropertySet::sigCmd, this, [&] { ++commands; });
    QTest::mouseDClick(line->label, Qt::LeftButton);
    QTest::keyClicks(line->edit, "half");
    workbench.window.reset();
    Test::SettleWorkbench();
    QCOMPARE(commands, 0);
}

void TestWorkbench::theWindowIsClosedDuringAGesture()
{
    Test::ShownWorkbench workbench;
    TCanvas& canvas = workbench.window->Canvas();
    const QPointer<QWidget> viewport = canvas.viewport();
    QTest::mousePress(canvas.viewport(), Qt::LeftButton, {},
                      canvas.mapFromScene(workbench.Items(ItemType::Via)[0]->scenePos()));
    workbench.window.reset();
    Test::SettleWorkbench();
    QVERIFY(!viewport);
}

void TestWorkbench::theWindowIsClosedFromACommand()
{
    Test::ShownWorkbench workbench;
    workbench.window->Selection().Select(workbench.Items(ItemType::Via));
    connect(workbench.window->Panel().PropertySet(), &TPropertySet::sigCmd, workbench.window.get(),
            [&] { workbench.window->close(); });
    workbench.Number("Diameter:")->setValue(3.0);
    Test::SettleWorkbench();
    QVERIFY(!workbench.window->isVisible());
    QCOMPARE(workbench.window->UndoStack().count(), 1);
    workbench.window.reset();
}

void TestWorkbench::aBadFileLeavesTheDesignAndSaysWhyOnce()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("bad.kicad_pcb"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write("(kicad_pcb (version 20171130)\n(layers") > 0);
    file.close();

    Test::ShownWorkbench workbench;
    workbench.window->Selection().Select(workbench.Items(ItemType::Via));
    workbench.Results({"--set", "Diameter:=2.0"});
    const QString before = workbench.Dump();
    const QString title = workbench.window->windowTitle();
    MessageReader reader;
    workbench.window->OpenFile(file.fileName());
    QCOMPARE(reader.texts.size(), 1);
    QVERIFY2(QRegularExpression("^.*bad\\.kicad_pcb:\\d+: .+").match(reader.texts.first()).hasMatch(),
             qPrintable(reader.texts.first()));
    QCOMPARE(workbench.Dump(), before);
    QCOMPARE(workbench.window->windowTitle(), title);
    QCOMPARE(workbench.window->UndoStack().count(), 1);
    QCOMPARE(workbench.Title(), QString("Properties - Vias"));
}

void TestWorkbench::aGoodFileReplacesTheDesign()
{
    Test::ShownWorkbench workbench;
    workbench.window->Selection().Select(workbench.Items(ItemType::Via));
    workbench.Results({"--set", "Diameter:=2.0"});
    workbench.window->OpenFile(SampleBoardFile());
    QVERIFY(workbench.window->windowTitle().startsWith("sample.kicad_pcb"));
    QVERIFY(workbench.Items(ItemType::Via).size() > 3);
    QCOMPARE(workbench.window->UndoStack().count(), 0);
    QVERIFY(!workbench.window->Panel().PropertySet());
}

void TestWorkbench::languages()
{
    QCOMPARE(TLanguages::Available().first(), QString("en"));
    QCOMPARE(TLanguages::NameOf("en"), QString("English"));
    QCOMPARE(TLanguages::NameOf("de"), QString("Deutsch"));
    TLanguages switched;
    int count = 0;
    connect(&switched, &TLanguages::sigSwitched, this, [&] { ++count; });
    switched.Switch("xx");
    QCOMPARE(switched.Current(), QString("en"));
    QCOMPARE(count, 1);

    QVERIFY(TLanguages::Available().contains("de"));
    Test::ShownWorkbench workbench;
    workbench.window->Selection().Select(workbench.Items(ItemType::Via));
    workbench.TakeSetsShown();
    Trigger(*workbench.window, "Deutsch");
    QCOMPARE(workbench.TakeSetsShown(), 1); // In the new language, of the same selection.
    QCOMPARE(workbench.Title(), QString("Eigenschaften - Durchkontaktierungen"));
    QCOMPARE(workbench.window->Panel().windowTitle(), QString("Eigenschaften"));
    QVERIFY(workbench.Row("Durchmesser:"));
    QCOMPARE(workbench.window->Selection().Items().size(), 3);

    Trigger(*workbench.window, "English");
    QCOMPARE(workbench.TakeSetsShown(), 1);
    QCOMPARE(workbench.Title(), QString("Properties - Vias"));
    QCOMPARE(workbench.window->Panel().windowTitle(), QString("Properties"));
}

void TestWorkbench::commandsAreNamedInUsersWords_data()
{
    QTest::addColumn<QStringList>("edit");
    QTest::addColumn<QString>("text");

    const auto row = [](const char* items, const char* assignment, const char* text) {
        QTest::addRow("%s %s", items, assignment)
            << QStringList{"--select", items, "--set", assignment} << QString(text);
    };
    row("via", "Diameter:=1.1", "Change diameter of 3 vias");
    row("via,hole", "Drill:=0.6", "Change drill of 3 vias");
    row("via[0]", "Thermal:=Yes", "Change thermal connection of 1 via");
    row("via[0..1]", "Drill pair:=Top - Inner 1", "Change drill pair of 2 vias");
    row("via", "Mask:=0.3", "Change mask clearance of 3 vias");
    row("via", "Mask:.check=on", "Switch mask opening of 3 vias");
    row("pad[0]", "Number:=9", "Renumber 1 pad");
    row("pad[0]", "Size (W x H):.width=2", "Change width of 1 pad");
    row("pad[0]", "Size (W x H):.height=2", "Change height of 1 pad");
    row("pad[0]", "Type:=THT", "Change type of 1 pad");
    row("pad[0]", "Side:=Bottom", "Change side of 1 pad");
    row("pad[0]", "Shape:=Rectangle", "");
    row("pad[2]", "Shape:=Rectangle", "Change shape of 1 pad");
    row("pad[2]", "Drill:=0.7", "Change drill of 1 pad");
    row("pad[0..1]", "Paste:=0.3", "Change paste clearance of 2 pads");
    row("pad[0..1]", "Paste:.check=on", "Switch paste of 2 pads");
    row("hole", "Diameter:=3", "Change size of 2 holes");
}

void TestWorkbench::commandsAreNamedInUsersWords()
{
    QFETCH(QStringList, edit);
    Test::ShownWorkbench workbench;
    workbench.Results(edit);
    QTEST(workbench.window->UndoStack().text(0), "text");
}

void TestWorkbench::namesOfKinds()
{
    QCOMPARE(Kinds::Counted(1, nullptr), QString("1 item"));
    QCOMPARE(Kinds::Counted(2, nullptr), QString("2 items"));
    QCOMPARE(Kinds::Summary({}), QString());
    Test::ShownWorkbench workbench(SampleBoardFile());
    for (const TKind& kind : Kinds::All()) {
        if (kind.isOfPages) {
            continue;
        }
        TItems items;
        for (TGraphicsItem* item : workbench.Items(kind.type)) {
            if (Kinds::Of(*item) == &kind) {
                items.append(item);
            }
        }
        QVERIFY2(!items.isEmpty(), kind.many);
        // One word for users and for the command line.
        QCOMPARE(Kinds::Word(*items.first()), QString(kind.one).remove(' '));
        QCOMPARE(Kinds::Summary(items),
                 QString("%1 %2").arg(items.size()).arg(items.size() == 1 ? kind.one : kind.many));
        QCOMPARE(Kinds::MakePropertySet(items, *workbench.window->Design()) != nullptr, kind.makeSet != nullptr);
    }
    QVERIFY(!Kinds::MakePropertySet({}, *workbench.window->Design()));
}

PROPERTIES_TEST(TestWorkbench)

#include "tst_workbench.moc"
