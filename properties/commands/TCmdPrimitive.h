#pragma once

#include "properties/commands/Attributes.h"
#include "properties/commands/TAttributeCommand.h"

#include <properties/Export.h>

#include <graphics/TGraphicsRectItem.h>

#include <QBrush>

namespace Attributes PROPERTIES_EXPORT {

/** Primitives of any shape. */
using AnyPrimitive = OfKind<ItemType::Line, ItemType::Rectangle, ItemType::Ellipse, ItemType::Polyline,
                            ItemType::Polygon, ItemType::Arc>;
/** Primitives of a closed shape, which have a fill. */
using FilledPrimitive = OfKind<ItemType::Rectangle, ItemType::Ellipse, ItemType::Polygon>;

/** Leaves out what is part of a package or symbol: commands change only free primitives. */
template <class Kinds>
struct WithoutParent
{
    static bool Accepts(const TGraphicsItem& item) { return !item.parentItem() && Kinds::Accepts(item); }
};

/** Items of all kinds. */
struct AnyKind
{
    static bool Accepts(const TGraphicsItem&) { return true; }
};

/** The stroke width, which a pen item holds in single precision. */
struct PenWidth : Length<TGraphicsPenItem>, WithoutParent<AnyPrimitive>
{
    static double Read(const TGraphicsPenItem& item) { return static_cast<double>(item.PenWidth()); }
    static void Write(TGraphicsPenItem& item, double width) { item.SetPenWidth(static_cast<float>(width)); }
};

struct PenStyle : Plain<TGraphicsPenItem, Qt::PenStyle>, WithoutParent<AnyPrimitive>
{
    static Qt::PenStyle Read(const TGraphicsPenItem& item) { return item.Pen().style(); }
    static void Write(TGraphicsPenItem& item, Qt::PenStyle style)
    {
        item.Pen().setStyle(style);
        item.update();
    }
};

/** The fill of a closed shape; the brush of a polygon is a member of another class than that of other shapes. */
struct BrushStyle : Plain<TGraphicsItem, Qt::BrushStyle>, WithoutParent<FilledPrimitive>
{
    static std::optional<Qt::BrushStyle> FromEditor(int style)
    {
        return IsBrushStyle(style) ? std::make_optional(static_cast<Qt::BrushStyle>(style)) : std::nullopt;
    }
    static Qt::BrushStyle Read(const TGraphicsItem& item);
    static void Write(TGraphicsItem& item, Qt::BrushStyle style);
};

struct LayerPrim : Plain<TGraphicsItem, Osmirel::Layer>, WithoutParent<AnyPrimitive>
{
    static Osmirel::Layer Read(const TGraphicsItem& item) { return item.Layer(); }
    static void Write(TGraphicsItem& item, Osmirel::Layer layer) { item.SetLayer(layer); }
};

/** An item's own colour; an invalid one stands for its layer's. */
struct UserColor : Plain<TGraphicsItem, QColor>, WithoutParent<AnyKind>
{
    static QColor Read(const TGraphicsItem& item) { return item.AltColor(); }
    static void Write(TGraphicsItem& item, const QColor& color) { item.SetAltColor(color); }
};

/** Width and height of a free rectangle, which holds them in single precision. */
struct RectSize : Plain<TGraphicsRectItem, QSizeF>
{
    static bool Accepts(const TGraphicsRectItem& rect) { return !rect.parentItem(); }
    static QSizeF Read(const TGraphicsRectItem& rect) { return rect.Size(); }
    static void Write(TGraphicsRectItem& rect, const QSizeF& size)
    {
        rect.SetSize(static_cast<float>(size.width()), static_cast<float>(size.height()));
    }
};

} // namespace Attributes

/** Sets the stroke width, in millimetres, of free primitives. */
class PROPERTIES_EXPORT TCmdPenWidth
    : public TMergingCommand<Attributes::PenWidth, CommandId::PenWidth, MergeRule::TakeOver>
{
public:
    TCmdPenWidth(const QList<TGraphicsItem*>& selection, double millimetres);
    TCommandKind Kind() const override;
};

/** Sets the line style of free primitives. */
class PROPERTIES_EXPORT TCmdPenStyle
    : public TMergingCommand<Attributes::PenStyle, CommandId::PenStyle, MergeRule::EqualValue>
{
public:
    TCmdPenStyle(const QList<TGraphicsItem*>& selection, Qt::PenStyle style);
    TCommandKind Kind() const override;
};

/** Sets the fill of free primitives of a closed shape: a `Qt::BrushStyle`. */
class PROPERTIES_EXPORT TCmdBrushStyle : public TAttributeCommand<Attributes::BrushStyle>
{
public:
    TCmdBrushStyle(const QList<TGraphicsItem*>& selection, int style);
    TCommandKind Kind() const override;
};

/** Moves free primitives to a layer. Intended: it has an id but is never merged. */
class PROPERTIES_EXPORT TCmdLayerPrim : public TAttributeCommand<Attributes::LayerPrim, CommandId::LayerPrim>
{
public:
    TCmdLayerPrim(const QList<TGraphicsItem*>& selection, Osmirel::Layer layer);
    TCommandKind Kind() const override;
};

/** Gives free items of any kind a colour of their own, or with an invalid colour that of their layer. */
class PROPERTIES_EXPORT TCmdUserColor
    : public TMergingCommand<Attributes::UserColor, CommandId::UserColor, MergeRule::EqualValue>
{
public:
    TCmdUserColor(const QList<TGraphicsItem*>& selection, const QColor& color);
    TCommandKind Kind() const override;
};

/** Sets width and height, in scene units, of free rectangles. Intended: it has an id but is never merged. */
class PROPERTIES_EXPORT TCmdRectSize : public TAttributeCommand<Attributes::RectSize, CommandId::RectSize>
{
public:
    TCmdRectSize(const QList<TGraphicsRectItem*>& selection, double width, double height);
    TCommandKind Kind() const override;
};
