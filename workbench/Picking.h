#pragma once

class TGraphicsPartItem;
class TItemScene;

/** What a click on a page takes. */
namespace Picking {

/**
 * Lets a click on a symbol's drawing take the part, and one on a pin's number the pin. The pins of a part are taken by
 * themselves, those of a port or a net tie are not.
 */
void PickSymbolsWhole(TItemScene& page);

/** Lets a click take the drawings of a part by themselves, as long as its symbol is open for editing. */
void PickDrawings(TGraphicsPartItem& part, bool on);

} // namespace Picking
