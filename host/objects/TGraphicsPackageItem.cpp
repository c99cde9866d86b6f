#include <objects/TGraphicsPackageItem.h>

#include <graphics/TGraphicsTextItem.h>
#include <graphics/TStateText.h>

#include <algorithm>

namespace {

/** Bottom layers have greater numbers than their opposites. */
bool IsBottomSide(Osmirel::Layer layer)
{
    return layer > Osmirel::OppositeLayer(layer);
}

void ShowText(TGraphicsItem* item, const QString& text)
{
    if (auto* textItem = dynamic_cast<TGraphicsTextItem*>(item)) {
        textItem->SetText(text);
        textItem->UpdatePath(false);
    }
}

} // namespace

TGraphicsPackageItem::TGraphicsPackageItem(QGraphicsItem* parent) : TGraphicsItem(parent)
{
    TGraphicsItem::SetLayer(Osmirel::PackagesTop);
    setZValue(0);
}

void TGraphicsPackageItem::SetRefDes(const QString& text)
{
    refDes = text;
    ShowText(refDesText, text);
    Refresh();
}

void TGraphicsPackageItem::SetValue(const QString& text)
{
    value = text;
    ShowText(valueText, text);
    Refresh();
}

void TGraphicsPackageItem::SetRefDesText(TGraphicsItem* text)
{
    SetText(refDesText, text);
    ShowText(text, refDes);
}

void TGraphicsPackageItem::SetValueText(TGraphicsItem* text)
{
    SetText(valueText, text);
    ShowText(text, value);
}

void TGraphicsPackageItem::SetText(TGraphicsItem*& field, TGraphicsItem* text)
{
    if (text) {
        text->setParentItem(this);
    }
    field = text;
}

QVector<TGraphicsItem*> TGraphicsPackageItem::Pads() const
{
    QVector<TGraphicsItem*> pads;
    const QList<QGraphicsItem*> children = childItems();
    for (QGraphicsItem* child : children) {
        if (child->type() == ItemType::Pad) {
            pads.append(static_cast<TGraphicsItem*>(child));
        }
    }
    // The toolkit lists children as they are stacked, which changes with their layers.
    std::stable_sort(pads.begin(), pads.end(), [](const TGraphicsItem* left, const TGraphicsItem* right) {
        return left->DesignOrder() < right->DesignOrder();
    });
    return pads;
}

QVector<TGraphicsItem*> TGraphicsPackageItem::Connect(const QVector<TGraphicsItem*>& items)
{
    return landing.Connect(Pads(), items);
}

QVector<TGraphicsItem*> TGraphicsPackageItem::Disconnect(const QVector<TGraphicsItem*>& items)
{
    return landing.Disconnect(Pads(), items);
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
    bodyKnown = false;
}

QRectF TGraphicsPackageItem::boundingRect() const
{
    if (!bodyKnown) {
        body = QRectF();
        const QList<QGraphicsItem*> children = childItems();
        for (const QGraphicsItem* child : children) {
            if (child->type() != ItemType::Text) {
                body |= child->mapRectToParent(child->boundingRect());
            }
        }
        bodyKnown = true;
    }
    return body;
}

QPainterPath TGraphicsPackageItem::Outline() const
{
    QPainterPath path;
    path.addRect(boundingRect());
    return path;
}

void TGraphicsPackageItem::Draw(QPainter&, double) const {}

double TGraphicsPackageItem::StackingHeight() const
{
    return 0;
}

QVariant TGraphicsPackageItem::itemChange(GraphicsItemChange change, const QVariant& newValue)
{
    if (change == ItemChildAddedChange || change == ItemChildRemovedChange) {
        // The child may be half made or half destroyed: nothing is asked of it before this is over.
        bodyKnown = true;
        prepareGeometryChange();
        bodyKnown = false;
    }
    if (change == ItemChildRemovedChange) {
        const QGraphicsItem* child = newValue.value<QGraphicsItem*>();
        for (TGraphicsItem** text : {&refDesText, &valueText}) {
            if (*text == child) {
                *text = nullptr;
            }
        }
    }
    return TGraphicsItem::itemChange(change, newValue);
}

void TGraphicsPackageItem::Describe(TStateText& state) const
{
    TGraphicsItem::Describe(state);
    state.Add("refDes", refDes)
        .Add("value", value)
        .Add("package", packageName)
        .Add("component", static_cast<int>(componentNumber))
        .Add("lockRefDes", lockRefDes)
        .Add("lockValue", lockValue);
}

std::unique_ptr<TGraphicsItem> TGraphicsPackageItem::CreateEmpty() const
{
    return std::make_unique<TGraphicsPackageItem>();
}

void TGraphicsPackageItem::CopyFrom(const TGraphicsItem& source)
{
    TGraphicsItem::CopyFrom(source);
    const auto& other = static_cast<const TGraphicsPackageItem&>(source);
    refDes = other.refDes;
    value = other.value;
    packageName = other.packageName;
    componentNumber = other.componentNumber;
    lockRefDes = other.lockRefDes;
    lockValue = other.lockValue;
    // The children were copied in their order.
    const QList<QGraphicsItem*> originals = other.childItems();
    const QList<QGraphicsItem*> copies = childItems();
    const auto copyOf = [&](TGraphicsItem* text) {
        return text ? dynamic_cast<TGraphicsItem*>(copies.value(originals.indexOf(text))) : nullptr;
    };
    refDesText = copyOf(other.refDesText);
    valueText = copyOf(other.valueText);
}
