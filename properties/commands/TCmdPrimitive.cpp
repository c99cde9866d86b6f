#include "properties/commands/TCmdPrimitive.h"

TCmdRectSize::TCmdRectSize(const QList<TGraphicsRectItem*>& selection, double width, double height)
    : TAttributeCommandWithId(selection, QSizeF(width, height))
{}
