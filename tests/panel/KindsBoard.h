#pragma once

#include "tests/sets/SetSupport.h"

#include "properties/sets/TPropertySetForHole.h"
#include "properties/sets/TPropertySetForKeepout.h"
#include "properties/sets/TPropertySetForMilling.h"
#include "properties/sets/TPropertySetForNetTiePcb.h"
#include "properties/sets/TPropertySetForPackage.h"
#include "properties/sets/TPropertySetForPad.h"
#include "properties/sets/TPropertySetForPour.h"
#include "properties/sets/TPropertySetForPrimitives.h"
#include "properties/sets/TPropertySetForText.h"
#include "properties/sets/TPropertySetForVia.h"
#include "properties/sets/TPropertySetForWire.h"

#include <application/TProject.h>
#include <graphics/TGraphicsPolylineItem.h>
#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsKeepoutItem.h>
#include <objects/TGraphicsNetTiePcbItem.h>
#include <objects/TGraphicsPourItem.h>
#include <objects/TGraphicsWireItem.h>

namespace Test {

/** A board in a project, with items of every kind that a set makes commands for, and those sets over all items. */
class KindsBoard : public ViewedBoard
{
public:
    KindsBoard()
    {
        project.SetBoard(this);
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

    TProject project;
};

using MakeKindsSet = TPropertySet* (*)(KindsBoard& board);

inline TPropertySet* MakeViaSet(KindsBoard& board)
{
    return new TPropertySetForVia(board.Items(), board.ViaGroups());
}

inline TPropertySet* MakeHoleSet(KindsBoard& board)
{
    return new TPropertySetForHole(board.Items());
}

inline TPropertySet* MakePackageSet(KindsBoard& board)
{
    return new TPropertySetForPackage(board.Items(), {Osmirel::PackagesTop, Osmirel::PackagesBottom}, &board);
}

/** Sets of items and the layers of both sides. */
template <class Set>
TPropertySet* MakeSidesSet(KindsBoard& board)
{
    return new Set(board.Items(), board.Sides());
}

/** Sets of items and the project. */
template <class Set>
TPropertySet* MakeProjectSet(KindsBoard& board)
{
    return new Set(board.Items(), &board.project);
}

/** Sets of items and nothing else. */
template <class Set>
TPropertySet* MakePlainSet(KindsBoard& board)
{
    return new Set(board.Items());
}

constexpr MakeKindsSet MakePadSet = MakeSidesSet<TPropertySetForPad>;
constexpr MakeKindsSet MakeTextSet = MakeSidesSet<TPropertySetForText>;
constexpr MakeKindsSet MakeDrawingSet = MakeSidesSet<TPropertySetForPrimitives>;
constexpr MakeKindsSet MakePourSet = MakeSidesSet<TPropertySetForPour>;
constexpr MakeKindsSet MakeWireSet = MakeProjectSet<TPropertySetForWire>;
constexpr MakeKindsSet MakeNetTieSet = MakeProjectSet<TPropertySetForNetTiePcb>;
constexpr MakeKindsSet MakeMillingSet = MakePlainSet<TPropertySetForMilling>;
constexpr MakeKindsSet MakeKeepoutSet = MakePlainSet<TPropertySetForKeepout>;

} // namespace Test
