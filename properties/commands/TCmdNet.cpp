#include "properties/commands/TCmdNet.h"

#include "properties/commands/ItemsOfView.h"
#include "properties/commands/ProjectContext.h"

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
    KeepOldClass();
}

bool TCmdNetClass::KeepOldClass()
{
    const TNetModel* model = ProjectContext::NetModel(project);
    if (model && !oldClass) {
        oldClass = model->NetClass(net);
    }
    return model != nullptr;
}

TCommandKind TCmdNetClass::Kind() const
{
    return {"NetClass", QT_TRANSLATE_NOOP("TCommandKind", "Change net class of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "a net")};
}

bool TCmdNetClass::Do()
{
    if (!KeepOldClass()) {
        return false;
    }
    SetClass(net, newClass);
    return true;
}

bool TCmdNetClass::Undo()
{
    if (!KeepOldClass()) {
        return false;
    }
    SetClass(net, *oldClass);
    return true;
}

void TCmdNetClass::SetClass(const QString& ofNet, const QString& netClass)
{
    TNetModel* model = ProjectContext::NetModel(project);
    if (model && ProjectContext::Schematic(project)->IsExistNetClass(netClass)) {
        model->SetNetClass(ofNet, netClass);
    }
}

TCmdNetColorSch::TCmdNetColorSch(const QString& ofNet, const QColor& color, TSchematic* ofSchematic)
    : schematic(ofSchematic), net(ofNet), newColor(color)
{
    KeepOldColor();
}

bool TCmdNetColorSch::KeepOldColor()
{
    const TNetModel* model = ProjectContext::NetModel(schematic);
    if (model && !oldColor) {
        oldColor = model->ColorSch(model->NetRow(net));
    }
    return model != nullptr;
}

TCommandKind TCmdNetColorSch::Kind() const
{
    return {"NetColorSch", QT_TRANSLATE_NOOP("TCommandKind", "Change net colour of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "a net")};
}

bool TCmdNetColorSch::Do()
{
    if (!KeepOldColor()) {
        return false;
    }
    schematic->SetNetColor(net, newColor);
    return true;
}

bool TCmdNetColorSch::Undo()
{
    if (!KeepOldColor()) {
        return false;
    }
    schematic->SetNetColor(net, *oldColor);
    return true;
}

TCmdNetColorPcb::TCmdNetColorPcb(const QString& ofNet, const QColor& color, TProject* ofProject)
    : project(ofProject), net(ofNet), newColor(color)
{
    KeepOldColor();
}

bool TCmdNetColorPcb::KeepOldColor()
{
    const TNetModel* model = ProjectContext::NetModel(project);
    if (model && !oldColor) {
        oldColor = model->ColorPcb(model->NetRow(net));
    }
    return model != nullptr;
}

TCommandKind TCmdNetColorPcb::Kind() const
{
    return {"NetColorPcb", QT_TRANSLATE_NOOP("TCommandKind", "Change net colour of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "a net")};
}

bool TCmdNetColorPcb::Do()
{
    if (!KeepOldColor()) {
        return false;
    }
    SetColor(net, newColor);
    return true;
}

bool TCmdNetColorPcb::Undo()
{
    if (!KeepOldColor()) {
        return false;
    }
    SetColor(net, *oldColor);
    return true;
}

void TCmdNetColorPcb::SetColor(const QString& ofNet, const QColor& color)
{
    TNetModel* model = ProjectContext::NetModel(project);
    if (!model || ofNet.isEmpty()) { // The empty name is not a net.
        return;
    }
    model->SetColorPcb(ofNet, color);
    for (TGraphicsItem* item : ItemsOfView(ProjectContext::BoardView(project))) {
        if (item->Net() == ofNet) {
            item->SetAltColor(color);
        }
    }
}

TCmdNetPrio::TCmdNetPrio(const QStringList& ofNets, const QString& level, TProject* ofProject)
    : project(ofProject), nets(ofNets), newLevel(level)
{
    nets.removeAll(QString()); // The empty name is not a net.
    KeepOldLevels();
}

bool TCmdNetPrio::KeepOldLevels()
{
    const TNetModel* model = ProjectContext::NetModel(project);
    if (model && oldLevels.isEmpty()) {
        for (const QString& net : qAsConst(nets)) {
            oldLevels.append(model->Priority(net));
        }
    }
    return model != nullptr;
}

TCommandKind TCmdNetPrio::Kind() const
{
    return {"NetPrio", QT_TRANSLATE_NOOP("TCommandKind", "Change net priority of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "nets")};
}

bool TCmdNetPrio::Do()
{
    if (!KeepOldLevels()) {
        return false;
    }
    QStringList levels;
    levels.reserve(nets.size());
    std::fill_n(std::back_inserter(levels), nets.size(), newLevel);
    SetLevels(levels);
    return true;
}

bool TCmdNetPrio::Undo()
{
    if (!KeepOldLevels()) {
        return false;
    }
    SetLevels(oldLevels);
    return true;
}

void TCmdNetPrio::SetLevels(const QStringList& levels)
{
    QHash<QString, QString> levelOfNet;
    for (int i = nets.size() - 1; i >= 0; --i) { // Backwards: if a net is listed twice, the first entry wins.
        levelOfNet.insert(nets.at(i), levels.at(i));
    }
    TNetModel* model = ProjectContext::NetModel(project);
    for (const QString& net : qAsConst(nets)) {
        model->SetPriority(net, levelOfNet.value(net));
    }
    for (TGraphicsItem* item : ItemsOfView(ProjectContext::BoardView(project), {ItemType::RatLine})) {
        const auto level = levelOfNet.constFind(item->Net());
        if (level != levelOfNet.constEnd()) {
            static_cast<TGraphicsRatLineItem*>(item)->SetPriority(*level);
        }
    }
    if (TBoard* board = ProjectContext::Board(project)) {
        constexpr int allLevels = -1;
        board->RatPriority(allLevels);
    }
}

TCmdNetName::TCmdNetName(TGraphicsItem*, const QString& name, TWorkspace* ofWorkspace, TProject* ofProject)
    : newName(name), workspace(ofWorkspace), project(ofProject)
{}

TCommandKind TCmdNetName::Kind() const
{
    return {"NetName", QT_TRANSLATE_NOOP("TCommandKind", "Rename %1"), QT_TRANSLATE_NOOP("TCommandKind", "a net")};
}

bool TCmdNetName::Do()
{
    SetNetName(newName);
    return true;
}

bool TCmdNetName::Undo()
{
    SetNetName(oldName);
    return true;
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

TCommandKind TCmdFragmName::Kind() const
{
    return {"FragmName", QT_TRANSLATE_NOOP("TCommandKind", "Rename a fragment of %1"),
            QT_TRANSLATE_NOOP("TCommandKind", "a net")};
}
