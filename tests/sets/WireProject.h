#pragma once

#include "tests/sets/SetSupport.h"

#include <application/TProject.h>
#include <application/TSchematic.h>
#include <objects/TGraphicsJunctionItem.h>
#include <objects/TGraphicsWireItem.h>

namespace Test {

/** A board with wires and a schematic that knows their nets "GND" (class "Power", green) and "CLK", in step. */
struct WireProject
{
    WireProject()
    {
        schematic.AddNetClass("Power");
        schematic.NetModel()->AddNet("GND", "Power", {}, QColor("#00ff00"), 0);
        schematic.NetModel()->AddNet("CLK", {}, {}, {}, 0);
        project.SetBoard(&board);
        project.SetSchematic(&schematic);
        project.SetKind(TProject::InStep);
    }

    /** A wire of 0.25 mm, 10 units long, below those before it. */
    TGraphicsWireItem* AddWire(const QString& net, Osmirel::Layer layer = Osmirel::CopperTop)
    {
        auto* wire = Place<TGraphicsWireItem>(board, {0, 50.0 * ++placed});
        wire->SetPoint2({10, 0});
        wire->SetLayer(layer);
        wire->SetPenWidth(SceneF(0.25));
        wire->SetNet(net);
        return wire;
    }

    TGraphicsJunctionItem* AddJunction()
    {
        auto* junction = Place<TGraphicsJunctionItem>(board, {0, 50.0 * ++placed});
        junction->SetLayer(Osmirel::CopperTop);
        junction->SetSize(2, 2);
        return junction;
    }

    ViewedBoard board;
    TSchematic schematic;
    TProject project;
    int placed = 0;
};

} // namespace Test
