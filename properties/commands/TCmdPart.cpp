#include "properties/commands/TCmdPart.h"

#include "properties/commands/EachOnce.h"
#include "properties/commands/ProjectContext.h"
#include "properties/commands/TUniqueNumbers.h"

#include <application/TBoard.h>
#include <objects/TGraphicsPartItem.h>

TCmdPartConnect::TCmdPartConnect(const QList<TGraphicsItem*>& selection, TProject* ofProject) : project(ofProject)
{
    TUniqueNumbers numbers;
    const QList<TGraphicsItem*> once = EachOnce(selection);
    for (TGraphicsItem* item : once) {
        if (item->type() == ItemType::Part) {
            parts.append(static_cast<TGraphicsPartItem*>(item)); // Intended: their existence is not checked later.
            numbers.Add(parts.last()->ComponentNumber());
        }
    }
    components = numbers.List();
}

TCommandKind TCmdPartConnect::Kind() const
{
    return {"PartConnect", QT_TRANSLATE_NOOP("TCommandKind", "Connect %1"), QT_TRANSLATE_NOOP("TCommandKind", "parts")};
}

void TCmdPartConnect::UpdatePCB()
{
    // Intended: the board is called even without parts.
    TBoard* board = ProjectContext::IsInSync(project) ? ProjectContext::Board(project) : nullptr;
    if (board && board->ConnectivityEnabled()) {
        board->UpdatePadNets(components);
    }
}

bool TCmdPartConnect::Do()
{
    ActOnAll(Action::Connect);
    return true;
}

bool TCmdPartConnect::Undo()
{
    ActOnSaved(Action::Disconnect);
    return true;
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
        if (!saved.isEmpty()) { // Empty if the redo changed nothing; passed on, it would mean everything.
            Act(action, *parts.at(i), saved);
        }
    }
    UpdatePCB();
}

TCmdPartDisconnect::TCmdPartDisconnect(const QList<TGraphicsItem*>& selection, TProject* ofProject)
    : TCmdPartConnect(selection, ofProject)
{}

TCommandKind TCmdPartDisconnect::Kind() const
{
    return {"PartDisconnect", QT_TRANSLATE_NOOP("TCommandKind", "Disconnect %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "parts")};
}

bool TCmdPartDisconnect::Do()
{
    ActOnAll(Action::Disconnect);
    return true;
}

bool TCmdPartDisconnect::Undo()
{
    ActOnSaved(Action::Connect);
    return true;
}
