#include <objects/TGraphicsPartItem.h>

#include <graphics/engine/TStateText.h>

TGraphicsPartItem::TGraphicsPartItem(QGraphicsItem* parent) : TGraphicsComponentItem(parent)
{
    SetLayer(Osmirel::SchematicSymbols);
}

QVector<TGraphicsItem*> TGraphicsPartItem::Connect(const QVector<TGraphicsItem*>& items)
{
    return connector.Connect(Pins(), items);
}

QVector<TGraphicsItem*> TGraphicsPartItem::Disconnect(const QVector<TGraphicsItem*>& items)
{
    return connector.Disconnect(Pins(), items);
}

void TGraphicsPartItem::Describe(TStateText& state) const
{
    TGraphicsComponentItem::Describe(state);
    state.Add("name", name).Add("swap", static_cast<int>(swapNumber)).Add("symbolOpen", symbolOpen);
}

std::unique_ptr<TGraphicsItem> TGraphicsPartItem::CreateEmpty() const
{
    return std::make_unique<TGraphicsPartItem>();
}

void TGraphicsPartItem::CopyFrom(const TGraphicsItem& source)
{
    TGraphicsComponentItem::CopyFrom(source);
    const auto& other = static_cast<const TGraphicsPartItem&>(source);
    name = other.name;
    swapNumber = other.swapNumber;
    symbolOpen = other.symbolOpen;
}
