#pragma once

#include "workbench/importer/format/TSexpression.h"

#include <graphics/TGraphicsTextItem.h>

/** What texts of boards and sheets say of how they look. */
namespace TextEffects {

/** Takes over the font and the alignment of an element's `effects`, and lays the text out. */
void Apply(const TSexpression& element, TGraphicsTextItem& text);

/** Whether the element or its effects say so, the element from one of its values on. */
bool IsHidden(const TSexpression& element, int from);

/** Where a text box has its text: at the side, or in the middle, as the text is aligned. */
QPointF AnchorIn(const QRectF& box, int alignment);

} // namespace TextEffects
