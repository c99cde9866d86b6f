#pragma once

#include <QLineF>
#include <QPointF>
#include <QVector>

#include <algorithm>
#include <functional>
#include <iterator>
#include <memory>

class QRectF;

/**
 * Finds which of many boxes lie in a place without looking at all of them. Boxes are known by their numbers from 0, and
 * found in ascending order. Edges and corners belong to them, and they may be without width or height. Copies share the
 * index, which never changes.
 */
class TBoxIndex
{
public:
    /** By its sides, which hold whole numbers up to 2^53 exactly; left and top are the smaller ones. */
    struct Box
    {
        double left;
        double top;
        double right;
        double bottom;
    };
    static Box Of(const QRectF& rect);

    explicit TBoxIndex(const QVector<Box>& boxes);
    /** Of one box for each of the items, in their order. */
    template <class Items, class Function>
    TBoxIndex(const Items& items, Function boxOf);

    /** The boxes that have a point in common with another one. */
    QVector<int> Meeting(const Box& box) const;
    /** The boxes that a line between two points passes through or touches, as exactly as double numbers can tell. */
    QVector<int> Meeting(const QLineF& line) const;

    /**
     * The nearest box to a point of those that suit, the first of several that are just as near; -1 if there is none.
     * Those that are further away than @p within, more than by rounding, are not looked at.
     */
    int Nearest(const QPointF& point, double within, const std::function<bool(int)>& suits) const;

private:
    class Tree;
    std::shared_ptr<const Tree> tree;
};

template <class Items, class Function>
TBoxIndex::TBoxIndex(const Items& items, Function boxOf)
    : TBoxIndex([&] {
          QVector<Box> boxes;
          boxes.reserve(static_cast<int>(items.size()));
          std::transform(items.begin(), items.end(), std::back_inserter(boxes), boxOf);
          return boxes;
      }())
{}
