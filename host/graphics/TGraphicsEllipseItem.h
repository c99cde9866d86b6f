#pragma once

#include <graphics/TGraphicsRectItem.h>

/** The ellipse inside a rectangle around the item's position. */
class TGraphicsEllipseItem : public TGraphicsRectItem
{
public:
    using TGraphicsRectItem::TGraphicsRectItem;

    int type() const override { return ItemType::Ellipse; }
    QString KindName() const override { return QStringLiteral("ellipse"); }

    QPainterPath Outline() const override;

protected:
    std::unique_ptr<TGraphicsItem> CreateEmpty() const override;
    void Draw(QPainter& painter, double pixelsPerUnit) const override;
};
