#pragma once

#include <graphics/TGraphicsRectItem.h>

/** A hole without plating: a square whose side is the drill's diameter, drawn as the circle in it. */
class TGraphicsHoleItem : public TGraphicsRectItem
{
public:
    using TGraphicsRectItem::TGraphicsRectItem;

    int type() const override { return ItemType::Hole; }
    QString KindName() const override { return QStringLiteral("hole"); }

    QPainterPath Outline() const override;

protected:
    void Draw(QPainter& painter, double pixelsPerUnit) const override;
    double StackingHeight() const override;
};
