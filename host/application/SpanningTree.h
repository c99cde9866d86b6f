#pragma once

#include <QLineF>
#include <QPointF>
#include <QVector>

#include <vector>

/** Sets of numbers from 0, which are joined and never parted. */
class DisjointSets
{
public:
    /** Makes a set of one new number. */
    int Add();
    /** The number that stands for the set. */
    int Root(int number);
    /** Makes one set of two, and tells whether they were different. */
    bool Join(int one, int other);

private:
    std::vector<int> parents; ///< Of a root the negative size of its set.
};

/** Groups of points in the plane, and the shortest lines that would join all groups that are not joined yet. */
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
