#pragma once

#include <QList>

class TGraphicsItem;
class TGraphicsPartItem;
class TItemScene;

/** What a click on a page selects. */
namespace Picking {

/**
 * Makes a click on a symbol's primitives select the part, and one on a pin's number the pin. The pins of parts and net
 * ties can be selected by themselves, that of a port cannot.
 */
void PickSymbolsWhole(TItemScene& page);

/** Makes the primitives of a part selectable by themselves, as long as its symbol is open for editing. */
void PickDrawings(TGraphicsPartItem& part, bool on);

/** The selectable ones among the items, in order. */
QList<TGraphicsItem*> Selectable(const QList<TGraphicsItem*>& items);

} // namespace Picking
