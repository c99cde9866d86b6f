#include <graphics/TGraphicsPenItem.h>

#include <graphics/engine/TStateText.h>

#include <QPainterPathStroker>

#include <algorithm>

namespace {

/** The minimum stroke width for hit tests, in scene units. */
constexpr double smallestPickWidth = 1.0;

} // namespace

void TGraphicsPenItem::SetPenWidth(float width)
{
    prepareGeometryChange();
    penWidth = width;
    Refresh();
}

QPen TGraphicsPenItem::DrawingPen() const
{
    QPen drawing = pen;
    drawing.setWidthF(static_cast<double>(penWidth));
    drawing.setColor(Color());
    return drawing;
}

void TGraphicsPenItem::Describe(TStateText& state) const
{
    TGraphicsItem::Describe(state);
    state.Add("penWidth", penWidth).Add("penStyle", static_cast<int>(pen.style()));
}

void TGraphicsPenItem::CopyFrom(const TGraphicsItem& source)
{
    TGraphicsItem::CopyFrom(source);
    const auto& other = static_cast<const TGraphicsPenItem&>(source);
    penWidth = other.penWidth;
    pen = other.pen;
}

QBrush TGraphicsPenItem::FillingBrush(const QBrush& brush) const
{
    QBrush filling = brush;
    filling.setColor(Color());
    return filling;
}

QPainterPath TGraphicsPenItem::Stroked(const QPainterPath& path) const
{
    QPainterPathStroker stroker;
    stroker.setWidth(std::max(static_cast<double>(penWidth), smallestPickWidth));
    stroker.setCapStyle(pen.capStyle());
    stroker.setJoinStyle(pen.joinStyle());
    return stroker.createStroke(path);
}

QRectF TGraphicsPenItem::WithPenMargin(const QRectF& rect) const
{
    const double margin = std::max(static_cast<double>(penWidth), smallestPickWidth) / 2;
    return rect.normalized().adjusted(-margin, -margin, margin, margin);
}
