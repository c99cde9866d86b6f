#include "benchmarks/sets/Scans.h"
#include "benchmarks/sets/ScansOfItems.h"

#include <graphics/TGraphicsTextItem.h>
#include <objects/TGraphicsBusItem.h>
#include <objects/TGraphicsPartItem.h>
#include <objects/TGraphicsPinItem.h>
#include <objects/TGraphicsPortItem.h>
#include <objects/TGraphicsTagItem.h>

#include <QSet>

namespace Bench {

void ScanNetWires(const Items& items)
{
    // Their nets without duplicates: the level of all of them is edited.
    QSet<QString> nets;
    QString first;
    bool sameNet = true;
    ForEach<TGraphicsItem>(items, ItemType::NetWire, [&](const TGraphicsItem& wire) {
        const QString net = wire.Net();
        if (first.isEmpty()) {
            first = net;
        }
        sameNet = sameNet && net == first;
        if (!nets.contains(net)) {
            nets.insert(net);
        }
    });
    Use(sameNet, nets.size());
}

void ScanBuses(const Items& items)
{
    const TGraphicsBusItem* first = nullptr;
    bool sameName = true;
    for (const TGraphicsItem* item : items) {
        if (item->Layer() == Osmirel::SchematicBuses) {
            const auto* bus = static_cast<const TGraphicsBusItem*>(item);
            first = first ? first : bus;
            sameName = sameName && bus->Name() == first->Name();
        }
    }
    Use(sameName);
}

void ScanPins(const Items& items)
{
    const TGraphicsPinItem* first = nullptr;
    bool sameName = true;
    bool sameNameVisible = true;
    bool sameNumber = true;
    bool sameNumberVisible = true;
    bool sameType = true;
    bool sameStyle = true;
    bool sameLength = true;
    bool sameSwap = true;
    ForEach<TGraphicsPinItem>(items, ItemType::Pin, [&](const TGraphicsPinItem& pin) {
        first = first ? first : &pin;
        sameName = sameName && pin.Name() == first->Name();
        sameNameVisible = sameNameVisible && pin.NameVisible() == first->NameVisible();
        sameNumber = sameNumber && pin.Number() == first->Number();
        sameNumberVisible = sameNumberVisible && pin.NumberVisible() == first->NumberVisible();
        sameType = sameType && pin.PinType() == first->PinType();
        sameStyle = sameStyle && pin.PinStyle() == first->PinStyle();
        sameLength = sameLength && pin.PinLength() == first->PinLength();
        sameSwap = sameSwap && pin.Swap() == first->Swap();
    });
    Use(sameName, sameNameVisible, sameNumber, sameNumberVisible, sameType, sameStyle, sameLength, sameSwap);
}

void ScanPorts(const Items& items)
{
    const TGraphicsPortItem* first = nullptr;
    bool sameName = true;
    bool sameVisible = true;
    ForEach<TGraphicsPortItem>(items, ItemType::Port, [&](const TGraphicsPortItem& port) {
        first = first ? first : &port;
        sameName = sameName && port.Name() == first->Name();
        sameVisible = sameVisible && port.NameVisible() == first->NameVisible();
    });
    Use(sameName, sameVisible);
}

void ScanParts(const Items& items)
{
    const TGraphicsPartItem* first = nullptr;
    bool sameRefDes = true;
    bool sameValue = true;
    bool sameName = true;
    bool samePackage = true;
    bool sameId = true;
    bool sameLockOfRefDes = true;
    bool sameLockOfValue = true;
    ForEach<TGraphicsPartItem>(items, ItemType::Part, [&](const TGraphicsPartItem& part) {
        first = first ? first : &part;
        sameRefDes = sameRefDes && part.RefDes() == first->RefDes();
        sameValue = sameValue && part.Value() == first->Value();
        sameName = sameName && part.Name() == first->Name();
        samePackage =
            samePackage && NameWithoutQualifier(part.PackageName()) == NameWithoutQualifier(first->PackageName());
        sameId = sameId && part.ComponentNumber() == first->ComponentNumber();
        sameLockOfRefDes = sameLockOfRefDes && part.LockRefDes() == first->LockRefDes();
        sameLockOfValue = sameLockOfValue && part.LockValue() == first->LockValue();
    });
    Use(sameRefDes, sameValue, sameName, samePackage, sameId, sameLockOfRefDes, sameLockOfValue);
}

void ScanTags(const Items& items)
{
    Use(LastOf<TGraphicsTagItem>(items, ItemType::Tag));
}

} // namespace Bench
