#pragma once

#include <QLineF>
#include <QPainterPath>
#include <QPolygonF>
#include <QRectF>
#include <QTransform>
#include <QVector>

#include <polyclipping/clipper.hpp>

#include <vector>

/** Boolean operations on areas: the polygon library in scene units. */
namespace Clip {

/** An area in the library's integers: the inside of closed curves; curves within others are holes. */
using Regions = ClipperLib::Paths;

Regions FromPolygon(const QPolygonF& polygon);
/** The area that the path fills, curves flattened to within a few micrometres. */
Regions FromPath(const QPainterPath& path, const QTransform& transform);

/** The area of a straight line stroked with a round pen of that radius. */
ClipperLib::Path Capsule(const QPointF& from, const QPointF& to, double radius);

void Add(Regions& regions, const Regions& more);

/** The area grown by @p margin, or shrunk by a negative one. */
Regions Grown(const Regions& area, double margin);
Regions Intersected(const Regions& area, const Regions& other);
Regions Subtracted(const Regions& area, const Regions& other);

QRectF BoundsOf(const Regions& area);

/** A connected area, with its holes. */
class Piece
{
public:
    explicit Piece(const ClipperLib::PolyNode& outer);

    /** In square scene units and scene units. */
    double Area() const;
    double Perimeter() const;
    QRectF Bounds() const { return bounds; }
    bool Contains(const QPointF& point) const;

    /** The outer curve first, then the holes. */
    QVector<QPolygonF> Polygons() const;
    /** Adds the parts inside the area of the lines at integer multiples of @p pitch. */
    void AddHatch(QVector<QLineF>& lines, double pitch, bool horizontal, bool vertical) const;

private:
    Regions curves; ///< The outer one first.
    QRectF bounds;
};

/** The difference of an area and others, which may overlap each other. */
std::vector<Piece> PiecesOf(const Regions& area, const Regions& obstacles);

} // namespace Clip
