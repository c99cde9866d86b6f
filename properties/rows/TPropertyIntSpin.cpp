#include "properties/rows/TPropertyIntSpin.h"

#include <QSpinBox>

TPropertyIntSpin::TPropertyIntSpin(const QString& label, int min, int max, int step) : TAbstractProperty(label, nullptr)
{
    auto* box = new QSpinBox;
    SetEditor(box);
    box->setMinimum(min);
    box->setMaximum(max);
    box->setSingleStep(step);
    connect(box, qOverload<int>(&QSpinBox::valueChanged), this,
            [this](int value) { Report(FirstValue, [this, value] { emit sigValueChanged(value); }); });
}

QSpinBox* TPropertyIntSpin::Box() const
{
    return qobject_cast<QSpinBox*>(Editor());
}

int TPropertyIntSpin::CurrentValue() const
{
    return Box() ? Box()->value() : 0;
}

void TPropertyIntSpin::SetCurrentValue(int value)
{
    if (QSpinBox* box = Box()) {
        SetMixed(false);
        box->setValue(value);
    }
}

void TPropertyIntSpin::SetRange(int min, int max)
{
    if (QSpinBox* box = Box()) {
        box->setRange(min, max);
    }
}

void TPropertyIntSpin::SetStep(int step)
{
    if (QSpinBox* box = Box()) {
        box->setSingleStep(step);
    }
}

void TPropertyIntSpin::SetSuffix(const QString& suffix)
{
    if (QSpinBox* box = Box()) {
        box->setSuffix(suffix);
    }
}
