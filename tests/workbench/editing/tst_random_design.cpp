#include "properties/commands/TCmdProjectTree.h"
#include "properties/commands/TCmdText.h"
#include "tests/support/LineDifferences.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/RandomCases.h"
#include "tests/support/TestProgram.h"
#include "tests/workbench/support/PanelCells.h"
#include "workbench/design/LoadDesign.h"
#include "workbench/design/TDesign.h"
#include "workbench/editing/DesignActions.h"
#include "workbench/editing/Kinds.h"
#include "workbench/importer/ProjectImporter.h"

#include <application/TUndoCommand.h>

#include <QGraphicsView>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QtTest>
#include <QUndoStack>

#include <algorithm>
#include <ostream>
#include <vector>

namespace {

using Items = QList<TGraphicsItem*>;

/** What is done next. The numbers are taken modulo what there is, so that every step can be done and dropped. */
struct Step
{
    int action;
    int what;
    int value;
};

enum Action : int { Select, Undo, Redo, Edit, Act, Key };

constexpr Action actions[] = {Edit, Select, Undo, Edit, Redo, Act, Select, Edit, Undo, Key};

Action ActionOf(const Step& step)
{
    return actions[static_cast<std::size_t>(step.action) % std::size(actions)];
}

void showValue(const Step& step, std::ostream& stream)
{
    constexpr const char* names[] = {"Select", "Undo", "Redo", "Edit", "Act", "Key"};
    stream << names[ActionOf(step)] << '(' << step.what << ", " << step.value << ')';
}

/** What by intention cannot be undone at all, or not to the last digit; it has tests of its own. */
bool LeavesNoExactStep(const QString& kind, const QString& cell)
{
    static const QSet<QString> exceptions{
        "package Lock:1",          // written at once
        "package Lock:2",          // written at once
        "part Lock:1",             // written at once
        "part Lock:2",             // written at once
        "bus Name",                // written at once
        "package Side:",           // shows and hides texts as the board's switches say
        "text Line width:",        // written at once
        "tag Line width:",         // written at once
        "pad Size (W x H):width",  // a locked height follows, and comes back as the width
        "pad Size (W x H):height", // comes back as the width
        "pad Shape:",              // may lock the height
    };
    return exceptions.contains(kind + ' ' + cell);
}

Items ItemsOf(const TDesign& design)
{
    Items items;
    for (const TDocument& document : design.Documents()) {
        items += design.ItemsOf(document);
    }
    return items;
}

/** Gives texts values that a command brings back as they were. */
void MakeTextsExact(const TDesign& design)
{
    QList<TGraphicsTextItem*> texts;
    for (TGraphicsItem* item : ItemsOf(design)) {
        if (auto* text = dynamic_cast<TGraphicsTextItem*>(item)) {
            texts.append(text);
        }
    }
    TCmdTextFontSize size(texts, 10);
    TCmdTextAngle angle(texts, 0);
    TCmdTextBold bold(texts, true);
    TCmdTextItalic italic(texts, true);
    for (TUndoCommand* command : std::initializer_list<TUndoCommand*>{&size, &angle, &bold, &italic}) {
        command->redo();
        command->undo();
    }
}

/** A design that is edited step by step, with the dump that belongs to each state of its undo stack. */
class Run : public QObject
{
    Q_OBJECT

public:
    Run(const QString& file, Test::PanelWindow& shownIn, QSet<QString>& usedEditors)
        : design(ImportDesign(file)), window(shownIn), used(usedEditors)
    {
        view.setScene(design.Board()->Scene());
        design.Board()->SetView(&view);
        MakeTextsExact(design);
        for (const TGraphicsItem* item : design.Board()->Items()) {
            opened.insert(item);
        }
        dumps.append(Dump());
    }
    ~Run() override { window.panel->SetPropertySet(nullptr); }

    void Do(const Step& step)
    {
        switch (ActionOf(step)) {
        case Select: Pick(step); break;
        case Undo: Move(stack.index() - 1, &QUndoStack::undo); break;
        case Redo: Move(stack.index(), &QUndoStack::redo); break;
        case Edit: EditCell(step); break;
        case Act: DoAction(step); break;
        case Key: Press(step); break;
        }
        if (ActionOf(step) != Edit && ActionOf(step) != Key) {
            Show();
        }
    }

    /** Where the design is not what it was in this state of the undo stack; empty if it is. */
    QString Disagreement()
    {
        const QString dump = Dump();
        if (stack.index() >= dumps.size()) {
            dumps.append(dump);
        }
        return Test::LineDifferences(dump, dumps[stack.index()]);
    }

public slots:
    void Push(TUndoCommand* command)
    {
        while (dumps.size() > stack.index() + 1) {
            dumps.removeLast();
        }
        stack.push(command);
        Follow(command);
        dumps.append(Dump());
    }

private:
    void Move(int commandIndex, void (QUndoStack::*move)())
    {
        const QUndoCommand* command = stack.command(commandIndex);
        (stack.*move)();
        Follow(command);
    }

    /** Opens what a command asks for, as an application does. */
    void Follow(const QUndoCommand* command)
    {
        if (const auto* opening = dynamic_cast<const TCmdPartOpen*>(command)) {
            design.OpenSymbol(opening->PartToOpen());
        }
    }

    /**
     * The design's dump without the colours of what commands made: a new via or wire shows the colour of its net only
     * from the next change of that colour on, and undoing the change gives it the net's former one.
     */
    QString Dump() const
    {
        static const QRegularExpression color(QStringLiteral(" color=\\S+"));
        QStringList lines = design.Dump().split(QLatin1Char('\n'));
        const Items items = design.Board()->Items(); // Each is a line, and these are the first ones.
        for (int i = 0; i < items.size(); ++i) {
            if (!opened.contains(items[i])) {
                lines[i].remove(color);
            }
        }
        return lines.join(QLatin1Char('\n'));
    }

    void Pick(const Step& step)
    {
        QVector<const TKind*> editable;
        for (const TKind& kind : Kinds::All()) {
            if (kind.makeSet && !OfKind(&kind).isEmpty()) {
                editable.append(&kind);
            }
        }
        const TKind* kind = editable[step.what % editable.size()];
        Items ofKind = OfKind(kind);
        const TItemScene* scene = ofKind[step.value % ofKind.size()]->Owner(); // One document's.
        ofKind.erase(std::remove_if(ofKind.begin(), ofKind.end(),
                                    [scene](const TGraphicsItem* item) { return item->Owner() != scene; }),
                     ofKind.end());
        const int count = step.value % 7 == 6 ? ofKind.size() : step.value % 7 + 1;
        Items picked;
        for (int i = 0; i < std::min(count, ofKind.size()); ++i) {
            picked.append(ofKind[(step.value + i) % ofKind.size()]);
        }
        SelectOnly(picked);
    }

    Items OfKind(const TKind* kind) const
    {
        Items items = ItemsOf(design);
        items.erase(std::remove_if(items.begin(), items.end(),
                                   [kind](const TGraphicsItem* item) { return Kinds::Of(*item) != kind; }),
                    items.end());
        return items;
    }

    void SelectOnly(const Items& items)
    {
        for (const TDocument& document : design.Documents()) {
            document.scene->clearSelection();
        }
        for (TGraphicsItem* item : items) {
            item->setSelected(true);
        }
    }

    Items Selected() const
    {
        Items items = ItemsOf(design);
        items.erase(
            std::remove_if(items.begin(), items.end(), [](const TGraphicsItem* item) { return !item->isSelected(); }),
            items.end());
        return items;
    }

    void Show()
    {
        std::unique_ptr<TPropertySet> set = Kinds::MakePropertySet(Selected(), design);
        if (set) {
            connect(set.get(), SIGNAL(sigCmd(TUndoCommand*)), this, SLOT(Push(TUndoCommand*)));
        }
        window.Show(set.release());
    }

    void EditCell(const Step& step)
    {
        const TPropertySet* set = window.panel->PropertySet();
        const Items selected = Selected();
        if (!set || selected.isEmpty()) {
            return;
        }
        const QString kind = Kinds::Word(*selected.first());
        std::vector<Test::PanelCell> cells;
        for (const Test::PanelCell& cell : Test::PanelCells(*set)) {
            if (cell.CanBeEdited() && !LeavesNoExactStep(kind, cell.Name())) {
                cells.push_back(cell);
            }
        }
        if (!cells.empty()) {
            const Test::PanelCell& cell = cells[static_cast<std::size_t>(step.what) % cells.size()];
            used.insert(kind + ' ' + cell.Name());
            cell.GiveValue(step.value);
        }
    }

    /** Does something to the project tree, or acts on what is selected, or else on an item that suits the action. */
    void DoAction(const Step& step)
    {
        constexpr int treeActions = 4;
        const int count = DesignActions::All().size() + (design.Tree().Pages().isEmpty() ? 0 : treeActions);
        const int which = step.what % count;
        if (which >= DesignActions::All().size()) {
            DoInTree(which - DesignActions::All().size(), step.value);
            return;
        }
        const TDesignAction& action = DesignActions::All()[which];
        if (ActOn(action, step, Selected())) {
            return;
        }
        const QStringList words{"package", "part", "wire", "busentry", "nettie", "nettiesymbol", "rectangle"};
        for (int i = 0; i < words.size(); ++i) {
            const QString& word = words[(step.value + i) % words.size()]; // Each has its turn to be the first.
            Items suitable = ItemsOf(design);
            suitable.erase(std::remove_if(suitable.begin(), suitable.end(),
                                          [&word](const TGraphicsItem* item) {
                                              return item->parentItem() || Kinds::Word(*item) != word;
                                          }),
                           suitable.end());
            if (!suitable.isEmpty() && ActOn(action, step, {suitable[step.value % suitable.size()]})) {
                return;
            }
        }
    }

    void DoInTree(int action, int value)
    {
        const TProjectTree& tree = design.Tree();
        TSchPage* page = tree.Pages()[value % tree.Pages().size()];
        TPart* part = tree.Parts()[value % tree.Parts().size()];
        const QString name = QStringLiteral("name %1").arg(value);
        const auto number = page->Number();
        used.insert(QStringLiteral("tree %1").arg(action));
        switch (action) {
        case 0: Push(new TCmdPartRename(part, name)); break;
        case 1: Push(new TCmdPageRename(page, name)); break;
        case 2: Push(new TCmdPageOpen(1, number)); break;
        default: Push(new TCmdPartOpen(design.OpenPart(), value % 5 == 0 ? nullptr : part)); break;
        }
    }

    bool ActOn(const TDesignAction& action, const Step& step, const Items& items)
    {
        const QPointF middle = items.isEmpty() ? QPointF() : items.first()->sceneBoundingRect().center();
        const QPointF point = action.asks == TDesignAction::Asks::Point ? middle : QPointF(step.value + 1, 7);
        const QString text = action.asks == TDesignAction::Asks::Level
                                 ? DesignActions::Levels()[step.value % DesignActions::Levels().size()]
                                 : QStringLiteral("text %1").arg(step.value);
        SelectOnly(items);
        auto command = action.make({design, items, text, point});
        if (command) {
            used.insert(QString::fromLatin1(action.option));
            Push(command.release());
            return true;
        }
        return false;
    }

    void Press(const Step& step)
    {
        TPropertySet* set = window.panel->PropertySet();
        const Items selected = Selected();
        if (!set || selected.isEmpty() || selected.first()->type() == ItemType::Package) {
            return; // A package's texts are shown or hidden on its way to the other side.
        }
        const int key = step.value % 11 == 10 ? Qt::Key_O : Qt::Key_0 + step.value % 11;
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        set->KeyPressEvent(&event);
    }

    QGraphicsView view;
    TDesign design;
    QUndoStack stack;                  // Its commands point to items.
    QSet<const TGraphicsItem*> opened; ///< Those of the board that no command has made. Compared only.
    QStringList dumps;                 ///< By the index of the undo stack.
    Test::PanelWindow& window;
    QSet<QString>& used;
};

/** Of a case; half as many on average. */
rc::Gen<std::vector<Step>> Steps()
{
    return Test::UpTo(60, rc::gen::build<Step>(rc::gen::set(&Step::action, rc::gen::inRange(0, 100)),
                                               rc::gen::set(&Step::what, rc::gen::inRange(0, 1000)),
                                               rc::gen::set(&Step::value, rc::gen::inRange(0, 2500))));
}

} // namespace

class TestRandomDesign : public QObject
{
    Q_OBJECT

private slots:
    void sampleHasEveryKind()
    {
        const TDesign design(ImportDesign(SampleProjectFile()));
        const Items items = ItemsOf(design);
        for (const TKind& kind : Kinds::All()) {
            QVERIFY2(std::any_of(items.cbegin(), items.cend(),
                                 [&kind](const TGraphicsItem* item) { return Kinds::Of(*item) == &kind; }),
                     kind.many);
        }
    }

    void everyStateOfTheStackHasOneDump()
    {
        const bool isUsual = Test::TriesUsualCases(80);
        Test::PanelWindow window;
        QSet<QString> used;
        const auto undoAndRedoAreExact = [&window, &used] {
            const std::vector<Step> steps = *Steps();
            const bool isBoardAlone = *rc::gen::inRange(0, 4) == 0; // Its packages can be renamed.
            Run run(isBoardAlone ? SampleBoardFile() : SampleProjectFile(), window, used);
            for (const Step& step : steps) {
                run.Do(step);
                const QString disagreement = run.Disagreement();
                if (!disagreement.isEmpty()) {
                    showValue(step, RC_LOG() << "after ");
                    RC_LOG() << '\n' << disagreement.toStdString();
                    RC_FAIL("the design is not what it was");
                }
            }
        };
        QVERIFY(rc::check("undo and redo bring back every state of the design", undoAndRedoAreExact));
        if (isUsual) {
            QStringList editors(used.cbegin(), used.cend());
            editors.sort();
            qInfo("%d editors and actions: %s", editors.size(), qPrintable(editors.join(QStringLiteral(", "))));
            for (const TDesignAction& action : DesignActions::All()) {
                QVERIFY2(used.contains(QString::fromLatin1(action.option)), action.option);
            }
        }
    }
};

PROPERTIES_TEST(TestRandomDesign)
#include "tst_random_design.moc"
