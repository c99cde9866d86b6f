#include <objects/TGraphicsPartItem.h>

#include <graphics/TStateText.h>

#include <algorithm>

namespace {

/** What is given to those who link wires and to those who link pins; nobody is to be asked for nothing, which would
 *  mean everything. */
struct Given
{
    explicit Given(const QVector<TGraphicsItem*>& items) : isAll(items.isEmpty())
    {
        const auto isPin = [](const TGraphicsItem* item) { return item->type() == ItemType::Pin; };
        std::partition_copy(items.cbegin(), items.cend(), std::back_inserter(pins), std::back_inserter(wires), isPin);
    }

    bool HasWires() const { return isAll || !wires.isEmpty(); }
    bool HasPins() const { return isAll || !pins.isEmpty(); }

    bool isAll;
    QVector<TGraphicsItem*> pins;
    QVector<TGraphicsItem*> wires;
};

} // namespace

TGraphicsPartItem::TGraphicsPartItem(QGraphicsItem* parent) : TGraphicsComponentItem(parent)
{
    SetLayer(Osmirel::SchematicSymbols);
}

QVector<TGraphicsItem*> TGraphicsPartItem::Connect(const QVector<TGraphicsItem*>& items)
{
    const Given given(items);
    const QVector<TGraphicsItem*> pins = Pins();
    QVector<TGraphicsItem*> linked;
    if (given.HasWires()) {
        linked += landing.Connect(pins, given.wires);
    }
    if (given.HasPins()) {
        linked += contacts.Connect(pins, given.pins);
    }
    return linked;
}

QVector<TGraphicsItem*> TGraphicsPartItem::Disconnect(const QVector<TGraphicsItem*>& items)
{
    const Given given(items);
    const QVector<TGraphicsItem*> pins = Pins();
    QVector<TGraphicsItem*> cut;
    if (given.HasWires()) {
        cut += landing.Disconnect(pins, given.wires);
    }
    if (given.HasPins()) {
        cut += contacts.Disconnect(pins, given.pins);
    }
    return cut;
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
