#include "workbench/editing/TPropertyEditing.h"

#include "properties/commands/CommandKind.h"
#include "properties/rows/TAbstractProperty.h"
#include "properties/TPropertySet.h"
#include "properties/TPropertyWidget.h"
#include "workbench/editing/Kinds.h"
#include "workbench/editing/TSelection.h"

#include <application/TUndoCommand.h>

#include <QApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QUndoStack>

#include <algorithm>

TPropertyEditing::TPropertyEditing(TPropertyWidget& propertyPanel, TSelection& editedSelection, QUndoStack& stack)
    : panel(propertyPanel), selection(editedSelection), undoStack(stack)
{
    connect(&selection, &TSelection::sigChanged, this, &TPropertyEditing::ShowSelection);
    connect(&undoStack, &QUndoStack::indexChanged, this, &TPropertyEditing::slotIndexChanged);
}

void TPropertyEditing::SetDesign(TDesign* newDesign)
{
    design = newDesign;
    panel.SetPropertySet(nullptr);
    emit sigSetShown();
}

void TPropertyEditing::ShowSelection()
{
    if (!design) {
        return;
    }
    const QString focused = FocusedLabel();
    std::unique_ptr<TPropertySet> set = Kinds::MakePropertySet(selection.Items(), *design);
    if (set) {
        connect(set.get(), &TPropertySet::sigCmd, this, &TPropertyEditing::slotCmd);
    }
    panel.SetPropertySet(set.release());
    FocusRow(focused);
    emit sigSetShown();
}

void TPropertyEditing::ForwardKey(QKeyEvent* event)
{
    if (TPropertySet* set = panel.PropertySet()) {
        event->ignore();
        set->KeyPressEvent(event);
        if (event->isAccepted()) {
            ShowSelection(); // The rows show the former values.
        }
    }
}

void TPropertyEditing::Name(TUndoCommand& command) const
{
    const TKind* kind = Kinds::OfFirst(selection.Items());
    const auto edited = std::count_if(selection.Items().cbegin(), selection.Items().cend(),
                                      [kind](const TGraphicsItem* item) { return !kind || kind->Holds(*item); });
    command.setText(CommandKind::Phrase(command, Kinds::Counted(static_cast<int>(edited), kind)));
}

void TPropertyEditing::Push(std::unique_ptr<TUndoCommand> command)
{
    Name(*command);
    undoStack.push(command.release());
}

void TPropertyEditing::slotCmd(TUndoCommand* command)
{
    Name(*command);
    // The rows already show what this command writes.
    const QScopedValueRollback<bool> pushing(isPushing, true);
    undoStack.push(command);
}

void TPropertyEditing::slotIndexChanged()
{
    if (!isPushing) {
        ShowSelection();
    }
}

QString TPropertyEditing::FocusedLabel() const
{
    const QWidget* focus = QApplication::focusWidget();
    if (!focus || !panel.PropertySet() || !panel.isAncestorOf(focus)) {
        return {};
    }
    const QList<TAbstractProperty*> rows = panel.PropertySet()->Properties();
    const auto row = std::find_if(rows.cbegin(), rows.cend(), [focus](const TAbstractProperty* candidate) {
        return candidate->Editor() && (candidate->Editor() == focus || candidate->Editor()->isAncestorOf(focus));
    });
    return row == rows.cend() ? QString() : (*row)->text(TAbstractProperty::labelColumn);
}

void TPropertyEditing::FocusRow(const QString& label) const
{
    if (label.isEmpty() || !panel.PropertySet()) {
        return;
    }
    for (const TAbstractProperty* row : panel.PropertySet()->Properties()) {
        if (row->text(TAbstractProperty::labelColumn) == label && row->Editor()) {
            row->Editor()->setFocus(Qt::OtherFocusReason); // A focus handler may show other rows.
            return;
        }
    }
}
