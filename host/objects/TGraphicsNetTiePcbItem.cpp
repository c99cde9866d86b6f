#include <objects/TGraphicsNetTiePcbItem.h>

#include <graphics/engine/Shapes.h>
#include <graphics/engine/TStateText.h>
#include <objects/engine/DrawingStyle.h>
#include <objects/TGraphicsSectionItem.h>

#include <QPainter>

#include <algorithm>

TGraphicsNetTiePcbItem::TGraphicsNetTiePcbItem(QGraphicsItem* parent) : TGraphicsItem(parent)
{
    LinkNode().SetRole(TLinkNode::Role::Divides);
    pen.setCapStyle(Qt::RoundCap);
    SetLayer(Osmirel::CopperTop);
}

template <class Value>
void TGraphicsNetTiePcbItem::StoreGeometry(Value& field, const Value& value)
{
    prepareGeometryChange();
    field = value;
    Refresh();
}

void TGraphicsNetTiePcbItem::SetName(const QString& text)
{
    StoreGeometry(name, text);
}

void TGraphicsNetTiePcbItem::SetNameVisible(bool on)
{
    StoreGeometry(nameVisible, on);
}

void TGraphicsNetTiePcbItem::SetPadSize(double diameter)
{
    StoreGeometry(padSize, diameter);
}

void TGraphicsNetTiePcbItem::SetPadDistance(double distance)
{
    StoreGeometry(padDistance, distance);
}

void TGraphicsNetTiePcbItem::AddLinkedWire(TGraphicsSectionItem* wire)
{
    linked.Add(wire);
}

void TGraphicsNetTiePcbItem::RemoveLinkedWire(TGraphicsSectionItem* wire)
{
    linked.Remove(wire);
}

QVector<TGraphicsItem*> TGraphicsNetTiePcbItem::Connect(const QVector<TGraphicsItem*>& items)
{
    return connector.Connect({this}, items);
}

QVector<TGraphicsItem*> TGraphicsNetTiePcbItem::Disconnect(const QVector<TGraphicsItem*>& items)
{
    return connector.Disconnect({this}, items);
}

QRectF TGraphicsNetTiePcbItem::boundingRect() const
{
    const double halfHeight = padSize / 2;
    const double halfLength = padDistance / 2 + padSize / 2;
    return {-halfLength, -halfHeight, 2 * halfLength, 2 * halfHeight};
}

QPainterPath TGraphicsNetTiePcbItem::Outline() const
{
    const QPointF center(padDistance / 2, 0);
    QPainterPath path = Shapes::Capsule(-center, center, std::min(pen.widthF(), padSize));
    path.addEllipse(-center, padSize / 2, padSize / 2);
    path.addEllipse(center, padSize / 2, padSize / 2);
    path.setFillRule(Qt::WindingFill);
    return path;
}

void TGraphicsNetTiePcbItem::Draw(QPainter& painter, double pixelsPerUnit) const
{
    painter.fillPath(Outline(), Color());
    if (nameVisible && padSize * pixelsPerUnit >= DrawingStyle::smallestReadableText) {
        painter.fillPath(Shapes::LabelIn(boundingRect(), name), DrawingStyle::textOnCopper);
    }
}

void TGraphicsNetTiePcbItem::Describe(TStateText& state) const
{
    TGraphicsItem::Describe(state);
    state.Add("number", static_cast<int>(number))
        .Add("name", name)
        .Add("nameVisible", nameVisible)
        .Add("padSize", padSize)
        .Add("padDistance", padDistance)
        .Add("wireWidth", pen.widthF());
    DescribeLinks(state, "wires", Links());
}

std::unique_ptr<TGraphicsItem> TGraphicsNetTiePcbItem::CreateEmpty() const
{
    return std::make_unique<TGraphicsNetTiePcbItem>();
}

void TGraphicsNetTiePcbItem::CopyFrom(const TGraphicsItem& source)
{
    TGraphicsItem::CopyFrom(source);
    const auto& other = static_cast<const TGraphicsNetTiePcbItem&>(source);
    number = other.number;
    name = other.name;
    nameVisible = other.nameVisible;
    padSize = other.padSize;
    padDistance = other.padDistance;
    pen = other.pen;
}
