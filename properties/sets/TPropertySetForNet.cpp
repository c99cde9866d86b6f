#include "properties/sets/TPropertySetForNet.h"

#include "properties/commands/ProjectContext.h"
#include "properties/commands/TCmdNet.h"
#include "properties/rows/TPropertyColor.h"
#include "properties/sets/RowValues.h"
#include "properties/sets/Selection.h"

#include <application/TSchematic.h>

#include <QSet>

TPropertySetForNet::TPropertySetForNet(QList<TGraphicsItem*> selection, TSchematic* ofSchematic)
    : TPropertySet(Selection::IsSingle(selection) ? tr("Net") : tr("Nets")), schematic(ofSchematic)
{
    TCommonValue<QString> names;
    QSet<QString> known;
    const QList<TGraphicsItem*> wires = Selection::Pick<Attributes::OfKind<ItemType::NetWire>>(selection);
    for (const TGraphicsItem* wire : wires) {
        const QString onNet = wire->Net();
        names.Add(onNet);
        if (!onNet.isEmpty() && !known.contains(onNet)) {
            known.insert(onNet);
            nets.append(onNet);
        }
    }
    netName = names.First();
    if (HasNet()) {
        MakeRows(names.AllEqual());
    }
}

void TPropertySetForNet::MakeRows(bool onOneNet)
{
    const TNetModel& model = *ProjectContext::NetModel(schematic);

    net = NewRow<TPropertyText>(tr("Net:"), netName, false);
    net->line->SetEditable(false);
    net->SetMixed(!onOneNet);

    netClass = NewRow<TPropertyEnum>(tr("Net class:"), schematic->NetClassNames());
    const QString className = model.NetClass(netName);
    netClass->SetCurrentText(className.isEmpty() ? QStringLiteral("Default") : className);
    connect(netClass, SIGNAL(sigTextChanged(QString)), this, SLOT(slotSetClass(QString)));

    level = NewRow<TPropertyEnum>(tr("Level:"),
                                  QStringList{QStringLiteral("Default"), "1", "2", "3", "4", "5", "6", "7", "8", "9"});
    level->SetCurrentEnum(model.Priority(netName).toInt());
    connect(level, SIGNAL(sigTextChanged(QString)), this, SLOT(slotSetPrio(QString)));

    color = NewRow<TPropertyColor>(tr("Color:"), model.ColorSch(model.NetRow(netName)));
    connect(color, SIGNAL(sigColorChanged(QColor)), this, SLOT(slotSetColor(QColor)));

    AddProperties({net, netClass, level, color});
}

bool TPropertySetForNet::HasNet() const
{
    return ProjectContext::NetModel(schematic) && !netName.isEmpty();
}

void TPropertySetForNet::slotSetClass(QString newClass)
{
    if (HasNet()) {
        Emit(new TCmdNetClass(netName, newClass, schematic->Project()));
    }
}

void TPropertySetForNet::slotSetPrio(QString newLevel)
{
    if (HasNet()) {
        Emit(new TCmdNetPrio(nets, newLevel, schematic->Project()));
    }
}

void TPropertySetForNet::slotSetColor(const QColor& newColor)
{
    if (HasNet()) {
        Emit(new TCmdNetColorSch(netName, newColor, schematic));
    }
}
