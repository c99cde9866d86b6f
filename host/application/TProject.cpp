#include <application/TProject.h>

#include <application/TBoard.h>
#include <application/TSchematic.h>

TProject::~TProject()
{
    SetSchematic(nullptr);
}

void TProject::SetBoard(TBoard* newBoard)
{
    if (board) {
        board->SetSchematic(nullptr);
    }
    board = newBoard;
    Acquaint();
}

void TProject::SetSchematic(TSchematic* newSchematic)
{
    if (schematic) {
        schematic->project = nullptr;
    }
    schematic = newSchematic;
    Acquaint();
}

void TProject::Acquaint()
{
    if (board) {
        board->SetSchematic(schematic);
    }
    if (schematic) {
        schematic->project = this;
    }
}
