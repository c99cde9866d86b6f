#include <graphics/TGraphicsPolylineItem.h>

#include <graphics/engine/Shapes.h>
#include <graphics/engine/TStateText.h>

#include <QPainter>

QString TGraphicsPolylineItem::KindName() const
{
    return Layer() == Osmirel::Milling ? QStringLiteral("milling") : QStringLiteral("polyline");
}

void TGraphicsPolylineItem::SetPoints(const QPolygonF& newPoints)
{
    prepareGeometryChange();
    points = newPoints;
    Refresh();
}

void TGraphicsPolylineItem::Flip()
{
    TGraphicsPenItem::Flip();
    SetPoints(Shapes::Mirrored(points));
}

QRectF TGraphicsPolylineItem::boundingRect() const
{
    return WithPenMargin(points.boundingRect());
}

QPainterPath TGraphicsPolylineItem::Outline() const
{
    QPainterPath path;
    path.addPolygon(points);
    return Stroked(path);
}

void TGraphicsPolylineItem::Draw(QPainter& painter, double) const
{
    painter.setPen(DrawingPen());
    painter.drawPolyline(points);
}

void TGraphicsPolylineItem::Describe(TStateText& state) const
{
    TGraphicsPenItem::Describe(state);
    state.Add("points", points);
}

std::unique_ptr<TGraphicsItem> TGraphicsPolylineItem::CreateEmpty() const
{
    return std::make_unique<TGraphicsPolylineItem>();
}

void TGraphicsPolylineItem::CopyFrom(const TGraphicsItem& source)
{
    TGraphicsPenItem::CopyFrom(source);
    points = static_cast<const TGraphicsPolylineItem&>(source).points;
}
