#include "workbench/importer/PadPrimitives.h"

#include "workbench/importer/ShapeParts.h"
#include "workbench/importer/TBoardDraft.h"

#include <QPainterPathStroker>

namespace {

QPainterPath Copper(const TSexpression& shape)
{
    const QPainterPath path = ShapeParts::Path(shape);
    const double width = ShapeParts::StrokeWidth(shape);
    QPainterPath copper;
    if (ShapeParts::IsArea(shape) && ShapeParts::IsFilled(shape, width <= 0)) {
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
        if (!ShapeParts::IsShape(shape)) {
            draft.notShown.Count("parts of custom pads");
        } else {
            copper = copper.united(Copper(shape));
        }
    }
    return copper;
}
