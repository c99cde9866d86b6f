#include "properties/commands/ItemsOfView.h"

#include <QGraphicsView>

#include <algorithm>

QVector<TGraphicsItem*> ItemsOfView(const QGraphicsView* view)
{
    QVector<TGraphicsItem*> designItems;
    if (view) {
        const QList<QGraphicsItem*> items = view->items();
        designItems.reserve(items.size());
        for (QGraphicsItem* item : items) {
            if (auto* designItem = dynamic_cast<TGraphicsItem*>(item)) {
                designItems.append(designItem);
            }
        }
    }
    return designItems;
}

QVector<TGraphicsItem*> ItemsOfView(const QGraphicsView* view, std::initializer_list<ItemType::Number> kinds)
{
    QVector<TGraphicsItem*> items = ItemsOfView(view);
    const auto isOther = [kinds](const TGraphicsItem* item) {
        return std::find(kinds.begin(), kinds.end(), item->type()) == kinds.end();
    };
    items.erase(std::remove_if(items.begin(), items.end(), isOther), items.end());
    return items;
}
