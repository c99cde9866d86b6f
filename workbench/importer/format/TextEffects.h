#pragma once

#include "workbench/importer/format/TSexpression.h"

#include <graphics/TGraphicsTextItem.h>

/** The appearance of texts of boards and sheets. */
namespace TextEffects {

/** Applies the font and the alignment of an element's `effects`, and lays the text out. */
void Apply(const TSexpression& element, TGraphicsTextItem& text);

/** Whether the element is hidden, by a flag among its values from one on, or by one in its effects. */
bool IsHidden(const TSexpression& element, int from);

/** The position of the text in a text box, by its alignment. */
QPointF AnchorIn(const QRectF& box, int alignment);

} // namespace TextEffects
