#include "properties/commands/TCmdPad.h"

#include "properties/commands/AttributeCommandEngine.h"

template class TMergingCommand<Attributes::PadWidth, CommandId::PadWidth, MergeRule::TakeOver>;

TCmdPadWidth::TCmdPadWidth(const QList<TGraphicsItem*>& selection, double millimetres)
    : TMergingCommand(selection, Attribute::FromEditor(millimetres))
{}

TCommandKind TCmdPadWidth::Kind() const
{
    return {"PadWidth", QT_TRANSLATE_NOOP("TCommandKind", "Change width of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "pads")};
}

template class TMergingCommand<Attributes::PadHeight, CommandId::PadHeight, MergeRule::TakeOver>;

TCmdPadHeight::TCmdPadHeight(const QList<TGraphicsItem*>& selection, double millimetres)
    : TMergingCommand(selection, Attribute::FromEditor(millimetres))
{}

TCommandKind TCmdPadHeight::Kind() const
{
    return {"PadHeight", QT_TRANSLATE_NOOP("TCommandKind", "Change height of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "pads")};
}

template class TAttributeCommand<Attributes::PadNumber>;

TCmdPadNumber::TCmdPadNumber(const QList<TGraphicsItem*>& selection, const QString& number)
    : TAttributeCommand(selection, number)
{}

TCommandKind TCmdPadNumber::Kind() const
{
    return {"PadNumber", QT_TRANSLATE_NOOP("TCommandKind", "Renumber %1"), QT_TRANSLATE_NOOP("TCommandKind", "pads")};
}

template class TAttributeCommand<Attributes::PadName>;

TCmdPadName::TCmdPadName(const QList<TGraphicsItem*>& selection, const QString& name)
    : TAttributeCommand(selection, name)
{}

TCommandKind TCmdPadName::Kind() const
{
    return {"PadName", QT_TRANSLATE_NOOP("TCommandKind", "Rename %1"), QT_TRANSLATE_NOOP("TCommandKind", "pads")};
}

template class TAttributeCommand<Attributes::PadShape>;

TCmdPadShape::TCmdPadShape(const QList<TGraphicsItem*>& selection, int shape)
    : TAttributeCommand(selection, Attribute::FromEditor(shape))
{}

TCommandKind TCmdPadShape::Kind() const
{
    return {"PadShape", QT_TRANSLATE_NOOP("TCommandKind", "Change shape of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "pads")};
}

template class TAttributeCommand<Attributes::PadSide>;

TCmdPadSide::TCmdPadSide(const QList<TGraphicsItem*>& selection, Osmirel::Layer side)
    : TAttributeCommand(selection, side)
{}

TCommandKind TCmdPadSide::Kind() const
{
    return {"PadSide", QT_TRANSLATE_NOOP("TCommandKind", "Change side of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "pads")};
}

template class TAttributeCommand<Attributes::PadType>;

TCmdPadType::TCmdPadType(const QList<TGraphicsItem*>& selection, bool smd) : TAttributeCommand(selection, smd) {}

TCommandKind TCmdPadType::Kind() const
{
    return {"PadType", QT_TRANSLATE_NOOP("TCommandKind", "Change type of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "pads")};
}
