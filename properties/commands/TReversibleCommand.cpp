#include "properties/commands/TReversibleCommand.h"

#include <utility>

TReversibleCommand::~TReversibleCommand() = default;

void TReversibleCommand::redo()
{
    if (!std::exchange(missedUndo, false)) {
        isDone = Do() || isDone;
    }
}

void TReversibleCommand::undo()
{
    if (isDone) {
        isDone = !Undo();
        missedUndo = isDone;
    }
}
