#include "properties/sets/TPropertySetForOutline.h"

#include "properties/commands/Units.h"
#include "properties/sets/RowValues.h"

#include <objects/TGraphicsOutlineItem.h>

#include <cmath>

TPropertySetForOutline::TPropertySetForOutline(const QList<TGraphicsItem*>& selection) : TPropertySet(tr("Outline"))
{
    const TGraphicsOutlineItem* outline = nullptr;
    for (const TGraphicsItem* item : selection) {
        if (item->type() == ItemType::Outline) {
            outline = static_cast<const TGraphicsOutlineItem*>(item);
        }
    }
    if (!outline) {
        return;
    }
    const QRectF extent = outline->Path().boundingRect();
    size = NewRow<TPropertySize>(tr("Size:"), 0.0, 9999.0, 1.0, 2);
    RowValues::Show(*size, Units::MillimetresFromScene(std::abs(extent.width())),
                    Units::MillimetresFromScene(std::abs(extent.height())), tr(" mm"));
    size->SetEnabled(false);
    AddProperty(size);
    if (outline->HasTFlag(TGraphicsItem::UndoBypass)) {
        AddLineLength(*outline);
    }
}

void TPropertySetForOutline::AddLineLength(const TGraphicsOutlineItem& outline)
{
    constexpr int straightLine = 0;
    const QVector<OutlinePointStruct>& points = outline.Points();
    if (points.size() < 2) {
        return;
    }
    const OutlinePointStruct& last = points.last();
    const OutlinePointStruct& secondToLast = points.at(points.size() - 2);
    if (last.kind != straightLine || secondToLast.kind != straightLine) {
        return;
    }
    const double length = Units::MillimetresFromScene(std::hypot(last.x - secondToLast.x, last.y - secondToLast.y));
    lineLength = NewRow<TPropertyText>(tr("Line length:"), RowValues::Millimetres(length), false);
    lineLength->SetEnabled(false);
    AddProperty(lineLength);
}
