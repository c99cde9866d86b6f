#include "properties/commands/TConnectCommand.h"

TConnectCommand::~TConnectCommand() = default;

bool TConnectCommand::Do()
{
    if (!Prepare()) {
        return false;
    }
    savedConnections.resize(0); // Keeps its capacity.
    for (TGraphicsItem* item : qAsConst(items)) {
        savedConnections.append(Act(actionOfRedo, *item, {}));
    }
    Update();
    return true;
}

bool TConnectCommand::Undo()
{
    if (!Prepare()) {
        return false;
    }
    const Action inverse = actionOfRedo == Action::Connect ? Action::Disconnect : Action::Connect;
    for (int i = 0; i < items.size(); ++i) {
        const QVector<TGraphicsItem*> saved = savedConnections.value(i);
        if (!saved.isEmpty()) { // Empty if the redo changed nothing; passed on, it would mean everything.
            Act(inverse, *items.at(i), saved);
        }
    }
    Update();
    return true;
}
