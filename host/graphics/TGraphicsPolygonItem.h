#pragma once

#include <graphics/TGraphicsPenItem.h>

#include <QBrush>
#include <QPolygonF>

/** A closed polygon with its own fill. */
class TGraphicsPolygonItem : public TGraphicsPenItem
{
public:
    using TGraphicsPenItem::TGraphicsPenItem;

    int type() const override { return ItemType::Polygon; }
    QString KindName() const override { return QStringLiteral("polygon"); }

    /** The corners in order, in the item's own coordinates. The setter repaints. */
    const QPolygonF& Points() const { return points; }
    void SetPoints(const QPolygonF& newPoints);

    /** How the inside is filled. Writing does not repaint. */
    QBrush& Brush() { return brush; }
    const QBrush& Brush() const { return brush; }

    void Flip() override;
    QRectF boundingRect() const override;
    QPainterPath Outline() const override;

protected:
    std::unique_ptr<TGraphicsItem> CreateEmpty() const override;
    void CopyFrom(const TGraphicsItem& source) override;
    void Describe(TStateText& state) const override;
    void Draw(QPainter& painter, double pixelsPerUnit) const override;

private:
    QPolygonF points;
    QBrush brush;
};
