#pragma once

#include "workbench/importer/format/TGridPoint.h"

#include <QPointF>

#include <optional>
#include <string_view>

/** Converts the measures of files, decimal numbers of millimetres and degrees, to scene units. */
namespace Measures {

/**
 * Reads a decimal number as whole millionths: millimetres become nanometres, without passing through floating point.
 * Further decimals are rounded, halves away from zero. Numbers out of range saturate; other texts give none.
 */
std::optional<qint64> ParseMillionths(std::string_view text);

/** Reads a decimal number without exponent as the nearest double. */
std::optional<double> ParseDecimal(std::string_view text);

/** A length of whole nanometres in scene units of 1/300 inch, as the nearest double. */
constexpr double SceneLength(qint64 nanometres)
{
    // 300 units and 25 400 000 nm to the inch. Both operands are exact below 3 000 km, so that there is only one
    // rounding.
    return static_cast<double>(nanometres * 3) / 254'000.0;
}

/** A scene point of a grid point, and the nearest grid point of a scene point. */
inline QPointF ScenePoint(const TGridPoint& place)
{
    return {SceneLength(place.x), SceneLength(place.y)};
}
TGridPoint OnGrid(const QPointF& scenePoint);

/** A scene rotation, clockwise and from -180 to 180 degrees, from millionths of a degree counterclockwise. */
double SceneRotation(qint64 counterclockwiseMillionths);

} // namespace Measures
