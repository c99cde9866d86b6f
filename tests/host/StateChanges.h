#pragma once

#include "tests/support/TestBoard.h"

#include <objects/TGraphicsWireItem.h>

#include <QStringList>

#include <functional>

namespace Test {

/** One change of an item and the attributes of its line that are to tell of it. */
struct Change
{
    const char* name;
    std::function<TGraphicsItem*(TestBoard&)> place;
    std::function<void(TGraphicsItem&)> change;
    QStringList fields;
};

/** A change for each attribute of each kind. */
const QList<Change>& StateChanges();

/** The changes of what schematics alone have. */
QList<Change> StateChangesOfSheets();

/** Makes a change of an item of a class. */
template <class Item, class Call>
std::function<void(TGraphicsItem&)> On(Call call)
{
    return [call](TGraphicsItem& item) { call(static_cast<Item&>(item)); };
}

/** Places an item of a kind on a board, which owns it. */
template <class Item>
TGraphicsItem* Placed(TestBoard& board)
{
    auto owned = std::make_unique<Item>();
    TGraphicsItem* item = owned.get();
    board.Attach(std::move(owned));
    return item;
}

/** A wire that an item of a board can be linked with. */
TGraphicsWireItem* WireBeside(const TGraphicsItem& item);

} // namespace Test
