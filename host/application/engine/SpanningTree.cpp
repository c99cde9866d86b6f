#include <application/engine/SpanningTree.h>

#include <graphics/engine/TBoxIndex.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <numeric>
#include <tuple>

namespace {

using Indices = std::vector<int>;

/** A line between two points by their numbers, in the order in which lines are preferred. */
struct Edge
{
    double squareLength = 0;
    int from = -1;
    int to = -1;

    bool operator<(const Edge& other) const
    {
        return std::tie(squareLength, from, to) < std::tie(other.squareLength, other.from, other.to);
    }
};

/** An index of some of the points. */
class PointIndex
{
public:
    PointIndex(const QVector<QPointF>& ofPoints, Indices ofThese)
        : points(ofPoints), numbers(std::move(ofThese)), index(numbers, [&ofPoints](int number) {
              const QPointF& point = ofPoints[number];
              return TBoxIndex::Box{point.x(), point.y(), point.x(), point.y()};
          })
    {}

    /** The best line from a point to one of another set, if it is better than what is known. */
    Edge Nearest(const std::vector<int>& setOf, int from, const Edge& known) const
    {
        const auto numberOf = [this](int place) { return numbers[static_cast<size_t>(place)]; };
        const auto setOfNumber = [&setOf](int number) { return setOf[static_cast<size_t>(number)]; };
        const int ownSet = setOfNumber(from);
        const auto isOfAnother = [&](int place) { return setOfNumber(numberOf(place)) != ownSet; };
        const int place = index.Nearest(points[from], std::sqrt(known.squareLength), isOfAnother);
        if (place < 0) {
            return known;
        }
        const int to = numberOf(place);
        const QPointF way = points[to] - points[from];
        return std::min(known, Edge{QPointF::dotProduct(way, way), std::min(from, to), std::max(from, to)});
    }

private:
    const QVector<QPointF>& points;
    Indices numbers; ///< In ascending order, so that the first of several in the index is the first of the points.
    TBoxIndex index;
};

/** Borůvka's algorithm: each round finds the shortest edge leaving each component. */
class BestLines
{
public:
    explicit BestLines(const QVector<QPointF>& ofPoints) : points(ofPoints), all(ofPoints, Everything()), known(Count())
    {}

    /** The best line of every set but the largest, best first. Sets only ever grow from one call to the next. */
    std::vector<Edge> Next(const std::vector<int>& setOf)
    {
        std::map<int, Indices> members;
        for (int i = 0; i < points.size(); ++i) {
            members[setOf[static_cast<size_t>(i)]].push_back(i);
        }
        const auto largest =
            std::max_element(members.cbegin(), members.cend(), [](const auto& left, const auto& right) {
                return left.second.size() < right.second.size();
            });
        std::vector<Edge> edges;
        for (auto set = members.begin(); set != members.end(); ++set) {
            if (set != largest) {
                const bool isWorthATree = members.size() <= fewSets && set->second.size() > manyPoints;
                edges.push_back(isWorthATree ? BestOf(set->second, setOf, TreeOfOthers(set->first, setOf))
                                             : BestOf(set->second, setOf, all));
            }
        }
        std::sort(edges.begin(), edges.end());
        return edges;
    }

private:
    /** Among few sets, one of many points gets a tree of all others, which are then found without passing its own. */
    static constexpr size_t fewSets = 16;
    static constexpr size_t manyPoints = 500;

    size_t Count() const { return static_cast<size_t>(points.size()); }

    Indices Everything() const
    {
        Indices numbers(Count());
        std::iota(numbers.begin(), numbers.end(), 0);
        return numbers;
    }

    PointIndex TreeOfOthers(int set, const std::vector<int>& setOf) const
    {
        Indices outside = Everything();
        outside.erase(std::remove_if(outside.begin(), outside.end(),
                                     [&](int number) { return setOf[static_cast<size_t>(number)] == set; }),
                      outside.end());
        return {points, std::move(outside)};
    }

    Edge BestOf(Indices& members, const std::vector<int>& setOf, const PointIndex& tree)
    {
        // What was the nearest other point of a point stays it until both are in one set; after that, none is nearer.
        const auto knownOf = [this](int number) -> Edge& { return known[static_cast<size_t>(number)]; };
        std::sort(members.begin(), members.end(),
                  [&](int left, int right) { return knownOf(left).squareLength < knownOf(right).squareLength; });
        Edge best{std::numeric_limits<double>::infinity(), -1, -1};
        for (const int from : members) {
            Edge& nearest = knownOf(from);
            if (nearest.squareLength > best.squareLength) {
                break;
            }
            const bool isStillOther =
                nearest.from >= 0 && setOf[static_cast<size_t>(nearest.from)] != setOf[static_cast<size_t>(nearest.to)];
            if (!isStillOther) {
                const Edge found = tree.Nearest(setOf, from, best);
                const bool isFromHere = found.from == from || found.to == from;
                nearest = isFromHere ? found : Edge{best.squareLength, -1, -1};
            }
            if (nearest.from >= 0) {
                best = std::min(best, nearest);
            }
        }
        return best;
    }

    const QVector<QPointF>& points;
    PointIndex all;
    std::vector<Edge> known; ///< For each point the line to the nearest of another set, or only how near none is.
};

} // namespace

void SpanningTree::AddPoint(const QPointF& point, int group)
{
    points.append(point);
    groups.append(group);
}

QVector<QLineF> SpanningTree::MissingEdges()
{
    std::vector<int> setOf(static_cast<size_t>(points.size()));
    const auto updateSets = [&] {
        std::transform(groups.cbegin(), groups.cend(), setOf.begin(), [this](int group) { return sets.Root(group); });
        return std::any_of(setOf.cbegin(), setOf.cend(), [&setOf](int set) { return set != setOf.front(); });
    };
    if (!updateSets()) {
        return {};
    }
    BestLines lines(points);
    std::vector<Edge> chosen;
    do {
        // Each round joins every set but the largest with another one, and so at least halves their number.
        const std::vector<Edge> edges = lines.Next(setOf);
        for (const Edge& edge : edges) {
            if (sets.Join(groups[edge.from], groups[edge.to])) {
                chosen.push_back(edge);
            }
        }
    } while (updateSets());
    std::sort(chosen.begin(), chosen.end(), [](const Edge& left, const Edge& right) {
        return std::tie(left.from, left.to) < std::tie(right.from, right.to);
    });
    QVector<QLineF> missing;
    missing.reserve(static_cast<int>(chosen.size()));
    for (const Edge& edge : chosen) {
        missing.append({points[edge.from], points[edge.to]});
    }
    return missing;
}
