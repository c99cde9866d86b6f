#pragma once

#include <graphics/TGraphicsItem.h>

#include <QPen>

/** An item that is drawn with a pen of its own. */
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

    /** The pen with its width and the item's colour, ready to draw with. */
    QPen DrawingPen() const;

private:
    float penWidth = 0;
    QPen pen;
};
