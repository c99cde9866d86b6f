#pragma once

#include "benchmarks/support/Shelf.h"

#include <application/TBoard.h>

#include <QGraphicsView>

#include <memory>

namespace Bench {

/** The items that a board is filled with. */
enum class Kind {
    Via,
    Pad,
    Hole,
    Drawing, ///< Primitives: alternating rectangles and polygons.
    Milling,
    Outline,
    Text,
    Wire, ///< Two on each net, joined by a junction that is not counted.
    Pour, ///< Small ones on a handful of nets.
    UnfilledPour,
    Keepout,
    NetTie,
    NetTieSymbol, ///< Those of a schematic; that they are on a board makes no difference to a set.
    Package,      ///< Without children.
    // Kinds of the schematic. That they are on a board makes no difference to sets and commands.
    NetWire, ///< Of a hundred nets in turn.
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

    /** Lets scene and view process the changes, and updates nets and rat lines. */
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

/** The grid position of the item of a number. */
QPointF GridPoint(int number, double pitch = 50, int itemsInARow = 1000);

/** The maximum number of items of a kind on a board. */
int MostOf(Kind kind);

BenchBoard& BoardOf(Shelf& shelf, Kind kind, int count);

} // namespace Bench
