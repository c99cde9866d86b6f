#pragma once

#include "workbench/importer/format/ArcPath.h"
#include "workbench/importer/format/TSexpression.h"

#include <QColor>
#include <QPainterPath>
#include <QPolygonF>

/** The values of shapes of boards, footprints and pads, such as `(gr_line ...)` and `(fp_circle ...)`. */
namespace ShapeValues {

/** The element's name without its prefix, such as "line"; empty if it has none. */
std::string_view KindName(const TSexpression& shape);
bool IsShape(const TSexpression& element);
/** Whether the shape has an inside that can be filled. */
bool IsArea(const TSexpression& shape);

/** The position in one of its lists, in scene units. */
QPointF Point(const TSexpression& shape, std::string_view name);
/** The centre line of its stroke, in scene units. */
QPainterPath Path(const TSexpression& shape);

/** The geometry of an arc, given by three points, or in the oldest files by centre, start and sweep. None if it is
 *  straight. */
std::optional<ArcPath::TArc> Arc(const TSexpression& arc);

/** In scene units; part of a `stroke` in newer files. */
double StrokeWidth(const TSexpression& shape);
Qt::PenStyle StrokeStyle(const TSexpression& shape);
/** The stroke's own colour; invalid for none. */
QColor StrokeColor(const TSexpression& shape);

/** Whether the inside is filled. The default is true for polygons, and as given for others. */
bool IsFilled(const TSexpression& shape, bool otherwise);
Qt::BrushStyle FillStyle(const TSexpression& shape);

/** The corners of a path's first curve, arcs flattened. */
QPolygonF Corners(const QPainterPath& path);
/** The corners in a list of points, `(pts (xy x y) (arc ...) ...)`, arcs flattened. */
QPolygonF CornersOfPoints(const TSexpression& points);

} // namespace ShapeValues
