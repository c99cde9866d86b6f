#include <graphics/TGraphicsArcItem.h>

#include <graphics/engine/TStateText.h>

#include <QPainter>

#include <cmath>

namespace {

/** Angles are rounded to about a millionth of a degree, so that 180 - (180 - angle) equals the angle. */
double RoundedAngle(double degrees)
{
    return std::ldexp(std::round(std::ldexp(degrees, 20)), -20);
}

} // namespace

void TGraphicsArcItem::SetArc(double newRadius, double newStartAngle, double newSpanAngle)
{
    prepareGeometryChange();
    radius = newRadius;
    startAngle = RoundedAngle(newStartAngle);
    spanAngle = RoundedAngle(newSpanAngle);
    Refresh();
}

QPainterPath TGraphicsArcItem::Path() const
{
    const QRectF circle(-radius, -radius, 2 * radius, 2 * radius);
    QPainterPath path;
    path.arcMoveTo(circle, startAngle);
    path.arcTo(circle, startAngle, spanAngle);
    return path;
}

void TGraphicsArcItem::Flip()
{
    TGraphicsPenItem::Flip();
    SetArc(radius, 180 - startAngle, -spanAngle);
}

QRectF TGraphicsArcItem::boundingRect() const
{
    return WithPenMargin(Path().boundingRect());
}

QPainterPath TGraphicsArcItem::Outline() const
{
    return Stroked(Path());
}

void TGraphicsArcItem::Draw(QPainter& painter, double) const
{
    painter.setPen(DrawingPen());
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(Path());
}

void TGraphicsArcItem::Describe(TStateText& state) const
{
    TGraphicsPenItem::Describe(state);
    state.Add("radius", radius).Add("start", startAngle).Add("span", spanAngle);
}

std::unique_ptr<TGraphicsItem> TGraphicsArcItem::CreateEmpty() const
{
    return std::make_unique<TGraphicsArcItem>();
}

void TGraphicsArcItem::CopyFrom(const TGraphicsItem& source)
{
    TGraphicsPenItem::CopyFrom(source);
    const auto& other = static_cast<const TGraphicsArcItem&>(source);
    radius = other.radius;
    startAngle = other.startAngle;
    spanAngle = other.spanAngle;
}
