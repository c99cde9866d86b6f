#include "properties/rows/TAbstractProperty.h"

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
    if (!editor->parent()) {
        delete editor;
    }
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
