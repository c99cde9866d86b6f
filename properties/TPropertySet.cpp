#include "properties/TPropertySet.h"

#include "properties/rows/TAbstractProperty.h"
#include "properties/rows/TWidgetHold.h"
#include "properties/TPropertyWidget.h"
#include "properties/TTreeWidget.h"

#include <application/TUndoCommand.h>

#include <QMetaMethod>

#include <deque>

TPropertySet::TPropertySet(const QString& setName) : name(setName) {}

TPropertySet::~TPropertySet()
{
    if (panel) {
        panel->Forget(*this);
    }
    // Silence all rows first: otherwise an editor that loses the focus with its row would report half-typed text.
    for (const QPointer<TAbstractProperty>& row : qAsConst(owned)) {
        if (row) {
            row->blockSignals(true);
        }
    }
    HideEditors();
    const QList<QPointer<TAbstractProperty>> rows = owned;
    for (const QPointer<TAbstractProperty>& row : rows) {
        delete row;
    }
}

// Before the rows are deleted, while the tree does not use them: the focus moves from editor to editor and out of the
// tree, and a handler of that may do anything to rows and tree.
void TPropertySet::HideEditors() const
{
    const QList<TAbstractProperty*> shown = Properties();
    QList<QPointer<QWidget>> editors;
    std::deque<TWidgetHold> holds;
    for (const TAbstractProperty* row : shown) {
        editors.append(row->Editor());
        holds.emplace_back(row->Editor());
    }
    for (const QPointer<QWidget>& editor : qAsConst(editors)) {
        if (editor && editor->parent()) {
            editor->hide();
        }
    }
}

void TPropertySet::KeyPressEvent(QKeyEvent*) {}

void TPropertySet::Own(TAbstractProperty* row)
{
    owned.append(row);
}

void TPropertySet::AddProperty(TAbstractProperty* property)
{
    if (!property || properties.contains(property)) {
        return;
    }
    properties.append(property);
    if (!owned.contains(property)) {
        Own(property);
    }
}

void TPropertySet::AddProperties(std::initializer_list<TAbstractProperty*> rows)
{
    for (TAbstractProperty* row : rows) {
        AddProperty(row);
    }
}

QList<TAbstractProperty*> TPropertySet::Properties() const
{
    QList<TAbstractProperty*> rows;
    for (const QPointer<TAbstractProperty>& row : properties) {
        if (row) {
            rows.append(row);
        }
    }
    return rows;
}

void TPropertySet::AddToPropertyWidget(TPropertyWidget* newPanel)
{
    if (!newPanel || panel) {
        return;
    }
    panel = newPanel;
    const QPointer<TPropertySet> self(this);
    newPanel->SetTitle(name.isNull() ? QLatin1String("") : name);
    if (!self || !panel) { // A handler of the title change may show another set.
        return;
    }
    TakeUnshownEditors();

    // All items first, then the editors: each inserted item makes the tree measure every editor again.
    TTreeWidget* tree = newPanel->Tree();
    const QList<TAbstractProperty*> rows = Properties();
    QList<QTreeWidgetItem*> items;
    for (TAbstractProperty* row : rows) {
        items.append(row);
    }
    tree->addTopLevelItems(items);

    int rowHeight = 0; // Unknown until the first row that has an editor.
    for (TAbstractProperty* row : rows) {
        if (!row->Editor()) {
            continue;
        }
        if (rowHeight == 0) {
            rowHeight = tree->visualItemRect(row).height();
        }
        PlaceEditor(*row, rowHeight);
    }
    tree->resizeColumnToContents(TAbstractProperty::labelColumn);
}

void TPropertySet::TakeUnshownEditors()
{
    for (const QPointer<TAbstractProperty>& row : qAsConst(owned)) {
        if (row && row->Editor() && !row->Editor()->parent() && !properties.contains(row)) {
            row->KeepEditorIn(panel);
        }
    }
}

void TPropertySet::PlaceEditor(TAbstractProperty& row, int height) const
{
    row.Editor()->setFixedHeight(height);
    row.setFlags(Qt::ItemIsEnabled);
    panel->Tree()->setItemWidget(&row, TAbstractProperty::editorColumn, row.Editor());
    row.SetVisible(!row.IsHidden());
}

void TPropertySet::Emit(TUndoCommand* command)
{
    if (!signalsBlocked() && isSignalConnected(QMetaMethod::fromSignal(&TPropertySet::sigCmd))) {
        emit sigCmd(command);
    } else {
        delete command;
    }
}
