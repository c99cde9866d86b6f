#include "properties/rows/TAbstractProperty.h"

#include "properties/rows/TWidgetHold.h"

TAbstractProperty::TAbstractProperty(const QString& label, QObject* parent)
    : QObject(parent), QTreeWidgetItem(QTreeWidgetItem::Type)
{
    setData(labelColumn, Qt::DisplayRole, label);
}

TAbstractProperty::~TAbstractProperty()
{
    // An editor that loses the focus when its tree lets go of it must not speak through a row that is half gone.
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
        editor->hide(); // Or a holder that is not yet visible would show it with itself.
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
