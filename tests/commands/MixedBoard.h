#pragma once

#include "tests/support/TestBoard.h"

#include <graphics/TGraphicsArcItem.h>
#include <graphics/TGraphicsEllipseItem.h>
#include <graphics/TGraphicsLineItem.h>
#include <graphics/TGraphicsPolygonItem.h>
#include <graphics/TGraphicsPolylineItem.h>
#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsBusEntryItem.h>
#include <objects/TGraphicsBusItem.h>
#include <objects/TGraphicsJunctionItem.h>
#include <objects/TGraphicsKeepoutItem.h>
#include <objects/TGraphicsNetItem.h>
#include <objects/TGraphicsNetTiePcbItem.h>
#include <objects/TGraphicsNetTieSchItem.h>
#include <objects/TGraphicsOutlineItem.h>
#include <objects/TGraphicsPartItem.h>
#include <objects/TGraphicsPinItem.h>
#include <objects/TGraphicsPortItem.h>
#include <objects/TGraphicsPourItem.h>
#include <objects/TGraphicsTagItem.h>
#include <objects/TGraphicsWireItem.h>

#include <algorithm>

namespace Test {

/** An item of a kind that the host has no class for: nothing but its type number. */
class ForeignItem : public TGraphicsItem
{
public:
    explicit ForeignItem(int typeNumber) : number(typeNumber) {}

    int type() const override { return number; }
    QString KindName() const override { return QStringLiteral("foreign"); }
    QRectF boundingRect() const override { return {-5, -5, 10, 10}; }
    QPainterPath Outline() const override { return {}; }

protected:
    void Draw(QPainter&, double) const override {}
    std::unique_ptr<TGraphicsItem> CreateEmpty() const override { return std::make_unique<ForeignItem>(number); }

private:
    int number;
};

/** A pad, by its class, that says it is of some other kind. */
class OddPad : public TGraphicsPadItem
{
public:
    int type() const override { return 0x10042; }
};

/** A board with several items of every kind, those of schematics too, no two of a kind alike. */
class MixedBoard : public TestBoard
{
public:
    MixedBoard()
    {
        AddVias();
        AddPads();
        AddHole(3.2);
        AddHole(2.1)->SetTFlag(TGraphicsItem::Lock, true);
        AddPrimitives();
        AddTexts();
        AddCopper();
        AddPours();
        AddNetTies();
        AddOutline();
        AddSheetItems();
        const QList<int> otherKinds{0x10001, 0x10017, 0x10019, 0x1001a};
        for (const int kind : otherKinds) {
            Add<ForeignItem>(kind);
        }
    }

    /** The items without the numbers of pins, whose state is that of their pins. */
    QList<TGraphicsItem*> Items() const
    {
        QList<TGraphicsItem*> items = TestBoard::Items();
        const auto isNumber = [](const TGraphicsItem* item) {
            return dynamic_cast<TGraphicsPinItem*>(item->parentItem());
        };
        items.erase(std::remove_if(items.begin(), items.end(), isNumber), items.end());
        return items;
    }

    QStringList Lines() const
    {
        QStringList lines;
        for (const TGraphicsItem* item : Items()) {
            lines.append(item->StateLine());
        }
        return lines;
    }

private:
    template <class Item, class... Arguments>
    Item* Add(Arguments... arguments)
    {
        auto item = std::make_unique<Item>(arguments...);
        Item* added = item.get();
        added->setPos(60 * extra++, -100);
        Attach(std::move(item));
        return added;
    }

    void AddVias()
    {
        AddVia(0.6, 0.3);
        TGraphicsViaItem* blind = AddVia(0.45, 0.2, "Top - Inner 1");
        blind->SetThermal(TGraphicsViaItem::ThermalYes);
        blind->SetMaskEnabled(true);
        AddVia(1.1, 0.5, "of no board")->SetMaskClearance(0.25F);
        TGraphicsViaItem* oval = AddVia();
        oval->SetSize(12.3, 10.1);
        oval->SetMaskClearance(-1.5F);
        oval->SetThermal(TGraphicsViaItem::ThermalNo);
    }

    void AddPads()
    {
        TGraphicsPackageItem* package = AddPackage();
        package->setRotation(30);
        AddParts(*package);

        TGraphicsPadItem* surface = AddSurfacePad(1.1, 0.6);
        surface->SetNumber("1");
        surface->SetName("GND");
        surface->SetDrill(1.5F); // a leftover that no command may touch
        surface->SetPasteEnabled(true);
        surface->SetPasteClearance(-0.3F);

        TGraphicsPadItem* below = AddSurfacePad(0.9, 2.4, package);
        below->SetLayers(Osmirel::CopperBottom, Osmirel::CopperBottom);
        below->SetNumber("2");
        below->SetMaskEnabled(true);
        below->SetMaskClearance(0.5F);

        TGraphicsPadItem* stencil = AddSurfacePad(2, 2);
        stencil->SetLayers(Osmirel::PasteTop, Osmirel::PasteTop);
        stencil->SetThermal(TGraphicsViaItem::ThermalYes);

        TGraphicsPadItem* through = AddThroughPad(1.6, 0.8, package);
        through->SetSize(22.2, 17.7);
        through->SetPadShape(TGraphicsPadItem::ShapeObround);
        through->SetThermal(TGraphicsViaItem::ThermalNo);

        TGraphicsPadItem* upward = AddThroughPad(1.7, 1.0);
        upward->SetLayers(Osmirel::CopperBottom, Osmirel::CopperTop);
        upward->SetPadShape(TGraphicsPadItem::ShapeLongOctagon);
        upward->SetName("say \"aa\" \\ b");

        Add<OddPad>()->SetSize(8, 6);
        Add<OddPad>()->SetNumber("odd");
    }

    /** What commands over free drawings leave alone, being part of a package. */
    void AddParts(TGraphicsPackageItem& package)
    {
        auto* line = Add<TGraphicsLineItem>();
        line->setParentItem(&package);
        line->SetLine({-20, -20, 20, -20});
        line->SetLayer(Osmirel::SilkTop);
        auto* body = Add<TGraphicsRectItem>();
        body->setParentItem(&package);
        body->SetSize(20, 10);
        package.SetRefDesText(AddText("U1", Osmirel::SilkTop));
        package.SetValueText(AddText("74HC00", Osmirel::SilkTop));
        AddPackage("locked")->SetTFlag(TGraphicsItem::Lock, true);
    }

    void AddPrimitives()
    {
        auto* rectangle = Add<TGraphicsRectItem>();
        rectangle->SetSize(40, 25.5F);
        rectangle->Brush().setStyle(Qt::Dense4Pattern);
        rectangle->SetLayer(Osmirel::SilkTop);
        rectangle->SetAltColor(QColor(1, 2, 3, 4));
        Add<TGraphicsRectItem>()->SetSize(0, 0);

        auto* ellipse = Add<TGraphicsEllipseItem>();
        ellipse->SetSize(31, 11);
        ellipse->SetPenWidth(1.5F);

        auto* line = Add<TGraphicsLineItem>();
        line->SetLine({0, 0, 30, 40});
        line->SetPenWidth(0.7F);
        line->Pen().setStyle(Qt::DotLine);
        line->SetAltColor(Qt::red);

        auto* polyline = Add<TGraphicsPolylineItem>();
        polyline->SetPoints(QVector<QPointF>{{0, 0}, {20, 10}, {30, -10}});
        polyline->SetLayer(Osmirel::Milling);
        polyline->SetTFlag(TGraphicsItem::Lock, true);

        auto* polygon = Add<TGraphicsPolygonItem>();
        polygon->SetPoints(QVector<QPointF>{{0, 0}, {20, 10}, {-5, 22}});
        polygon->Brush().setStyle(Qt::HorPattern);
        polygon->Pen().setStyle(Qt::DashDotLine);

        auto* arc = Add<TGraphicsArcItem>();
        arc->SetArc(15, 30, -200);
        arc->SetLayer(Osmirel::CopperBottom);
        arc->SetPenWidth(3);
    }

    TGraphicsTextItem* AddText(const QString& content, Osmirel::Layer layer)
    {
        auto* text = Add<TGraphicsTextItem>();
        text->SetText(content);
        text->SetLayer(layer);
        text->UpdatePath(false);
        return text;
    }

    void AddTexts()
    {
        auto* plain = AddText("plain", Osmirel::SilkTop);
        plain->Font().setPixelSize(41); // 10 points
        plain->SetAlignment(Qt::AlignLeft);
        auto* odd = AddText("odd \"x\"", Osmirel::SilkBottom);
        odd->Font().setFamily("Monospace");
        odd->Font().setPixelSize(44); // no whole points
        odd->Font().setWeight(QFont::DemiBold);
        odd->Font().setStyle(QFont::StyleOblique);
        odd->SetVector(false);
        odd->SetAlignment(Qt::AlignRight);
        odd->setRotation(12.75);
        odd->SetTFlag(TGraphicsItem::MirrorHorizontal, true);
        odd->SetLineWidth(2.5F);
        auto* bold = AddText("bold", Osmirel::DrawingsTop);
        bold->Font().setWeight(QFont::Bold);
        bold->Font().setStyle(QFont::StyleItalic);
        bold->setRotation(-45);
        bold->SetTFlag(TGraphicsItem::MirrorVertical, true);
    }

    void AddCopper()
    {
        const auto addWire = [this](Osmirel::Layer layer, float width) {
            auto* wire = Add<TGraphicsWireItem>();
            wire->SetLayer(layer);
            wire->SetPenWidth(width);
            wire->SetPoint2({25, 5});
            return wire;
        };
        addWire(Osmirel::CopperTop, 2);
        addWire(Osmirel::Copper2, 0.3F)->SetAltColor(Qt::green);
        addWire(Osmirel::CopperBottom, 4.1F)->SetCompositionMode(3);
        auto* junction = Add<TGraphicsJunctionItem>();
        junction->SetLayer(Osmirel::CopperTop);
        junction->SetSize(3, 3);
    }

    void AddPours()
    {
        const QPolygonF area(QRectF(-20, -20, 40, 40));
        auto* plain = Add<TGraphicsPourItem>();
        plain->SetArea(area);
        plain->SetLayer(Osmirel::CopperTop);
        auto* other = Add<TGraphicsPourItem>();
        other->SetArea(area);
        other->SetLayer(Osmirel::Copper2);
        other->SetNet("GND");
        other->SetClearanceToEtch(1.25);
        other->SetClearanceToBorder(2.25);
        other->SetClearanceToPour(3.25);
        other->SetFillType(Qt::HorPattern);
        other->SetLineWidth(0.5);
        other->SetMinimumArea(4);
        other->SetOnlyConnected(true);
        other->SetPriority(7);
        other->SetThermalEnable(true);
        other->SetThermalLine(1.75);
        other->SetThermalIsolation(2.75);

        auto* keepout = Add<TGraphicsKeepoutItem>();
        keepout->SetArea(area);
        keepout->SetLayerEnable(Osmirel::Copper3, false);
        auto* keepoutOfAll = Add<TGraphicsKeepoutItem>();
        keepoutOfAll->SetArea(area);
        for (int layer = Osmirel::CopperTop; layer <= Osmirel::CopperBottom; ++layer) {
            keepoutOfAll->SetLayerEnable(static_cast<Osmirel::Layer>(layer), true);
        }
    }

    void AddNetTies()
    {
        auto* tie = Add<TGraphicsNetTiePcbItem>();
        tie->SetNumber(3);
        tie->SetPadSize(8);
        tie->SetPadDistance(20);
        auto* symbol = Add<TGraphicsNetTieSchItem>();
        symbol->SetNumber(3);
        symbol->SetSymbol(2);
    }

    void AddOutline() { Add<TGraphicsOutlineItem>()->SetPoints({{0, 0, 0}, {50, 0, 0}, {50, 50, 0}}); }

    /** What schematics are made of. */
    void AddSheetItems()
    {
        auto* plain = Add<TGraphicsPinItem>();
        plain->SetName("CLK");
        plain->NumberText()->SetText("1");
        auto* odd = Add<TGraphicsPinItem>();
        odd->SetNameVisible(false);
        odd->NumberText()->SetText("A \"2\"");
        odd->SetNumberVisible(false);
        odd->SetPinType(TGraphicsPinItem::TypeOpenCollector);
        odd->SetPinStyle(TGraphicsPinItem::StyleInverse);
        odd->SetPinLength(TGraphicsPinItem::LengthShort);
        odd->SetSwap(200);
        odd->UpdatePath();
        auto* part = Add<TGraphicsPartItem>();
        auto* pin = new TGraphicsPinItem(part);
        pin->SetName("Q");
        pin->setPos(20, 0);
        pin->SetSwap(7);
        auto* locked = Add<TGraphicsPartItem>();
        locked->SetComponentNumber(9);
        locked->SetTFlag(TGraphicsItem::Lock, true);

        Add<TGraphicsPortItem>()->SetName("GND", Qt::red);
        auto* port = Add<TGraphicsPortItem>();
        port->SetName("VCC", {});
        port->SetNameVisible(false);
        Add<TGraphicsTagItem>()->SetName("TITLE", true);
        auto* tag = Add<TGraphicsTagItem>();
        tag->SetName("REVISION", false);
        tag->SetValue("1.0", true);
        Add<TGraphicsNetItem>()->SetPoint2({25, 5});
        Add<TGraphicsBusItem>()->SetPoint2({25, 5});
        Add<TGraphicsBusEntryItem>()->SetLine({0, 0, 5, 5});
    }

    int extra = 0;
};

} // namespace Test
