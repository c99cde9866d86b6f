#pragma once

#include "properties/commands/Units.h"

#include <properties/Export.h>

#include <graphics/TGraphicsItem.h>

#include <optional>

/** Building blocks for the attributes of `TAttributeCommand`. */
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

/** An attribute whose value is the same in the editor and in the item. */
template <class ItemClass, class ValueType>
struct Plain
{
    using Item = ItemClass;
    using Value = ValueType;
    static Value FromEditor(const Value& value) { return value; }
};

/** A length: millimetres in the editor, scene units in the item. */
template <class ItemClass>
struct Length
{
    using Item = ItemClass;
    using Value = double;
    static double FromEditor(double millimetres) { return Units::SceneFromMillimetres(millimetres); }
};

/** A choice: a number from the first to the last enumerator in the editor, the enumeration in the item. */
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
