#pragma once

#include <objects/engine/TConnectionMemory.h>

class TGraphicsSectionItem;

/** Where the ends of wires meet places: the copper, or the pins, that they end on. */
namespace WireContacts {

/** Whether the end of a connection's wire lies on its place. */
bool Touch(const TConnection& connection);

/** What is to be linked: every free end of a wire that lies on places, with the one whose centre is nearest. In the
 *  design's order of the places, and then of the wires. */
TConnections Free(const QVector<TGraphicsItem*>& places);

/** The free end of a wire and the place of those that touch whose centre is nearest; nothing if none do. */
std::optional<TConnection> Nearest(TGraphicsSectionItem* wire, const QVector<TGraphicsItem*>& places);

/** What is linked, in the order of the places and their links. */
TConnections Linked(const QVector<TGraphicsItem*>& places);

} // namespace WireContacts
