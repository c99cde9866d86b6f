#pragma once

#include <QColor>
#include <QIcon>

/** The small square that shows a colour beside its name in a drop-down list. */
namespace Swatch {

/** Side of a swatch in pixels. */
constexpr int side = 18;

/** A square of the colour with a darker rim from (0, 0) to (@p lastPixel, @p lastPixel). */
QIcon Icon(const QColor& color, int lastPixel);

} // namespace Swatch
