#pragma once

#include <QHash>
#include <QLineF>
#include <QList>
#include <QPolygonF>
#include <QSet>
#include <QString>
#include <QVector>

class TGraphicsItem;
class TGraphicsKeepoutItem;
class TGraphicsPourItem;

/** The copper of a board by net, as of construction, and the connections that it lacks. */
class BoardCopper
{
public:
    /** @param items all items of the board, in the design's order */
    explicit BoardCopper(const QList<TGraphicsItem*>& items);

    QSet<QString> Nets() const;
    QSet<QString> NetsOfPours() const;

    /** The spanning tree of missing connections of a net, in the order of the copper that its lines begin at. */
    QVector<QLineF> MissingConnections(const QString& net) const;

private:
    struct PourArea
    {
        const TGraphicsPourItem* pour;
        QPolygonF area; ///< In scene coordinates.
        QRectF bounds;
    };
    struct KeepoutArea
    {
        const TGraphicsKeepoutItem* keepout;
        QPolygonF area;
        QRectF bounds;
    };

    bool Covers(const PourArea& pour, const QPointF& point) const;

    QHash<QString, QVector<TGraphicsItem*>> copperOf;
    QVector<PourArea> pours;
    QVector<KeepoutArea> keepouts;
};
