#pragma once

#include "tests/sets/SetSupport.h"

#include <application/TProject.h>
#include <application/TSchematic.h>
#include <objects/TGraphicsNetTiePcbItem.h>
#include <objects/TGraphicsNetTieSchItem.h>

namespace Test {

/** A project with net ties on its schematic and its board. */
struct TieProject
{
    TieProject()
    {
        project.SetBoard(&board);
        project.SetSchematic(&schematic);
    }

    TGraphicsNetTiePcbItem* AddTie(quint16 number, const QString& name)
    {
        auto* tie = Place<TGraphicsNetTiePcbItem>(board, {number * 50.0, 0});
        tie->SetNumber(number);
        tie->SetName(name);
        tie->SetLayer(Osmirel::CopperTop);
        tie->SetPadSize(Scene(1.2));
        tie->SetPadDistance(Scene(2));
        tie->Pen().setWidthF(Scene(0.4));
        return tie;
    }

    TGraphicsNetTieSchItem* AddSymbol(quint16 number, const QString& name)
    {
        auto* tie = Place<TGraphicsNetTieSchItem>(*page, {number * 50.0, 0});
        tie->SetNumber(number);
        tie->SetName(name);
        return tie;
    }

    QString Dump()
    {
        QString lines = board.Dump();
        schematic.SaveTopItemsFromWorkspace();
        for (const TGraphicsItem* item : schematic.Items()) {
            lines += item->StateLine() + '\n';
        }
        return lines;
    }

    ViewedBoard board;
    TSchematic schematic;
    TSchematicPage* page = schematic.AddPage();
    TProject project;
};

} // namespace Test
