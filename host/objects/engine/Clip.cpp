#include <objects/engine/Clip.h>

#include <algorithm>
#include <cmath>
#include <map>

namespace {

using ClipperLib::cInt;
using ClipperLib::Clipper;
using ClipperLib::IntPoint;
using ClipperLib::Path;

/** Integer units per scene unit; one is a twelfth of a micrometre. */
constexpr double scale = 1024;
/** Curves are flattened at this scale, at which the toolkit's error is at most a quarter of a unit. */
constexpr double flatteningScale = 5;
constexpr double flatteningTolerance = 0.25 / flatteningScale;
/** The maximum distance of a flattened arc from the arc, in scene units. */
constexpr double arcTolerance = 0.06;

IntPoint ToInt(const QPointF& point)
{
    return {std::llround(point.x() * scale), std::llround(point.y() * scale)};
}

QPointF FromInt(const IntPoint& point)
{
    return {static_cast<double>(point.X) / scale, static_cast<double>(point.Y) / scale};
}

/** The corners of a polygon that circumscribes an arc. */
void AddArc(Path& path, const QPointF& center, double radius, double startAngle, double span)
{
    const double stepAtMost = 2 * std::acos(1 - std::min(1.0, arcTolerance / radius));
    const int steps = std::max(2, static_cast<int>(std::ceil(std::abs(span) / stepAtMost)));
    const double outside = radius / std::cos(span / steps / 2);
    for (int i = 0; i < steps; ++i) {
        const double angle = startAngle + span * (i + 0.5) / steps;
        path.push_back(ToInt(center + outside * QPointF(std::cos(angle), std::sin(angle))));
    }
}

Clip::Regions Combined(ClipperLib::ClipType type, const Clip::Regions& area, const Clip::Regions& other)
{
    Clipper clipper;
    clipper.AddPaths(area, ClipperLib::ptSubject, true);
    clipper.AddPaths(other, ClipperLib::ptClip, true);
    Clip::Regions result;
    clipper.Execute(type, result, ClipperLib::pftNonZero, ClipperLib::pftNonZero);
    return result;
}

/** For each integer multiple y of @p pitch, where the curves cross that line, sorted. */
std::map<int, std::vector<double>> Crossings(const QVector<QPolygonF>& curves, double pitch)
{
    std::map<int, std::vector<double>> crossings;
    for (const QPolygonF& curve : curves) {
        for (int i = 1; i < curve.size(); ++i) {
            const QPointF from = curve[i - 1];
            const QPointF to = curve[i];
            const auto [low, high] = std::minmax({from.y(), to.y()});
            for (int line = static_cast<int>(std::ceil(low / pitch)); line * pitch < high; ++line) {
                const double share = (line * pitch - from.y()) / (to.y() - from.y());
                crossings[line].push_back(from.x() + share * (to.x() - from.x()));
            }
        }
    }
    for (auto& [line, places] : crossings) {
        std::sort(places.begin(), places.end());
    }
    return crossings;
}

QPolygonF Transposed(QPolygonF polygon)
{
    std::transform(polygon.cbegin(), polygon.cend(), polygon.begin(), [](const QPointF& p) { return p.transposed(); });
    return polygon;
}

} // namespace

Clip::Regions Clip::FromPolygon(const QPolygonF& polygon)
{
    Path path;
    path.reserve(static_cast<size_t>(polygon.size()));
    std::transform(polygon.cbegin(), polygon.cend(), std::back_inserter(path), ToInt);
    Regions simple;
    ClipperLib::SimplifyPolygon(path, simple, ClipperLib::pftEvenOdd);
    return simple;
}

Clip::Regions Clip::FromPath(const QPainterPath& path, const QTransform& transform)
{
    const QList<QPolygonF> polygons =
        path.toSubpathPolygons(transform * QTransform::fromScale(flatteningScale, flatteningScale));
    Regions regions;
    for (const QPolygonF& polygon : polygons) {
        Path corners;
        corners.reserve(static_cast<size_t>(polygon.size()));
        std::transform(polygon.cbegin(), polygon.cend(), std::back_inserter(corners),
                       [](const QPointF& point) { return ToInt(point / flatteningScale); });
        regions.push_back(std::move(corners));
    }
    if (regions.size() > 1) {
        ClipperLib::SimplifyPolygons(regions, path.fillRule() == Qt::WindingFill ? ClipperLib::pftNonZero
                                                                                 : ClipperLib::pftEvenOdd);
    } else if (!regions.empty() && !ClipperLib::Orientation(regions.front())) {
        ClipperLib::ReversePath(regions.front());
    }
    return regions;
}

Path Clip::Capsule(const QPointF& from, const QPointF& to, double radius)
{
    constexpr double pi = 3.14159265358979323846;
    const double angle = std::atan2(to.y() - from.y(), to.x() - from.x());
    Path path;
    AddArc(path, to, radius, angle - pi / 2, pi);
    AddArc(path, from, radius, angle + pi / 2, pi);
    return path;
}

void Clip::Add(Regions& regions, const Regions& more)
{
    regions.insert(regions.end(), more.cbegin(), more.cend());
}

Clip::Regions Clip::Grown(const Regions& area, double margin)
{
    if (margin == 0) {
        return area;
    }
    ClipperLib::ClipperOffset offset(2.0, arcTolerance * scale);
    offset.AddPaths(area, ClipperLib::jtRound, ClipperLib::etClosedPolygon);
    Regions grown;
    // Flattened arcs lie inside the true ones, both those of the area and those of the library.
    offset.Execute(grown, (margin > 0 ? margin + flatteningTolerance + arcTolerance : margin) * scale);
    return grown;
}

Clip::Regions Clip::Intersected(const Regions& area, const Regions& other)
{
    return Combined(ClipperLib::ctIntersection, area, other);
}

Clip::Regions Clip::Subtracted(const Regions& area, const Regions& other)
{
    return Combined(ClipperLib::ctDifference, area, other);
}

QRectF Clip::BoundsOf(const Regions& area)
{
    QPolygonF corners;
    for (const Path& curve : area) {
        std::transform(curve.cbegin(), curve.cend(), std::back_inserter(corners), FromInt);
    }
    return corners.boundingRect();
}

Clip::Piece::Piece(const ClipperLib::PolyNode& outer) : curves{outer.Contour}
{
    for (const ClipperLib::PolyNode* hole : outer.Childs) {
        curves.push_back(hole->Contour);
    }
    bounds = BoundsOf({outer.Contour});
}

double Clip::Piece::Area() const
{
    double square = 0;
    for (size_t i = 0; i < curves.size(); ++i) {
        const double part = std::abs(ClipperLib::Area(curves[i]));
        square += i == 0 ? part : -part;
    }
    return square / (scale * scale);
}

double Clip::Piece::Perimeter() const
{
    double length = 0;
    for (const Path& curve : curves) {
        for (size_t i = 0; i < curve.size(); ++i) {
            length += QLineF(FromInt(curve[i]), FromInt(curve[(i + 1) % curve.size()])).length();
        }
    }
    return length;
}

bool Clip::Piece::Contains(const QPointF& point) const
{
    const IntPoint place = ToInt(point);
    const auto isInside = [&place](const Path& curve) { return ClipperLib::PointInPolygon(place, curve) != 0; };
    return bounds.contains(point) && isInside(curves.front())
           && std::none_of(curves.cbegin() + 1, curves.cend(), isInside);
}

QVector<QPolygonF> Clip::Piece::Polygons() const
{
    QVector<QPolygonF> polygons;
    for (const Path& curve : curves) {
        QPolygonF corners;
        corners.reserve(static_cast<int>(curve.size()) + 1);
        std::transform(curve.cbegin(), curve.cend(), std::back_inserter(corners), FromInt);
        corners.append(corners.first());
        polygons.append(corners);
    }
    return polygons;
}

void Clip::Piece::AddHatch(QVector<QLineF>& lines, double pitch, bool horizontal, bool vertical) const
{
    const auto add = [&lines, pitch](const QVector<QPolygonF>& around, bool transposed) {
        for (const auto& [line, places] : Crossings(around, pitch)) {
            for (size_t i = 0; i + 1 < places.size(); i += 2) {
                const QPointF from(places[i], line * pitch);
                const QPointF to(places[i + 1], line * pitch);
                lines.append(transposed ? QLineF(from.transposed(), to.transposed()) : QLineF(from, to));
            }
        }
    };
    QVector<QPolygonF> around = Polygons();
    if (horizontal) {
        add(around, false);
    }
    if (vertical) {
        std::transform(around.cbegin(), around.cend(), around.begin(), Transposed);
        add(around, true);
    }
}

std::vector<Clip::Piece> Clip::PiecesOf(const Regions& area, const Regions& obstacles)
{
    Clipper clipper;
    clipper.AddPaths(area, ClipperLib::ptSubject, true);
    clipper.AddPaths(obstacles, ClipperLib::ptClip, true);
    ClipperLib::PolyTree tree;
    clipper.Execute(ClipperLib::ctDifference, tree, ClipperLib::pftNonZero, ClipperLib::pftNonZero);
    std::vector<Piece> pieces;
    for (const ClipperLib::PolyNode* node = tree.GetFirst(); node; node = node->GetNext()) {
        if (!node->IsHole()) {
            pieces.emplace_back(*node);
        }
    }
    return pieces;
}
