#include "workbench/importer/board/PadPrimitives.h"

#include "workbench/importer/board/TBoardDraft.h"
#include "workbench/importer/format/ShapeValues.h"

#include <QPainterPathStroker>

namespace {

QPainterPath Copper(const TSexpression& shape)
{
    const QPainterPath path = ShapeValues::Path(shape);
    const double width = ShapeValues::StrokeWidth(shape);
    QPainterPath copper;
    if (ShapeValues::IsArea(shape) && ShapeValues::IsFilled(shape, width <= 0)) {
        copper = path;
    }
    if (width > 0) {
        QPainterPathStroker stroker;
        stroker.setWidth(width);
        stroker.setCapStyle(Qt::RoundCap);
        stroker.setJoinStyle(Qt::RoundJoin);
        copper = copper.united(stroker.createStroke(path));
    }
    return copper;
}

} // namespace

QPainterPath ReadPadPrimitives(const TSexpression& primitives, TBoardDraft& draft)
{
    QPainterPath copper;
    for (const TSexpression shape : primitives) {
        if (!ShapeValues::IsShape(shape)) {
            draft.notShown.Count("parts of custom pads");
        } else {
            copper = copper.united(Copper(shape));
        }
    }
    return copper;
}
