#pragma once

#include "workbench/importer/TTrack.h"

#include <QPainterPath>

#include <vector>

/** Arcs of circles as files describe them. */
namespace ArcPath {

/** Goes on from the path's end along the circle through all three points; straight if they lie in one line. */
void AddThrough(QPainterPath& path, const QPointF& start, const QPointF& middle, const QPointF& end);

/** An arc around a centre that begins at a point and sweeps over an angle in degrees, clockwise if positive. */
QPainterPath Around(const QPointF& centre, const QPointF& start, double clockwiseDegrees);

/**
 * The corners of a chain of straight lines that follows the arc through all three points, without its two ends. The
 * chain leaves the arc by at most 2 micrometres; it has none if the points lie in one line.
 */
std::vector<TGridPoint> CornersThrough(const TGridPoint& start, const TGridPoint& middle, const TGridPoint& end);

} // namespace ArcPath
