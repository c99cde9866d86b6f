#include "workbench/importer/PadPrimitives.h"

#include "workbench/importer/ArcPath.h"
#include "workbench/importer/ElementParts.h"
#include "workbench/importer/Measures.h"
#include "workbench/importer/TBoardDraft.h"

#include <QLineF>

namespace {

using ElementParts::Position;

QPointF Point(const TSexpression& shape, std::string_view name)
{
    return Position(shape.Get(name));
}

QPainterPath LinePath(const TSexpression& line)
{
    QPainterPath path(Point(line, "start"));
    path.lineTo(Point(line, "end"));
    return path;
}

/** Three points on the arc; in the oldest files its centre, its start and the angle of its sweep. */
QPainterPath Arc(const TSexpression& arc)
{
    if (const std::optional<TSexpression> angle = arc.Find("angle")) {
        return ArcPath::Around(Point(arc, "start"), Point(arc, "end"), angle->Value(0).Decimal());
    }
    const QPointF start = Point(arc, "start");
    QPainterPath path(start);
    ArcPath::AddThrough(path, start, Point(arc, "mid"), Point(arc, "end"));
    return path;
}

QPainterPath CirclePath(const TSexpression& circle)
{
    const QPointF centre = Point(circle, "center");
    const double radius = QLineF(centre, Point(circle, "end")).length();
    QPainterPath path;
    path.addEllipse(centre, radius, radius);
    return path;
}

QPainterPath RectanglePath(const TSexpression& rectangle)
{
    QPainterPath path;
    path.addRect(QRectF(Point(rectangle, "start"), Point(rectangle, "end")).normalized());
    return path;
}

QPainterPath CurvePath(const TSexpression& curve)
{
    const TSexpression points = curve.Get("pts");
    QPainterPath path(Position(points.Value(0)));
    path.cubicTo(Position(points.Value(1)), Position(points.Value(2)), Position(points.Value(3)));
    return path;
}

QPainterPath PolygonPath(const TSexpression& polygon)
{
    QPainterPath path;
    const auto continueTo = [&path](const QPointF& point) {
        path.elementCount() == 0 ? path.moveTo(point) : path.lineTo(point);
    };
    for (const TSexpression point : polygon.Get("pts")) {
        if (point.Name() == "arc") {
            const QPointF start = Point(point, "start");
            continueTo(start);
            ArcPath::AddThrough(path, start, Point(point, "mid"), Point(point, "end"));
        } else {
            continueTo(Position(point));
        }
    }
    path.closeSubpath();
    return path;
}

struct TPrimitive
{
    std::string_view token;
    QPainterPath (*path)(const TSexpression&);
    bool isArea; ///< Has an inside that can be filled.
};

constexpr TPrimitive primitiveKinds[] = {
    {"gr_line", LinePath, false},    {"gr_arc", Arc, false},           {"gr_curve", CurvePath, false},
    {"gr_circle", CirclePath, true}, {"gr_rect", RectanglePath, true}, {"gr_poly", PolygonPath, true},
};

/** In scene units; it stands in a `stroke` in newer files. */
double StrokeWidth(const TSexpression& shape)
{
    const std::optional<TSexpression> stroke = shape.Find("stroke");
    const std::optional<TSexpression> width = (stroke ? *stroke : shape).Find("width");
    return width ? Measures::SceneLength(width->Value(0).Extent()) : 0;
}

/** Whether the inside is copper too. Where the file does not say it, polygons are, and shapes without an edge. */
bool IsFilled(const TSexpression& shape, double strokeWidth)
{
    if (const std::optional<TSexpression> fill = shape.Find("fill")) {
        return fill->HasFlag("yes") || fill->HasFlag("solid");
    }
    return shape.Name() == "gr_poly" || strokeWidth <= 0;
}

QPainterPath Copper(const TSexpression& shape, const TPrimitive& kind)
{
    const QPainterPath path = kind.path(shape);
    const double width = StrokeWidth(shape);
    QPainterPath copper;
    if (kind.isArea && IsFilled(shape, width)) {
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
        const auto kind = std::find_if(std::begin(primitiveKinds), std::end(primitiveKinds),
                                       [&shape](const TPrimitive& known) { return known.token == shape.Name(); });
        if (kind == std::end(primitiveKinds)) {
            draft.notShown.Count("parts of custom pads");
        } else {
            copper = copper.united(Copper(shape, *kind));
        }
    }
    return copper;
}
