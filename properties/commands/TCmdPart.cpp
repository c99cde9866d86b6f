#include "properties/commands/TCmdPart.h"

#include "properties/commands/ProjectParts.h"

#include <application/TBoard.h>
#include <objects/TGraphicsPartItem.h>

TCmdPartConnect::TCmdPartConnect(const QList<TGraphicsItem*>& selection, TProject* ofProject) : project(ofProject)
{
    for (TGraphicsItem* item : selection) {
        if (item && item->type() == ItemType::Part) {
            parts.append(static_cast<TGraphicsPartItem*>(item)); // Intended: never asked again whether they exist.
            components.Add(parts.last()->ComponentNumber());
        }
    }
}

void TCmdPartConnect::UpdatePCB()
{
    // Intended: the board is asked even when there are no parts.
    TBoard* board = ProjectParts::IsInStep(project) ? ProjectParts::Board(project) : nullptr;
    if (board && board->ConnectivityEnabled()) {
        board->UpdatePadNets(components.List());
    }
}

void TCmdPartConnect::Do()
{
    ActOnAll(Action::Connect);
}

void TCmdPartConnect::Undo()
{
    ActOnSaved(Action::Disconnect);
}

QVector<TGraphicsItem*> TCmdPartConnect::Act(Action action, TGraphicsPartItem& part,
                                             const QVector<TGraphicsItem*>& items)
{
    return action == Action::Connect ? part.Connect(items) : part.Disconnect(items);
}

void TCmdPartConnect::ActOnAll(Action action)
{
    savedConnections.resize(0); // Keeps its capacity.
    for (TGraphicsPartItem* part : qAsConst(parts)) {
        savedConnections.append(Act(action, *part, {}));
    }
    UpdatePCB();
}

void TCmdPartConnect::ActOnSaved(Action action)
{
    for (int i = 0; i < parts.size(); ++i) {
        const QVector<TGraphicsItem*> saved = savedConnections.value(i);
        if (!saved.isEmpty()) { // Nothing was changed here: an empty list would mean everything.
            Act(action, *parts.at(i), saved);
        }
    }
    UpdatePCB();
}

TCmdPartDisconnect::TCmdPartDisconnect(const QList<TGraphicsItem*>& selection, TProject* ofProject)
    : TCmdPartConnect(selection, ofProject)
{}

void TCmdPartDisconnect::Do()
{
    ActOnAll(Action::Disconnect);
}

void TCmdPartDisconnect::Undo()
{
    ActOnSaved(Action::Connect);
}
