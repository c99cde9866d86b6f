#include "properties/commands/TCmdMask.h"

#include "properties/commands/AttributeCommandEngine.h"

template class TMergingCommand<Attributes::MaskClearance, CommandId::MaskClearance, MergeRule::TakeOver>;

TCmdMaskClearance::TCmdMaskClearance(const QList<TGraphicsItem*>& selection, double millimetres)
    : TMergingCommand(selection, Attribute::FromEditor(millimetres))
{}

TCommandKind TCmdMaskClearance::Kind() const
{
    return {"MaskClearance", QT_TRANSLATE_NOOP("TCommandKind", "Change mask clearance of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "pads and vias")};
}

template class TAttributeCommand<Attributes::MaskEnable>;

TCmdMaskEn::TCmdMaskEn(const QList<TGraphicsItem*>& selection, bool on) : TAttributeCommand(selection, on) {}

TCommandKind TCmdMaskEn::Kind() const
{
    return {"MaskEn", QT_TRANSLATE_NOOP("TCommandKind", "Switch mask opening of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "pads and vias")};
}

template class TMergingCommand<Attributes::PasteClearance, CommandId::PasteClearance, MergeRule::TakeOver>;

TCmdPasteClearance::TCmdPasteClearance(const QList<TGraphicsItem*>& selection, double millimetres)
    : TMergingCommand(selection, Attribute::FromEditor(millimetres))
{}

TCommandKind TCmdPasteClearance::Kind() const
{
    return {"PasteClearance", QT_TRANSLATE_NOOP("TCommandKind", "Change paste clearance of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "pads")};
}

template class TAttributeCommand<Attributes::PasteEnable>;

TCmdPasteEn::TCmdPasteEn(const QList<TGraphicsItem*>& selection, bool on) : TAttributeCommand(selection, on) {}

TCommandKind TCmdPasteEn::Kind() const
{
    return {"PasteEn", QT_TRANSLATE_NOOP("TCommandKind", "Switch paste of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "pads")};
}
