#pragma once

#include <objects/engine/TConnectionMemory.h>

class TGraphicsSectionItem;

/** Contacts of wire ends with places: the copper, or the pins, that they end on. */
namespace WireContacts {

/** Whether the end of a connection's wire lies on its place. */
bool Touch(const TConnection& connection);

/** The contacts to link: every free end of a wire that lies on places, with the place whose centre is nearest. In the
 *  design's order of the places, and then of the wires. */
TConnections Free(const QVector<TGraphicsItem*>& places);

/** The free end of a wire and the touching place whose centre is nearest; none if nothing touches. */
std::optional<TConnection> Nearest(TGraphicsSectionItem* wire, const QVector<TGraphicsItem*>& places);

/** The linked contacts, in the order of the places and their links. */
TConnections Linked(const QVector<TGraphicsItem*>& places);

} // namespace WireContacts
