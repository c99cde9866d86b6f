#pragma once

#include <graphics/TGraphicsRectItem.h>

/** A hole without plating: a square whose side is the drill's diameter, drawn as the circle in it. */
class TGraphicsHoleItem : public TGraphicsRectItem
{
public:
    explicit TGraphicsHoleItem(QGraphicsItem* parent = nullptr);

    int type() const override { return ItemType::Hole; }
    QString KindName() const override { return QStringLiteral("hole"); }

    QPainterPath Outline() const override;

protected:
    std::unique_ptr<TGraphicsItem> CreateEmpty() const override;
    void Draw(QPainter& painter, double pixelsPerUnit) const override;
    double StackingHeight() const override;
};
