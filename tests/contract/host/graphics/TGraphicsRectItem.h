#pragma once

#include <graphics/TGraphicsPenItem.h>

#include <QBrush>
#include <QSizeF>

/** A rectangle, and whatever else has its measures. */
class TGraphicsRectItem : public TGraphicsPenItem
{
public:
    int type() const override;

    QSizeF Size() const;
    void SetSize(float width, float height);
    QBrush& Brush();
    const QBrush& Brush() const;

protected:
    QSizeF size{0, 0};
    QBrush brush;
};
