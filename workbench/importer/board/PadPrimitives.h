#pragma once

#include <QPainterPath>

class TSexpression;
struct TBoardDraft;

/** The copper of the `(primitives ...)` of a custom pad, in scene units relative to the copper's centre. */
QPainterPath ReadPadPrimitives(const TSexpression& primitives, TBoardDraft& draft);
