#include "TPanelEditing.h"

#include <properties/rows/TAbstractProperty.h>
#include <properties/TPropertySet.h>
#include <properties/TPropertyWidget.h>

#include <application/TUndoCommand.h>

#include <QApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QUndoStack>

TPanelEditing::TPanelEditing(TPropertyWidget& ofPanel, QUndoStack& stack, TMakeSet make)
    : panel(ofPanel), undoStack(stack), makeSet(std::move(make))
{
    connect(&undoStack, &QUndoStack::indexChanged, this, &TPanelEditing::IndexChanged);
}

void TPanelEditing::ShowSelection()
{
    const QString focused = FocusedLabel();
    TPropertySet* set = makeSet();
    if (set) {
        connect(set, &TPropertySet::sigCmd, this, &TPanelEditing::Push);
    }
    panel.SetPropertySet(set);
    FocusRow(focused);
}

void TPanelEditing::Push(TUndoCommand* command)
{
    const QScopedValueRollback<bool> pushing(isPushing, true);
    undoStack.push(command);
}

void TPanelEditing::IndexChanged()
{
    if (!isPushing) { // The row that made the command shows its value already, and may have more to say.
        ShowSelection();
    }
}

void TPanelEditing::ForwardKey(QKeyEvent* event)
{
    if (TPropertySet* set = panel.PropertySet()) {
        event->ignore(); // It starts accepted.
        set->KeyPressEvent(event);
        if (event->isAccepted()) {
            ShowSelection();
        }
    }
}

QString TPanelEditing::FocusedLabel() const
{
    const QWidget* focus = QApplication::focusWidget();
    if (focus && panel.PropertySet()) {
        for (const TAbstractProperty* row : panel.PropertySet()->Properties()) {
            if (row->Editor() && (row->Editor() == focus || row->Editor()->isAncestorOf(focus))) {
                return row->text(TAbstractProperty::labelColumn);
            }
        }
    }
    return {};
}

void TPanelEditing::FocusRow(const QString& label) const
{
    if (label.isEmpty() || !panel.PropertySet()) {
        return;
    }
    for (const TAbstractProperty* row : panel.PropertySet()->Properties()) {
        if (row->Editor() && row->text(TAbstractProperty::labelColumn) == label) {
            row->Editor()->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
}
