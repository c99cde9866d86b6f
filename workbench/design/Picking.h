#pragma once

#include <QList>

class TGraphicsItem;
class TGraphicsPartItem;
class TItemScene;

/** What a click on a page takes. */
namespace Picking {

/**
 * Lets a click on a symbol's drawing take the part, and one on a pin's number the pin. The pins of parts and net ties
 * are taken by themselves, that of a port is not.
 */
void PickSymbolsWhole(TItemScene& page);

/** Lets a click take the drawings of a part by themselves, as long as its symbol is open for editing. */
void PickDrawings(TGraphicsPartItem& part, bool on);

/** Those of the items that can be selected, in their order. */
QList<TGraphicsItem*> Selectable(const QList<TGraphicsItem*>& items);

} // namespace Picking
