#pragma once

#include <graphics/TGraphicsPenItem.h>

#include <QLineF>

/**
 * A straight section of a connection: two points with at most one linked item each. The pen's width is the section's
 * own.
 *
 * Two sections are linked to each other head to tail only: the last end of one with the first end of the other.
 */
class TGraphicsSectionItem : public TGraphicsPenItem
{
public:
    using TGraphicsPenItem::TGraphicsPenItem;

    /** Both ends, in the item's own coordinates. The setters repaint. */
    const QPointF& Point1() const { return point1; }
    const QPointF& Point2() const { return point2; }
    void SetPoint1(const QPointF& point);
    void SetPoint2(const QPointF& point);
    /** Both ends in scene coordinates. */
    QLineF SceneLine() const { return {mapToScene(point1), mapToScene(point2)}; }
    /** One end in scene coordinates. */
    QPointF ScenePoint(LinkEnd end) const { return mapToScene(end == LinkEnd::First ? point1 : point2); }

    /** The item linked at each end, or null. */
    TGraphicsItem* FirstLink() const { return firstLink; }
    TGraphicsItem* LastLink() const { return lastLink; }
    TGraphicsItem* Link(LinkEnd end) const { return end == LinkEnd::First ? firstLink : lastLink; }
    /** One-sided: stores this section's own link without notifying the other item. */
    void SetFirstLink(TGraphicsItem* item);
    void SetLastLink(TGraphicsItem* item);
    void SetLink(LinkEnd end, TGraphicsItem* item);

    /**
     * Two-sided: cuts what the end is linked to, then links it with @p item, which registers the section. A section is
     * linked at its other end (the last one for this one's first), which is cut from what it is linked to before. Null
     * cuts only; kinds that cannot be linked to are refused likewise.
     */
    void LinkToFirst(TGraphicsItem* item);
    void LinkToLast(TGraphicsItem* item);
    void LinkTo(LinkEnd end, TGraphicsItem* item);

    /** Two-sided: cuts one end that is linked to @p item, the first end before the last. Does nothing if none is. */
    void UnlinkFrom(TGraphicsItem* item);
    /** Two-sided: cuts one end from whatever it is linked to. */
    void Unlink(LinkEnd end);

    /** Updates the net of all items that links connect to this section, and repaints. */
    void UpdateNet();
    /** Sets the section's own net name, which is its net if links give it none, and repaints. */
    void SetNet(const QString& name);

    QVector<TGraphicsItem*> Links() const override;
    bool ReplaceLinkedItem(TGraphicsItem* from, TGraphicsItem* to) override;
    void AcceptLink(TGraphicsItem* section, LinkEnd end) override;
    void ReleaseLink(TGraphicsItem* section, LinkEnd end) override;
    bool CanBeLinkedTo() const override { return true; }

    void SetLayer(Osmirel::Layer newLayer) override;
    QString PlaceName() const override;
    QRectF boundingRect() const override;
    QPainterPath Outline() const override;

protected:
    void CopyFrom(const TGraphicsItem& source) override;
    void Describe(TStateText& state) const override;

private:
    void StorePoint(QPointF& point, const QPointF& newPoint);

    QPointF point1;
    QPointF point2;
    TGraphicsItem* firstLink = nullptr;
    TGraphicsItem* lastLink = nullptr;
};
