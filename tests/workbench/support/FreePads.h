#pragma once

#include <application/TBoard.h>

namespace Test {

/**
 * Takes every n-th pad out of its package and leaves it where it is. Imported pads all belong to a package, and only
 * free pads can be edited in every way.
 */
inline void FreePads(TBoard& board, int everyNth)
{
    int pads = 0;
    QStringList nets;
    for (TGraphicsItem* item : board.Items()) {
        if (item->type() == ItemType::Pad && pads++ % everyNth == 0) {
            const QPointF place = item->scenePos();
            item->setParentItem(nullptr);
            item->setPos(place);
            nets.append(item->Net());
        }
    }
    board.UpdateRats(nets); // As whoever moves items does.
}

} // namespace Test
