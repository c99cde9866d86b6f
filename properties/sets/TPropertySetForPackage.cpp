#include "properties/sets/TPropertySetForPackage.h"

#include "properties/commands/TCmdPackage.h"
#include "properties/sets/ComponentRows.h"
#include "properties/sets/Selection.h"

#include <objects/TGraphicsPackageItem.h>

#include <QKeyEvent>

struct TPropertySetForPackage::Values : ComponentRows::Values
{
    TCommonValue<Osmirel::Layer> side;

    void Add(const TGraphicsPackageItem& item)
    {
        ComponentRows::Values::Add(item);
        side.Add(item.Layer());
    }
};

TPropertySetForPackage::TPropertySetForPackage(QList<TGraphicsItem*> selection, QList<Osmirel::Layer> layers,
                                               TBoard* ofBoard)
    : TPropertySet(Selection::IsSingle(selection) ? tr("Package") : tr("Packages")),
      packages(Selection::Pick<Attributes::OfKind<ItemType::Package>, TGraphicsPackageItem>(selection)),
      board(ofBoard)
{
    Values values;
    for (const TGraphicsPackageItem* item : qAsConst(packages)) {
        values.Add(*item);
    }
    if (!packages.isEmpty()) {
        MakeRows(values, layers, Selection::WorkspaceOf(selection));
    }
}

void TPropertySetForPackage::MakeRows(const Values& values, const QList<Osmirel::Layer>& layers, TWorkspace* workspace)
{
    refDes = NewRow<TPropertyText>(tr("RefDes:"), QString(), false);
    ComponentRows::ShowReadOnly(*refDes, values.refDes);
    connect(refDes, SIGNAL(sigTextChanged(QString)), this, SLOT(SetRefDes(QString)));

    value = NewRow<TPropertyText>(tr("Value:"), QString(), false);
    ComponentRows::ShowReadOnly(*value, values.value);
    connect(value, SIGNAL(sigTextChanged(QString)), this, SLOT(SetValue(QString)));

    package = NewRow<TPropertyText>(tr("Package:"), QString(), false);
    ComponentRows::ShowReadOnly(*package, values.package);

    id = NewRow<TPropertyText>(tr("Id:"), QString(), false); // Intended: created but not shown.
    ComponentRows::ShowReadOnly(*id, values.id);

    lock = NewRow<TPropertyCheck2>(tr("Lock:"), tr("RefDes"), tr("Value"));
    RowValues::Show(*lock, values.lockRefDes, values.lockValue);
    connect(lock, SIGNAL(sigChecked1(bool)), this, SLOT(SetLockRefDes(bool)));
    connect(lock, SIGNAL(sigChecked2(bool)), this, SLOT(SetLockValue(bool)));

    side = NewRow<TPropertyLayer>(tr("Side:"), layers, workspace);
    RowValues::Show(*side, values.side);
    connect(side, SIGNAL(sigLayerChanged(Osmirel::Layer)), this, SLOT(SetSide(Osmirel::Layer)));

    AddProperties({refDes, value, package, lock, side});
}

void TPropertySetForPackage::SetRefDes(QString) {}

void TPropertySetForPackage::SetValue(QString newValue)
{
    const QPointer<TPropertySetForPackage> self(this);
    WriteAll(packages, [&newValue](TGraphicsPackageItem& item) { item.SetValue(newValue); });
    if (self) {
        emit sigAttr();
    }
}

void TPropertySetForPackage::SetPackage(QString newPackage)
{
    const QPointer<TPropertySetForPackage> self(this);
    WriteAll(packages, [&newPackage](TGraphicsPackageItem& item) { item.SetPackageName(newPackage); });
    if (self) {
        emit sigAttr();
    }
}

void TPropertySetForPackage::SetLockRefDes(bool on)
{
    WriteAll(packages, [on](TGraphicsPackageItem& item) { ComponentRows::LockRefDes(item, on); });
}

void TPropertySetForPackage::SetLockValue(bool on)
{
    WriteAll(packages, [on](TGraphicsPackageItem& item) { ComponentRows::LockValue(item, on); });
}

void TPropertySetForPackage::SetSide(Osmirel::Layer layer)
{
    // Intended: unlike the command, the direct write refreshes neither texts, connections nor rat lines.
    EditBy(
        packages, [&] { return new TCmdPkgSide(packages, layer, board); },
        [layer](TGraphicsPackageItem& item) { item.SetLayer(layer); });
}

void TPropertySetForPackage::KeyPressEvent(QKeyEvent* event)
{
    if (event && event->key() == Qt::Key_O && side) {
        event->accept();
        const bool isOnTop = side->CurrentLayer() == Osmirel::PackagesTop;
        SetSide(isOnTop ? Osmirel::PackagesBottom : Osmirel::PackagesTop);
    }
}
