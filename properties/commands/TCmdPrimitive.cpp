#include "properties/commands/TCmdPrimitive.h"

#include "properties/commands/AttributeCommandEngine.h"

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

template class TMergingCommand<Attributes::PenWidth, CommandId::PenWidth, MergeRule::TakeOver>;

TCmdPenWidth::TCmdPenWidth(const QList<TGraphicsItem*>& selection, double millimetres)
    : TMergingCommand(selection, Attribute::FromEditor(millimetres))
{}

TCommandKind TCmdPenWidth::Kind() const
{
    return {"PenWidth", QT_TRANSLATE_NOOP("TCommandKind", "Change line width of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "drawings")};
}

template class TMergingCommand<Attributes::PenStyle, CommandId::PenStyle, MergeRule::EqualValue>;

TCmdPenStyle::TCmdPenStyle(const QList<TGraphicsItem*>& selection, Qt::PenStyle style)
    : TMergingCommand(selection, style)
{}

TCommandKind TCmdPenStyle::Kind() const
{
    return {"PenStyle", QT_TRANSLATE_NOOP("TCommandKind", "Change line style of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "drawings")};
}

template class TAttributeCommand<Attributes::BrushStyle>;

TCmdBrushStyle::TCmdBrushStyle(const QList<TGraphicsItem*>& selection, int style)
    : TAttributeCommand(selection, Attribute::FromEditor(style))
{}

TCommandKind TCmdBrushStyle::Kind() const
{
    return {"BrushStyle", QT_TRANSLATE_NOOP("TCommandKind", "Change filling of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "drawings")};
}

template class TAttributeCommand<Attributes::LayerPrim, CommandId::LayerPrim>;

TCmdLayerPrim::TCmdLayerPrim(const QList<TGraphicsItem*>& selection, Osmirel::Layer layer)
    : TAttributeCommand(selection, layer)
{}

TCommandKind TCmdLayerPrim::Kind() const
{
    return {"LayerPrim", QT_TRANSLATE_NOOP("TCommandKind", "Change layer of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "drawings")};
}

template class TMergingCommand<Attributes::UserColor, CommandId::UserColor, MergeRule::EqualValue>;

TCmdUserColor::TCmdUserColor(const QList<TGraphicsItem*>& selection, const QColor& color)
    : TMergingCommand(selection, color)
{}

TCommandKind TCmdUserColor::Kind() const
{
    return {"UserColor", QT_TRANSLATE_NOOP("TCommandKind", "Change colour of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "items")};
}

template class TAttributeCommand<Attributes::RectSize, CommandId::RectSize>;

TCmdRectSize::TCmdRectSize(const QList<TGraphicsRectItem*>& selection, double width, double height)
    : TAttributeCommand(selection, QSizeF(width, height))
{}

TCommandKind TCmdRectSize::Kind() const
{
    return {"RectSize", QT_TRANSLATE_NOOP("TCommandKind", "Change size of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "rectangles")};
}
