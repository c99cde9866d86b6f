#pragma once

#include <QPainterPath>

/** Arcs of circles as files describe them. */
namespace ArcPath {

/** Goes on from the path's end along the circle through all three points; straight if they lie in one line. */
void AddThrough(QPainterPath& path, const QPointF& start, const QPointF& middle, const QPointF& end);

/** An arc around a centre that begins at a point and sweeps over an angle in degrees, clockwise if positive. */
QPainterPath Around(const QPointF& centre, const QPointF& start, double clockwiseDegrees);

} // namespace ArcPath
