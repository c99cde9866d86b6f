#pragma once

#include <objects/engine/TConnectionMemory.h>

class TGraphicsPinItem;

/** Where pins of a symbol meet pins of other symbols that lie on the same points. Places that are no pins meet none. */
namespace PinContacts {

/** How far from a pin's point, in scene units, a wire or another pin may lie that meets it: less than any grid. */
constexpr double tolerance = 0.5;

/** Null for an item that is no pin. */
TGraphicsPinItem* AsPin(QGraphicsItem* item);

/** What is to be linked: each of the pins with all that touch and are not linked with it, in the design's order. */
TConnections Free(const QVector<TGraphicsItem*>& pins);

/** Another pin and the first of the pins that touches and is not linked with it; nothing if none does. */
std::optional<TConnection> Nearest(TGraphicsPinItem* other, const QVector<TGraphicsItem*>& pins);

/** What is linked, in the order of the pins and their links. */
TConnections Linked(const QVector<TGraphicsItem*>& pins);

} // namespace PinContacts
