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
/** A line of text that begins at a point and goes on to the right, in a font of that height, halfway up it. With
 *  @p turned it stands on its head in the same place, to be read upright in an item that is turned. */
QPainterPath LabelFrom(const QPointF& start, double height, const QString& text, bool turned);
/** Whether what is drawn along an item's x axis is seen on its head when the item is turned by that many degrees. */
bool IsOnItsHead(double rotation);
/** A line of text as large as fits into a rectangle. */
QPainterPath LabelIn(const QRectF& place, const QString& text);

} // namespace Shapes
