#include "benchmarks/support/BenchSheet.h"

#include "benchmarks/support/Edits.h"

#include <objects/TGraphicsNetItem.h>

#include <QCoreApplication>

namespace Bench {

ShownSheet::ShownSheet()
{
    shown.setScene(page->Scene());
    shown.resize(64, 64);
    shown.show();
}

void ShownSheet::Settle()
{
    QCoreApplication::processEvents();
}

TGraphicsNetItem* ShownSheet::PlaceWire(const QPointF& from, const QPointF& to, const QString& net)
{
    auto* wire = Place<TGraphicsNetItem>({});
    wire->SetPoint1(from);
    wire->SetPoint2(to);
    wire->SetNet(net);
    return wire;
}

ProjectInStep::ProjectInStep()
{
    board.SetConnectivityEnabled(true);
    project.SetKind(TProject::InStep);
    project.SetSchematic(&schematic);
    project.SetBoard(&board);
}

ProjectInStep::~ProjectInStep()
{
    project.SetBoard(nullptr);
    project.SetSchematic(nullptr);
}

QString ProjectInStep::State()
{
    return schematic.Dump() + SortedState(board);
}

} // namespace Bench
