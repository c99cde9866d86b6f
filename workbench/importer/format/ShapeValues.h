#pragma once

#include "workbench/importer/format/ArcPath.h"
#include "workbench/importer/format/TSexpression.h"

#include <QColor>
#include <QPainterPath>
#include <QPolygonF>

/** What shapes say that boards, footprints and pads draw: `(gr_line ...)`, `(fp_circle ...)` and the like. */
namespace ShapeValues {

/** The element's name without its prefix, such as "line"; empty if it has none. */
std::string_view KindName(const TSexpression& shape);
bool IsShape(const TSexpression& element);
/** Whether the shape has an inside that can be filled. */
bool IsArea(const TSexpression& shape);

/** The place that one of its lists names, in scene units. */
QPointF Point(const TSexpression& shape, std::string_view name);
/** The middle of its stroke, in scene units. */
QPainterPath Path(const TSexpression& shape);

/** The place of an arc: three points on it, or in the oldest files its centre, its start and the angle of its sweep.
 *  None if it is straight. */
std::optional<ArcPath::TArc> Arc(const TSexpression& arc);

/** In scene units; it stands in a `stroke` in newer files. */
double StrokeWidth(const TSexpression& shape);
Qt::PenStyle StrokeStyle(const TSexpression& shape);
/** The colour of its own that the stroke has; invalid for none. */
QColor StrokeColor(const TSexpression& shape);

/** Whether the inside is filled. Where the file does not say it, polygons are, and others as given. */
bool IsFilled(const TSexpression& shape, bool otherwise);
Qt::BrushStyle FillStyle(const TSexpression& shape);

/** The corners of a path's first curve, arcs made straight. */
QPolygonF Corners(const QPainterPath& path);
/** The corners that a list of points names, `(pts (xy x y) (arc ...) ...)`, arcs made straight. */
QPolygonF CornersOfPoints(const TSexpression& points);

} // namespace ShapeValues
