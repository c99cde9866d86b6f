#include "properties/commands/TCmdPin.h"

#include "properties/commands/AttributeCommandEngine.h"

template class TAttributeCommand<Attributes::PinName>;

TCmdPinName::TCmdPinName(const QList<TGraphicsItem*>& selection, const QString& name)
    : TAttributeCommand(selection, name)
{}

TCommandKind TCmdPinName::Kind() const
{
    return {"PinName", QT_TRANSLATE_NOOP("TCommandKind", "Rename %1"), QT_TRANSLATE_NOOP("TCommandKind", "pins")};
}

template class TAttributeCommand<Attributes::PinNameVisible>;

TCmdPinNameVis::TCmdPinNameVis(const QList<TGraphicsItem*>& selection, bool visible)
    : TAttributeCommand(selection, visible)
{}

TCommandKind TCmdPinNameVis::Kind() const
{
    return {"PinNameVis", QT_TRANSLATE_NOOP("TCommandKind", "Switch name of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "pins")};
}

template class TAttributeCommand<Attributes::PinNumber>;

TCmdPinNumber::TCmdPinNumber(const QList<TGraphicsItem*>& selection, const QString& number)
    : TAttributeCommand(selection, number)
{}

TCommandKind TCmdPinNumber::Kind() const
{
    return {"PinNumber", QT_TRANSLATE_NOOP("TCommandKind", "Renumber %1"), QT_TRANSLATE_NOOP("TCommandKind", "pins")};
}

template class TAttributeCommand<Attributes::PinNumberVisible>;

TCmdPinNumberVis::TCmdPinNumberVis(const QList<TGraphicsItem*>& selection, bool visible)
    : TAttributeCommand(selection, visible)
{}

TCommandKind TCmdPinNumberVis::Kind() const
{
    return {"PinNumberVis", QT_TRANSLATE_NOOP("TCommandKind", "Switch number of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "pins")};
}

template class TMergingCommand<Attributes::PinType, CommandId::PinType, MergeRule::EqualValue>;

TCmdPinType::TCmdPinType(const QList<TGraphicsItem*>& selection, int type)
    : TMergingCommand(selection, Attribute::FromEditor(type))
{}

TCommandKind TCmdPinType::Kind() const
{
    return {"PinType", QT_TRANSLATE_NOOP("TCommandKind", "Change type of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "pins")};
}

template class TMergingCommand<Attributes::PinStyle, CommandId::PinStyle, MergeRule::EqualValue>;

TCmdPinStyle::TCmdPinStyle(const QList<TGraphicsItem*>& selection, int style)
    : TMergingCommand(selection, Attribute::FromEditor(style))
{}

TCommandKind TCmdPinStyle::Kind() const
{
    return {"PinStyle", QT_TRANSLATE_NOOP("TCommandKind", "Change style of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "pins")};
}

template class TMergingCommand<Attributes::PinLength, CommandId::PinLength, MergeRule::EqualValue>;

TCmdPinLength::TCmdPinLength(const QList<TGraphicsItem*>& selection, int length)
    : TMergingCommand(selection, Attribute::FromEditor(length))
{}

TCommandKind TCmdPinLength::Kind() const
{
    return {"PinLength", QT_TRANSLATE_NOOP("TCommandKind", "Change length of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "pins")};
}

template class TMergingCommand<Attributes::PinSwap, CommandId::PinSwap, MergeRule::EqualValue>;

TCmdPinSwap::TCmdPinSwap(const QList<TGraphicsItem*>& selection, int group)
    : TMergingCommand(selection, Attribute::FromEditor(group))
{}

TCommandKind TCmdPinSwap::Kind() const
{
    return {"PinSwap", QT_TRANSLATE_NOOP("TCommandKind", "Change swap group of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "pins")};
}
