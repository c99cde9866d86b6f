#pragma once

#include <application/TSchematic.h>
#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsBusEntryItem.h>
#include <objects/TGraphicsBusItem.h>
#include <objects/TGraphicsJunctionItem.h>
#include <objects/TGraphicsNetItem.h>
#include <objects/TGraphicsNetTieSchItem.h>
#include <objects/TGraphicsPartItem.h>
#include <objects/TGraphicsPinItem.h>
#include <objects/TGraphicsPortItem.h>
#include <objects/TGraphicsTagItem.h>

namespace Test {

/** A schematic with one page, or more, on which things are placed by scene coordinates. The pages own what is added. */
class Sheet : public TSchematic
{
public:
    Sheet() { page = AddPage(); }

    /** The page that the next things are placed on. */
    TSchematicPage* CurrentPage() const { return page; }
    void GoToPage(TSchematicPage* next) { page = next; }

    TGraphicsNetItem* Wire(const QPointF& from, const QPointF& to, const QString& net = {})
    {
        auto* wire = Add<TGraphicsNetItem>({});
        wire->SetPoint1(from);
        wire->SetPoint2(to);
        wire->SetNet(net);
        return wire;
    }

    TGraphicsJunctionItem* Junction(const QPointF& at, const QString& net = {})
    {
        auto* junction = Add<TGraphicsJunctionItem>(at);
        junction->SetLayer(Osmirel::SchematicNets);
        junction->SetSize(4, 4);
        junction->SetNet(net);
        return junction;
    }

    TGraphicsPortItem* Port(const QPointF& at, const QString& name)
    {
        auto* port = Add<TGraphicsPortItem>(at);
        port->SetName(name, {});
        return port;
    }

    /** A part with pins at places of its own, numbered from 1, and both texts. */
    TGraphicsPartItem* Part(const QPointF& at, quint16 component, const QVector<QPointF>& pins)
    {
        auto part = std::make_unique<TGraphicsPartItem>();
        part->setPos(at);
        part->SetComponentNumber(component);
        part->SetRefDesText(new TGraphicsTextItem);
        part->SetValueText(new TGraphicsTextItem);
        AddPins(*part, pins);
        return Attached(std::move(part));
    }

    /** A net tie with a pin at each side. */
    TGraphicsNetTieSchItem* NetTie(const QPointF& at, quint16 number)
    {
        auto tie = std::make_unique<TGraphicsNetTieSchItem>();
        tie->setPos(at);
        tie->SetNumber(number);
        AddPins(*tie, {{-15, 0}, {15, 0}});
        return Attached(std::move(tie));
    }

    TGraphicsBusItem* Bus(const QPointF& from, const QPointF& to, const QString& name = {})
    {
        auto* bus = Add<TGraphicsBusItem>({});
        bus->SetPoint1(from);
        bus->SetPoint2(to);
        bus->SetName(name);
        return bus;
    }

    /** An entry that is linked to nothing yet. */
    TGraphicsBusEntryItem* Entry(const QPointF& at)
    {
        auto* entry = Add<TGraphicsBusEntryItem>(at);
        entry->SetLine({0, 0, 10, 10});
        return entry;
    }

    TGraphicsTagItem* Tag(const QPointF& at, const QString& name)
    {
        auto* tag = Add<TGraphicsTagItem>(at);
        tag->SetName(name, true);
        return tag;
    }

    template <class Item>
    Item* Add(const QPointF& at)
    {
        auto item = std::make_unique<Item>();
        item->setPos(at);
        return Attached(std::move(item));
    }

    /** All items of all pages, children too. */
    QList<TGraphicsItem*> AllItems() const
    {
        QList<TGraphicsItem*> items;
        for (const auto& each : Pages()) {
            items += each->Scene()->DesignItems();
        }
        return items;
    }

    /** The dump with what it does not show: the names that items have without regard to their links. */
    QString DumpWithOwnNets() const
    {
        QString dump = Dump();
        const QList<TGraphicsItem*> items = AllItems();
        for (const TGraphicsItem* item : items) {
            dump += item->OwnNet() + QLatin1Char('|');
        }
        return dump;
    }

private:
    template <class Item>
    Item* Attached(std::unique_ptr<Item> item)
    {
        Item* added = item.get();
        page->Attach(std::move(item));
        return added;
    }

    static void AddPins(TGraphicsItem& symbol, const QVector<QPointF>& places)
    {
        int number = 0;
        for (const QPointF& place : places) {
            auto* pin = new TGraphicsPinItem(&symbol);
            pin->setPos(place);
            pin->NumberText()->SetText(QString::number(++number));
        }
    }

    TSchematicPage* page;
};

inline TGraphicsPinItem* PinOf(const TGraphicsItem* symbol, int number)
{
    return static_cast<TGraphicsPinItem*>(symbol->ChildrenOfKind(ItemType::Pin).at(number - 1));
}

} // namespace Test
