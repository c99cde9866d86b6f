#pragma once

#include <QHash>
#include <QPointF>

#include <utility>

/** A point on the file's grid, in integer nanometres, so that equality is exact. */
struct TGridPoint
{
    qint64 x = 0;
    qint64 y = 0;

    bool operator==(const TGridPoint& other) const { return x == other.x && y == other.y; }
    bool operator!=(const TGridPoint& other) const { return !(*this == other); }
};

inline uint qHash(const TGridPoint& point, uint seed = 0)
{
    return qHash(std::make_pair(point.x, point.y), seed);
}
