#include "properties/sets/TPropertySetForMilling.h"

#include "properties/commands/TCmdPrimitive.h"
#include "properties/sets/RowValues.h"
#include "properties/sets/Selection.h"

namespace {

struct MillingPaths
{
    static bool Accepts(const TGraphicsItem& item)
    {
        return item.type() == ItemType::Polyline && item.Layer() == Osmirel::Milling;
    }
};

} // namespace

TPropertySetForMilling::TPropertySetForMilling(QList<TGraphicsItem*> selection)
    : TPropertySet(tr("Milling")), items(Selection::Pick<MillingPaths>(selection))
{
    if (items.isEmpty()) {
        return;
    }
    const double width = Attributes::PenWidth::Read(static_cast<const TGraphicsPenItem&>(*items.last()));
    lineWidth = NewRow<TPropertyFloatSpin>(tr("Line width:"), 0.1, 99.0, 0.1, 2);
    RowValues::Show(*lineWidth, Units::MillimetresFromScene(width), tr(" mm"));
    connect(lineWidth, SIGNAL(sigValueChanged(qreal)), this, SLOT(slotSetLineWidth(double)));
    AddProperty(lineWidth);
}

void TPropertySetForMilling::slotSetLineWidth(double width)
{
    Edit<TCmdPenWidth>(items, width);
}
