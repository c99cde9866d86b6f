#include "properties/TPropertyWidget.h"

#include "properties/rows/TAbstractProperty.h"
#include "properties/rows/TWidgetHold.h"
#include "properties/TPropertySet.h"
#include "properties/TTreeWidget.h"

#include <QHeaderView>
#include <QVBoxLayout>

#include <utility>

TPropertyWidget::TPropertyWidget(QWidget* parent) : QWidget(parent), tree(new TTreeWidget)
{
    tree->setAttribute(Qt::WA_MouseTracking, false);
    tree->setColumnHidden(0, true);
    tree->setColumnCount(3);
    tree->setHeaderHidden(true);
    connect(tree, SIGNAL(itemClicked(QTreeWidgetItem*, int)), this, SLOT(slotClickItem(QTreeWidgetItem*, int)));

    auto* layout = new QVBoxLayout;
    layout->addWidget(tree, 1);
    layout->setContentsMargins(0, 0, 0, 0);
    setLayout(layout);

    UpdateTranslate();
}

TPropertyWidget::~TPropertyWidget()
{
    if (tree) {
        TWidgetHold::Rescue(tree);
    }
    while (current) {
        delete std::exchange(current, {}).data();
    }
    if (tree) {
        tree->clear(); // Rows of a set whose destruction led here.
    }
}

void TPropertyWidget::SetPropertySet(TPropertySet* set)
{
    const QPointer<TPropertyWidget> self(this);
    const QPointer<TPropertySet> next(set);
    const int call = ++calls;
    delete std::exchange(current, {}).data();
    if (!self || call != calls) {
        if (!self || current != next) {
            delete next;
        }
        return;
    }
    current = next;
    SetTitle(QString());
    if (self && current && current == next) {
        current->AddToPropertyWidget(this);
    }
}

void TPropertyWidget::Forget(const TPropertySet& set)
{
    if (current == &set) {
        current.clear();
    }
}

TTreeWidget* TPropertyWidget::Tree() const
{
    return tree;
}

TPropertySet* TPropertyWidget::PropertySet() const
{
    return current;
}

void TPropertyWidget::UpdateTranslate()
{
    setWindowTitle(tr("Properties"));
}

void TPropertyWidget::SetTitle(const QString& setName)
{
    if (QWidget* holder = parentWidget()) {
        holder->setWindowTitle(setName.isNull() ? tr("Properties")
                                                : tr("Properties") + QStringLiteral(" - ") + setName);
    }
}

QSize TPropertyWidget::sizeHint() const
{
    return {220, 185};
}

void TPropertyWidget::slotClickItem(QTreeWidgetItem* item, int)
{
    QWidget* editor = item && tree ? tree->itemWidget(item, TAbstractProperty::editorColumn) : nullptr;
    if (editor) {
        // A handler of the focus may delete the panel, and panel and tree are still in use.
        const TWidgetHold treeHold(tree);
        const TWidgetHold editorHold(editor);
        editor->setFocus(Qt::OtherFocusReason);
    }
}
