#pragma once

#include "properties/commands/Attributes.h"
#include "properties/commands/TAttributeCommand.h"

#include <properties/Export.h>

#include <objects/TGraphicsPadItem.h>

namespace Attributes PROPERTIES_EXPORT {

/** How far the mask opening of vias and pads reaches beyond the copper; on pads too, the via's setter writes it. */
struct MaskClearance : Length<TGraphicsViaItem>, OfKind<ItemType::Pad, ItemType::Via>
{
    static double Read(const TGraphicsViaItem& via) { return static_cast<double>(via.MaskClearance()); }
    static void Write(TGraphicsViaItem& via, double clearance) { via.SetMaskClearance(static_cast<float>(clearance)); }
};

/** Whether the solder mask is open over pads and vias. */
struct MaskEnable : Plain<TGraphicsViaItem, bool>, OfKind<ItemType::Pad, ItemType::Via>
{
    static bool Read(const TGraphicsViaItem& via) { return via.MaskEnabled(); }
    static void Write(TGraphicsViaItem& via, bool on)
    {
        via.SetMaskEnabled(on);
        via.Refresh();
    }
};

/** How far the solder paste of pads reaches beyond the copper. */
struct PasteClearance : Length<TGraphicsPadItem>, OfKind<ItemType::Pad>
{
    static double Read(const TGraphicsPadItem& pad) { return static_cast<double>(pad.PasteClearance()); }
    static void Write(TGraphicsPadItem& pad, double clearance) { pad.SetPasteClearance(static_cast<float>(clearance)); }
};

/** Whether solder paste is applied to pads. */
struct PasteEnable : Plain<TGraphicsPadItem, bool>, OfKind<ItemType::Pad>
{
    static bool Read(const TGraphicsPadItem& pad) { return pad.PasteEnabled(); }
    static void Write(TGraphicsPadItem& pad, bool on)
    {
        pad.SetPasteEnabled(on);
        pad.Refresh();
    }
};

} // namespace Attributes

/** Sets the mask clearance, in millimetres, of pads and vias. */
class PROPERTIES_EXPORT TCmdMaskClearance
    : public TMergingCommand<Attributes::MaskClearance, CommandId::MaskClearance, MergeRule::TakeOver>
{
public:
    TCmdMaskClearance(const QList<TGraphicsItem*>& selection, double millimetres);
    TCommandKind Kind() const override;
};

/** Opens or closes the solder mask over pads and vias. */
class PROPERTIES_EXPORT TCmdMaskEn : public TAttributeCommand<Attributes::MaskEnable>
{
public:
    TCmdMaskEn(const QList<TGraphicsItem*>& selection, bool on);
    TCommandKind Kind() const override;
};

/** Sets the paste clearance, in millimetres, of pads. */
class PROPERTIES_EXPORT TCmdPasteClearance
    : public TMergingCommand<Attributes::PasteClearance, CommandId::PasteClearance, MergeRule::TakeOver>
{
public:
    TCmdPasteClearance(const QList<TGraphicsItem*>& selection, double millimetres);
    TCommandKind Kind() const override;
};

/** Applies solder paste to pads or leaves it off. */
class PROPERTIES_EXPORT TCmdPasteEn : public TAttributeCommand<Attributes::PasteEnable>
{
public:
    TCmdPasteEn(const QList<TGraphicsItem*>& selection, bool on);
    TCommandKind Kind() const override;
};
