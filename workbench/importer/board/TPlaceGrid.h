#pragma once

#include "workbench/importer/format/TGridPoint.h"

#include <QVector>

#include <algorithm>
#include <cmath>
#include <tuple>

/** Places in a net of square cells, so that those near a line are found without looking at all. */
class TPlaceGrid
{
public:
    void Add(const TGridPoint& place) { cells[CellOf(place)].append(place); }

    /** Calls back with all places that can be within @p margin nanometres of a straight line, and with others. */
    template <class Function>
    void VisitNear(const TGridPoint& from, const TGridPoint& to, qint64 margin, Function visit) const
    {
        // Whatever lies near a track as large as this is found sooner by looking at all.
        const qint64 columns = (std::abs(to.x - from.x) + 2 * margin) / cellSize + 1;
        const qint64 rows = 2 * margin / cellSize + 1;
        if (columns * rows > mostCells) {
            for (const QVector<TGridPoint>& cell : cells) {
                std::for_each(cell.begin(), cell.end(), visit);
            }
            return;
        }
        const auto [left, right] = std::minmax(from, to, [](const auto& a, const auto& b) { return a.x < b.x; });
        const double slope =
            right.x == left.x ? 0 : static_cast<double>(right.y - left.y) / static_cast<double>(right.x - left.x);
        const auto [top, bottom] = std::minmax(from.y, to.y);
        const auto heightAt = [&, first = left, low = top, high = bottom](qint64 x) {
            const double y = static_cast<double>(first.y) + slope * static_cast<double>(x - first.x);
            return std::clamp(static_cast<qint64>(std::llround(y)), low, high);
        };
        for (qint64 column = Index(left.x - margin); column <= Index(right.x + margin); ++column) {
            qint64 low = top;
            qint64 high = bottom;
            if (right.x != left.x) {
                std::tie(low, high) =
                    std::minmax({heightAt(column * cellSize - margin), heightAt((column + 1) * cellSize + margin)});
            }
            for (qint64 row = Index(low - margin); row <= Index(high + margin); ++row) {
                const auto cell = cells.constFind({column, row});
                if (cell != cells.constEnd()) {
                    std::for_each(cell->begin(), cell->end(), visit);
                }
            }
        }
    }

    /** In nanometres; most tracks are not much longer. */
    static constexpr qint64 mostCells = 10'000;
    static constexpr qint64 cellSize = 500'000;
    static qint64 Index(qint64 coordinate)
    {
        return coordinate >= 0 ? coordinate / cellSize : -((cellSize - 1 - coordinate) / cellSize);
    }
    static TGridPoint CellOf(const TGridPoint& place) { return {Index(place.x), Index(place.y)}; }

private:
    QHash<TGridPoint, QVector<TGridPoint>> cells;
};
