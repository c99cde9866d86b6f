#include "properties/rows/TAbstractProperty.h"

#include "properties/rows/TWidgetHold.h"

TAbstractProperty::TAbstractProperty(const QString& label, QObject* parent)
    : QObject(parent), QTreeWidgetItem(QTreeWidgetItem::Type)
{
    setData(labelColumn, Qt::DisplayRole, label);
}

TAbstractProperty::~TAbstractProperty()
{
    // An editor that loses the focus when its tree releases it must not signal through a half-destroyed row.
    blockSignals(true);
    if (!editor) {
        return;
    }
    editor->disconnect(this);
    for (QWidget* part : editor->findChildren<QWidget*>()) {
        part->disconnect(this);
    }
    const bool isOwn = !editor->parent() || editor->parent() == editorHolder;
    if (!TWidgetHold::Rescue(editor) && isOwn) {
        delete editor;
    }
}

void TAbstractProperty::KeepEditorIn(QWidget* holder)
{
    if (editor) {
        editor->hide(); // Otherwise a holder that is shown later would show it too.
        editor->setParent(holder);
        editorHolder = holder;
    }
}

void TAbstractProperty::SetMixed(bool on, Value value)
{
    mixed = on ? mixed | value : mixed & ~static_cast<unsigned>(value);
}

void TAbstractProperty::Report(Value value, const std::function<void()>& emitSignals)
{
    const TWidgetHold hold(editor);
    SetMixed(false, value);
    emitSignals();
}

void TAbstractProperty::SetEnabled(bool on)
{
    setFlags(on ? Qt::ItemFlags(Qt::ItemIsEnabled) : Qt::ItemFlags(Qt::NoItemFlags));
    if (editor) {
        editor->setEnabled(on);
    }
}

void TAbstractProperty::SetVisible(bool on)
{
    hidden = !on;
    if (treeWidget()) {
        setHidden(hidden);
    }
}
