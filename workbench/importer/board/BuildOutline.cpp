#include "workbench/importer/board/BuildOutline.h"

#include "workbench/importer/board/ElementReaders.h"
#include "workbench/importer/board/TBoardDraft.h"
#include "workbench/importer/format/Measures.h"
#include "workbench/importer/format/ShapeValues.h"

#include <objects/TGraphicsOutlineItem.h>

#include <QLineF>

#include <algorithm>
#include <iterator>

namespace {

using TCorners = QVector<OutlinePointStruct>;

/** The largest gap at which ends meet, in scene units. */
constexpr double largestGap = 0.1 * 300 / 25.4;

constexpr int corner = 0;
constexpr int arcMiddle = 1;

/** The corners of a shape from its start to its end. */
struct TEdge
{
    const TEdgeShape* source;
    TCorners corners;
    bool isUsed = false;

    QPointF Start() const { return {corners.first().x, corners.first().y}; }
    QPointF End() const { return {corners.last().x, corners.last().y}; }
};

/** A closed curve of scene corners, without repeating the first one at the end. */
struct TLoop
{
    TCorners corners;
    QPainterPath path;
    double width = 0;
};

TCorners CornersOf(const TEdgeShape& edge)
{
    TCorners corners;
    const auto add = [&](const QPointF& point, int kind) {
        const QPointF place = edge.toScene.map(point);
        corners.append({place.x(), place.y(), kind});
    };
    const TSexpression& shape = edge.shape;
    const std::string_view kind = ShapeValues::KindName(shape);
    const std::optional<ArcPath::TArc> arc = kind == "arc" ? ShapeValues::Arc(shape) : std::nullopt;
    if (arc) {
        const auto at = [&arc](double share) {
            return arc->centre + QLineF::fromPolar(arc->radius, arc->startAngle + share * arc->sweep).p2();
        };
        const bool namesEnds = !shape.Find("angle");
        add(namesEnds ? ShapeValues::Point(shape, "start") : at(0), corner);
        add(at(0.5), arcMiddle);
        add(namesEnds ? ShapeValues::Point(shape, "end") : at(1), corner);
    } else if (kind == "line" || kind == "arc") {
        add(ShapeValues::Point(shape, "start"), corner);
        add(ShapeValues::Point(shape, "end"), corner);
    } else if (kind == "circle") {
        const QPointF centre = ShapeValues::Point(shape, "center");
        const double radius = QLineF(centre, ShapeValues::Point(shape, "end")).length();
        add(centre + QPointF(radius, 0), corner);
        add(centre + QPointF(0, radius), arcMiddle);
        add(centre - QPointF(radius, 0), corner);
        add(centre - QPointF(0, radius), arcMiddle);
    } else {
        const QPolygonF points = kind == "poly" ? ShapeValues::CornersOfPoints(shape.Get("pts"))
                                                : ShapeValues::Corners(ShapeValues::Path(shape));
        for (const QPointF& point : points) {
            add(point, corner);
        }
    }
    return corners;
}

/** The nearest unused edge that continues from a point, reversed if needed to begin there; null if there is none. */
TEdge* Continuation(std::vector<TEdge>& edges, const QPointF& from)
{
    TEdge* nearest = nullptr;
    double nearestDistance = largestGap;
    for (TEdge& edge : edges) {
        const double distance = std::min(QLineF(from, edge.Start()).length(), QLineF(from, edge.End()).length());
        const bool isNearer = nearest ? distance < nearestDistance : distance <= nearestDistance;
        if (!edge.isUsed && isNearer) {
            nearest = &edge;
            nearestDistance = distance;
        }
    }
    if (nearest && QLineF(from, nearest->End()).length() < QLineF(from, nearest->Start()).length()) {
        std::reverse(nearest->corners.begin(), nearest->corners.end());
    }
    return nearest;
}

TLoop Loop(const TCorners& corners, const TEdgeShape& source)
{
    TGraphicsOutlineItem drawn;
    drawn.SetPoints(corners);
    return {corners, drawn.Path(), ShapeValues::StrokeWidth(source.shape)};
}

/** Follows edges from end to end. The chain is a loop, or else none of its edges is part of the outline. */
void Follow(TEdge& first, std::vector<TEdge>& edges, std::vector<TLoop>& loops, std::vector<const TEdgeShape*>& open)
{
    std::vector<const TEdge*> chain;
    TEdge* edge = &first;
    bool isClosed = false;
    while (edge && !isClosed) {
        edge->isUsed = true;
        chain.push_back(edge);
        const double gap = QLineF(edge->End(), first.Start()).length();
        isClosed = gap <= largestGap && (chain.size() > 1 || edge->corners.size() > 2);
        edge = Continuation(edges, edge->End());
    }
    if (!isClosed) {
        std::transform(chain.begin(), chain.end(), std::back_inserter(open),
                       [](const TEdge* each) { return each->source; });
        return;
    }
    TCorners corners;
    for (const TEdge* each : chain) {
        std::copy(each->corners.begin(), each->corners.end() - 1, std::back_inserter(corners));
    }
    loops.push_back(Loop(corners, *first.source));
}

double Extent(const TLoop& loop)
{
    const QRectF box = loop.path.boundingRect();
    return box.width() * box.height();
}

void AddOutline(const std::vector<TLoop>& loops, TBoard& board)
{
    const auto outer = std::max_element(
        loops.begin(), loops.end(), [](const TLoop& one, const TLoop& other) { return Extent(one) < Extent(other); });
    QPainterPath cutOuts;
    for (auto loop = loops.begin(); loop != loops.end(); ++loop) {
        if (loop != outer) {
            cutOuts.addPath(loop->path);
        }
    }
    auto outline = std::make_unique<TGraphicsOutlineItem>();
    outline->SetPoints(outer->corners);
    outline->SetCutOuts(cutOuts);
    outline->SetPenWidth(static_cast<float>(outer->width));
    board.Attach(std::move(outline));
}

} // namespace

void BuildOutline(TBoardDraft& draft)
{
    std::vector<TLoop> loops;
    std::vector<TEdge> edges;
    for (const TEdgeShape& source : draft.edges) {
        TCorners corners = CornersOf(source);
        if (ShapeValues::IsArea(source.shape) && corners.size() > 2) {
            if (corners.last() == corners.first()) {
                corners.removeLast();
            }
            loops.push_back(Loop(corners, source));
        } else if (!corners.isEmpty()) {
            edges.push_back({&source, corners});
        }
    }
    std::vector<const TEdgeShape*> open;
    for (TEdge& edge : edges) {
        if (!edge.isUsed) {
            Follow(edge, edges, loops, open);
        }
    }
    if (!loops.empty()) {
        AddOutline(loops, *draft.board);
    }
    for (const TEdgeShape* edge : open) {
        ElementReaders::ReadOpenEdge(*edge, draft);
    }
}
