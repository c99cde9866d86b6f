#pragma once

#include "tests/sets/SetSupport.h"

#include "properties/sets/TPropertySetForBus.h"
#include "properties/sets/TPropertySetForHole.h"
#include "properties/sets/TPropertySetForKeepout.h"
#include "properties/sets/TPropertySetForMilling.h"
#include "properties/sets/TPropertySetForNet.h"
#include "properties/sets/TPropertySetForNetTiePcb.h"
#include "properties/sets/TPropertySetForNetTieSch.h"
#include "properties/sets/TPropertySetForPackage.h"
#include "properties/sets/TPropertySetForPad.h"
#include "properties/sets/TPropertySetForPart.h"
#include "properties/sets/TPropertySetForPin.h"
#include "properties/sets/TPropertySetForPort.h"
#include "properties/sets/TPropertySetForPour.h"
#include "properties/sets/TPropertySetForPrimitives.h"
#include "properties/sets/TPropertySetForTag.h"
#include "properties/sets/TPropertySetForText.h"
#include "properties/sets/TPropertySetForVia.h"
#include "properties/sets/TPropertySetForWire.h"

#include <application/TProject.h>
#include <application/TSchematic.h>
#include <graphics/TGraphicsPolylineItem.h>
#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsBusItem.h>
#include <objects/TGraphicsKeepoutItem.h>
#include <objects/TGraphicsNetItem.h>
#include <objects/TGraphicsNetTiePcbItem.h>
#include <objects/TGraphicsNetTieSchItem.h>
#include <objects/TGraphicsPartItem.h>
#include <objects/TGraphicsPinItem.h>
#include <objects/TGraphicsPortItem.h>
#include <objects/TGraphicsPourItem.h>
#include <objects/TGraphicsTagItem.h>
#include <objects/TGraphicsWireItem.h>

namespace Test {

/** A board and a sheet in a project, with items of every kind that a set edits, and those sets over all items. */
class KindsBoard : public ViewedBoard
{
public:
    KindsBoard()
    {
        project.SetBoard(this);
        project.SetSchematic(&schematic);
        AddSheet();
        AddVia();
        AddVia(1.2);
        TGraphicsPadItem* pad = AddSurfacePad();
        pad->SetPadShape(TGraphicsPadItem::ShapeObround);
        pad->SetNumber("1");
        AddHole();
        Test::Place<TGraphicsWireItem>(*this)->SetLayer(Osmirel::CopperTop);
        Test::Place<TGraphicsPourItem>(*this)->SetLayer(Osmirel::CopperTop);
        AddPackage()->SetLayer(Osmirel::PackagesTop);
        Test::Place<TGraphicsNetTiePcbItem>(*this)->SetLayer(Osmirel::CopperTop);
        auto* text = Test::Place<TGraphicsTextItem>(*this);
        text->SetText("a");
        text->Font().setPixelSize(41);
        Test::Place<TGraphicsRectItem>(*this)->SetLayer(Osmirel::CopperTop);
        Test::Place<TGraphicsPolylineItem>(*this)->SetLayer(Osmirel::Milling);
        Test::Place<TGraphicsKeepoutItem>(*this);
    }

    QList<TGraphicsItem*> AllItems() const { return Items() + sheet->Scene()->DesignItems(); }
    QString DumpAll() const { return Dump() + schematic.Dump(); }

    void DeleteItems()
    {
        Scene()->clear();
        sheet->Scene()->clear();
    }

    TSchematic schematic;
    TSchematicPage* sheet = schematic.AddPage();
    TProject project;

private:
    void AddSheet()
    {
        schematic.AddNetClass("fast");
        schematic.NetModel()->AddNet("GND", "fast", {}, {}, 3);
        Test::Place<TGraphicsNetItem>(*sheet)->SetNet("GND");
        Test::Place<TGraphicsBusItem>(*sheet, {0, 50})->SetName("D");
        Test::Place<TGraphicsPinItem>(*sheet, {0, 100})->SetName("CLK");
        Test::Place<TGraphicsPortItem>(*sheet, {0, 150})->SetName("GND", {});
        Test::Place<TGraphicsPartItem>(*sheet, {0, 200})->SetRefDes("U1");
        Test::Place<TGraphicsNetTieSchItem>(*sheet, {0, 250});
        auto* tag = Test::Place<TGraphicsTagItem>(*sheet, {0, 300});
        tag->Font().setPixelSize(41);
        tag->SetName("Title", true);
    }
};

using MakeKindsSet = TPropertySet* (*)(KindsBoard& board);

inline TPropertySet* MakeViaSet(KindsBoard& board)
{
    return new TPropertySetForVia(board.AllItems(), board.ViaGroups());
}

inline TPropertySet* MakeHoleSet(KindsBoard& board)
{
    return new TPropertySetForHole(board.AllItems());
}

inline TPropertySet* MakePackageSet(KindsBoard& board)
{
    return new TPropertySetForPackage(board.AllItems(), {Osmirel::PackagesTop, Osmirel::PackagesBottom}, &board);
}

/** Sets of items and the layers of both sides. */
template <class Set>
TPropertySet* MakeSidesSet(KindsBoard& board)
{
    return new Set(board.AllItems(), board.Sides());
}

/** Sets of items and the schematic. */
template <class Set>
TPropertySet* MakeSchematicSet(KindsBoard& board)
{
    return new Set(board.AllItems(), &board.schematic);
}

/** Sets of items and the project. */
template <class Set>
TPropertySet* MakeProjectSet(KindsBoard& board)
{
    return new Set(board.AllItems(), &board.project);
}

/** Sets of items and nothing else. */
template <class Set>
TPropertySet* MakePlainSet(KindsBoard& board)
{
    return new Set(board.AllItems());
}

constexpr MakeKindsSet MakePadSet = MakeSidesSet<TPropertySetForPad>;
constexpr MakeKindsSet MakeTextSet = MakeSidesSet<TPropertySetForText>;
constexpr MakeKindsSet MakeDrawingSet = MakeSidesSet<TPropertySetForPrimitives>;
constexpr MakeKindsSet MakePourSet = MakeSidesSet<TPropertySetForPour>;
constexpr MakeKindsSet MakeWireSet = MakeProjectSet<TPropertySetForWire>;
constexpr MakeKindsSet MakeNetTieSet = MakeProjectSet<TPropertySetForNetTiePcb>;
constexpr MakeKindsSet MakeMillingSet = MakePlainSet<TPropertySetForMilling>;
constexpr MakeKindsSet MakeKeepoutSet = MakePlainSet<TPropertySetForKeepout>;
constexpr MakeKindsSet MakeNetSet = MakeSchematicSet<TPropertySetForNet>;
constexpr MakeKindsSet MakePortSet = MakeSchematicSet<TPropertySetForPort>;
constexpr MakeKindsSet MakeBusSet = MakePlainSet<TPropertySetForBus>;
constexpr MakeKindsSet MakePinSet = MakePlainSet<TPropertySetForPin>;
constexpr MakeKindsSet MakePartSet = MakePlainSet<TPropertySetForPart>;
constexpr MakeKindsSet MakeTagSet = MakeProjectSet<TPropertySetForTag>;
constexpr MakeKindsSet MakeNetTieSymbolSet = MakeProjectSet<TPropertySetForNetTieSch>;

} // namespace Test
