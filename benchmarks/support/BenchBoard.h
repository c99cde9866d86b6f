#pragma once

#include "benchmarks/support/Shelf.h"

#include <application/TBoard.h>

#include <QGraphicsView>

#include <memory>

namespace Bench {

/** What a board is filled with. */
enum class Kind {
    Via,
    Pad,
    Hole,
    Drawing, ///< Rectangles and polygons by turns.
    Milling,
    Outline,
    Text,
    Wire, ///< Two on each net, joined by a junction that is not counted.
    Pour, ///< Small ones on a handful of nets.
    UnfilledPour,
    Keepout,
    NetTie,
    NetTieSymbol, ///< Those of a schematic; that they lie on a board makes no difference to a set.
    Package,      ///< Without children.
    // Kinds of the schematic. That they lie on a board makes no difference to what edits them.
    NetWire, ///< Of a hundred nets by turns.
    Bus,
    Pin, ///< Of no symbol.
    Port,
    Part, ///< Without children.
    Tag,
};

/** A two-layer board that is shown by a view. */
class ShownBoard : public TBoard
{
public:
    ShownBoard();

    /** Lets scene and view take in the changes, and nets and rat lines come up to date. */
    void Settle();

    /** Places an item at scene coordinates. */
    template <class Item>
    Item* Place(const QPointF& at)
    {
        auto item = std::make_unique<Item>();
        Item* placed = item.get();
        item->setPos(at);
        Attach(std::move(item));
        return placed;
    }

private:
    QGraphicsView shown;
};

/** A board with items of one kind, laid out in a grid and each with values of its own. */
class BenchBoard : public ShownBoard
{
public:
    BenchBoard(Kind kind, int count);

    /** The items in the order in which they were made. */
    const QList<TGraphicsItem*>& Made() const { return made; }

private:
    QList<TGraphicsItem*> made;
};

/** Where the item of a number lies in a grid. */
QPointF GridPoint(int number, double pitch = 50, int itemsInARow = 1000);

/** The most items of a kind that a board is made of. */
int MostOf(Kind kind);

BenchBoard& BoardOf(Shelf& shelf, Kind kind, int count);

} // namespace Bench
