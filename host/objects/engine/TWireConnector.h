#pragma once

#include <objects/engine/TConnectionMemory.h>

/**
 * Links wires, and pins of other symbols, to the places of a symbol or package, its pins or pads, and cuts them. A
 * member of that item, or of a net tie, which is itself a place.
 *
 * It returns the items that it linked or cut, once for each link. If such a list is passed back, exactly these links
 * are made or cut again: each end gets its former place, even if several places coincide.
 */
class TWireConnector
{
public:
    /** With @p items empty links all that touches a place: free ends of wires, each with the place that is nearest, and
     *  pins with all pins. Otherwise exactly the given items, once for each occurrence. Of a list that was not
     *  returned by one of these functions: with what the item was linked before, or else with what it touches. */
    QVector<TGraphicsItem*> Connect(const QVector<TGraphicsItem*>& places, const QVector<TGraphicsItem*>& items);

    /** With @p items empty cuts all from the places, in the order of the places and their links. Otherwise exactly the
     *  given items, once for each occurrence. Of a list that was not returned by one of these functions: the link that
     *  was made here last, or else the first end before the last. */
    QVector<TGraphicsItem*> Disconnect(const QVector<TGraphicsItem*>& places, const QVector<TGraphicsItem*>& items);

    /** The number of lists that can be passed back. */
    int Remembered() const { return memory.Size(); }

private:
    using Places = QVector<TGraphicsItem*>;

    std::optional<TConnection> GuessFree(TGraphicsItem* item, const Places& places) const;
    std::optional<TConnection> GuessLinked(TGraphicsItem* item, const Places& places) const;

    TConnectionMemory memory;
};
