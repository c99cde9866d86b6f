#pragma once

#include <graphics/TGraphicsPenItem.h>

#include <QPolygonF>

/** An open chain of straight lines; on the milling layer, the path of a milling tool. */
class TGraphicsPolylineItem : public TGraphicsPenItem
{
public:
    using TGraphicsPenItem::TGraphicsPenItem;

    int type() const override { return ItemType::Polyline; }
    QString KindName() const override;

    /** The corners in order, in the item's own coordinates. The setter repaints. */
    const QPolygonF& Points() const { return points; }
    void SetPoints(const QPolygonF& newPoints);

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
};
