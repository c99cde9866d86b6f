#include <objects/TGraphicsPackageItem.h>

namespace {

/** Bottom layers have greater numbers than their opposites. */
bool IsBottomSide(Osmirel::Layer layer)
{
    return layer > Osmirel::OppositeLayer(layer);
}

} // namespace

TGraphicsPackageItem::TGraphicsPackageItem(QGraphicsItem* parent) : TGraphicsComponentItem(parent)
{
    TGraphicsItem::SetLayer(Osmirel::PackagesTop);
}

QVector<TGraphicsItem*> TGraphicsPackageItem::Pads() const
{
    return ChildrenOfKind(ItemType::Pad);
}

QVector<TGraphicsItem*> TGraphicsPackageItem::Connect(const QVector<TGraphicsItem*>& items)
{
    return connector.Connect(Pads(), items);
}

QVector<TGraphicsItem*> TGraphicsPackageItem::Disconnect(const QVector<TGraphicsItem*>& items)
{
    return connector.Disconnect(Pads(), items);
}

void TGraphicsPackageItem::SetLayer(Osmirel::Layer newLayer)
{
    const bool changesSide = IsBottomSide(newLayer) != IsBottomSide(Layer());
    TGraphicsItem::SetLayer(newLayer);
    if (!changesSide) {
        return;
    }
    prepareGeometryChange();
    const QList<QGraphicsItem*> children = childItems();
    for (QGraphicsItem* child : children) {
        if (auto* item = dynamic_cast<TGraphicsItem*>(child)) {
            item->Flip();
        }
    }
    ForgetBody();
}

std::unique_ptr<TGraphicsItem> TGraphicsPackageItem::CreateEmpty() const
{
    return std::make_unique<TGraphicsPackageItem>();
}
