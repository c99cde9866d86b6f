#include "properties/commands/TCmdNet.h"

#include "properties/commands/ItemsOfView.h"
#include "properties/commands/ProjectParts.h"

#include <application/TBoard.h>
#include <application/TNetModel.h>
#include <application/TSchematic.h>
#include <objects/TGraphicsRatLineItem.h>
#include <workspace/TWorkspace.h>

#include <QHash>

#include <algorithm>
#include <iterator>

TCmdNetClass::TCmdNetClass(const QString& ofNet, const QString& netClass, TProject* ofProject)
    : project(ofProject), net(ofNet), newClass(netClass)
{
    if (const TNetModel* model = ProjectParts::NetModel(project)) {
        oldClass = model->NetClass(net);
    }
}

void TCmdNetClass::Do()
{
    SetClass(net, newClass);
}

void TCmdNetClass::Undo()
{
    SetClass(net, oldClass);
}

void TCmdNetClass::SetClass(const QString& ofNet, const QString& netClass)
{
    TSchematic* schematic = ProjectParts::Schematic(project);
    if (schematic && schematic->IsExistNetClass(netClass)) {
        schematic->NetModel()->SetNetClass(ofNet, netClass);
    }
}

TCmdNetColorSch::TCmdNetColorSch(const QString& ofNet, const QColor& color, TSchematic* ofSchematic)
    : schematic(ofSchematic), net(ofNet), newColor(color)
{
    if (schematic) {
        const TNetModel* model = schematic->NetModel();
        oldColor = model->ColorSch(model->NetRow(net));
    }
}

void TCmdNetColorSch::Do()
{
    SetColor(newColor);
}

void TCmdNetColorSch::Undo()
{
    SetColor(oldColor);
}

void TCmdNetColorSch::SetColor(const QColor& color)
{
    if (schematic) {
        schematic->SetNetColor(net, color);
    }
}

TCmdNetColorPcb::TCmdNetColorPcb(const QString& ofNet, const QColor& color, TProject* ofProject)
    : project(ofProject), net(ofNet), newColor(color)
{
    if (const TNetModel* model = ProjectParts::NetModel(project)) {
        oldColor = model->ColorPcb(model->NetRow(net));
    }
}

void TCmdNetColorPcb::Do()
{
    SetColor(net, newColor);
}

void TCmdNetColorPcb::Undo()
{
    SetColor(net, oldColor);
}

void TCmdNetColorPcb::SetColor(const QString& ofNet, const QColor& color)
{
    TNetModel* model = ProjectParts::NetModel(project);
    if (!model) {
        return;
    }
    model->SetColorPcb(ofNet, color);
    for (TGraphicsItem* item : ItemsOfView(ProjectParts::BoardView(project))) {
        if (item->Net() == ofNet) {
            item->SetAltColor(color);
        }
    }
}

TCmdNetPrio::TCmdNetPrio(const QStringList& ofNets, const QString& level, TProject* ofProject)
    : project(ofProject), nets(ofNets), newLevel(level)
{
    if (const TNetModel* model = ProjectParts::NetModel(project)) {
        for (const QString& net : qAsConst(nets)) {
            oldLevels.append(model->Priority(net));
        }
    }
}

void TCmdNetPrio::Do()
{
    QStringList levels;
    levels.reserve(nets.size());
    std::fill_n(std::back_inserter(levels), nets.size(), newLevel);
    SetLevels(levels);
}

void TCmdNetPrio::Undo()
{
    SetLevels(oldLevels);
}

void TCmdNetPrio::SetLevels(const QStringList& levels)
{
    QHash<QString, QString> levelOfNet;
    for (int i = nets.size() - 1; i >= 0; --i) { // Backwards: of a net that is listed twice the first entry counts.
        levelOfNet.insert(nets.at(i), levels.value(i));
    }
    if (TNetModel* model = ProjectParts::NetModel(project)) {
        for (const QString& net : qAsConst(nets)) {
            model->SetPriority(net, levelOfNet.value(net));
        }
    }
    for (TGraphicsItem* item : ItemsOfView(ProjectParts::BoardView(project), {ItemType::RatLine})) {
        const auto level = levelOfNet.constFind(item->Net());
        if (level != levelOfNet.constEnd()) {
            static_cast<TGraphicsRatLineItem*>(item)->SetPriority(*level);
        }
    }
    if (TBoard* board = ProjectParts::Board(project)) {
        constexpr int allLevels = -1;
        board->RatPriority(allLevels);
    }
}

TCmdNetName::TCmdNetName(TGraphicsItem*, const QString& name, TWorkspace* ofWorkspace, TProject* ofProject)
    : newName(name), workspace(ofWorkspace), project(ofProject)
{}

void TCmdNetName::Do()
{
    SetNetName(newName);
}

void TCmdNetName::Undo()
{
    SetNetName(oldName);
}

void TCmdNetName::SetNetName(const QString& name)
{
    if (workspace && workspace->Mode() != TWorkspace::SchematicMode) {
        SetNetNameOnPcb(name);
    } else {
        SetNetNameOnSch(name);
    }
}

void TCmdNetName::SetNetNameOnSch(const QString&) {}

void TCmdNetName::SetNetNameOnPcb(const QString&) {}

TCmdFragmName::TCmdFragmName(TGraphicsItem* item, const QString& name, TWorkspace* ofWorkspace, TProject* ofProject)
    : TCmdNetName(item, name, ofWorkspace, ofProject)
{}
