#pragma once

#include "tests/host/LinkFault.h"
#include "tests/host/Network.h"

#include <application/TUndoCommand.h>

#include <QtTest>

namespace Test {

inline QString LinkFault(const TBoard& board)
{
    return LinkFault(board.Items());
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
