#pragma once

#include <objects/engine/TConnectionMemory.h>

class TGraphicsPinItem;

/** Contacts of a symbol's pins with pins of other symbols at the same points. Places other than pins have none. */
namespace PinContacts {

/** The maximum distance, in scene units, of a wire or pin that touches a pin: less than any grid. */
constexpr double tolerance = 0.5;

/** Null for an item that is not a pin. */
TGraphicsPinItem* AsPin(QGraphicsItem* item);

/** The contacts to link: each pin with all pins that touch it and are not linked with it, in the design's order. */
TConnections Free(const QVector<TGraphicsItem*>& pins);

/** Another pin and the first of the pins that touches it and is not linked with it; none if there is no such pin. */
std::optional<TConnection> Nearest(TGraphicsPinItem* other, const QVector<TGraphicsItem*>& pins);

/** The linked contacts, in the order of the pins and their links. */
TConnections Linked(const QVector<TGraphicsItem*>& pins);

} // namespace PinContacts
