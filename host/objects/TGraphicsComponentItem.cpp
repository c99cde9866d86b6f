#include <objects/TGraphicsComponentItem.h>

#include <graphics/engine/TStateText.h>
#include <graphics/TGraphicsTextItem.h>

namespace {

void ShowText(TGraphicsItem* item, const QString& text)
{
    if (auto* textItem = dynamic_cast<TGraphicsTextItem*>(item)) {
        textItem->SetText(text);
        textItem->UpdatePath(false);
    }
}

} // namespace

TGraphicsComponentItem::TGraphicsComponentItem(QGraphicsItem* parent) : TGraphicsItem(parent)
{
    setZValue(0);
}

void TGraphicsComponentItem::SetRefDes(const QString& text)
{
    refDes = text;
    ShowText(refDesText, text);
    Refresh();
}

void TGraphicsComponentItem::SetValue(const QString& text)
{
    value = text;
    ShowText(valueText, text);
    Refresh();
}

void TGraphicsComponentItem::SetRefDesText(TGraphicsItem* text)
{
    SetText(refDesText, text);
    ShowText(text, refDes);
}

void TGraphicsComponentItem::SetValueText(TGraphicsItem* text)
{
    SetText(valueText, text);
    ShowText(text, value);
}

void TGraphicsComponentItem::SetText(TGraphicsItem*& field, TGraphicsItem* text)
{
    if (text) {
        text->setParentItem(this);
    }
    field = text;
}

QRectF TGraphicsComponentItem::boundingRect() const
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

QPainterPath TGraphicsComponentItem::Outline() const
{
    QPainterPath path;
    path.addRect(boundingRect());
    return path;
}

void TGraphicsComponentItem::Draw(QPainter&, double) const {}

double TGraphicsComponentItem::StackingHeight() const
{
    return 0;
}

QVariant TGraphicsComponentItem::itemChange(GraphicsItemChange change, const QVariant& newValue)
{
    if (change == ItemChildAddedChange || change == ItemChildRemovedChange) {
        // The child may be partly constructed or destroyed: do not access it before that has finished.
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

void TGraphicsComponentItem::Describe(TStateText& state) const
{
    TGraphicsItem::Describe(state);
    state.Add("refDes", refDes)
        .Add("value", value)
        .Add("package", packageName)
        .Add("component", static_cast<int>(componentNumber))
        .Add("lockRefDes", lockRefDes)
        .Add("lockValue", lockValue);
}

void TGraphicsComponentItem::CopyFrom(const TGraphicsItem& source)
{
    TGraphicsItem::CopyFrom(source);
    const auto& other = static_cast<const TGraphicsComponentItem&>(source);
    refDes = other.refDes;
    value = other.value;
    packageName = other.packageName;
    componentNumber = other.componentNumber;
    lockRefDes = other.lockRefDes;
    lockValue = other.lockValue;
    // The children were copied in order.
    const QList<QGraphicsItem*> originals = other.childItems();
    const QList<QGraphicsItem*> copies = childItems();
    const auto copyOf = [&](TGraphicsItem* text) {
        return text ? dynamic_cast<TGraphicsItem*>(copies.value(originals.indexOf(text))) : nullptr;
    };
    refDesText = copyOf(other.refDesText);
    valueText = copyOf(other.valueText);
}

void TGraphicsComponentItem::ForgetBody()
{
    prepareGeometryChange();
    bodyKnown = false;
}
