#include "properties/commands/ProjectParts.h"

#include <application/TBoard.h>
#include <application/TProject.h>
#include <application/TSchematic.h>

TBoard* ProjectParts::Board(const TProject* project)
{
    return project ? project->Board() : nullptr;
}

TSchematic* ProjectParts::Schematic(const TProject* project)
{
    return project ? project->Schematic() : nullptr;
}

TNetModel* ProjectParts::NetModel(const TProject* project)
{
    return NetModel(Schematic(project));
}

TNetModel* ProjectParts::NetModel(TSchematic* schematic)
{
    return schematic ? schematic->NetModel() : nullptr;
}

TCmpModel* ProjectParts::CmpModel(TSchematic* schematic)
{
    return schematic ? schematic->CmpModel() : nullptr;
}

QGraphicsView* ProjectParts::BoardView(const TProject* project)
{
    TBoard* board = Board(project);
    return board ? board->View() : nullptr;
}

bool ProjectParts::IsInStep(const TProject* project)
{
    return project && project->Kind() == TProject::InStep;
}
