#pragma once

#include <QLineF>
#include <QPainterPath>
#include <QPolygonF>
#include <QRectF>
#include <QVector>

class QColor;
class QPainter;
class TGraphicsPourItem;

/**
 * The copper of a pour as of one fill, in the pour's coordinates. Owned by its pour.
 *
 * The copper is the stroke, with a round pen of the pour's line width, of the edges of the filled path and, unless it
 * is solid, of the hatch lines in it.
 */
class TPourFill
{
public:
    /** No copper. */
    TPourFill() = default;
    /** Fills a pour around all items on its scene. */
    explicit TPourFill(const TGraphicsPourItem& pour);

    /** The curves around the copper and the holes in it, as a path that is filled between them. */
    QPainterPath Path() const;
    const QVector<QLineF>& HatchLines() const { return hatchLines; }

    bool HasCopperAt(const QPointF& point) const;

    /** Draws the part that is visible on the painter's device, with less detail at a small scale. */
    void Draw(QPainter& painter, const QColor& color, double pixelsPerUnit) const;

private:
    /** A closed curve: its last point is its first. */
    struct Curve
    {
        QPolygonF points;
        QRectF bounds;
    };

    QVector<Curve> Coarsened() const;

    QVector<Curve> curves;
    mutable QVector<Curve> coarseCurves; ///< For small scales; computed when first drawn.
    QVector<QLineF> hatchLines;
    double lineWidth = 0;
    bool solid = false;
};
