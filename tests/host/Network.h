#pragma once

#include "tests/support/TestBoard.h"

#include <objects/TGraphicsJunctionItem.h>
#include <objects/TGraphicsNetTiePcbItem.h>
#include <objects/TGraphicsPourItem.h>
#include <objects/TGraphicsWireItem.h>

namespace Test {

/** A board on which copper is placed by scene coordinates, with nets. The board owns what is added. */
class Network : public TestBoard
{
public:
    TGraphicsWireItem* Wire(const QPointF& from, const QPointF& to, const QString& net = {},
                            Osmirel::Layer layer = Osmirel::CopperTop)
    {
        TGraphicsWireItem* wire = Add<TGraphicsWireItem>({});
        wire->SetLayer(layer);
        wire->SetPenWidth(2);
        wire->SetPoint1(from);
        wire->SetPoint2(to);
        wire->SetNet(net);
        return wire;
    }

    TGraphicsJunctionItem* Junction(const QPointF& at, Osmirel::Layer layer = Osmirel::CopperTop)
    {
        TGraphicsJunctionItem* junction = Add<TGraphicsJunctionItem>(at);
        junction->SetLayer(layer);
        junction->SetSize(2, 2);
        return junction;
    }

    TGraphicsViaItem* Via(const QPointF& at, const QString& net = {})
    {
        TGraphicsViaItem* via = Add<TGraphicsViaItem>(at);
        via->SetSize(6, 6);
        via->SetDrill(3);
        via->SetNet(net);
        return via;
    }

    /** A round surface pad. */
    TGraphicsPadItem* Pad(const QPointF& at, const QString& net = {}, Osmirel::Layer layer = Osmirel::CopperTop)
    {
        TGraphicsPadItem* pad = Add<TGraphicsPadItem>(at);
        pad->SetSize(10, 10);
        pad->SetLayers(layer, layer);
        pad->SetNet(net);
        return pad;
    }

    TGraphicsNetTiePcbItem* NetTie(const QPointF& at)
    {
        TGraphicsNetTiePcbItem* tie = Add<TGraphicsNetTiePcbItem>(at);
        tie->SetPadSize(10);
        tie->SetPadDistance(20);
        return tie;
    }

    /** A solid pour over a rectangle. */
    TGraphicsPourItem* Pour(const QRectF& area, const QString& net, Osmirel::Layer layer = Osmirel::CopperTop)
    {
        TGraphicsPourItem* pour = Add<TGraphicsPourItem>({});
        pour->SetLayer(layer);
        pour->SetArea(QPolygonF(area));
        pour->SetNet(net);
        return pour;
    }

    /** Places any kind of item. */
    template <class Item>
    Item* Add(const QPointF& at)
    {
        auto item = std::make_unique<Item>();
        Item* added = item.get();
        item->setPos(at);
        Attach(std::move(item));
        return added;
    }
};

} // namespace Test
