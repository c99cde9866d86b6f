#include "properties/commands/TCmdPad.h"

TCmdPadWidth::TCmdPadWidth(const QList<TGraphicsItem*>& selection, double millimetres)
    : TMergingCommand(selection, Attribute::FromEditor(millimetres))
{}

TCmdPadHeight::TCmdPadHeight(const QList<TGraphicsItem*>& selection, double millimetres)
    : TMergingCommand(selection, Attribute::FromEditor(millimetres))
{}

TCmdPadNumber::TCmdPadNumber(const QList<TGraphicsItem*>& selection, const QString& number)
    : TAttributeCommand(selection, number)
{}

TCmdPadName::TCmdPadName(const QList<TGraphicsItem*>& selection, const QString& name)
    : TAttributeCommand(selection, name)
{}

TCmdPadShape::TCmdPadShape(const QList<TGraphicsItem*>& selection, int shape)
    : TAttributeCommand(selection, Attribute::FromEditor(shape))
{}

TCmdPadSide::TCmdPadSide(const QList<TGraphicsItem*>& selection, Osmirel::Layer side)
    : TAttributeCommand(selection, side)
{}

TCmdPadType::TCmdPadType(const QList<TGraphicsItem*>& selection, bool smd) : TAttributeCommand(selection, smd) {}
