#pragma once

#include <graphics/TGraphicsPenItem.h>

#include <QLineF>
#include <QPointF>

/** A straight section of a connection, linked to at most one item at each end. */
class TGraphicsSectionItem : public TGraphicsPenItem
{
public:
    void SetPoint1(const QPointF& point);
    void SetPoint2(const QPointF& point);
    QPointF ScenePoint(LinkEnd end) const;
    QLineF SceneLine() const;

    TGraphicsItem* FirstLink() const;
    TGraphicsItem* LastLink() const;
    TGraphicsItem* Link(LinkEnd end) const;
    void SetFirstLink(TGraphicsItem* item);
    void SetLastLink(TGraphicsItem* item);
    void LinkTo(LinkEnd end, TGraphicsItem* item);
    void LinkToLast(TGraphicsItem* item);
    void Unlink(LinkEnd end);

    void UpdateNet();

protected:
    TGraphicsSectionItem();
    void Cut(LinkEnd end);

    QPointF point1;
    QPointF point2;
};
