#include <graphics/engine/TBoxIndex.h>

#include <QRectF>

#define BOOST_ALLOW_DEPRECATED_HEADERS // The library's own headers include such.
#include <boost/geometry/geometries/box.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#include <boost/geometry/geometries/segment.hpp>
#include <boost/geometry/index/rtree.hpp>
#include <boost/geometry/strategies/strategies.hpp>
#include <boost/iterator/function_output_iterator.hpp>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

namespace {

namespace Geometry = boost::geometry;
namespace Index = Geometry::index;

using Point = Geometry::model::d2::point_xy<double>;
using Corners = Geometry::model::box<Point>;
using Segment = Geometry::model::segment<Point>;
using Entry = std::pair<Corners, int>;
using Entries = std::vector<Entry>;

Corners CornersOf(const TBoxIndex::Box& box)
{
    return {{box.left, box.top}, {box.right, box.bottom}};
}

constexpr double infinity = std::numeric_limits<double>::infinity();

/** A little more than a distance, so that rounding leaves nothing out. */
double Reach(double distance)
{
    return distance * (1 + 1e-12);
}

/** The square around a point, up to a little more than a distance from it. */
Corners Square(const Point& center, double distance)
{
    const double reach = Reach(distance);
    return {{std::nextafter(center.x() - reach, -infinity), std::nextafter(center.y() - reach, -infinity)},
            {std::nextafter(center.x() + reach, infinity), std::nextafter(center.y() + reach, infinity)}};
}

Entries Numbered(const QVector<TBoxIndex::Box>& boxes)
{
    Entries entries;
    entries.reserve(static_cast<std::size_t>(boxes.size()));
    for (const TBoxIndex::Box& box : boxes) {
        entries.emplace_back(CornersOf(box), static_cast<int>(entries.size()));
    }
    return entries;
}

} // namespace

class TBoxIndex::Tree
{
public:
    explicit Tree(const Entries& entries) : tree(entries) {}

    template <class Shape>
    QVector<int> Meeting(const Shape& shape) const
    {
        QVector<int> numbers;
        const auto append = [&numbers](const Entry& entry) { numbers.append(entry.second); };
        tree.query(Index::intersects(shape), boost::make_function_output_iterator(append));
        std::sort(numbers.begin(), numbers.end());
        return numbers;
    }

    int Nearest(const Point& point, double within, const std::function<bool(int)>& suits) const
    {
        const auto isSuitable = Index::satisfies([&suits](const Entry& entry) { return suits(entry.second); });
        int nearest = -1;
        double leastSquare = infinity;
        const auto take = boost::make_function_output_iterator([&](const Entry& entry) {
            const double square = Geometry::comparable_distance(point, entry.first);
            if (square < leastSquare || (square <= leastSquare && entry.second < nearest)) {
                nearest = entry.second;
                leastSquare = square;
            }
        });
        tree.query(Index::nearest(point, 1) && Index::intersects(Square(point, within)) && isSuitable, take);
        if (nearest < 0 || std::sqrt(leastSquare) > Reach(within)) {
            return -1;
        }
        // Others may be just as near.
        tree.query(Index::intersects(Square(point, std::sqrt(leastSquare))) && isSuitable, take);
        return nearest;
    }

private:
    Index::rtree<Entry, Index::quadratic<16>> tree;
};

TBoxIndex::Box TBoxIndex::Of(const QRectF& rect)
{
    return {rect.left(), rect.top(), rect.right(), rect.bottom()};
}

TBoxIndex::TBoxIndex(const QVector<Box>& boxes) : tree(std::make_shared<const Tree>(Numbered(boxes))) {}

QVector<int> TBoxIndex::Meeting(const Box& box) const
{
    return tree->Meeting(CornersOf(box));
}

QVector<int> TBoxIndex::Meeting(const QLineF& line) const
{
    return tree->Meeting(Segment{{line.x1(), line.y1()}, {line.x2(), line.y2()}});
}

int TBoxIndex::Nearest(const QPointF& point, double within, const std::function<bool(int)>& suits) const
{
    return tree->Nearest({point.x(), point.y()}, within, suits);
}
