#include "workbench/design/Picking.h"

#include <graphics/TItemScene.h>
#include <objects/TGraphicsPartItem.h>

namespace {

bool IsTextOf(const TGraphicsPartItem& part, const QGraphicsItem* child)
{
    return child == part.RefDesText() || child == part.ValueText();
}

} // namespace

void Picking::PickSymbolsWhole(TItemScene& page)
{
    const QList<TGraphicsItem*> items = page.DesignItems();
    for (TGraphicsItem* item : items) {
        const auto* parent = dynamic_cast<const TGraphicsItem*>(item->parentItem());
        const auto* part = dynamic_cast<const TGraphicsPartItem*>(parent);
        const bool isPin = item->type() == ItemType::Pin && parent && parent->type() != ItemType::Port;
        item->setFlag(QGraphicsItem::ItemIsSelectable, !parent || isPin || (part && IsTextOf(*part, item)));
    }
}

void Picking::PickDrawings(TGraphicsPartItem& part, bool on)
{
    const QList<QGraphicsItem*> children = part.childItems();
    for (QGraphicsItem* child : children) {
        if (child->type() != ItemType::Pin && !IsTextOf(part, child)) {
            child->setFlag(QGraphicsItem::ItemIsSelectable, on);
        }
    }
}

QList<TGraphicsItem*> Picking::Selectable(const QList<TGraphicsItem*>& items)
{
    QList<TGraphicsItem*> selectable;
    for (TGraphicsItem* item : items) {
        if (item->QGraphicsItem::flags() & QGraphicsItem::ItemIsSelectable) {
            selectable.append(item);
        }
    }
    return selectable;
}
