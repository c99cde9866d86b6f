#include "properties/commands/ProjectContext.h"

#include <application/TBoard.h>
#include <application/TProject.h>
#include <application/TSchematic.h>

TBoard* ProjectContext::Board(const TProject* project)
{
    return project ? project->Board() : nullptr;
}

TSchematic* ProjectContext::Schematic(const TProject* project)
{
    return project ? project->Schematic() : nullptr;
}

TNetModel* ProjectContext::NetModel(const TProject* project)
{
    return NetModel(Schematic(project));
}

TNetModel* ProjectContext::NetModel(TSchematic* schematic)
{
    return schematic ? schematic->NetModel() : nullptr;
}

TCmpModel* ProjectContext::CmpModel(TSchematic* schematic)
{
    return schematic ? schematic->CmpModel() : nullptr;
}

QGraphicsView* ProjectContext::BoardView(const TProject* project)
{
    TBoard* board = Board(project);
    return board ? board->View() : nullptr;
}

bool ProjectContext::IsInSync(const TProject* project)
{
    return project && project->Kind() == TProject::InStep;
}
