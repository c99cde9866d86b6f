#include "properties/sets/TPropertySetForOutline.h"

#include "properties/sets/RowValues.h"
#include "properties/sets/Selection.h"

#include <objects/TGraphicsOutlineItem.h>

#include <cmath>

TPropertySetForOutline::TPropertySetForOutline(const QList<TGraphicsItem*>& selection) : TPropertySet(tr("Outline"))
{
    const auto outlines = Selection::Pick<Attributes::OfKind<ItemType::Outline>, TGraphicsOutlineItem>(selection);
    if (outlines.isEmpty()) {
        return;
    }
    const TGraphicsOutlineItem* outline = outlines.last();
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
