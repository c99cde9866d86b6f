#include "workbench/importer/format/ArcPath.h"

#include <QLineF>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

QRectF SquareAround(const QPointF& centre, double radius)
{
    return {centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius};
}

} // namespace

std::optional<ArcPath::TArc> ArcPath::Through(const QPointF& start, const QPointF& middle, const QPointF& end)
{
    // Relative to the start, the centre is equidistant from the start and both other points.
    const QPointF toMiddle = middle - start;
    const QPointF toEnd = end - start;
    const double cross = toMiddle.x() * toEnd.y() - toMiddle.y() * toEnd.x();
    constexpr double flat = 1e-9;
    if (std::abs(cross) < flat) {
        return {};
    }
    const double middleSquare = QPointF::dotProduct(toMiddle, toMiddle);
    const double endSquare = QPointF::dotProduct(toEnd, toEnd);
    const QPointF toCentre((toEnd.y() * middleSquare - toMiddle.y() * endSquare) / (2 * cross),
                           (toMiddle.x() * endSquare - toEnd.x() * middleSquare) / (2 * cross));
    const QPointF centre = start + toCentre;

    const QLineF toStart(centre, start);
    const double counterclockwise = toStart.angleTo(QLineF(centre, end));
    const double middleOnTheWay = toStart.angleTo(QLineF(centre, middle));
    const double sweep = middleOnTheWay <= counterclockwise ? counterclockwise : counterclockwise - 360;
    return TArc{centre, toStart.length(), toStart.angle(), sweep};
}

void ArcPath::AddThrough(QPainterPath& path, const QPointF& start, const QPointF& middle, const QPointF& end)
{
    const std::optional<TArc> arc = Through(start, middle, end);
    if (!arc) {
        path.lineTo(end);
        return;
    }
    path.arcTo(SquareAround(arc->centre, arc->radius), arc->startAngle, arc->sweep);
}

std::vector<TGridPoint> ArcPath::CornersThrough(const TGridPoint& start, const TGridPoint& middle,
                                                const TGridPoint& end)
{
    constexpr double deviation = 2000; // Nanometres, as the points are.
    const auto point = [](const TGridPoint& place) {
        return QPointF(static_cast<double>(place.x), static_cast<double>(place.y));
    };
    const std::optional<TArc> arc = Through(point(start), point(middle), point(end));
    std::vector<TGridPoint> corners;
    if (!arc || arc->radius <= deviation) {
        return corners;
    }
    const double step = 2 * qRadiansToDegrees(std::acos(1 - deviation / arc->radius));
    const int lines = std::max(2, static_cast<int>(std::ceil(std::abs(arc->sweep) / step)));
    TGridPoint last = start;
    for (int i = 1; i < lines; ++i) {
        const QPointF corner =
            arc->centre + QLineF::fromPolar(arc->radius, arc->startAngle + arc->sweep * i / lines).p2();
        const TGridPoint place{std::llround(corner.x()), std::llround(corner.y())};
        if (place != last && place != end) {
            corners.push_back(place);
            last = place;
        }
    }
    return corners;
}

QPainterPath ArcPath::Path(const TArc& arc)
{
    const QRectF square = SquareAround(arc.centre, arc.radius);
    QPainterPath path;
    path.arcMoveTo(square, arc.startAngle);
    path.arcTo(square, arc.startAngle, arc.sweep);
    return path;
}
