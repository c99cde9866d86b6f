#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QPolygonF>

/** Paths shared by several kinds of items. */
namespace Shapes {

/** The outline of a straight line stroked with a round pen of that width. */
QPainterPath Capsule(const QPointF& from, const QPointF& to, double width);

/** The polygon mirrored in the y axis. */
QPolygonF Mirrored(const QPolygonF& polygon);

/** Extends the path to @p to along the circle through its end, @p middle and @p to; straight if there is none. */
void ArcThrough(QPainterPath& path, const QPointF& middle, const QPointF& to);

/** A line of text in a font whose height is 1, centred at the origin. */
QPainterPath Label(const QString& text);
/** A line of text to the right of a point, vertically centred on it, in a font of that height. With @p turned it is
 *  upside down in the same place, so that it reads upright in a rotated item. */
QPainterPath LabelFrom(const QPointF& start, double height, const QString& text, bool turned);
/** Whether text along an item's x axis is upside down when the item is rotated by that many degrees. */
bool IsOnItsHead(double rotation);
/** A line of text, as large as fits into a rectangle. */
QPainterPath LabelIn(const QRectF& place, const QString& text);

} // namespace Shapes
