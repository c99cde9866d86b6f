#include <graphics/TGraphicsPolygonItem.h>

#include <graphics/engine/Shapes.h>
#include <graphics/engine/TStateText.h>

#include <QPainter>

void TGraphicsPolygonItem::SetPoints(const QPolygonF& newPoints)
{
    prepareGeometryChange();
    points = newPoints;
    Refresh();
}

void TGraphicsPolygonItem::Flip()
{
    TGraphicsPenItem::Flip();
    SetPoints(Shapes::Mirrored(points));
}

QRectF TGraphicsPolygonItem::boundingRect() const
{
    return WithPenMargin(points.boundingRect());
}

QPainterPath TGraphicsPolygonItem::Outline() const
{
    QPainterPath path;
    path.addPolygon(points);
    path.closeSubpath();
    path.addPath(Stroked(path));
    path.setFillRule(Qt::WindingFill);
    return path;
}

void TGraphicsPolygonItem::Draw(QPainter& painter, double) const
{
    painter.setPen(DrawingPen());
    painter.setBrush(FillingBrush(brush));
    painter.drawPolygon(points);
}

void TGraphicsPolygonItem::Describe(TStateText& state) const
{
    TGraphicsPenItem::Describe(state);
    state.Add("brush", static_cast<int>(brush.style())).Add("points", points);
}

std::unique_ptr<TGraphicsItem> TGraphicsPolygonItem::CreateEmpty() const
{
    return std::make_unique<TGraphicsPolygonItem>();
}

void TGraphicsPolygonItem::CopyFrom(const TGraphicsItem& source)
{
    TGraphicsPenItem::CopyFrom(source);
    const auto& other = static_cast<const TGraphicsPolygonItem&>(source);
    points = other.points;
    brush = other.brush;
}
