#pragma once

#include "properties/commands/Attributes.h"
#include "properties/commands/TAttributeCommand.h"

#include <properties/Export.h>

#include <objects/TGraphicsPadItem.h>
#include <objects/TGraphicsViaItem.h>

#include <algorithm>

namespace Attributes PROPERTIES_EXPORT {

using Vias = OfKind<ItemType::Via>;

/** The diameter of a via: the smaller of its width and height. Writing it makes the via round. */
struct ViaDiameter : Length<TGraphicsViaItem>, Vias
{
    static double Read(const TGraphicsViaItem& via)
    {
        return static_cast<double>(static_cast<float>(std::min(via.Width(), via.Height())));
    }
    static void Write(TGraphicsViaItem& via, double diameter)
    {
        // Intended: diameters are kept in single precision although the setter takes double.
        const auto size = static_cast<double>(static_cast<float>(diameter));
        via.SetSize(size, size);
    }
};

/** The drill diameter of vias and through-hole pads; a surface pad has no drill. */
struct ViaDrill : Length<TGraphicsViaItem>
{
    static bool Accepts(const TGraphicsItem& item)
    {
        return item.type() == ItemType::Via
               || (item.type() == ItemType::Pad && !static_cast<const TGraphicsPadItem&>(item).IsSMD());
    }
    static double Read(const TGraphicsViaItem& via) { return static_cast<double>(via.Drill()); }
    static void Write(TGraphicsViaItem& via, double diameter)
    {
        via.SetDrill(static_cast<float>(diameter));
        via.update();
    }
};

/** The drill pair of a via. */
struct ViaGroup : Plain<TGraphicsViaItem, QString>, Vias
{
    static QString Read(const TGraphicsViaItem& via) { return via.ViaGroup(); }
    static void Write(TGraphicsViaItem& via, const QString& group) { via.SetViaGroup(group); }
};

/** How pours connect to vias and pads; no repaint. */
struct ViaThermal : Choice<TGraphicsViaItem, TGraphicsViaItem::TypeThermal, 0, 2>, OfKind<ItemType::Via, ItemType::Pad>
{
    static Value Read(const TGraphicsViaItem& via) { return via.Thermal(); }
    static void Write(TGraphicsViaItem& via, Value thermal) { via.SetThermal(thermal); }
};

} // namespace Attributes

/** Makes vias round with a diameter in millimetres. */
class PROPERTIES_EXPORT TCmdViaDiam
    : public TMergingCommand<Attributes::ViaDiameter, CommandId::ViaDiam, MergeRule::TakeOver>
{
public:
    TCmdViaDiam(const QList<TGraphicsItem*>& selection, double millimetres);
    TCommandKind Kind() const override;
};

/** Sets the drill diameter, in millimetres, of vias and through-hole pads. */
class PROPERTIES_EXPORT TCmdViaDrill
    : public TMergingCommand<Attributes::ViaDrill, CommandId::ViaDrill, MergeRule::TakeOver>
{
public:
    TCmdViaDrill(const QList<TGraphicsItem*>& selection, double millimetres);
    TCommandKind Kind() const override;
};

/** Sets the drill pair of vias. */
class PROPERTIES_EXPORT TCmdViaGroup : public TAttributeCommand<Attributes::ViaGroup>
{
public:
    TCmdViaGroup(const QList<TGraphicsItem*>& selection, const QString& group);
    TCommandKind Kind() const override;
};

/** Sets how pours connect to vias and pads: a value of `TGraphicsViaItem::TypeThermal`. */
class PROPERTIES_EXPORT TCmdViaTherm : public TAttributeCommand<Attributes::ViaThermal>
{
public:
    TCmdViaTherm(const QList<TGraphicsItem*>& selection, int thermal);
    TCommandKind Kind() const override;
};
