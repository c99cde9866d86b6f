#include "properties/commands/TCmdVia.h"

TCmdViaDiam::TCmdViaDiam(const QList<TGraphicsItem*>& selection, double millimetres)
    : TMergingCommand(selection, Attribute::FromEditor(millimetres))
{}

TCmdViaDrill::TCmdViaDrill(const QList<TGraphicsItem*>& selection, double millimetres)
    : TMergingCommand(selection, Attribute::FromEditor(millimetres))
{}

TCmdViaGroup::TCmdViaGroup(const QList<TGraphicsItem*>& selection, const QString& group)
    : TAttributeCommand(selection, group)
{}

TCmdViaTherm::TCmdViaTherm(const QList<TGraphicsItem*>& selection, int thermal)
    : TAttributeCommand(selection, Attribute::FromEditor(thermal))
{}
