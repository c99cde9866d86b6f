#include "workbench/importer/ArcPath.h"

#include <QLineF>

#include <cmath>

namespace {

QRectF SquareAround(const QPointF& centre, double radius)
{
    return {centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius};
}

} // namespace

void ArcPath::AddThrough(QPainterPath& path, const QPointF& start, const QPointF& middle, const QPointF& end)
{
    // The centre, seen from the start, is as far from the start as from the two other points.
    const QPointF toMiddle = middle - start;
    const QPointF toEnd = end - start;
    const double cross = toMiddle.x() * toEnd.y() - toMiddle.y() * toEnd.x();
    constexpr double flat = 1e-9;
    if (std::abs(cross) < flat) {
        path.lineTo(end);
        return;
    }
    const double middleSquare = QPointF::dotProduct(toMiddle, toMiddle);
    const double endSquare = QPointF::dotProduct(toEnd, toEnd);
    const QPointF toCentre((toEnd.y() * middleSquare - toMiddle.y() * endSquare) / (2 * cross),
                           (toMiddle.x() * endSquare - toEnd.x() * middleSquare) / (2 * cross));
    const QPointF centre = start + toCentre;

    const double startAngle = QLineF(centre, start).angle();
    const double counterclockwise = QLineF(centre, start).angleTo(QLineF(centre, end));
    const double middleOnTheWay = QLineF(centre, start).angleTo(QLineF(centre, middle));
    const double sweep = middleOnTheWay <= counterclockwise ? counterclockwise : counterclockwise - 360;
    path.arcTo(SquareAround(centre, QLineF(centre, start).length()), startAngle, sweep);
}

QPainterPath ArcPath::Around(const QPointF& centre, const QPointF& start, double clockwiseDegrees)
{
    const QLineF radius(centre, start);
    QPainterPath path(start);
    path.arcTo(SquareAround(centre, radius.length()), radius.angle(), -clockwiseDegrees);
    return path;
}
