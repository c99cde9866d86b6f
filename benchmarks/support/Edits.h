#pragma once

#include <QList>
#include <QString>
#include <QUndoCommand>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class TBoard;

namespace Bench {

using Command = std::unique_ptr<QUndoCommand>;

/** An edit of items with commands, and the plain loops that do the same without commands. */
class Edit
{
public:
    Edit() = default;
    virtual ~Edit() = default;
    Edit(const Edit&) = delete;
    Edit& operator=(const Edit&) = delete;

    /** Makes the commands that are redone and undone. */
    virtual void Prepare() = 0;

    /** The number of selections of the requested size in each step. */
    virtual double Selections() const { return 1; }

    /** Warms up the caches with the items, as far as they fit: the start of every step. */
    virtual void ReadAll() = 0;

    /** Edits every item without a command, and reverts that. */
    virtual void Loop() = 0;
    virtual void LoopBack() = 0;

    /** Creates commands and deletes them unused. */
    virtual void Construct() = 0;
    virtual void Discard() = 0;

    virtual void Redo() = 0;
    virtual void Undo() = 0;

    /** Lets the document process the changes, as after every edit: further changes before that would cost less. */
    virtual void Settle() = 0;

    /** The state that is compared to check that command and loop do the same. */
    virtual QString State() = 0;
};

/** An edit with one command for each place, as the application pushes them: done in order and undone in reverse. */
class ManyCommandsEdit : public Edit
{
public:
    void Prepare() override { commands = MakeCommands(); }
    void Construct() override { unused = MakeCommands(); }
    void Discard() override { unused.clear(); }
    void Redo() override;
    void Undo() override;

protected:
    virtual std::vector<Command> MakeCommands() const = 0;

private:
    std::vector<Command> commands;
    std::vector<Command> unused;
};

/** An edit with a single command. */
class OneCommandEdit : public ManyCommandsEdit
{
protected:
    virtual Command MakeCommand() const = 0;

private:
    std::vector<Command> MakeCommands() const override;
};

using MakeEdit = std::function<std::unique_ptr<Edit>(int size)>;

/** The sizes that commands are measured at. */
std::vector<int> AllSizes(int largest = 1'000'000);

/**
 * Registers "name/loop", "/loop back", "/construct", "/redo" and "/undo". Before a small size is measured, command and
 * loop are checked to do and undo the same; otherwise the program ends.
 */
void RegisterEdit(const std::string& name, const MakeEdit& make, const std::vector<int>& sizes = AllSizes());

/** The states of a board's items in an order that does not depend on when they joined. */
QString SortedState(const TBoard& board);

} // namespace Bench
