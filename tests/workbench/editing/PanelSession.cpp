#include "tests/workbench/editing/PanelSession.h"

#include "properties/TPropertySet.h"
#include "workbench/editing/Kinds.h"

#include <application/TUndoCommand.h>

#include <algorithm>

namespace Test {

namespace {

/** The items that the model knows how to edit, and the packages that some are part of. */
QList<TGraphicsItem*> ModelledItems(const TBoard& board)
{
    QList<TGraphicsItem*> items = board.Items();
    const auto isUnknown = [](const TGraphicsItem* item) {
        return item->type() != ItemType::Via && item->type() != ItemType::Pad && item->type() != ItemType::Hole
               && item->type() != ItemType::Package;
    };
    items.erase(std::remove_if(items.begin(), items.end(), isUnknown), items.end());
    return items;
}

} // namespace

PanelSession::PanelSession(std::unique_ptr<TDesign> edited, PanelWindow& shownIn)
    : design(std::move(edited)), items(ModelledItems(*design->Board())), model(*design->Board(), items), window(shownIn)
{}

PanelSession::~PanelSession()
{
    window.panel->SetPropertySet(nullptr);
}

std::vector<PanelCell> PanelSession::Cells() const
{
    const TPropertySet* set = window.panel->PropertySet();
    return set ? PanelCells(*set) : std::vector<PanelCell>();
}

void PanelSession::Show(const QVector<int>& selection)
{
    QList<TGraphicsItem*> selected;
    for (const int item : selection) {
        selected.append(items.at(item));
    }
    std::unique_ptr<TPropertySet> set = Kinds::MakePropertySet(selected, *design);
    if (set) {
        connect(set.get(), SIGNAL(sigCmd(TUndoCommand*)), this, SLOT(Push(TUndoCommand*)));
    }
    window.Show(set.release());
    model.Show(selection);
}

void PanelSession::Push(TUndoCommand* command)
{
    stack.push(command);
}

void PanelSession::Enter(int cell, double number)
{
    Cells().at(static_cast<std::size_t>(cell)).Enter(number);
    model.Enter(cell, number);
}

void PanelSession::Choose(int cell, int option)
{
    Cells().at(static_cast<std::size_t>(cell)).Choose(option);
    model.Choose(cell, option);
}

void PanelSession::Click(int cell)
{
    Cells().at(static_cast<std::size_t>(cell)).Click();
    model.Click(cell);
}

void PanelSession::Type(int cell, const QString& text)
{
    const int before = stack.index();
    Cells().at(static_cast<std::size_t>(cell)).Type(text);
    // The text is reported once at least, and again as often as the toolkit finds the edit finished.
    model.Type(cell, text, std::max(1, stack.index() - before));
}

void PanelSession::SetBypass(int item, bool on)
{
    items.at(item)->SetTFlag(TGraphicsItem::UndoBypass, on);
    model.SetBypass(item, on);
}

void PanelSession::Undo()
{
    stack.undo();
    model.Undo();
}

void PanelSession::Redo()
{
    stack.redo();
    model.Redo();
}

QString PanelSession::Disagreement() const
{
    const auto differ = [](const QString& what, const QString& actual, const QString& expected) {
        return QStringLiteral("%1 is\n  %2\nand should be\n  %3").arg(what, actual, expected);
    };
    for (int item = 0; item < items.size(); ++item) {
        const QString line = items[item]->StateLine();
        if (line != model.Line(item)) {
            return differ(QStringLiteral("item %1").arg(item), line, model.Line(item));
        }
    }
    if (ModelledItems(*design->Board()) != items) {
        return QStringLiteral("the board has other items");
    }
    if (stack.count() != model.StackCount() || stack.index() != model.StackIndex()) {
        const QString place = QStringLiteral("%1 of %2");
        return differ(QStringLiteral("the undo stack"), place.arg(stack.index()).arg(stack.count()),
                      place.arg(model.StackIndex()).arg(model.StackCount()));
    }
    const std::vector<PanelCell> cells = Cells();
    if (cells.size() != model.Cells().size()) {
        return differ(QStringLiteral("the number of editors"), QString::number(cells.size()),
                      QString::number(model.Cells().size()));
    }
    for (std::size_t cell = 0; cell < cells.size(); ++cell) {
        if (cells[cell].Describe() != model.Cells()[cell].Describe()) {
            return differ(QStringLiteral("an editor"), cells[cell].Describe(), model.Cells()[cell].Describe());
        }
    }
    return {};
}

} // namespace Test
