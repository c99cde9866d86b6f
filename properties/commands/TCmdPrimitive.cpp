#include "properties/commands/TCmdPrimitive.h"

#include <graphics/TGraphicsPolygonItem.h>

namespace {

QBrush& BrushOf(TGraphicsItem& item)
{
    return item.type() == ItemType::Polygon ? static_cast<TGraphicsPolygonItem&>(item).Brush()
                                            : static_cast<TGraphicsRectItem&>(item).Brush();
}

const QBrush& BrushOf(const TGraphicsItem& item)
{
    return item.type() == ItemType::Polygon ? static_cast<const TGraphicsPolygonItem&>(item).Brush()
                                            : static_cast<const TGraphicsRectItem&>(item).Brush();
}

} // namespace

Qt::BrushStyle Attributes::BrushStyle::Read(const TGraphicsItem& item)
{
    return BrushOf(item).style();
}

void Attributes::BrushStyle::Write(TGraphicsItem& item, Qt::BrushStyle style)
{
    BrushOf(item).setStyle(style);
    item.update();
}

TCmdPenWidth::TCmdPenWidth(const QList<TGraphicsItem*>& selection, double millimetres)
    : TMergingCommand(selection, Attribute::FromEditor(millimetres))
{}

TCmdPenStyle::TCmdPenStyle(const QList<TGraphicsItem*>& selection, Qt::PenStyle style)
    : TMergingCommand(selection, style)
{}

TCmdBrushStyle::TCmdBrushStyle(const QList<TGraphicsItem*>& selection, int style)
    : TAttributeCommand(selection, Attribute::FromEditor(style))
{}

TCmdLayerPrim::TCmdLayerPrim(const QList<TGraphicsItem*>& selection, Osmirel::Layer layer)
    : TAttributeCommandWithId(selection, layer)
{}

TCmdUserColor::TCmdUserColor(const QList<TGraphicsItem*>& selection, const QColor& color)
    : TMergingCommand(selection, color)
{}

TCmdRectSize::TCmdRectSize(const QList<TGraphicsRectItem*>& selection, double width, double height)
    : TAttributeCommandWithId(selection, QSizeF(width, height))
{}
