#include "properties/sets/TPropertySetForPort.h"

#include "properties/commands/ProjectContext.h"
#include "properties/commands/TCmdPort.h"
#include "properties/sets/RowValues.h"
#include "properties/sets/Selection.h"

#include <application/TNetModel.h>

TPropertySetForPort::TPropertySetForPort(QList<TGraphicsItem*> selection, TSchematic* ofSchematic)
    : TPropertySet(Selection::IsSingle(selection) ? tr("Port") : tr("Ports")),
      ports(Selection::Pick<Attributes::OfKind<ItemType::Port>, TGraphicsPortItem>(selection)),
      schematic(ofSchematic)
{
    TCommonValue<QString> names;
    TCommonValue<bool> visible;
    for (const TGraphicsPortItem* port : qAsConst(ports)) {
        names.Add(port->Name());
        visible.Add(port->NameVisible());
    }
    if (ports.isEmpty()) {
        return;
    }
    name = NewRow<TPropertyText>(tr("Name:"), QString(), false);
    RowValues::Show(*name, names);
    RowValues::ShowVisible(*name, visible);
    connect(name, SIGNAL(sigTextChanged(QString)), this, SLOT(SetName(QString)));
    connect(name, SIGNAL(sigVisibleChanged(bool)), this, SLOT(SetNameVis(bool)));
    AddProperty(name);
}

void TPropertySetForPort::SetName(QString newName)
{
    const TNetModel* model = ProjectContext::NetModel(schematic);
    const QColor color = model ? model->ColorSch(model->NetRow(newName)) : QColor();
    // Intended: the direct write leaves the net model and the board as they are.
    EditBy(
        ports, [&] { return new TCmdPortName(ports, newName, schematic); },
        [&](TGraphicsPortItem& port) { port.SetName(newName, color); });
}

void TPropertySetForPort::SetNameVis(bool visible)
{
    Edit<TCmdPortNameVis>(ports, visible);
}
