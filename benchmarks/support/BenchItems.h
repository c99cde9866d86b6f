#pragma once

#include "benchmarks/support/BenchBoard.h"

class TGraphicsTextItem;

namespace Bench {

/** Places the item of a number, at its grid point and with its own values; @p previous is the last placed item. */
TGraphicsItem* PlaceItem(ShownBoard& board, Kind kind, int number, TGraphicsItem* previous);

/** A text for a component to own. */
TGraphicsTextItem* NewText();

} // namespace Bench
