#include "tests/workbench/editing/EditingSession.h"

#include "properties/commands/CommandKind.h"
#include "properties/commands/TCmdProjectTree.h"
#include "properties/TPropertySet.h"
#include "tests/support/RowText.h"
#include "tests/workbench/editing/PanelRules.h"
#include "workbench/editing/Kinds.h"

#include <application/TUndoCommand.h>

#include <algorithm>

namespace Test {

namespace {

/** Rows without what their lists offer: a value that is shown and not offered stays in the list of a row. */
QStringList Values(QStringList rows)
{
    for (QString& row : rows) {
        const int value = row.lastIndexOf(QLatin1String(" = "));
        const int label = row.indexOf(QLatin1Char(':'));
        const bool isList = row.contains(QLatin1String(", ")) || row.startsWith(QLatin1String("TPropertyColor"));
        row = isList && label >= 0 && value > label ? row.left(label + 1) + row.mid(value) : row;
        row = row.startsWith(QLatin1String("TPropertyColor")) ? row.toLower() : row; // Of the palette or not.
    }
    return rows;
}

} // namespace

EditingSession::EditingSession(TImportResult result, PanelWindow& shownIn, QSet<QString>& usedCells)
    : design(std::move(result)), window(shownIn), spare(nullptr), used(usedCells), now(StatesOf(design)), opened(now)
{
    view.setScene(design.Board()->Scene());
    design.Board()->SetView(&view);
}

EditingSession::~EditingSession()
{
    window.panel->SetPropertySet(nullptr);
    spare.SetPropertySet(nullptr);
}

void EditingSession::Note(const QString& found)
{
    if (problem.isEmpty()) {
        problem = found;
    }
}

void EditingSession::Select(const QList<TGraphicsItem*>& items)
{
    selection = items;
    ShowNewSet();
}

/** For the selected items that are in the design still. */
void EditingSession::ShowNewSet()
{
    const auto isGone = [this](const TGraphicsItem* item) { return !now.contains(item); };
    selection.erase(std::remove_if(selection.begin(), selection.end(), isGone), selection.end());
    std::unique_ptr<TPropertySet> set = Kinds::MakePropertySet(selection, design);
    if (set) {
        connect(set.get(), SIGNAL(sigCmd(TUndoCommand*)), this, SLOT(Push(TUndoCommand*)));
    }
    window.Show(set.release());
    rowsAreNew = true;
    stale.clear();
}

/** What the shown set edits. */
QList<TGraphicsItem*> EditingSession::Taken() const
{
    QList<TGraphicsItem*> taken;
    std::copy_if(selection.cbegin(), selection.cend(), std::back_inserter(taken),
                 [this](const TGraphicsItem* item) { return PanelRules::Takes(*selection.first(), *item); });
    return taken;
}

void EditingSession::Push(TUndoCommand* command)
{
    QList<TGraphicsItem*> given = Taken();
    if (given.first()->type() == ItemType::Hole) { // Each one's own flag decides, and the others are written by now.
        const auto isWritten = [](const TGraphicsItem* hole) { return hole->HasTFlag(TGraphicsItem::UndoBypass); };
        given.erase(std::remove_if(given.begin(), given.end(), isWritten), given.end());
        const ItemStates from = now;
        now = StatesOf(design);
        HoldToSelected(from, QStringLiteral("hole Diameter:"));
    }
    Hold(HeldCommand(CommandKind::Key(*command), given, now), command);
}

void EditingSession::PushLaw(const CommandLaw& law, int value, const QList<TGraphicsItem*>& items)
{
    HeldCommand held(law, value, items, now);
    Hold(std::move(held), law.make(items, value).release());
    Written();
}

void EditingSession::Hold(HeldCommand held, TUndoCommand* command)
{
    commands.erase(commands.begin() + stack.index(), commands.end());
    stack.push(command);
    const ItemStates then = StatesOf(design);
    Note(held.Redone(now, then, inexact));
    commands.push_back(std::move(held));
    now = then;
}

/** After something else than the panel has written. */
void EditingSession::Written()
{
    rowsAreNew = false;
    if (std::any_of(selection.cbegin(), selection.cend(),
                    [this](const TGraphicsItem* item) { return !now.contains(item); })) {
        ShowNewSet();
    }
}

void EditingSession::Undo()
{
    if (stack.canUndo()) {
        stack.undo();
        const ItemStates then = StatesOf(design);
        Note(commands[static_cast<std::size_t>(stack.index())].Undone(now, then, inexact));
        now = then;
        Written();
    }
}

void EditingSession::Redo()
{
    if (stack.canRedo()) {
        stack.redo();
        const ItemStates then = StatesOf(design);
        Note(commands[static_cast<std::size_t>(stack.index() - 1)].Redone(now, then, inexact));
        now = then;
        Written();
    }
}

void EditingSession::UndoAndRedoAll()
{
    for (TGraphicsItem* item : Items()) {
        if (bypassing.contains(item)) {
            item->SetTFlag(TGraphicsItem::UndoBypass, false);
        }
    }
    bypassing.clear();
    now = StatesOf(design);
    const ItemStates last = now;
    const int index = stack.index();
    while (stack.canUndo()) {
        Undo();
    }
    Note(StateDifferences(now, opened, inexact));
    while (stack.index() < index) {
        Redo();
    }
    Note(StateDifferences(now, last, inexact));
}

void EditingSession::ToggleBypass(int which)
{
    const QList<TGraphicsItem*> items = Taken();
    if (items.isEmpty()) {
        return;
    }
    // Mostly the first one's flag, on which it depends how all are edited.
    TGraphicsItem* item = items[which % 4 == 0 ? which / 4 % items.size() : 0];
    const bool on = !item->HasTFlag(TGraphicsItem::UndoBypass);
    item->SetTFlag(TGraphicsItem::UndoBypass, on);
    on ? void(bypassing.insert(item)) : void(bypassing.remove(item));
    now = StatesOf(design);
    ShowNewSet(); // A set may have other rows where undo is bypassed.
}

std::vector<PanelCell> EditingSession::EditableCells() const
{
    const TPropertySet* set = window.panel->PropertySet();
    std::vector<PanelCell> cells = set ? PanelCells(*set) : std::vector<PanelCell>();
    cells.erase(std::remove_if(cells.begin(), cells.end(), [](const PanelCell& cell) { return !cell.CanBeEdited(); }),
                cells.end());
    return cells;
}

void EditingSession::Edit(int which, int number)
{
    const std::vector<PanelCell> cells = EditableCells();
    if (cells.empty()) {
        return;
    }
    const QString kind = Kinds::Word(*selection.first()) + QLatin1Char(' ');
    const bool direct = selection.first()->HasTFlag(TGraphicsItem::UndoBypass);
    const QString mark = direct ? QStringLiteral(" direct") : QString();
    const QString name = cells[static_cast<std::size_t>(which) % cells.size()].Name();
    used.insert(kind + name + mark);
    if (direct) {
        EditDirectly(name, number);
    } else {
        EditCell(name, number);
    }
}

void EditingSession::GiveValue(const QString& name, int number)
{
    const std::vector<PanelCell> cells = EditableCells();
    const auto cell =
        std::find_if(cells.cbegin(), cells.cend(), [&name](const PanelCell& other) { return other.Name() == name; });
    if (cell != cells.cend()) {
        cell->GiveValue(number);
    }
}

/** An edit with an undo step for what it writes. */
void EditingSession::EditCell(const QString& name, int number)
{
    const QString cell = Kinds::Word(*selection.first()) + QLatin1Char(' ') + name;
    const int index = stack.index();
    GiveValue(name, number);
    const ItemStates then = StatesOf(design);
    if (then != now) {
        const ItemStates from = now;
        now = then;
        const bool isAllowed = PanelRules::IsWrittenAtOnce(cell) || bypassing.size() > 0;
        Note(isAllowed ? QString() : cell + QStringLiteral(" writes without a command"));
        HoldToSelected(from, cell);
    }
    stale += PanelRules::RowsThatDiffer(cell);
    if (!Skipped(index).isEmpty()) {
        stale.append(name.left(name.lastIndexOf(QLatin1Char(':')) + 1)); // It shows the new value all the same.
    }
    CompareRows(cell);
}

/** What the set edits and a command since that place of the stack does not. */
QList<TGraphicsItem*> EditingSession::Skipped(int index) const
{
    QList<TGraphicsItem*> skipped;
    for (TGraphicsItem* item : Taken()) {
        const auto doesNotKeep = [item](const HeldCommand& command) { return !command.Keeps(item); };
        if (std::any_of(commands.cbegin() + index, commands.cbegin() + stack.index(), doesNotKeep)) {
            skipped.append(item);
        }
    }
    return skipped;
}

/** An edit where undo is bypassed comes to the same state as the command for the same edit, which is done first and
 *  undone. */
void EditingSession::EditDirectly(const QString& name, int number)
{
    const QString cell = Kinds::Word(*selection.first()) + QLatin1Char(' ') + name;
    QList<TGraphicsItem*> flagged = Taken();
    flagged.erase(std::remove_if(flagged.begin(), flagged.end(),
                                 [](const TGraphicsItem* item) { return !item->HasTFlag(TGraphicsItem::UndoBypass); }),
                  flagged.end());
    const auto setBypass = [&](bool on) {
        for (TGraphicsItem* item : qAsConst(flagged)) {
            item->SetTFlag(TGraphicsItem::UndoBypass, on);
            now[item] = item->StateLine();
        }
    };
    setBypass(false);
    ShowNewSet();
    const ItemStates from = now;
    const int index = stack.index();
    EditCell(name, number);
    ItemStates commanded = now;
    const QList<TGraphicsItem*> skipped = Skipped(index);
    while (stack.index() > index) {
        Undo();
    }
    const bool isSameStart = now == from;

    setBypass(true);
    ShowNewSet();
    const ItemStates start = now;
    GiveValue(name, number);
    const bool isCommand = stack.index() > index;
    if (isCommand && !PanelRules::IsAlwaysACommand(cell) && selection.first()->type() != ItemType::Hole) {
        Note(cell + QStringLiteral(" makes a command though undo is bypassed"));
    }
    now = StatesOf(design);
    if (isSameStart && !PanelRules::DiffersDirectly(cell)) {
        ItemStates written = now;
        for (const TGraphicsItem* item : qAsConst(flagged)) {
            written[item] = WithoutBypass(written[item]);
        }
        for (const TGraphicsItem* item : skipped) {
            commanded[item] = written[item];
        }
        const QString difference = StateDifferences(written, commanded);
        Note(difference.isEmpty() ? QString() : cell + QStringLiteral(" is written directly otherwise\n") + difference);
    }
    if (!isCommand) {
        HoldToSelected(start, cell);
    }
    stale += PanelRules::RowsThatDiffer(cell);
    CompareRows(cell);
}

/** What was written without a command is the items that the set edits, and what is part of them. */
void EditingSession::HoldToSelected(const ItemStates& from, const QString& cell)
{
    const QList<TGraphicsItem*> items = Taken();
    ItemFields written = ChangedFields(from, now);
    for (auto fields = written.begin(); fields != written.end(); ++fields) {
        inexact[fields.key()].unite(*fields);
    }
    for (auto fields = written.cbegin(); fields != written.cend(); ++fields) {
        const auto isPartOf = [item = fields.key()](const TGraphicsItem* whole) {
            return item == whole || whole->isAncestorOf(item);
        };
        const QSet<QString> links{"first", "last", "wires", "net"};
        if (std::none_of(items.cbegin(), items.cend(), isPartOf) && !(*fields - links).isEmpty()) {
            Note(cell + QStringLiteral(" writes to another item: ") + now[fields.key()]);
        }
    }
}

/** After an edit the rows show what those of a new set show. */
void EditingSession::CompareRows(const QString& cell)
{
    if (!rowsAreNew || !window.panel->PropertySet()) {
        return;
    }
    spare.SetPropertySet(Kinds::MakePropertySet(selection, design).release());
    QStringList shown = Values(RowTexts(window.panel->PropertySet()));
    QStringList made = spare.PropertySet() ? Values(RowTexts(spare.PropertySet())) : QStringList();
    for (const QString& label : qAsConst(stale)) {
        const auto isOfLabel = [&label](const QString& row) {
            return row.section(QLatin1Char(' '), 1).startsWith(label, Qt::CaseInsensitive);
        };
        shown.erase(std::remove_if(shown.begin(), shown.end(), isOfLabel), shown.end());
        made.erase(std::remove_if(made.begin(), made.end(), isOfLabel), made.end());
    }
    if (shown != made) {
        Note(cell + QStringLiteral(": the rows are\n  ") + shown.join("\n  ") + "\nand a new set shows\n  "
             + made.join("\n  "));
    }
    spare.SetPropertySet(nullptr);
}

} // namespace Test
