#pragma once

#include <graphics/TGraphicsItem.h>

#include <QPen>

/** An item that is drawn with a pen of its own. */
class TGraphicsPenItem : public TGraphicsItem
{
public:
    float PenWidth() const;
    void SetPenWidth(float width);
    QPen& Pen();
    const QPen& Pen() const;

protected:
    float penWidth = 0;
    QPen pen;
};
