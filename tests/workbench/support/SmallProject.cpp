#include "tests/workbench/support/SmallProject.h"

#include "tests/workbench/support/ShownWorkbench.h"

#include <graphics/TGraphicsRectItem.h>
#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsBusEntryItem.h>
#include <objects/TGraphicsBusItem.h>
#include <objects/TGraphicsJunctionItem.h>
#include <objects/TGraphicsNetItem.h>
#include <objects/TGraphicsNetTieSchItem.h>
#include <objects/TGraphicsPackageItem.h>
#include <objects/TGraphicsPartItem.h>
#include <objects/TGraphicsPinItem.h>
#include <objects/TGraphicsPortItem.h>
#include <objects/TGraphicsTagItem.h>

namespace Test {

namespace {

template <class Item>
Item* Place(TSchematicPage& page, std::unique_ptr<Item> item, const QPointF& place)
{
    Item* placed = item.get();
    placed->setPos(place);
    page.Attach(std::move(item));
    return placed;
}

TGraphicsPinItem* AddPin(TGraphicsItem* parent, const QPointF& place, double rotation, const QString& number)
{
    auto* pin = new TGraphicsPinItem(parent);
    pin->setPos(place);
    pin->setRotation(rotation);
    pin->NumberText()->SetText(number);
    return pin;
}

/** A symbol of 120 by 40 units between its two pins, which lie 100 to the left and the right of the middle. */
TGraphicsPartItem* AddPart(TSchematicPage& page, const QPointF& place, quint16 component, const QString& designator)
{
    auto part = std::make_unique<TGraphicsPartItem>();
    part->SetName(QStringLiteral("RESISTOR"));
    part->SetComponentNumber(component);
    part->SetRefDesText(new TGraphicsTextItem);
    part->RefDesText()->setPos(0, -60);
    part->SetRefDes(designator);
    part->SetValue(QStringLiteral("1k"));
    auto* body = new TGraphicsRectItem(part.get());
    body->SetLayer(Osmirel::SchematicSymbols);
    body->SetSize(120, 40);
    AddPin(part.get(), {-100, 0}, 0, QStringLiteral("1"));
    AddPin(part.get(), {100, 0}, 180, QStringLiteral("2"));
    return Place(page, std::move(part), place);
}

TGraphicsNetItem* AddWire(TSchematicPage& page, const QPointF& from, const QPointF& to, const QString& net)
{
    auto* wire = Place(page, std::make_unique<TGraphicsNetItem>(), {});
    wire->SetPoint1(from);
    wire->SetPoint2(to);
    wire->SetNet(net);
    return wire;
}

void FillFront(TSchematicPage& page)
{
    auto* first = AddPart(page, {0, 0}, 1, QStringLiteral("R1"));
    auto* second = AddPart(page, {500, 0}, 2, QStringLiteral("R10"));
    AddWire(page, {100, 0}, {400, 0}, QStringLiteral("A"));
    first->Connect({});
    second->Connect({});
    auto* frame = Place(page, std::make_unique<TGraphicsRectItem>(), {250, 400});
    frame->SetLayer(Osmirel::SchematicTexts);
    frame->SetSize(800, 200);
}

void FillBack(TSchematicPage& page)
{
    AddPart(page, {0, 0}, 3, QStringLiteral("R2"));
    auto* port = Place(page, std::make_unique<TGraphicsPortItem>(), {300, 0});
    port->SetName(QStringLiteral("OUT"), {});
    AddWire(page, {300, 0}, {300, 200}, QStringLiteral("OUT"))->LinkToFirst(port->Pin());

    auto* bus = Place(page, std::make_unique<TGraphicsBusItem>(), {});
    bus->SetPoint1({0, 300});
    bus->SetPoint2({400, 300});
    bus->SetName(QStringLiteral("D"));
    auto* entry = Place(page, std::make_unique<TGraphicsBusEntryItem>(), {200, 300});
    entry->SetLine({0, 0, 30, 30});
    entry->LinkToBus(bus);
    AddWire(page, {230, 330}, {230, 400}, QStringLiteral("D0"))->LinkToFirst(entry);

    auto* junction = Place(page, std::make_unique<TGraphicsJunctionItem>(), {-200, 300});
    junction->SetLayer(Osmirel::SchematicNets);
    junction->SetSize(12, 12);
    auto tie = std::make_unique<TGraphicsNetTieSchItem>();
    tie->SetNumber(7);
    tie->SetName(QStringLiteral("NT1"));
    AddPin(tie.get(), {-45, 0}, 0, QStringLiteral("1"));
    AddPin(tie.get(), {45, 0}, 180, QStringLiteral("2"));
    Place(page, std::move(tie), {-300, 0});
    auto* text = Place(page, std::make_unique<TGraphicsTextItem>(), {-300, 500});
    text->SetLayer(Osmirel::SchematicTexts);
    text->SetText(QStringLiteral("Notes"));
    auto* tag = Place(page, std::make_unique<TGraphicsTagItem>(), {0, 500});
    tag->SetValue(QStringLiteral("Amplifier"), false);
    tag->SetName(QStringLiteral("TITLE"), true);
}

} // namespace

TImportResult MakeSchematic()
{
    TImportResult result;
    result.schematic = std::make_unique<TSchematic>();
    for (const char* net : {"A", "OUT", "D0"}) {
        result.schematic->NetModel()->AddNet(net, "Default", {}, {}, 0);
    }
    TCmpModel& components = *result.schematic->CmpModel();
    components.Add(1, {"R1", "1k", "0603", 0});
    components.Add(2, {"R10", "1k", "0603", 0});
    components.Add(3, {"R2", "1k", "0603", 0});
    components.UpdateCount();
    FillFront(*result.schematic->AddPage());
    FillBack(*result.schematic->AddPage());
    result.pageNames = QStringList{"Front", "Back"};
    result.tagValues.insert("TITLE", "Amplifier");
    return result;
}

TImportResult MakeProject()
{
    TImportResult result = MakeSchematic();
    result.board = MakeBoard();
    const QList<TGraphicsItem*> items = result.board->Items();
    for (TGraphicsItem* item : items) {
        if (item->type() == ItemType::Package) {
            auto* package = static_cast<TGraphicsPackageItem*>(item);
            package->SetComponentNumber(1);
            package->SetRefDes(QStringLiteral("R1"));
            package->SetValue(QStringLiteral("1k"));
        }
    }
    return result;
}

} // namespace Test
