#include "properties/commands/TCmdPour.h"

TCmdPourClEtch::TCmdPourClEtch(QList<TGraphicsPourItem*> pours, double millimetres)
    : TMergingCommand(pours, Attribute::FromEditor(millimetres))
{}

TCmdPourClBorder::TCmdPourClBorder(QList<TGraphicsPourItem*> pours, double millimetres)
    : TMergingCommand(pours, Attribute::FromEditor(millimetres))
{}

TCmdPourClPour::TCmdPourClPour(QList<TGraphicsPourItem*> pours, double millimetres)
    : TMergingCommand(pours, Attribute::FromEditor(millimetres))
{}

TCmdPourLineWidth::TCmdPourLineWidth(QList<TGraphicsPourItem*> pours, double millimetres)
    : TMergingCommand(pours, Attribute::FromEditor(millimetres))
{}

TCmdPourMinArea::TCmdPourMinArea(QList<TGraphicsPourItem*> pours, double squareMillimetres)
    : TMergingCommand(pours, squareMillimetres)
{}

TCmdPourThermLine::TCmdPourThermLine(QList<TGraphicsPourItem*> pours, double millimetres)
    : TMergingCommand(pours, Attribute::FromEditor(millimetres))
{}

TCmdPourThermIsol::TCmdPourThermIsol(QList<TGraphicsPourItem*> pours, double millimetres)
    : TMergingCommand(pours, Attribute::FromEditor(millimetres))
{}

TCmdPourPrio::TCmdPourPrio(QList<TGraphicsPourItem*> pours, unsigned char priority) : TMergingCommand(pours, priority)
{}

TCmdPourNet::TCmdPourNet(QList<TGraphicsPourItem*> pours, const QString& net) : TMergingCommand(pours, net) {}

TCmdPourFillType::TCmdPourFillType(QList<TGraphicsPourItem*> pours, int brushStyle)
    : TAttributeCommand(pours, brushStyle)
{}

TCmdPourOnlyConn::TCmdPourOnlyConn(QList<TGraphicsPourItem*> pours, bool on) : TAttributeCommand(pours, on) {}

TCmdPourThermEn::TCmdPourThermEn(QList<TGraphicsPourItem*> pours, bool on) : TAttributeCommand(pours, on) {}

TCmdPourLayer::TCmdPourLayer(QList<TGraphicsPourItem*> pours, Osmirel::Layer layer) : TAttributeCommand(pours, layer) {}
