#include "properties/sets/TPropertySetForPin.h"

#include "properties/commands/TCmdPin.h"
#include "properties/rows/TPropertyIntSpin.h"
#include "properties/sets/RowValues.h"
#include "properties/sets/Selection.h"

#include <objects/TGraphicsPartItem.h>

struct TPropertySetForPin::Values
{
    TCommonValue<QString> name;
    TCommonValue<bool> nameVisible;
    TCommonValue<QString> number;
    TCommonValue<bool> numberVisible;
    TCommonValue<int> type;
    TCommonValue<int> style;
    TCommonValue<int> length;
    TCommonValue<int> swap;

    void Add(const TGraphicsPinItem& pin);
};

void TPropertySetForPin::Values::Add(const TGraphicsPinItem& pin)
{
    name.Add(Attributes::PinName::Read(pin));
    nameVisible.Add(Attributes::PinNameVisible::Read(pin));
    number.Add(Attributes::PinNumber::Read(pin));
    numberVisible.Add(Attributes::PinNumberVisible::Read(pin));
    type.Add(Attributes::PinType::Read(pin));
    style.Add(Attributes::PinStyle::Read(pin));
    length.Add(Attributes::PinLength::Read(pin));
    swap.Add(Attributes::PinSwap::Read(pin));
}

TPropertySetForPin::TPropertySetForPin(QList<TGraphicsItem*> selection)
    : TPropertySet(Selection::Pick<Attributes::Pins>(selection).size() == 1 ? tr("Pin") : tr("Pins")),
      pins(Selection::Pick<Attributes::Pins>(selection))
{
    Values values;
    for (const TGraphicsItem* pin : qAsConst(pins)) {
        values.Add(static_cast<const TGraphicsPinItem&>(*pin));
    }
    if (pins.isEmpty()) {
        return;
    }
    MakeTextRows(values);
    MakeChoiceRows(values);
    if (!IsPlaced()) {
        AddProperties({name, number});
    }
    AddProperties({type, style});
    if (!IsPlaced() || IsSymbolOpen()) {
        AddProperty(length);
    }
}

void TPropertySetForPin::MakeTextRows(const Values& values)
{
    name = NewRow<TPropertyText>(tr("Name:"), QString(), false);
    RowValues::Show(*name, values.name);
    RowValues::ShowVisible(*name, values.nameVisible);
    connect(name, SIGNAL(sigTextChanged(QString)), this, SLOT(SetName(QString)));
    connect(name, SIGNAL(sigVisibleChanged(bool)), this, SLOT(SetNameVisible(bool)));

    number = NewRow<TPropertyText>(tr("Number:"), QString(), false);
    RowValues::Show(*number, values.number);
    RowValues::ShowVisible(*number, values.numberVisible);
    connect(number, SIGNAL(sigTextChanged(QString)), this, SLOT(SetNumber(QString)));
    connect(number, SIGNAL(sigVisibleChanged(bool)), this, SLOT(SetNumberVisible(bool)));
}

void TPropertySetForPin::MakeChoiceRows(const Values& values)
{
    type = NewRow<TPropertyEnum>(tr("Type:"),
                                 QStringList{tr("Passive"), tr("Input"), tr("Output"), tr("Bidirectional"), tr("Hi-Z"),
                                             tr("Open Collector"), tr("Power"), tr("No connect")});
    RowValues::Show(*type, values.type);
    connect(type, SIGNAL(sigEnumChanged(int)), this, SLOT(SetPinType(int)));

    style = NewRow<TPropertyEnum>(tr("Style:"), QStringList{tr("Normal"), tr("Inverse")});
    RowValues::Show(*style, values.style);
    connect(style, SIGNAL(sigEnumChanged(int)), this, SLOT(SetPinStyle(int)));

    length = NewRow<TPropertyEnum>(tr("Length:"), QStringList{tr("Zero"), tr("Short"), tr("Middle"), tr("Long")});
    RowValues::Show(*length, values.length);
    connect(length, SIGNAL(sigEnumChanged(int)), this, SLOT(SetPinLength(int)));

    swap = NewRow<TPropertyIntSpin>(tr("Swap:"), 0, 255, 1); // Intended: created and connected, but not shown.
    RowValues::ShowIfShared(*swap, values.swap.AllEqual(), [&] { swap->SetCurrentValue(values.swap.First()); });
    connect(swap, SIGNAL(sigValueChanged(int)), this, SLOT(SetSwap(int)));
}

bool TPropertySetForPin::IsPlaced() const
{
    return pins.first()->parentItem() != nullptr;
}

bool TPropertySetForPin::IsSymbolOpen() const
{
    const QGraphicsItem* parent = pins.first()->parentItem();
    return parent && parent->type() == ItemType::Part && static_cast<const TGraphicsPartItem*>(parent)->IsSymbolOpen();
}

void TPropertySetForPin::SetName(const QString& newName)
{
    Edit<TCmdPinName>(pins, newName);
}

void TPropertySetForPin::SetNameVisible(bool on)
{
    Edit<TCmdPinNameVis>(pins, on);
}

void TPropertySetForPin::SetNumber(const QString& newNumber)
{
    Edit<TCmdPinNumber>(pins, newNumber);
}

void TPropertySetForPin::SetNumberVisible(bool on)
{
    Edit<TCmdPinNumberVis>(pins, on);
}

void TPropertySetForPin::SetPinType(int newType)
{
    Edit<TCmdPinType>(pins, newType);
}

void TPropertySetForPin::SetPinStyle(int newStyle)
{
    Edit<TCmdPinStyle>(pins, newStyle);
}

void TPropertySetForPin::SetPinLength(int newLength)
{
    Edit<TCmdPinLength>(pins, newLength);
}

void TPropertySetForPin::SetSwap(int group)
{
    Edit<TCmdPinSwap>(pins, group);
}
