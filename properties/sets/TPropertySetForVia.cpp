#include "properties/sets/TPropertySetForVia.h"

#include "properties/commands/TCmdMask.h"
#include "properties/commands/TCmdVia.h"
#include "properties/sets/RowValues.h"
#include "properties/sets/TDisplayUnit.h"

#include <workspace/TDoubleSpinBox.h>

struct TPropertySetForVia::Values
{
    TGathered<double> diameter;
    TGathered<double> drill;
    TGathered<TGraphicsViaItem::TypeThermal> thermal;
    TGathered<QString> group;
    TGathered<bool> maskEnable;
    TGathered<double> maskClearance;
};

TPropertySetForVia::TPropertySetForVia(QList<TGraphicsItem*> selection, QStringList viaGroups)
    : TPropertySet(tr("Vias"))
{
    Values values;
    for (TGraphicsItem* item : qAsConst(selection)) {
        if (!Attributes::ViaDiameter::Accepts(*item)) {
            continue;
        }
        const auto& via = static_cast<const TGraphicsViaItem&>(*item);
        if (items.isEmpty()) {
            values.diameter.Add(Attributes::ViaDiameter::Read(via));
            values.drill.Add(Attributes::ViaDrill::Read(via));
            values.thermal.Add(Attributes::ViaThermal::Read(via));
            values.maskClearance.Add(Attributes::MaskClearance::Read(via));
        }
        values.group.Add(Attributes::ViaGroup::Read(via));
        values.maskEnable.Add(Attributes::MaskEnable::Read(via));
        items.append(item);
    }
    if (!items.isEmpty()) {
        MakeRows(values, viaGroups);
    }
}

void TPropertySetForVia::MakeRows(const Values& values, const QStringList& viaGroups)
{
    const TDisplayUnit unit(*items.first());

    diam = NewRow<TPropertyFloatSpin>(tr("Diameter:"), 0.1, 10.0, 0.1, 1);
    diam->spin->setValue(unit.FromScene(values.diameter.First()));
    diam->spin->setSuffix(unit.Suffix());
    connect(diam, SIGNAL(sigValueChanged(qreal)), this, SLOT(SetDiam(qreal)));

    drill = NewRow<TPropertyFloatSpin>(tr("Drill:"), 0.1, 10.0, 0.1, 1);
    drill->spin->setValue(unit.FromScene(values.drill.First()));
    drill->spin->setSuffix(unit.Suffix());
    connect(drill, SIGNAL(sigValueChanged(qreal)), this, SLOT(SetDrill(qreal)));

    thermal = NewRow<TPropertyEnum>(tr("Thermal:"), QStringList{tr("Auto"), tr("Yes"), tr("No")});
    // Intended: the drill pairs decide whether the first via's thermal connection is shown.
    RowValues::ShowIfShared(*thermal, values.group.AllEqual(),
                            [&] { thermal->SetCurrentEnum(values.thermal.First()); });
    connect(thermal, SIGNAL(sigEnumChanged(int)), this, SLOT(SetThermal(int)));

    group = NewRow<TPropertyEnum>(tr("Drill pair:"), viaGroups);
    RowValues::Show(*group, values.group);
    connect(group, SIGNAL(sigTextChanged(QString)), this, SLOT(SetGroup(QString)));

    mask = NewRow<TPropertyFloatSpin>(tr("Mask:"), 0.1, 10.0, 0.1, 1);
    mask->spin->setSuffix(unit.Name()); // Intended: no blank before this unit.
    RowValues::ShowCheck(*mask, values.maskEnable);
    mask->spin->setValue(unit.FromScene(values.maskClearance.First()));
    connect(mask, SIGNAL(sigValueChanged(qreal)), this, SLOT(SetMaskClearance(qreal)));
    connect(mask, SIGNAL(sigCheckChanged(bool)), this, SLOT(SetMaskEnable(bool)));

    for (TAbstractProperty* row : std::initializer_list<TAbstractProperty*>{diam, drill, thermal, group, mask}) {
        AddProperty(row);
    }
}

void TPropertySetForVia::SetDiam(qreal diameter)
{
    Edit<TCmdViaDiam>(items, diameter);
}

void TPropertySetForVia::SetDrill(qreal diameter)
{
    Edit<TCmdViaDrill>(items, diameter);
}

void TPropertySetForVia::SetThermal(int newThermal)
{
    Edit<TCmdViaTherm>(items, newThermal);
}

void TPropertySetForVia::SetGroup(QString newGroup)
{
    Edit<TCmdViaGroup>(items, newGroup);
}

void TPropertySetForVia::SetMaskEnable(bool on)
{
    Edit<TCmdMaskEn>(items, on, [on](TGraphicsItem& item) {
        // Intended: unlike the command, the direct write does not refresh the via.
        static_cast<TGraphicsViaItem&>(item).SetMaskEnabled(on);
    });
}

void TPropertySetForVia::SetMaskClearance(qreal clearance)
{
    Edit<TCmdMaskClearance>(items, clearance);
}
