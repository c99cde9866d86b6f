#pragma once

#include <graphics/TGraphicsItem.h>

#include <QPainterPath>

/** A corner of an outline. */
struct OutlinePointStruct
{
    double x = 0;
    double y = 0;
    int kind = 0;
};

/** The edge of a board. */
class TGraphicsOutlineItem : public TGraphicsItem
{
public:
    int type() const override;

    QPainterPath Path() const;
    QVector<OutlinePointStruct> Points() const;

protected:
    QPainterPath path;
    QVector<OutlinePointStruct> points;
};
