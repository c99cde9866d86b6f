#include "workbench/importer/format/ArcPath.h"
#include "workbench/importer/format/ElementValues.h"
#include "workbench/importer/format/Measures.h"
#include "workbench/importer/format/ShapeValues.h"
#include "workbench/importer/schematic/PageItems.h"

#include <graphics/TGraphicsArcItem.h>
#include <graphics/TGraphicsEllipseItem.h>
#include <graphics/TGraphicsLineItem.h>
#include <graphics/TGraphicsPolygonItem.h>
#include <graphics/TGraphicsPolylineItem.h>

#include <QLineF>

#include <algorithm>

namespace {

using PageItems::TMap;

QPointF Point(const TSexpression& shape, std::string_view name, const TMap& map)
{
    return Measures::ScenePoint(map(ElementValues::GridPoint(shape.Get(name))));
}

/** Only fills in the line colour: a background fill would hide what is behind. */
Qt::BrushStyle FillStyle(const TSexpression& shape)
{
    const std::optional<TSexpression> fill = shape.Find("fill");
    const std::optional<TSexpression> type = fill ? fill->Find("type") : std::nullopt;
    return type && type->Value(0).IsWord("outline") ? Qt::SolidPattern : Qt::NoBrush;
}

QPolygonF Points(const TSexpression& shape, const TMap& map)
{
    QPolygonF points;
    for (const TSexpression point : shape.Get("pts")) {
        points.append(Measures::ScenePoint(map(ElementValues::GridPoint(point))));
    }
    return points;
}

std::unique_ptr<TGraphicsPenItem> Line(const QPointF& from, const QPointF& to)
{
    auto line = std::make_unique<TGraphicsLineItem>();
    line->SetLine({from, to});
    return line;
}

std::unique_ptr<TGraphicsPenItem> Polyline(const TSexpression& shape, const TMap& map)
{
    const QPolygonF points = Points(shape, map);
    if (points.size() == 2) {
        return Line(points[0], points[1]);
    }
    if (FillStyle(shape) != Qt::NoBrush || (points.size() > 3 && points.isClosed())) {
        auto polygon = std::make_unique<TGraphicsPolygonItem>();
        polygon->SetPoints(points);
        polygon->Brush().setStyle(FillStyle(shape));
        return polygon;
    }
    auto polyline = std::make_unique<TGraphicsPolylineItem>();
    polyline->SetPoints(points);
    return polyline;
}

template <class Item>
std::unique_ptr<TGraphicsPenItem> Area(const TSexpression& shape, const QRectF& place)
{
    auto item = std::make_unique<Item>();
    item->setPos(place.center());
    item->SetSize(static_cast<float>(place.width()), static_cast<float>(place.height()));
    item->Brush().setStyle(FillStyle(shape));
    return item;
}

std::unique_ptr<TGraphicsPenItem> Rectangle(const TSexpression& shape, const TMap& map)
{
    return Area<TGraphicsRectItem>(shape, QRectF(Point(shape, "start", map), Point(shape, "end", map)).normalized());
}

std::unique_ptr<TGraphicsPenItem> Circle(const TSexpression& shape, const TMap& map)
{
    const QPointF centre = Point(shape, "center", map);
    const double radius = Measures::SceneLength(shape.Get("radius").Value(0).Extent());
    return Area<TGraphicsEllipseItem>(shape, {centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius});
}

std::unique_ptr<TGraphicsPenItem> Arc(const TSexpression& shape, const TMap& map)
{
    const QPointF start = Point(shape, "start", map);
    const QPointF end = Point(shape, "end", map);
    const std::optional<ArcPath::TArc> place = ArcPath::Through(start, Point(shape, "mid", map), end);
    if (!place) {
        return Line(start, end);
    }
    auto arc = std::make_unique<TGraphicsArcItem>();
    arc->setPos(place->centre);
    arc->SetArc(place->radius, place->startAngle, place->sweep);
    return arc;
}

std::unique_ptr<TGraphicsPenItem> Curve(const TSexpression& shape, const TMap& map)
{
    const QPolygonF points = Points(shape, map);
    if (points.size() != 4) {
        shape.Fail(QStringLiteral("a curve of %1 points instead of 4").arg(points.size()));
    }
    QPainterPath path(points[0]);
    path.cubicTo(points[1], points[2], points[3]);
    auto polyline = std::make_unique<TGraphicsPolylineItem>();
    polyline->SetPoints(ShapeValues::Corners(path));
    return polyline;
}

constexpr struct
{
    std::string_view name;
    std::unique_ptr<TGraphicsPenItem> (*make)(const TSexpression& shape, const TMap& map);
} makers[] = {
    {"polyline", Polyline}, {"rectangle", Rectangle}, {"circle", Circle}, {"arc", Arc}, {"bezier", Curve},
};

} // namespace

std::unique_ptr<TGraphicsPenItem> PageItems::Shape(const TSexpression& element, const TMap& map)
{
    constexpr qint64 usualWidth = 152'400; // Nanometres.
    const auto maker = std::find_if(std::begin(makers), std::end(makers),
                                    [&element](const auto& each) { return each.name == element.Name(); });
    if (maker == std::end(makers)) {
        return nullptr;
    }
    std::unique_ptr<TGraphicsPenItem> item = maker->make(element, map);
    const double width = ShapeValues::StrokeWidth(element);
    item->SetPenWidth(static_cast<float>(width > 0 ? width : Measures::SceneLength(usualWidth)));
    item->Pen().setStyle(ShapeValues::StrokeStyle(element));
    item->SetLayer(Osmirel::SchematicSymbols);
    item->SetAltColor(ShapeValues::StrokeColor(element));
    return item;
}
