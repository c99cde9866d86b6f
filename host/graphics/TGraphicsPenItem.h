#pragma once

#include <graphics/TGraphicsItem.h>

#include <QBrush>
#include <QPen>

/** An item that is drawn with its own pen. */
class TGraphicsPenItem : public TGraphicsItem
{
public:
    using TGraphicsItem::TGraphicsItem;

    /** Stroke width in scene units; 0 draws the finest line. */
    float PenWidth() const { return penWidth; }
    /** Sets the stroke width and repaints. */
    void SetPenWidth(float width);

    /** Style, caps and joins of the stroke. Writing does not repaint; the width is `PenWidth`. */
    QPen& Pen() { return pen; }
    const QPen& Pen() const { return pen; }

protected:
    void Describe(TStateText& state) const override;
    void CopyFrom(const TGraphicsItem& source) override;

    /** The pen with its width and the item's colour, ready to draw with. */
    QPen DrawingPen() const;

    /** A brush in the item's colour, ready to fill with. */
    QBrush FillingBrush(const QBrush& brush) const;

    /** The outline of the pen's stroke along a path, with a minimum width for hit tests. */
    QPainterPath Stroked(const QPainterPath& path) const;
    /** A rectangle extended by half the pen's width on each side. */
    QRectF WithPenMargin(const QRectF& rect) const;

private:
    float penWidth = 0;
    QPen pen{Qt::black, 0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
};
