#include "properties/sets/TPropertySetForPart.h"

#include "properties/rows/TPropertyIntSpin.h"
#include "properties/sets/ComponentRows.h"
#include "properties/sets/Selection.h"

#include <objects/TGraphicsPartItem.h>

struct TPropertySetForPart::Values : ComponentRows::Values
{
    TCommonValue<QString> name;
    TCommonValue<quint8> swap; ///< Shown as the first part's.

    void Add(const TGraphicsPartItem& item)
    {
        ComponentRows::Values::Add(item);
        name.Add(item.Name());
        swap.Add(item.SwapNumber());
    }
};

TPropertySetForPart::TPropertySetForPart(QList<TGraphicsItem*> selection)
    : TPropertySet(Selection::IsSingle(selection) ? tr("Part") : tr("Parts")),
      parts(Selection::Pick<Attributes::OfKind<ItemType::Part>, TGraphicsPartItem>(selection))
{
    Values values;
    for (const TGraphicsPartItem* item : qAsConst(parts)) {
        values.Add(*item);
    }
    if (!parts.isEmpty()) {
        MakeRows(values);
    }
}

TPropertyText* TPropertySetForPart::NewDisplay(const QString& label, const TCommonValue<QString>& values)
{
    auto* row = NewRow<TPropertyText>(label, QString(), false);
    ComponentRows::ShowReadOnly(*row, values);
    return row;
}

void TPropertySetForPart::MakeRows(const Values& values)
{
    refDes = NewDisplay(tr("RefDes:"), values.refDes);
    value = NewDisplay(tr("Value:"), values.value);
    name = NewDisplay(tr("Name:"), values.name); // Intended: created but not shown.
    package = NewDisplay(tr("Package:"), values.package);
    id = NewDisplay(tr("Id:"), values.id); // Intended: created but not shown.

    lock = NewRow<TPropertyCheck2>(tr("Lock:"), tr("RefDes"), tr("Value"));
    RowValues::Show(*lock, values.lockRefDes, values.lockValue);
    connect(lock, SIGNAL(sigChecked1(bool)), this, SLOT(SetLockRefDes(bool)));
    connect(lock, SIGNAL(sigChecked2(bool)), this, SLOT(SetLockValue(bool)));

    swap = NewRow<TPropertyIntSpin>(tr("Swap:"), 0, 8, 1);
    swap->SetEnabled(false);
    swap->SetCurrentValue(values.swap.First());

    const bool showsSwap = parts.size() == 1 && values.swap.First() != 0;
    AddProperties({refDes, value, package, lock, showsSwap ? swap.data() : nullptr});
}

void TPropertySetForPart::SetLockRefDes(bool on)
{
    WriteAll(parts, [on](TGraphicsPartItem& item) { ComponentRows::LockRefDes(item, on); });
}

void TPropertySetForPart::SetLockValue(bool on)
{
    WriteAll(parts, [on](TGraphicsPartItem& item) { ComponentRows::LockValue(item, on); });
}
