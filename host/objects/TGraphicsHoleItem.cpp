#include <objects/TGraphicsHoleItem.h>

#include <objects/engine/DrawingStyle.h>

#include <QPainter>

TGraphicsHoleItem::TGraphicsHoleItem(QGraphicsItem* parent) : TGraphicsRectItem(parent)
{
    setZValue(DrawingStyle::stackingOfDrilled);
}

QPainterPath TGraphicsHoleItem::Outline() const
{
    QPainterPath path;
    path.addEllipse(Rect());
    return path;
}

void TGraphicsHoleItem::Draw(QPainter& painter, double) const
{
    QPen rim(AltColor().isValid() ? AltColor() : DrawingStyle::holeRim, 1);
    rim.setCosmetic(true);
    painter.setPen(rim);
    painter.setBrush(DrawingStyle::hole);
    painter.drawEllipse(Rect());
}

double TGraphicsHoleItem::StackingHeight() const
{
    return DrawingStyle::stackingOfDrilled;
}

std::unique_ptr<TGraphicsItem> TGraphicsHoleItem::CreateEmpty() const
{
    return std::make_unique<TGraphicsHoleItem>();
}
