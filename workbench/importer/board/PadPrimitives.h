#pragma once

#include <QPainterPath>

class TSexpression;
struct TBoardDraft;

/** The copper that the `(primitives ...)` of a pad of custom shape draw, in scene units, seen from the copper's centre.
 */
QPainterPath ReadPadPrimitives(const TSexpression& primitives, TBoardDraft& draft);
