#include "properties/sets/TPropertySetForHole.h"

#include "properties/commands/TCmdPrimitive.h"
#include "properties/sets/RowValues.h"
#include "properties/sets/Selection.h"

TPropertySetForHole::TPropertySetForHole(const QList<TGraphicsItem*>& items)
    : TPropertySet(tr("Hole")), holes(Selection::Pick<Attributes::OfKind<ItemType::Hole>, TGraphicsRectItem>(items))
{
    const auto diameter = holes.isEmpty() ? 0.0F : static_cast<float>(holes.last()->Size().width());
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
    QList<TGraphicsRectItem*> bypassing;
    for (TGraphicsRectItem* hole : qAsConst(holes)) {
        // Intended: each hole's own flag decides, not the first one's.
        (hole->HasTFlag(TGraphicsItem::UndoBypass) ? bypassing : pending).append(hole);
    }
    const QPointer<TPropertySetForHole> self(this);
    WriteAll(bypassing, [size](TGraphicsRectItem& hole) { Attributes::RectSize::Write(hole, {size, size}); });
    if (self && !pending.isEmpty()) {
        Emit(new TCmdRectSize(pending, size, size));
    }
}
