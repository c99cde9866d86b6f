#pragma once

#include <application/TBoard.h>
#include <objects/TGraphicsHoleItem.h>
#include <objects/TGraphicsPadItem.h>
#include <objects/TGraphicsViaItem.h>

#include <QGraphicsView>

#include <map>
#include <memory>

namespace Bench {

enum class Kind { Via, Pad, Hole };

/** A two-layer board with items of one kind, laid out in a grid and each with values of its own, shown by a view. */
class BenchBoard : public TBoard
{
public:
    BenchBoard(Kind kind, int count);

    /** The items in the order in which they were made. */
    const QList<TGraphicsItem*>& Made() const { return made; }

    /** Lets scene and view take in the changes, as they do after every edit: a change that waits for that costs less.
     */
    void Settle();

private:
    std::unique_ptr<TGraphicsItem> MakeItem(Kind kind, int number) const;

    QList<TGraphicsItem*> made;
    QGraphicsView shown;
};

/** Boards are slow to make, so that each is made once. */
class BoardShelf
{
public:
    BenchBoard& Board(Kind kind, int count);

private:
    std::map<std::pair<Kind, int>, std::unique_ptr<BenchBoard>> boards;
};

} // namespace Bench
