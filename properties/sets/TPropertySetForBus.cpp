#include "properties/sets/TPropertySetForBus.h"

#include "properties/sets/RowValues.h"

#include <objects/TGraphicsBusItem.h>

TPropertySetForBus::TPropertySetForBus(QList<TGraphicsItem*> selection) : TPropertySet(tr("Bus"))
{
    TGathered<QString> names;
    for (TGraphicsItem* item : qAsConst(selection)) {
        // Not by their type; but what has no name of a bus, such as a junction of buses, cannot be given one.
        auto* bus = item->Layer() == Osmirel::SchematicBuses ? dynamic_cast<TGraphicsBusItem*>(item) : nullptr;
        if (bus) {
            buses.append(bus);
            names.Add(bus->Name());
        }
    }
    if (buses.isEmpty()) {
        return;
    }
    name = NewRow<TPropertyText>(tr("Name"), QString(), false); // Intended: no colon.
    RowValues::Show(*name, names);
    connect(name, SIGNAL(sigTextChanged(QString)), this, SLOT(SetName(QString)));
    AddProperty(name);
}

void TPropertySetForBus::SetName(QString newName)
{
    for (TGraphicsBusItem* bus : qAsConst(buses)) {
        bus->SetName(newName);
    }
}
