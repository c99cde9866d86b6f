#include "properties/sets/TPropertySetForMilling.h"

#include "properties/commands/TCmdPrimitive.h"
#include "properties/sets/RowValues.h"

TPropertySetForMilling::TPropertySetForMilling(QList<TGraphicsItem*> selection) : TPropertySet(tr("Milling"))
{
    double width = 0;
    for (TGraphicsItem* item : qAsConst(selection)) {
        if (item->type() == ItemType::Polyline && item->Layer() == Osmirel::Milling) {
            items.append(item);
            width = Attributes::PenWidth::Read(static_cast<const TGraphicsPenItem&>(*item));
        }
    }
    if (items.isEmpty()) {
        return;
    }
    lineWidth = NewRow<TPropertyFloatSpin>(tr("Line width:"), 0.1, 99.0, 0.1, 2);
    RowValues::Show(*lineWidth, Units::MillimetresFromScene(width), tr(" mm"));
    connect(lineWidth, SIGNAL(sigValueChanged(qreal)), this, SLOT(slotSetLineWidth(double)));
    AddProperty(lineWidth);
}

void TPropertySetForMilling::slotSetLineWidth(double width)
{
    Edit<TCmdPenWidth>(items, width);
}
