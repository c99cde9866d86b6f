#include "properties/commands/TCmdPart.h"

#include "properties/commands/EachOnce.h"
#include "properties/commands/ProjectContext.h"
#include "properties/commands/TUniqueNumbers.h"

#include <application/TBoard.h>
#include <objects/TGraphicsPartItem.h>

TCmdPartConnect::TCmdPartConnect(const QList<TGraphicsItem*>& selection, TProject* ofProject)
    : TCmdPartConnect(selection, ofProject, Action::Connect)
{}

TCmdPartConnect::TCmdPartConnect(const QList<TGraphicsItem*>& selection, TProject* ofProject, Action ofRedo)
    : TConnectCommand(ofRedo), project(ofProject)
{
    TUniqueNumbers numbers;
    const QList<TGraphicsItem*> once = EachOnce(selection);
    for (TGraphicsItem* item : once) {
        if (item->type() == ItemType::Part) {
            items.append(item); // Intended: their existence is not checked later.
            numbers.Add(static_cast<TGraphicsPartItem*>(item)->ComponentNumber());
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

QVector<TGraphicsItem*> TCmdPartConnect::Act(Action action, TGraphicsItem& item,
                                             const QVector<TGraphicsItem*>& connections)
{
    auto& part = static_cast<TGraphicsPartItem&>(item);
    return action == Action::Connect ? part.Connect(connections) : part.Disconnect(connections);
}

void TCmdPartConnect::Update()
{
    UpdatePCB();
}

TCmdPartDisconnect::TCmdPartDisconnect(const QList<TGraphicsItem*>& selection, TProject* ofProject)
    : TCmdPartConnect(selection, ofProject, Action::Disconnect)
{}

TCommandKind TCmdPartDisconnect::Kind() const
{
    return {"PartDisconnect", QT_TRANSLATE_NOOP("TCommandKind", "Disconnect %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "parts")};
}
