#pragma once

#include <QLineF>
#include <QPainterPath>
#include <QPolygonF>
#include <QRectF>
#include <QTransform>
#include <QVector>

#include <polyclipping/clipper.hpp>

#include <vector>

/** Areas, and what is left of them when others are cut out: the polygon library in the units of the scene. */
namespace Clip {

/** An area in the library's whole numbers: the inside of closed curves, those within others being holes. */
using Regions = ClipperLib::Paths;

Regions FromPolygon(const QPolygonF& polygon);
/** What the path fills, curves made straight to within a few micrometres. */
Regions FromPath(const QPainterPath& path, const QTransform& transform);

/** What a round pen of that radius covers on a straight line. */
ClipperLib::Path Capsule(const QPointF& from, const QPointF& to, double radius);

void Add(Regions& regions, const Regions& more);

/** The area and what is nearer to it than @p margin, or for a negative one what is further from its outside. */
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
    /** Adds the lines at whole multiples of @p pitch that lie inside. */
    void AddHatch(QVector<QLineF>& lines, double pitch, bool horizontal, bool vertical) const;

private:
    Regions curves; ///< The outer one first.
    QRectF bounds;
};

/** What is left of an area when others are cut out, each of which may overlap the others. */
std::vector<Piece> PiecesOf(const Regions& area, const Regions& obstacles);

} // namespace Clip
