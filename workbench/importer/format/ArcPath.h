#pragma once

#include "workbench/importer/format/TGridPoint.h"

#include <QPainterPath>

#include <optional>
#include <vector>

/** Arcs of circles in the files' representation. */
namespace ArcPath {

/** A part of a circle; angles in degrees, counterclockwise as seen. */
struct TArc
{
    QPointF centre;
    double radius = 0;
    double startAngle = 0;
    double sweep = 0;
};

/** The arc through three points; none if they are collinear. */
std::optional<TArc> Through(const QPointF& start, const QPointF& middle, const QPointF& end);

/** Extends the path along the circle through all three points; straight if they are collinear. */
void AddThrough(QPainterPath& path, const QPointF& start, const QPointF& middle, const QPointF& end);

QPainterPath Path(const TArc& arc);

/**
 * The corners of a chain of straight lines that follows the arc through all three points, without its two ends. The
 * chain deviates from the arc by at most 2 micrometres; none if the points are collinear.
 */
std::vector<TGridPoint> CornersThrough(const TGridPoint& start, const TGridPoint& middle, const TGridPoint& end);

} // namespace ArcPath
