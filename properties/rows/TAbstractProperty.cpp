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

void TAbstractProperty::AddPart(const QString& name, QWidget* widget)
{
    parts.append({name, widget});
}

QVector<TAbstractProperty::Part> TAbstractProperty::Parts() const
{
    QVector<Part> shown;
    const auto add = [&shown](const QString& name, QWidget* widget) {
        shown.append({name, widget, widget->property("readOnly").toBool()});
    };
    if (parts.isEmpty() && editor) {
        add(QString(), editor);
    }
    for (const NamedPart& part : parts) {
        if (part.widget && !part.widget->isHidden()) {
            add(part.name, part.widget);
        }
    }
    return shown;
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
