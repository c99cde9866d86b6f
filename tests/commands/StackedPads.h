#pragma once

#include "tests/host/Network.h"

namespace Test {

/** A package with a surface pad of 80 by 80 that drilled pads lie in, and with a small surface pad at its left. */
struct StackedPads
{
    StackedPads(Network& board, const QPointF& at, const QString& net = {})
        : package(board.Add<TGraphicsPackageItem>(at))
    {
        exposed = Pad(board, {0, 0}, 80, net);
        for (const QPointF& place : {QPointF(-20, 0), QPointF(20, 0)}) {
            drilled.append(Pad(board, place, 20, net));
            drilled.last()->SetLayers(Osmirel::CopperTop, Osmirel::CopperBottom);
        }
        beside = Pad(board, {-100, 0}, 10, {});
    }

    /** A wire from a point of the package to a place away from it, linked with a pad that need not be the nearest. */
    TGraphicsWireItem* WireTo(Network& board, TGraphicsPadItem* pad, const QPointF& point, Osmirel::Layer layer) const
    {
        const QPointF from = package->pos() + point;
        TGraphicsWireItem* wire = board.Wire(from, from + QPointF(0, 300), {}, layer);
        wire->LinkToFirst(pad);
        return wire;
    }

    TGraphicsPackageItem* package;
    TGraphicsPadItem* exposed;
    QVector<TGraphicsPadItem*> drilled;
    TGraphicsPadItem* beside;

private:
    TGraphicsPadItem* Pad(Network& board, const QPointF& at, double size, const QString& net) const
    {
        TGraphicsPadItem* pad = board.Pad({}, net);
        pad->SetSize(size, size);
        pad->setParentItem(package);
        pad->setPos(at);
        return pad;
    }
};

} // namespace Test
