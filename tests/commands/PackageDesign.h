#pragma once

#include "tests/commands/Links.h"

#include <application/TProject.h>
#include <graphics/TGraphicsTextItem.h>

#include <QGraphicsView>

namespace Test {

/** A board with a view, in a project of its own, for packages of two pads. */
struct PackageDesign
{
    PackageDesign()
    {
        view.setScene(board.Scene());
        board.SetView(&view);
        project.SetBoard(&board);
    }

    /** A package with a surface pad of net "<name>1" at its left and one of net "<name>2" at its right, both texts,
     *  and a wire that is linked with the left pad. */
    TGraphicsPackageItem* Package(const QString& name, const QPointF& at, quint16 component = 0)
    {
        auto* package = board.Add<TGraphicsPackageItem>(at);
        package->SetComponentNumber(component);
        package->SetRefDes(name);
        package->SetValue("value of " + name);
        for (const int side : {-1, 1}) {
            auto* pad = board.Pad({0, 0}, name + (side < 0 ? "1" : "2"));
            pad->setParentItem(package);
            pad->setPos(50 * side, 0);
        }
        package->SetRefDesText(new TGraphicsTextItem);
        package->SetValueText(new TGraphicsTextItem);
        auto* wire = board.Wire(at - QPointF(50, 0), at - QPointF(50, 100));
        wire->LinkToFirst(package->Pads().first());
        return package;
    }

    /** The wires that are linked with a package's pads, from the left pad to the right. */
    static QVector<TGraphicsItem*> Linked(const TGraphicsPackageItem* package)
    {
        QVector<TGraphicsItem*> wires;
        for (const TGraphicsItem* pad : package->Pads()) {
            wires += pad->Links();
        }
        return wires;
    }

    QGraphicsView view;
    Network board;
    TProject project;
};

} // namespace Test
