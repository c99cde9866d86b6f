#include "workbench/importer/schematic/TLineFinder.h"

#include <algorithm>
#include <numeric>

TLineFinder::TLineFinder(const std::vector<TSheetLine>& ofLines) : lines(ofLines)
{
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const TSheetLine& line = lines[i];
        QVector<int>& kind = line.start.y == line.end.y   ? horizontal[line.start.y]
                             : line.start.x == line.end.x ? vertical[line.start.x]
                                                          : slanting;
        kind.append(static_cast<int>(i));
    }
}

QVector<int> TLineFinder::LinesOver(const TGridPoint& place) const
{
    QVector<int> over;
    const auto collect = [&](const QVector<int>& candidates) {
        std::copy_if(candidates.begin(), candidates.end(), std::back_inserter(over), [&](int line) {
            return IsOn(place, lines[static_cast<std::size_t>(line)].start, lines[static_cast<std::size_t>(line)].end);
        });
    };
    collect(horizontal.value(place.y));
    collect(vertical.value(place.x));
    collect(slanting);
    return over;
}

bool TLineFinder::IsOn(const TGridPoint& place, const TGridPoint& start, const TGridPoint& end)
{
    const auto [left, right] = std::minmax(start.x, end.x);
    const auto [top, bottom] = std::minmax(start.y, end.y);
    if (place.x < left || place.x > right || place.y < top || place.y > bottom) {
        return false;
    }
    // Exactly, in steps of the smallest whole number of nanometres along the line, whose products cannot overflow.
    const qint64 width = end.x - start.x;
    const qint64 height = end.y - start.y;
    const qint64 steps = std::gcd(width, height);
    if (width == 0 || height == 0) {
        return true;
    }
    const qint64 stepX = width / steps;
    const qint64 stepY = height / steps;
    const qint64 fromStart = place.x - start.x;
    return fromStart % stepX == 0 && fromStart / stepX * stepY == place.y - start.y;
}
