#include "properties/commands/TCmdPort.h"

#include "properties/commands/AttributeCommandEngine.h"

#include "properties/commands/ProjectContext.h"
#include "properties/commands/TUniqueNumbers.h"

#include <application/TBoard.h>
#include <application/TSchematic.h>
#include <objects/TGraphicsNetTieSchItem.h>
#include <objects/TGraphicsPartItem.h>
#include <objects/TGraphicsPinItem.h>

#include <QSet>

#include <algorithm>

namespace {

QColor ColorOf(const TNetModel& model, const QString& net)
{
    return model.ColorSch(model.NetRow(net));
}

/** The number of the component or net tie whose pin an item is; none for other items. Intended: the board gets both as
 *  numbers of components. */
void AddNumberOf(const TGraphicsItem& item, TUniqueNumbers& numbers)
{
    const QGraphicsItem* parent = item.type() == ItemType::Pin ? item.parentItem() : nullptr;
    if (parent && parent->type() == ItemType::Part) {
        numbers.Add(static_cast<const TGraphicsPartItem*>(parent)->ComponentNumber());
    } else if (parent && parent->type() == ItemType::NetTieSch) {
        numbers.Add(static_cast<const TGraphicsNetTieSchItem*>(parent)->Number());
    }
}

} // namespace

TCmdPortName::TCmdPortName(QList<TGraphicsPortItem*> ofPorts, const QString& name, TSchematic* ofSchematic)
    : schematic(ofSchematic), ports(std::move(ofPorts)), newName(name)
{
    ports.removeAll(nullptr);
    for (const TGraphicsPortItem* port : qAsConst(ports)) {
        oldNames.append(port->Name());
    }
}

TCommandKind TCmdPortName::Kind() const
{
    return {"PortName", QT_TRANSLATE_NOOP("TCommandKind", "Rename %1"), QT_TRANSLATE_NOOP("TCommandKind", "ports")};
}

bool TCmdPortName::Do()
{
    TNetModel* model = ProjectContext::NetModel(schematic);
    if (!model) {
        return false;
    }
    if (ports.isEmpty()) {
        return true;
    }
    AddNewNet(*model);
    DeleteUnused(MoveToNewNet(*model), *model);
    UpdateBoardInStep();
    return true;
}

void TCmdPortName::AddNewNet(TNetModel& model)
{
    if (!model.HasNet(newName)) {
        model.AddNet(newName, QStringLiteral("Default"), QColor(), QColor(), 0);
        addedNet = model.HasNet(newName) ? newName : QString(); // The empty name is not a net.
    }
}

QStringList TCmdPortName::MoveToNewNet(const TNetModel& model)
{
    QStringList oldNets;
    QSet<QString> known;
    const QColor color = ColorOf(model, newName);
    replacedNames.clear();
    for (TGraphicsPortItem* port : qAsConst(ports)) {
        const QString net = port->Net();
        if (!net.isEmpty() && !known.contains(net)) {
            known.insert(net);
            oldNets.append(net);
        }
        replacedNames.append(port->Name());
        port->SetName(newName, color);
    }
    return oldNets;
}

void TCmdPortName::DeleteUnused(const QStringList& nets, TNetModel& model)
{
    QSet<QString> unused(nets.cbegin(), nets.cend());
    unused.remove(newName); // A port that shares its net with an earlier one is on the new net by its turn.
    schematic->SaveTopItemsFromWorkspace();
    const QList<TGraphicsItem*> items = schematic->Items();
    for (const TGraphicsItem* item : items) {
        if (item->type() == ItemType::NetWire) {
            unused.remove(item->Net());
        }
    }
    for (const QString& net : nets) {
        if (unused.contains(net) && model.HasNet(net)) {
            deletedNets.append(model.DeleteNet(net));
        }
    }
}

bool TCmdPortName::Undo()
{
    TNetModel* model = ProjectContext::NetModel(schematic);
    if (!model) {
        return false;
    }
    if (ports.isEmpty()) {
        return true;
    }
    if (!addedNet.isEmpty()) {
        model->DeleteNet(addedNet);
        addedNet.clear();
    }
    while (!deletedNets.isEmpty()) {
        model->AddNet(deletedNets.takeLast());
    }
    GiveOldNames(*model);
    UpdateBoardInStep();
    return true;
}

void TCmdPortName::GiveOldNames(const TNetModel& model)
{
    // Ports that are wired together rename each other: their renamings are undone in reverse order.
    for (int i = ports.size() - 1; i >= 0; --i) {
        ports.at(i)->SetName(replacedNames.at(i), ColorOf(model, replacedNames.at(i)));
    }
    for (int i = 0; i < ports.size(); ++i) {
        const QColor color = ColorOf(model, oldNames.at(i));
        if (ports.at(i)->Name() != oldNames.at(i) || ports.at(i)->AltColor() != color) {
            ports.at(i)->SetName(oldNames.at(i), color);
        }
    }
}

void TCmdPortName::UpdateBoardInStep()
{
    if (ProjectContext::IsInSync(schematic->Project())) {
        UpdatePCB();
    }
}

void TCmdPortName::UpdatePCB()
{
    TBoard* board = schematic ? ProjectContext::Board(schematic->Project()) : nullptr;
    if (board && board->ConnectivityEnabled()) {
        board->UpdatePadNets(ConnectedNumbers());
    }
}

QList<unsigned short> TCmdPortName::ConnectedNumbers() const
{
    TUniqueNumbers numbers;
    QSet<const TGraphicsItem*> seen; // Ports that are wired together have the same connected items.
    for (const TGraphicsPortItem* port : ports) {
        if (seen.contains(port->Pin())) {
            continue;
        }
        const QVector<TGraphicsItem*> connected = port->ConnectedItems();
        for (const TGraphicsItem* item : connected) {
            seen.insert(item);
            AddNumberOf(*item, numbers);
        }
    }
    return numbers.List();
}

template class TAttributeCommand<Attributes::PortNameVisible>;

TCmdPortNameVis::TCmdPortNameVis(QList<TGraphicsPortItem*> ports, bool visible) : TAttributeCommand(ports, visible) {}

TCommandKind TCmdPortNameVis::Kind() const
{
    return {"PortNameVis", QT_TRANSLATE_NOOP("TCommandKind", "Switch name of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "ports")};
}
