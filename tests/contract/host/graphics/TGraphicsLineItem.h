#pragma once

#include <graphics/TGraphicsPenItem.h>

#include <QLineF>

/** A straight line. */
class TGraphicsLineItem : public TGraphicsPenItem
{
public:
    int type() const override;

    QLineF Line() const;

protected:
    QLineF line;
};
