#include "properties/commands/TCmdMask.h"

TCmdMaskClearance::TCmdMaskClearance(const QList<TGraphicsItem*>& selection, double millimetres)
    : TMergingCommand(selection, Attribute::FromEditor(millimetres))
{}

TCmdMaskEn::TCmdMaskEn(const QList<TGraphicsItem*>& selection, bool on) : TAttributeCommand(selection, on) {}

TCmdPasteClearance::TCmdPasteClearance(const QList<TGraphicsItem*>& selection, double millimetres)
    : TMergingCommand(selection, Attribute::FromEditor(millimetres))
{}

TCmdPasteEn::TCmdPasteEn(const QList<TGraphicsItem*>& selection, bool on) : TAttributeCommand(selection, on) {}
