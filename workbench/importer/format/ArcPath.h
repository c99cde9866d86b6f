#pragma once

#include "workbench/importer/format/TGridPoint.h"

#include <QPainterPath>

#include <optional>
#include <vector>

/** Arcs of circles as files describe them. */
namespace ArcPath {

/** A part of a circle; angles in degrees, counterclockwise as seen. */
struct TArc
{
    QPointF centre;
    double radius = 0;
    double startAngle = 0;
    double sweep = 0;
};

/** The arc through three points; none if they lie in one line. */
std::optional<TArc> Through(const QPointF& start, const QPointF& middle, const QPointF& end);

/** Goes on from the path's end along the circle through all three points; straight if they lie in one line. */
void AddThrough(QPainterPath& path, const QPointF& start, const QPointF& middle, const QPointF& end);

QPainterPath Path(const TArc& arc);

/**
 * The corners of a chain of straight lines that follows the arc through all three points, without its two ends. The
 * chain leaves the arc by at most 2 micrometres; it has none if the points lie in one line.
 */
std::vector<TGridPoint> CornersThrough(const TGridPoint& start, const TGridPoint& middle, const TGridPoint& end);

} // namespace ArcPath
