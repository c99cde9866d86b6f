#pragma once

#include "tests/host/StateFields.h"

#include <application/TUndoCommand.h>
#include <graphics/TGraphicsItem.h>

#include <QList>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace Test {

enum class Merging { Never, TakeOver, EqualValue };

/** What one command has to do, in a form that one test can hold every command to. States are told by their lines. */
struct CommandLaw
{
    QString name;
    int id = -1;
    Merging merging = Merging::Never;
    unsigned categories = 0;
    bool repaints = true;
    /** What is repainted when a kept item is written: itself, or a child that draws the attribute. */
    std::function<const QGraphicsItem*(const TGraphicsItem&)> repainted = [](const TGraphicsItem& item) {
        return &item;
    };
    /** Which items the command keeps. */
    std::function<bool(const TGraphicsItem&)> accepts;
    /** Makes the command over items, with the first (0) or the second (1) of two values that differ. */
    std::function<std::unique_ptr<TUndoCommand>(const QList<TGraphicsItem*>&, int value)> make;
    /** Turns a kept item's state before the command into that after `redo`. */
    std::function<void(StateFields&, int value)> redone;
    /** Turns a kept item's state before the command into that after `undo`; most commands bring back just that. */
    std::function<void(StateFields&)> undone;
    /** Calls `mergeWith` as a caller does who holds both commands. */
    std::function<bool(TUndoCommand&, const TUndoCommand*)> mergeWith;
    /** Whether the class has a merge rule of its own. */
    bool hasMergeRule = false;

    CommandLaw& WithId(int number, Merging rule);
    CommandLaw& WithCategories(unsigned bits);
    CommandLaw& WithoutRepaint();
    CommandLaw& WithRepaintOf(std::function<const QGraphicsItem*(const TGraphicsItem&)> child);
    CommandLaw& Undone(std::function<void(StateFields&)> quirk);
};

/** One law for each command that writes one value to each of the items that it is given; `ProjectLawTable` has the
 *  others. */
const std::vector<CommandLaw>& LawTable();

} // namespace Test
