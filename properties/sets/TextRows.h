#pragma once

#include "properties/rows/TPropertyEnum.h"

class TGraphicsTextItem;

/** What the sets of texts and of tags have in common: the choices that their rows offer. */
namespace TextRows {

/** Adds the twenty-five sizes, in points, that texts can be set in. */
void AddFontSizes(TPropertyEnum& row);
/** The offered size for a size in points: that size, or else the next larger one. */
int OfferedFontSize(int points);

/** Adds the alignments, which are `Qt::AlignmentFlag` values, under names that the set has translated. */
void AddAlignments(TPropertyEnum& row, const QString& left, const QString& center, const QString& right);

/** Writes a stroke width in scene units to a text, without a command. */
void WriteLineWidth(TGraphicsTextItem& text, double width);

/** Adds the names of the application's fonts. */
void AddFontNames(TPropertyEnum& row);

} // namespace TextRows
