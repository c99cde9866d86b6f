#include "workbench/importer/format/ShapeValues.h"

#include "workbench/importer/format/ElementValues.h"
#include "workbench/importer/format/Measures.h"

#include <QLineF>

#include <algorithm>

namespace {

using ElementValues::Position;
using ShapeValues::Point;

QPainterPath LinePath(const TSexpression& line)
{
    QPainterPath path(Point(line, "start"));
    path.lineTo(Point(line, "end"));
    return path;
}

QPainterPath CurvedPath(const TSexpression& arc)
{
    const std::optional<ArcPath::TArc> place = ShapeValues::Arc(arc);
    return place ? ArcPath::Path(*place) : LinePath(arc);
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
    path.addPolygon(ShapeValues::CornersOfPoints(polygon.Get("pts")));
    path.closeSubpath();
    return path;
}

struct TShapeKind
{
    std::string_view name; ///< Without the prefix for the parent.
    QPainterPath (*path)(const TSexpression&);
    bool isArea; ///< Whether it has an inside that can be filled.
};

constexpr TShapeKind shapeKinds[] = {
    {"line", LinePath, false},    {"arc", CurvedPath, false},    {"curve", CurvePath, false},
    {"circle", CirclePath, true}, {"rect", RectanglePath, true}, {"poly", PolygonPath, true},
};

const TShapeKind* Kind(const TSexpression& shape)
{
    const std::string_view name = ShapeValues::KindName(shape);
    const auto kind = std::find_if(std::begin(shapeKinds), std::end(shapeKinds),
                                   [name](const TShapeKind& known) { return known.name == name; });
    return kind == std::end(shapeKinds) ? nullptr : &*kind;
}

} // namespace

std::string_view ShapeValues::KindName(const TSexpression& shape)
{
    const std::string_view name = shape.Name();
    const bool hasPrefix = name.substr(0, 3) == "gr_" || name.substr(0, 3) == "fp_";
    return hasPrefix ? name.substr(3) : std::string_view();
}

bool ShapeValues::IsShape(const TSexpression& element)
{
    return Kind(element) != nullptr;
}

bool ShapeValues::IsArea(const TSexpression& shape)
{
    const TShapeKind* kind = Kind(shape);
    return kind && kind->isArea;
}

QPointF ShapeValues::Point(const TSexpression& shape, std::string_view name)
{
    return Position(shape.Get(name));
}

QPainterPath ShapeValues::Path(const TSexpression& shape)
{
    const TShapeKind* kind = Kind(shape);
    return kind ? kind->path(shape) : QPainterPath();
}

std::optional<ArcPath::TArc> ShapeValues::Arc(const TSexpression& arc)
{
    const QPointF start = Point(arc, "start");
    const QPointF end = Point(arc, "end");
    if (const std::optional<TSexpression> clockwise = arc.Find("angle")) {
        const QLineF toStart(start, end); // From the centre to the start.
        return ArcPath::TArc{start, toStart.length(), toStart.angle(), -clockwise->Value(0).Decimal()};
    }
    return ArcPath::Through(start, Point(arc, "mid"), end);
}

double ShapeValues::StrokeWidth(const TSexpression& shape)
{
    const std::optional<TSexpression> stroke = shape.Find("stroke");
    const std::optional<TSexpression> width = (stroke ? *stroke : shape).Find("width");
    return width ? Measures::SceneLength(width->Value(0).Extent()) : 0;
}

Qt::PenStyle ShapeValues::StrokeStyle(const TSexpression& shape)
{
    static constexpr std::pair<std::string_view, Qt::PenStyle> styles[] = {
        {"dash", Qt::DashLine},
        {"dot", Qt::DotLine},
        {"dash_dot", Qt::DashDotLine},
        {"dash_dot_dot", Qt::DashDotDotLine},
    };
    const std::optional<TSexpression> stroke = shape.Find("stroke");
    const std::optional<TSexpression> type = stroke ? stroke->Find("type") : std::nullopt;
    const auto style = std::find_if(std::begin(styles), std::end(styles),
                                    [&type](const auto& entry) { return type && type->Value(0).IsWord(entry.first); });
    return style == std::end(styles) ? Qt::SolidLine : style->second;
}

QColor ShapeValues::StrokeColor(const TSexpression& shape)
{
    const std::optional<TSexpression> stroke = shape.Find("stroke");
    const std::optional<TSexpression> color = stroke ? stroke->Find("color") : std::nullopt;
    if (!color || color->Value(3).Decimal() <= 0) {
        return {};
    }
    const auto channel = [&color](int index) { return std::clamp(qRound(color->Value(index).Decimal()), 0, 255); };
    return {channel(0), channel(1), channel(2)};
}

bool ShapeValues::IsFilled(const TSexpression& shape, bool otherwise)
{
    if (const std::optional<TSexpression> fill = shape.Find("fill")) {
        return fill->HasFlag("yes") || fill->HasFlag("solid");
    }
    return KindName(shape) == "poly" || otherwise;
}

Qt::BrushStyle ShapeValues::FillStyle(const TSexpression& shape)
{
    static constexpr std::pair<std::string_view, Qt::BrushStyle> hatches[] = {
        {"hatch", Qt::BDiagPattern},
        {"reverse_hatch", Qt::FDiagPattern},
        {"cross_hatch", Qt::DiagCrossPattern},
    };
    if (!IsArea(shape)) {
        return Qt::NoBrush;
    }
    const std::optional<TSexpression> fill = shape.Find("fill");
    const auto hatch = std::find_if(std::begin(hatches), std::end(hatches),
                                    [&fill](const auto& entry) { return fill && fill->HasFlag(entry.first); });
    if (hatch != std::end(hatches)) {
        return hatch->second;
    }
    return IsFilled(shape, false) ? Qt::SolidPattern : Qt::NoBrush;
}

QPolygonF ShapeValues::Corners(const QPainterPath& path)
{
    // The toolkit flattens curves to within half a unit: here about a micrometre.
    constexpr double fineness = 40;
    const QList<QPolygonF> polygons = path.toSubpathPolygons(QTransform::fromScale(fineness, fineness));
    const QPolygonF corners = polygons.value(0);
    return QTransform::fromScale(1 / fineness, 1 / fineness).map(corners);
}

QPolygonF ShapeValues::CornersOfPoints(const TSexpression& points)
{
    QPolygonF corners;
    for (const TSexpression point : points) {
        if (point.Name() == "arc") {
            const QPointF start = Point(point, "start");
            QPainterPath path(start);
            ArcPath::AddThrough(path, start, Point(point, "mid"), Point(point, "end"));
            corners += Corners(path);
        } else {
            corners.append(Position(point));
        }
    }
    return corners;
}
