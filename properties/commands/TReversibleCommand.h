#pragma once

#include "properties/commands/CommandKind.h"

#include <application/TUndoCommand.h>

/**
 * The outer steps of every command: undo() is a no-op unless redo() acted since the last undo(). A second redo() in a
 * row acts again.
 *
 * A command cannot act while its context is missing, for example the board of its project: nothing changes. If redo()
 * could not act, the next undo() is a no-op. If undo() could not act, the command stays done, and so the next redo()
 * finds it.
 */
class PROPERTIES_EXPORT TReversibleCommand : public TUndoCommand
{
public:
    ~TReversibleCommand() override;

    void redo() final;
    void undo() final;

    virtual TCommandKind Kind() const = 0;

protected:
    /** @{ Return whether the command could act: false if the context is missing, and then nothing has changed. */
    virtual bool Do() = 0;
    virtual bool Undo() = 0;
    /** @} */

private:
    bool isDone = false;
    bool missedUndo = false; ///< Whether the last undo could not act. Only while the command is done.
};
