#pragma once

#include "tests/sets/SetSupport.h"

#include <application/TProject.h>
#include <application/TSchematic.h>
#include <objects/TGraphicsNetItem.h>

namespace Test {

/** A board and a schematic of two pages, which knows the net classes "Default" and "fast", in one project. */
struct SheetProject
{
    SheetProject()
    {
        project.SetBoard(&board);
        project.SetSchematic(&schematic);
        schematic.AddNetClass("fast");
    }

    /** An item at the next free place of the first page. */
    template <class Item>
    Item* Add()
    {
        return Place<Item>(*page, NextPlace());
    }

    /** A wire that is linked to nothing and bears the name of a net. */
    TGraphicsNetItem* AddWire(const QString& net, TSchematicPage* onPage = nullptr)
    {
        auto* wire = Place<TGraphicsNetItem>(onPage ? *onPage : *page, NextPlace());
        wire->SetPoint2({50, 0});
        wire->SetNet(net);
        return wire;
    }

    TNetModel& Nets() { return *schematic.NetModel(); }

    QString Dump() const { return schematic.Dump() + board.Dump(); }

    ViewedBoard board;
    TSchematic schematic;
    TSchematicPage* page = schematic.AddPage();
    TSchematicPage* secondPage = schematic.AddPage();
    TProject project;

private:
    QPointF NextPlace() { return {0, 100.0 * ++placed}; }

    int placed = 0;
};

} // namespace Test
