#include "workbench/importer/board/ElementReaders.h"
#include "workbench/importer/board/TFootprintFrame.h"
#include "workbench/importer/format/ArcPath.h"
#include "workbench/importer/format/ElementValues.h"
#include "workbench/importer/format/Measures.h"
#include "workbench/importer/format/ShapeValues.h"

#include <graphics/TGraphicsArcItem.h>
#include <graphics/TGraphicsEllipseItem.h>
#include <graphics/TGraphicsLineItem.h>
#include <graphics/TGraphicsPolygonItem.h>
#include <graphics/TGraphicsPolylineItem.h>
#include <objects/TGraphicsPackageItem.h>

#include <QLineF>

namespace {

using ShapeValues::Point;

std::unique_ptr<TGraphicsPenItem> Line(const TSexpression& shape)
{
    auto line = std::make_unique<TGraphicsLineItem>();
    line->SetLine({Point(shape, "start"), Point(shape, "end")});
    return line;
}

std::unique_ptr<TGraphicsPenItem> Arc(const TSexpression& shape)
{
    const std::optional<ArcPath::TArc> place = ShapeValues::Arc(shape);
    if (!place) {
        return Line(shape);
    }
    auto arc = std::make_unique<TGraphicsArcItem>();
    arc->setPos(place->centre);
    arc->SetArc(place->radius, place->startAngle, place->sweep);
    return arc;
}

/** A rectangle, or a shape that fills one. Sizes are rounded to single precision, as in the commands. */
template <class Item>
std::unique_ptr<TGraphicsPenItem> Box(const TSexpression& shape, const QPointF& centre, const QSizeF& size)
{
    auto box = std::make_unique<Item>();
    box->setPos(centre);
    box->SetSize(static_cast<float>(size.width()), static_cast<float>(size.height()));
    box->Brush().setStyle(ShapeValues::FillStyle(shape));
    return box;
}

std::unique_ptr<TGraphicsPenItem> Circle(const TSexpression& shape)
{
    const QPointF centre = Point(shape, "center");
    const double diameter = 2 * QLineF(centre, Point(shape, "end")).length();
    return Box<TGraphicsEllipseItem>(shape, centre, {diameter, diameter});
}

std::unique_ptr<TGraphicsPenItem> Rectangle(const TSexpression& shape)
{
    const QRectF rectangle = QRectF(Point(shape, "start"), Point(shape, "end")).normalized();
    return Box<TGraphicsRectItem>(shape, rectangle.center(), rectangle.size());
}

std::unique_ptr<TGraphicsPenItem> Polygon(const TSexpression& shape)
{
    auto polygon = std::make_unique<TGraphicsPolygonItem>();
    polygon->SetPoints(ShapeValues::CornersOfPoints(shape.Get("pts")));
    polygon->Brush().setStyle(ShapeValues::FillStyle(shape));
    return polygon;
}

std::unique_ptr<TGraphicsPenItem> Polyline(const TSexpression& shape)
{
    auto polyline = std::make_unique<TGraphicsPolylineItem>();
    polyline->SetPoints(ShapeValues::Corners(ShapeValues::Path(shape)));
    return polyline;
}

constexpr struct
{
    std::string_view name;
    std::unique_ptr<TGraphicsPenItem> (*make)(const TSexpression&);
} makers[] = {
    {"line", Line}, {"arc", Arc}, {"circle", Circle}, {"rect", Rectangle}, {"poly", Polygon}, {"curve", Polyline},
};

std::unique_ptr<TGraphicsPenItem> Item(const TSexpression& shape, Osmirel::Layer layer)
{
    const auto maker = std::find_if(std::begin(makers), std::end(makers),
                                    [&shape](const auto& each) { return each.name == ShapeValues::KindName(shape); });
    std::unique_ptr<TGraphicsPenItem> item =
        layer == Osmirel::Milling || maker == std::end(makers) ? Polyline(shape) : maker->make(shape);
    item->SetLayer(layer);
    item->SetPenWidth(static_cast<float>(ShapeValues::StrokeWidth(shape)));
    item->Pen().setStyle(ShapeValues::StrokeStyle(shape));
    item->SetTFlag(TGraphicsItem::Lock, shape.HasFlag("locked"));
    return item;
}

/** Counts attributes that the item lacks. */
void CountLosses(const TSexpression& shape, TBoardDraft& draft)
{
    if (!draft.NetOf(shape).isEmpty()) {
        draft.notShown.Count("nets of graphic shapes");
    }
    if (shape.Find("layers")) {
        draft.notShown.Count("further layers of graphic shapes");
    }
}

} // namespace

void ElementReaders::ReadGraphic(const TSexpression& shape, TBoardDraft& draft)
{
    const Osmirel::Layer layer = draft.LayerOf(shape);
    if (layer == Osmirel::NoLayer) {
        draft.notShown.Count("graphic shapes on unknown layers");
    } else if (layer == Osmirel::BoardOutline) {
        draft.edges.push_back({shape, QTransform(), nullptr});
    } else {
        CountLosses(shape, draft);
        draft.board->Attach(Item(shape, layer));
    }
}

void ElementReaders::ReadFootprintGraphic(const TSexpression& shape, const TFootprintFrame& footprint,
                                          TBoardDraft& draft)
{
    const Osmirel::Layer layer = draft.LayerOf(shape);
    if (layer == Osmirel::NoLayer) {
        draft.notShown.Count("graphic shapes on unknown layers");
    } else if (layer == Osmirel::BoardOutline) {
        draft.edges.push_back({shape, footprint.package.sceneTransform(), &footprint.package});
    } else {
        CountLosses(shape, draft);
        Item(shape, layer).release()->setParentItem(&footprint.package);
    }
}

void ElementReaders::ReadOpenEdge(const TEdgeShape& edge, TBoardDraft& draft)
{
    std::unique_ptr<TGraphicsPenItem> item = Item(edge.shape, Osmirel::BoardOutline);
    if (edge.package) {
        item.release()->AttachTo(draft.board->Scene());
    } else {
        draft.board->Attach(std::move(item));
    }
}
