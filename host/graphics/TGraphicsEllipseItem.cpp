#include <graphics/TGraphicsEllipseItem.h>

#include <QPainter>

QPainterPath TGraphicsEllipseItem::Outline() const
{
    QPainterPath path;
    path.addEllipse(boundingRect());
    return path;
}

void TGraphicsEllipseItem::Draw(QPainter& painter, double) const
{
    painter.setPen(DrawingPen());
    painter.setBrush(FillingBrush(Brush()));
    painter.drawEllipse(Rect());
}

std::unique_ptr<TGraphicsItem> TGraphicsEllipseItem::CreateEmpty() const
{
    return std::make_unique<TGraphicsEllipseItem>();
}
