#pragma once

#include <application/TUndoCommand.h>

#include <utility>

/** The outer steps of every command: what is undone was done before. An undo before a redo does nothing. */
class TReversibleCommand : public TUndoCommand
{
public:
    void redo() final
    {
        Do();
        isDone = true;
    }

    void undo() final
    {
        if (std::exchange(isDone, false)) {
            Undo();
        }
    }

protected:
    virtual void Do() = 0;
    virtual void Undo() = 0;

private:
    bool isDone = false;
};
