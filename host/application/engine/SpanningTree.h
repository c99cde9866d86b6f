#pragma once

#include <graphics/engine/DisjointSets.h>

#include <QLineF>
#include <QPointF>
#include <QVector>

/** Groups of points in the plane, and the minimum spanning tree that joins them. */
class SpanningTree
{
public:
    /** The groups, to be added and joined before `MissingEdges`. */
    DisjointSets& Sets() { return sets; }

    void AddPoint(const QPointF& point, int group);

    /** A minimum spanning tree over the sets of groups: lines from points to points, in the order of the points. */
    QVector<QLineF> MissingEdges();

private:
    DisjointSets sets;
    QVector<QPointF> points;
    QVector<int> groups;
};
