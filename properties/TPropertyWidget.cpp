#include "properties/TPropertyWidget.h"

#include "properties/rows/TAbstractProperty.h"
#include "properties/TPropertySet.h"
#include "properties/TTreeWidget.h"

#include <QHeaderView>
#include <QVBoxLayout>

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
    delete current;
}

void TPropertyWidget::SetPropertySet(TPropertySet* set)
{
    const QPointer<TPropertySet> next(set);
    delete current;
    current = next;
    SetTitle(QString());
    if (current) {
        current->AddToPropertyWidget(this);
    }
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
    QWidget* editor = item ? tree->itemWidget(item, TAbstractProperty::editorColumn) : nullptr;
    if (editor) {
        editor->setFocus(Qt::OtherFocusReason);
    }
}
