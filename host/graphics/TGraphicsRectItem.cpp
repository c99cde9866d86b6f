#include <graphics/TGraphicsRectItem.h>

#include <graphics/engine/TStateText.h>

#include <QPainter>

void TGraphicsRectItem::SetSize(float width, float height)
{
    prepareGeometryChange();
    size = QSizeF(static_cast<double>(width), static_cast<double>(height));
    Refresh();
}

QRectF TGraphicsRectItem::boundingRect() const
{
    const double margin = static_cast<double>(PenWidth()) / 2;
    return Rect().adjusted(-margin, -margin, margin, margin);
}

QPainterPath TGraphicsRectItem::Outline() const
{
    QPainterPath path;
    path.addRect(boundingRect());
    return path;
}

void TGraphicsRectItem::Draw(QPainter& painter, double) const
{
    painter.setPen(DrawingPen());
    painter.setBrush(FillingBrush(brush));
    painter.drawRect(Rect());
}

void TGraphicsRectItem::Describe(TStateText& state) const
{
    TGraphicsPenItem::Describe(state);
    state.Add("size", size).Add("brush", static_cast<int>(brush.style()));
}

std::unique_ptr<TGraphicsItem> TGraphicsRectItem::CreateEmpty() const
{
    return std::make_unique<TGraphicsRectItem>();
}

void TGraphicsRectItem::CopyFrom(const TGraphicsItem& source)
{
    TGraphicsPenItem::CopyFrom(source);
    const auto& other = static_cast<const TGraphicsRectItem&>(source);
    size = other.size;
    brush = other.brush;
}
