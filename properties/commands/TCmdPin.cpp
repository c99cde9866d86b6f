#include "properties/commands/TCmdPin.h"

TCmdPinName::TCmdPinName(const QList<TGraphicsItem*>& selection, const QString& name)
    : TAttributeCommand(selection, name)
{}

TCmdPinNameVis::TCmdPinNameVis(const QList<TGraphicsItem*>& selection, bool visible)
    : TAttributeCommand(selection, visible)
{}

TCmdPinNumber::TCmdPinNumber(const QList<TGraphicsItem*>& selection, const QString& number)
    : TAttributeCommand(selection, number)
{}

TCmdPinNumberVis::TCmdPinNumberVis(const QList<TGraphicsItem*>& selection, bool visible)
    : TAttributeCommand(selection, visible)
{}

TCmdPinType::TCmdPinType(const QList<TGraphicsItem*>& selection, int type)
    : TMergingCommand(selection, Attribute::FromEditor(type))
{}

TCmdPinStyle::TCmdPinStyle(const QList<TGraphicsItem*>& selection, int style)
    : TMergingCommand(selection, Attribute::FromEditor(style))
{}

TCmdPinLength::TCmdPinLength(const QList<TGraphicsItem*>& selection, int length)
    : TMergingCommand(selection, Attribute::FromEditor(length))
{}

TCmdPinSwap::TCmdPinSwap(const QList<TGraphicsItem*>& selection, int group)
    : TMergingCommand(selection, Attribute::FromEditor(group))
{}
