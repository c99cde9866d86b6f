#include "properties/sets/TPropertySetForHole.h"

#include "properties/commands/TCmdPrimitive.h"
#include "properties/sets/RowValues.h"

TPropertySetForHole::TPropertySetForHole(const QList<TGraphicsItem*>& items) : TPropertySet(tr("Hole"))
{
    float diameter = 0;
    for (TGraphicsItem* item : items) {
        if (item->type() == ItemType::Hole) {
            holes.append(static_cast<TGraphicsRectItem*>(item));
            diameter = static_cast<float>(holes.last()->Size().width());
        }
    }
    diam = NewRow<TPropertyFloatSpin>(tr("Diameter:"), 0.1, 99.0, 0.1, 2);
    // Intended: always millimetres, whatever unit the workspace shows.
    RowValues::Show(*diam, Units::MillimetresFromScene(static_cast<double>(diameter)), tr(" mm"));
    connect(diam, SIGNAL(sigValueChanged(qreal)), this, SLOT(slotDiam(double)));
    AddProperty(diam);
}

void TPropertySetForHole::slotDiam(double diameter)
{
    const double size = Units::SceneFromMillimetres(diameter);
    QList<TGraphicsRectItem*> pending;
    for (TGraphicsRectItem* hole : qAsConst(holes)) {
        // Intended: each hole's own flag decides, not the first one's.
        if (hole->HasTFlag(TGraphicsItem::UndoBypass)) {
            Attributes::RectSize::Write(*hole, {size, size});
        } else {
            pending.append(hole);
        }
    }
    if (!pending.isEmpty()) {
        Emit(new TCmdRectSize(pending, size, size));
    }
}
