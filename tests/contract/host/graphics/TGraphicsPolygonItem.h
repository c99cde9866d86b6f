#pragma once

#include <graphics/TGraphicsPenItem.h>

#include <QBrush>

/** A closed polygon. */
class TGraphicsPolygonItem : public TGraphicsPenItem
{
public:
    int type() const override;

    QBrush& Brush();
    const QBrush& Brush() const;

protected:
    QBrush brush;
};
