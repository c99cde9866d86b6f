#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QPolygonF>

/** Paths that several kinds of items are drawn with. */
namespace Shapes {

/** What a round pen of that width covers on a straight line. */
QPainterPath Capsule(const QPointF& from, const QPointF& to, double width);

/** The polygon mirrored in the y axis. */
QPolygonF Mirrored(const QPolygonF& polygon);

/** Goes on from the path's end to @p to, on the circle through both and @p middle; straight where there is none. */
void ArcThrough(QPainterPath& path, const QPointF& middle, const QPointF& to);

/** A line of text in a font whose height is 1, centred at the origin. */
QPainterPath Label(const QString& text);
/** The same, as large as fits into a rectangle. */
QPainterPath LabelIn(const QRectF& place, const QString& text);

} // namespace Shapes
