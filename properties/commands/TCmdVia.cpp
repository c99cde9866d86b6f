#include "properties/commands/TCmdVia.h"

#include "properties/commands/AttributeCommandEngine.h"

template class TMergingCommand<Attributes::ViaDiameter, CommandId::ViaDiam, MergeRule::TakeOver>;

TCmdViaDiam::TCmdViaDiam(const QList<TGraphicsItem*>& selection, double millimetres)
    : TMergingCommand(selection, Attribute::FromEditor(millimetres))
{}

TCommandKind TCmdViaDiam::Kind() const
{
    return {"ViaDiam", QT_TRANSLATE_NOOP("TCommandKind", "Change diameter of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "vias")};
}

template class TMergingCommand<Attributes::ViaDrill, CommandId::ViaDrill, MergeRule::TakeOver>;

TCmdViaDrill::TCmdViaDrill(const QList<TGraphicsItem*>& selection, double millimetres)
    : TMergingCommand(selection, Attribute::FromEditor(millimetres))
{}

TCommandKind TCmdViaDrill::Kind() const
{
    return {"ViaDrill", QT_TRANSLATE_NOOP("TCommandKind", "Change drill of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "vias and pads")};
}

template class TAttributeCommand<Attributes::ViaGroup>;

TCmdViaGroup::TCmdViaGroup(const QList<TGraphicsItem*>& selection, const QString& group)
    : TAttributeCommand(selection, group)
{}

TCommandKind TCmdViaGroup::Kind() const
{
    return {"ViaGroup", QT_TRANSLATE_NOOP("TCommandKind", "Change drill pair of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "vias")};
}

template class TAttributeCommand<Attributes::ViaThermal>;

TCmdViaTherm::TCmdViaTherm(const QList<TGraphicsItem*>& selection, int thermal)
    : TAttributeCommand(selection, Attribute::FromEditor(thermal))
{}

TCommandKind TCmdViaTherm::Kind() const
{
    return {"ViaTherm", QT_TRANSLATE_NOOP("TCommandKind", "Change thermal connection of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "vias and pads")};
}
