#pragma once

#include <QByteArray>
#include <QString>

/** Board files for tests, in the dialects of the versions of the format. */
namespace BoardTexts {

/** A board file of two copper layers and the nets 0 to 2 ("", "GND", "/I{slash}O") with these further elements. */
QByteArray Board(const QByteArray& elements);

/** The same with a layer table of one's own. */
QByteArray BoardWithLayers(const QByteArray& layers, const QByteArray& elements = {});

/** A footprint "U1" on the top side at the origin, with these further elements. */
QByteArray Footprint(const QByteArray& elements);

/** Two packages in one place, whose drilled pads lie within their exposed pads, with tracks of three layers to them. */
QByteArray StackedPads();

/** One and the same board as versions 5 to 9 write it. */
QByteArray InDialect(int version);

} // namespace BoardTexts
