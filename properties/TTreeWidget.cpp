#include "properties/TTreeWidget.h"

#include <QHash>
#include <QPainter>
#include <QStyledItemDelegate>

namespace {

/**
 * Measures the height of a text once: the tree asks for the height of every row again and again while rows are
 * inserted, and all rows of the panel are one line of the same font.
 */
class HeightCachingDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QVariant rowFont = index.data(Qt::FontRole);
        const QString key = index.data(Qt::DisplayRole).toString() + QChar::Null
                            + (rowFont.isValid() ? rowFont.value<QFont>() : option.font).key();
        const auto known = hints.constFind(key);
        return known != hints.constEnd() ? *known : *hints.insert(key, QStyledItemDelegate::sizeHint(option, index));
    }

private:
    mutable QHash<QString, QSize> hints;
};

} // namespace

TTreeWidget::TTreeWidget(QWidget* parent) : QTreeWidget(parent)
{
    setItemDelegate(new HeightCachingDelegate(this));
}

void TTreeWidget::paintEvent(QPaintEvent* event)
{
    QTreeWidget::paintEvent(event);

    QPainter painter(viewport());
    painter.setPen(Qt::lightGray);
    painter.setBrush(Qt::NoBrush);
    int totalHeight = 0;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        const QRect rect = visualItemRect(topLevelItem(i));
        painter.drawRect(rect);
        totalHeight += rect.height();
    }
    if (totalHeight == 0) {
        return;
    }
    int x = -1;
    for (int column = 1; column < columnCount(); ++column) {
        if (!isColumnHidden(column)) {
            x += columnWidth(column);
            painter.drawLine(x, 0, x, totalHeight);
        }
    }
}
