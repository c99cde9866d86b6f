#pragma once

#include <graphics/TGraphicsItem.h>

#include <QPolygonF>

/** A polygon that keeps pours out on the copper layers that it acts on. */
class TGraphicsKeepoutItem : public TGraphicsItem
{
public:
    explicit TGraphicsKeepoutItem(QGraphicsItem* parent = nullptr);

    int type() const override { return ItemType::Keepout; }
    QString KindName() const override { return QStringLiteral("keepout"); }

    /** The corners in order, in the item's own coordinates. The setter repaints. */
    const QPolygonF& Area() const { return area; }
    void SetArea(const QPolygonF& polygon);

    /** Whether the keepout acts on a layer; false for a layer that is not copper. */
    bool IsLayerEnable(Osmirel::Layer copper) const;
    /** Switches the keepout on or off on a copper layer, and repaints. Other layers are ignored. */
    void SetLayerEnable(Osmirel::Layer copper, bool on);
    /** The same for all eight copper layers, from the top down. */
    const QVector<bool>& LayerEnables() const { return enabled; }

    void Flip() override;
    bool IsOnVisibleLayer() const override;
    QRectF boundingRect() const override;
    QPainterPath Outline() const override;

protected:
    std::unique_ptr<TGraphicsItem> CreateEmpty() const override;
    void CopyFrom(const TGraphicsItem& source) override;
    void Describe(TStateText& state) const override;
    void Draw(QPainter& painter, double pixelsPerUnit) const override;
    double StackingHeight() const override;

private:
    QPolygonF area;
    QVector<bool> enabled;
};
