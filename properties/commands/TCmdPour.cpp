#include "properties/commands/TCmdPour.h"

#include "properties/commands/AttributeCommandEngine.h"

template class TMergingCommand<Attributes::PourClEtch, CommandId::PourClEtch, MergeRule::TakeOver>;

TCmdPourClEtch::TCmdPourClEtch(QList<TGraphicsPourItem*> pours, double millimetres)
    : TMergingCommand(pours, Attribute::FromEditor(millimetres))
{}

TCommandKind TCmdPourClEtch::Kind() const
{
    return {"PourClEtch", QT_TRANSLATE_NOOP("TCommandKind", "Change clearance to etch of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "pours")};
}

template class TMergingCommand<Attributes::PourClBorder, CommandId::PourClBorder, MergeRule::TakeOver>;

TCmdPourClBorder::TCmdPourClBorder(QList<TGraphicsPourItem*> pours, double millimetres)
    : TMergingCommand(pours, Attribute::FromEditor(millimetres))
{}

TCommandKind TCmdPourClBorder::Kind() const
{
    return {"PourClBorder", QT_TRANSLATE_NOOP("TCommandKind", "Change clearance to border of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "pours")};
}

template class TMergingCommand<Attributes::PourClPour, CommandId::PourClPour, MergeRule::TakeOver>;

TCmdPourClPour::TCmdPourClPour(QList<TGraphicsPourItem*> pours, double millimetres)
    : TMergingCommand(pours, Attribute::FromEditor(millimetres))
{}

TCommandKind TCmdPourClPour::Kind() const
{
    return {"PourClPour", QT_TRANSLATE_NOOP("TCommandKind", "Change clearance to pour of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "pours")};
}

template class TMergingCommand<Attributes::PourLineWidth, CommandId::PourLineWidth, MergeRule::TakeOver>;

TCmdPourLineWidth::TCmdPourLineWidth(QList<TGraphicsPourItem*> pours, double millimetres)
    : TMergingCommand(pours, Attribute::FromEditor(millimetres))
{}

TCommandKind TCmdPourLineWidth::Kind() const
{
    return {"PourLineWidth", QT_TRANSLATE_NOOP("TCommandKind", "Change line width of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "pours")};
}

template class TMergingCommand<Attributes::PourMinArea, CommandId::PourMinArea, MergeRule::TakeOver>;

TCmdPourMinArea::TCmdPourMinArea(QList<TGraphicsPourItem*> pours, double squareMillimetres)
    : TMergingCommand(pours, squareMillimetres)
{}

TCommandKind TCmdPourMinArea::Kind() const
{
    return {"PourMinArea", QT_TRANSLATE_NOOP("TCommandKind", "Change minimum area of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "pours")};
}

template class TMergingCommand<Attributes::PourThermLine, CommandId::PourThermLine, MergeRule::TakeOver>;

TCmdPourThermLine::TCmdPourThermLine(QList<TGraphicsPourItem*> pours, double millimetres)
    : TMergingCommand(pours, Attribute::FromEditor(millimetres))
{}

TCommandKind TCmdPourThermLine::Kind() const
{
    return {"PourThermLine", QT_TRANSLATE_NOOP("TCommandKind", "Change thermal line of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "pours")};
}

template class TMergingCommand<Attributes::PourThermIsol, CommandId::PourThermIsol, MergeRule::TakeOver>;

TCmdPourThermIsol::TCmdPourThermIsol(QList<TGraphicsPourItem*> pours, double millimetres)
    : TMergingCommand(pours, Attribute::FromEditor(millimetres))
{}

TCommandKind TCmdPourThermIsol::Kind() const
{
    return {"PourThermIsol", QT_TRANSLATE_NOOP("TCommandKind", "Change thermal isolation of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "pours")};
}

template class TMergingCommand<Attributes::PourPrio, CommandId::PourPrio, MergeRule::TakeOver>;

TCmdPourPrio::TCmdPourPrio(QList<TGraphicsPourItem*> pours, unsigned char priority) : TMergingCommand(pours, priority)
{}

TCommandKind TCmdPourPrio::Kind() const
{
    return {"PourPrio", QT_TRANSLATE_NOOP("TCommandKind", "Change priority of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "pours")};
}

template class TMergingCommand<Attributes::PourNet, CommandId::PourNet, MergeRule::TakeOver>;

TCmdPourNet::TCmdPourNet(QList<TGraphicsPourItem*> pours, const QString& net) : TMergingCommand(pours, net) {}

TCommandKind TCmdPourNet::Kind() const
{
    return {"PourNet", QT_TRANSLATE_NOOP("TCommandKind", "Change net of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "pours")};
}

template class TAttributeCommand<Attributes::PourFillType>;

TCmdPourFillType::TCmdPourFillType(QList<TGraphicsPourItem*> pours, int brushStyle)
    : TAttributeCommand(pours, Attribute::FromEditor(brushStyle))
{}

TCommandKind TCmdPourFillType::Kind() const
{
    return {"PourFillType", QT_TRANSLATE_NOOP("TCommandKind", "Change filling of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "pours")};
}

template class TAttributeCommand<Attributes::PourOnlyConn>;

TCmdPourOnlyConn::TCmdPourOnlyConn(QList<TGraphicsPourItem*> pours, bool on) : TAttributeCommand(pours, on) {}

TCommandKind TCmdPourOnlyConn::Kind() const
{
    return {"PourOnlyConn", QT_TRANSLATE_NOOP("TCommandKind", "Switch unconnected copper of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "pours")};
}

template class TAttributeCommand<Attributes::PourThermEn>;

TCmdPourThermEn::TCmdPourThermEn(QList<TGraphicsPourItem*> pours, bool on) : TAttributeCommand(pours, on) {}

TCommandKind TCmdPourThermEn::Kind() const
{
    return {"PourThermEn", QT_TRANSLATE_NOOP("TCommandKind", "Switch thermal spokes of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "pours")};
}

template class TAttributeCommand<Attributes::PourLayer>;

TCmdPourLayer::TCmdPourLayer(QList<TGraphicsPourItem*> pours, Osmirel::Layer layer) : TAttributeCommand(pours, layer) {}

TCommandKind TCmdPourLayer::Kind() const
{
    return {"PourLayer", QT_TRANSLATE_NOOP("TCommandKind", "Change layer of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "pours")};
}
