#include <graphics/TGraphicsLineItem.h>

#include <graphics/engine/Shapes.h>
#include <graphics/engine/TStateText.h>

#include <QPainter>

void TGraphicsLineItem::SetLine(const QLineF& newLine)
{
    prepareGeometryChange();
    line = newLine;
    Refresh();
}

void TGraphicsLineItem::Flip()
{
    TGraphicsPenItem::Flip();
    SetLine({-line.x1(), line.y1(), -line.x2(), line.y2()});
}

QRectF TGraphicsLineItem::boundingRect() const
{
    return WithPenMargin(QRectF(line.p1(), line.p2()));
}

QPainterPath TGraphicsLineItem::Outline() const
{
    QPainterPath path(line.p1());
    path.lineTo(line.p2());
    return Stroked(path);
}

void TGraphicsLineItem::Draw(QPainter& painter, double) const
{
    painter.setPen(DrawingPen());
    painter.drawLine(line);
}

void TGraphicsLineItem::Describe(TStateText& state) const
{
    TGraphicsPenItem::Describe(state);
    state.Add("from", line.p1()).Add("to", line.p2());
}

std::unique_ptr<TGraphicsItem> TGraphicsLineItem::CreateEmpty() const
{
    return std::make_unique<TGraphicsLineItem>();
}

void TGraphicsLineItem::CopyFrom(const TGraphicsItem& source)
{
    TGraphicsPenItem::CopyFrom(source);
    line = static_cast<const TGraphicsLineItem&>(source).line;
}
