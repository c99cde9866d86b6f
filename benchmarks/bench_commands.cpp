#include "benchmarks/commands/Families.h"
#include "benchmarks/support/Ratios.h"
#include "benchmarks/support/Shelf.h"

#include <QApplication>

int main(int argc, char** argv)
{
    Bench::UseOffscreenPlatform();
    const QApplication application(argc, argv);
    Bench::Shelf shelf;
    Bench::AddViasAndPads(shelf);
    Bench::AddDrawings(shelf);
    Bench::AddPours(shelf);
    Bench::AddWires(shelf);
    Bench::AddWireLayer(shelf);
    Bench::AddPackages(shelf);
    Bench::AddNets(shelf);
    Bench::AddNetTies(shelf);
    Bench::AddSheetNets(shelf);
    Bench::AddPins(shelf);
    Bench::AddPorts(shelf);
    Bench::AddParts(shelf);
    Bench::AddProjectTree(shelf);
    Bench::AddTags(shelf);
    return Bench::RunAndCompare(argc, argv,
                                {{"construct", "loop", 1.0}, {"redo", "loop", 1.1}, {"undo", "loop back", 1.1}},
                                Bench::Order::AsRegistered);
}
