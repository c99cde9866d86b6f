#pragma once

#include "properties/commands/TCmdWireLayer.h"
#include "tests/commands/Links.h"

#include <application/TProject.h>

namespace Test {

using Layer = Osmirel::Layer;
using Wires = QList<TGraphicsWireItem*>;
using Sections = QList<TGraphicsSectionItem*>;

constexpr Layer top = Osmirel::CopperTop;
constexpr Layer bottom = Osmirel::CopperBottom;

/** A board in a project that keeps nets up to date. */
struct WireLayerDesign
{
    WireLayerDesign()
    {
        project.SetBoard(&board);
        project.SetKind(TProject::InStep);
    }

    /** A chain of wires in x direction, each 100 long, linked head to tail. */
    Wires Chain(int count, const QString& net = {})
    {
        Wires wires;
        for (int i = 0; i < count; ++i) {
            wires.append(board.Wire({100.0 * i, 0}, {100.0 * (i + 1), 0}, net));
            if (i > 0) {
                wires[i - 1]->LinkToLast(wires[i]);
            }
        }
        return wires;
    }

    /** A junction at the origin with wires that end there, with their first and last ends by turns. */
    Wires Star(TGraphicsJunctionItem* junction, int count)
    {
        Wires wires;
        for (int i = 0; i < count; ++i) {
            const QPointF outside(100, 30.0 * i);
            if (i % 2 == 0) {
                wires.append(board.Wire({0, 0}, outside));
                wires.last()->LinkToFirst(junction);
            } else {
                wires.append(board.Wire(outside, {0, 0}));
                wires.last()->LinkToLast(junction);
            }
        }
        return wires;
    }

    QList<TGraphicsViaItem*> Vias() const
    {
        QList<TGraphicsViaItem*> vias;
        for (TGraphicsItem* item : board.Items()) {
            if (item->type() == ItemType::Via) {
                vias.append(static_cast<TGraphicsViaItem*>(item));
            }
        }
        return vias;
    }

    TGraphicsViaItem* BlindVia(const QPointF& at)
    {
        TGraphicsViaItem* via = board.Via(at);
        via->SetViaGroup("Top - Inner 1");
        return via;
    }

    TCmdWireLayer Moving(const Wires& wires, Layer layer = bottom) { return TCmdWireLayer(&project, wires, layer); }

    Network board;
    TProject project;
};

} // namespace Test
