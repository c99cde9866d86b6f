#pragma once

#include <application/TBoard.h>
#include <application/TProject.h>
#include <application/TSchematic.h>
#include <graphics/TGraphicsRectItem.h>
#include <graphics/TItemScene.h>
#include <objects/TGraphicsNetTiePcbItem.h>
#include <objects/TGraphicsNetTieSchItem.h>
#include <objects/TGraphicsOutlineItem.h>
#include <objects/TGraphicsPackageItem.h>
#include <objects/TGraphicsPartItem.h>
#include <workspace/TWorkspace.h>

/** The classes of the contract with their values open, so that tests can give those that the contract only reads. */
namespace ContractHost::Opened {

struct TLayers : TLayerManager
{
    using TLayerManager::table;
};

struct TDocument : TWorkspace
{
    using TWorkspace::layers;
    using TWorkspace::mode;
};

struct TScene : TItemScene
{
    using TItemScene::workspace;
};

/** An item of a kind that the contract has no class for. */
template <class Base, ItemType::Number kind>
struct TOfKind : Base
{
    int type() const override { return kind; }
};

struct TItem : TGraphicsItem
{
    using TGraphicsItem::StateOf;
};

struct TOutline : TGraphicsOutlineItem
{
    using TGraphicsOutlineItem::path;
    using TGraphicsOutlineItem::points;
};

struct TPackage : TGraphicsPackageItem
{
    using TGraphicsComponentItem::componentNumber;
    using TGraphicsComponentItem::refDesText;
    using TGraphicsComponentItem::valueText;
};

struct TPart : TGraphicsPartItem
{
    using TGraphicsComponentItem::componentNumber;
    using TGraphicsPartItem::swapNumber;
    using TGraphicsPartItem::symbolOpen;
};

struct TNetTiePcb : TGraphicsNetTiePcbItem
{
    using TGraphicsNetTiePcbItem::number;
};

struct TNetTieSch : TGraphicsNetTieSchItem
{
    using TGraphicsNetTieSchItem::number;
};

struct TComponents : TCmpModel
{
    using TCmpModel::items;
};

struct TSheets : TSchematic
{
    using TSchematic::cmpModel;
    using TSchematic::netClasses;
    using TSchematic::netModel;
    using TSchematic::pages;
    using TSchematic::project;
};

struct TBoardOfView : TBoard
{
    using TBoard::connectivityEnabled;
    using TBoard::refDesVisible;
    using TBoard::scene;
    using TBoard::valuesVisible;
    using TBoard::view;
};

struct TProjectOfBoth : TProject
{
    using TProject::board;
    using TProject::kind;
    using TProject::schematic;
    using TProject::tagValues;
};

} // namespace ContractHost::Opened
