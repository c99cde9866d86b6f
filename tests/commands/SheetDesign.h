#pragma once

#include "tests/host/LinkFault.h"
#include "tests/host/Network.h"
#include "tests/host/Sheet.h"

#include <application/TProject.h>
#include <application/TUndoCommand.h>

#include <QGraphicsView>
#include <QtTest>

namespace Test {

/** A schematic and a board with a view that are kept in step. */
struct SheetDesign
{
    SheetDesign()
    {
        view.setScene(board.Scene());
        board.SetView(&view);
        board.SetConnectivityEnabled(true);
        project.SetBoard(&board);
        project.SetSchematic(&sheet);
        project.SetKind(TProject::InStep);
    }

    TNetModel& Model() { return *sheet.NetModel(); }
    QStringList Nets()
    {
        QStringList names;
        for (int row = 0; row < Model().RowCount(); ++row) {
            names.append(Model().NetName(row));
        }
        return names;
    }
    void AddNets(const QStringList& names)
    {
        for (const QString& name : names) {
            Model().AddNet(name, {}, {}, {}, 0);
        }
    }

    /** A package of a component with numbered pads, whose nets nobody has updated yet. */
    TGraphicsPackageItem* Package(quint16 component, int pads = 2)
    {
        TGraphicsPackageItem* package = board.AddPackage();
        package->SetComponentNumber(component);
        for (int number = 1; number <= pads; ++number) {
            TGraphicsPadItem* pad = board.AddSurfacePad(1, 1, package);
            pad->SetNumber(QString::number(number));
            pad->SetNet("stale");
        }
        return package;
    }
    static QStringList PadNets(const TGraphicsPackageItem* package)
    {
        QStringList nets;
        const QVector<TGraphicsItem*> pads = package->Pads();
        for (const TGraphicsItem* pad : pads) {
            nets.append(pad->Net());
        }
        return nets;
    }

    /** A net wire that is linked with a pin, away from it. */
    TGraphicsNetItem* WireFrom(TGraphicsPinItem* pin, const QString& net = {}, const QPointF& by = {50, 0})
    {
        TGraphicsNetItem* wire = sheet.Wire(pin->scenePos(), pin->scenePos() + by, net);
        wire->LinkToFirst(pin);
        return wire;
    }

    QString Dump() const { return sheet.DumpWithOwnNets() + board.Dump(); }
    QString Fault() const { return LinkFault(sheet.AllItems()); }

    QGraphicsView view;
    Network board;
    Sheet sheet;
    TProject project;
};

/** Redoes and undoes a command twice: every redo ends in one state, every undo in the first, with all links two-sided.
 *  The command is undone in the end. */
inline void CheckBothWays(TUndoCommand& command, const SheetDesign& design)
{
    const QString before = design.Dump();
    QCOMPARE(design.Fault(), QString());
    command.redo();
    const QString after = design.Dump();
    QCOMPARE(design.Fault(), QString());
    command.undo();
    QCOMPARE(design.Dump(), before);
    QCOMPARE(design.Fault(), QString());
    command.redo();
    QCOMPARE(design.Dump(), after);
    QCOMPARE(design.Fault(), QString());
    command.undo();
    QCOMPARE(design.Dump(), before);
}

} // namespace Test
