#pragma once

#include "tests/commands/WholeProject.h"

#include <application/TUndoCommand.h>

#include <functional>
#include <memory>
#include <vector>

namespace Test {

/** What a command is made of: the first (0) or the second (1) thing of each kind in a project, or nothing at all. */
class Given
{
public:
    Given(WholeProject* ofProject, std::size_t ofIndex) : project(ofProject), index(ofIndex) {}

    /** The same items, with null for project, schematic and board. */
    Given WithoutDocuments() const
    {
        Given items = *this;
        items.hasDocuments = false;
        return items;
    }

    TProject* Project() const { return project && hasDocuments ? &project->project : nullptr; }
    TSchematic* Schematic() const { return project && hasDocuments ? &project->sheet : nullptr; }
    TBoard* Board() const { return project && hasDocuments ? &project->board : nullptr; }

    /** Null for nothing. */
    template <class Item>
    Item* One(WholeProject::Two<Item> WholeProject::*two) const
    {
        return project ? (project->*two)[index] : nullptr;
    }
    /** A list of one, empty for nothing. */
    template <class Base, class Item>
    QList<Base*> ListOf(WholeProject::Two<Item> WholeProject::*two) const
    {
        return project ? QList<Base*>{One(two)} : QList<Base*>();
    }
    template <class Item>
    QList<Item*> ListOf(WholeProject::Two<Item> WholeProject::*two) const
    {
        return ListOf<Item, Item>(two);
    }
    TSchPage* Page() const { return project ? project->tree.Pages().at(static_cast<int>(index)) : nullptr; }
    TPart* Part() const { return project ? project->tree.Parts().at(static_cast<int>(index)) : nullptr; }

    bool IsFirst() const { return index == 0; }
    /** A value for either index. */
    template <class Value>
    Value Either(const Value& first, const Value& second) const
    {
        return index == 0 ? first : second;
    }

private:
    WholeProject* project;
    std::size_t index;
    bool hasDocuments = true;
};

/** What one command that acts on a whole project has to do, in a form that one test can hold every such command to. */
struct ProjectLaw
{
    QString name;
    int id = -1;
    unsigned categories = 0;
    bool hasMergeRule = false;
    std::function<std::unique_ptr<TUndoCommand>(const Given&)> make;
    /** What `redo` changes in a `WholeProject`, as `Touched` tells it; nothing for commands that do nothing. `undo`
     *  brings all of it back. */
    QStringList touched;
};

/** One law for each command that `LawTable` does not have. */
const std::vector<ProjectLaw>& ProjectLawTable();

} // namespace Test
