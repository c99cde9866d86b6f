#include "properties/sets/TPropertySetForVia.h"

#include "properties/commands/TCmdMask.h"
#include "properties/commands/TCmdVia.h"
#include "properties/sets/RowValues.h"
#include "properties/sets/Selection.h"
#include "properties/sets/TDisplayUnit.h"

struct TPropertySetForVia::Values
{
    // Intended: these rows show the first via's values even if the vias differ.
    double diameter;
    double drill;
    double maskClearance;
    TGraphicsViaItem::TypeThermal thermal;
    // These rows show a value only if all vias share it.
    TCommonValue<QString> group;
    TCommonValue<bool> maskEnable;

    explicit Values(const TGraphicsViaItem& first);
    void Add(const TGraphicsViaItem& via);
};

TPropertySetForVia::Values::Values(const TGraphicsViaItem& first)
    : diameter(Attributes::ViaDiameter::Read(first)),
      drill(Attributes::ViaDrill::Read(first)),
      maskClearance(Attributes::MaskClearance::Read(first)),
      thermal(Attributes::ViaThermal::Read(first))
{}

void TPropertySetForVia::Values::Add(const TGraphicsViaItem& via)
{
    group.Add(Attributes::ViaGroup::Read(via));
    maskEnable.Add(Attributes::MaskEnable::Read(via));
}

TPropertySetForVia::TPropertySetForVia(QList<TGraphicsItem*> selection, QStringList viaGroups)
    : TPropertySet(tr("Vias")), items(Selection::Pick<Attributes::Vias>(selection))
{
    if (items.isEmpty()) {
        return;
    }
    Values values(static_cast<const TGraphicsViaItem&>(*items.first()));
    for (const TGraphicsItem* item : qAsConst(items)) {
        values.Add(static_cast<const TGraphicsViaItem&>(*item));
    }
    MakeRows(values, viaGroups);
}

void TPropertySetForVia::MakeRows(const Values& values, const QStringList& viaGroups)
{
    const TDisplayUnit unit(*items.first());

    diam = NewRow<TPropertyFloatSpin>(tr("Diameter:"), 0.1, 10.0, 0.1, 1);
    RowValues::Show(*diam, unit.FromScene(values.diameter), unit.Suffix());
    connect(diam, SIGNAL(sigValueChanged(qreal)), this, SLOT(SetDiam(qreal)));

    drill = NewRow<TPropertyFloatSpin>(tr("Drill:"), 0.1, 10.0, 0.1, 1);
    RowValues::Show(*drill, unit.FromScene(values.drill), unit.Suffix());
    connect(drill, SIGNAL(sigValueChanged(qreal)), this, SLOT(SetDrill(qreal)));

    thermal = NewRow<TPropertyEnum>(tr("Thermal:"), QStringList{tr("Auto"), tr("Yes"), tr("No")});
    // Intended: the drill pairs decide whether the first via's thermal connection is shown.
    RowValues::ShowIfShared(*thermal, values.group.AllEqual(), [&] { thermal->SetCurrentEnum(values.thermal); });
    connect(thermal, SIGNAL(sigEnumChanged(int)), this, SLOT(SetThermal(int)));

    group = NewRow<TPropertyEnum>(tr("Drill pair:"), viaGroups);
    RowValues::Show(*group, values.group);
    connect(group, SIGNAL(sigTextChanged(QString)), this, SLOT(SetGroup(QString)));

    mask = NewRow<TPropertyFloatSpin>(tr("Mask:"), 0.1, 10.0, 0.1, 1);
    RowValues::ShowCheck(*mask, values.maskEnable);
    RowValues::Show(*mask, unit.FromScene(values.maskClearance), unit.Name()); // Intended: no blank before this unit.
    connect(mask, SIGNAL(sigValueChanged(qreal)), this, SLOT(SetMaskClearance(qreal)));
    connect(mask, SIGNAL(sigCheckChanged(bool)), this, SLOT(SetMaskEnable(bool)));

    AddProperties({diam, drill, thermal, group, mask});
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
