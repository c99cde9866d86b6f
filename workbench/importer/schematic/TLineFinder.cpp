#include "workbench/importer/schematic/TLineFinder.h"

#include "workbench/importer/format/GridBoxes.h"

#include <algorithm>
#include <iterator>
#include <numeric>

TLineFinder::TLineFinder(const std::vector<TSheetLine>& ofLines)
    : lines(ofLines), boxes(ofLines, [](const TSheetLine& line) { return GridBoxes::Spanning(line.start, line.end); })
{}

QVector<int> TLineFinder::LinesOver(const TGridPoint& place) const
{
    const QVector<int> near = boxes.Meeting(GridBoxes::Around(place));
    QVector<int> over;
    std::copy_if(near.begin(), near.end(), std::back_inserter(over), [&](int number) {
        const TSheetLine& line = lines[static_cast<std::size_t>(number)];
        return IsOn(place, line.start, line.end);
    });
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
