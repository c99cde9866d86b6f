#pragma once

#include "tests/host/Network.h"

#include <application/TUndoCommand.h>

#include <QtTest>

namespace Test {

/** What is wrong with the links of a board: one that its other item does not hold, or that leads off the board. Empty
 *  if nothing is. */
inline QString LinkFault(const TBoard& board)
{
    const QList<TGraphicsItem*> items = board.Items();
    const QSet<TGraphicsItem*> onBoard(items.cbegin(), items.cend());
    for (TGraphicsItem* item : items) {
        const QVector<TGraphicsItem*> links = item->Links();
        for (TGraphicsItem* other : links) {
            if (!onBoard.contains(other)) {
                return QStringLiteral("off the board: ") + item->StateLine();
            }
            if (other->Links().count(item) != links.count(other)) {
                return QStringLiteral("one-sided: ") + item->StateLine() + QStringLiteral(" | ") + other->StateLine();
            }
        }
        if (const auto* wire = dynamic_cast<TGraphicsWireItem*>(item)) {
            const auto* next = dynamic_cast<TGraphicsWireItem*>(wire->LastLink());
            if (next && next->FirstLink() != wire) {
                return QStringLiteral("not head to tail: ") + item->StateLine();
            }
        }
    }
    return {};
}

/** Redoes and undoes a command twice: every redo ends in one state, every undo in the first, with all links two-sided.
 *  The command is undone in the end. */
inline void CheckBothWays(TUndoCommand& command, const TBoard& board)
{
    const QString before = board.Dump();
    const int items = board.Items().size();
    QCOMPARE(LinkFault(board), QString());
    command.redo();
    const QString after = board.Dump();
    QCOMPARE(LinkFault(board), QString());
    command.undo();
    QCOMPARE(board.Dump(), before);
    QCOMPARE(board.Items().size(), items);
    QCOMPARE(LinkFault(board), QString());
    command.redo();
    QCOMPARE(board.Dump(), after);
    QCOMPARE(LinkFault(board), QString());
    command.undo();
    QCOMPARE(board.Dump(), before);
    QCOMPARE(LinkFault(board), QString());
}

/** An item that counts in @p gone when it is destroyed. */
template <class Item>
class Mortal : public Item
{
public:
    ~Mortal() override
    {
        if (gone) {
            ++*gone;
        }
    }

    int* gone = nullptr;
};

} // namespace Test
