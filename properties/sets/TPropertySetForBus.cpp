#include "properties/sets/TPropertySetForBus.h"

#include "properties/sets/RowValues.h"
#include "properties/sets/Selection.h"

#include <objects/TGraphicsBusItem.h>

namespace {

/** Not by their type; but items without a bus name, such as a junction of buses, are left out. */
struct Buses
{
    static bool Accepts(const TGraphicsItem& item)
    {
        return item.Layer() == Osmirel::SchematicBuses && dynamic_cast<const TGraphicsBusItem*>(&item);
    }
};

} // namespace

TPropertySetForBus::TPropertySetForBus(QList<TGraphicsItem*> selection)
    : TPropertySet(tr("Bus")), buses(Selection::Pick<Buses, TGraphicsBusItem>(selection))
{
    TCommonValue<QString> names;
    for (const TGraphicsBusItem* bus : qAsConst(buses)) {
        names.Add(bus->Name());
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
    WriteAll(buses, [&newName](TGraphicsBusItem& bus) { bus.SetName(newName); });
}
