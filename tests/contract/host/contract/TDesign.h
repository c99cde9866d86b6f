#pragma once

#include <contract/Opened.h>
#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsBusEntryItem.h>
#include <objects/TGraphicsBusItem.h>
#include <objects/TGraphicsJunctionItem.h>
#include <objects/TGraphicsKeepoutItem.h>
#include <objects/TGraphicsNetItem.h>
#include <objects/TGraphicsPadItem.h>
#include <objects/TGraphicsPinItem.h>
#include <objects/TGraphicsPortItem.h>
#include <objects/TGraphicsPourItem.h>
#include <objects/TGraphicsRatLineItem.h>
#include <objects/TGraphicsTagItem.h>
#include <objects/TGraphicsWireItem.h>

#include <QGraphicsView>

namespace ContractHost {

/** A project in step: a board that is shown in a view, and one page, with an item for every property set. */
class TDesign
{
public:
    TDesign();

    Opened::TLayers layers;
    Opened::TDocument boardDocument;
    Opened::TDocument pageDocument;
    Opened::TScene boardScene;
    Opened::TScene page;
    QGraphicsView view;
    TNetModel nets;
    Opened::TComponents components;
    Opened::TSheets schematic;
    Opened::TBoardOfView board;
    Opened::TProjectOfBoth project;

    /** A new item, owned by its scene. */
    template <class Item>
    static Item* Add(TItemScene& scene)
    {
        auto* item = new Item;
        item->AttachTo(&scene);
        return item;
    }

    using THole = Opened::TOfKind<TGraphicsRectItem, ItemType::Hole>;
    using TPolyline = Opened::TOfKind<TGraphicsPenItem, ItemType::Polyline>;

    TGraphicsViaItem* via = Add<TGraphicsViaItem>(boardScene);
    TGraphicsPadItem* pad = Add<TGraphicsPadItem>(boardScene);
    THole* hole = Add<THole>(boardScene);
    TGraphicsWireItem* wire = Add<TGraphicsWireItem>(boardScene);
    TGraphicsWireItem* nextWire = Add<TGraphicsWireItem>(boardScene); ///< Linked to the last end of `wire`.
    Opened::TPackage* package = Add<Opened::TPackage>(boardScene);
    TGraphicsPourItem* pour = Add<TGraphicsPourItem>(boardScene);
    TGraphicsKeepoutItem* keepout = Add<TGraphicsKeepoutItem>(boardScene);
    TGraphicsTextItem* text = Add<TGraphicsTextItem>(boardScene);
    TGraphicsRectItem* rectangle = Add<TGraphicsRectItem>(boardScene);
    TPolyline* milling = Add<TPolyline>(boardScene);
    Opened::TOutline* outline = Add<Opened::TOutline>(boardScene);
    Opened::TNetTiePcb* netTie = Add<Opened::TNetTiePcb>(boardScene);

    Opened::TNetTieSch* netTieSymbol = Add<Opened::TNetTieSch>(page);
    TGraphicsNetItem* netWire = Add<TGraphicsNetItem>(page);
    TGraphicsBusItem* bus = Add<TGraphicsBusItem>(page);
    TGraphicsPinItem* pin = Add<TGraphicsPinItem>(page);
    TGraphicsPortItem* port = Add<TGraphicsPortItem>(page); ///< Linked to the first end of `netWire`.
    Opened::TPart* part = Add<Opened::TPart>(page);
    TGraphicsTagItem* tag = Add<TGraphicsTagItem>(page);
};

} // namespace ContractHost
