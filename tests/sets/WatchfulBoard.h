#pragma once

#include "tests/support/Observers.h"
#include "tests/support/TestBoard.h"

#include <application/TProject.h>
#include <application/TSchematic.h>
#include <graphics/TGraphicsArcItem.h>
#include <graphics/TGraphicsEllipseItem.h>
#include <graphics/TGraphicsLineItem.h>
#include <graphics/TGraphicsPolygonItem.h>
#include <graphics/TGraphicsPolylineItem.h>
#include <graphics/TGraphicsTextItem.h>
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

#include <numeric>

namespace Test {

/**
 * A board and a sheet whose items tell when they are written to, with values that the rows cannot show exactly.
 */
class WatchfulBoard : public TestBoard
{
public:
    WatchfulBoard()
    {
        project.SetBoard(this);
        project.SetSchematic(&schematic);
        project.SetKind(TProject::InStep);
        schematic.NetModel()->AddNet("GND", "of no schematic", Qt::red, QColor(1, 2, 3, 4), 77);
        AddCopper();
        AddDrawings();
        AddComponents();
        AddSheet();
        for (TGraphicsItem* item : AllItems()) {
            item->SetAltColor(QColor(1, 2, item->DesignOrder()));
        }
    }

    ~WatchfulBoard() { project.SetBoard(nullptr); }

    QList<TGraphicsItem*> AllItems() const { return Items() + sheet->Scene()->DesignItems(); }
    QString DumpAll() const { return Dump() + schematic.Dump(); }

    void SetBypass(bool on)
    {
        for (TGraphicsItem* item : AllItems()) {
            item->SetTFlag(TGraphicsItem::UndoBypass, on);
        }
    }

    int Refreshes() const
    {
        return std::accumulate(refreshes.cbegin(), refreshes.cend(), 0,
                               [](int sum, const int* count) { return sum + *count; });
    }

    /** Each item alone and all together. */
    QList<QList<TGraphicsItem*>> Selections() const
    {
        QList<QList<TGraphicsItem*>> selections{AllItems()};
        for (TGraphicsItem* item : AllItems()) {
            selections.append({item});
        }
        return selections;
    }

    TSchematic schematic;
    TSchematicPage* sheet = schematic.AddPage();
    TProject project;

private:
    void AddCopper()
    {
        for (const double size : {8.123, 3000.5}) {
            auto* via = Place<TGraphicsViaItem>();
            via->SetSize(size, size / 2);
            via->SetDrill(0);
            via->SetViaGroup("Odd");
        }
        int shape = 0;
        for (const bool surface : {true, false, true, false, true, false}) {
            auto* pad = Place<TGraphicsPadItem>();
            pad->SetSize(1800.123, 0.456);
            pad->SetPadShape(static_cast<TGraphicsPadItem::TypePadShape>(++shape));
            pad->SetTypeSMD(surface);
            pad->SetMaskClearance(-1.5F);
            pad->SetPasteClearance(-1.5F);
        }
        Place<TGraphicsHoleItem>()->SetSize(0.5F, 0.75F);
        auto* junction = Place<TGraphicsJunctionItem>();
        for (const float width : {0.00123F, 77777.0F}) {
            auto* wire = Place<TGraphicsWireItem>();
            wire->SetPenWidth(width);
            wire->SetLayer(Osmirel::Copper5);
            wire->SetNet("GND");
            wire->LinkToFirst(junction);
            wire->SetCompositionMode(99);
        }
        for (const double length : {0.00123, 77777.0}) {
            auto* pour = Place<TGraphicsPourItem>();
            pour->SetClearanceToEtch(length);
            pour->SetMinimumArea(length);
            pour->SetFillType(Qt::Dense3Pattern);
            pour->SetPriority(200);
            pour->SetAlpha(300);
            pour->SetCompositionMode(99);
        }
    }

    void AddDrawings()
    {
        AddPen<TGraphicsLineItem>();
        AddPen<TGraphicsRectItem>()->SetSize(-1.234F, 77777.0F);
        AddPen<TGraphicsEllipseItem>()->Brush().setStyle(Qt::Dense3Pattern);
        AddPen<TGraphicsPolygonItem>();
        AddPen<TGraphicsArcItem>();
        for (const float width : {0.00123F, 77777.0F}) {
            auto* path = AddPen<TGraphicsPolylineItem>();
            path->SetLayer(Osmirel::Milling);
            path->SetPenWidth(width);
        }
        for (const int pixels : {1, 777}) {
            auto* text = Place<TGraphicsTextItem>();
            text->Font().setPixelSize(pixels);
            text->Font().setWeight(80);
            text->Font().setStyle(QFont::StyleOblique);
            text->setRotation(12.5);
            text->SetAlignment(Qt::AlignTop);
            text->SetLineWidth(0.3F);
            text->UpdatePath(false);
        }
        Place<TGraphicsKeepoutItem>()->SetLayerEnable(Osmirel::Copper2, true);
        Place<TGraphicsKeepoutItem>();
        Place<TGraphicsOutlineItem>()->SetPoints({{0, 0, 0}, {1.234, 77777, 0}});
    }

    void AddComponents()
    {
        for (const char* name : {"a@b", "@"}) {
            auto* package = Place<TGraphicsPackageItem>();
            package->SetPackageName(name);
            package->SetLockValue(true);
            package->SetLayer(Osmirel::CopperBottom);
        }
        for (const double length : {0.00123, 77777.0}) {
            auto* tie = Place<TGraphicsNetTiePcbItem>();
            tie->SetPadSize(length);
            tie->Pen().setWidthF(length);
        }
    }

    void AddSheet()
    {
        PlaceOnSheet<TGraphicsNetTieSchItem>()->SetSymbol(7);
        PlaceOnSheet<TGraphicsNetTieSchItem>()->SetNameVisible(false);
        PlaceOnSheet<TGraphicsNetItem>()->SetNet("GND");
        PlaceOnSheet<TGraphicsNetItem>()->SetNet("of no model");
        PlaceOnSheet<TGraphicsNetItem>();
        PlaceOnSheet<TGraphicsBusItem>()->SetName("D[0..7]");
        PlaceOnSheet<TGraphicsBusItem>();
        PlaceOnSheet<TGraphicsPortItem>()->SetName("GND", Qt::green);
        PlaceOnSheet<TGraphicsPortItem>()->SetNameVisible(false);
        for (const int swap : {200, 3}) {
            auto* part = PlaceOnSheet<TGraphicsPartItem>();
            part->SetSwapNumber(static_cast<quint8>(swap));
            part->SetSymbolOpen(swap == 3);
            part->SetPackageName("a@b");
            PlaceOnSheet<TGraphicsPinItem>()->setParentItem(part);
        }
        auto* pin = PlaceOnSheet<TGraphicsPinItem>();
        pin->SetPinType(static_cast<TGraphicsPinItem::TypePinType>(99));
        pin->SetPinLength(static_cast<TGraphicsPinItem::TypePinLength>(99));
        pin->SetSwap(255);
        for (const int pixels : {1, 777}) {
            auto* tag = PlaceOnSheet<TGraphicsTagItem>();
            tag->SetName("of no project", false);
            tag->Font().setPixelSize(pixels);
            tag->SetAlignment(Qt::AlignTop);
            tag->SetLineWidth(0.3F);
        }
    }

    template <class Item>
    Item* Place()
    {
        return PlaceOn<Item>(*this);
    }

    template <class Item>
    Item* PlaceOnSheet()
    {
        return PlaceOn<Item>(*sheet);
    }

    template <class Item, class Document>
    Item* PlaceOn(Document& document)
    {
        auto item = std::make_unique<Counting<Item>>();
        auto* attached = item.get();
        refreshes.append(&attached->refreshes);
        document.Attach(std::move(item));
        return attached;
    }

    template <class Item>
    Item* AddPen()
    {
        Item* item = Place<Item>();
        item->SetPenWidth(0.00123F);
        item->Pen().setStyle(Qt::CustomDashLine);
        return item;
    }

    QList<const int*> refreshes;
};

} // namespace Test
