#pragma once

#include "properties/commands/Units.h"

#include <properties/Export.h>

#include <graphics/TGraphicsItem.h>

#include <optional>

/** Pieces that the attributes of `TAttributeCommand` are put together from. */
namespace Attributes PROPERTIES_EXPORT {

/** Keeps the items of the given kinds. */
template <ItemType::Number... kinds>
struct OfKind
{
    static bool Accepts(const TGraphicsItem& item)
    {
        const int type = item.type();
        return ((type == kinds) || ...);
    }
};

/** An attribute whose values the editor gives as the item holds them. */
template <class ItemClass, class ValueType>
struct Plain
{
    using Item = ItemClass;
    using Value = ValueType;
    static Value FromEditor(const Value& value) { return value; }
};

/** A length, which the editor gives in millimetres and the item holds in scene units. */
template <class ItemClass>
struct Length
{
    using Item = ItemClass;
    using Value = double;
    static double FromEditor(double millimetres) { return Units::SceneFromMillimetres(millimetres); }
};

/** A choice, which the editor gives as a number from the first to the last and the item holds as an enumeration. */
template <class ItemClass, class Enumeration, int first, int last>
struct Choice
{
    using Item = ItemClass;
    using Value = Enumeration;
    static std::optional<Value> FromEditor(int value)
    {
        return first <= value && value <= last ? std::make_optional(static_cast<Enumeration>(value)) : std::nullopt;
    }
};

/** Whether a number is a `Qt::BrushStyle`. */
constexpr bool IsBrushStyle(int value)
{
    return (Qt::NoBrush <= value && value <= Qt::ConicalGradientPattern) || value == Qt::TexturePattern;
}

} // namespace Attributes
