#include <objects/TGraphicsNetItem.h>

#include <QPainter>

namespace {

constexpr float usualNetWidth = 2;

} // namespace

TGraphicsNetItem::TGraphicsNetItem(QGraphicsItem* parent) : TGraphicsSectionItem(parent)
{
    TGraphicsSectionItem::SetLayer(Osmirel::SchematicNets);
    SetPenWidth(usualNetWidth);
}

void TGraphicsNetItem::Draw(QPainter& painter, double) const
{
    painter.setPen(DrawingPen());
    painter.drawLine(Point1(), Point2());
}

std::unique_ptr<TGraphicsItem> TGraphicsNetItem::CreateEmpty() const
{
    return std::make_unique<TGraphicsNetItem>();
}
