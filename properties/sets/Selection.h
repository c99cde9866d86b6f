#pragma once

#include "properties/commands/Attributes.h"

#include <graphics/TGraphicsItem.h>

#include <QList>

#include <algorithm>

/** Reads the selection that a set is given. Nulls in it are ignored. */
namespace Selection {

/** The items that @p Kind accepts, in selection order, cast to their class. */
template <class Kind, class Item = TGraphicsItem>
QList<Item*> Pick(const QList<TGraphicsItem*>& selection)
{
    QList<Item*> items;
    for (TGraphicsItem* item : selection) {
        if (item && Kind::Accepts(*item)) {
            items.append(static_cast<Item*>(item));
        }
    }
    return items;
}

/** Whether exactly one item, of any kind, is selected: the name of a set may depend on it. */
inline bool IsSingle(const QList<TGraphicsItem*>& selection)
{
    return selection.size() - selection.count(nullptr) == 1;
}

/** The workspace of the first item, of any kind; null without one. */
inline TWorkspace* WorkspaceOf(const QList<TGraphicsItem*>& selection)
{
    const auto first = std::find_if(selection.cbegin(), selection.cend(), [](TGraphicsItem* item) { return item; });
    return first == selection.cend() ? nullptr : (*first)->Workspace();
}

} // namespace Selection
